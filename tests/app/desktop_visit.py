"""A visit to the program on one desktop: what holds of what windows promise.

Every behaviour is looked at on the X server. What one cannot look at there is no part of this.
"""
import ctypes
import os
import pathlib
import re
import shutil
import subprocess
import time

from desktop_support import BINARY, FollowedProgram

# Behaviours by their names, in the words of the table.
BEHAVIOURS = {
    "windows": "every window opens and is seen",
    "in_sight": "histories and logs stay visible while another program is used",
    "above": "histories stay above its windows",
    "bars": "histories are in no task bar and no pager, and on every desktop",
    "clicks": "a click on a history leaves the keyboard where it is",
    "minimised": "and the main window minimised",
    "hot_key": "the hot key works in another program",
    "overlay": "nor does the animated view over the screen take the keyboard",
    "through": "clicks go through it to what is behind",
    "places": "windows come back at their places",
    "theme": "colours and font of the desktop are followed",
    "scale": "so is a scale of 1.5, and pictures are sharp then",
}

# How each is started. Those that look for services of a whole session do without.
MANAGERS = {
    "openbox": ["openbox"],
    "xfwm4": ["xfwm4"],
    "kwin_x11": ["kwin_x11"],
    "metacity": ["metacity"],
    "mutter": ["mutter", "--x11"],
    "i3": ["i3", "-c", "CONFIGURATION"],
}
TILING = {"i3"}
I3_CONFIGURATION = "font pango:monospace 8\nfocus_follows_mouse no\nmouse_warping none\n"

DARK_FOR_KDE = """[General]
font=DejaVu Serif,18,-1,5,50,0,0,0,0,0
[Colors:Button]
BackgroundNormal=50,52,56
ForegroundNormal=230,230,230
[Colors:Window]
BackgroundNormal=30,32,36
ForegroundNormal=230,230,230
[Colors:View]
BackgroundNormal=20,22,26
ForegroundNormal=230,230,230
"""
DARK_FOR_GTK = """[Settings]
gtk-theme-name=Adwaita
gtk-application-prefer-dark-theme=1
gtk-font-name=DejaVu Serif 18
"""


class DoesNotApply(Exception):
    """This desktop has nothing of the kind."""


