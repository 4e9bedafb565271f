"""The monitors of one X server, which a test plugs in, unplugs and resizes, and the scale that a desktop tells programs.

The monitors are RandR's: toolkits and window managers take each for a screen, though all are parts of one framebuffer.
"""

import re
import sys

from .waiting import until

OUTPUT = "screen"  # the only one of Xvfb
UNSCALED = 96


class Monitors:
    def __init__(self, desktop):
        self._desktop = desktop
        self._named = 0
        self._present = {}  # (box, whether it is the primary): name

    def _xrandr(self, *arguments):
        return self._desktop.processes.run("xrandr", *arguments).decode()

    def arrange(self, *boxes):
        """Leaves exactly these monitors. The first one is the primary; those that were there as such are not touched."""
        wanted = [(box, number == 0) for number, box in enumerate(boxes)]
        for monitor in wanted:
            if monitor not in self._present:
                self._present[monitor] = self._plug(*monitor)
        for monitor in set(self._present) - set(wanted):
            name = self._present.pop(monitor)
            if name in self._names():  # the last primary went when another took the output
                self._xrandr("--delmonitor", name)
        until(f"the monitors are {boxes}", lambda: self._names() == set(self._present.values()))

    def _plug(self, box, primary):
        # A name that is taken cannot be given another part of the screen.
        self._named += 1
        name = f"monitor{self._named}"
        width, height = (round(length * 25.4 / UNSCALED) for length in (box.width, box.height))
        self._xrandr("--setmonitor", f"*{name}" if primary else name,
                     f"{box.width}/{width}x{box.height}/{height}+{box.x}+{box.y}", OUTPUT if primary else "none")
        return name

    def _names(self):
        return set(re.findall(r"^ *\d+: [+*]*(\S+)", self._xrandr("--listmonitors"), re.MULTILINE))

    def resize(self, width, height):
        """Gives the only monitor another mode, and the framebuffer that size."""
        mode = f"{width}x{height}"
        if not re.search(rf"^ +{mode} ", self._xrandr(), re.MULTILINE):
            # No monitor draws these timings.
            self._xrandr("--newmode", mode, "40", *map(str, (width, width + 8, width + 16, width + 24)),
                         *map(str, (height, height + 1, height + 2, height + 3)))
            self._xrandr("--addmode", OUTPUT, mode)
        self._xrandr("--output", OUTPUT, "--mode", mode)
        self._xrandr("--fb", mode)


class Scale:
    """A settings manager in the session, as every larger desktop has one, that says how many dots an inch has."""

    def __init__(self, desktop):
        self._wishes = desktop.directory / "scale"
        self._wishes.write_text("")
        self._manager = desktop.processes.start("settings-manager", sys.executable,
                                                desktop.copy_of_script("settings_manager.py"), self._wishes)
        self.tell(1)

    def tell(self, scale):
        dots = round(UNSCALED * scale)
        with open(self._wishes, "a", encoding="ascii") as wishes:
            wishes.write(f"{dots}\n")
        until(f"{dots} dots an inch are told", lambda: self._manager.output().split()[-1:] == [str(dots)])
