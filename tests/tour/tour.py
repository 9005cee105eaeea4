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


def items_in_chart(program):
    return len(main_window(program).find("chart", "Daily calorie chart").find_all("push button"))


def progress_chart_in(window):
    return wait_for(lambda: [e for e in window.descendants()
                             if e.name.startswith("General progress chart")],
                    "the progress chart")[0]


def leave_window(program, title):
    window = program.window(title)
    program.keys("Escape")
    program.gone(window)


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
def menu_of_a_meal(program):
    main_window(program).find("chart", "Daily calorie chart").focus()
    program.keys("Right", "Menu")


@step
def quick_add(program):
    program.keys("Down", "Return")  # Edit Meal
    leave_window(program, "Meal Consumed")
    program.keys("ctrl+k")
    window = program.window("Quick Add")
    xdotool("type", "--delay", 20, "150 g oat 7:30")
    entry = window.find("text", "What was eaten or done")
    wait_for(lambda: "weight 150 g" in entry.description and "07:30" in entry.description,
             lambda: f"the line is read as {entry.description!r}")


@step
def three_meals_by_fifteen_keys(program):
    leave_window(program, "Quick Add")
    before = items_in_chart(program)
    keys = ["ctrl+k", *"oat", "Return", *"ban", "Return", *"cof", "Return", "Escape"]
    check(len(keys) <= 15, f"{len(keys)} keys")
    program.keys(keys[0])
    program.window("Quick Add")
    program.keys(*keys[1:])
    wait_for(lambda: items_in_chart(program) == before + 3, "three more meals in the chart")
    program.keys("ctrl+k")
    program.window("Quick Add")
    program.keys("Return")
    wait_for(lambda: items_in_chart(program) == before + 4, "a habit by two keys")


@step
def undo(program):
    leave_window(program, "Quick Add")
    before = items_in_chart(program)
    for _ in range(4):
        program.keys("ctrl+z")
    wait_for(lambda: items_in_chart(program) == before - 4, "four items fewer in the chart")
    program.keys("alt+j")


@step
def compose_a_meal(program):
    program.keys("Escape", "Escape")
    program.menu("Journal", "Compose a Meal…")
    window = program.window("Compose a Meal")
    for line in "150 g rice white", "2 egg", "10 g oil":
        xdotool("type", "--delay", 20, line)
        program.keys("Return")
    window.find("text", "Portions").type("2")
    wait_for(lambda: len(window.find_all("table cell")) + len(window.find_all("tree item")) >= 3,
             "the ingredients in the list")


@step
def composed_meal(program):
    program.window("Compose a Meal").find("push button", "Create Meal…").press()
    editor = program.window("Meal Description - New")
    check(editor.find("text", "Unit").text == "portion", "the meal is not filled in")


@step
def measurements_and_notes(program):
    leave_window(program, "Meal Description - New")
    leave_window(program, "Compose a Meal")
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
def add_activity(program):
    leave_window(program, "Body Measurement and Notes")
    program.menu("Operate", "Add Activity")
    dialog = program.window("Activity Performed - New")
    dialog.find("combo box", "Activity").choose("Walking the dog")
    dialog.find("combo box", "Activity").focus()
    program.keys("Tab", "Tab", *"0610", "Tab", *"0640")


@step
def activity_stored(program):
    dialog = program.window("Activity Performed - New")
    dialog.find("push button", "Add").press()
    quantity = dialog.find("text", "Quantity")
    wait_for(lambda: quantity.text == "", "the form to be cleared for the next activity")
    dialog.find("push button", "Close").press()
    program.gone(dialog)


@step
def meals_of_the_day(program):
    program.menu("Operate", "Meal Consumed List")
    rows = [cell.name for cell in program.window("Meal Consumed List").find_all("table cell")]
    check("Banana" in rows, f"the banana is missing in {rows}")


@step
def copy_to_a_day(program):
    program.window("Meal Consumed List").find("table cell", "Banana").click()
    program.keys("Menu", "o")
    program.window("Copy Banana")


@step
def copied_to_a_day(program):
    dialog = program.window("Copy Banana")
    dialog.find("push button", "Copy").press()
    program.gone(dialog)
    window = program.window("Meal Consumed List")
    wait_for(lambda: [label for label in window.find_all("label")
                      if label.name.startswith("Banana copied to ")], "the copy to be told")


