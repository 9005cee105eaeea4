#!/usr/bin/python3
"""Prints the daily chart of a new user's program on the default printer.

    print_chart.py BUILD-FOLDER WORK-FOLDER
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tour"))
import tour  # noqa: E402

build, place = tour.arguments()
with tour.new_user(build, place) as program:
    tour.first_start(program)
    tour.common_parameters(program)
    tour.today(program)
    program.menu("Operate", "Print Daily Chart")
    said = [program.text_of(w) for w in program.windows() if w.role == "alert"]
    tour.check(not said, f"printing says {said!r}")
    tour.leave(program)
