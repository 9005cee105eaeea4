#!/usr/bin/python3
"""The pictures of the help pages: each a window of the real program with something in it to see.

    pictures.py BUILD-FOLDER PICTURE-FOLDER light|dark

The picture folder gets NAME-light.png or NAME-dark.png of each picture. A picture is a function under
@picture(NAME): it goes on from where the one before left the screen and leaves its window active. Exits
non-zero at the first step that finds something else. The clock stands in the evening, so that the day is
full, and the program in a folder whose name is fit to be seen.
"""
import datetime
import pathlib
import shutil
import subprocess
import sys
import time

from tour import check, leave, leave_window, main_window, meals_in_chart, new_user, progress_chart_in
from drive import wait_for, xdotool

SCREEN = "860x660x24"  # a window that fills it is as wide as a page
EVENING = 20 * 60 + 40  # minutes of the day
PLACE = pathlib.Path("/var/tmp/Anna")
PICTURES = []

# A desktop with dark colours: Qt reads them itself where it finds this file of one.
DARK_COLORS = """\
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
[Colors:Selection]
BackgroundNormal=61,130,190
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:View]
BackgroundAlternate=35,38,41
BackgroundNormal=27,30,32
ForegroundLink=29,153,243
ForegroundNormal=252,252,252
ForegroundVisited=155,89,182
[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[KDE]
widgetStyle=Fusion
"""

FOODS = """\
Food;Category;Unit;Energy (kJ);Fat (g);Carbohydrate (g);Protein (g)
Buckwheat crackers;Snacks;100 g;1610;4,2;71;11
Hazelnut bar;Sweets and Desserts;bar (40 g);880;12;20;3,4
Lentil spread;Sauces and Spreads;100 g;690;9,5;11;6,8
Plum compote;Fruit;cup (200 g);540;0,4;29;0,9
"""


def picture(name, height=None):
    """Of the window the upper part alone, where a height is given."""
    def add(function):
        PICTURES.append((name, height, function))
        return function
    return add


def open_by_menu(program, menu, entry, title):
    program.menu(menu, entry)
    return program.window(title)


@picture("common")
def common(program):
    program.answer("OK")
    return program.window("Common Parameters")


@picture("main-window")
def main_window_of_a_day(program):
    dialog = program.window("Common Parameters")
    dialog.find("push button", "OK").press()
    program.gone(dialog)
    check(len(meals_in_chart(program)) > 8, "the day of the sample journal is not full")
    return main_window(program)


@picture("quick-add")
def quick_add(program):
    program.keys("ctrl+k")
    window = program.window("Quick Add")
    xdotool("type", "--delay", 20, "2 banana 8:15")
    entry = window.find("text", "What was eaten or done")
    wait_for(lambda: "08:15" in entry.description, "the line to be read")
    return window


@picture("meal")
def meal(program):
    leave_window(program, "Quick Add")
    dialog = open_by_menu(program, "Operate", "Add Meal", "Meal Consumed - New")
    dialog.find("combo box", "Meal Category").choose("Fruit")
    dialog.find("combo box", "Meal").choose("Banana")
    dialog.find("text", "Quantity").type("2")
    return dialog


@picture("meal-editor")
def meal_editor(program):
    leave_window(program, "Meal Consumed - New")
    open_by_menu(program, "Settings", "Meal", "Meals").find("push button", "New").press()
    editor = program.window("Meal Description - New")
    editor.find("combo box", "Meal Category").choose("Nuts and Seeds")
    for field, text in {"Meal Name": "Summit mix", "Unit": "handful", "Default Qty": "1",
                        "Increment": "0.5", "Calories per Unit": "250", "Fat by Weight": "10",
                        "Carbohydrate by Weight": "20", "Protein by Weight": "5"}.items():
        editor.find("text", field).type(text)
    return editor


@picture("compose")
def compose(program):
    leave_window(program, "Meal Description - New")
    leave_window(program, "Meals")
    window = open_by_menu(program, "Journal", "Compose a Meal…", "Compose a Meal")
    window.find("text", "Portions").type("2")
    ingredient = window.find("text", "Ingredient")
    for line in "150 g rice white", "2 egg boiled":
        ingredient.type(line)
        program.keys("Return")
        wait_for(lambda: ingredient.text == "", "the ingredient to be added")
    ingredient.type("10 g oil")
    return window


