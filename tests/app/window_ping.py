"""How long a window takes to answer, measured from outside as window managers do.

The question is the ping that every toolkit answers from its event loop, so the answer's delay is the
time for which nothing else would have been answered either.
"""
import ctypes
import select
import threading
import time

CLIENT_MESSAGE = 33
# Toolkits send the answer to the one or the other.
STRUCTURE_AND_SUBSTRUCTURE_NOTIFY = 1 << 17 | 1 << 19


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("client", ClientMessage), ("pad", ctypes.c_long * 24)]


class WindowPing:
    """Asks one window again and again on a thread of its own, until it is stopped."""

    def __init__(self, display, window, pause=0.005, patience=30.0):
        self.waits = []
        self._window, self._pause, self._patience = window, pause, patience
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XInternAtom.restype = self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display.encode()))
        if not self._display:
            raise OSError("no display " + display)
        self._root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        self._protocols, self._ping = (self._x11.XInternAtom(self._display, name, 0)
                                       for name in (b"WM_PROTOCOLS", b"_NET_WM_PING"))
        self._x11.XSelectInput(self._display, self._root,
                               ctypes.c_long(STRUCTURE_AND_SUBSTRUCTURE_NOTIFY))
        self._end = threading.Event()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def stop(self):
        """All waits in seconds; a window that stays silent ends the row with the patience."""
        self._end.set()
        self._thread.join()
        self._x11.XCloseDisplay(self._display)
        return self.waits

    def _run(self):
        mark = 0
        while not self._end.is_set():
            mark += 1
            begun = time.monotonic()
            self._ask(mark)
            if not self._await(mark, begun + self._patience):
                self.waits.append(self._patience)
                return
            self.waits.append(time.monotonic() - begun)
            time.sleep(self._pause)

    def _ask(self, mark):
        event = Event()
        event.client.type = CLIENT_MESSAGE
        event.client.window = self._window
        event.client.message_type = self._protocols
        event.client.format = 32
        event.client.data[:3] = [self._ping, mark, self._window]
        self._x11.XSendEvent(self._display, ctypes.c_ulong(self._window), 0, ctypes.c_long(0),
                             ctypes.byref(event))
        self._x11.XFlush(self._display)

    def _await(self, mark, end):
        event = Event()
        connection = self._x11.XConnectionNumber(self._display)
        while time.monotonic() < end:
            if not self._x11.XPending(self._display):
                select.select([connection], [], [], max(0.0, end - time.monotonic()))
                continue
            self._x11.XNextEvent(self._display, ctypes.byref(event))
            if event.type == CLIENT_MESSAGE and event.client.data[0] == self._ping and \
                    event.client.data[1] == mark:
                return True
        return False
