#!/usr/bin/env python3
"""Upgrades from package to package, in a Debian made of this one's files and a package database of
its own. Needs root and mounts of its own.

upgrade_test.py PROGRAM HELPER STEP PREFIX SCRIPTS [unittest arguments]

The helper and its permission step are built for PREFIX, as are the packages' scripts in SCRIPTS.
"""
import errno
import hashlib
import os
import pathlib
import plistlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM, HELPER, STEP, PREFIX, SCRIPTS = (sys.argv.pop(1) for _ in range(5))
USER = 61001
HOME = "/srv/keeper"
COPY = HOME + "/.local/share/Lurkwell/Lurkwell_helper"
RESOURCES = PREFIX + "/lib/lurkwell/Contents/Resources"
# What the step ends with.
NO_ADMINISTRATOR, BAD_COPY = 77, 65


def run(*command, **more):
    return subprocess.run(command, capture_output=True, text=True, check=False, timeout=60, **more)


def must(*command):
    done = run(*command)
    assert done.returncode == 0, (command, done.stdout, done.stderr)
    return done.stdout


def helper_of(version):
    """A helper that does the same in every version, with different bytes."""
    return pathlib.Path(HELPER).read_bytes() + version.encode()


def digest_of(version):
    return hashlib.sha256(helper_of(version)).hexdigest()