@picture("goals")
def goals(program):
    leave_window(program, "Compose a Meal")
    window = open_by_menu(program, "Journal", "Goals…", "Goals")
    window.find("text", "Target Weight").type("71.5")
    window.find("check box", "Reached by").press()
    window.find("radio button", "What the day burns, less a deficit of").press()
    window.find("text", "Daily Deficit").type("300")
    return window


@picture("progress")
def progress(program):
    window = program.window("Goals")
    window.find("push button", "OK").press()
    program.gone(window)
    dialog = open_by_menu(program, "Analyze", "General Progress", "General Progress Parameters")
    dialog.find("push button", "OK").press()
    program.gone(dialog)
    window = program.window("General Progress")
    progress_chart_in(window)
    program.keys(*["Left"] * 9)
    return window


@picture("weeks", height=260)
def weeks(program):
    program.keys("alt+w")
    return program.window("General Progress")


@picture("import")
def import_of_foods(program):
    leave_window(program, "General Progress")
    (PLACE / "foods.csv").write_text(FOODS)
    window = open_by_menu(program, "Journal", "Import…", "Import")
    window.find("push button", "Files…").press()
    program.window("Choose Files to Import")
    xdotool("type", "--delay", 20, PLACE / "foods.csv")
    program.keys("Return")
    wait_for(lambda: [cell for cell in window.find_all("table cell") + window.find_all("tree item")
                      if "foods.csv" in cell.name], "the file to be read")
    return window


@picture("restore")
def restore(program):
    leave_window(program, "Import")
    folder = PLACE / "program"
    for weeks_ago in 1, 2, 3:
        made = program.start - datetime.timedelta(weeks=weeks_ago, minutes=17 * weeks_ago)
        backup = folder / "backups" / made.strftime("Corvana %Y-%m-%d %H-%M-%S")
        backup.mkdir(parents=True)
        for name in "Corvana.mdb", "Corvana.ini":
            shutil.copy(folder / name, backup)
    return open_by_menu(program, "Journal", "Restore…", "Restore a Backup")


def take(path, height):
    """The active window without its frame, in few colours."""
    time.sleep(0.5)
    window = subprocess.run(["xdotool", "getactivewindow"], check=True, capture_output=True,
                            text=True).stdout.strip()
    crop = ["-crop", f"x{height}+0+0"] if height else []
    # Small, and yet in true colour: one of indexed colours would be dithered when it is scaled.
    subprocess.run(["import", "-window", window, *crop, "+repage", "+dither", "-colors", "128",
                    "-quality", "91", f"PNG24:{path}"], check=True)
    print(path, flush=True)


def evening():
    """The name of a time zone in which it is evening, and the time there."""
    now = datetime.datetime.now(datetime.timezone.utc)
    ahead = (EVENING - now.hour * 60 - now.minute + 12 * 60) % (24 * 60) - 12 * 60
    sign = "-" if ahead >= 0 else "+"  # west of Greenwich is positive there
    zone = f"Local{sign}{abs(ahead) // 60}:{abs(ahead) % 60:02}"
    return zone, (now + datetime.timedelta(minutes=ahead)).replace(tzinfo=None)


def main():
    build, pictures = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    palette = sys.argv[3]
    pictures.mkdir(parents=True, exist_ok=True)
    PLACE.mkdir()  # and never one of somebody's own
    zone, now = evening()

    def prepare(home):
        variables = {"TZ": zone}
        if palette == "dark":
            (home / ".config").mkdir()
            (home / ".config" / "kdeglobals").write_text(DARK_COLORS)
            variables |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
        return variables

    try:
        with new_user(build, PLACE, prepare, screen=SCREEN) as program:
            program.start = now
            for name, height, function in PICTURES:
                function(program).find_all("label")  # it is there and answers
                take(pictures / f"{name}-{palette}.png", height)
            leave_window(program, "Restore a Backup")
            leave(program)
    finally:
        shutil.rmtree(PLACE)


if __name__ == "__main__":
    main()