@step
def activities_of_the_day(program):
    leave_window(program, "Meal Consumed List")
    program.menu("Operate", "Activities Performed List")
    rows = [cell.name for cell in
            program.window("Activities Performed List").find_all("table cell")]
    check("06:10" in rows and "06:40" in rows, f"the walk is missing in {rows}")


@step
def copy_from_another_day(program):
    leave_window(program, "Activities Performed List")
    program.menu("Journal", "Copy from Another Day\u2026")
    dialog = program.window("Copy from Another Day")
    times = dialog.find_all("table cell")[::6]
    check(times and all(time.is_checked for time in times), "not all entries are checked at first")
    dialog.find("push button", "Check None").press()
    wait_for(lambda: not any(time.is_checked for time in times), "the entries to be unchecked")
    program.keys("Home", "space", "Down", "space")


@step
def entries_copied(program):
    before = len(meals_in_chart(program))
    dialog = program.window("Copy from Another Day")
    dialog.find("push button", "Copy").press()
    program.gone(dialog)
    wait_for(lambda: len(meals_in_chart(program)) == before + 2, "two more meals in the chart")
    check([label for label in main_window(program).find_all("label")
           if label.name.startswith("2 entries copied to ")], "nothing tells of the copies")


@step
def previous_day(program):
    before = date_shown(program)
    main_window(program).find("push button", "Previous").press()
    wait_for(lambda: date_shown(program) != before, "the day before to be shown")


@step
def set_date(program):
    program.keys("ctrl+g")
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
def progress_parameters(program):
    program.menu("Analyze", "General Progress")
    dialog = program.window("General Progress Parameters")
    check(dialog.find("radio button", "1 Month").is_checked, "1 month is not proposed")


@step
def too_little_for_six_months(program):
    dialog = program.window("General Progress Parameters")
    dialog.find("radio button", "6 Months").press()
    dialog.find("push button", "OK").press()
    question = program.message()
    check(question.name == "Not enough data", f"the question is titled {question.name!r}")


@step
def progress_chart(program):
    program.answer("No")
    dialog = program.window("General Progress Parameters")
    dialog.find("radio button", "1 Month").press()
    dialog.find("push button", "OK").press()
    program.gone(dialog)
    chart = progress_chart_in(program.window("General Progress"))
    check("Weight: -" in chart.name, f"the chart is called {chart.name!r}")
    told = chart.description
    program.keys("Left")
    wait_for(lambda: chart.description != told, "the day before to be told of")


@step
def progress_table(program):
    window = program.window("General Progress")
    program.keys("alt+t")
    window.find("push button", "Copy Table").press()


@step
def progress_weeks(program):
    window = program.window("General Progress")
    program.keys("alt+w")
    wait_for(lambda: [cell for cell in window.find_all("table cell") + window.find_all("tree item")
                      if cell.name == "7 of 7"], "a week with data on all days")


@step
def progress_before(program):
    window = program.window("General Progress")
    chart = progress_chart_in(window)
    told = chart.description
    window.find("push button", "Previous").press()
    wait_for(lambda: chart.description != told, "the period before")


@step
def progress_closed(program):
    window = program.window("General Progress")
    window.find("push button", "Close").press()
    program.gone(window)


@step
def meal_categories(program):
    program.menu("Settings", "Meal Categories")
    categories = program.window("Meal Categories")
    check(categories.find_all("table cell", "Fruit") or categories.find_all("tree item", "Fruit"),
          f"no fruit:\n{categories.outline()}")


@step
def new_category(program):
    program.keys("Insert")
    program.window("Meal Category - New").find("text", "Meal Category Name").type("Trail Food")


@step
def meals(program):
    editor = program.window("Meal Category - New")
    editor.find("push button", "OK").press()
    program.gone(editor)
    leave_window(program, "Meal Categories")
    program.menu("Settings", "Meal")
    program.window("Meals").find("combo box", "Meal Category").choose("Nuts and Seeds")


