#!/usr/bin/env python3
"""The whole program on the real machine, as a user in a terminal runs it.

program_test.py BINARY [unittest arguments]
"""
import csv
import datetime
import json
import os
import pathlib
import re
import resource
import shutil
import signal
import socket
import subprocess
import tempfile
import time
import unittest

import jsonschema

from desktop_support import BINARY, Desktop, helpers

PAGE = os.sysconf("SC_PAGE_SIZE")
SOURCES = pathlib.Path(__file__).resolve().parents[2]
HEADING = "  PID:                   NAME    CPU-TIME  PPID   RSZ/KiB     VSZ/KiB"
# ps knows no idle task, and not yet what was born after it; nor does one run know what another one
# still saw.
LINE = re.compile(r"^ *(-?\d+): +(.*?) +(\d+\.\d{6}) +(-?\d+)(?: +(\d+))?(?: +(\d+))? *$")


def process_lines(text):
    """The lines for processes, matched; None for one that is neither that nor the heading."""
    return [LINE.match(line) for line in text.splitlines() if line != HEADING]


def complaints(errors):
    """Without what is said of other processes of the machine."""
    return [line for line in errors.splitlines() if "surreptitiously" not in line]


class Program(Desktop):
    def start(self, *arguments, **options):
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, "text": True,
                   "env": self.environment, **options}
        process = subprocess.Popen([BINARY, *arguments], **options)
        self.addCleanup(process.kill)
        return process

    def run_to_end(self, *arguments, **options):
        process = self.start(*arguments, **options)
        out, errors = process.communicate(timeout=60)
        return process.returncode, out, errors

    def child(self, *command, **options):
        child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stdin=subprocess.PIPE,
                                 start_new_session=True, **options)
        self.addCleanup(child.wait)
        self.addCleanup(os.killpg, child.pid, signal.SIGKILL)
        self.addCleanup(child.stdin.close)
        return child


class CommandLine(Program):
    def test_help_and_version(self):
        status, out, _ = self.run_to_end("--help")
        self.assertEqual(status, 0)
        for option in "--print", "--count", "--columns", "--unprivileged", "--version":
            self.assertIn(option, out)
        status, out, _ = self.run_to_end("--version")
        self.assertEqual(status, 0)
        self.assertRegex(out, r"^lurkwell \d+\.\d+\.\d+\n$")

    def test_what_cannot_be_written_is_a_failure(self):
        for arguments in ["--help"], ["--version"], ["--print"]:
            with self.subTest(arguments), open("/dev/full", "w") as full:
                status, _, errors = self.run_to_end(*arguments, stdout=full)
                self.assertEqual(status, 1)
                self.assertIn("cannot write: No space left on device", errors)

    def test_a_display_that_lets_nobody_in_leads_to_the_terminal(self):
        for variables in ({"QT_QPA_PLATFORM": "xcb"}, {"WAYLAND_DISPLAY": "wayland-77"},
                          {"QT_QPA_PLATFORM": "nonsense", "DISPLAY": ":4242"},
                          {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "wayland-77"}):
            with self.subTest(variables):
                process = self.start(env={**self.environment, **variables})
                self.assertEqual(process.stdout.readline(), HEADING + "\n")
                self.assertRegex(process.stdout.readline(), LINE)
                process.terminate()
                _, errors = process.communicate(timeout=10)
                self.assertEqual(process.returncode, 0)
                self.assertIn("lurkwell: no display; printing", errors)
                self.assertNotIn("Reinstalling", errors)

    def test_nonsense_is_refused_with_a_reason(self):
        for arguments, reason in (
                (["--nonsense"], "unknown option '--nonsense'"),
                (["stray"], "unknown option 'stray'"),
                (["--count"], "--count needs a value"),
                (["--count", "0"], "not '0'"),
                (["--count=2x"], "not '2x'"),
                (["--print=yes"], "--print takes no value"),
                (["--columns", ","], "at least one key"),
                (["--print", "--screenshot", "x.png"], "--print and --screenshot exclude"),
                (["--toggle-overlay", "--print"], "--print and --toggle-overlay exclude"),
                (["--window", "main"], "--window needs --screenshot"),
                (["--print", "--columns", "pid_rzs"], "there is pid_rsz"),
                (["--print", "--columns", "RSZ,%CPUU"], "there is %CPU"),
                (["--print", "--filter", "mem>5x"], "'5x' is no number"),
                (["--print", "--filter", "usr:root"], "there is user"),
                (["--print", "--sort", "pid_rzs"], "there is pid_rsz"),
                (["--print", "--format", "xml"], "--format is text, json, jsonl or csv"),
                (["--print", "--interval", "0"], "--interval needs seconds"),
                (["--print", "--limit", "0"], "--limit needs a number"),
                (["--record", "x", "--print"], "--print and --record exclude each other"),
                (["--record", "x", "--tree"], "--tree needs --print"),
                (["--record", "x", "--limit-size", "3Q"], "--limit-size needs a size"),
                (["--keep", "3"], "--keep needs --record"),
                (["--print", "--at", "03:12"], "--at needs --replay"),
                (["--credentials", "x"], "--credentials needs --fleet"),
                (["--fleet", "x", "--print"], "--fleet and --print exclude each other"),
                (["--print", "--columns", "zzzzzzzzzzzz"],
                 "no property or ps column 'zzzzzzzzzzzz'\n")):
            with self.subTest(arguments):
                status, out, errors = self.run_to_end(*arguments)
                self.assertEqual((status, out), (2, ""))
                self.assertIn(reason, errors)

    def test_what_is_for_printing_is_refused_where_there_are_windows(self):
        self.environment["QT_QPA_PLATFORM"] = "offscreen"
        for option in "--count=1", "--columns=pid_rsz", "--tree", "--filter=ssh":
            status, out, errors = self.run_to_end(option)
            self.assertEqual((status, out), (2, ""))
            self.assertIn(option.split("=")[0] + " needs --print", errors)


