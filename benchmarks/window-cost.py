#!/usr/bin/env python3
"""What one update of a process monitor's window costs, in CPU time, beside idle processes.

window-cost.py [-n 250,1000,5000] [--births 0,50] [-s SECONDS] [--interval SECONDS]
               [--state shown,minimised,keys] NAME=COMMAND [NAME=COMMAND ...]

Each command runs alone on a private X server (Xvfb, openbox, 1280x900), N idle processes of
different names beside it. After a warm-up the CPU time of its processes (known by a mark in
their environment) and of the helper, which clears its own, is taken over some seconds and
divided by the number of intervals. One Markdown row each; root sees all. Start-up is the time
until the window's pixels have stopped changing, where there is xwd to tell. Beside it stand what a
bare pass over every stat file takes, and the longest time for which the window did not answer a ping.
A state is "shown", "minimised", or keys for xdotool to open what else is to be seen, joined by
"+then+"; "alt+2" and "alt+3" are the tree and the applications of lurkwell's table. With births so
many processes a second come, live for one second and end; what making them costs is not counted.
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

from idlers import Idlers, cpu_seconds

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "app"))
from window_ping import WindowPing  # pylint: disable=wrong-import-position

MARK = "LURKWELL_WINDOW_COST"


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

    def output(self, *command):
        return subprocess.run(command, env=dict(os.environ, DISPLAY=self.display), text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout

    def window(self):
        """The program's first window, None where there is none."""
        words = self.output("xprop", "-root", "_NET_CLIENT_LIST").replace(",", " ").split()
        return next((int(word, 16) for word in words if word.startswith("0x")), None)

    def bring_about(self, state):
        window = str(self.window())
        if state == "minimised":
            self.output("xdotool", "windowminimize", window)
        elif state != "shown":
            self.output("xdotool", "windowactivate", "--sync", window)
            for keys in state.split("+then+"):
                self.output("xdotool", "key", "--delay", "300", *keys.split())
                time.sleep(1)

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
    if shutil.which("xwd") is None:
        time.sleep(5)
        return float("nan")
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


def longest_silence(screen, seconds):
    """Behind the other figures, because a window that answers all the time has work to do."""
    window = screen.window()
    if window is None:
        return float("nan")
    ping = WindowPing(screen.display, window)
    time.sleep(seconds)
    return max(ping.stop())


def measure(name, command, count, births, state, floor, options):
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
            screen.bring_about(state)
            time.sleep(options.warm_up)
            found = monitored(name, before)
            total = lambda kind: sum(cpu_seconds(pid) for pid in found[kind])
            x_before, app, helper = cpu_seconds(screen.server.pid), total("app"), total("helper")
            start = time.monotonic()
            time.sleep(options.seconds)
            app, helper = total("app") - app, total("helper") - helper
            x_server = cpu_seconds(screen.server.pid) - x_before
            updates = (time.monotonic() - start) / options.interval
            longest = 1000.0 * longest_silence(screen, options.seconds / 2)
        finally:
            os.killpg(monitor.pid, signal.SIGTERM)
            try:
                monitor.wait(5)
            except subprocess.TimeoutExpired:
                os.killpg(monitor.pid, signal.SIGKILL)
                monitor.wait()
    milliseconds = [1000.0 * value / updates for value in (app + helper, app, helper, x_server)]
    print(f"| {count} | {births} | {name} | {state} | " +
          " | ".join(f"{value:.1f}" for value in milliseconds) +
          f" | {floor:.1f} | {milliseconds[0] / floor:.2f} | {longest:.0f} | {start_up:.2f} |",
          flush=True)


def beside(idlers, count, births, options):
    """The rows for so many idle processes and births a second."""
    with idlers.running(count, births=births) as are_there:
        if not are_there:
            print(f"| {count} | {births} | not that many processes are allowed here |" + " |" * 9)
            return
        floor = idlers.bare_pass()
        for monitor in options.monitors:
            name, command = monitor.split("=", 1)
            for state in options.state.split(","):
                measure(name, command, count, births, state, floor, options)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("-n", default="250,1000,5000")
    parser.add_argument("--births", default="0", help="a second")
    parser.add_argument("-s", "--seconds", type=float, default=20.0)
    parser.add_argument("--warm-up", type=float, default=6.0)
    parser.add_argument("--interval", type=float, default=2.0)
    parser.add_argument("--state", default="shown")
    parser.add_argument("monitors", nargs="+", metavar="NAME=COMMAND")
    options = parser.parse_args()
    for tool in ("Xvfb", "openbox", "xprop", "xdotool", "cc"):
        if shutil.which(tool) is None:
            sys.exit(f"{tool} is not installed")
    columns = ("idle processes", "births a second", "program", "state", "CPU ms per update",
               "application", "helper", "X server", "bare stat pass ms", "× that",
               "longest silence ms", "start-up s")
    print("| " + " | ".join(columns) + " |\n| ---: | ---: | --- | --- |" + " ---: |" * 8, flush=True)
    with Idlers() as idlers:
        for count in options.n.split(","):
            for births in options.births.split(","):
                beside(idlers, count, int(births), options)


if __name__ == "__main__":
    main()
