#!/usr/bin/env python3
"""What a screen reader gets to know of each window, what it is told, and what keys reach.

accessibility_test.py BINARY [unittest arguments]
"""
import json
import pathlib
import shutil
import subprocess
import sys
import time
import unittest

from desktop_support import BINARY, FollowedProgram

READER = pathlib.Path(__file__).with_name("accessible_reader.py")
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
# What is worked with, or read, and so has to have a name.
NAMED = {"push button", "toggle button", "check box", "radio button", "combo box", "text", "entry",
         "password text", "slider", "spin button", "table", "tree", "list", "menu item",
         "check menu item", "radio menu item", "menu", "page tab", "column header", "table column header",
         "chart", "link", "list item", "dialog", "frame", "window"}
# Texts that are read where they stand.
UNNAMED_TEXT = {"label", "static"}
NO_ROLE = {"unknown", "invalid", "filler", "redundant object"}


class Accessibility(FollowedProgram):
    def setUp(self):
        super().setUp()
        self.open_bus()
        self.open_display()
        self.environment.update(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="C.UTF-8",
                                GSETTINGS_BACKEND="memory", LIBGL_ALWAYS_SOFTWARE="1")
        self.start([LAUNCHER, "--launch-immediately", "--a11y=1", "--screen-reader=1"])
        self.wait_for(lambda: "at-spi" in self.output("xprop", "-root", "AT_SPI_BUS") or
                      "unix:" in self.output("xprop", "-root", "AT_SPI_BUS"))
        self.reader = subprocess.Popen([sys.executable, str(READER), "lurkwell"], text=True,
                                       env=self.environment, stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE)
        self.addCleanup(self.reader.stdout.close)
        self.addCleanup(self.reader.wait)
        self.addCleanup(self.reader.kill)
        self.addCleanup(self.reader.stdin.close)

    def ask(self, **question):
        self.reader.stdin.write(json.dumps(question) + "\n")
        self.reader.stdin.flush()
        line = self.reader.stdout.readline()
        self.assertTrue(line, "the reader has ended")
        return json.loads(line)

    def answer(self, **question):
        told = self.ask(**question)
        self.assertNotIn("error", told, question)
        return told["answer"]

    def window_names(self):
        return [name for name, _ in self.ask(windows=1).get("answer", [])]

    def new_windows(self, before):
        """The names of those that have come, the last one first, once there are some."""
        def new():
            return [name for name in self.window_names() if name not in before]
        self.wait_for(new, tell=lambda: f"{before} {self.window_names()}")
        time.sleep(0.5)
        return new()[::-1]

    # ---- What is wrong with a window's objects ----

    def lasting_complaints(self, window):
        """Those that are still there when figures have come."""
        end = time.monotonic() + 6
        while (found := self.complaints(window)) and time.monotonic() < end:
            time.sleep(0.5)
        return found

    def complaints(self, window):
        nodes = self.answer(tree=window)
        frame = nodes[0]["place"]
        return [f"{window}: {complaint} in {self.way_to(nodes, number)}"
                for number, node in enumerate(nodes)
                for complaint in self.complaints_about(nodes, node, frame)]

    def complaints_about(self, nodes, node, frame):
        states, role = set(node["states"]), node["role"]
        if not {"showing", "visible"} <= states or "defunct" in states:
            return
        if role in NAMED and not node["name"]:
            yield f"a {role} without a name"
        if role in NO_ROLE and ("focusable" in states or node["in"] is None):
            yield f"'{node['name']}' takes the keyboard, or is a window, and is a {role}"
        left, top, width, height = node.get("place", (0, 0, 0, 0))
        if width > 0 and height > 0 and not self.is_scrolled(nodes, node) and not (
                left + 2 >= frame[0] and top + 2 >= frame[1] and
                left + width <= frame[0] + frame[2] + 2 and top + height <= frame[1] + frame[3] + 2):
            yield f"a {role} '{node['name']}' at {node['place']}, outside {frame}"
        if role in ("table", "tree"):
            cells = [child for child in nodes if child["in"] is not None and
                     nodes[child["in"]] is node and child["role"] in ("table cell", "tree item")]
            if cells and not any(cell["name"] for cell in cells):
                yield f"a {role} '{node['name']}' whose cells have no text"

    @staticmethod
    def is_scrolled(nodes, node):
        """Whether it stands in something that is larger than what is seen of it, or in a menu."""
        while node["in"] is not None:
            node = nodes[node["in"]]
            if node["role"] in ("scroll pane", "viewport", "menu", "popup menu", "list", "menu item",
                                "tree", "table"):
                return True
        return False

    @staticmethod
    def way_to(nodes, number):
        way = []
        while number is not None:
            way.append(f"{nodes[number]['role']} '{nodes[number]['name']}'")
            number = nodes[number]["in"]
        return " < ".join(way)

    # ---- Windows ----

    def start_busy_victim(self):
        shutil.copy(shutil.which("yes"), self.victim_program)
        victim = subprocess.Popen([self.victim_program], stdout=subprocess.DEVNULL)
        self.addCleanup(victim.wait)
        self.addCleanup(victim.kill)
        return victim

    def open_program(self, busy=False):
        self.victim = self.start_victim() if not busy else self.start_busy_victim()
        program = self.start_program()
        self.wait_for(lambda: '"About Lurkwell"' not in self.windows())
        self.wait_for(lambda: "Processes" in self.window_names())
        self.select(self.victim.pid)
        return program

    def restart_with(self, program, preferences):
        self.end_program(program)
        self.write_preferences(self.preferences() | preferences)
        program = self.start_program()
        self.wait_for(lambda: "Processes" in self.window_names())
        return program

    def select(self, pid):
        self.type_keys("key", "ctrl+g")
        self.wait_for(lambda: self.active_window() not in ("Processes", ""))
        self.output("xdotool", "key", "ctrl+a", "type", str(pid))
        self.output("xdotool", "key", "Return")
        self.wait_for(lambda: self.active_window() == "Processes")

    def open_by_keys(self, *keys):
        before = set(self.window_names())
        self.type_keys("key", *keys)
        return self.new_windows(before)

    def close(self, window):
        self.output("xdotool", "search", "--name", f"^{window}$", "windowactivate", "--sync")
        self.output("xdotool", "key", "Escape")
        time.sleep(0.3)
        if window in self.window_names():
            self.output("wmctrl", "-F", "-c", window)
        self.wait_for(lambda: window not in self.window_names(),
                      tell=lambda: f"{window} {self.window_names()}")

    # By keys of the main window, with the victim selected.
    WINDOWS = {"preferences": ["ctrl+comma"], "details": ["ctrl+i"], "machine": ["ctrl+shift+m"],
               "alerts": ["ctrl+shift+a"], "an alert's rule": ["ctrl+shift+l"], "help": ["F1"],
               "a question": ["Delete"], "a signal": ["ctrl+k"], "priority": ["ctrl+p"],
               "a process by its number": ["ctrl+g"], "a fleet": ["ctrl+shift+o"],
               "history": ["ctrl+n"], "log": ["ctrl+l"]}

    def test_every_window_tells_what_it_is(self):
        program = self.open_program()
        found = self.lasting_complaints("Processes")
        for _, keys in self.WINDOWS.items():
            opened = self.open_by_keys(*keys)
            for window in opened:
                found += self.lasting_complaints(window)
            for window in opened:
                # What takes no keyboard stays.
                if not window.startswith("CPU history"):
                    self.close(window)
        self.assertEqual(found, [], "\n" + "\n".join(found))
        self.end_program(program)

    def test_rows_are_sentences_that_updates_do_not_speak_over(self):
        for _ in range(300):
            self.start_victim(["sleep", "1000"])
        program = self.open_program(busy=True)
        self.wait_for(lambda: (self.answer(focus=1) or {}).get("role") == "table cell",
                      tell=lambda: self.answer(focus=1))
        cell = self.answer(focus=1)
        self.assertIn("lkwvictim, ", cell["description"])
        self.assertIn(f" {self.victim.pid},", cell["description"] + ",")
        self.assertIn("%", cell["description"])
        # Some five turns of hundreds of rows.
        seconds = 10
        heard = self.answer(listen=seconds)
        self.assertLess(sum(heard["heard"].values()), 40, heard)
        again = [told for told in heard["told"] if told[0].endswith("accessible-description")]
        self.assertLessEqual(len(again), 3, again)
        for _, _, text in again:
            self.assertIn("lkwvictim", text)
        told = len(again)
        program = self.restart_with(program, {"ACCESSIBLE_QUIET": 1})
        self.select(self.victim.pid)
        heard = self.answer(listen=seconds)
        again = [told for told in heard["told"] if told[0].endswith("accessible-description")]
        self.assertEqual((told > 0, again), (True, []), "quiet was asked for")
        cell = self.answer(focus=1)
        self.output("xdotool", "key", "Down")
        self.wait_for(lambda: self.answer(focus=1)["description"] not in ("", cell["description"]))
        # What a reader can do, it can do to a column, too.
        self.answer(press="Processes", path=["Process ID"])
        self.end_program(program)


if __name__ == "__main__":
    unittest.main()
