"""A day.

The whole program on a simulated machine whose clock is driven through 24 hours: the table, the machine's
window, details, alerts, four histories and four logs, over 250 processes of which two end and two begin
with every beat. A beat's time on processors is the median of an hour; growth is that of the memory in use since
the second hour, when the tables and histories that keep an hour are full.
"""
import json
import subprocess

from .tools import Failure, build, goal, table

IS_PART = True
# The histories and tables that keep an hour are full after it, and their first turn-over is done.
WARM_HOURS = 2
GROWTH = 1024
SLOWER = 1.05


def add_options(parser):
    parser.add_argument("--hours", type=int, default=24)


def run(options):
    folder = build("release", "simulated_day")
    done = subprocess.run([folder / "bin/simulated_day", str(options.hours)], check=False, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    try:
        hours = json.loads(done.stdout)["hours"]
    except ValueError as error:
        raise Failure(f"simulated_day ended early, with {done.returncode}") from error
    rows = [[number, f"{hour['ms']:.2f}", f"{hour['mean_ms']:.2f}", f"{hour['heap_kib']:,}",
             f"{hour['resident_kib']:,}"] for number, hour in enumerate(hours, 1)]
    growth = hours[-1]["heap_kib"] - hours[min(WARM_HOURS, len(hours)) - 1]["heap_kib"]
    slower = round(hours[-1]["ms"] / hours[0]["ms"], 3)
    return {"goals": [goal("growth, KiB", f"at most {GROWTH}", str(growth), growth <= GROWTH),
                      goal("the last hour's beats to the first's", f"at most {SLOWER}", str(slower),
                           slower <= SLOWER)],
            "tables": [table("Hours", ["hour", "ms of a beat", "mean", "KiB in use", "KiB resident"], rows)]}
