#!/usr/bin/env python3
"""Windows that follow programs, under the window managers that people have: they stay in sight.

window_managers_test.py BINARY [unittest arguments]
"""
import pathlib
import re
import time
import unittest

from desktop_support import BINARY, FollowedProgram


class WindowManagers(FollowedProgram):
    def property(self, window, name):
        return self.output("xprop", "-id", window, name)

    def is_above(self, window, other):
        order = [int(number, 16) for number in re.findall(
            "0x[0-9a-f]+", self.output("xprop", "-root", "_NET_CLIENT_LIST_STACKING"))]
        return order.index(int(window)) > order.index(int(other))

    def check_windows_stay_in_sight(self, manager):
        self.open_display(manager)
        # One that starts nothing: what it starts would outlive it.
        settings = pathlib.Path(self.home, "bus.conf")
        settings.write_text(f"""<busconfig><type>session</type><listen>unix:dir={self.run_folder}</listen>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>""")
        bus = self.start(["dbus-daemon", f"--config-file={settings}", "--nofork", "--print-address"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
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
        self.check_overlay_takes_no_keyboard(main)
        self.end_program(program)

    def view_is_shown(self, kind):
        """Whether one of the animated view's two windows is: the one that fills the screen, or the other."""
        return any(("1000x800" in line) == (kind == "full screen")
                   for line in self.windows().splitlines() if '"Animated View"' in line and
                   "IsViewable" in self.output("xwininfo", "-id", line.split()[0]))

    def toggle(self, way, full_screen):
        """A press while the view still changes counts for nothing, so a user presses again."""
        for _ in range(4):
            self.output(*way)
            end = time.monotonic() + 5
            while time.monotonic() < end:
                if self.view_is_shown("full screen") == full_screen:
                    return
                time.sleep(0.05)
        self.fail(self.windows())

    def check_overlay_takes_no_keyboard(self, main):
        """The hot key and the command, from another program and from the main window."""
        for way in (["xdotool", "key", "F7"], [BINARY, "--toggle-overlay"]):
            self.toggle(way, True)
            self.assertEqual(self.active_window(), "another")
            self.toggle(way, False)
            time.sleep(0.5)
            self.assertEqual(self.active_window(), "another")
            self.assertFalse(self.view_is_shown("window"), "there was none before")
            self.assertIn("Iconic", self.property(main, "WM_STATE"))
        self.type_keys("key", "F7")
        self.wait_for(lambda: self.view_is_shown("full screen"))
        self.toggle(["xdotool", "key", "F7"], False)
        time.sleep(0.5)
        self.assertFalse(self.view_is_shown("window"))

    def test_kwin(self):
        self.check_windows_stay_in_sight(["kwin_x11"])

    def test_xfwm4(self):
        self.check_windows_stay_in_sight(["env", "NO_AT_BRIDGE=1", "dbus-run-session", "--", "xfwm4"])

    def test_openbox(self):
        self.check_windows_stay_in_sight(["openbox"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
