"""Valgrind.

The test programs of the helper and the engine without sanitizers under memcheck: reads of what was never set, which
those do not look for, and lost memory. Nothing is suppressed but what Valgrind itself knows of the C library. The pattern
library compiles patterns to machine code that reads sixteen bytes at a time, some of them behind a text's end; what is
said of that code is counted by itself.
The helper as a program is followed to the point where it confines itself, which leaves Valgrind no system calls.
"""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile

from .tools import ROOT, Failure, build, goal, install, run as run_command, table

IS_PART = True

# With the tests that are left out, because they take too long there.
PROGRAMS = {
    "helper_session_test": "", "helper_oracle_test": "", "query": "", "platform_text": "",
    "platform_process_table": "ScriptedProcTree.NeverMixesProcessesWhateverVanishesWhen:ParentClosure.*",
    "platform_host_statistics": "", "platform_process_details": "",
    "consolidator": "", "control_simulated": "", "preference-store-test": "",
    "preference-file-test": ""}
SEEDS = ["fuzz-answer", "fuzz-ps-output", "fuzz-plist", "fuzz-procstat", "fuzz-ps-listing",
         "fuzz-request", "fuzz-figures", "fuzz-record", "fuzz-query", "fuzz-graphics", "fuzz-sockets",
         "fuzz-details"]
STARTS = {"no arguments": [], "pipes that are not there": ["/nowhere/a", "/nowhere/b"]}


def add_options(parser):
    parser.add_argument("--build", type=pathlib.Path,
                        help="a build without sanitizers that is there, in place of the preset debug")
    parser.add_argument("--requests", type=int, default=20000,
                        help="of the helper's oracle (default 20,000)")


def memcheck(name, *command, limit=1800, requests=20000):
    """In a program and its children: errors, those in code that a library has made, processes; and how
    it ended."""
    with tempfile.TemporaryDirectory(prefix="lurkwell-memcheck-") as folder:
        try:
            done = subprocess.run(
                ["valgrind", "--leak-check=full", "--errors-for-leak-kinds=definite,possible",
                 f"--log-file={folder}/%p", *(str(word) for word in command)],
                stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                check=False, timeout=limit,
                env={**os.environ, "LURKWELL_REQUESTS": str(requests)}).returncode
        except subprocess.TimeoutExpired:
            done = f"stopped after {limit} s"
        logs = [path.read_text(errors="replace") for path in pathlib.Path(folder).iterdir()]
        kept = ROOT / "build/memcheck"
        kept.mkdir(parents=True, exist_ok=True)
        (kept / f"{name}.log").write_text("".join(logs), encoding="utf-8")
    found = [place for log in logs for place in places(log)]
    own = sum(place != "???" for place in found)
    return own, len(found) - own, len(logs), done


def places(log):
    """Where each error of a log is; "???" in machine code that a library has made."""
    for block in re.split(r"^==\d+== *$", log, flags=re.MULTILINE):
        at = re.search(r"^==\d+==    at 0x[0-9A-F]+: (.*)$", block, re.MULTILINE)
        if at:
            yield at[1]


def run(options):
    install("build_packages", "test_packages")
    if shutil.which("valgrind") is None:
        raise Failure("there is no valgrind: apt-get install valgrind")
    folder = options.build.resolve() if options.build else ROOT / "build/debug"
    targets = [*PROGRAMS, *SEEDS, "Lurkwell_helper"]
    if options.build:
        run_command("ninja", "-C", folder, *targets, stdout=subprocess.DEVNULL)
    else:
        build("debug", *targets)
    rows = []
    for name, left_out in PROGRAMS.items():
        more = [f"--gtest_filter=-{left_out}"] if left_out else []
        shown = f"{name} without {left_out}" if left_out else name
        rows.append([shown, *memcheck(name, folder / "bin" / name, *more, requests=options.requests)])
    for name in SEEDS:
        rows.append([name + " with its seeds",
                     *memcheck(name, folder / "bin" / name, ROOT / "tests/fuzz/seeds" / name)])
    helper = folder / "lib/lurkwell/Contents/Resources/Lurkwell_helper"
    for name, arguments in STARTS.items():
        rows.append([f"Lurkwell_helper, {name}", *memcheck("helper", helper, *arguments)])
    errors = sum(row[1] for row in rows)
    if not all(row[3] for row in rows):
        raise Failure("Valgrind wrote no log, see build/memcheck")
    return {"goals": [goal("errors that Valgrind finds", "none",
                           f"{errors} in {sum(row[3] for row in rows)} processes", errors == 0)],
            "tables": [table("Programs", ["program", "errors", "in compiled patterns", "processes",
                                          "ended with"], rows)]}
