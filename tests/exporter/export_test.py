#!/usr/bin/env python3
"""lurkwell-export as a program: what it says, to whom, and what others cannot do to it.

export_test.py EXPORTER PROGRAM SOURCE [unittest arguments]
"""
import base64
import os
import pathlib
import re
import shutil
import signal
import socket
import ssl
import subprocess
import sys
import tempfile
import time
import unittest
import urllib.error
import urllib.request

# Packages of the system are the system's Python's, which this one need not be.
sys.path.append("/usr/lib/python3/dist-packages")
from prometheus_client.openmetrics import parser  # pylint: disable=wrong-import-position

from exporter_support import Exporter, make_certificate, needed, soon, words

EXPORTER, PROGRAM, SOURCE = (sys.argv.pop(1) for _ in range(3))

# A child that does what it is told, under a name of its own.
CHILD = r"""
import sys, time
open("/proc/self/comm", "w").write(sys.argv[1])
print("ready", flush=True)
for line in sys.stdin:
    end = time.process_time() + float(line)
    while time.process_time() < end: pass
    print("done", flush=True)
"""


def resident(pid):
    status = pathlib.Path(f"/proc/{pid}/status").read_text(encoding="utf-8")
    return int(re.search(r"VmRSS:\s+(\d+)", status).group(1)) * 1024


class Folder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="lurkwell-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def file(self, name, text, mode=0o600):
        path = self.folder / name
        path.write_text(text, encoding="utf-8")
        path.chmod(mode)
        return str(path)

    def password_file(self, user="prometheus", password="swordfish"):
        done = words(EXPORTER, "--make-password", user, input=password + "\n")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertNotIn(password, done.stdout)
        return self.file("passwords", done.stdout)


class BadInput(Folder):
    def refusal(self, status, *arguments):
        done = words(EXPORTER, *arguments, stdin=subprocess.DEVNULL)
        self.assertEqual(done.returncode, status, done.stderr)
        self.assertTrue(done.stderr.startswith("lurkwell-export: "), done.stderr)
        return done.stderr

    def test_options_and_files_that_make_no_sense(self):
        self.assertIn("'--exprot'", self.refusal(2, "--exprot"))
        self.assertIn("needs a value", self.refusal(2, "--config"))
        self.assertIn("one address", self.refusal(2, "127.0.0.1:0", "127.0.0.1:0"))
        self.assertIn("is no address", self.refusal(2, "example.org:1"))
        self.assertIn("No such file", self.refusal(2, "--config", "/nowhere"))
        config = self.file("config", "[groups]\nlimit = many\n")
        self.assertIn(f"{config}:2: ", self.refusal(2, "--config", config))
        self.assertIn("on standard input", self.refusal(2, "--make-password", "x"))
        # What is in the file counts, and the command line more.
        config = self.file("config", "[server]\naddress = 0.0.0.0:0\n")
        self.assertIn("--open", self.refusal(2, "--check", "--config", config))
        self.assertEqual(words(EXPORTER, "--check", "--config", config, "127.0.0.1:0").returncode,
                         0)

    def test_protection_that_does_not_protect(self):
        certificate, key = make_certificate(self.folder, "one")
        other = make_certificate(self.folder, "two")[1]
        passwords = self.password_file()

        def use(certificate, key, passwords):
            return ("--certificate", certificate, "--key", key, "--passwords", passwords,
                    "--check", "0.0.0.0:0")
        self.assertEqual(words(EXPORTER, *use(certificate, key, passwords)).returncode, 0)
        self.assertIn("do not belong together", self.refusal(2, *use(certificate, other, passwords)))
        self.assertIn("makes no sense", self.refusal(2, *use(passwords, key, passwords)))
        self.assertIn("No such file", self.refusal(2, *use("/nowhere", key, passwords)))
        self.assertIn("is not a file", self.refusal(2, *use("/dev/null", key, passwords)))
        os.mkfifo(self.folder / "pipe")
        self.assertIn("is not a file",
                      self.refusal(2, *use(str(self.folder / "pipe"), key, passwords)))
        weak = self.file("weak", "prometheus:swordfish\n")
        self.assertIn("line 1", self.refusal(2, *use(certificate, key, weak)))
        for path in key, passwords:
            os.chmod(path, 0o644)
            self.assertIn("is open to others", self.refusal(2, *use(certificate, key, passwords)))
            os.chmod(path, 0o640)
        self.assertEqual(words(EXPORTER, *use(certificate, key, passwords)).returncode, 0)
        if os.geteuid() == 0:
            os.chown(key, 61001, -1)
            self.assertIn("another user", self.refusal(2, *use(certificate, key, passwords)))

    def test_a_port_that_is_in_use(self):
        with socket.create_server(("127.0.0.1", 0)) as taken:
            said = self.refusal(1, f"127.0.0.1:{taken.getsockname()[1]}")
        self.assertIn("in use", said)

    def test_lurkwell_becomes_it(self):
        done = words(PROGRAM, "--export", "--version")
        self.assertRegex(done.stdout, r"^lurkwell-export \d")
        self.assertEqual(words(PROGRAM, "--export=1:2:3").returncode, 2)
        self.assertEqual(words(PROGRAM, "--print", "--export").returncode, 2)
        alone = shutil.copy(PROGRAM, self.folder)
        done = words(alone, "--export", env={"PATH": "/nowhere"})
        self.assertEqual(done.returncode, 1)
        self.assertIn("package of its own", done.stderr)

    def test_it_links_neither_the_toolkit_nor_the_engines_other_libraries(self):
        needs = re.findall(r"NEEDED.*\[(.*)\]", words(needed("readelf"), "-d", EXPORTER).stdout)
        self.assertIn("libmicrohttpd.so.12", needs)
        for library in needs:
            self.assertNotRegex(library, r"^lib(Qt|X|xcb|GL|plist|sqlite|zstd|pcre)", needs)
        # And the program does without what it needs.
        needs = words(needed("readelf"), "-d", PROGRAM).stdout
        self.assertNotRegex(needs, r"libmicrohttpd|libinih")


