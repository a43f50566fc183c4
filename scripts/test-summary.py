#!/usr/bin/env python3
"""Prints what failed in runs of ctest, and last how many tests ran and how many were left out.

test-summary.py [--left-out NUMBER REASON] [NAME=REPORT.xml]...    ends with 1 when a test failed
"""
import pathlib
import sys
import xml.etree.ElementTree


def main(arguments):
    left_out = []
    while arguments and arguments[0] == "--left-out":
        if int(arguments[1]) > 0:
            left_out.append((int(arguments[1]), arguments[2]))
        arguments = arguments[3:]
    totals = []
    failures = 0
    for argument in arguments:
        name, report = argument.split("=", 1)
        if not pathlib.Path(report).is_file():
            print(f"{name}: there is no report", file=sys.stderr)
            failures += 1
            continue
        cases = xml.etree.ElementTree.parse(report).findall("testcase")
        failed = [case for case in cases if case.get("status") == "fail"]
        # A program that was not built counts as a failure: it was not left out on purpose.
        odd = [case for case in cases if case.get("status") not in ("run", "fail")]
        for case in odd:
            reason = case.find("skipped")
            message = reason.get("message", "") if reason is not None else case.get("status")
            if message.startswith("SKIP_"):
                left_out.append((1, f"{case.get('name')} in {name}, which said so itself"))
            else:
                failed.append(case)
        for case in failed:
            print(f"\nFAILED ({name}): {case.get('name')}\n{case.findtext('system-out', '')}")
        failures += len(failed)
        totals.append(f"{len(cases)} {name} ({len(failed)} failed)")
    print(f"\nTests: {', '.join(totals)}.")
    for number, reason in left_out:
        print(f"Left out: {number}, {reason}.")
    if not left_out:
        print("Left out: none.")
    return 1 if failures else 0


sys.exit(main(sys.argv[1:]))
