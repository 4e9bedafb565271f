#!/usr/bin/python3
"""virtual_pointer.py FILE: holds one virtual pointer (wlr-virtual-pointer) on $WAYLAND_DISPLAY and does the commands that are
appended to FILE, one a line: move X Y WIDTH HEIGHT | press BUTTON | release BUTTON. After each it prints
"done N". Only the standard library, because it speaks the few messages it needs itself."""

import os
import select
import socket
import struct
import sys
import time

BUTTONS = {"left": 0x110, "right": 0x111, "middle": 0x112}
DISPLAY, REGISTRY, CALLBACK, SEAT, MANAGER, POINTER = range(1, 7)


class Wire:
    """The Wayland wire: 32-bit object, size and opcode in one word, arguments."""

    def __init__(self):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(os.path.join(os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"]))
        self.buffer = b""

    def send(self, target, opcode, *words, raw=b""):
        body = b"".join(struct.pack("<I", word & 0xFFFFFFFF) for word in words) + raw
        self.socket.sendall(struct.pack("<II", target, (8 + len(body)) << 16 | opcode) + body)

    def events(self, patience):
        if select.select([self.socket], [], [], patience)[0]:
            data = self.socket.recv(65536)
            if not data:
                sys.exit("the compositor has gone")
            self.buffer += data
        while len(self.buffer) >= 8:
            target, word = struct.unpack("<II", self.buffer[:8])
            size = word >> 16
            if len(self.buffer) < size:
                return
            body, self.buffer = self.buffer[8:size], self.buffer[size:]
            if target == DISPLAY and word & 0xFFFF == 0:
                sys.exit(f"protocol error: {body!r}")
            yield target, word & 0xFFFF, body


def string(text):
    data = text.encode() + b"\0"
    return struct.pack("<I", len(data)) + data + b"\0" * (-len(data) % 4)


def globals_of(wire):
    """Interface -> (name, version) of everything that the compositor announces."""
    wire.send(DISPLAY, 1, REGISTRY)
    wire.send(DISPLAY, 0, CALLBACK)
    found = {}
    while True:
        for target, opcode, body in wire.events(5):
            if target == REGISTRY and opcode == 0:
                name, length = struct.unpack("<II", body[:8])
                interface = body[8:8 + length - 1].decode()
                version, = struct.unpack("<I", body[8 + length + -length % 4:][:4])
                found.setdefault(interface, (name, version))
            if target == CALLBACK:
                return found


def main():
    wire = Wire()
    announced = globals_of(wire)
    for interface, new, newest in (("wl_seat", SEAT, 4), ("zwlr_virtual_pointer_manager_v1", MANAGER, 1)):
        name, version = announced[interface]
        wire.send(REGISTRY, 0, name, raw=string(interface) + struct.pack("<II", min(version, newest), new))
    wire.send(MANAGER, 0, SEAT, POINTER)
    print("ready", flush=True)

    def now():
        return int(time.monotonic() * 1000)

    def do(command, *arguments):
        if command == "move":
            wire.send(POINTER, 1, now(), *map(int, arguments))
        elif command in ("press", "release"):
            wire.send(POINTER, 2, now(), BUTTONS[arguments[0]], int(command == "press"))
        wire.send(POINTER, 4)                                       # frame

    done = 0
    with open(sys.argv[1], encoding="ascii") as commands:
        while True:
            line = commands.readline()
            if line.endswith("\n"):
                do(*line.split())
                done += 1
                print(f"done {done}", flush=True)
            else:
                commands.seek(commands.tell() - len(line))
                for _ in wire.events(0.01):
                    pass


if __name__ == "__main__":
    main()
