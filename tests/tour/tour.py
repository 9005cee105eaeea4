#!/usr/bin/python3
"""The tour: the program's main job from its very first start on, with a picture of each step.

    tour.py BUILD-FOLDER PICTURE-FOLDER

The picture folder is made anew and gets a program folder of its own, as a new user has it. A step is a function under @step: it goes on
from where the one before left the screen, checks what it finds, and the picture of the screen that it
leaves is taken. Exits non-zero at the first step that finds something else.
"""
import datetime
import pathlib
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from drive import Program, wait_for, xdotool  # noqa: E402

STEPS = []


def step(function):
    STEPS.append(function)
    return function


def check(fine, message):
    if not fine:
        raise AssertionError(message)


def main_window(program):
    return wait_for(lambda: [w for w in program.windows() if w.find_all("menu bar")],
                    "the main window")[0]


def date_shown(program):
    return main_window(program).find("text", "Current date").text


def meals_in_chart(program):
    """What the chart tells of its meals: "Meal at 12:40, 73 kcal: carbohydrate 47, ..."."""
    chart = main_window(program).find("chart", "Daily calorie chart")
    return [meal.name for meal in chart.find_all("push button") if meal.name.startswith("Meal at ")]


@step
def first_start(program):
    said = program.text_of(program.message())
    check("very first start" in said, f"first start says {said!r}")


@step
def common_parameters(program):
    program.answer("OK")
    dialog = program.window("Common Parameters")
    dialog.find("combo box", "Measurement").choose("Metric (kg, cm)")
    dialog.find("text", "Body Weight").type("70")
    burnt = dialog.find("text", "Background Calories Consume").text
    check(burnt == "59", f"70 kg burn {burnt} calories per hour")


@step
def today(program):
    dialog = program.window("Common Parameters")
    dialog.find("push button", "OK").press()
    program.gone(dialog)
    shown = date_shown(program)
    check(str(datetime.date.today().day) in shown, f"the day shown is {shown!r}")
    check(meals_in_chart(program), "there is no sample meal on the day of the first start")


@step
def add_meal(program):
    program.menu("Operate", "Add Meal")
    dialog = program.window("Meal Consumed - New")
    dialog.find("combo box", "Meal Category").choose("Fruit")
    dialog.find("combo box", "Meal").choose("Banana")
    dialog.find("text", "Quantity").type("2")


@step
def meal_stored(program):
    dialog = program.window("Meal Consumed - New")
    dialog.find("push button", "Add").press()
    quantity = dialog.find("text", "Quantity")
    wait_for(lambda: quantity.text == "", "the form to be cleared for the next meal")


@step
def chart_follows(program):
    dialog = program.window("Meal Consumed - New")
    dialog.find("push button", "Close").press()
    program.gone(dialog)
    bananas = [meal for meal in meals_in_chart(program) if ", 209 kcal:" in meal]
    check(len(bananas) == 1, f"two bananas are missing in {meals_in_chart(program)}")


@step
def measurements_and_notes(program):
    program.menu("Operate", "Body Measurement and Notes")
    window = program.window("Body Measurement and Notes")
    check(window.find_all("label", "Weight (kg)"), f"no kilograms:\n{window.outline()}")


@step
def new_measurement(program):
    window = program.window("Body Measurement and Notes")
    window.find_all("push button", "New")[0].press()
    editor = program.window("Body Measurement - New")
    for field, text in {"Weight": "72.1", "Breast": "95", "Waist": "82.5", "Hips": "101"}.items():
        editor.find("text", field).type(text)
    editor.find("push button", "OK").press()
    question = program.message()
    check(question.name == "Same date", f"the question is titled {question.name!r}")


@step
def measurement_replaced(program):
    program.answer("Yes")
    window = program.window("Body Measurement and Notes")
    wait_for(lambda: "82.5" in window.outline(), "the new measurement in the list")


@step
def new_note(program):
    window = program.window("Body Measurement and Notes")
    window.find_all("push button", "New")[1].press()
    editor = program.window("User Note - New")
    editor.find("text", "User Note Text").type("Began to jog.")
    program.keys("Return")
    xdotool("type", "--delay", 20, "Ten minutes by the river, and I am still alive.")


@step
def notes_intersect(program):
    program.keys("ctrl+Return")
    refusal = program.message()
    check(refusal.name == "Intersection", f"the message is titled {refusal.name!r}")
    said = program.text_of(refusal)
    check("old jeans" in said and "not allowed" in said, f"the message is {said!r}")


@step
def note_stored(program):
    program.answer("OK")
    editor = program.window("User Note - New")
    for picker in editor.find_all("spin button"):
        picker.focus()
        program.keys("End", "Up")  # the year
    editor.find("push button", "OK").press()
    program.gone(editor)
    window = program.window("Body Measurement and Notes")
    wait_for(lambda: "Began to jog. Ten" in window.outline(), "the new note in the list")


@step
def previous_day(program):
    window = program.window("Body Measurement and Notes")
    program.keys("Escape")
    program.gone(window)
    before = date_shown(program)
    main_window(program).find("push button", "Previous").press()
    wait_for(lambda: date_shown(program) != before, "the day before to be shown")


@step
def set_date(program):
    program.menu("Operate", "Set Date")
    dialog = program.window("Set Current Date")
    dialog.find("spin button").focus()
    program.keys("Up")


@step
def date_set(program):
    before = date_shown(program)
    dialog = program.window("Set Current Date")
    dialog.find("push button", "OK").press()
    program.gone(dialog)
    wait_for(lambda: date_shown(program) != before, "the day picked to be shown")


@step
def delete_trial_data(program):
    program.menu("Operate", "Delete Trial Data")
    question = program.message()
    check(question.name == "Are you sure?", f"the question is titled {question.name!r}")
    said = program.text_of(question)
    check("This will delete trial data" in said, f"the question is {said!r}")


@step
def nothing_deleted(program):
    before = meals_in_chart(program)
    program.answer("No")
    check(len(before) > 1 and meals_in_chart(program) == before, "the sample journal is gone")


def play(program, pictures):
    for number, function in enumerate(STEPS, 1):
        name = function.__name__.replace("_", "-")
        picture = pictures / f"{number:02}-{name}.png"
        try:
            function(program)
        except BaseException:
            picture = picture.with_stem(picture.stem + "-FAILED")
            raise
        finally:
            program.picture(picture)
            print(picture, flush=True)


def new_user(build, place):
    """The program as someone has it who has just installed it: started from a fresh folder under
    place, for a home that is empty."""
    shutil.rmtree(place, ignore_errors=True)
    home = place / "home"
    home.mkdir(parents=True)
    subprocess.run(["cmake", "--install", build, "--prefix", place / "program"],
                   check=True, stdout=subprocess.DEVNULL)
    return Program([place / "program" / "corvana"], str(home), environment={"LC_ALL": "C.UTF-8"})


def leave(program):
    program.menu("Operate", "Exit")
    code = program.ended()
    check(code == 0, f"the program ended with {code}")


def arguments():
    return (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])


def main():
    build, pictures = arguments()
    with new_user(build, pictures) as program:
        play(program, pictures)
        leave(program)


if __name__ == "__main__":
    main()
