#!/usr/bin/env python3
"""The whole program, a Classic environment and its nub, on a bus of their own.

classic_test.py BINARY ENVIRONMENT [unittest arguments]
"""
import os
import pathlib
import signal
import subprocess
import sys
import time
import unittest

from desktop_support import BINARY, Desktop

ENVIRONMENT = sys.argv.pop(1)
# The sanitizers keep what was given back for a while.
MOST_MORE_KILOBYTES = int(os.environ.get("LURKWELL_MOST_MORE_KILOBYTES", 64 * 1024))


class Classic(Desktop):
    def setUp(self):
        super().setUp()
        self.open_display()
        self.environment["LC_ALL"] = "C.UTF-8"
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--nopidfile",
                          "--print-address=1"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self.write_preferences({
            "MAIN_WINDOW_INTERVAL": 500, "CLASSIC_WATCHDOG_INTERVAL": 500,
            "CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX": 6})

    def start_environment(self):
        environment = subprocess.Popen([ENVIRONMENT], env=self.environment, text=True,
                                       stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        for cleanup in (environment.stdin.close, environment.stdout.close, environment.wait,
                        environment.kill):
            self.addCleanup(cleanup)
        self.assertEqual(environment.stdout.readline(), "ready\n")
        return environment

    def say(self, environment, line):
        environment.stdin.write(line + "\n")
        environment.stdin.flush()
        self.assertEqual(environment.stdout.readline(), "ok\n")

    def start_program(self):
        program = self.start([BINARY, "--unprivileged"])
        self.wait_for(lambda: '"Processes"' in self.windows())
        self.wait_for(lambda: '"About Lurkwell"' not in self.windows())
        return program

    def nubs(self):
        found = []
        for entry in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                words = (entry / "cmdline").read_bytes().split(b"\0")
            except OSError:
                continue
            if words[0].endswith(b"/ClassicProcessInfoNub") and \
                    self.environment["DBUS_SESSION_BUS_ADDRESS"].encode() in words:
                found.append(int(entry.name))
        return found

    def memory(self, program):
        status = pathlib.Path(f"/proc/{program.pid}/status").read_text()
        return int(status.split("VmRSS:")[1].split()[0])

    def test_a_flood_of_guests_leaves_the_window_alive_and_small(self):
        environment = self.start_environment()
        self.say(environment, "guest 2 1 FNDR MACS 1000 500 45 Finder")
        program = self.start_program()
        self.wait_for(lambda: len(self.nubs()) == 1)
        time.sleep(2)
        before = self.memory(program)
        usual = self.longest_answer(program, lambda: None, 2)
        self.say(environment, "flood 100000 4000")
        largest = [before]
        flooded = self.longest_answer(
            program, lambda: largest.append(self.memory(program)), 5)
        print(f"longest answer {usual:.3f} s, in the flood {flooded:.3f} s; "
              f"memory {before} kB, at most {max(largest)} kB", file=sys.stderr)
        self.say(environment, "flood 0 0")
        self.assertIsNone(program.poll())
        self.assertLess(flooded, 1.0)
        self.assertLess(max(largest) - before, MOST_MORE_KILOBYTES)
        program.send_signal(signal.SIGTERM)
        _, errors = program.communicate(timeout=20)
        self.assertEqual(program.returncode, 0, errors)
        self.assertIn("more than 4096 Classic applications", errors)
        self.wait_for(lambda: not self.nubs())
        self.check_nothing_is_left()

    def longest_answer(self, program, also, seconds):
        """The event loop's own answers, asked for without a pause."""
        longest = 0.0
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            start = time.monotonic()
            answer = self.output(
                "gdbus", "introspect", "--address", self.environment["DBUS_SESSION_BUS_ADDRESS"],
                "--dest", "com.velquarin.lurkwell", "--object-path", "/com/velquarin/Events")
            longest = max(longest, time.monotonic() - start)
            self.assertIn("node", answer)
            also()
        return longest


if __name__ == "__main__":
    unittest.main(verbosity=2)
