"""A visit to the program on a Wayland compositor without a screen, and without an X server.

Nobody may look at other programs' windows there; what the program and the compositor tell each
other is looked at instead.
"""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

from desktop_support import BINARY, Desktop

WAYLAND_BEHAVIOURS = {
    "starts": "it starts without an X server and shows its main window",
    "windows": "so do the machine's window, the animated view and the about panel",
    "toggle": "`--toggle-overlay` changes between the view's window and its overlay",
    "hot_key": "the hot key works, or a line says why not",
    "scale": "a scale of 2 is followed",
    "end": "it ends cleanly",
}

NOBODY = 65534

COMPOSITORS = {
    "weston": ["weston", "--backend=headless-backend.so", "--socket=SOCKET", "--no-config",
               "--width=1000", "--height=800", "--scale=SCALE"],
    "sway": ["sway", "-c", "CONFIGURATION"],
    "kwin_wayland": ["kwin_wayland", "--virtual", "--no-lockscreen", "--no-global-shortcuts",
                     "--socket", "SOCKET", "--width", "1000", "--height", "800", "--scale",
                     "SCALE"],
}


class WaylandVisit(Desktop):
    """`visit` fills in `held`, by behaviour: "yes" or "no"; and `reasons`. Pictures go to `folder`."""
    folder = None

    def runTest(self):  # so that one can be made without a test's name
        pass

    def setUp(self):
        super().setUp()
        self.held, self.reasons = {}, {}

    def look(self, behaviour, question):
        try:
            question()
            self.held[behaviour] = "yes"
        except AssertionError as why:
            self.held[behaviour], self.reasons[behaviour] = "no", str(why)[:2000]

    def visit(self, name):
        self.environment.update(
            LC_ALL="C.UTF-8", LIBGL_ALWAYS_SOFTWARE="1", XDG_SESSION_TYPE="wayland",
            WLR_BACKENDS="headless", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1",
            QT_QPA_PLATFORM="wayland", WAYLAND_DEBUG="1", KWIN_COMPOSE="Q")
        self.open_bus()
        self.write_preferences({
            "ABOUT_PANEL_AT_EVERY_START": 1, "QUIVA_CHECK_QUARTZ_EXTREME": 1,
            "QUIVA_CHECK_COMPOSITOR": 1, "DEFAULT_SHOW_MACHINE_WINDOW": 1,
            "DEFAULT_SHOW_PROCESS_LIST_WINDOW": 1, "DEFAULT_SHOW_PROCESS_QUIVA_WINDOW": 1})
        compositor = self.open_compositor(name, 1)
        program, said = self.start_and_read()
        self.look("starts", lambda: self.wait_for(lambda: self.is_shown(said, "Processes"), 20, said))
        self.look("windows", lambda: [
            self.wait_for(lambda: self.is_shown(said, title), 10, lambda: title)
            for title in ("Machine", "Animated View", "About Lurkwell")])
        self.keep_picture(name)
        self.look("toggle", lambda: self.check_toggle(said))
        self.look("hot_key", lambda: self.assertRegex(said(), r"lurkwell: no hot key"))
        self.look("end", lambda: self.check_end(program, said))
        compositor.terminate()
        compositor.wait()
        self.open_compositor(name, 2)
        self.environment.pop("QT_SCALE_FACTOR", None)
        program, said = self.start_and_read()
        self.look("scale", lambda: self.wait_for(
            lambda: re.search(r"set_buffer_scale\(2\)", said()), 20, lambda: str(set(re.findall("scale.*", said())))))
        program.send_signal(signal.SIGTERM)
        program.wait(20)

    def open_compositor(self, name, scale):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="lurkwell-test-"))
        self.addCleanup(shutil.rmtree, folder, True)
        configuration = folder / "sway"
        configuration.write_text("output * resolution 1000x800\nxwayland disable\n")
        words = [word.replace("SOCKET", f"wayland-{7 + scale}").replace("SCALE", str(scale))
                 .replace("CONFIGURATION", str(configuration)) for word in COMPOSITORS[name]]
        environment = {key: value for key, value in self.environment.items()
                       if key not in ("QT_QPA_PLATFORM", "WAYLAND_DEBUG", "WAYLAND_DISPLAY")}
        environment["XDG_RUNTIME_DIR"] = environment["HOME"] = str(folder)
        # One that has rights of its own may not be started in a container; a copy has none.
        words[0] = shutil.copy(shutil.which(words[0]), folder)
        if os.geteuid() == 0:
            # Some refuse to run as root. An absolute path leads the program to others' sockets.
            for path in (folder, *folder.iterdir()):
                os.chown(path, NOBODY, NOBODY)
            words = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *words]
        log = open(f"{self.home}/compositor-{scale}", "wb")
        self.addCleanup(log.close)
        process = subprocess.Popen(words, env=environment, stdout=log, stderr=log)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)

        def sockets():
            return [path for path in folder.glob("wayland-*") if path.is_socket()]
        self.wait_for(sockets, tell=lambda: pathlib.Path(log.name).read_text()[-1500:])
        self.environment["WAYLAND_DISPLAY"] = str(sockets()[0])
        time.sleep(1)
        for control in folder.glob("sway-ipc.*.sock"):
            self.output("swaymsg", "--socket", str(control), f"output * scale {scale}")
        return process

    def start_and_read(self):
        file = pathlib.Path(self.home, f"said-{time.monotonic_ns()}")
        with open(file, "wb") as output:
            program = subprocess.Popen([BINARY, "--unprivileged"], env=self.environment,
                                       stdout=output, stderr=output)
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        return program, lambda: file.read_text(errors="replace")

    @staticmethod
    def is_shown(said, title):
        """Whether the compositor has told a window with that title which screen it is on."""
        text = said()
        for toplevel in re.findall(r'xdg_toplevel@(\d+)\.set_title\("' + title, text):
            role = re.search(r"xdg_surface@(\d+)\.get_toplevel\(new id xdg_toplevel@" + toplevel, text)
            surface = role and re.search(
                r"get_xdg_surface\(new id xdg_surface@" + role[1] + r", wl_surface@(\d+)", text)
            if surface and re.search(r"wl_surface@" + surface[1] + r"\.enter\(", text):
                return True
        return False

    def check_toggle(self, said):
        quiet = {key: value for key, value in self.environment.items() if key != "WAYLAND_DEBUG"}
        def count():
            return said().count('.set_title("Animated View')
        before, end = count(), time.monotonic() + 20
        while count() == before:
            self.assertLess(time.monotonic(), end, "no other window comes")
            done = subprocess.run([BINARY, "--toggle-overlay"], env=quiet, capture_output=True,
                                  text=True, check=False, timeout=20)
            self.assertEqual(done.returncode, 0, done.stderr)
            time.sleep(3)

    def check_end(self, program, said):
        program.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait(20), 0, said()[-1500:])

    def keep_picture(self, name):
        if self.folder is None or name != "sway":
            return
        os.makedirs(self.folder, exist_ok=True)
        self.output("grim", str(self.folder / "windows.png"))
