"""A home, an X server with a window manager, and the program in it, for tests of the whole program.

The program's path is the first argument of each test that imports this.
"""
import ctypes
import os
import pathlib
import plistlib
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest

BINARY = sys.argv.pop(1)
LEAKS_OF_LIBRARIES = "print_suppressions=0:suppressions=" + str(
    pathlib.Path(__file__).resolve().parent.parent / "support/leaks-of-libraries.txt")

# Helpers outlive those who start them, and become children of this process: so others on the machine
# are told apart.
PR_SET_CHILD_SUBREAPER = 36
ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)

# "Logging lkwvictim pid:12" and the like; a history's title is the pid.
GEOMETRY = re.compile(r'"(?P<title>[^"]*)": \("lurkwell" "lurkwell"\)\s+(?P<width>\d+)x(?P<height>\d+)'
                      r'\+-?\d+\+-?\d+\s+\+(?P<x>-?\d+)\+(?P<y>-?\d+)')


def png_size(path):
    """Width and height from the file's own head."""
    head = pathlib.Path(path).read_bytes()[:24]
    assert head[:8] == b"\x89PNG\r\n\x1a\n", head
    return struct.unpack(">II", head[16:24])


def helpers():
    """The helpers of this test's programs; those that have ended are collected."""
    found = set()
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            name, _, rest = stat.read_text().partition("(")[2].rpartition(")")
        except OSError:
            continue
        pid, (state, parent) = int(stat.parent.name), rest.split()[:2]
        if int(parent) == os.getpid() and name.startswith("lkw_helper_daem"):
            if state == "Z":
                os.waitpid(pid, os.WNOHANG)
            else:
                found.add(pid)
    return found


class Desktop(unittest.TestCase):
    def setUp(self):
        self.home = tempfile.mkdtemp(prefix="lurkwell-test-")
        self.addCleanup(shutil.rmtree, self.home, True)
        self.run_folder = pathlib.Path(self.home, "run")
        self.run_folder.mkdir(mode=0o700)
        self.environment = {
            key: value for key, value in os.environ.items()
            if key not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR",
                           "DBUS_SESSION_BUS_ADDRESS", "LANGUAGE")}
        self.environment.update(
            HOME=self.home, XDG_CONFIG_HOME=self.home + "/config",
            XDG_DATA_HOME=self.home + "/data", XDG_RUNTIME_DIR=str(self.run_folder),
            TMPDIR=str(self.run_folder), LC_ALL="C.UTF-8", LSAN_OPTIONS=LEAKS_OF_LIBRARIES)

    def open_display(self, manager=("openbox",)):
        reader, writer = os.pipe()
        # A server that begins anew when the last program goes would send a starting manager away.
        server = subprocess.Popen(
            ["Xvfb", "-noreset", "-displayfd", str(writer), "-screen", "0", "1000x800x24"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        with os.fdopen(reader) as numbers:
            self.environment["DISPLAY"] = ":" + numbers.readline().strip()
        # What a manager says would fill a pipe that is not read.
        process = subprocess.Popen(list(manager), env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)
        self.wait_for(lambda: "_NET_SUPPORTING_WM_CHECK" in self.output("xprop", "-root"))
        return server

    def open_bus(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus_in(self.home, self.run_folder)

    def bus_in(self, folder, socket_folder, rights=()):
        """The address of a session bus that starts nothing: what it starts would outlive it."""
        settings = pathlib.Path(folder, "bus.conf")
        settings.write_text(f"""<busconfig><type>session</type><listen>unix:dir={socket_folder}</listen>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>""")
        bus = self.start([*rights, "dbus-daemon", f"--config-file={settings}", "--nofork",
                          "--print-address"])
        return bus.stdout.readline().strip()

    def start(self, command):
        process = subprocess.Popen(command, env=self.environment, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.stderr.close)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def output(self, *command):
        return subprocess.run(command, env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, check=False).stdout

    def wait_for(self, condition, seconds=20.0, tell=lambda: ""):
        end = time.monotonic() + seconds
        while not condition():
            self.assertLess(time.monotonic(), end, f"it did not come about {tell()}")
            time.sleep(0.05)

    def windows(self):
        return self.output("xwininfo", "-root", "-tree")

    def active_window(self):
        return self.output("xdotool", "getactivewindow", "getwindowname").strip()

    def type_keys(self, *words):
        """Keys into the main window, once it has the keyboard: the about panel may have had it first."""
        def activate():
            self.output("xdotool", "search", "--name", "^Processes$", "windowactivate")
            time.sleep(0.2)
            return self.active_window() == "Processes"
        self.wait_for(activate)
        self.output("xdotool", *words)

    def preferences(self):
        file = pathlib.Path(self.home, "config", "com.velquarin.lurkwell.plist")
        return plistlib.loads(file.read_bytes())

    def write_preferences(self, values):
        file = pathlib.Path(self.home, "config", "com.velquarin.lurkwell.plist")
        file.parent.mkdir(exist_ok=True)
        file.write_bytes(plistlib.dumps(values))

    def check_nothing_is_left(self):
        self.wait_for(lambda: not helpers())
        self.assertEqual([p.name for p in self.run_folder.rglob("*") if p.is_fifo()], [])


class FollowedProgram(Desktop):
    """A program to follow, and the windows that follow it."""
    def setUp(self):
        super().setUp()
        self.victim_program = self.home + "/lkwvictim"
        shutil.copy(shutil.which("sleep"), self.victim_program)

    def start_victim(self, command=None):
        victim = subprocess.Popen(command or [self.victim_program, "1000"])
        self.addCleanup(victim.wait)
        self.addCleanup(victim.kill)
        return victim

    def end_victim(self, victim):
        victim.kill()
        victim.wait()

    def start_program(self):
        program = self.start([BINARY, "--unprivileged"])
        self.wait_for(lambda: '"Processes"' in self.windows())
        return program

    def end_program(self, program):
        program.send_signal(signal.SIGTERM)
        output, errors = program.communicate(timeout=20)
        self.assertEqual(program.returncode, 0, errors)
        self.assertEqual(output, "", "that is for data")
        return errors

    def places(self, pid):
        """Where the history and the log of a process are, as far as there are any."""
        found = {}
        for window in GEOMETRY.finditer(self.windows()):
            for kind, title in (("history", str(pid)), ("log", f"Logging lkwvictim pid:{pid}")):
                if (window["title"] + " ").startswith(title + " "):
                    found[kind] = int(window["x"]), int(window["y"])
        return found

    def open_both(self, pid):
        # What shows itself at the start takes the keys.
        self.wait_for(lambda: '"About Lurkwell"' not in self.windows())
        self.type_keys("key", "ctrl+g")
        self.wait_for(lambda: self.active_window() not in ("Processes", ""))
        self.output("xdotool", "key", "ctrl+a", "type", str(pid))
        self.output("xdotool", "key", "Return")
        self.wait_for(lambda: self.active_window() == "Processes")
        self.type_keys("key", "ctrl+n")
        self.wait_for(lambda: "history" in self.places(pid))
        self.type_keys("key", "ctrl+l")
        self.wait_for(lambda: len(self.places(pid)) == 2)

    def move(self, title, x, y):
        self.output("xdotool", "search", "--name", title, "windowmove", str(x), str(y))