@step
def new_meal(program):
    program.window("Meals").find("push button", "New").press()
    editor = program.window("Meal Description - New")
    editor.find("combo box", "Meal Category").choose("Trail Food")
    for field, text in {"Meal Name": "Summit mix", "Unit": "handful", "Default Qty": "1",
                        "Increment": "0.5", "Fat by Weight": "10", "Carbohydrate by Weight": "20",
                        "Protein by Weight": "5", "Calories per Unit": "250"}.items():
        editor.find("text", field).type(text)
    fat = editor.find("text", "Fat by Calories").text
    check(fat == "118.4211", f"10 g of fat in 250 calories make {fat}")


@step
def meal_listed(program):
    editor = program.window("Meal Description - New")
    editor.find("push button", "OK").press()
    program.gone(editor)
    category = program.window("Meals").find("combo box", "Meal Category").name
    check(category == "Trail Food", f"the list shows {category!r}")


@step
def activities(program):
    leave_window(program, "Meals")
    program.menu("Settings", "Activities")
    program.window("Activities")


@step
def new_activity(program):
    program.keys("Insert")
    editor = program.window("Activity Description - New")
    editor.find("check box", "Weight Dependent").press()
    for field, text in {"Activity Name": "Log rolling", "Calories Consume": "450",
                        "Default Qty": "0.5", "Unit": "hour"}.items():
        editor.find("text", field).type(text)


@step
def weight_adjustment(program):
    editor = program.window("Activity Description - New")
    editor.find("push button", "For Me").press()
    program.window("Weight Adjustment")


@step
def activity_listed(program):
    calculator = program.window("Weight Adjustment")
    calculator.find("push button", "OK").press()
    program.gone(calculator)
    editor = program.window("Activity Description - New")
    calories = editor.find("text", "Calories Consume").text
    check(calories == "463", f"450 calories for 68.04 kg are {calories} for 70 kg")
    editor.find("push button", "OK").press()
    program.gone(editor)


@step
def goals(program):
    leave_window(program, "Activities")
    program.menu("Journal", "Goals\u2026")
    window = program.window("Goals")
    window.find("text", "Target Weight").type("66")
    window.find("radio button", "What the day burns, less a deficit of").press()
    window.find("text", "Daily Deficit").type("400")
    told = window.find_all("label")
    check([label for label in told if label.name.startswith("The deficit comes to about 0.36 kg")],
          f"the deficit is not told of in {[label.name for label in told]}")


@step
def left_of_the_budget(program):
    window = program.window("Goals")
    window.find("push button", "OK").press()
    program.gone(window)
    chart = main_window(program).find("chart", "Daily calorie chart")
    check("Of a budget of " in chart.description, f"the chart tells {chart.description!r}")


@step
def check_journal(program):
    program.menu("Journal", "Check Journal\u2026")
    window = program.window("Check Journal")
    wait_for(lambda: [label for label in window.find_all("label")
                      if label.name.startswith("The journal is sound")], "a sound journal", 30)


@step
def export_to_files(program):
    leave_window(program, "Check Journal")
    program.menu("Journal", "Export\u2026")
    check(program.window("Export").find("text", "Folder").text, "no folder is proposed")


@step
def files_exported(program):
    program.window("Export").find("push button", "Export").press()
    said = program.text_of(program.message())
    check("has been exported to" in said, f"the export said {said!r}")


@step
def backup_settings(program):
    program.answer("OK")
    program.menu("Journal", "Backup Settings\u2026")
    program.window("Backup Settings")


@step
def restore(program):
    leave_window(program, "Backup Settings")
    program.menu("Journal", "Restore\u2026")
    program.window("Restore a Backup")


@step
def delete_trial_data(program):
    leave_window(program, "Restore a Backup")
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


def new_user(build, place, prepare=lambda home: {}, **options):
    """The program as someone has it who has just installed it: started from a fresh folder under
    place, for a home that is empty but for what prepare(home) puts there; it returns the variables of
    the environment that belong to it. Other options are those of Program."""
    shutil.rmtree(place, ignore_errors=True)
    home = place / "home"
    home.mkdir(parents=True)
    subprocess.run(["cmake", "--install", build, "--prefix", place / "program"],
                   check=True, stdout=subprocess.DEVNULL)
    return Program([place / "program" / "corvana"], str(home),
                   environment={"LC_ALL": "C.UTF-8", **prepare(home)}, **options)


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
