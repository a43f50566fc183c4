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

from desktop_support import BINARY, FollowedProgram
from wayland_pointer import LEFT, MANAGER, RIGHT, Pointer

WAYLAND_BEHAVIOURS = {
    "starts": "it starts without an X server and shows its main window",
    "windows": "so do histories, logs, the machine's window, the animated view and the about panel",
    "above": "histories lie above the windows of other programs",
    "drag": "they are dragged to another place, and have their menu",
    "places": "and come back there; of all others the size comes back, and no place is made up",
    "toggle": "`--toggle-overlay` changes between the view's window and its overlay",
    "overlay": "the overlay lies above everything and lets clicks through, or fills the screen",
    "front": "a second start comes to the front with the desktop's consent",
    "hot_key": "the hot key works, or a line says why not",
    "scale": "a scale of 2 is followed",
    "end": "it ends cleanly",
}

NOBODY = 65534
LAYERS = "zwlr_layer_shell_v1"
# In a program that was built without what puts windows there.
NOT_BUILT_IN = "not built in"
PLACE = (240, 170)
# Beside a history.
TITLE_BAR = 13
PLUGIN = (pathlib.Path(BINARY).resolve().parent.parent /
          "lib/lurkwell/Contents/PlugIns/lurkwell_layers.so")


class DoesNotApply(Exception):
    """This compositor, or this build, has nothing of the kind; the argument is the table's word."""


COMPOSITORS = {
    "weston": ["weston", "--backend=headless-backend.so", "--socket=SOCKET", "--no-config",
               "--width=1000", "--height=800", "--scale=SCALE"],
    # Not in Debian 12.
    "labwc": ["labwc", "-C", "FOLDER"],
    "sway": ["sway", "-c", "CONFIGURATION"],
    "kwin_wayland": ["kwin_wayland", "--virtual", "--no-lockscreen", "--no-global-shortcuts",
                     "--socket", "SOCKET", "--width", "1000", "--height", "800", "--scale",
                     "SCALE"],
    # The scale is the monitor's, which takes it from a file of its own.
    "mutter_wayland": ["mutter", "--headless", "--wayland", "--no-x11", "--virtual-monitor",
                       "1000x800", "--wayland-display", "SOCKET"],
}

# Without a session bus it ends at once, and this one's is another user's.
NEED_A_BUS = {"mutter_wayland"}

# By the protocol that grim speaks.
TAKES_PICTURES = {"sway", "labwc"}


def call(name, rest):
    """A pattern of what WAYLAND_DEBUG prints of a call; the object's number is its first group."""
    return name + r"[@#](\d+)\." + rest


