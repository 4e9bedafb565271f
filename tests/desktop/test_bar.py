#!/usr/bin/python3
"""The line in a bar that takes items or docks windows, and what happens when that bar ends and comes back."""

import os
import pathlib
import re
import signal

from harness import DesktopTest, Late, main, until
from harness.eyes import PANEL_HEIGHT
from harness.moments import LINE, NOON, TWO_TICKS

BACK_WITHIN = 2.0
SAMPLES = 16
MOST_AIR = 16  # pixels, left and right together
LINE_HEIGHT = 16  # logical pixels, without the label's margins
LEAST_SIDE, ROW = 16, 26


class Item(DesktopTest):
    """For hosts with a watcher and no tray, where the item is the only way into the bar."""

    def test_title_is_the_line(self):
        self.desktop.clock.set(NOON)
        self.start_program().wait_for_title(LINE)

    def test_tooltip_tells_the_line(self):
        self.desktop.clock.set(NOON)
        item = self.start_program().wait_for_title(LINE)
        _icon, _pixmaps, title, text = item["ToolTip"]
        self.assertEqual(title, LINE)
        self.assertNotIn("&", text)
        self.assertNotIn("<", text)

    def test_title_follows_the_clock(self):
        self.desktop.clock.set(NOON)
        program = self.start_program()
        program.wait_for_title(LINE)
        for clock, line in (("2025-11-16 14:24:00", "🌫️ 24 Brumaire · Quartidi · 6:00"), (NOON, LINE)):
            self.desktop.clock.set(clock)
            program.wait_for_title(line, limit=TWO_TICKS)

    def test_title_has_the_stored_format(self):
        for stored, line in (("dateAndTime", LINE), ("date", "🌫️ 23 Brum."), ("decimalTime", "🌫️ 5:00"),
                             ("dayNumber", "🌫️ 23")):
            with self.subTest(stored=stored):
                self.desktop.clock.set(NOON)
                program = self.start_program(preferences={"menuBarFormat": stored})
                program.wait_for_title(line)
                program.stop()

    def test_started_before_the_bar(self):
        self.desktop.host.stop_bar(self.desktop)
        self.desktop.clock.set(NOON)
        program = self.start_program()
        program.wait_for_text(LINE)  # meanwhile floating
        self.desktop.host.start_bar(self.desktop)
        self.desktop.host.wait_for_bar(self.desktop)
        program.wait_for_title(LINE, limit=BACK_WITHIN)


class Docked(DesktopTest):
    """For hosts whose tray holds the line itself."""

    def test_is_as_wide_as_its_text(self):
        # Some bars enlarge a window that is lower than their row, with its proportions.
        for stored, line in (("dateAndTime", LINE), ("decimalTime", "🌫️ 5:00")):
            with self.subTest(stored=stored):
                self.desktop.clock.set(NOON)
                program = self.start_program(preferences={"menuBarFormat": stored})
                program.wait_for_text(line)
                until("no more than padding is beside the text", lambda: 0 < self.air(program) <= MOST_AIR)
                self.stands_still(program)
                program.stop()

    def test_sleeps_between_ticks(self):
        self.desktop.clock.set("2025-11-15 11:59:50")
        program = self.start_program()
        program.wait_for_text("🌫️ 23 Brumaire · Tridi · 4:99")
        self.stands_still(program)
        before, switches = self.line_pixels(program), self.switches(program)
        # Looked at from without: a question about its text would wake the program.
        until("the decimal minute passes", lambda: self.line_pixels(program) != before, limit=12, every=0.2)
        self.assertLess(self.switches(program) - switches, 60)

    def line_pixels(self, program):
        window, = self.desktop.docked_windows(program)
        return self.desktop.picture().cropped(window.x, window.y, window.width, window.height).pixels

    @staticmethod
    def switches(program):
        """How often the program's first thread has gone to sleep."""
        status = pathlib.Path(f"/proc/{program.pid}/status").read_text()
        return int(re.search(r"^voluntary_ctxt_switches:\s*(\d+)", status, re.MULTILINE)[1])

    def stands_still(self, program):
        """Bar and line have come to terms: for longer than a bar takes to lay out its items, nothing moves."""
        seen = []

        def still():
            seen.append([(window.x, window.width, window.height) for window in self.desktop.docked_windows(program)])
            return len(seen) >= SAMPLES and seen[-SAMPLES:] == SAMPLES * [seen[-1]]

        until("the line stands still", still, every=0.1)
        self.assertLessEqual(self.air(program), MOST_AIR)

    def air(self, program):
        """The columns of the line's window without ink, left and right of the text; 0 while it is not drawn."""
        for window in self.desktop.docked_windows(program):
            picture = self.desktop.picture().cropped(window.x, window.y, window.width, window.height)
            ground = picture[0, window.height // 2]
            inked = [x for x in range(window.width)
                     if any(picture[x, y] != ground for y in range(3, window.height - 3))]
            return window.width - (inked[-1] - inked[0]) if inked else 0
        return 0


class TooLow(DesktopTest):
    """For hosts whose tray holds the line itself, in a row lower than the line is at twice its size."""

    def test_the_icon_takes_its_place_and_the_line_floats(self):
        self.desktop.clock.set(NOON)
        program = self.start_program(environment={"QT_SCALE_FACTOR": "2"})
        icon = until("the tray holds a square as high as its row", lambda: self.square(program))
        picture = self.desktop.picture().cropped(icon.x, icon.y, icon.width, icon.height)
        self.assertGreater(len(picture.colours()), 2, "nothing is drawn there")
        until("the line floats", lambda: self.floats(program, 2 * LINE_HEIGHT))
        self.desktop.click(icon.x + icon.width // 2, icon.y + icon.height // 2)
        until("a click on the icon has opened the panel", lambda: self.floats(program, PANEL_HEIGHT))

    def square(self, program):
        windows = self.desktop.docked_windows(program)
        if len(windows) != 1 or not LEAST_SIDE <= windows[0].width == windows[0].height < ROW:
            return None
        return windows[0]

    def floats(self, program, height):
        """A window of the program of that height or more is outside the bar."""
        return any(not window.docked and window.height >= height
                   for window in self.desktop.x11.windows_of(program.pid))


class SlowBar(DesktopTest):
    """For hosts whose tray holds the line itself, but takes its time, as while a session begins."""

    def test_is_waited_for(self):
        self.desktop.clock.set(NOON)
        bar = self.desktop.host.bar
        os.killpg(bar.pid, signal.SIGSTOP)
        try:
            program = self.start_program()
            with self.assertRaises(Late):
                until("the line is shown elsewhere", lambda: self.desktop.x11.windows_of(program.pid), limit=3)
        finally:
            os.killpg(bar.pid, signal.SIGCONT)
        until("the line is in the bar", lambda: self.desktop.docked_windows(program))
        program.wait_for_text(LINE)


class Return(DesktopTest):
    """For every host with a bar."""

    def test_the_bar_comes_back_and_so_does_the_line(self):
        self.desktop.clock.set(NOON)
        program = self.start_program()
        self.wait_until_in_bar(program)
        for _ in range(2):
            self.desktop.restart_bar()
            self.wait_until_in_bar(program, BACK_WITHIN)

    def wait_until_in_bar(self, program, limit=10.0):
        def in_bar():
            program.must_run()
            if self.desktop.host.has_tray and self.desktop.docked_windows(program):
                return True
            return self.desktop.host.has_watcher and self.desktop.item_of(program).title == LINE

        until("the line is in the bar", in_bar, limit)


if __name__ == "__main__":
    main()
