#!/usr/bin/env python3
"""Windows that follow programs, under the window managers that people have: they stay in sight.

window_managers_test.py BINARY [unittest arguments]
"""
import re
import time
import unittest

from desktop_support import FollowedProgram


class WindowManagers(FollowedProgram):
    def property(self, window, name):
        return self.output("xprop", "-id", window, name)

    def is_above(self, window, other):
        order = [int(number, 16) for number in re.findall(
            "0x[0-9a-f]+", self.output("xprop", "-root", "_NET_CLIENT_LIST_STACKING"))]
        return order.index(int(window)) > order.index(int(other))

    def check_windows_stay_in_sight(self, manager):
        self.open_display(manager)
        victim = self.start_victim()
        program = self.start_program()
        self.open_both(victim.pid)
        history = self.output("xdotool", "search", "--name", f"^{victim.pid}$").split()[0]
        log = self.output("xdotool", "search", "--name", "^Logging lkwvictim").split()[0]
        self.start(["xterm", "-T", "another", "-geometry", "150x60+0+0"])
        self.wait_for(lambda: self.active_window() == "another")
        another = self.output("xdotool", "getactivewindow").strip()
        self.output("xdotool", "windowraise", another)
        time.sleep(1)
        for window in (history, log):
            self.assertIn("IsViewable", self.output("xwininfo", "-id", window))
        self.assertTrue(self.is_above(history, another), self.output("xprop", "-id", history))
        state = self.property(history, "_NET_WM_STATE")
        for word in ("ABOVE", "SKIP_TASKBAR", "SKIP_PAGER"):
            self.assertIn("_NET_WM_STATE_" + word, state)
        self.assertRegex(self.property(history, "_NET_WM_DESKTOP"), "= 4294967295$")
        self.assertIn("_DIALOG", self.property(history, "_NET_WM_WINDOW_TYPE"))
        self.assertIn("not found", self.property(history, "WM_TRANSIENT_FOR"))

        # Neither a click on the graph nor a drag takes the keyboard, or restores what was put away.
        main = self.output("xdotool", "search", "--name", "^Processes$").split()[0]
        self.output("xdotool", "windowminimize", main)
        self.wait_for(lambda: "Iconic" in self.property(main, "WM_STATE"))
        self.output("xdotool", "windowactivate", another)
        self.output("xdotool", "mousemove", "--window", history, "60", "30", "click", "1")
        time.sleep(1)
        self.assertEqual(self.active_window(), "another")
        self.assertIn("Iconic", self.property(main, "WM_STATE"))
        self.end_program(program)

    def test_kwin(self):
        self.check_windows_stay_in_sight(["kwin_x11"])

    def test_xfwm4(self):
        self.check_windows_stay_in_sight(["dbus-run-session", "--", "xfwm4"])

    def test_openbox(self):
        self.check_windows_stay_in_sight(["openbox"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
