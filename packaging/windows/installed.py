"""Installs the program under Wine, works it by keyboard as a person would, and removes it again,
with a picture of each step.

    installed.py BUILD-FOLDER PICTURE-FOLDER

Runs with WINEPREFIX and DISPLAY set. Exits non-zero at the first step that finds something else.
"""
import os
import pathlib
import pwd
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from drive import wait_for, xdotool  # noqa: E402

BUILD, PICTURES = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
USER = DRIVE / "users" / pwd.getpwuid(os.getuid()).pw_name
SETUP = next(BUILD.glob("Corvana-*-setup.exe"))
ARCHIVE = next(BUILD.glob("Corvana-*.zip"))
ROWS = BUILD.parent / "bench" / "tests" / "support" / "journalrows"
MEALS = ("select Meal.Name, Qty from MealConsume join Meal using (MealID)"
         " where MealConsumeID > 0")
taken = []


def check(fine, message):
    if not fine:
        raise AssertionError(message)


def windows(title):
    """The visible windows whose title matches a pattern."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                           capture_output=True, text=True)
    return found.stdout.split()


def window(title, seconds=60):
    found = wait_for(lambda: windows(title), lambda: f"no window {title}", seconds)[-1]
    wait_for(lambda: subprocess.run(["xdotool", "getactivewindow"], capture_output=True,
                                    text=True).stdout.strip() == found,
             lambda: f"the focus on {title}")
    time.sleep(0.5)  # it takes keys once it has drawn itself
    return found


def gone(title):
    wait_for(lambda: not windows(title), lambda: f"{title} is still open", 30)


def keys(*names):
    xdotool("key", "--delay", 60, *names)


def text(words):
    xdotool("type", "--delay", 40, words)


def picture(name):
    """The screen, once the windows have drawn themselves."""
    time.sleep(1)
    taken.append(PICTURES / f"{len(taken) + 1:02}-{name}.png")
    subprocess.run(["import", "-window", "root", taken[-1]], check=True)


def start(*command, folder=None):
    return subprocess.Popen(["wine", *map(str, command)], cwd=folder)


def run(*command, seconds=120, ends=0):
    code = start(*command).wait(seconds)
    check(code == ends, f"{command} ended with {code}")


def set_registry(key, name, kind, value):
    run("reg", "add", key, "/v", name, "/t", kind, "/d", value, "/f")


def set_font(name):
    """The font of Windows' dialogs: Wine's own has broken outlines in some sizes."""
    height, weight, charset = struct.pack("<i", -12), struct.pack("<i", 400), bytes([0, 0, 0, 1])
    font = height + bytes(12) + weight + charset + bytes(4) + name.encode("utf-16-le").ljust(64, b"\0")
    for use in ("MessageFont", "MenuFont", "StatusFont", "IconFont", "CaptionFont"):
        set_registry(r"HKCU\Control Panel\Desktop\WindowMetrics", use, "REG_BINARY", font.hex())


def rows(folder, query):
    return subprocess.run([ROWS, folder / "Corvana.mdb", query], check=True, capture_output=True,
                          text=True).stdout.splitlines()


def first_start():
    window("^Corvana$")
    picture("first-start")
    keys("Return")
    window("^Common Parameters$")
    picture("common-parameters")
    keys("Return")
    gone("^Common Parameters$")


def leave(program):
    keys("alt+F4")
    check(program.wait(30) == 0, "the program did not end well")


def add_meal(category, meal, quantity):
    keys("alt+o", "a")
    window("^Meal Consumed - New$")
    text(category)
    keys("Tab")
    text(meal)
    keys("alt+q", "ctrl+a")
    text(quantity)
    picture("meal-to-be-added")
    keys("Return")
    time.sleep(1)
    keys("Escape")
    gone("^Meal Consumed - New$")


def one_file():
    """A windowed program that needs nothing but what Windows brings."""
    with tempfile.TemporaryDirectory() as folder:
        shutil.unpack_archive(ARCHIVE, folder)
        program = next(pathlib.Path(folder).glob("*/Corvana.exe"))
        told = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", program], check=True,
                              capture_output=True, text=True).stdout
    check(re.search(r"Subsystem\s+0*2\b", told), "it opens a console window")
    brought = [name for name in re.findall(r"DLL Name: (\S+)", told)
               if re.match(r"(?i)lib|qt|icu|zlib", name)]
    check(not brought, f"it needs {brought}")


def installed_program(folder):
    program = folder / "Corvana.exe"
    running = start(SETUP)
    window("Corvana.* Setup")
    picture("installer")
    keys("Return")
    time.sleep(1)
    picture("installer-folder")
    keys("Return")
    wait_for(lambda: (folder / "uninstall.exe").exists(), "the program's folder", 60)
    time.sleep(2)
    picture("installed")
    keys("Return")  # Finish, with the program started
    running.wait(60)
    first_start()
    window("^Corvana$")
    picture("main-window")
    add_meal("Fruit", "Banana", "2")
    window("^Corvana$")
    picture("meal-in-chart")
    keys("alt+o", "p")  # there is no printer
    window("^Error$")
    picture("no-printer")
    keys("Return")
    gone("^Error$")
    window("^Corvana$")
    keys("alt+F4")
    gone("^Corvana$")
    stored = rows(folder, MEALS)
    check(stored == ["Banana|2"], f"stored is {stored}")
    # The program has ended once its first backup is whole.
    wait_for(lambda: list(folder.glob("backups/Corvana ????-??-?? ??-??-??/Corvana.mdb")),
             "the first backup", 60)
    check(sorted(file.name for file in folder.iterdir()) == [
        "Corvana.exe", "Corvana.hlp", "Corvana.ini", "Corvana.mdb", "LICENSE.txt", "backups",
        "uninstall.exe"], f"in the folder are {list(folder.iterdir())}")
    return program, stored


def started_again(program, stored):
    running = start(program)
    window("^Corvana$")
    keys("alt+o", "m")
    window("^Meal Consumed List$")
    picture("meal-is-there")
    keys("Escape")
    gone("^Meal Consumed List$")
    check(rows(program.parent, MEALS) == stored, "the meal is gone")
    # A second start opens a second window on the same journal.
    second = start(program)
    wait_for(lambda: len(windows("^Corvana$")) == 2, "the second start's window", 60)
    window("^Corvana$")
    picture("second-start")
    # While it runs, it can't be replaced.
    run(SETUP, "/S", ends=3)
    leave(second)
    window("^Corvana$")
    leave(running)


def upgraded(folder, stored):
    journal = (folder / "Corvana.mdb").read_bytes()
    remembered = (folder / "Corvana.ini").read_bytes()
    run(SETUP, "/S")
    check((folder / "Corvana.mdb").read_bytes() == journal, "an upgrade changed the journal")
    check((folder / "Corvana.ini").read_bytes() == remembered, "an upgrade forgot the first start")
    check(rows(folder, MEALS) == stored, "an upgrade lost the meal")


def removed(folder):
    def uninstall(*options):
        # The uninstaller runs from a copy of itself and is not waited for.
        subprocess.run(["wine", folder / "uninstall.exe", *options], check=True)
        wait_for(lambda: not (folder / "uninstall.exe").exists(), "the program removed", 60)

    journal = (folder / "Corvana.mdb").read_bytes()
    uninstall("/S")
    check((folder / "Corvana.mdb").read_bytes() == journal, "a silent removal took the journal")
    check(not (folder / "Corvana.exe").exists(), "the program is still there")
    run(SETUP, "/S")
    check((folder / "Corvana.mdb").read_bytes() == journal, "a new installation changed the journal")
    running = start(folder / "uninstall.exe")
    window("Corvana.* Uninstall")
    keys("Return")
    time.sleep(3)
    picture("removal-asks")
    keys("alt+y")
    wait_for(lambda: not (folder / "Corvana.mdb").exists(), "the journal removed", 30)
    time.sleep(1)
    picture("removed")
    keys("Return")
    running.wait(60)
    check([file.name for file in folder.iterdir()] == ["backups"], "the backups are gone, too")


def unpacked():
    """From the zip, in a folder of an odd name, on a system with dark colours and another clock."""
    folder = DRIVE / "Größe & Maß 日记 100%" / ("long name" * 16) / ("longer" * 16)
    folder.mkdir(parents=True)
    shutil.unpack_archive(ARCHIVE, folder)
    folder = next(folder.iterdir())
    set_registry(r"HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize",
                 "AppsUseLightTheme", "REG_DWORD", "0")
    international = r"HKCU\Control Panel\International"
    for name, value in {"sShortTime": "HH:mm", "sTimeFormat": "HH:mm:ss", "iTime": "1",
                        "sDecimal": ",", "sThousand": "."}.items():
        set_registry(international, name, "REG_SZ", value)
    running = start(folder / "Corvana.exe")
    first_start()
    window("^Corvana$")
    picture("dark-colours")
    keys("alt+o", "m")
    window("^Meal Consumed List$")
    picture("system-formats")
    keys("Escape")
    gone("^Meal Consumed List$")
    leave(running)
    check((folder / "Corvana.ini").exists(), "the first start is not remembered")
    return folder


def at_a_drives_root(folder):
    """The same folder as a drive of its own: its path ends with a backslash already."""
    (DRIVE.parent / "dosdevices" / "e:").symlink_to(folder)
    running = start(r"E:\Corvana.exe")
    window("^Corvana$")
    leave(running)


def main():
    shutil.rmtree(PICTURES, ignore_errors=True)
    PICTURES.mkdir(parents=True)
    folder = USER / "AppData" / "Local" / "Programs" / "Corvana"
    set_font("Liberation Sans")
    try:
        one_file()
        program, stored = installed_program(folder)
        started_again(program, stored)
        upgraded(folder, stored)
        removed(folder)
        at_a_drives_root(unpacked())
    except Exception:
        picture("FAILED")
        raise
    print(f"{len(taken)} pictures in {PICTURES}")


main()
