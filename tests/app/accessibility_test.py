#!/usr/bin/env python3
"""What a screen reader gets to know of each window, what it is told, and what keys reach.

accessibility_test.py BINARY [unittest arguments]
"""
import http.server
import json
import pathlib
import re
import shutil
import subprocess
import sys
import threading
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


class MadeUpFleet:
    """A metrics server that knows one machine, of which all figures are 1."""
    FIGURES = ["up", "cpu", "mem", "total", "swap", "load", "processes", "disk", "network", "waits_cpu",
               "waits_mem", "waits_disk", "started", "seen"]

    def __init__(self):
        series = [{"metric": {"figure": figure, "instance": "made-up:9256"}, "value": [1.7e9, "1"]}
                  for figure in self.FIGURES] + [{"metric": {"figure": "all"}, "value": [1.7e9, "1"]}]
        answers = {kind: json.dumps({"status": "success",
                                     "data": {"resultType": kind, "result": result}}).encode()
                   for kind, result in (("vector", series), ("matrix", []))}

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_POST(self):
                self.rfile.read(int(self.headers.get("Content-Length", 0)))
                body = answers["matrix" if "query_range" in self.path else "vector"]
                self.send_response(200)
                self.send_header("Content-Type", "application/json")
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body)
            do_GET = do_POST

            def log_message(self, *_):
                pass
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.address = f"http://127.0.0.1:{self.server.server_port}"
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def end(self):
        self.server.shutdown()
        self.server.server_close()


