#!/usr/bin/env python3
"""Whether the program grows or slows down: everything open, updates twenty times as often as
usual, processes coming and going, for as long as one likes.

soak.py BINARY [MINUTES]: prints a Markdown row each half minute; status 1 when the second half of
the run needed more memory, descriptors or time a beat than the first.
"""
import os
import pathlib
import random
import signal
import subprocess
import sys
import time

from desktop_support import BINARY, helpers
from life_test import Life

MINUTES = float(sys.argv.pop(1)) if len(sys.argv) > 1 else 15.0
SAMPLE_SECONDS = min(30.0, MINUTES * 60 / 20)
# Pages that come and go with what is on the screen, in KiB; and by how much a beat's time varies.
MEMORY_LEEWAY = 1024
TIME_LEEWAY = 1.25
HELPER_MEMORY = 2048
BRISK = {key: 100 for key in (
    "MAIN_WINDOW_INTERVAL", "DEFAULT_WATCHDOG_INTERVAL", "DEFAULT_LOGGING_WINDOW_INTERVAL",
    "DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", "HEARTQUIVA_MAINPIC_INTERVAL",
    "HEARTQUIVA_HELPERPIC_INTERVAL")}


def figures(pid):
    """Resident and private memory in KiB, open descriptors, seconds on processors."""
    fields = dict(line.split(":", 1) for line in
                  pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:])
    private = sum(int(fields[key].split()[0]) for key in ("Private_Clean", "Private_Dirty"))
    return (int(fields["Rss"].split()[0]), private, len(os.listdir(f"/proc/{pid}/fd")),
            time.clock_gettime((~pid << 3) | 2))


class Churn:
    """Some dozens of processes, a few of which end and begin anew at each step."""
    def __init__(self):
        self.all = [self.begin() for _ in range(60)]

    @staticmethod
    def begin():
        return subprocess.Popen(["sleep", "1000"])

    def step(self):
        for place in random.sample(range(len(self.all)), 5):
            self.all[place].kill()
            self.all[place].wait()
            self.all[place] = self.begin()

    def end(self):
        for process in self.all:
            process.kill()
            process.wait()


class Soak(Life):
    def run_all(self):
        self.open_display()
        self.write_preferences(BRISK)
        churn = Churn()
        self.addCleanup(churn.end)
        victim = self.start_victim()
        program = subprocess.Popen(
            [BINARY, "--unprivileged"], env=self.environment,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(program.kill)
        self.wait_for(lambda: '"Processes"' in self.windows())
        self.wait_for(helpers)
        self.open_everything(victim.pid)
        helper = helpers().pop()
        print("| minute | resident KiB | private KiB | descriptors | ms CPU a second |"
              " helper KiB | helper descriptors |\n|---:|---:|---:|---:|---:|---:|---:|", flush=True)
        samples = []
        start = time.monotonic()
        last = figures(program.pid)
        while time.monotonic() - start < MINUTES * 60:
            begun = time.monotonic()
            while time.monotonic() - begun < SAMPLE_SECONDS:
                churn.step()
                if random.random() < 0.02:
                    self.end_victim(victim)
                    victim = self.start_victim()
                time.sleep(0.5)
            now, other = figures(program.pid), figures(helper)
            load = 1000 * (now[3] - last[3]) / (time.monotonic() - begun)
            last = now
            samples.append((now[1], now[2], load, other[1], other[2]))
            print(f"| {(time.monotonic() - start) / 60:.1f} | {now[0]} | {now[1]} | {now[2]} |"
                  f" {load:.0f} | {other[1]} | {other[2]} |", flush=True)
        program.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait(20), 0)
        return samples


def verdict(samples):
    """What grew from the second quarter to the last one; the first is the warming up."""
    quarter = len(samples) // 4
    early, late = samples[quarter:2 * quarter], samples[-quarter:]
    mean = lambda rows, column: sum(row[column] for row in rows) / len(rows)
    limits = {"memory": (0, MEMORY_LEEWAY, 1.0), "descriptors": (1, 10, 1.0),
              "time": (2, 0, TIME_LEEWAY)}
    grown = [f"{name}: {mean(early, column):.0f} before, {mean(late, column):.0f} after"
             for name, (column, more, factor) in limits.items()
             if mean(late, column) > mean(early, column) * factor + more]
    # Its tables have a fixed size, but their pages come with the pids that it hears of.
    most = max(row[3] for row in samples)
    return grown + ([f"the helper: {most} KiB"] if most > HELPER_MEMORY else [])


def main():
    soak = Soak("run_all")
    soak.setUp()
    try:
        grown = verdict(soak.run_all())
    finally:
        soak.doCleanups()
    for line in grown:
        print("grew:", line)
    return 1 if grown else 0


if __name__ == "__main__":
    sys.exit(main())
