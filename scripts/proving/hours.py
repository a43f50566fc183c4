"""Two hours of use.

The program itself on a display of its own with everything open: the table, a history, a log, the animated
view and the preferences, at its usual intervals, while processes come and go and one that is followed ends
and begins anew. Memory is private where no other program shares it; of it, what is anonymous was asked for,
and pages of files can be read again at any time. Growth is from the second quarter to the last one.
"""
import json
import subprocess
import sys

from .tools import ROOT, Failure, build, goal, table

IS_PART = True
COLUMNS = ("minute", "resident", "private", "anonymous", "of files", "descriptors", "load", "helper")


def add_options(parser):
    parser.add_argument("--minutes", type=float, default=120)
    parser.add_argument("--of", nargs=2, metavar=("FILE", "COMMIT"),
                        help="figures of a run that is over, as soak.py --json wrote them")


def run(options):
    report = options.of[0] if options.of else ROOT / "build/run/hours.json"
    if options.of is None:
        folder = build("run", "lurkwell", "Lurkwell_helper", "ClassicProcessInfoNub")
        report.unlink(missing_ok=True)
        subprocess.run([sys.executable, ROOT / "tests/app/soak.py", folder / "bin/lurkwell",
                        str(options.minutes), "--usual", "--json", report], check=False)
    try:
        with open(report, encoding="utf-8") as file:
            hours = json.load(file)
    except OSError as error:
        raise Failure("the program ended early") from error
    samples = hours["samples"]
    # A row for each ten minutes or so is enough to see it.
    step = max(1, len(samples) // 12)
    rows = [[f"{sample[name]:,}" for name in COLUMNS]
            for sample in [samples[0], *samples[step::step]]]
    minutes = samples[-1]["minute"]
    origin = {"commit": options.of[1], "seconds": round(60 * minutes)} if options.of else {}
    return {**origin,
            "goals": [goal("minutes", "at least 115", str(minutes), minutes >= 115),
                      goal("what grew", "nothing", "; ".join(hours["grown"]) or "nothing",
                           not hours["grown"])],
            "tables": [table("KiB; load is ms on processors a second", list(COLUMNS), rows)]}
