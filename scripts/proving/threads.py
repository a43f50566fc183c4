"""Threads.

Every test whose program has several threads, under the thread sanitizer. Nothing of this project is suppressed;
[testing.md](testing.md) says what is left out of libraries that were built without it.
"""
from .tools import Failure, build, ctest, failed, goal, install

IS_PART = True


def run(_options):
    install("build_packages", "test_packages")
    folder = build("tsan", "thread_tests")
    cases = ctest(folder, "-L", "threads")
    reports = [case.get("name") for case in cases
               if "WARNING: ThreadSanitizer" in (case.findtext("system-out") or "")]
    bad = sorted(set(failed(cases)) | set(reports))
    if len(cases) < 10:
        raise Failure(f"only {len(cases)} tests have the label threads")
    notes = [f"Failed: {', '.join(bad)}."] if bad else []
    return {"goals": [goal("reports of the thread sanitizer", "none",
                           f"{len(reports)} in {len(cases)} tests, of which {len(failed(cases))} failed",
                           not bad)],
            "notes": notes}
