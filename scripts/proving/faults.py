"""Windows without a helper that works.

All tests of windows again, under the sanitizers, with a helper that is absent, that cannot be reached, that
takes questions and never answers, and that lies: figures beyond all bounds, halves of answers, other
processes' figures, noise. What a test expects of a helper fails then. What must not happen is that a
program crashes, does not end, or that the main thread stands still for a tenth of a second.
"""
import os
import re
import subprocess

from .tools import build, goal, table

IS_PART = True
FAULTS = ("absent", "refused", "stalled", "lying")
PROGRAMS = ("alerts_window", "animated_view", "floating_windows", "following_windows", "machine_window",
            "main_window", "preferences_window", "process_details", "windows")
LIMIT = 900
NOT_A_TEST = 99


def run_with(program, fault):
    """How many tests held and failed, and what must not happen."""
    environment = {**os.environ, "LURKWELL_HELPER_FAULT": fault, "QT_QPA_PLATFORM": "offscreen",
                   "ASAN_OPTIONS": f"exitcode={NOT_A_TEST}:detect_leaks=0"}
    try:
        done = subprocess.run(["dbus-run-session", "--", program, "--gtest_color=no"], check=False,
                              text=True, errors="replace", stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=environment,
                              timeout=LIMIT)
    except subprocess.TimeoutExpired:
        return 0, 0, ["did not end"]
    held = re.search(r"\[  PASSED  \] (\d+) test", done.stdout)
    failed = re.search(r"\[  FAILED  \] (\d+) tests?, listed", done.stdout)
    findings = []
    if held is None or done.returncode not in (0, 1):
        findings.append(f"crashed ({done.returncode})")
    still = re.findall(r"which is: (\d+)\n.*\n.*\n?milliseconds without a sign of life", done.stdout,
                       re.IGNORECASE)
    if "milliseconds without a sign of life" in done.stdout:
        findings.append("stood still" + (f" for {max(map(int, still))} ms" if still else ""))
    return int(held[1]) if held else 0, int(failed[1]) if failed else 0, findings


def run(_options):
    folder = build("asan", *PROGRAMS)
    rows, wrong, tests = [], 0, 0
    for program in PROGRAMS:
        for fault in FAULTS:
            held, failed, findings = run_with(folder / "bin" / program, fault)
            wrong += len(findings)
            tests += held + failed
            rows.append([program, fault, held, failed, ", ".join(findings) or "nothing"])
    return {"goals": [goal("tests that crash, hang or stand still", "0",
                           f"{wrong} of {tests:,}", wrong == 0)],
            "tables": [table("", ["tests", "the helper is", "hold", "expect a helper", "findings"],
                             rows)]}
