#!/usr/bin/env python3
"""The whole life of the program: everything opened, ended, started again; every way to end it.

life_test.py BINARY [unittest arguments]; LURKWELL_LIVES=N is the number of lives, 14 without it.
"""
import os
import pathlib
import re
import signal
import subprocess
import time
import unittest

from desktop_support import BINARY, FollowedProgram, helpers

LIVES = int(os.environ.get("LURKWELL_LIVES", "14"))

# Takes a program away from one process tree alone: on a file system over the one that has it.
WITHOUT_RENICE = r"""
set -e
mount -t tmpfs none "$1"
mkdir "$1/upper" "$1/work"
mount -t overlay overlay -o lowerdir=/usr/bin,upperdir="$1/upper",workdir="$1/work" /usr/bin
rm /usr/bin/renice
shift
exec "$@"
"""


class Life(FollowedProgram):
    def setUp(self):
        super().setUp()
        self.environment["LIBGL_ALWAYS_SOFTWARE"] = "1"

    def shown(self, title):
        return self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()

    def is_shown(self, title):
        return bool(self.shown(title))

    def frame(self, title):
        """Place and size of a window that is shown: x, y, width, height; () without one."""
        for window in self.shown(title)[:1]:
            lines = self.output("xwininfo", "-id", window)
            figures = r"(?:Absolute upper-left.*|Width|Height): +(-?\d+)"
            return tuple(map(int, re.findall(figures, lines)))
        return ()

    def choose(self, *keys):
        """From the main window's menus, by mnemonics."""
        self.type_keys("key", "--delay", "150", *keys)

    def open_everything(self, pid):
        self.open_both(pid)
        self.choose("alt+l", "a")
        self.wait_for(lambda: self.is_shown("About Lurkwell"))
        self.choose("alt+w", "a")
        # Without a graphics card it says once that the view will be slow.
        self.answer_alert()
        self.wait_for(lambda: self.is_shown("Animated View"))
        def has_preferences():
            # The view takes the keyboard some time after it is shown.
            self.choose("ctrl+comma")
            time.sleep(0.5)
            return self.active_window() == "Lurkwell Preferences"
        self.wait_for(has_preferences, tell=self.active_window)

    def answer_alert(self):
        def has_keyboard():
            # The view that it is about may come up over it.
            self.output("xdotool", "search", "--onlyvisible", "--name", "^Lurkwell$",
                        "windowactivate")
            time.sleep(0.2)
            return self.active_window() == "Lurkwell"
        self.wait_for(has_keyboard, tell=self.windows)
        self.output("xdotool", "key", "Return")

    def change_a_preference(self):
        self.output("xdotool", "key", "alt+k")
        self.wait_for(lambda: self.setting("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT") == 2)

    def setting(self, key):
        return self.preferences().get(key)

    def toggle_overlay_twice(self):
        window = self.frame("Animated View")
        for full_screen in (1, 0):
            # To the window that has the keyboard; over the whole screen the main window cannot get it.
            self.output("xdotool", "key", "F7")
            # No compositor, it says, once as well.
            if full_screen:
                self.answer_alert()
            self.wait_for(lambda wanted=full_screen:
                          self.setting("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW") == wanted,
                          tell=lambda: f"{full_screen} {self.active_window()} {self.windows()}")
            self.wait_for(lambda wanted=full_screen:
                          (self.frame("Animated View")[2:] == (1000, 800)) == wanted)
        self.wait_for(lambda: self.frame("Animated View") == window,
                      tell=lambda: f"{window} {self.windows()}")

    def test_what_was_open_when_it_quit_is_open_when_it_starts_again(self):
        self.open_display()
        victim = self.start_victim()
        program = self.start_program()
        self.open_everything(victim.pid)
        self.change_a_preference()
        self.toggle_overlay_twice()
        self.output("xdotool", "search", "--onlyvisible", "--name", "^Animated View$",
                    "windowmove", "300", "200", "windowsize", "420", "330")
        self.wait_for(lambda: self.frame("Animated View")[2:] == (420, 330))
        titles = ["Processes", "Animated View", str(victim.pid)]
        frames = {title: self.frame(title) for title in titles}
        places = self.places(victim.pid)
        self.assertEqual(len(places), 2)
        self.choose("ctrl+q")
        _, errors = program.communicate(timeout=20)
        self.assertEqual(program.returncode, 0, errors)
        self.check_nothing_is_left()

        program = self.start_program()
        self.wait_for(lambda: all(self.frame(title) == frames[title] for title in titles),
                      tell=lambda: f"{frames} {self.windows()}")
        self.wait_for(lambda: self.places(victim.pid) == places)
        self.assertEqual(self.setting("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT"), 2)
        # Closed by hand, it stays closed.
        self.output("xdotool", "search", "--onlyvisible", "--name", "^Animated View$",
                    "windowactivate", "--sync", "key", "Escape")
        self.wait_for(lambda: not self.is_shown("Animated View"))
        self.end_program(program)
        program = self.start_program()
        self.wait_for(lambda: self.places(victim.pid) == places)
        self.assertFalse(self.is_shown("Animated View"))
        self.end_program(program)

    def test_nothing_is_left_by_any_end(self):
        ends = {
            "SIGTERM": lambda: self.program.send_signal(signal.SIGTERM),
            "SIGINT": lambda: self.program.send_signal(signal.SIGINT),
            "SIGHUP": lambda: self.program.send_signal(signal.SIGHUP),
            "last window": lambda: self.type_keys("key", "ctrl+w"),
            "Ctrl+Q": lambda: self.type_keys("key", "ctrl+q"),
            "SIGTERM at once": lambda: self.program.send_signal(signal.SIGTERM),
            "lost display": self.lose_display,
        }
        self.server = self.open_display()
        left = None
        for life in range(LIVES):
            way = list(ends)[life % len(ends)]
            with self.subTest(life=life, way=way):
                self.begin_life(wait=way != "SIGTERM at once")
                # Somewhere in its start.
                if way == "SIGTERM at once":
                    time.sleep(0.04 * life % 0.7)
                ends[way]()
                self.program.communicate(timeout=20)
                if way not in ("lost display", "SIGTERM at once"):
                    self.assertEqual(self.program.returncode, 0)
                    self.assertEqual(self.setting("DEFAULT_SHOW_PROCESS_LIST_WINDOW"), 1)
                    self.assertEqual(len(self.setting("MAIN_WINDOW_COLUMNS")), 7)
                self.wait_for(lambda: not self.processes_of_session())
                self.wait_for(lambda: not helpers())
                if way == "lost display":
                    self.server = self.open_display()
                # The first life makes what stays: the settings and the helper's copy.
                now = self.files()
                left = left or now
                self.assertEqual(now, left)
        self.assertEqual([str(path) for path in self.run_folder.iterdir()], [])

    def begin_life(self, wait):
        self.program = subprocess.Popen([BINARY, "--unprivileged"], env=self.environment,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                                        start_new_session=True)
        self.addCleanup(self.program.kill)
        if wait:
            self.wait_for(lambda: self.is_shown("Processes"))
            self.wait_for(helpers)

    def lose_display(self):
        self.server.terminate()
        self.server.wait()

    def processes_of_session(self):
        found = []
        for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
            try:
                state, _, _, session = stat.read_text().rpartition(")")[2].split()[:4]
                if state != "Z" and int(session) == self.program.pid:
                    found.append(stat.parent.name)
            except OSError:
                pass
        return found

    def files(self):
        home = pathlib.Path(self.home)
        return sorted(str(path.relative_to(home)) for path in home.rglob("*")
                      if not path.is_dir() or path.is_relative_to(self.run_folder))

    def test_without_one_of_the_tools_it_says_so_and_starts_nothing(self):
        cover = pathlib.Path(self.home, "cover")
        cover.mkdir()
        command = ["unshare", "--mount", "sh", "-c", WITHOUT_RENICE, "sh", str(cover)]
        if subprocess.run([*command, "true"], stderr=subprocess.DEVNULL, check=False).returncode:
            self.skipTest("no file system may be mounted here")
        self.open_display()
        program = self.start([*command, BINARY])
        self.wait_for(lambda: self.active_window() == "Lurkwell")
        self.assertFalse(self.is_shown("Processes"))
        self.answer_alert()
        _, errors = program.communicate(timeout=20)
        self.assertEqual(program.returncode, 255, errors)
        self.assertEqual(helpers(), set())
        self.assertEqual(list(self.run_folder.iterdir()), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
