"""Windows without a helper that works.

All tests of windows again, under the sanitizers and each in a process of its own, with a helper that is absent, that
cannot be reached, that takes questions and never answers, and that lies: figures beyond all bounds, halves of
answers, other processes' figures, noise. What a test expects of a helper fails then. What must not happen is that a
program crashes, does not end, or that the main thread stands still for a tenth of a second.
"""
import collections
import re

from .tools import Failure, build, ctest, goal, table

IS_PART = True
FAULTS = ("absent", "refused", "stalled", "lying")
PROGRAMS = ("alerts_window", "animated_view", "floating_windows", "following_windows", "machine_window",
            "main_window", "preferences_window", "process_details", "windows")
STILL = re.compile(r"which is: (\d+)\n[^\n]*\n(?:[^\n]*\n)?milliseconds without a sign of life")


def finding(case):
    """What must not happen and has happened in a test that failed, or nothing."""
    output = case.findtext("system-out") or ""
    # What the test expects of a helper fails with a summary, whatever else is a crash.
    if "Timeout" in (case.find("failure").get("message") or ""):
        return "did not end"
    if "Sanitizer" in output or "[  FAILED  ]" not in output:
        return "crashed"
    if still := STILL.search(output):
        return f"stood still for {still[1]} ms"
    return "stood still" if "without a sign of life" in output else ""


def run(_options):
    folder = build("asan", *PROGRAMS)
    counts = collections.defaultdict(lambda: [0, 0, []])
    for fault in FAULTS:
        cases = ctest(folder, "-R", f"^({'|'.join(PROGRAMS)})[.]", LURKWELL_HELPER_FAULT=fault)
        for case in cases:
            count = counts[case.get("name").split(".")[0], fault]
            count[case.get("status") != "run"] += 1
            if case.get("status") != "run" and (found := finding(case)):
                count[2].append(f"{case.get('name').partition('.')[2]} {found}")
    if missing := {(program, fault) for program in PROGRAMS for fault in FAULTS} - counts.keys():
        raise Failure(f"no tests: {sorted(missing)}")
    wrong = sum(len(found) for _, _, found in counts.values())
    tests = sum(held + failed for held, failed, _ in counts.values())
    rows = [[program, fault, held, failed, ", ".join(found) or "nothing"]
            for (program, fault), (held, failed, found) in sorted(counts.items())]
    return {"goals": [goal("tests that crash, hang or stand still", "0",
                           f"{wrong} of {tests:,}", wrong == 0)],
            "tables": [table("Tests", ["tests", "the helper is", "hold", "expect a helper", "findings"],
                             rows)]}
