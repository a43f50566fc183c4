#!/usr/bin/env python3
"""The program under the window managers that people have: it stays in sight, and in nobody's way.

window_managers_test.py BINARY [unittest arguments]
"""
import unittest

from desktop_visit import Visit


class WindowManagers(Visit):
    def check(self, name):
        self.visit(name)
        self.assertEqual(self.reasons, {})

    def test_kwin(self):
        self.check("kwin_x11")

    def test_i3(self):
        self.visit("i3")
        self.assertEqual(list(self.reasons), ["minimised"], self.reasons)

    def test_xfwm4(self):
        self.check("xfwm4")

    def test_openbox(self):
        self.check("openbox")


if __name__ == "__main__":
    unittest.main(verbosity=2)