class Printing(Program):
    def test_every_update_has_a_line_for_each_process(self):
        sleeper = self.child("sleep", "1000")
        status, out, errors = self.run_to_end("--print", "--count", "2")
        self.assertEqual(status, 0, errors)
        lines = process_lines(out)
        self.assertTrue(all(lines), out)
        self.assertEqual(out.splitlines().count(HEADING), 2)
        mine = [line for line in lines if int(line[1]) == sleeper.pid]
        self.assertEqual([(line[2], line[4]) for line in mine], [("sleep", str(os.getpid()))] * 2)
        statm = pathlib.Path(f"/proc/{sleeper.pid}/statm").read_text().split()
        self.assertEqual({(int(line[5]), int(line[6])) for line in mine},
                         {(int(statm[1]) * PAGE // 1024, int(statm[0]) * PAGE // 1024)})
        idle = [line for line in lines if line[1] == "0"]
        self.assertEqual([line[2] for line in idle], ["swapper"] * 2)
        self.assertGreater(float(idle[1][3]), 0)

    def test_the_helper_is_started_only_where_figures_come_from_it(self):
        for figures_from_helper in 0, 1:
            self.write_preferences({"FIGURES_FROM_HELPER": figures_from_helper})
            process = self.start("--print")
            process.stdout.readline()
            # The first update does not wait for it.
            end = time.monotonic() + 20
            while len(helpers()) != figures_from_helper and time.monotonic() < end:
                time.sleep(0.05)
            time.sleep(0.2)
            self.assertEqual(len(helpers()), figures_from_helper)
            process.terminate()
            _, errors = process.communicate(timeout=10)
            if not figures_from_helper:
                self.assertEqual(complaints(errors), [])

    def test_it_ends_in_order_by_signal_and_leaves_nothing(self):
        for number in signal.SIGTERM, signal.SIGINT, signal.SIGHUP:
            with self.subTest(number):
                process = self.start("--print")
                process.stdout.readline()
                process.send_signal(number)
                process.communicate(timeout=10)
                self.assertEqual(process.returncode, 0)
                self.assertEqual(list(self.run_folder.rglob("*")), [])
                self.check_nothing_is_left()

    def test_a_reader_that_has_seen_enough_is_no_failure(self):
        process = self.start("--print")
        process.stdout.readline()
        process.stdout.close()
        self.assertEqual(process.wait(timeout=10), 0)
        process.stderr.close()

    def test_columns_stand_below_one_another_whatever_the_names(self):
        program = self.home + "/schl\u00e4fer"
        shutil.copy(shutil.which("sleep"), program)
        self.child(program, "1000")
        _, out, _ = self.run_to_end("--print", "--count", "1", "--columns",
                                    "meta_name,pid_parent_pid")
        self.assertIn(" schl\u00e4fer ", out)
        _, kinds, _ = self.run_to_end("--print", "--count=1", "--columns=meta_kind",
                                      "--filter=schl\u00e4fer")
        self.assertIn(": Process", kinds)
        self.assertEqual(len({len(line) for line in out.splitlines()}), 1, out)

    def hostile_program(self):
        """A child whose name a terminal, a spreadsheet and a careless writer would trip over."""
        program = self.home + '/=1+"2,\u202e\x1b[m'
        shutil.copy(shutil.which("sleep"), program)
        return self.child(program, "1000")

    def test_forms_for_other_programs(self):
        child = self.hostile_program()
        shown = r'=1+"2,\342\200\256\033[m'
        schema = json.loads(
            (SOURCES / "resources/schema/processes.schema.json").read_text())
        jsonschema.Draft202012Validator.check_schema(schema)
        validate = jsonschema.Draft202012Validator(schema).validate
        plan = ["--print", "--count=2", "--interval=0.2", f"--filter=pid:{child.pid}",
                "--columns=name,mem,meta_active_time,started,nice,carbonpsn_name,pid_messages_sent"]

        status, out, errors = self.run_to_end(*plan, "--format=jsonl")
        self.assertEqual((status, complaints(errors)), (0, []))
        head, *lines = [json.loads(line) for line in out.splitlines()]
        for document in head, *lines:
            validate(document)
        self.assertEqual([column["type"] for column in head["columns"]],
                         ["text", "bytes", "seconds", "date", "integer", "text", "integer"])
        self.assertEqual([line["pid"] for line in lines], [child.pid] * 2)
        values = lines[1]["values"]
        self.assertEqual(values["meta_name"], shown)
        stat = pathlib.Path(f"/proc/{child.pid}/stat").read_text().rpartition(")")[2].split()
        self.assertEqual(values["pid_rsz"], int(stat[21]) * PAGE)
        started = datetime.datetime.fromisoformat(values["pid_p_starttime"].replace("Z", "+00:00"))
        self.assertLess(abs(started.timestamp() - time.time()), 60)
        self.assertIsNone(values["carbonpsn_name"])
        self.assertEqual(lines[1]["missing"], {"pid_messages_sent": "not counted"})

        _, out, _ = self.run_to_end(*plan, "--format=json", "--count=1")
        validate(json.loads(out))
        self.assertEqual(json.loads(out)["processes"][0]["values"].keys(), values.keys())

        _, out, _ = self.run_to_end(*plan, "--format=csv")
        heading, *rows = csv.reader(out.splitlines(keepends=True))
        self.assertEqual(heading[:3], ["time", "pid", "meta_name"])
        self.assertEqual([row[1:3] for row in rows], [[str(child.pid), "'" + shown]] * 2)
        self.assertEqual([row[-2:] for row in rows], [["", "not counted"]] * 2)

    def test_filters_order_limits_and_trees(self):
        shells = [self.child("sh", "-c", "sleep 1000 & sleep 1000 & read line") for _ in range(2)]
        own = " | ".join(f"parent:{pid}" for pid in [os.getpid(), *(s.pid for s in shells)])
        deadline = time.monotonic() + 20
        while True:
            _, out, errors = self.run_to_end("--print", "--count=1", "--format=csv", "--tree",
                                             "--sort=-pid", "--columns=name,parent",
                                             f"--filter={own}")
            rows = [row for row in csv.DictReader(out.splitlines()) if row["meta_name"] in
                    ("sh", "sleep")]
            if len(rows) == 6 or time.monotonic() > deadline:
                break
        later, earlier = sorted((s.pid for s in shells), reverse=True)
        self.assertEqual([(row["depth"], row["pid_parent_pid"]) for row in rows],
                         [("0", str(os.getpid())), ("1", str(later)), ("1", str(later)),
                          ("0", str(os.getpid())), ("1", str(earlier)), ("1", str(earlier))],
                         errors)
        for first in 1, 4:
            self.assertGreater(int(rows[first]["pid"]), int(rows[first + 1]["pid"]))
        _, out, _ = self.run_to_end("--print", "--count=1", "--sort=-mem", "--limit=3",
                                    "--columns=mem", "--format=csv", "--filter=mem>0")
        sizes = [int(row["pid_rsz"]) for row in csv.DictReader(out.splitlines())]
        self.assertEqual((len(sizes), sizes), (3, sorted(sizes, reverse=True)))

    def test_finds_by_port_and_by_open_file(self):
        with socket.create_server(("127.0.0.1", 0)) as listener, \
                tempfile.NamedTemporaryFile(suffix=", held") as file:
            child = self.child("sh", "-c", "read line", pass_fds=[listener.fileno(), file.fileno()])
            for query in (f"port:{listener.getsockname()[1]}", f"listens:{listener.getsockname()[1]}",
                          f'file="{file.name}"'):
                status, out, errors = self.run_to_end(
                    "--print", "--count=1", "--format=csv", "--columns=name", "--filter", query)
                self.assertEqual(status, 0, errors)
                found = sorted(int(row["pid"]) for row in csv.DictReader(out.splitlines()))
                self.assertEqual(found, sorted([os.getpid(), child.pid]), query)

    def test_without_a_home_it_still_prints(self):
        for name in "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR":
            self.environment.pop(name)
        status, out, errors = self.run_to_end("--print", "--count", "1", "--unprivileged")
        self.assertEqual(status, 0, errors)
        self.assertGreater(len(out.splitlines()), 1)


class Recording(Program):
    def test_what_has_been_is_printed_as_what_is(self):
        """A child that lives and dies between two moments of a recording."""
        file = self.home + "/a recording%"
        recorder = self.start("--record", file, "--interval=0.2")
        time.sleep(1)
        program = self.home + "/shortlived"
        shutil.copy(shutil.which("sleep"), program)
        child = subprocess.Popen([program, "1000", "8.7123456"])
        self.addCleanup(child.kill)
        own = f"--filter=pid:{child.pid} name:shortlived"
        self.wait_for(lambda: "shortlived" in self.printed(file, own)[1])
        time.sleep(1.2)
        then = datetime.datetime.now().isoformat(timespec="seconds")
        time.sleep(1.5)
        # One that looks on while it is recorded, as it was.
        status, out, errors = self.printed(file, f"--at={then}", own, "--columns=name,parent,command",
                                           "--format=csv")
        self.assertEqual(status, 0, errors)
        self.assertRegex(errors, r"^lurkwell: as of \d{4}-\d\d-\d\d \d\d:\d\d:\d\d\n$")
        (row,) = csv.DictReader(out.splitlines())
        self.assertEqual([row["pid"], row["pid_parent_pid"], row["pid_command_line"]],
                         [str(child.pid), str(os.getpid()), program])
        child.kill()
        child.wait()
        second = self.run_to_end("--record", file)
        self.assertEqual(second[:2], (1, ""))
        self.assertIn("is being recorded to already", second[2])
        time.sleep(1)
        recorder.send_signal(signal.SIGTERM)
        _, errors = recorder.communicate(timeout=20)
        self.assertEqual(recorder.returncode, 0)
        self.assertRegex(errors, r"^lurkwell: \d+ beats recorded, 0 lost; [1-9]\d* processes began, ")
        self.assertEqual(os.stat(file).st_mode & 0o777, 0o600)
        self.assertFalse(os.path.exists(file + "-wal"))
        self.assertNotIn(b"8.7123456", pathlib.Path(file).read_bytes())

        self.assertNotIn("shortlived", self.printed(file, own)[1])
        self.assertRegex(self.printed(file, f"--at={then}", "--tree")[1],
                         rf"\n +{child.pid}: +shortlived ")
        # Some beats, with rates from the first one on.
        _, out, _ = self.printed(file, f"--at={then}", "--count=3", "--filter=pid:1",
                                 "--columns=cpu", "--format=csv")
        rows = list(csv.DictReader(out.splitlines()))
        self.assertEqual(len({row["time"] for row in rows}), 3)
        self.assertEqual([row["pid_cpu_share"].replace(".", "").isdigit() for row in rows],
                         [True] * 3)

        for arguments, status, reason in (
                ([f"--replay={file}", "--at=2001-02-03"], 1, "nothing was recorded at 2001-02-03"),
                ([f"--replay={file}", "--at=soon"], 2, "--at: 'soon' is no time"),
                ([f"--replay={file}", "--columns=%CPU"], 2, "no property or ps column '%CPU'"),
                ([f"--replay={program}"], 1, "is no recording"),
                ([f"--replay={file}x"], 1, "No such file")):
            with self.subTest(arguments):
                result = self.run_to_end("--print", *arguments)
                self.assertEqual(result[:2], (status, ""))
                self.assertIn(reason, result[2])

    def printed(self, file, *arguments):
        return self.run_to_end("--print", "--replay", file, *arguments)


if __name__ == "__main__":
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    unittest.main()
