"""Test cases that use the panel and the settings window as a person does: by clicks, keys and what a screen reader reads."""

from .case import DesktopTest
from .moments import LINE, NOON
from .waiting import until


class PanelTest(DesktopTest):
    line = None

    def start(self, clock=NOON, line=LINE, **options):
        self.desktop.clock.set(clock)
        self.program = self.start_program(**options)
        self.program.wait_for_text(line)
        return self.program

    def place_of_line(self):
        """The middle of the line, in the bar or afloat, once its window is there to be clicked."""
        def window():
            """While nothing else is open, the line's window is the program's only one."""
            docked = self.desktop.docked_windows(self.program)
            return (docked or self.desktop.x11.windows_of(self.program.pid))[-1]

        before = None
        def settled():
            nonlocal before
            last, before = before, window()
            return before if before == last else None

        place = until("the line stands still", settled, every=0.1)
        return place.x + place.width // 2, place.y + place.height // 2

    @staticmethod
    def middle_of(node):
        x, y, width, height = node.extents
        return x + width // 2, y + height // 2

    def open_panel(self):
        if self.line is None:
            self.line = self.place_of_line()
        self.desktop.click(*self.line)
        until("the panel is open", self.panel_is_open)

    def panel_is_open(self):
        self.program.must_run()
        return bool(self.program.nodes("push button", "Next day"))

    def until_closed(self):
        until("the panel is closed", lambda: not self.panel_is_open())

    def click_on(self, name, role="push button"):
        self.desktop.click(*self.middle_of(until(f"{name!r} is there", lambda: self.program.node(role, name))))

    def preference_becomes(self, line):
        until(f"the preferences say {line}", lambda: line in self.program.preferences().splitlines())

    def open_settings(self):
        if not self.panel_is_open():
            self.open_panel()
        self.click_on("Preferences")
        until("the settings are open", lambda: self.program.nodes("check box", "Launch at login"))
