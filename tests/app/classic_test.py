#!/usr/bin/env python3
"""The whole program, a Classic environment and its nub, on a bus of their own.

classic_test.py BINARY ENVIRONMENT [unittest arguments]
"""
import os
import pathlib
import signal
import subprocess
import sys
import threading
import time
import unittest

from desktop_support import BINARY, Desktop

ENVIRONMENT = sys.argv.pop(1)
# The sanitizers keep what was given back for a while.
MOST_MORE_KILOBYTES = int(os.environ.get("LURKWELL_MOST_MORE_KILOBYTES", 64 * 1024))

COLUMNS = ("internal_Icon", "meta_pid", "meta_kind", "meta_name", "classicpsn_name",
           "classicpsn_type", "classicpsn_signature", "classicpsn_size", "internal_CPUPercent",
           "internal_MemGraph", "meta_active_time")

# A window takes what is pasted into it and keeps it in a file.
PASTE = ["xterm", "-T", "paste", "-u8", "-xrm",
         "XTerm*VT100.translations: #override <Key>F5: insert-selection(CLIPBOARD)", "-e", "sh", "-c",
         'stty raw -echo; touch "$1"; exec cat > "$1"', "sh"]


class Classic(Desktop):
    def setUp(self):
        super().setUp()
        self.open_display()
        self.environment["LC_ALL"] = "C.UTF-8"
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--nopidfile",
                          "--print-address=1"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self.write_preferences({
            "MAIN_WINDOW_COLUMNS": [{"COLUMN_KEY": key} for key in COLUMNS],
            "MAIN_WINDOW_INTERVAL": 500, "MAIN_WINDOW_FRAME": "0 0 990 500",
            "CLASSIC_WATCHDOG_INTERVAL": 500, "CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX": 6,
            "CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER": 0.5})
        self.pasted = pathlib.Path(self.home, "pasted")

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

    def filter(self, text):
        self.type_keys("key", "ctrl+f")
        self.output("xdotool", "key", "ctrl+a")
        self.output("xdotool", "type", text)
        self.output("xdotool", "key", "Return")

    def rows(self):
        """The rows that the filter leaves, as the window copies them: a list of cells for each."""
        self.type_keys("key", "ctrl+a", "ctrl+c")
        time.sleep(0.2)
        self.pasted.unlink(missing_ok=True)
        terminal = subprocess.Popen(PASTE + [str(self.pasted)], env=self.environment,
                                    stderr=subprocess.DEVNULL)
        looks = [b""]

        def is_whole():
            looks.append(self.pasted.read_bytes())
            return looks[-1] and looks[-2:] == looks[-1:] * 2
        try:
            self.wait_for(lambda: self.pasted.exists() and self.active_window() == "paste")
            self.output("xdotool", "key", "F5")
            self.wait_for(is_whole)
            text = looks[-1].decode().replace("\r", "\n")
        finally:
            terminal.terminate()
            terminal.wait()
        return [line.split("\t") for line in text.splitlines()]

    def table(self):
        """The guests by name: the Classic columns, CPU share and CPU time."""
        return {cells[3]: cells[4:8] + [float(cells[8].split()[0]), float(cells[10])]
                for cells in self.rows() if len(cells) == len(COLUMNS) and cells[2] == "Classic"}

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

    def wait_for_names(self, *names):
        last = {}

        def are_shown():
            last.update(now=self.table())
            return set(last["now"]) == set(names)
        self.wait_for(are_shown, 40, lambda: str(last))
        return last["now"]

    def test_guests_are_shown_asked_to_quit_and_gone_with_their_environment(self):
        environment = self.start_environment()
        self.say(environment, "burn 40")
        self.say(environment, "guest 2 1 FNDR MACS 1000 500 45 Finder")
        self.say(environment, "guest 2 2 APPL ttxt 3000 7 0 Caf\u00e9")
        program = self.start_program()
        # Besides guests' pids, the bus has one: a table without rows would copy nothing.
        self.filter("-")
        nub = "ClassicProcessInfoNub"
        self.wait_for(lambda: len(self.nubs()) == 1)
        self.wait_for_names("Finder", "Caf\u00e9", nub)
        self.wait_for(lambda: self.table().get("Finder", [0.0])[-1] > 1)
        table = self.table()
        self.assertEqual(table["Finder"][:4], ["Finder", "FNDR", "MACS", "1000"])
        self.assertGreater(table["Finder"][4], 5)
        self.assertEqual(table["Caf\u00e9"], ["Caf\u00e9", "APPL", "ttxt", "3000", 0, 0.000001])
        self.picture("guests")

        # The window's own command.
        self.filter("Caf")
        self.wait_for_names("Caf\u00e9")
        self.type_keys("key", "--delay", "150", "ctrl+a", "alt+p", "q")
        self.filter("-")
        self.wait_for_names("Finder", nub)

        first = self.nubs()
        os.kill(first[0], signal.SIGKILL)
        self.wait_for(lambda: len(self.nubs()) == 1 and self.nubs() != first)
        self.wait_for_names("Finder", nub)

        environment.kill()
        self.wait_for(lambda: not self.nubs())
        self.wait_for(lambda: not self.table())
        again = self.start_environment()
        self.say(again, "guest 2 1 FNDR MACS 1000 500 45 Finder")
        self.wait_for(lambda: len(self.nubs()) == 1)
        self.wait_for_names("Finder", nub)
        program.send_signal(signal.SIGTERM)
        _, errors = program.communicate(timeout=20)
        self.assertEqual(program.returncode, 0, errors)
        self.wait_for(lambda: not self.nubs())
        self.check_nothing_is_left()

    def picture(self, name):
        folder = os.environ.get("LURKWELL_PICTURES")
        if folder:
            self.output("import", "-window", "root", f"{folder}/{name}.png")

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