class WaylandVisit(FollowedProgram):
    """`visit` fills in `held`, by behaviour: "yes", "no" or why it is neither; and `reasons`. Pictures go
    to `folder`."""
    folder = None

    def runTest(self):  # so that one can be made without a test's name
        pass

    def setUp(self):
        super().setUp()
        self.held, self.reasons = {}, {}
        self.place = PLACE

    def look(self, behaviour, question):
        try:
            question()
            self.held[behaviour] = "yes"
        except DoesNotApply as why:
            self.held[behaviour] = str(why)
        except AssertionError as why:
            self.held[behaviour], self.reasons[behaviour] = "no", str(why)[:2000]

    def visit(self, name):
        self.name = name
        self.environment.update(
            LC_ALL="C.UTF-8", LIBGL_ALWAYS_SOFTWARE="1", XDG_SESSION_TYPE="wayland",
            WLR_BACKENDS="headless", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1",
            QT_QPA_PLATFORM="wayland", WAYLAND_DEBUG="1", KWIN_COMPOSE="Q")
        self.open_bus()
        victim = self.start_victim()
        self.write_preferences({
            "ABOUT_PANEL_AT_EVERY_START": 1, "QUIVA_CHECK_QUARTZ_EXTREME": 1,
            "QUIVA_CHECK_COMPOSITOR": 1, "DEFAULT_SHOW_MACHINE_WINDOW": 1,
            "DEFAULT_SHOW_PROCESS_LIST_WINDOW": 1, "DEFAULT_SHOW_PROCESS_QUIVA_WINDOW": 1,
            "MAIN_WINDOW_FRAME": "30 60 560 380",
            "CPU_HISTORY_WINDOW": [self.remembered(1, victim.pid, *PLACE, 200, 90)],
            "LOGGING_WINDOW": [self.remembered(2, victim.pid, 300, 300, 500, 200)]})
        compositor = self.open_compositor(name, 1)
        program, said = self.start_and_read()
        self.look("starts", lambda: self.wait_for(lambda: self.is_shown(said, "Processes"), 20, said))
        self.look("windows", lambda: [
            self.wait_for(lambda: self.is_shown(said, title), 10, lambda: title)
            for title in ("Machine", "Animated View", "About Lurkwell", "Logging lkwvictim")] + [
            self.wait_for(lambda: self.history_is_shown(said, victim.pid), 10)])
        self.look("above", lambda: self.check_above(said))
        self.look("drag", lambda: self.check_drag(said))
        self.keep_picture(name, "windows")
        self.look("toggle", lambda: self.check_toggle(said))
        time.sleep(2)
        self.keep_picture(name, "overlay")
        self.look("overlay", lambda: self.check_overlay(said))
        self.look("front", lambda: self.check_front(said))
        self.look("hot_key", lambda: self.assertRegex(said(), r"lurkwell: no hot key"))
        self.look("end", lambda: self.check_end(program, said))
        self.look("places", lambda: self.check_places(said))
        compositor.terminate()
        compositor.wait()
        self.open_compositor(name, 2)
        self.environment.pop("QT_SCALE_FACTOR", None)
        program, said = self.start_and_read()
        self.look("scale", lambda: self.check_scale(said))
        program.send_signal(signal.SIGTERM)
        program.wait(20)

    @staticmethod
    def remembered(number, pid, left, top, width, height):
        # By the start it is told apart from those of tests that run at the same time.
        start = pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[19]
        return {"PROCESS_NAME": "lkwvictim", "PROCESS_KIND": "Darwin", "PROCESS_PID": pid,
                "PROCESS_START": start,
                "WINDOW_UUID": f"00000000-0000-4000-8000-00000000000{number}",
                "WINDOW_RECT_LEFT": left, "WINDOW_RECT_TOP": top,
                "WINDOW_RECT_RIGHT": left + width, "WINDOW_RECT_BOTTOM": top + height}

    def open_compositor(self, name, scale):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="lurkwell-test-"))
        self.addCleanup(shutil.rmtree, folder, True)
        configuration = folder / "sway"
        configuration.write_text("output * mode --custom 1000x800@60Hz\nxwayland disable\n")
        words = [word.replace("SOCKET", f"wayland-{7 + scale}").replace("SCALE", str(scale))
                 .replace("CONFIGURATION", str(configuration)).replace("FOLDER", str(folder))
                 for word in COMPOSITORS[name]]
        environment = {key: value for key, value in self.environment.items()
                       if key not in ("QT_QPA_PLATFORM", "WAYLAND_DEBUG", "WAYLAND_DISPLAY")}
        environment["XDG_RUNTIME_DIR"] = environment["HOME"] = str(folder)
        # One that has rights of its own may not be started in a container; a copy has none.
        words[0] = shutil.copy(shutil.which(words[0]), folder)
        rights = []
        if os.geteuid() == 0:
            # Some refuse to run as root. An absolute path leads the program to others' sockets.
            for path in (folder, *folder.iterdir()):
                os.chown(path, NOBODY, NOBODY)
            rights = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        if name in NEED_A_BUS:
            environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus_in(folder, folder, rights)
        log = open(f"{self.home}/compositor-{scale}", "wb")
        self.addCleanup(log.close)
        process = subprocess.Popen([*rights, *words], env=environment, stdout=log, stderr=log)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)

        def sockets():
            return [path for path in folder.glob("wayland-*") if path.is_socket()]
        self.wait_for(sockets, tell=lambda: pathlib.Path(log.name).read_text()[-1500:])
        self.environment["WAYLAND_DISPLAY"] = str(sockets()[0])
        time.sleep(1)
        for control in folder.glob("sway-ipc.*.sock"):
            self.output("swaymsg", "--socket", str(control), f"output * scale {scale}")
        if name == "labwc":
            self.output("wlr-randr", "--output", "HEADLESS-1", "--scale", str(scale))
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
        for toplevel in re.findall(call("xdg_toplevel", r'set_title\("' + title), text):
            role = re.search(call("xdg_surface", r"get_toplevel\(new id xdg_toplevel[@#]" + toplevel),
                             text)
            surface = role and re.search(
                r"get_xdg_surface\(new id xdg_surface[@#]" + role[1] + r", wl_surface[@#](\d+)", text)
            if surface and WaylandVisit.is_seen(text, surface[1]):
                return True
        return False

    @staticmethod
    def is_seen(text, surface):
        return re.search(r"wl_surface[@#]" + surface + r"\.enter\(", text) is not None

    @staticmethod
    def layers(text, layer):
        """What lies on that layer: the numbers of its layer surfaces and surfaces."""
        return re.findall(r"get_layer_surface\(new id zwlr_layer_surface_v1[@#](\d+), "
                          r"wl_surface[@#](\d+), [^,]+, " + str(layer) + ",", text)

    def history_is_shown(self, said, pid):
        text = said()
        return self.is_shown(said, f"{pid}\\b") or any(
            self.is_seen(text, surface) for _, surface in self.layers(text, 2))

    def has_layers(self, text):
        return f'"{LAYERS}"' in text

    def check_above(self, said):
        text = said()
        if not self.has_layers(text):
            raise DoesNotApply("it has no layers")
        if not self.layers(text, 2):
            # Only a program that was built with what they take is to be blamed.
            self.assertFalse(PLUGIN.exists(), "the plugin puts nothing there")
            raise DoesNotApply(NOT_BUILT_IN)
        (layer, _), = self.layers(text, 2)
        for wanted in (r"set_keyboard_interactivity\(0\)", r"set_anchor\(5\)"):
            self.assertRegex(text, r"zwlr_layer_surface_v1[@#]" + layer + r"\." + wanted)

    def check_drag(self, said):
        text = said()
        if not self.layers(text, 2):
            raise DoesNotApply("moved by the compositor")
        if f'"{MANAGER}"' not in text:
            raise DoesNotApply("it lets no test play a pointer")
        # The about panel would lie over it.
        self.wait_for(lambda: "destroy" in said()[said().rindex("About Lurkwell"):], 20)
        pointer = Pointer(self.environment["WAYLAND_DISPLAY"], (1280, 720))
        self.addCleanup(pointer.end)
        grip = PLACE[0] + 60, PLACE[1] + 50
        pointer.move(*grip)
        time.sleep(0.5)
        pointer.press(LEFT, True)
        for step in range(1, 21):
            pointer.move(grip[0] + 10 * step, grip[1] + 8 * step)
        # Where it comes to rest counts.
        time.sleep(0.1)
        pointer.move(grip[0] + 200, grip[1] + 160)
        time.sleep(0.1)
        self.keep_picture(self.name, "drag")
        pointer.press(LEFT, False)
        self.place = PLACE[0] + 200, PLACE[1] + 160
        self.wait_for(lambda: f".set_margin({self.place[1]}, 0, 0, {self.place[0] - TITLE_BAR})"
                      in said(), 5, lambda: str(re.findall(r"set_margin.*", said())[-3:]))
        before = len(re.findall(r"zwlr_layer_surface_v1[@#]\d+\.get_popup", said()))
        # Not before the window has come under it.
        time.sleep(1)
        pointer.move(self.place[0] + 70, self.place[1] + 50)
        time.sleep(0.5)
        pointer.press(RIGHT, True)
        pointer.press(RIGHT, False)
        self.wait_for(lambda: len(re.findall(r"zwlr_layer_surface_v1[@#]\d+\.get_popup", said())) >
                      before, 5)
        # A click beside the menu closes it.
        pointer.move(1270, 710)
        pointer.press(LEFT, True)
        pointer.press(LEFT, False)

    def check_places(self, said):
        text, kept = said(), self.preferences()
        x, y, width, height = kept["MAIN_WINDOW_FRAME"].split()[:4]
        self.assertEqual((x, y), ("30", "60"), "the last place that anybody told")
        # Sway makes it as large as it likes.
        self.assertGreater(int(width) * int(height), 100)
        history, = kept["CPU_HISTORY_WINDOW"]
        self.assertEqual((history["WINDOW_RECT_LEFT"], history["WINDOW_RECT_TOP"]),
                         self.place)
        for layer, _ in self.layers(text, 2)[:1]:
            left, top = PLACE[0] - TITLE_BAR, PLACE[1]
            self.assertRegex(text, r"zwlr_layer_surface_v1[@#]" + layer +
                             rf"\.set_margin\({top}, 0, 0, {left}\)")

    def check_overlay(self, said):
        text = said()
        overlays = self.layers(text, 3)
        if not overlays:
            self.assertRegex(text, call("xdg_toplevel", "set_fullscreen"))
            raise DoesNotApply("fills the screen")
        _, surface = overlays[-1]
        setting = list(re.finditer(r"wl_surface[@#]" + surface +
                                   r"\.set_input_region\((wl_region[@#]\d+)\)", text))[-1]
        making = list(re.finditer(r"create_region\(new id " + setting[1] + r"\)",
                                  text[:setting.start()]))[-1]
        # Nothing is in it.
        self.assertNotIn(setting[1] + ".add(", text[making.end():setting.start()])

    def check_front(self, said):
        if '"xdg_activation_v1"' not in said():
            raise DoesNotApply("it gives no consent")
        quiet = {key: value for key, value in self.environment.items() if key != "WAYLAND_DEBUG"}
        quiet["XDG_ACTIVATION_TOKEN"] = "from-the-panel"
        done = subprocess.run([BINARY], env=quiet, capture_output=True, text=True, check=False,
                              timeout=20)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.wait_for(lambda: re.search(
            call("xdg_activation_v1", r'activate\("from-the-panel", wl_surface'), said()), 5)

    def check_toggle(self, said):
        quiet = {key: value for key, value in self.environment.items() if key != "WAYLAND_DEBUG"}
        def count():
            text = said()
            return text.count('.set_title("Animated View') + len(self.layers(text, 3))
        before, end = count(), time.monotonic() + 20
        while count() == before:
            self.assertLess(time.monotonic(), end, "no other window comes")
            done = subprocess.run([BINARY, "--toggle-overlay"], env=quiet, capture_output=True,
                                  text=True, check=False, timeout=20)
            self.assertEqual(done.returncode, 0, done.stderr)
            time.sleep(3)

    def check_scale(self, said):
        """With whole scales it draws larger buffers, with others it tells their size on the screen."""
        self.wait_for(lambda: self.is_shown(said, "Processes"), 20, said)
        time.sleep(1)
        if not re.search(call("wl_output", r"scale\(2\)"), said()):
            raise DoesNotApply("it keeps its scale")
        self.assertRegex(said(), call("wl_surface", r"set_buffer_scale\(2\)") + "|" +
                         call("wp_viewport", "set_destination"))

    def check_end(self, program, said):
        program.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait(20), 0, said()[-1500:])

    def keep_picture(self, name, picture):
        if self.folder is None or name not in TAKES_PICTURES:
            return
        os.makedirs(self.folder, exist_ok=True)
        self.output("grim", str(self.folder / f"{picture}.png"))