class Answers(Folder):
    def child(self, name, *arguments):
        script = self.file("child.py", CHILD)
        child = subprocess.Popen([sys.executable, script, name, *arguments], text=True,
                                 stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.addCleanup(lambda: (child.kill(), child.communicate()))
        self.assertEqual(child.stdout.readline(), "ready\n")
        return child

    @staticmethod
    def work(child, seconds):
        child.stdin.write(f"{seconds}\n")
        child.stdin.flush()
        assert child.stdout.readline() == "done\n"

    def test_what_is_told_is_what_is_documented(self):
        exporter = Exporter(self, EXPORTER)
        page = pathlib.Path(SOURCE, "docs/metrics.md").read_text(encoding="utf-8")
        documented = set(re.findall(r"`(lurkwell_[a-z0-9_]+)`", page))
        with exporter.get(Accept="text/plain") as answer:
            self.assertEqual(answer.headers["Content-Type"],
                             "text/plain; version=0.0.4; charset=utf-8")
            text = answer.read().decode()
        self.assertEqual(set(re.findall(r"^# TYPE (\S+) ", text, re.M)), documented)
        with exporter.get(Accept="application/openmetrics-text;version=1.0.0,*/*;q=0.1") as answer:
            self.assertEqual(answer.headers["Content-Type"],
                             "application/openmetrics-text; version=1.0.0; charset=utf-8")
            open_text = answer.read().decode()
        parsed = {family.name for family in parser.text_string_to_metric_families(open_text)}
        self.assertEqual(parsed, {re.sub("_(total|info)$", "", name) for name in documented})
        # Nobody may guess at methods and paths, and all of them are answered.
        with exporter.get(method="HEAD") as answer:
            self.assertEqual(answer.read(), b"")
        for path, method, status in ("/metric", "GET", 404), ("/metrics", "POST", 405):
            with self.assertRaises(urllib.error.HTTPError) as refused:
                exporter.get(path, method)
            self.assertEqual(refused.exception.code, status)
            refused.exception.close()
        with exporter.get("/") as page:
            self.assertIn(b"/metrics", page.read())

    def test_groups_are_told_as_they_are(self):
        name = f"lkx-{os.getpid()}"
        child = self.child(name, "--password=swordfish")
        exporter = Exporter(self, EXPORTER)

        def of(samples, what, **labels):
            return samples.of(f"lurkwell_group_{what}", kind="program", group=name, **labels)

        def busy(samples):
            return sum(of(samples, "cpu_seconds_total", mode=mode) for mode in ("user", "system"))

        def whole():
            # What takes long to read may come with a later scrape.
            samples = exporter.scrape()
            is_whole = of(samples, "open_files") and of(samples, "memory_proportional_bytes")
            return samples if is_whole else None
        before = soon(whole)
        self.assertEqual(of(before, "processes"), 1)
        self.assertEqual(of(before, "threads"), 1)
        self.assertEqual(of(before, "state_processes", state="sleeping"), 1)
        self.assertAlmostEqual(of(before, "oldest_start_timestamp_seconds"), time.time(), delta=60)
        self.assertGreaterEqual(of(before, "open_files"), 3)
        self.assertLess(of(before, "memory_proportional_bytes"),
                        of(before, "memory_resident_bytes"))
        self.work(child, 0.5)
        time.sleep(0.6)
        after = exporter.scrape()
        self.assertGreaterEqual(busy(after) - busy(before), 0.4)
        # It ends, and what it has used is still there.
        child.kill()
        child.wait()
        time.sleep(0.6)
        gone = exporter.scrape()
        self.assertEqual(of(gone, "processes"), 0)
        self.assertEqual(of(gone, "memory_resident_bytes"), 0)
        self.assertEqual(busy(gone), busy(after))
        self.assertIsNone(of(gone, "oldest_start_timestamp_seconds"))
        for samples in before, after, gone:
            self.assertNotIn("swordfish", samples.text)
        # And all counters of the machine and of groups have only grown.
        for (metric, labels), value in before.values.items():
            if metric.endswith("_total"):
                self.assertGreaterEqual(gone.values.get((metric, labels), value), value, labels)

    def test_what_the_file_leaves_out_is_left_out(self):
        config = self.file("config", "[groups]\nkinds = program\nprogram = python*, lkx-*\n"
                                     "[figures]\nproportional_memory = no\n")
        self.child(f"lkx-{os.getpid()}")
        samples = Exporter(self, EXPORTER, "--config", config).scrape()
        groups = {dict(labels)["group"] for name, labels in samples.values
                  if name == "lurkwell_group_processes"}
        self.assertIn("other", groups)
        self.assertIn(f"lkx-{os.getpid()}", groups)
        self.assertTrue(all(re.match(r"python|lkx-|other$", group) for group in groups), groups)
        self.assertNotIn('kind="user"', samples.text)
        self.assertNotIn("proportional_bytes{", samples.text)


class Hostility(Folder):
    def test_slow_and_greedy_clients_hold_nobody_up(self):
        exporter = Exporter(self, EXPORTER)
        exporter.scrape()
        before = resident(exporter.process.pid)
        began = time.monotonic()
        slow = []
        for number in range(200):
            try:
                client = socket.create_connection(("127.0.0.1", exporter.port), timeout=5)
            except OSError:
                continue
            self.addCleanup(client.close)
            slow.append(client)
            try:
                # Some say nothing, some never end, some ask and do not take the answer.
                client.sendall((b"", b"GET /metrics HTTP/1.1\r\nX: y",
                                b"GET /metrics HTTP/1.1\r\nHost: x\r\n\r\n" * 4)[number % 3])
            except OSError:
                pass
        self.assertGreater(exporter.scrape().of("lurkwell_machine_processes"), 1)
        self.assertLess(len(os.listdir(f"/proc/{exporter.process.pid}/fd")) -
                        int(exporter.scrape().of("lurkwell_machine_processes")), 100)
        greedy = socket.create_connection(("127.0.0.1", exporter.port), timeout=20)
        self.addCleanup(greedy.close)
        try:
            greedy.sendall(b"GET /metrics HTTP/1.1\r\n" + b"X-Long: " + b"x" * 4_000_000)
            answer = greedy.recv(100)
        except OSError:
            answer = b""
        self.assertRegex(answer, rb"^(HTTP/1.1 4\d\d |$)")
        self.assertLess(resident(exporter.process.pid) - before, 24 << 20)
        # Whoever says nothing is let go of.
        slow[-1].settimeout(25)
        while slow[-1].recv(65536):
            pass
        self.assertLess(time.monotonic() - began, 60)
        exporter.scrape()

    def test_many_scrapes_at_once_are_one_reading(self):
        exporter = Exporter(self, EXPORTER)
        texts = {exporter.scrape().of("lurkwell_scrape_seconds") for _ in range(40)}
        self.assertLess(len(texts), 20)

    def test_passwords_are_asked_for_over_tls(self):
        certificate, key = make_certificate(self.folder, "one")
        options = ("--certificate", certificate, "--key", key, "--passwords", self.password_file())
        exporter = Exporter(self, EXPORTER, *options)
        self.assertTrue(exporter.url.startswith("https://"))

        def status(password=None):
            headers = {}
            if password is not None:
                both = base64.b64encode(f"prometheus:{password}".encode()).decode()
                headers["Authorization"] = "Basic " + both
            try:
                with exporter.get(trust=certificate, **headers) as answer:
                    return answer.status
            except urllib.error.HTTPError as refused:
                refused.close()
                return refused.code
        self.assertEqual(status(), 401)
        self.assertEqual(status("swordfish"), 200)
        self.assertEqual([status("wrong") for _ in range(8)][-1], 429)
        self.assertEqual(status("swordfish"), 200)
        with self.assertRaises(urllib.error.URLError):
            exporter.get(trust=None)
        with self.assertRaises(OSError):
            urllib.request.urlopen(exporter.url.replace("https", "http"), timeout=10)

        # Another certificate is taken without an end, one that makes no sense is not.
        def presented():
            return ssl.get_server_certificate(("127.0.0.1", exporter.port), timeout=10)
        first = presented()
        pathlib.Path(certificate).write_text("nonsense", encoding="utf-8")
        exporter.process.send_signal(signal.SIGHUP)
        soon(lambda: "going on with what there was" in exporter.log())
        self.assertEqual(presented(), first)
        make_certificate(self.folder, "one")
        exporter.process.send_signal(signal.SIGHUP)
        soon(lambda: presented() != first)
        self.assertEqual(status("swordfish"), 200)


class WithoutRights(Folder):
    """Needs root: becomes nobody, as the service's user is."""

    def test_what_may_not_be_read_is_absent(self):
        copy = shutil.copy(EXPORTER, self.folder)
        os.chmod(self.folder, 0o755)
        exporter = Exporter(self, copy, prefix=(
            needed("setpriv"), "--reuid", "65534", "--regid", "65534", "--clear-groups",
            "--no-new-privs", "--inh-caps=-all", "--bounding-set=-all"))
        samples = exporter.scrape()

        def of_user(user, what, **labels):
            return samples.of(f"lurkwell_group_{what}", kind="user", group=user, **labels)
        self.assertGreater(of_user("root", "memory_resident_bytes"), 0)
        self.assertIsNotNone(of_user("root", "cpu_seconds_total", mode="user"))
        for what in ("memory_proportional_bytes", "disk_read_bytes_total",
                     "disk_written_bytes_total"):
            self.assertIsNone(of_user("root", what), what)
            self.assertIsNotNone(of_user("nobody", what), what)


if __name__ == "__main__":
    unittest.main(verbosity=2)
