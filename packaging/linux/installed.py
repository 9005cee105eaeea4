"""Uses the program in another root as a person would, with a picture of each step.

    installed.py ROOT USER OCCASION PROGRAM STEP...

Runs as that user, beside drive.py and a folder for the pictures, and in a folder that the root has,
too. A step is a function here. Exits non-zero at the first one that finds something else.
"""
import pathlib
import sys
import tempfile

from drive import Program, wait_for

PICTURES = pathlib.Path(__file__).parent / "pictures"


def check(fine, message):
    if not fine:
        raise AssertionError(message)


class Use:
    def __init__(self, program, home, occasion):
        self.program = program
        self.home = home
        self.occasion = occasion

    def picture(self, name):
        number = len(list(PICTURES.iterdir())) + 1
        self.program.picture(PICTURES / f"{number:02}-{self.occasion}-{name}.png")

    def main_window(self):
        return wait_for(lambda: [w for w in self.program.windows() if w.find_all("menu bar")],
                        "the main window")[0]

    def check_meal(self):
        chart = self.main_window().find("chart", "Daily calorie chart")
        meals = [meal.name for meal in chart.find_all("push button")]
        check(sum(", 209 kcal:" in meal for meal in meals) == 1, f"two bananas are missing in {meals}")

    def first_start(self):
        self.picture("greeting")
        said = self.program.answer("OK")
        check("very first start" in said, f"first start says {said!r}")
        dialog = self.program.window("Common Parameters")
        dialog.find("push button", "OK").press()
        self.program.gone(dialog)
        self.main_window()
        self.picture("first-start")

    def add_meal(self):
        self.program.menu("Operate", "Add Meal")
        dialog = self.program.window("Meal Consumed - New")
        dialog.find("combo box", "Meal Category").choose("Fruit")
        dialog.find("combo box", "Meal").choose("Banana")
        dialog.find("text", "Quantity").type("2")
        dialog.find("push button", "Add").press()
        wait_for(lambda: dialog.find("text", "Quantity").text == "", "the form to be cleared")
        dialog.find("push button", "Close").press()
        self.program.gone(dialog)
        self.check_meal()
        self.picture("meal-added")

    def meal_is_there(self):
        self.check_meal()
        self.program.menu("Operate", "Meal Consumed List")
        window = self.program.window("Meal Consumed List")
        check("209" in [cell.name for cell in window.find_all("table cell")], "they are not listed")
        self.picture("meal-is-there")
        self.program.keys("Escape")
        self.program.gone(window)

    def help(self):
        for entry in ("Contents", "F1"):
            if entry == "F1":
                self.program.keys(entry)
            else:
                self.program.menu("Help", entry)
            window = self.program.window("Corvana Help")
            self.picture(f"help-{entry.lower()}")
            self.program.keys("Escape")
            self.program.gone(window)

    def leave(self):
        self.program.menu("Operate", "Exit")
        check(self.program.ended(60) == 0, f"the program ended with {self.program.ended()}")

    def refused(self):
        said = self.program.text_of(self.program.message())
        check(f"{self.home}/.local/share/Corvana" in said, f"it says {said!r}")
        self.picture("refused")
        self.program.answer("OK")
        check(self.program.ended() == 1, f"the program ended with {self.program.ended()}")


def main():
    root, user, occasion, command, *steps = sys.argv[1:]
    home = f"/home/{user}"
    inside = ["unshare", "--user", "--map-current-user", f"--root={root}", f"--wd={home}", command]
    with tempfile.TemporaryDirectory() as helpers_home:
        environment = {"HOME": home, "TMPDIR": "/tmp"}
        with Program(inside, helpers_home, environment=environment) as program:
            use = Use(program, home, occasion)
            for step in steps:
                try:
                    getattr(use, step)()
                except BaseException:
                    use.picture(f"{step}-FAILED")
                    raise


if __name__ == "__main__":
    main()
