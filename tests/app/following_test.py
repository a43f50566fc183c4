#!/usr/bin/env python3
"""Windows that follow real programs: they go with them, and come back with them.

following_test.py BINARY [unittest arguments]
"""
import pathlib
import shutil
import subprocess
import time
import unittest

from desktop_support import FollowedProgram


class Following(FollowedProgram):
    def test_windows_come_back_with_their_program(self):
        self.open_display()
        # So that no table reads the names, too.
        self.write_preferences({"MAIN_WINDOW_INTERVAL": 60000})
        victim = self.start_victim()
        program = self.start_program()
        self.open_both(victim.pid)
        self.move(f"^{victim.pid}$", 600, 500)
        self.move(f"^Logging lkwvictim pid:{victim.pid}$", 40, 420)
        self.wait_for(lambda: self.places(victim.pid).get("history") == (600, 500) and
                      self.places(victim.pid)["log"][1] >= 420)
        placed = self.places(victim.pid)
        # Another program that is in use keeps the keyboard.
        other_program = self.start(["xterm", "-T", "another"])
        self.wait_for(lambda: self.active_window() == "another")
        self.end_victim(victim)
        self.wait_for(lambda: "history" not in self.places(victim.pid))

        # A script may start the program long after its own beginning.
        again = self.start_victim(["sh", "-c", f"sleep 1.5; exec {self.victim_program} 1000"])
        self.wait_for(lambda: self.places(again.pid) == placed,
                      tell=lambda: f"{placed} {self.windows()}")
        self.assertEqual(self.active_window(), "another")
        other_program.kill()
        # A record has one window at a time, however many instances there are.
        other = self.start_victim()
        time.sleep(2)
        self.assertEqual(self.places(other.pid), {})

        self.end_program(program)
        self.check_nothing_is_left()
        program = self.start_program()
        self.wait_for(lambda: self.places(again.pid) == placed)
        self.end_victim(again)
        time.sleep(2)
        self.assertEqual(self.places(other.pid), {}, "it did not start just now")
        third = self.start_victim()
        self.wait_for(lambda: self.places(third.pid) == placed,
                      tell=lambda: f"{placed} {self.windows()}")

        # What its user closes stays closed.
        self.click_history(third.pid, 6, 6)
        self.wait_for(lambda: "history" not in self.places(third.pid))
        title = f"Logging lkwvictim pid:{third.pid}"
        self.output("xdotool", "search", "--name", f"^{title}$", "windowactivate")
        self.wait_for(lambda: self.active_window() == title, tell=self.active_window)
        self.output("xdotool", "key", "ctrl+w")
        self.wait_for(lambda: not self.places(third.pid), tell=self.active_window)
        self.assertEqual(self.preferences()["CPU_HISTORY_WINDOW"], [])
        self.assertEqual(self.preferences()["LOGGING_WINDOW"], [])
        self.end_program(program)
        program = self.start_program()
        time.sleep(2)
        self.assertEqual([self.places(other.pid), self.places(third.pid)], [{}, {}])
        self.end_program(program)

    def click_history(self, pid, x, y):
        window = self.output("xdotool", "search", "--name", f"^{pid}$").split()[0]
        self.output("xdotool", "mousemove", "--window", window, str(x), str(y), "click", "1")

    def test_closing_the_last_window_quits(self):
        self.open_display()
        victim = self.start_victim()
        program = self.start_program()
        self.open_both(victim.pid)
        self.type_keys("key", "ctrl+w")
        self.wait_for(lambda: '"Processes"' not in self.windows() or
                      self.active_window() != "Processes")
        title = f"Logging lkwvictim pid:{victim.pid}"
        self.output("xdotool", "search", "--name", f"^{title}$", "windowactivate")
        self.wait_for(lambda: self.active_window() == title)
        self.output("xdotool", "key", "ctrl+w")
        self.wait_for(lambda: "log" not in self.places(victim.pid))
        self.assertIsNone(program.poll())
        self.click_history(victim.pid, 6, 6)
        _, errors = program.communicate(timeout=20)
        self.assertEqual(program.returncode, 0, errors)
        self.check_nothing_is_left()

    def test_a_log_that_cannot_be_written_ends_nothing(self):
        self.open_display()
        # Something that logs a line at each reading.
        shutil.copy(shutil.which("dash"), self.victim_program)
        busy = subprocess.Popen([self.victim_program, "-c", "while :; do :; done"])
        self.addCleanup(busy.wait)
        self.addCleanup(busy.kill)
        settings = {"LOG_WINDOW_LOG_TO_FILE": 1, "DEFAULT_LOGGING_WINDOW_INTERVAL": 100}
        for fault in ("full", "removed", "no folder"):
            self.write_preferences(settings)
            data = pathlib.Path(self.home, "data " + fault)
            self.environment["XDG_DATA_HOME"] = str(data)
            logs = data / "lurkwell" / "logs"
            if fault == "no folder":
                data.write_text("a file")
            program = self.start_program()
            self.open_both(busy.pid)
            if fault != "no folder":
                self.wait_for(lambda: [log for log in logs.glob("*") if log.stat().st_size > 400])
                log = next(logs.glob("*"))
                self.assertEqual(log.stat().st_mode & 0o777, 0o600)
            if fault == "full":
                size = log.stat().st_size + 100
                subprocess.run(["prlimit", f"--pid={program.pid}", f"--fsize={size}:"], check=True)
            elif fault == "removed":
                log.unlink()
            time.sleep(2)
            if fault == "full":
                self.assertLessEqual(log.stat().st_size, size)
                self.assertTrue(log.read_bytes().endswith(b"\n"), "a line is there whole or not")
            self.wait_for(lambda: len(self.places(busy.pid)) == 2, tell=self.windows)
            self.end_program(program)


if __name__ == "__main__":
    unittest.main(verbosity=2)
