"""A pointer that a test moves, for compositors that let programs make one (zwlr_virtual_pointer_v1).

Speaks the few words of Wayland that it takes by itself.
"""
import socket
import struct
import time

MANAGER = "zwlr_virtual_pointer_manager_v1"
LEFT, RIGHT = 0x110, 0x111
# Numbers of objects, in the order in which they are made.
DISPLAY, REGISTRY, END, MADE_BY, POINTER = range(1, 6)


class Pointer:
    """`size` is the screen's, in its own points."""

    def __init__(self, address, size):
        self.size = size
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(address)
        self.say(DISPLAY, 1, struct.pack("<I", REGISTRY))
        self.say(DISPLAY, 0, struct.pack("<I", END))
        words = MANAGER.encode() + b"\0"
        text = struct.pack("<I", len(words)) + words + b"\0" * (-len(words) % 4)
        self.say(REGISTRY, 0, struct.pack("<I", self.globals()[MANAGER]) + text +
                 struct.pack("<II", 1, MADE_BY))
        self.say(MADE_BY, 0, struct.pack("<II", 0, POINTER))
        time.sleep(0.3)

    def say(self, number, request, words):
        self.socket.sendall(struct.pack("<II", number, (8 + len(words)) << 16 | request) + words)

    def globals(self):
        """What the compositor has, by name, with its numbers."""
        found, unread = {}, b""
        while True:
            unread += self.socket.recv(65536)
            while len(unread) >= 8 and len(unread) >= (size := struct.unpack_from("<I", unread, 4)[0] >> 16):
                number, words = struct.unpack_from("<I", unread)[0], unread[8:size]
                unread = unread[size:]
                if number == END:
                    return found
                if number == REGISTRY:
                    name, length = struct.unpack_from("<II", words)
                    found[words[8:8 + length - 1].decode()] = name

    def act(self, request, *words):
        milliseconds = int(time.monotonic() * 1000) & 0xffffffff
        self.say(POINTER, request, struct.pack(f"<I{len(words)}I", milliseconds, *words))
        self.say(POINTER, 4, b"")
        time.sleep(0.03)

    def move(self, x, y):
        self.act(1, x, y, *self.size)

    def press(self, button, is_down):
        self.act(2, button, int(is_down))

    def end(self):
        self.socket.close()
