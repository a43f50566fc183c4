#!/usr/bin/env python3
"""Whether the program grows or slows down: everything open, updates twenty times as often as
usual, processes coming and going, for as long as one likes.

soak.py BINARY [MINUTES [--usual] [--json FILE]]: prints a Markdown row twenty times or each half
minute; status 1 when the last quarter of the run needed more memory, descriptors or time a beat than
the second. With --usual updates are as often as they usually are, and FILE gets all figures.
"""
import argparse
import contextlib
import json
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import time

from desktop_support import BINARY, helpers
from life_test import Life

parser = argparse.ArgumentParser()
parser.add_argument("minutes", type=float, nargs="?", default=15.0)
parser.add_argument("--usual", action="store_true")
parser.add_argument("--json")
OPTIONS = parser.parse_args()
MINUTES = OPTIONS.minutes
SAMPLE_SECONDS = min(120.0 if OPTIONS.usual else 30.0, MINUTES * 60 / 20)
# Pages that come and go with what is on the screen, in KiB; and by how much a beat's time varies.
MEMORY_LEEWAY = 1024
TIME_LEEWAY = 1.25
HELPER_MEMORY = 2048
BRISK = {key: 100 for key in (
    "MAIN_WINDOW_INTERVAL", "DEFAULT_WATCHDOG_INTERVAL", "DEFAULT_LOGGING_WINDOW_INTERVAL",
    "DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", "HEARTQUIVA_MAINPIC_INTERVAL",
    "HEARTQUIVA_HELPERPIC_INTERVAL")}


def figures(pid):
    """In KiB, but for open descriptors and seconds on processors. What was written to is the
    program's own; pages of files, such as of libraries and pictures, can be read again."""
    def sums(name):
        lines = pathlib.Path(f"/proc/{pid}/{name}").read_text().splitlines()[1:]
        return {key: int(rest.split()[0]) for key, rest in (line.split(":", 1) for line in lines)}
    rollup = sums("smaps_rollup")
    status = dict(line.split(":", 1) for line in
                  pathlib.Path(f"/proc/{pid}/status").read_text().splitlines())
    kib = lambda key: int(status[key].split()[0])
    descriptors = 0
    for link in pathlib.Path(f"/proc/{pid}/fd").iterdir():
        # One for each process that there is, which is no growth of the program's.
        with contextlib.suppress(FileNotFoundError):
            descriptors += not re.fullmatch(r"/proc/\d+/stat", os.readlink(link))
    return {"resident": rollup["Rss"],
            "private": rollup["Private_Clean"] + rollup["Private_Dirty"],
            "anonymous": kib("RssAnon"), "of files": kib("RssFile"), "shared": kib("RssShmem"),
            "descriptors": descriptors,
            "seconds": time.clock_gettime((~pid << 3) | 2)}


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
        if not OPTIONS.usual:
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
        columns = ("resident", "private", "anonymous", "of files", "shared", "descriptors", "load",
                   "helper", "helper descriptors")
        print("KiB; load is ms CPU a second\n\n| minute |", " | ".join(columns), "|")
        print("|---:" * (len(columns) + 1) + "|", flush=True)
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
                time.sleep(5 if OPTIONS.usual else 0.5)
            now, other = figures(program.pid), figures(helper)
            now["minute"] = round((time.monotonic() - start) / 60, 1)
            now["load"] = round(1000 * (now["seconds"] - last["seconds"])
                                / (time.monotonic() - begun))
            now["helper"], now["helper descriptors"] = other["private"], other["descriptors"]
            last = now
            samples.append(now)
            print("|", " | ".join(str(now[name]) for name in ("minute", *columns)), "|", flush=True)
        program.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait(20), 0)
        return samples


def verdict(samples):
    """What grew from the second quarter to the last one; the first is the warming up."""
    quarter = len(samples) // 4
    early, late = samples[quarter:2 * quarter], samples[-quarter:]
    mean = lambda rows, column: sum(row[column] for row in rows) / len(rows)
    limits = {"private": (MEMORY_LEEWAY, 1.0), "descriptors": (10, 1.0),
              "load": (0, TIME_LEEWAY)}
    grown = [f"{name}: {mean(early, name):.0f} before, {mean(late, name):.0f} after"
             for name, (more, factor) in limits.items()
             if mean(late, name) > mean(early, name) * factor + more]
    # Its tables have a fixed size, but their pages come with the pids that it hears of.
    most = max(row["helper"] for row in samples)
    return grown + ([f"the helper: {most} KiB"] if most > HELPER_MEMORY else [])


def main():
    soak = Soak("run_all")
    soak.setUp()
    try:
        samples = soak.run_all()
    finally:
        soak.doCleanups()
    grown = verdict(samples)
    if OPTIONS.json:
        pathlib.Path(OPTIONS.json).write_text(json.dumps({"samples": samples, "grown": grown}))
    for line in grown:
        print("grew:", line)
    return 1 if grown else 0


if __name__ == "__main__":
    sys.exit(main())
