#!/usr/bin/python3
"""What a screen reader is told of without asking for it, on the real accessibility bus.

    heard.py BUILD-FOLDER WORK-FOLDER

Its events: what gets the focus, what is described anew, and what appears as a notification.
"""
import datetime
import pathlib
import sys
import threading

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tour"))
import tour  # noqa: E402
from drive import Atspi, GLib, plain, wait_for, xdotool  # noqa: E402

HEARD = []


def hear(event):
    try:
        role, name = event.source.get_role_name(), event.source.get_name()
        description = event.source.get_description()
    except GLib.Error:  # it is gone already
        return
    if event.type.endswith("description"):
        HEARD.append((role, description))
    elif event.detail1 and (event.type.endswith("focused") or role == "notification"):
        HEARD.append((role, name))


def expect(role, beginning, act):
    """Acts, and waits for what begins so to be heard after it."""
    HEARD.clear()
    act()
    wait_for(lambda: [name for r, name in list(HEARD) if r == role and name.startswith(beginning)],
             lambda: f"{role} {beginning!r} is not heard, but {HEARD}")


build, place = tour.arguments()
with tour.new_user(build, place) as program:
    tour.first_start(program)
    tour.common_parameters(program)
    tour.today(program)
    listener = Atspi.EventListener.new(hear)
    for kind in ("state-changed:focused", "state-changed:showing",
                 "property-change:accessible-description"):
        listener.register(f"object:{kind}")
    threading.Thread(target=GLib.MainLoop().run, daemon=True).start()

    # Candidates and what is done with them, while the focus stays in the line.
    expect("text", "What was eaten", lambda: program.keys("ctrl+k"))
    expect("notification", "2 × Banana", lambda: xdotool("type", "--delay", 20, "2 banana 0:15"))
    expect("table cell", "", lambda: program.keys("Down"))
    program.keys("Up")
    expect("notification", "Added: 2 × Banana", lambda: program.keys("Return"))
    tour.leave_window(program, "Quick Add")

    # The row of the new entry, when the list comes back from its editor.
    program.menu("Operate", "Meal Consumed List")
    program.window("Meal Consumed List")
    expect("combo box", "", lambda: program.keys("Insert"))
    editor = program.window("Meal Consumed - New")
    editor.find("combo box", "Meal").choose("Banana")
    editor.find("combo box", "Meal").focus()
    expect("spin button", "Time", lambda: program.keys("Tab", "Tab"))
    program.keys(*"0005")
    expect("table cell", "00:05", editor.find("push button", "OK").press)
    tour.leave_window(program, "Meal Consumed List")

    # The items of the chart, and the menu over them.
    chart = tour.main_window(program).find("chart", "Daily calorie chart")
    chart.focus()
    program.keys("Home")
    expect("push button", "Meal at 00:05", lambda: program.keys("Right"))
    expect("menu item", "Edit Meal", lambda: program.keys("Menu", "Down"))
    entries = [plain(entry.name) for entry in chart.find_all("menu item")]
    tour.check("Delete Meal" in entries, f"the menu has {entries}")
    program.keys("Escape")

    # The days of the progress chart, and the period before.
    program.menu("Analyze", "General Progress")
    program.window("General Progress Parameters").find("push button", "OK").press()
    window = program.window("General Progress")
    tour.check(window.find_all("chart"), "the progress chart is no chart")
    yesterday = datetime.date.today() - datetime.timedelta(days=1)
    expect("chart", f"{yesterday:%A}, ", lambda: program.keys("Left"))
    expect("notification", "", window.find("push button", "Previous").press)
    tour.leave_window(program, "General Progress")
    tour.leave(program)
