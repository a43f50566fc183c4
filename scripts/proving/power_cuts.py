"""The power goes.

What the program asks of the disk for its preference file and for a recording is written down; after each
call the power may go, and of what was not synced any part may be there: each 512 bytes by themselves, each
name, each size. The settings then have to be those before the change that was under way or those after it,
and a recording has to be what had been recorded up to some moment, and to be gone on with.
"""
import json
import os
import subprocess

from .tools import Failure, build, goal, grouped, table

IS_PART = True
LEAST = 20_000


def add_options(parser):
    parser.add_argument("--states", type=int, default=12_000, help="different ones of each file")


def run(options):
    folder = build("test", "power_cut")
    report = folder / "power-cuts.json"
    report.unlink(missing_ok=True)
    subprocess.run([folder / "bin/power_cut", f"--gtest_output=json:{report}"], check=False,
                   stdout=subprocess.DEVNULL,
                   env={**os.environ, "LURKWELL_POWER_CUTS": str(options.states)})
    if not report.is_file():
        raise Failure("power_cut ended early")
    tests = [test for suite in json.loads(report.read_text())["testsuites"]
             for test in suite["testsuite"]]
    rows = [[test["name"], grouped(int(test.get("states", 0))), len(test.get("failures", []))]
            for test in tests]
    states = sum(int(test.get("states", 0)) for test in tests)
    lost = sum(row[2] for row in rows)
    return {"goals": [goal("different states of the disk", f"at least {grouped(LEAST)}",
                           grouped(states), states >= LEAST),
                      goal("states with something else than was written", "0", str(lost), lost == 0)],
            "tables": [table("Cuts", ["what holds", "states", "failures"], rows)]}
