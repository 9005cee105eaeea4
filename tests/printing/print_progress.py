#!/usr/bin/python3
"""Prints the progress of a new user's sample journal on the default printer.

    print_progress.py BUILD-FOLDER WORK-FOLDER
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tour"))
import tour  # noqa: E402

build, place = tour.arguments()
with tour.new_user(build, place) as program:
    for step in (tour.first_start, tour.common_parameters, tour.today,
                 tour.progress_parameters, tour.too_little_for_six_months, tour.progress_chart):
        step(program)
    program.window("General Progress").find("push button", "Print").press()
    said = [program.text_of(w) for w in program.windows() if w.role == "alert"]
    tour.check(not said, f"printing says {said!r}")
    tour.progress_closed(program)
    tour.leave(program)
