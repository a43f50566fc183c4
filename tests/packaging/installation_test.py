#!/usr/bin/env python3
"""What an installation holds, and whether it works from its own place.

installation_test.py CMAKE BUILD SOURCE --paths|--no-paths [unittest arguments]
"""
import gzip
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

CMAKE, BUILD, SOURCE, PATHS = (sys.argv.pop(1) for _ in range(4))
ID = "com.velquarin.lurkwell"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


def words(*command, **more):
    return subprocess.run(command, capture_output=True, text=True, check=False, timeout=60, **more)


class Digests(unittest.TestCase):
    """The check in front of ./package, in a repository of its own."""

    def test_a_released_version_without_a_digest_stops_the_package(self):
        with tempfile.TemporaryDirectory(prefix="lurkwell-test-") as folder:
            root = pathlib.Path(folder)
            (root / "scripts").mkdir()
            check = shutil.copy(pathlib.Path(SOURCE, "scripts/check-digests"), root / "scripts")
            digests = root / "resources/desktop/helper-digests"
            digests.parent.mkdir(parents=True)
            shutil.copy(pathlib.Path(SOURCE, "resources/desktop/helper-digests"), digests)

            def git(*arguments):
                done = words("git", "-C", folder, "-c", "user.name=n", "-c", "user.email=e",
                             *arguments)
                self.assertEqual(done.returncode, 0, done.stderr)

            git("init", "--quiet")
            git("commit", "--quiet", "--allow-empty", "--message=one")
            git("tag", "v98.0.0")
            self.assertEqual(words(check).returncode, 0, "the version that is being made")
            git("commit", "--quiet", "--allow-empty", "--message=two")
            done = words(check)
            self.assertEqual(done.returncode, 1)
            self.assertIn("v98.0.0", done.stderr)
            for line, status in ("0" * 63, 1), ("- " + "0" * 64, 0), ("0" * 64, 0):
                digests.write_text(f"# v98.0.0\n{line}\n# v97.0.0\n{'1' * 64}\n")
                self.assertEqual(words(check).returncode, status, line)


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="lurkwell-test-")
        cls.addClassCleanup(cls.folder.cleanup)
        cls.prefix = pathlib.Path(cls.folder.name, "usr")
        done = words(CMAKE, "--install", BUILD, "--strip", "--prefix", str(cls.prefix))
        assert done.returncode == 0, done.stderr
        cls.program = str(cls.prefix / "bin/lurkwell")
        home = pathlib.Path(cls.folder.name, "home")
        (home / "run").mkdir(parents=True, mode=0o700)
        cls.environment = {
            "PATH": os.environ["PATH"], "HOME": str(home), "XDG_RUNTIME_DIR": str(home / "run"),
            "LC_ALL": "C.UTF-8"}

    def run_program(self, *arguments):
        done = words(self.program, *arguments, env=self.environment)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout

    def text(self, path):
        return (self.prefix / path).read_text()

    def options_of_help(self, *begin):
        return set(re.findall(r"--[a-z-]+", self.run_program(*begin, "--help")))

    def shown_page(self, name):
        page = self.prefix / f"share/man/man1/{name}.1.gz"
        done = words("man", "--warnings", "--nh", "--nj", "-E", "UTF-8", "-l", str(page),
                     env={**self.environment, "MANWIDTH": "80", "MANPAGER": "cat"})
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return page, done.stdout

    def test_it_works_from_its_own_place(self):
        self.assertRegex(self.run_program("--version"), r"^lurkwell \d+\.\d+\.\d+\n$")
        # As a session manager starts it.
        self.assertIn("lurkwell", self.run_program("-session", "10_20", "--version"))
        self.assertIn("    1:", self.run_program("--print", "--count", "1", "--unprivileged"))
        picture = self.environment["HOME"] + "/main.png"
        self.run_program("--screenshot", picture)
        self.assertGreater(os.path.getsize(picture), 5000)
        # The user's helper comes from the installed one.
        mine = pathlib.Path(self.environment["HOME"], ".local/share/Lurkwell/Lurkwell_helper")
        twin = self.prefix / "lib/lurkwell/Contents/Resources/Lurkwell_helper"
        self.assertEqual(mine.read_bytes(), twin.read_bytes())
        self.assertEqual(twin.stat().st_mode & 0o7777, 0o755)
        self.assertTrue((twin.parent / "Documentation/Documentation.html").is_file())
        self.assertFalse((self.prefix / "lib/lurkwell/Contents/build-tree").exists())

    def test_nothing_tells_where_it_was_built(self):
        if PATHS == "--paths":
            self.skipTest("this kind of build tells")
        for file in self.prefix.rglob("*"):
            if file.is_file():
                for place in (SOURCE, BUILD):
                    self.assertNotIn(place.encode(), file.read_bytes(), file)

    def test_the_desktop_finds_it(self):
        entry = self.prefix / f"share/applications/{ID}.desktop"
        done = words("desktop-file-validate", str(entry))
        self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))
        for option in re.findall(r"^Exec=lurkwell (-\S+)$", entry.read_text(), re.M):
            self.assertIn(option, self.options_of_help())
        metainfo = self.prefix / f"share/metainfo/{ID}.metainfo.xml"
        done = words("appstreamcli", "validate", "--no-net", "--pedantic", str(metainfo))
        # There is no home page that could be named, which later versions of the check wish for.
        problems = [line for line in re.findall(r"^[EW]: .*$", done.stdout, re.M)
                    if not line.endswith("url-homepage-missing")]
        self.assertEqual(problems, [], done.stdout)
        self.assertIn("Validation", done.stdout)
        releases = xml.etree.ElementTree.parse(metainfo).findall("releases/release")
        self.assertEqual(self.run_program("--version").split()[1], releases[0].get("version"))
        icons = self.prefix / "share/icons/hicolor"
        self.assertTrue((icons / f"scalable/apps/{ID}.svg").is_file())
        for size in SIZES:
            picture = (icons / f"{size}x{size}/apps/{ID}.png").read_bytes()
            self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
            self.assertGreater(len(picture), 10 * size)

    def test_the_administrator_is_asked_for_the_installed_helper(self):
        policy = xml.etree.ElementTree.parse(self.prefix / f"share/polkit-1/actions/{ID}.policy")
        paths = policy.findall("action/annotate[@key='org.freedesktop.policykit.exec.path']")
        for path, program in zip(paths, ("permissions", "helper"), strict=True):
            self.assertRegex(path.text, f"^/.*/lib/lurkwell/Contents/Resources/Lurkwell_{program}$")
        for who in policy.findall("action/defaults/*"):
            self.assertEqual(who.text, "auth_admin")

    def test_shells_complete_what_the_help_has(self):
        places = {"bash": "bash-completion/completions/lurkwell",
                  "zsh": "zsh/vendor-completions/_lurkwell",
                  "fish": "fish/vendor_completions.d/lurkwell.fish"}
        scripts = {shell: self.text(f"share/{place}") for shell, place in places.items()}
        for option in self.options_of_help():
            self.assertRegex(scripts["zsh"], f"'{option}[=[]")
            self.assertRegex(scripts["fish"], f" -l {option[2:]} ")
        ask = "COMP_WORDS=(lurkwell {words}); COMP_CWORD={last}; _lurkwell; echo ${{COMPREPLY[*]}}"

        def completed(*line):
            done = words("bash", "-c", scripts["bash"] + ask.format(
                words=" ".join(f"'{word}'" for word in line), last=len(line)))
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            return set(done.stdout.split())
        self.assertEqual(completed(""), self.options_of_help())
        self.assertEqual(completed("--th"), {"--theme"})
        self.assertEqual(completed("--theme", "=", "d"), {"dark"})
        self.assertEqual(completed("--format", ""), {"text", "json", "jsonl", "csv"})
        self.assertEqual(completed("--count", ""), set())
        self.assertEqual(completed("--replay", "/etc/host"), {
            str(path) for path in pathlib.Path("/etc").glob("host*")})

    def test_the_manual_agrees_with_the_help(self):
        page, shown = self.shown_page("lurkwell")
        options = shown.split("\nOPTIONS\n")[1].split("\nEXIT STATUS\n")[0]
        self.assertEqual(set(re.findall(r"^ +(--[a-z-]+)", options, re.M)), self.options_of_help())
        windows = words(self.program, "--window", "?", env=self.environment).stderr
        for window in windows.split("there are ")[1].split("\n")[0].split(", "):
            self.assertIn(window, options)
        version = self.run_program("--version").split()[1]
        self.assertIn(version, gzip.decompress(page.read_bytes()).decode())

    def test_the_exporter_is_there_with_its_service(self):
        if not (self.prefix / "bin/lurkwell-export").exists():
            self.skipTest("this build has no exporter")
        version = self.run_program("--version").split()[1]
        self.assertEqual(self.run_program("--export", "--version"), f"lurkwell-export {version}\n")
        page, shown = self.shown_page("lurkwell-export")
        self.assertIn(version, gzip.decompress(page.read_bytes()).decode())
        options = shown.split("\nOPTIONS\n")[1].split("\nCONFIGURATION\n")[0]
        self.assertEqual(set(re.findall(r"^ +(--[a-z-]+)", options, re.M)),
                         self.options_of_help("--export"))
        configuration = str(self.prefix / "etc/lurkwell/export.conf")
        self.run_program("--export", "--check", "--config", configuration)
        # The example of the page makes sense, too.
        example = re.search(r"\[server\].*network = units\n", shown, re.S).group(0)
        example = re.sub("(?m)^ *(certificate|key|passwords) .*$", "", example)
        pathlib.Path(configuration).write_text(
            re.sub("(?m)^ +", "", example), encoding="utf-8")
        self.run_program("--export", "--check", "--config", configuration)
        unit = self.text("lib/systemd/system/lurkwell-export.service")
        for line in ("DynamicUser=yes", "NoNewPrivileges=yes", "CapabilityBoundingSet=",
                     "ProtectSystem=strict"):
            self.assertIn(line + "\n", unit)
        for file in "lurkwell.rules.yml", "lurkwell-dashboard.json", "scrape.yml":
            self.assertTrue((self.prefix / "share/lurkwell-export" / file).is_file())


if __name__ == "__main__":
    unittest.main(verbosity=2)
