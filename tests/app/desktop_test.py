#!/usr/bin/env python3
"""The whole program on the real machine and a real X server with a window manager.

desktop_test.py BINARY [unittest arguments]
"""
import pathlib
import re
import signal
import subprocess
import time
import unittest

from desktop_support import BINARY, Desktop, png_size


class Shell(Desktop):
    def run_program(self, *words):
        return subprocess.run([BINARY, *words], env=self.environment, capture_output=True, text=True,
                              timeout=60, check=False)

    def test_pictures_need_no_display(self):
        picture = self.home + "/main.png"
        # A picture changes nothing of what the user left.
        left = {"DEFAULT_SHOW_PROCESS_LIST_WINDOW": 0, "MAIN_WINDOW_FRAME": "7 8 860 560",
                "MAIN_WINDOW_INTERVAL": 3_600_000}
        self.write_preferences(left)
        for scale, size in (("1", (860, 560)), ("2", (1720, 1120))):
            self.environment["QT_SCALE_FACTOR"] = scale
            done = self.run_program("--screenshot", picture, "--window", "main", "--theme", "dark")
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(png_size(picture), size)
        self.assertEqual(self.preferences(), left)
        done = self.run_program("--screenshot", picture, "--window", "about")
        self.assertEqual(done.returncode, 0, done.stderr)
        about = png_size(picture)
        self.assertLess(about[0], 1600)
        # What else the user has open is no part of it.
        self.write_preferences({"QUBS_DEBUGGING_AND_TESTING": 1})
        done = self.run_program("--screenshot", picture, "--window", "about")
        self.assertEqual((done.returncode, png_size(picture)), (0, about))
        done = self.run_program("--screenshot", "/nonexistent/x.png")
        self.assertEqual(done.returncode, 1)
        self.assertIn("/nonexistent/x.png", done.stderr)
        self.check_nothing_is_left()

    def test_without_a_display_it_prints_and_says_how_to_see_the_window(self):
        for display in (None, ":4242"):
            if display:
                self.environment["DISPLAY"] = display
            done = self.run_program("--count", "1")
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertIn("DISPLAY", done.stderr)
            self.assertIn("    1:", done.stdout)

    def test_senseless_options_are_told(self):
        for words in (["--screenshot", "x", "--window", "moon"], ["--theme", "pink"],
                      ["--screenshot"]):
            done = self.run_program(*words)
            self.assertEqual(done.returncode, 2, words)
            self.assertIn("--help", done.stderr)

    def test_windows_fit_the_screen_at_every_scale(self):
        self.open_display()
        main = re.compile(r'"Processes".*\s(\d+)x(\d+)\+-?\d+\+-?\d+\s+\+(-?\d+)\+(-?\d+)')
        for scale in ("1.25", "1.5", "2"):
            for places in ({}, {"MAIN_WINDOW_FRAME": "560 380 860 560"}):
                self.write_preferences(places)
                self.environment["QT_SCALE_FACTOR"] = scale
                program = self.start([BINARY, "--unprivileged"])
                self.wait_for(lambda: main.search(self.windows()))
                time.sleep(0.5)
                width, height, left, top = map(int, main.search(self.windows()).groups())
                told = f"{width} x {height} at {left}, {top}, {scale} {places}"
                self.assertTrue(left >= 0 and top >= 0 and left + width <= 1000 and
                                top + height <= 800, told)
                program.terminate()
                _, errors = program.communicate(timeout=20)
                self.assertEqual(program.returncode, 0, errors)

    def test_windows_speak_the_users_language_and_the_terminal_english(self):
        self.open_display()
        for variables, title in (
                ({"LC_ALL": "de_DE.UTF-8"}, "Prozesse"),
                ({"LC_ALL": "", "LANG": "de_DE.UTF-8", "LANGUAGE": "fr:de"}, "Processus"),
                ({"LC_ALL": "nl_NL.UTF-8", "LANGUAGE": ""}, "Processes")):
            self.environment.update(variables)
            program = self.start([BINARY, "--unprivileged"])
            self.wait_for(lambda: f'"{title}"' in self.windows(), tell=self.windows)
            program.terminate()
            program.communicate(timeout=20)
        done = self.run_program("--print", "--count", "1")
        self.assertRegex(done.stdout, r"CPU-TIME.*\n.* \d+\.\d{6} ")

    def test_keys_act_on_what_was_selected_after_asking(self):
        self.open_display()
        victim = subprocess.Popen(["env", "--ignore-signal=TERM", "sleep", "1000"])
        self.addCleanup(victim.wait)
        self.addCleanup(victim.kill)
        self.start([BINARY, "--unprivileged"])
        self.wait_for(lambda: '"Processes"' in self.windows())
        self.type_keys("key", "ctrl+g")
        self.wait_for(lambda: self.active_window() not in ("Processes", ""))
        self.output("xdotool", "key", "ctrl+a")
        self.output("xdotool", "type", str(victim.pid))
        self.output("xdotool", "key", "Return")

        def act(key, agree):
            self.type_keys("key", key)
            self.wait_for(lambda: self.active_window() == "Lurkwell")
            self.assertIsNone(victim.poll())
            self.output("xdotool", "key", agree)
            self.wait_for(lambda: self.active_window() == "Processes")

        def state():
            return pathlib.Path(f"/proc/{victim.pid}/stat").read_text().rsplit(")", 1)[1].split()[0]

        act("ctrl+h", "Return")
        time.sleep(0.5)
        self.assertNotEqual(state(), "T", "Return refuses")
        act("ctrl+h", "alt+h")
        self.wait_for(lambda: state() == "T")
        self.type_keys("key", "ctrl+shift+h")
        self.wait_for(lambda: state() != "T")
        # Asked to end twice, which it does not hear, then ended by force.
        for _ in range(3):
            act("Delete", "alt+k")
        self.assertEqual(victim.wait(20), -signal.SIGKILL)


if __name__ == "__main__":
    unittest.main(verbosity=2)
