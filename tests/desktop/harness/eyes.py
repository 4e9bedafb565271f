"""Where the line stands on a screen, found as eyes find it: by what changes when the clock is set to another hour and
back. What else moves meanwhile, a bar's own clock for example, does not come back and is left out."""

import dataclasses

from .hosts import DOCKED, FLOATING, ICON, LABEL, PICTURE
from .moments import LINE, NOON
from .preferences import QUIET
from .waiting import until

# Two lines of one length that differ in the day's number, the weekday and the whole time.
ONE_DAY = (NOON, LINE)
OTHER_DAY = ("2025-11-14 16:20:00", "🌫️ 22 Brumaire · Duodi · 6:80")


@dataclasses.dataclass(frozen=True)
class Box:
    """A rectangle of the screen, in its pixels."""

    x: int
    y: int
    width: int
    height: int

    @property
    def middle(self):
        return self.x + self.width // 2, self.y + self.height // 2

    def contains(self, x, y):
        return self.x <= x < self.x + self.width and self.y <= y < self.y + self.height


class Sight:
    """The pixels of `area` that changed with the line: their boundary, their parts from left to right, and how far
    the brightest of them is from the darkest, of 255."""

    def __init__(self, picture, points):
        columns = sorted({x for x, _ in points})
        rows = sorted({y for _, y in points})
        self.box = Box(columns[0], rows[0], columns[-1] - columns[0] + 1, rows[-1] - rows[0] + 1) if points else None
        self.parts = []
        for x in columns:
            if self.parts and x - self.parts[-1][1] <= 2:  # no more than what lies between two figures of a number
                self.parts[-1][1] = x
            else:
                self.parts.append([x, x])
        brightness = [_brightness(picture[point]) for point in points] or [0]
        self.contrast = max(brightness) - min(brightness)

    def __bool__(self):
        return self.box is not None

    def __repr__(self):
        return f"<{self.box}, parts {self.parts}, contrast {self.contrast:.0f}>"


def _brightness(colour):
    red, green, blue = colour
    return 0.299 * red + 0.587 * green + 0.114 * blue


def still_picture(desktop):
    """The screen once two looks at it, half a second apart, are the same."""
    last = None

    def same():
        nonlocal last
        before, last = last, desktop.picture()
        return last if before is not None and before.pixels == last.pixels else None

    return until("the screen is still", same, 20, every=0.5)


def pictures_of_both_days(desktop):
    """The screen with the line of one day, of the other, and of the one again, which must be running."""
    again = still_picture(desktop)
    for _ in range(3):  # a bar that was still laying out its items, or whose own clock went on, is looked at anew
        before = again
        desktop.clock.set(OTHER_DAY[0])
        until("the screen shows another line", lambda: desktop.picture().pixels != before.pixels, 4)
        other = still_picture(desktop)
        desktop.clock.set(ONE_DAY[0])
        until("the screen shows the line again", lambda: desktop.picture().pixels != other.pixels, 4)
        again = still_picture(desktop)
        if again.pixels == before.pixels:
            break
    return before, other, again


def what_changed(pictures, area, but=()):
    """The Sight of what differs in `area` between the days, outside the boxes of `but`."""
    before, other, again = pictures
    points = []
    right, bottom = min(area.x + area.width, before.width), min(area.y + area.height, before.height)
    for y in range(max(0, area.y), bottom):
        for x in range(max(0, area.x), right):
            if (before[x, y] != other[x, y] and before[x, y] == again[x, y]
                    and not any(box.contains(x, y) for box in but)):
                points.append((x, y))
    return Sight(before, points)


# What is known of the line's extent: from the day's last figure to the last of the time there are some two dozen
# characters, in the smallest of the bars' fonts 140 pixels, and never more than one row of text.
NARROWEST, LOWEST, HIGHEST = 130, 5, 26
FAINTEST = 100

PANEL_HEIGHT = 250  # no other window of the program is as high


def start_seen_program(test, **options):
    """Starts the program with nothing but its line to be seen, and waits until it is shown as this host has it."""
    test.desktop.clock.set(ONE_DAY[0])
    program = test.start_program(preferences={**QUIET, **options})
    wait_until_shown(test.desktop, program)
    return program


def wait_until_shown(desktop, program, limit=15.0):
    """Waits until the line of ONE_DAY is shown in the way that this host has it."""
    way = desktop.host.shown_as

    def shown():
        program.must_run()
        if way in (LABEL, PICTURE):
            return desktop.item_of(program).title == ONE_DAY[1]
        if way == DOCKED:
            return any(window.docked and window.width >= NARROWEST for window in desktop.x11.windows_of(program.pid))
        if way == ICON and not (desktop.docked_windows(program) if desktop.host.has_tray
                                else desktop.item_of(program).title == ONE_DAY[1]):
            return False
        return floating_label(desktop, program) is not None

    until(f"the line is shown as {way}", shown, limit)


def bar_area(desktop, picture):
    """The strip of the screen that the bar lies in."""
    depth = desktop.host.bar_depth
    return Box(0, picture.height - depth if desktop.host.bar_at_bottom else 0, picture.width, depth)


def own_windows(desktop, program):
    return [Box(*place) for place in desktop.host.windows_of(desktop, program.pid)]


def floating_label(desktop, program):
    """The label's window; None where the line is shown without one."""
    if desktop.host.shown_as not in (ICON, FLOATING):
        return None
    return next((box for box in own_windows(desktop, program)
                 if box.width >= NARROWEST and box.height < PANEL_HEIGHT), None)


def panel(desktop, program):
    """The open panel's window, or None."""
    program.must_run()
    return next((box for box in own_windows(desktop, program) if box.height >= PANEL_HEIGHT), None)


def sight_of_line(desktop, program, pictures):
    """How the text of the line is seen, wherever it is."""
    return what_changed(pictures, floating_label(desktop, program) or bar_area(desktop, pictures[0]))


def places_to_click(desktop, program):
    """Where a user would click: on the item in the bar, and on the floating label. name -> (x, y)"""
    places = {}
    if desktop.host.shown_as == FLOATING:
        still_picture(desktop)
    else:
        pictures = pictures_of_both_days(desktop)
    label = floating_label(desktop, program)  # only now: it gives way to the bar when that has laid out its items
    if desktop.host.shown_as != FLOATING:
        places["item"] = what_changed(pictures, bar_area(desktop, pictures[0]), but=[label] if label else []).box.middle
    if label:
        places["label"] = label.middle
    return places
