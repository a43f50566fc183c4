#!/usr/bin/env python3
"""Root with another user's home folder, in which links lead to what is not that user's.

foreign_home_test.py BINARY [unittest arguments]
"""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

from desktop_support import BINARY, Desktop

USER = 61001
PREFERENCES = "com.velquarin.lurkwell.plist"


class ForeignHome(Desktop):
    def setUp(self):
        super().setUp()
        self.roots = pathlib.Path(tempfile.mkdtemp(prefix="lurkwell-roots-"))
        self.addCleanup(shutil.rmtree, self.roots)
        for folder in "data", "run", "home":
            (self.roots / folder).mkdir(mode=0o700)
        users = [line.split(":") for line in pathlib.Path("/etc/passwd").read_text().splitlines()]
        for user in users:
            if user[2] == "0":
                user[5] = str(self.roots / "home")
        (self.roots / "passwd").write_text("".join(":".join(user) + "\n" for user in users))
        (self.roots / "secrets").write_text("root:*:\n")
        self.foreign = pathlib.Path(self.home)
        (self.foreign / ".local").mkdir()
        (self.foreign / ".local/share").symlink_to(self.roots / "data")
        (self.foreign / ".config").mkdir()
        (self.foreign / ".config" / PREFERENCES).symlink_to(self.roots / "secrets")
        (self.foreign / ".cache").symlink_to(self.roots / "run")
        for path in self.foreign.rglob("*"):
            os.chown(path, USER, USER, follow_symlinks=False)
        os.chown(self.foreign, USER, USER)
        self.environment["XDG_RUNTIME_DIR"] = self.environment["TMPDIR"] = str(self.roots / "run")

    def state(self):
        """Every name in both places with its kind, mode, owner and times, and what files hold."""
        found = {}
        for top in self.foreign, self.roots / "data", self.roots / "secrets":
            for path in (top, *top.rglob("*")):
                info = path.lstat()
                content = path.read_bytes() if path.is_file() and not path.is_symlink() else b""
                found[str(path)] = (info.st_mode, info.st_uid, info.st_ino, info.st_mtime_ns, content)
        return found

    def check(self, environment):
        before = self.state()
        self.environment.update(environment)
        # For this program alone, root's own home is another than this machine's.
        command = ["unshare", "--mount", "sh", "-c", 'mount --bind "$0" /etc/passwd && exec "$@"',
                   str(self.roots / "passwd")]
        if subprocess.run([*command, "true"], stderr=subprocess.DEVNULL, check=False).returncode:
            self.skipTest("no file may be put over another here")
        program = self.start([*command, BINARY, "--print", "--count", "1"])
        out, errors = program.communicate(timeout=60)
        self.assertEqual(program.returncode, 0, errors)
        self.assertGreater(len(out.splitlines()), 1)
        self.assertIn("is another user's; root keeps to its own settings", errors)
        self.open_display()
        program = self.start([*command, BINARY])
        self.wait_for(lambda: "Processes" in self.windows())
        self.output("xdotool", "search", "--name", "^Processes$", "windowsize", "700", "500")
        self.type_keys("key", "--delay", "150", "ctrl+w", "ctrl+q")
        _, errors = program.communicate(timeout=30)
        self.assertEqual(errors.count("is another user's"), 1, errors)
        self.assertEqual(self.state(), before)
        self.assertTrue((self.roots / "home/.config" / PREFERENCES).is_file())

    def test_nothing_in_it_is_touched_and_no_link_followed(self):
        for name in "XDG_CONFIG_HOME", "XDG_DATA_HOME":
            self.environment.pop(name)
        self.check({})

    def test_folders_of_settings_are_no_way_round(self):
        """Root's home, and settings in a folder that the other user has yet to make."""
        self.check({"HOME": str(self.roots / "home"), "XDG_CONFIG_HOME": str(self.foreign / ".config"),
                    "XDG_DATA_HOME": str(self.foreign / ".local/share/deep/er")})


if __name__ == "__main__":
    unittest.main(verbosity=2)
