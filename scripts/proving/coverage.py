"""Coverage.

Which lines the tests reach, and which branches: each condition counts once true and once false. Measured by clang on
programs that keep their counters in a file they have mapped, so that the confined helper and killed programs count,
too. What the simulated machine and the desktop have is left out, nothing else. Lines that cannot be reached are
listed with the reason, and count as not covered all the same.
"""
import os
import pathlib
import shutil
import stat

from . import report
from .tools import (ROOT, Failure, build, ctest, failed, goal, install, listed, output,
                    run as run_command, say, share, table)

IS_PART = True

# Test programs, and others that the tests start.
PROGRAMS = {
    "helper": ["helper_session_test", "helper_oracle_test", "helper_serve_test", "helper_launch_test",
               "helper_install_test", "helper_takeover_test", "helper_canary_test"],
    "engine": ["consolidator", "consolidator_real", "platform_process_table",
               "platform_live_processes", "platform_costly_figures", "platform_process_details",
               "platform_run_loop", "platform_tools", "platform_host_statistics", "platform_text",
               "control_simulated", "control_real", "query", "preference-store-test",
               "preference-file-test", "preference-crash-test", "preference-sharing-test",
               "recording", "alerts", "power_cut", "desktop_entries", "classic", "following_windows",
               "process_details", "preferences_window", "main_window"]}
SEEDS = ["fuzz-answer", "fuzz-ps-output", "fuzz-plist", "fuzz-procstat", "fuzz-ps-listing",
         "fuzz-request", "fuzz-figures", "fuzz-record", "fuzz-query", "fuzz-graphics", "fuzz-sockets",
         "fuzz-details"]
SEEDS_OF_HELPER = ["fuzz-request", "fuzz-figures"]
STARTED = ["Lurkwell_helper", "Lurkwell_permissions", "helper_packaged", "permissions_packaged",
           "helper_takeover_probe"]
FOLDERS = {"helper": ["src/helper", "src/permission_step"],
           "engine": ["src/consolidator", "src/platform", "src/platform/linux", "src/channel",
                      "src/process_control", "src/query", "src/preferences"]}
# Lines wanted, branches wanted, in percent.
WANTED = {"helper": (100, None), "engine": (95, 85)}
REASONS = ROOT / "docs/proof/unreached-lines"


class File:
    """What a source file's lines and branches were reached."""

    def __init__(self):
        self.lines = {}
        self.branches = {}

    def counts(self):
        return (sum(count > 0 for count in self.lines.values()), len(self.lines),
                sum(count > 0 for count in self.branches.values()), len(self.branches))


def read_lcov(text, files):
    """Adds to the files, by their path below the root, what llvm-cov says in lcov's format."""
    at = None
    for line in text.splitlines():
        key, _, value = line.partition(":")
        if key == "SF":
            path = pathlib.Path(os.path.normpath(value))
            known = path.is_relative_to(ROOT)
            at = files.setdefault(str(path.relative_to(ROOT)), File()) if known else File()
        elif key == "DA":
            number, count = (int(word) for word in value.split(",")[:2])
            at.lines[number] = at.lines.get(number, 0) + count
        elif key == "BRDA":
            number, block, branch, count = value.split(",")
            place = (int(number), block, branch)
            at.branches[place] = at.branches.get(place, 0) + (0 if count == "-" else int(count))


def read_all(folder, programs):
    merged = folder / "merged.profdata"
    run_command("llvm-profdata", "merge", "-sparse", "-o", merged,
                *sorted((folder / "profiles").iterdir()))
    files = {}
    # A function may be another one in another program, as what a package has.
    for program in programs:
        read_lcov(output("llvm-cov", "export", "-format=lcov", f"-instr-profile={merged}", program),
                  files)
    return files


def measure(groups, again):
    install("build_packages", "test_packages", "fuzz_packages")
    tests = [name for group in groups for name in PROGRAMS[group]]
    tests += SEEDS if "engine" in groups else SEEDS_OF_HELPER
    targets = tests + STARTED + (["control_stand_in"] if "engine" in groups else [])
    folder = build("coverage", *targets)
    programs = [path for path in folder.rglob("*") if path.name in (*tests, *STARTED)
                and path.is_file() and os.access(path, os.X_OK) and "profiles" not in path.parts]
    missing = set(tests + STARTED) - {path.name for path in programs} - {"helper_packaged",
                                                                         "permissions_packaged"}
    if missing:
        raise Failure(f"not built: {', '.join(sorted(missing))}")
    profiles = folder / "profiles"
    if again:
        return read_all(folder, programs), []
    shutil.rmtree(profiles, ignore_errors=True)
    profiles.mkdir()
    profiles.chmod(0o1777)
    # Whoever starts a program first makes its file; all users write into it.
    for program in programs:
        arguments = [] if program.name in (*STARTED, *SEEDS) else ["--gtest_list_tests"]
        os.spawnve(os.P_WAIT, "/bin/sh", ["sh", "-c", '"$@" >/dev/null 2>&1 </dev/null', "sh",
                                         str(program), *arguments], os.environ)
    for path in profiles.iterdir():
        path.chmod(stat.S_IRUSR | stat.S_IWUSR | stat.S_IRGRP | stat.S_IWGRP | stat.S_IROTH
                   | stat.S_IWOTH)
    pattern = "^(" + "|".join(name.replace("-", "[-]") for name in tests) + ")[.]"
    cases = ctest(folder, "-R", pattern)
    return read_all(folder, programs), cases


