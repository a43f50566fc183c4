"""Fuzzing.

Random and mutated inputs for everything that reads what others have written, under the address and
undefined-behaviour sanitizers: `scripts/fuzz`, two targets at a time. `docs/proof/fuzz-ledger` has the runs of each
target and adds up.
"""
import datetime
import subprocess

from . import report
from .tools import ROOT, Failure, goal, grouped, run as run_command, table

IS_PART = True

LEDGER = ROOT / "docs/proof/fuzz-ledger"
RUNS_EACH_TIME = 20_000_000
RUNS_IN_ALL = 1_000_000_000
HEAD = "# Runs of the fuzz targets, by scripts/proof fuzzing: date, commit, target, runs, seconds.\n"


def add_options(parser):
    parser.add_argument("--minutes", type=int, default=6, help="all targets together (default 6)")


def ledger():
    """The lines of the ledger, as lists of words."""
    text = LEDGER.read_text(encoding="utf-8") if LEDGER.is_file() else HEAD
    return [line.split() for line in text.splitlines() if line and not line.startswith("#")]


def run(options):
    of_commit = report.commit().replace(" ", "-")
    run_command("scripts/fuzz", "--minutes", options.minutes, stdout=subprocess.DEVNULL)
    done = [line.split() for line in (ROOT / "build/fuzz/runs").read_text().splitlines()]
    if not done or any(len(line) != 3 for line in done):
        raise Failure("scripts/fuzz has not said how many runs there were")
    today = datetime.datetime.now(datetime.timezone.utc).date().isoformat()
    lines = ledger() + [[today, of_commit, *line] for line in sorted(done)]
    LEDGER.parent.mkdir(exist_ok=True)
    LEDGER.write_text(HEAD + "".join(" ".join(line) + "\n" for line in lines), encoding="utf-8")

    now = sum(int(runs) for _, runs, _ in done)
    in_all = {}
    for _, _, target, runs, _ in lines:
        in_all[target] = in_all.get(target, 0) + int(runs)
    everything = sum(in_all.values())
    rows = [[target, int(runs), int(seconds), in_all[target]] for target, runs, seconds in sorted(done)]
    return {"goals": [goal("fuzzing, each time", f"at least {grouped(RUNS_EACH_TIME)} runs",
                           f"{grouped(now)} runs in {options.minutes} minutes, no finding",
                           now >= RUNS_EACH_TIME),
                      goal("fuzzing, in all", f"at least {grouped(RUNS_IN_ALL)} runs",
                           f"{grouped(everything)} runs", everything >= RUNS_IN_ALL)],
            "tables": [table("Targets", ["target", "runs", "seconds", "runs in all"], rows)]}
