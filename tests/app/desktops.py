#!/usr/bin/env python3
"""The same visit on every desktop, and a table of what held: desktops.py BINARY FOLDER [NAME...]"""
import pathlib
import shutil
import sys
import unittest

from desktop_visit import BEHAVIOURS, MANAGERS, Visit, picture_keeper
from wayland_visit import COMPOSITORS, WAYLAND_BEHAVIOURS, WaylandVisit


def visit(name, folder):
    case = Visit() if name in MANAGERS else WaylandVisit()
    case.folder = folder / name

    def run():
        if name in MANAGERS:
            case.keep_picture = picture_keeper(case, case.folder)
        case.visit(name)
        if name in MANAGERS:
            case.visit_desktop_settings()
    case.runTest = run
    result = unittest.TestResult()
    case.run(result)
    for _, trouble in result.errors + result.failures:
        case.reasons["visit"] = trouble
    return case.held, case.reasons


def table(results, behaviours):
    if not results:
        return ""
    lines = ["| | " + " | ".join(results) + " |", "|---" * (len(results) + 1) + "|"]
    for behaviour, words in behaviours.items():
        lines.append(f"| {words} | " + " | ".join(
            held.get(behaviour, "not reached") for held in results.values()) + " |")
    return "\n".join(lines) + "\n"


def main():
    folder, names = pathlib.Path(sys.argv[1]), sys.argv[2:]
    if not names:
        names = [*MANAGERS, *(name for name in COMPOSITORS if shutil.which(COMPOSITORS[name][0]))]
    unknown = [name for name in names if name not in MANAGERS and name not in COMPOSITORS]
    if unknown:
        sys.exit(f"there is no {unknown[0]}; there are {', '.join([*MANAGERS, *COMPOSITORS])}")
    results, failed = {}, False
    for name in names:
        print(f"{name} ...", file=sys.stderr, flush=True)
        results[name], reasons = visit(name, folder)
        for behaviour, why in reasons.items():
            print(f"  {behaviour}: {results[name].get(behaviour, 'no')}: {why}", file=sys.stderr)
        failed |= "visit" in reasons or "no" in results[name].values()
    print("\n".join(filter(None, (
        table({name: held for name, held in results.items() if name in of}, behaviours)
        for of, behaviours in ((MANAGERS, BEHAVIOURS), (COMPOSITORS, WAYLAND_BEHAVIOURS))))), end="")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
