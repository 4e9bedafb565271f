"""The pointer of each kind of display. Buttons: 1 left, 2 middle, 3 right."""

import sys

from gi.repository import GLib

from .bus import Absent
from .waiting import until


class XPointer:
    def __init__(self, desktop):
        self._run = desktop.processes.run

    def move(self, x, y):
        self._run("xdotool", "mousemove", "--sync", x, y)

    def click(self, x, y, button=1):
        self._run("xdotool", "mousemove", x, y, "click", button)

    def press(self, button=1):
        self._run("xdotool", "mousedown", button)

    def release(self, button=1):
        self._run("xdotool", "mouseup", button)


class VirtualPointer:
    """sway has no pointer of its own when headless: a small client holds a virtual one and takes commands."""

    _BUTTONS = {1: "left", 2: "middle", 3: "right"}

    def __init__(self, desktop):
        self._extent = desktop.resolution.replace("x", " ")
        self._commands = desktop.directory / "pointer-commands"
        self._commands.write_bytes(b"")
        self._sent = 0
        self._client = desktop.processes.start("pointer", sys.executable, desktop.copy_of_script("virtual_pointer.py"),
                                               self._commands)
        until("the virtual pointer is ready", lambda: "ready" in self._client.output())

    def _tell(self, command):
        self._sent += 1
        with open(self._commands, "a", encoding="ascii") as commands:
            commands.write(command + "\n")
        until(f"the pointer has done: {command}", lambda: f"done {self._sent}\n" in self._client.output())

    def move(self, x, y):
        self._tell(f"move {x} {y} {self._extent}")

    def click(self, x, y, button=1):
        self.move(x, y)
        self.press(button)
        self.release(button)

    def press(self, button=1):
        self._tell(f"press {self._BUTTONS[button]}")

    def release(self, button=1):
        self._tell(f"release {self._BUTTONS[button]}")


class ShellPointer:
    """GNOME Shell in its unsafe mode evaluates scripts, which is how a headless one gets a pointer."""

    _SEAT = "imports.gi.Clutter.get_default_backend().get_default_seat()"
    _DEVICE = (f"(global._tambrellePointer ??= {_SEAT}.create_virtual_device("
               "imports.gi.Clutter.InputDeviceType.POINTER_DEVICE))")
    _NOW = "imports.gi.GLib.get_monotonic_time()"

    def __init__(self, desktop):
        self._desktop = desktop

    def evaluate(self, script):
        done, answer = self._desktop.bus.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval",
                                              GLib.Variant("(s)", (script,)))
        if not done:
            raise Absent(f"the shell refused {script}: {answer}")
        return answer

    def picture(self):
        file = self._desktop.directory / "screen.png"
        self._desktop.bus.call("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot",
                               "org.gnome.Shell.Screenshot", "Screenshot",
                               GLib.Variant("(bbs)", (False, False, str(file))))
        return self._desktop.processes.run("convert", file, "-depth", "8", "ppm:-")

    def move(self, x, y):
        self.evaluate(f"{self._DEVICE}.notify_absolute_motion({self._NOW}, {x}, {y}); 1")

    def click(self, x, y, button=1):
        self.move(x, y)
        self.press(button)
        self.release(button)

    def press(self, button=1):
        self.evaluate(f"{self._DEVICE}.notify_button({self._NOW}, {button}, 1); 1")

    def release(self, button=1):
        self.evaluate(f"{self._DEVICE}.notify_button({self._NOW}, {button}, 0); 1")
