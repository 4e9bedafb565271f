#!/usr/bin/python3
"""settings_manager.py FILE: tells the programs of $DISPLAY, by the XSETTINGS protocol, how many dots an inch has: each number
that is appended to FILE, one a line. Prints each once it has been told."""

import ctypes
import ctypes.util
import struct
import sys
import time

CLIENT_MESSAGE, STRUCTURE_NOTIFY, REPLACE = 33, 1 << 17, 0
INTEGER, LITTLE_ENDIAN = 0, 0
NAME = b"Xft/DPI"
UNIT = 1024  # of a dot


class ClientMessage(ctypes.Structure):
    # XClientMessageEvent, and room for any event behind it.
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int), ("display", ctypes.c_void_p),
                ("window", ctypes.c_ulong), ("kind", ctypes.c_ulong), ("format", ctypes.c_int), ("data", ctypes.c_long * 5),
                ("rest", ctypes.c_long * 12)]


class Manager:
    def __init__(self):
        self._x11 = ctypes.CDLL(ctypes.util.find_library("X11") or "libX11.so.6")
        for function in ("XDefaultRootWindow", "XCreateSimpleWindow", "XInternAtom"):
            getattr(self._x11, function).restype = ctypes.c_ulong
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(None))
        if not self._display:
            sys.exit("no display")
        self._root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        nothing = ctypes.c_ulong(0)
        self._window = ctypes.c_ulong(self._x11.XCreateSimpleWindow(self._display, self._root, 0, 0, 1, 1, 0, nothing, nothing))
        self._serial = 0

    def _atom(self, name):
        return ctypes.c_ulong(self._x11.XInternAtom(self._display, name.encode(), 0))

    def tell(self, dots):
        padded = NAME + bytes(-len(NAME) % 4)
        settings = (struct.pack("<BxxxII", LITTLE_ENDIAN, self._serial, 1) + struct.pack("<BxH", INTEGER, len(NAME)) + padded
                    + struct.pack("<Ii", self._serial, dots * UNIT))
        place = self._atom("_XSETTINGS_SETTINGS")
        self._x11.XChangeProperty(self._display, self._window, place, place, 8, REPLACE, settings, len(settings))
        if self._serial == 0:
            self._announce()
        self._serial += 1
        self._x11.XSync(self._display, 0)

    def _announce(self):
        selection = self._atom("_XSETTINGS_S0")
        self._x11.XSetSelectionOwner(self._display, selection, self._window, ctypes.c_ulong(0))
        message = ClientMessage(type=CLIENT_MESSAGE, window=self._root.value, kind=self._atom("MANAGER").value, format=32)
        message.data[1], message.data[2] = selection.value, self._window.value
        self._x11.XSendEvent(self._display, self._root, 0, ctypes.c_long(STRUCTURE_NOTIFY), ctypes.byref(message))


def main():
    manager = Manager()
    with open(sys.argv[1], encoding="ascii") as wishes:
        while True:
            line = wishes.readline()
            if line.endswith("\n"):
                manager.tell(int(line))
                print(int(line), flush=True)
            else:
                wishes.seek(wishes.tell() - len(line))
                time.sleep(0.02)


if __name__ == "__main__":
    main()