class Upgrade(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="lurkwell-test-"))
        must("mount", "-t", "tmpfs", "-o", "mode=755", "tmpfs", str(self.root))
        self.addCleanup(lambda: (must("umount", "-R", str(self.root)), self.root.rmdir()))
        for name in ("etc", "usr", "proc", "dev"):
            (self.root / name).mkdir()
            must("mount", "--rbind", "/" + name, str(self.root / name))
        for entry in pathlib.Path("/").glob("*bin"), pathlib.Path("/").glob("lib*"):
            for link in entry:
                if link.is_symlink():
                    (self.root / link.name).symlink_to(os.readlink(link))
                else:
                    (self.root / link.name).mkdir()
                    must("mount", "--rbind", str(link), str(self.root / link.name))
        for name in ("tmp", "var/log", "var/lib/dpkg/info", "var/lib/dpkg/updates", HOME[1:]):
            (self.root / name).mkdir(parents=True)
        (self.root / "tmp").chmod(0o1777)
        (self.root / "var/lib/dpkg/status").touch()
        # Where it prints, the program wants its helper only for figures.
        preferences = self.within(HOME) / ".config/com.velquarin.lurkwell.plist"
        preferences.parent.mkdir()
        preferences.write_bytes(plistlib.dumps({"FIGURES_FROM_HELPER": 1}))
        for path in self.within(HOME), preferences.parent, preferences:
            os.chown(path, USER, USER)
        # Also where the build lies below /usr.
        self.within(PREFIX).mkdir(parents=True, exist_ok=True)
        must("mount", "-t", "tmpfs", "-o", "mode=755", "tmpfs", str(self.within(PREFIX)))

    def within(self, path):
        return self.root / path[1:]

    def package(self, version, lines=()):
        """A package whose list has its own helper's digest and these lines; its file's name."""
        tree = self.within("/tmp") / version
        resources = tree / RESOURCES[1:]
        resources.mkdir(parents=True)
        (resources / "Lurkwell_helper").write_bytes(helper_of(version))
        shutil.copy(STEP, resources / "Lurkwell_permissions")
        (resources / "Lurkwell_helper").chmod(0o755)
        (tree / PREFIX[1:] / "bin").mkdir()
        shutil.copy(PROGRAM, tree / PREFIX[1:] / "bin/lurkwell")
        digests = tree / PREFIX[1:] / "lib/lurkwell/helper-digests"
        digests.write_text("".join(line + "\n" for line in (*lines, digest_of(version))))
        control = tree / "DEBIAN"
        control.mkdir()
        for script in ("preinst", "postrm"):
            shutil.copy(f"{SCRIPTS}/{script}", control)
        (control / "control").write_text(
            f"Package: lurkwell\nVersion: {version}\nArchitecture: all\nMaintainer: none\n"
            "Description: for a test\n")
        sums = [f"{hashlib.md5(file.read_bytes()).hexdigest()}  {file.relative_to(tree)}\n"
                for file in tree.rglob("*") if file.is_file() and control not in file.parents]
        (control / "md5sums").write_text("".join(sums))
        file = f"/tmp/{version}.deb"
        must("dpkg-deb", "-Znone", "--root-owner-group", "--build", str(tree),
             str(self.within(file)))
        shutil.rmtree(tree)
        return file

    def inside(self, *command, user=0, **environment):
        return run("chroot", f"--userspec={user}:{user}", str(self.root), *command,
                   env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "HOME": HOME, **environment})

    def dpkg(self, *arguments):
        return self.inside("dpkg", *arguments)

    def install(self, version, lines=()):
        done = self.dpkg("--install", self.package(version, lines))
        self.assertEqual(done.returncode, 0, done.stderr)
        verified = self.dpkg("--verify", "lurkwell")
        self.assertEqual((verified.returncode, verified.stdout), (0, ""))

    def has_rights(self):
        """Whether the user's program has them, without a question."""
        # The first update does not wait for the helper.
        done = self.inside(PREFIX + "/bin/lurkwell", "--print", "--count", "2", user=USER)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("    1:", done.stdout)
        return "the helper gets no rights" not in done.stderr

    def step(self, user=0):
        """As pkexec runs it with an administrator's consent, or as the program tries it before."""
        command = f"cd {os.path.dirname(COPY)} && exec {RESOURCES}/Lurkwell_permissions $0"
        return self.inside("sh", "-c", command, "--set_permissions_appropriately", user=user,
                           PKEXEC_UID=str(USER)).returncode

    def consent(self):
        """The question can be answered, and the answer gives the present helper its rights."""
        self.assertEqual(self.step(USER), NO_ADMINISTRATOR)
        self.assertEqual(self.step(), 0)
        self.assertTrue(self.has_rights())

    def copy(self):
        return self.within(COPY).read_bytes()

    def become(self, content):
        """The copy has other bytes, and its owner, group and mode as before."""
        mode = self.within(COPY).stat().st_mode
        end = time.monotonic() + 20
        while True:
            try:
                self.within(COPY).write_bytes(content)
                break
            except OSError as error:
                # The helper of a program that has just ended may still run.
                if error.errno != errno.ETXTBSY or time.monotonic() > end:
                    raise
                time.sleep(0.05)
        self.within(COPY).chmod(mode)

    def replaced(self):
        return self.within(PREFIX + "/lib/lurkwell/replaced-helpers").read_text().split("\n")[:-1]

    def test_copies_serve_on_through_upgrades_and_downgrades(self):
        # A user's own package: no later one has heard of its helper.
        self.install("1")
        self.assertFalse(self.has_rights())
        self.consent()
        self.assertEqual(self.copy(), helper_of("1"))
        self.install("2")
        self.assertTrue(self.has_rights())
        self.assertEqual(self.copy(), helper_of("1"))
        self.consent()
        self.assertEqual(self.copy(), helper_of("2"))
        self.install("1")
        self.assertTrue(self.has_rights())
        self.install("3", [digest_of("2")])
        self.install("3")
        self.assertTrue(self.has_rights())
        self.assertEqual(self.replaced(), [digest_of(version) for version in ("3", "2", "1")])
        # An administrator who wants every earlier helper gone.
        self.become(helper_of("1"))
        self.within(COPY).chmod(0o4750)
        self.assertTrue(self.has_rights())
        self.within(PREFIX + "/lib/lurkwell/replaced-helpers").unlink()
        self.assertFalse(self.has_rights())

    def test_a_withdrawn_version_serves_no_more_and_never_again(self):
        self.install("1")
        self.has_rights()
        self.consent()
        self.install("2", ["- " + digest_of("1")])
        self.assertFalse(self.has_rights())
        old = self.copy()
        self.consent()
        self.assertEqual(self.copy(), helper_of("2"))
        # Nor with a package that does not know of it, or the version itself.
        for version in ("3", "1"):
            self.install(version)
            self.become(old)
            self.within(COPY).chmod(0o4750)
            self.assertFalse(self.has_rights(), version)
        self.assertEqual(self.replaced()[0], "- " + digest_of("1"))
        self.assertNotIn(digest_of("1"), self.replaced())

    def test_an_upgrade_that_breaks_off_changes_nothing(self):
        self.install("1")
        self.has_rights()
        self.consent()
        broken = self.within(self.package("2"))
        os.truncate(broken, broken.stat().st_size // 2)
        self.assertNotEqual(self.dpkg("--install", "/tmp/2.deb").returncode, 0)
        self.assertEqual(self.dpkg("--verify", "lurkwell").stdout, "")
        self.assertTrue(self.has_rights())
        self.become(helper_of("2"))
        self.within(COPY).chmod(0o4750)
        self.assertFalse(self.has_rights())
        # Nor one that has no room for what it has to remember.
        self.within(PREFIX + "/lib/lurkwell/replaced-helpers").unlink()
        self.within(PREFIX + "/lib/lurkwell/replaced-helpers").mkdir()
        self.assertNotEqual(self.dpkg("--install", self.package("3")).returncode, 0)
        self.assertEqual((self.within(RESOURCES) / "Lurkwell_helper").read_bytes(), helper_of("1"))

    def test_nothing_is_left_when_it_is_purged(self):
        self.install("1")
        self.has_rights()
        self.consent()
        # What is not root's alone tells nothing.
        os.chown(self.within(RESOURCES) / "Lurkwell_helper", USER, USER)
        self.install("2")
        self.assertFalse(self.has_rights())
        self.assertEqual(self.step(USER), BAD_COPY)
        self.install("3")
        self.dpkg("--remove", "lurkwell")
        self.assertEqual(self.replaced(), [digest_of("2")])
        self.dpkg("--purge", "lurkwell")
        self.assertEqual(list(self.within(PREFIX).iterdir()), [])
        self.assertEqual(list(self.within("/var/lib").iterdir()), [self.within("/var/lib/dpkg")])


if __name__ == "__main__":
    unittest.main(verbosity=2)
