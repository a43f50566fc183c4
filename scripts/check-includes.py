#!/usr/bin/env python3
"""Checks that every file includes only its own floor and lower ones, that no window includes
another, that modules are in no cycles, and that lines for people go through platform/Diagnostics.h.

check-includes.py ROOT      exit status 1, a line per violation, when a file of ROOT/src does not
"""
import pathlib
import re
import sys

# From the ground up; folders of one floor, windows, know nothing of each other.
FLOORS = [
    {"platform"},
    {"preferences"},
    {"channel"},
    {"consolidator"},
    {"process_control"},
    {"query"},
    {"alerts"},
    {"recording"},
    {"resources"},  # beside src
    {"windows"},  # what every window uses
    {"fleet"},  # what servers tell of many machines
    {"main_window", "monitor_windows", "animated_view", "preferences_window",
     "machine_window", "process_details", "alerts_window", "fleet_window"},
    {"app", "exporter"},
]
# Know the interfaces of platform and nothing else; only the main.cpp of app and exporter and the
# tests name them.
MACHINES = {"platform/linux", "platform/desktop", "platform/simulated"}
# Programs of their own.
PROGRAMS = {"helper", "permission_step", "classic_nub"}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')
# The engine links without the toolkit.
TOOLKIT = re.compile(r'^\s*#\s*include\s*<(Q[A-Za-z]+|Qt[A-Za-z]*/.*)>')
WITHOUT_TOOLKIT = {"platform", "platform/linux", "platform/simulated", "preferences", "consolidator",
                   "channel", "process_control", "query", "alerts", "recording", "helper",
                   "permission_step"}


# Settings by any text for a key; all others name them by the table's.
UNCHECKED_SETTINGS = "preferences/PreferencesRetrieval.h"

# Lines for people go through one function; what is printed on purpose is data, by the clients for it.
PRINTING = re.compile(r"\bstd::(printf|puts|putchar|cout)\b|\bf(printf|puts)\(\s*stderr|, stderr\)")
MAY_PRINT = {"platform/Diagnostics.cpp", "platform/Assertion.cpp"}


def folder_of(path):
    parts = pathlib.PurePosixPath(path).parts[:-1]
    machine = "/".join(parts[:2])
    if machine in MACHINES:
        return machine
    return parts[0] if parts else ""


def floor_of(folder):
    for number, folders in enumerate(FLOORS):
        if folder in folders:
            return number
    return None


def may_include(file, folder, included):
    if folder == included:
        return True
    if folder == "classic_nub":
        # Speaks on the desktop's bus; of the kernel's it has handles, which are headers.
        return included in {"platform", "platform/desktop", "platform/linux"}
    if folder == "permission_step":
        return included == "helper"
    if folder in PROGRAMS or included in PROGRAMS:
        return False
    if included in MACHINES:
        return file in {"app/main.cpp", "exporter/main.cpp"}
    if folder in MACHINES:
        return included == "platform"
    mine, theirs = floor_of(folder), floor_of(included)
    return mine is not None and theirs is not None and theirs < mine


def violations(source):
    for path in sorted(source.rglob("*")):
        if path.suffix not in {".cpp", ".h"}:
            continue
        file = path.relative_to(source).as_posix()
        folder = folder_of(file)
        for number, line in enumerate(path.read_text(errors="replace").splitlines(), 1):
            if TOOLKIT.match(line) and folder in WITHOUT_TOOLKIT:
                yield f"{file}:{number}: {folder} must link without the toolkit"
            if PRINTING.search(line) and folder not in PROGRAMS and file not in MAY_PRINT:
                yield f"{file}:{number}: lines for people go through platform/Diagnostics.h"
            match = INCLUDE.match(line)
            if match is None:
                continue
            included = match.group(1)
            if not any((root / included).is_file() for root in (source, source.parent)):
                yield f"{file}:{number}: {included} is not a path from src"
            elif included == UNCHECKED_SETTINGS and folder != "preferences":
                yield f"{file}:{number}: settings are named through preferences/Settings.h"
            elif not may_include(file, folder, folder_of(included)):
                yield f"{file}:{number}: {folder} must not include {included}"


def includes_by_module(source):
    modules = {}
    for path in source.rglob("*"):
        if path.suffix not in {".cpp", ".h"}:
            continue
        included = modules.setdefault(path.relative_to(source).with_suffix("").as_posix(), set())
        for line in path.read_text(errors="replace").splitlines():
            if match := INCLUDE.match(line):
                included.add(str(pathlib.PurePosixPath(match.group(1)).with_suffix("")))
    return modules


def cycles(modules):
    """The sets of two and more modules that all include each other, if by way of others."""
    reached = {}
    for module in modules:
        seen, waiting = set(), [module]
        while waiting:
            for included in modules.get(waiting.pop(), ()):
                if included not in seen:
                    seen.add(included)
                    waiting.append(included)
        reached[module] = seen
    found = {frozenset({one} | {other for other in reached[one] if one in reached.get(other, ())})
             for one in modules}
    return [sorted(cycle) for cycle in found if len(cycle) > 1]


def cyclic_violations(source):
    for members in sorted(cycles(includes_by_module(source))):
        yield f"{len(members)} modules include each other: {', '.join(members)}"


def main():
    source = pathlib.Path(sys.argv[1]) / "src"
    found = [*violations(source), *cyclic_violations(source)]
    print("\n".join(found) if found else "includes point downwards, and windows know nothing of each other")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