def reasons():
    """Why lines cannot be reached: by file and line number."""
    known = {}
    for path, where, reason in listed(REASONS):
        first, _, last = where.partition(" ... ")
        text = [one.strip() for one in (ROOT / path).read_text(encoding="utf-8").splitlines()]
        if first.strip() not in text or (last and last.strip() not in text):
            raise Failure(f"{REASONS.name}: {path} has no line {where!r}")
        begin = text.index(first.strip())
        # The last line of that text: it may stand there more than once.
        end = len(text) - text[::-1].index(last.strip()) if last else begin + 1
        for number in range(begin + 1, end + 1):
            known[path, number] = reason
    return known


def unreached(path, file, known):
    """Rows of the lines that were not reached: those of a row are one run of lines."""
    text = (ROOT / path).read_text(encoding="utf-8").splitlines()
    for number, count in sorted(file.lines.items()):
        line = text[number - 1].strip() if number <= len(text) else ""
        if count == 0 and line.strip("{} ;"):
            yield number, line, known.get((path, number), "")


def add_options(parser):
    parser.add_argument("--of", choices=sorted(PROGRAMS), action="append", help="one of the two alone")
    parser.add_argument("--again", action="store_true",
                        help="prints the counts of the run before, and keeps nothing")


def of_group(group, files, cases):
    """Goals, tables and notes of the helper or the engine."""
    known = reasons()
    rows, lines, notes = [], [], []
    total = [0, 0, 0, 0]
    for path in sorted(files):
        if str(pathlib.Path(path).parent) not in FOLDERS[group]:
            continue
        counts = files[path].counts()
        total = [one + other for one, other in zip(total, counts)]
        rows.append([path, f"{share(counts[0], counts[1])} % of {counts[1]}",
                     f"{share(counts[2], counts[3])} % of {counts[3]}" if counts[3] else ""])
        if group == "helper":
            lines += [[f"{path}:{number}", f"`{line}`", why or "not known"]
                      for number, line, why in unreached(path, files[path], known)]
    if not rows:
        raise Failure(f"no source of the {group} was measured")
    of_lines, of_branches = share(total[0], total[1]), share(total[2], total[3])
    wanted_lines, wanted_branches = WANTED[group]
    goals = [goal(f"lines of the {group} that tests reach", f"{wanted_lines} %",
                  f"{of_lines} % of {total[1]}", of_lines >= wanted_lines)]
    if group == "helper":
        unknown = sum(row[2] == "not known" for row in lines)
        goals.append(goal("lines of the helper that nothing reaches without a known reason", "none",
                          f"{unknown} of {total[1]}", unknown == 0))
    if wanted_branches:
        goals.append(goal(f"branches of the {group}", f"{wanted_branches} %",
                          f"{of_branches} % of {total[3]}", of_branches >= wanted_branches))
    else:
        notes.append(f"Branches of the {group}: {of_branches} % of {total[3]}.")
    bad = failed(cases)
    notes.append(f"For the {group} {len(cases)} tests ran, {len(bad)} failed in programs built for this"
                 + (f": {', '.join(bad)}." if bad else "."))
    return {"commit": report.commit(), "goals": goals, "notes": notes,
            "tables": [table(f"The {group}", ["file", "lines", "branches"], rows),
                       table(f"Lines of the {group} that no test reaches", ["line", "text", "why"],
                             lines)]}


def run(options):
    groups = options.of or sorted(PROGRAMS, reverse=True)
    files, cases = measure(groups, options.again)
    kept = {} if options.again else report.kept("coverage").get("groups", {})
    for group in groups:
        kept[group] = of_group(group, files, cases)
    if options.again:
        for group in groups:
            for one in kept[group]["tables"]:
                say("\n".join("  ".join(str(cell) for cell in row) for row in one["rows"]))
            for one in kept[group]["goals"]:
                say(f"{one['what']}: {one['found']}")
        raise Failure("nothing was measured, so nothing is kept")
    figures = {"goals": [], "tables": [], "notes": [], "groups": kept}
    for group in sorted(kept, reverse=True):
        for key in ("goals", "tables", "notes"):
            figures[key] += kept[group][key]
        figures["notes"].append(f"The {group} was measured at {kept[group]['commit']}.")
    return figures