class Accessibility(FollowedProgram):
    def setUp(self):
        super().setUp()
        self.open_bus()
        self.open_display()
        self.environment.update(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="C.UTF-8",
                                GSETTINGS_BACKEND="memory", LIBGL_ALWAYS_SOFTWARE="1")
        launcher = self.start([LAUNCHER, "--launch-immediately", "--a11y=1", "--screen-reader=1"])
        # Asked to go it takes its bus along.
        self.addCleanup(lambda: (launcher.terminate(), launcher.wait(20)))
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
            # A history has its process's number until it knows whose it is.
            return [name for name in self.window_names()
                    if name not in before and not name.isdigit()]
        self.wait_for(new, tell=lambda: f"{before} {self.window_names()}")
        # Some get their names a little later.
        while True:
            names = new()
            time.sleep(0.5)
            if names == new():
                return names[::-1]

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
        # Toolkits have the list that a field opens as a part of it, which is named.
        is_fields = role == "list" and node["in"] is not None and (
            nodes[node["in"]]["role"] == "combo box")
        if role in NAMED and not node["name"] and not is_fields:
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
        self.output("xdotool", "search", "--name", f"^{re.escape(window)}$", "windowactivate", "--sync")
        self.output("xdotool", "key", "Escape")
        time.sleep(0.3)
        if window in self.window_names():
            self.output("wmctrl", "-F", "-c", window)
        self.wait_for(lambda: window not in self.window_names(),
                      tell=lambda: f"{window} {self.window_names()}")

    def open_by_menu(self, *names, of="Processes"):
        before = set(self.window_names())
        self.ask(press=of, path=list(names))
        return self.new_windows(before)

    # All that the main window opens: the item of its menus that does it, and the keys, where it has some.
    # The victim is selected.
    WINDOWS = {"About Lurkwell": [], "Preferences…": ["ctrl+comma"], "Show Details": ["ctrl+i"],
               "Machine": ["ctrl+shift+m"], "Alerts": ["ctrl+shift+a"],
               "Alert When…": ["ctrl+shift+l"], "Lurkwell Help": ["F1"], "Quit or Kill…": ["Delete"],
               "Quit or Kill with Children": ["shift+Delete"], "Halt…": ["ctrl+h"],
               "Send Signal…": ["ctrl+k"], "Priority and Processors…": ["ctrl+p"],
               "Find Process by ID…": ["ctrl+g"], "Open Fleet…": ["ctrl+shift+o"],
               "Save As…": [], "As It Was…": [], "Customise Toolbar…": [],
               "Remembered Windows…": [], "Animated View": [], "New CPU History Window": ["ctrl+n"],
               "New Logging Window": ["ctrl+l"]}
    # Those of a file are the desktop's or the toolkit's own; the filter is a part of the main window;
    # column sets of one's own come later.
    OTHERS = {"Record…", "Open Recording…", "Filter…", "Rename…", "Delete…"}
    # What the program can take pictures of, by the items that open it.
    PICTURES = {"main": None, "machine": "Machine", "alerts": "Alerts", "history": "New CPU History Window",
                "logging": "New Logging Window", "preferences": "Preferences…", "settings": None,
                "animated": "Animated View", "about": "About Lurkwell"}

    def look_at(self, window):
        """What is wrong with it, on all of its pages."""
        pages = [node["name"] for node in self.answer(tree=window) if node["role"] == "page tab"]
        found = []
        for page in pages:
            self.answer(press=window, path=[page])
            found += [f"{page}: {complaint}" for complaint in self.lasting_complaints(window)]
        return found if pages else self.lasting_complaints(window)

    def look_and_close(self, windows):
        found = [complaint for window in windows for complaint in self.look_at(window)]
        for window in windows:
            # What takes no keyboard stays.
            if not window.startswith("CPU history"):
                self.close(window)
        return found

    def test_every_window_tells_what_it_is(self):
        program = self.open_program()
        # A window that is added has its place above.
        opening = {node["name"] for node in self.answer(tree="Processes")
                   if node["role"] == "menu item" and node["name"].endswith("…")}
        self.assertEqual(opening - set(self.WINDOWS) - self.OTHERS, set())
        names = re.search(r"--window NAME(.*?);", self.output(BINARY, "--help"), re.S).group(1)
        pictures = set(re.findall(r"[a-z]+", names.partition("only):")[2])) - {"or"}
        self.assertEqual(pictures, set(self.PICTURES))
        self.assertLessEqual({item for item in self.PICTURES.values() if item}, set(self.WINDOWS))

        found = self.look_at("Processes")
        for item, keys in self.WINDOWS.items():
            with self.subTest(item):
                opened = self.open_by_keys(*keys) if keys else self.open_by_menu(item)
                if item == "Preferences…":
                    found += self.look_and_close(self.open_by_menu("All Settings…", of=opened[0]))
                found += self.look_and_close(opened)
        found += self.look_at_column_sets() + self.look_at_filter() + self.look_at_fleet()
        self.end_program(program)
        found += self.look_at_recording()
        self.assertEqual(found, [], "\n" + "\n".join(found))

    def look_at_column_sets(self):
        self.open_by_menu("Save As…")
        self.output("xdotool", "type", "mine")
        self.output("xdotool", "key", "Return")
        self.wait_for(lambda: self.active_window() == "Processes")
        return [complaint for item in ("Rename…", "Delete…")
                for complaint in self.look_and_close(self.open_by_menu(item))]

    def look_at_filter(self):
        self.type_keys("key", "ctrl+f")
        self.output("xdotool", "type", "lkw")
        found = self.look_at("Processes")
        self.output("xdotool", "key", "Escape")
        return found

    def look_at_fleet(self):
        fleet = MadeUpFleet()
        self.addCleanup(fleet.end)
        self.open_by_menu("Open Fleet…")
        before = set(self.window_names())
        self.output("xdotool", "type", fleet.address)
        self.output("xdotool", "key", "Return")
        opened = self.new_windows(before)
        self.wait_for(lambda: any("made-up" in node["name"] for node in self.answer(tree=opened[0])))
        return self.look_and_close(opened)

    def look_at_recording(self):
        file = self.home + "/day.lwr"
        recorder = self.start([BINARY, "--record", file, "--interval", "1"])
        time.sleep(4)
        recorder.terminate()
        self.assertEqual(recorder.wait(20), 0, recorder.stderr.read())
        program = self.start([BINARY, "--replay", file])
        self.wait_for(lambda: any(name.startswith("day.lwr") for name in self.window_names()))
        window = next(name for name in self.window_names() if name.startswith("day.lwr"))
        self.assertIn(["slider", "Time line"],
                      [[node["role"], node["name"]] for node in self.answer(tree=window)])
        found = self.look_at(window)
        self.end_program(program)
        return found

    @staticmethod
    def counts_told(heard):
        """How often the line below the table was."""
        return [told for told in heard["told"]
                if told[0].endswith("accessible-name") and "processes" in told[1]]

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
        self.assertIn(len(self.counts_told(heard)), (1, 2, 3), heard["told"])
        told = len(again)
        program = self.restart_with(program, {"ACCESSIBLE_QUIET": 1})
        self.select(self.victim.pid)
        heard = self.answer(listen=seconds)
        again = [told for told in heard["told"] if told[0].endswith("accessible-description")]
        self.assertEqual((told > 0, again), (True, []), "quiet was asked for")
        self.assertEqual(self.counts_told(heard), [], "quiet was asked for")
        cell = self.answer(focus=1)
        self.output("xdotool", "key", "Down")
        self.wait_for(lambda: self.answer(focus=1)["description"] not in ("", cell["description"]))
        # What a reader can do, it can do to a column, too.
        self.answer(press="Processes", path=["Process ID"])
        self.end_program(program)


if __name__ == "__main__":
    unittest.main()