class Visit(FollowedProgram):
    """`visit` fills in `held`, by behaviour: "yes", "no" or "does not apply"; and `reasons`."""

    def runTest(self):  # so that one can be made without a test's name
        pass

    def setUp(self):
        super().setUp()
        self.held, self.reasons = {}, {}
        self.keep_picture = lambda name, window: None

    def look(self, behaviour, question):
        try:
            question()
            self.held[behaviour] = "yes"
        except DoesNotApply as why:
            self.held[behaviour], self.reasons[behaviour] = "does not apply", str(why)
        except (AssertionError, IndexError, ValueError) as why:
            self.held[behaviour] = "no"
            self.reasons[behaviour] = f"{type(why).__name__}: {why}"[:2000]

    def visit(self, name):
        self.name = name
        self.open_session(name)
        self.victim = self.start_victim()
        # So that its size can be compared at another scale.
        self.write_preferences({"ABOUT_PANEL_AT_EVERY_START": 1, "QUIVA_CHECK_QUARTZ_EXTREME": 1,
                                "QUIVA_CHECK_COMPOSITOR": 1, "MAIN_WINDOW_FRAME": "30 60 560 380"})
        self.program = self.start_program()
        self.about = self.picture_of_about("usual")
        self.open_both(self.victim.pid)
        self.history = self.find(f"^{self.victim.pid}$")
        self.log = self.find("^Logging lkwvictim")
        self.main = self.find("^Processes$")
        self.look("windows", self.every_window_opens)
        self.keep_picture("windows", "root")
        self.another = self.start_terminal("another", "120x50+0+0")
        self.output("xdotool", "windowraise", self.another)
        time.sleep(1)
        for behaviour in ("in_sight", "above", "bars", "clicks", "minimised", "hot_key", "overlay",
                          "through", "places"):
            self.look(behaviour, getattr(self, "check_" + behaviour))
        self.end_program(self.program)
        self.check_nothing_is_left()

    def visit_desktop_settings(self):
        """After the visit; needs ImageMagick."""
        self.look("theme", self.check_theme)
        self.look("scale", self.check_scale)

    # ---- The desktop ----

    def open_session(self, name):
        self.open_bus()
        self.environment.update(NO_AT_BRIDGE="1", GSETTINGS_BACKEND="memory", LC_ALL="C.UTF-8",
                                XDG_SESSION_TYPE="x11", LIBGL_ALWAYS_SOFTWARE="1")
        configuration = pathlib.Path(self.home, "i3")
        configuration.write_text(I3_CONFIGURATION)
        self.open_display([word.replace("CONFIGURATION", str(configuration))
                           for word in MANAGERS[name]])

    def start_terminal(self, title, geometry):
        self.start(["xterm", "-T", title, "-geometry", geometry, "-e", "cat"])
        self.wait_for(lambda: self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$"))
        window = self.find(f"^{title}$")
        # Some managers give a new window the keyboard, others do not.
        self.activate(window, title)
        return window

    def activate(self, window, title):
        def is_active():
            self.output("xdotool", "windowactivate", window)
            time.sleep(0.2)
            return self.active_window() == title
        self.wait_for(is_active, tell=self.active_window)

    def find(self, title):
        return self.output("xdotool", "search", "--name", title).split()[0]

    def property(self, window, name):
        return self.output("xprop", "-id", window, name)

    def is_seen(self, window):
        return "IsViewable" in self.output("xwininfo", "-id", window)

    def is_above(self, window, other):
        """By the frames that they stand in, or by themselves, from the front to the back."""
        places, place = {}, 0
        for line in self.windows().splitlines():
            found = re.match(r"( +)(0x[0-9a-f]+) ", line)
            if found:
                place += len(found[1]) == 5
                places[int(found[2], 16)] = place
        return places[int(window)] < places[int(other)]

    def is_unmanaged(self, window):
        return "Override Redirect State: yes" in self.output("xwininfo", "-id", window, "-stats")

    def has_compositor(self):
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XInternAtom.restype = x11.XGetSelectionOwner.restype = ctypes.c_ulong
        display = ctypes.c_void_p(x11.XOpenDisplay(self.environment["DISPLAY"].encode()))
        atom = ctypes.c_ulong(x11.XInternAtom(display, b"_NET_WM_CM_S0", 0))
        owner = x11.XGetSelectionOwner(display, atom)
        x11.XCloseDisplay(display)
        return owner != 0

    def start_compositor(self):
        if not self.has_compositor():
            self.start(["picom", "--backend", "xrender", "--config", "/dev/null"])
            self.wait_for(self.has_compositor)

    # ---- Windows ----

    def every_window_opens(self):
        for keys, title in (("ctrl+comma", "Lurkwell Preferences"), ("ctrl+shift+m", "Machine"),
                            ("ctrl+i", r"lkwvictim.*Details"), ("F1", "Lurkwell Help"),
                            ("alt+w a", "Animated View")):
            for key in keys.split():
                if key == "alt+w" or " " not in keys:
                    self.type_keys("key", key)
                else:
                    time.sleep(0.5)
                    self.output("xdotool", "key", key)
            self.wait_for(lambda title=title: any(
                self.is_seen(window)
                for window in self.output("xdotool", "search", "--name", title).split()),
                tell=lambda title=title: title + self.windows())
            time.sleep(0.5)
            window = [each for each in self.output("xdotool", "search", "--name", title).split()
                      if self.is_seen(each)][0]
            self.keep_picture(keys.split()[-1], window)
            if title != "Animated View":
                self.output("xdotool", "windowactivate", "--sync", window)
            self.close(window)
        for window in (self.main, self.history, self.log):
            self.assertTrue(self.is_seen(window), self.windows())

    def close(self, window):
        """As the window manager does."""
        self.output("wmctrl", "-i", "-c", window)
        self.wait_for(lambda: not self.is_seen(window), tell=self.windows)

    # ---- What histories promise ----

    def check_in_sight(self):
        self.assertEqual(self.active_window(), "another")
        for window in (self.history, self.log):
            self.assertTrue(self.is_seen(window), self.windows())

    def check_above(self):
        self.assertTrue(self.is_above(self.history, self.another), self.windows())

    def check_bars(self):
        if self.is_unmanaged(self.history):
            return
        state = self.property(self.history, "_NET_WM_STATE")
        self.assertNotIn("DEMANDS_ATTENTION", state)
        for word in ("ABOVE", "SKIP_TASKBAR", "SKIP_PAGER"):
            self.assertIn("_NET_WM_STATE_" + word, state)
        self.assertRegex(self.property(self.history, "_NET_WM_DESKTOP"), "= 4294967295$")
        self.assertIn("_DIALOG", self.property(self.history, "_NET_WM_WINDOW_TYPE"))
        self.assertIn("not found", self.property(self.history, "WM_TRANSIENT_FOR"))

    def click_history(self):
        self.output("xdotool", "mousemove", "--window", self.history, "60", "30", "click", "1")
        time.sleep(1)

    def check_clicks(self):
        self.activate(self.another, "another")
        self.click_history()
        self.assertEqual(self.active_window(), "another")

    def is_minimised(self):
        return "Iconic" in self.property(self.main, "WM_STATE")

    def check_minimised(self):
        if self.name in TILING:
            raise DoesNotApply("it minimises nothing")
        self.output("xdotool", "windowminimize", self.main)
        self.wait_for(self.is_minimised)
        self.activate(self.another, "another")
        self.click_history()
        self.assertEqual(self.active_window(), "another")
        self.assertTrue(self.is_minimised())

    # ---- The animated view over the screen ----

    def view_is_shown(self, kind):
        """Whether one of the animated view's two windows is: the one that fills the screen, or the other."""
        return any(("1000x800" in line) == (kind == "full screen")
                   for line in self.windows().splitlines()
                   if '"Animated View"' in line and self.is_seen(line.split()[0]))

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

    def check_way(self, way):
        minimised = self.is_minimised()
        self.toggle(way, True)
        self.assertEqual(self.active_window(), "another")
        self.toggle(way, False)
        time.sleep(0.5)
        self.assertEqual(self.active_window(), "another")
        self.assertFalse(self.view_is_shown("window"), "there was none before")
        self.assertEqual(self.is_minimised(), minimised)

    def check_hot_key(self):
        if self.name in TILING:
            # Without one the view fills the screen as an ordinary window, which gets the keyboard.
            self.start_compositor()
        self.check_way(["xdotool", "key", "F7"])
        self.type_keys("key", "F7")
        self.wait_for(lambda: self.view_is_shown("full screen"))
        self.toggle(["xdotool", "key", "F7"], False)
        time.sleep(0.5)
        self.assertFalse(self.view_is_shown("window"))

    def check_overlay(self):
        self.activate(self.another, "another")
        self.check_way([BINARY, "--toggle-overlay"])

    def check_through(self):
        self.start_compositor()
        behind = self.start_terminal("behind", "30x10+780+620")
        self.activate(self.another, "another")
        self.toggle([BINARY, "--toggle-overlay"], True)
        time.sleep(2)
        self.assertEqual(self.active_window(), "another")
        self.keep_picture("overlay", "root")
        self.output("xdotool", "mousemove", "--window", behind, "100", "60", "click", "1")
        self.wait_for(lambda: self.active_window() == "behind", 5, self.active_window)
        overlay = [line.split()[0] for line in self.windows().splitlines()
                   if '"Animated View"' in line and "1000x800" in line][0]
        self.wait_for(lambda: self.is_above(str(int(overlay, 16)), behind), tell=self.windows)
        self.toggle([BINARY, "--toggle-overlay"], False)

    # ---- The next start ----

    def check_places(self):
        self.move(f"^{self.victim.pid}$", 600, 500)
        self.move("^Logging lkwvictim", 60, 420)
        time.sleep(1)
        placed = self.places(self.victim.pid)
        self.assertEqual(placed["history"], (600, 500))
        if self.name in TILING:
            # It alone decides where ordinary windows are.
            placed = {"history": placed["history"]}
        self.end_program(self.program)
        self.program = self.start_program()
        self.wait_for(lambda: placed.items() <= self.places(self.victim.pid).items(),
                      tell=lambda: f"{placed} {self.places(self.victim.pid)}")

    # ---- Theme and scale ----

    def picture_of_about(self, name):
        """The panel's size, and the file of its picture; it closes by itself, and is waited for."""
        def panels():
            return [window for window in
                    self.output("xdotool", "search", "--name", "^About Lurkwell$").split()
                    if self.is_seen(window)]
        self.wait_for(panels)
        time.sleep(0.5)
        window = panels()[0]
        size = re.search(r"Width: (\d+)\s+Height: (\d+)", self.output("xwininfo", "-id", window))
        picture = f"{self.home}/about-{name}.png"
        if shutil.which("import"):
            self.output("import", "-window", window, picture)
        self.keep_picture("about-" + name, window)
        self.wait_for(lambda: not panels())
        return tuple(map(int, size.groups())), picture

    def figure_of(self, *command):
        """What ImageMagick prints, on either of its outputs."""
        done = subprocess.run(command, env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, check=False)
        return float(re.findall(r"[-0-9.e]+", done.stdout.replace("(", " "))[0])

    def check_theme(self):
        configuration = pathlib.Path(self.environment["XDG_CONFIG_HOME"])
        (configuration / "gtk-3.0").mkdir(parents=True, exist_ok=True)
        (configuration / "gtk-3.0/settings.ini").write_text(DARK_FOR_GTK)
        (configuration / "kdeglobals").write_text(DARK_FOR_KDE)
        if self.name.startswith("kwin"):
            desktop = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                       "KDE_SESSION_VERSION": "5"}
        else:
            # A window manager alone has no theme; who uses one names another desktop's.
            desktop = {"XDG_CURRENT_DESKTOP": "GNOME", "QT_QPA_PLATFORMTHEME": "gtk3"}
        self.environment.update(desktop)
        program = self.start_program()
        (width, height), picture = self.picture_of_about("theme")
        (usual_width, usual_height), usual = self.about
        grey = ("-colorspace", "gray", "-format", "%[fx:mean]", "info:")
        self.end_program(program)
        for key in desktop:
            del self.environment[key]
        light, dark = (self.figure_of("convert", file, *grey) for file in (usual, picture))
        self.assertGreater(light, 0.6)
        self.assertLess(dark, 0.4)
        self.assertGreater(width * height, 1.3 * usual_width * usual_height)

    def check_scale(self):
        self.output("xprop", "-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER",
                    "Xft.dpi:\t144\n")
        program = self.start_program()
        (width, height), picture = self.picture_of_about("scale")
        self.end_program(program)
        (usual_width, usual_height), usual = self.about
        self.assertAlmostEqual(width / usual_width, 1.5, delta=0.04)
        self.assertAlmostEqual(height / usual_height, 1.5, delta=0.04)
        # One that was only enlarged has nothing that a smaller picture cannot hold.
        size, small = f"{width}x{height}!", f"{usual_width}x{usual_height}!"
        enlarged = self.home + "/enlarged.png"
        self.output("convert", usual, "-resize", size, enlarged)

        def lost(file):
            there_and_back = self.home + "/back.png"
            self.output("convert", file, "-resize", small, "-resize", size, there_and_back)
            return self.figure_of("compare", "-metric", "RMSE", file, there_and_back, "null:")
        self.assertGreater(lost(picture), 1.7 * lost(enlarged))


def picture_keeper(visit, folder):
    """Keeps pictures, numbered in their order, for a person to look at."""
    folder.mkdir(parents=True, exist_ok=True)

    def keep(name, window):
        count = len(os.listdir(folder))
        visit.output("import", "-window", window, str(folder / f"{count:02}-{name}.png"))
    return keep
