"""Prints what was tested and measured on both systems, as tables.

    report.py WINDOWS-BUILD LINUX-BUILD
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as xml


def results(build):
    """Of each test how it ended and, where it tells, how many of its functions passed."""
    found = {}
    for case in xml.parse(build / "tests.xml").getroot().iter("testcase"):
        totals = re.search(r"Totals: (\d+) passed, (\d+) failed, (\d+) skipped",
                           case.findtext("system-out") or "")
        passed = case.get("status") == "run"
        found[case.get("name")] = ("passed" if passed else "FAILED",
                                   ", ".join(f"{n} {what}" for n, what in zip(
                                       totals.groups() if totals else (),
                                       ("passed", "failed", "skipped"))
                                       if n != "0" or what == "passed"))
    return found


def print_table(header, rows):
    print("| " + " | ".join(header) + " |")
    print("|" + " --- |" * len(header))
    for row in rows:
        print("| " + " | ".join(row) + " |")
    print()


def measured(file):
    """The first two columns of each row of the measurements: ours and the floor."""
    return {line[:64].strip(): [line[64:76].strip(), line[76:88].strip()]
            for line in file.read_text().splitlines()[1:]}


def main(windows, linux):
    here, there = results(linux), results(windows)
    rows = []
    for name in sorted(here | there):
        ends = [found.get(name, ("not built", "")) for found in (here, there)]
        rows.append([name, *(" · ".join(filter(None, end)) for end in ends)])
    passed = [sum(end == "passed" for end, _ in found.values()) for found in (here, there)]
    print(f"# Tests\n\nPassed: {passed[0]} of {len(here)} on Linux, "
          f"{passed[1]} of {len(there)} under Wine.\n")
    print_table(["test", "Linux", "Windows (Wine)"], rows)

    print("# Times\n\nEach beside its floor: an empty window, or the bare engine.\n")
    here, there = (measured(windows / f"bench-{name}.txt") for name in ("linux", "windows"))
    print_table(["measured", "Linux", "floor", "Windows (Wine)", "floor"],
                [[what, *here[what], *there.get(what, ["", ""])] for what in here])


main(*map(pathlib.Path, sys.argv[1:]))
