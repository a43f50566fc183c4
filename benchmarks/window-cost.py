#!/usr/bin/env python3
"""What one update of a process monitor's window costs, in CPU time, beside idle processes.

window-cost.py [-n 250,1000,5000] [-s SECONDS] [--interval SECONDS] NAME=COMMAND [NAME=COMMAND ...]

Each command runs alone on a private X server (Xvfb, openbox, 1280x900), N idle processes of
different names beside it. After a warm-up the CPU time of its processes (known by a mark in
their environment) and of the helper, which clears its own, is taken over some seconds and
divided by the number of intervals. One Markdown row each; root sees all. Start-up is the time
until the window's pixels have stopped changing.
"""
import argparse
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

MARK = "LURKWELL_WINDOW_COST"
IDLER = r"""
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/prctl.h>
#include <unistd.h>
int main(int argc, char** argv) {
  const int count = argc > 1 ? atoi(argv[1]) : 0;
  for (int i = 0; i < count; ++i) {
    if (fork() == 0) {
      char name[16];
      snprintf(name, sizeof name, "idler-%05d", i);
      prctl(PR_SET_NAME, name);
      prctl(PR_SET_PDEATHSIG, 9);
      for (;;) pause();
    }
  }
  puts("ready");
  fflush(stdout);
  for (;;) pause();
}
"""


def cpu_seconds(pid):
    """User and system time of a process with all its threads; 0 when it is gone."""
    try:
        return time.clock_gettime((~pid << 3) | 2)
    except OSError:
        return 0.0


def processes():
    return [int(entry) for entry in os.listdir("/proc") if entry.isdigit()]


def read(path):
    try:
        return pathlib.Path(path).read_bytes()
    except OSError:
        return b""


def monitored(mark, before):
    """The monitor's processes: those with the run's mark, and a helper that came since."""
    found = {"app": [], "helper": []}
    for pid in processes():
        if pid in before:
            continue
        if read(f"/proc/{pid}/cmdline").startswith(b"lkw_helper_daemon"):
            found["helper"].append(pid)
        elif f"{MARK}={mark}\0".encode() in read(f"/proc/{pid}/environ") + b"\0":
            found["app"].append(pid)
    return found


class Screen:
    def __enter__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x900x24"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as numbers:
            self.display = ":" + numbers.readline().strip()
        environment = dict(os.environ, DISPLAY=self.display)
        self.manager = subprocess.Popen(["openbox"], env=environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        time.sleep(0.5)
        return self

    def pixels(self):
        shot = subprocess.run(["xwd", "-root", "-silent", "-display", self.display],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return shot.stdout

    def __exit__(self, *_):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


def settle(screen, patience=60.0):
    """Seconds until two looks in a row, a tenth apart, show the same picture that is not empty."""
    empty = screen.pixels()
    start = time.monotonic()
    last, changed = empty, start
    while time.monotonic() - start < patience:
        time.sleep(0.05)
        now = screen.pixels()
        if now != last:
            last, changed = now, time.monotonic()
        elif last != empty and time.monotonic() - changed > 1.5:
            break
    return changed - start


def measure(name, command, count, options):
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as home, Screen() as screen:
        environment = dict(os.environ, DISPLAY=screen.display, HOME=home,
                           XDG_CONFIG_HOME=home + "/config", XDG_DATA_HOME=home + "/data",
                           **{MARK: name})
        os.makedirs(home + "/config")
        before = set(processes())
        start_up = None
        monitor = subprocess.Popen(command, shell=True, env=environment, start_new_session=True,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            start_up = settle(screen)
            time.sleep(options.warm_up)
            found = monitored(name, before)
            total = lambda kind: sum(cpu_seconds(pid) for pid in found[kind])
            x_before, app, helper = cpu_seconds(screen.server.pid), total("app"), total("helper")
            start = time.monotonic()
            time.sleep(options.seconds)
            app, helper = total("app") - app, total("helper") - helper
            x_server = cpu_seconds(screen.server.pid) - x_before
            updates = (time.monotonic() - start) / options.interval
        finally:
            os.killpg(monitor.pid, signal.SIGTERM)
            try:
                monitor.wait(5)
            except subprocess.TimeoutExpired:
                os.killpg(monitor.pid, signal.SIGKILL)
                monitor.wait()
    milliseconds = [1000.0 * value / updates for value in (app + helper, app, helper, x_server)]
    print(f"| {count} | {name} | " + " | ".join(f"{value:.1f}" for value in milliseconds) +
          f" | {start_up:.2f} |", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("-n", default="250,1000,5000")
    parser.add_argument("-s", "--seconds", type=float, default=20.0)
    parser.add_argument("--warm-up", type=float, default=6.0)
    parser.add_argument("--interval", type=float, default=2.0)
    parser.add_argument("monitors", nargs="+", metavar="NAME=COMMAND")
    options = parser.parse_args()
    for tool in ("Xvfb", "openbox", "xwd", "cc"):
        if shutil.which(tool) is None:
            sys.exit(f"{tool} is not installed")
    print("| idle processes | program | CPU ms per update | application | helper | X server |"
          " start-up s |\n| ---: | --- | ---: | ---: | ---: | ---: | ---: |", flush=True)
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "idler.c")
        source.write_text(IDLER)
        subprocess.run(["cc", "-O1", "-o", folder + "/idler", source], check=True)
        for count in options.n.split(","):
            idlers = subprocess.Popen([folder + "/idler", count], stdout=subprocess.PIPE)
            idlers.stdout.readline()
            for monitor in options.monitors:
                name, command = monitor.split("=", 1)
                measure(name, command, count, options)
            idlers.kill()
            idlers.wait()


if __name__ == "__main__":
    main()
