#!/usr/bin/python3
"""tour.py PROGRAM FOLDER: starts the program on a private virtual desktop with a real bar, walks through it as a user does,
and leaves a picture of each stop in FOLDER. A stop that can't be made is reported, and the status is then 1."""

import pathlib
import shutil
import sys
import traceback

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests" / "desktop"))

from harness import Desktop, until  # noqa: E402

HOST = "xfce"
CLOCK = "2025-11-15 12:00:00"
LINE = "🌫️ 23 Brumaire · Tridi · 5:00"
TODAY, TOMORROW = "23 Brumaire an CCXXXIV", "24 Brumaire an CCXXXIV"


MISSING = (StopIteration, LookupError)


class Tour:
    def __init__(self, desktop, program, folder):
        self.desktop = desktop
        self.program = program
        self.folder = folder
        self.failed = []
        self.count = 0

    def stop(self, name, walk):
        """One stop: walk there, then take a picture, also of where a failed walk has ended."""
        self.count += 1
        try:
            walk()
            told = "ok"
        except Exception as error:  # every reason is told; the tour goes on from wherever it stands
            told = f"FAILED: {error}"
            self.failed.append(name)
            if not isinstance(error, (AssertionError, LookupError)):
                traceback.print_exc()
        picture = self.folder / f"{self.count:02}-{name.replace(' ', '-')}.png"
        try:
            self.wait_until_still()
            self.desktop.save_picture(picture)
        except Exception as error:
            told += f"; no picture: {error}"
            if name not in self.failed:
                self.failed.append(name)
        print(f"{self.count}. {name}: {told}", flush=True)

    # The stops

    def label(self):
        self.program.wait_for_text(LINE)
        until("the line has a window in the bar", self.window_in_bar)

    def panel(self):
        self.open_panel()
        self.program.wait_for_text(TODAY)

    def next_day(self):
        self.open_panel()
        self.program.press("Next day")
        self.program.wait_for_text(TOMORROW)

    def previous_day(self):
        self.program.press("Previous day")
        self.program.wait_for_text(TODAY)
        self.program.press("Previous day")
        self.program.wait_for_text("22 Brumaire an CCXXXIV")

    def today_again(self):
        self.program.press("Aujourd'hui")
        self.program.wait_for_text(TODAY)

    def copy(self):
        self.program.press("Copy")
        text = until("something is on the clipboard", self.desktop.clipboard)
        wanted = "🌫️ 23 Brumaire an CCXXXIV · 5:00 décimal"
        if text != wanted:
            raise AssertionError(f"the clipboard holds {text!r}, not {wanted!r}")

    def settings(self):
        self.open_panel()
        self.program.press("Preferences")
        for title in ("General", "Appearance", "Menu bar", "Daily reminder", "Sound"):
            until(f"the settings have a section {title!r}", lambda title=title: self.is_shown(title))

    def night(self):
        self.choose("Theme", "Sepia night")
        self.preference_becomes("appTheme=sepiaNight")

    def night_panel(self):
        self.open_panel()
        self.program.wait_for_text(TODAY)

    def daylight(self):
        self.settings()
        self.choose("Theme", "Light parchment")
        self.preference_becomes("appTheme=light")

    def day_number(self):
        self.choose("Show", "Day number only")
        self.program.wait_for_text("🌫️ 23")

    def quit(self):
        self.open_panel()
        self.program.press("Quit")
        status = self.program.wait(10)
        if status != 0:
            raise AssertionError(f"the program ended with status {status}:\n{self.program.output()}")

    # Ways

    def wait_until_still(self):
        """Fades and bars have come to their end. The panel's seconds go on, every 864 ms."""
        last = None

        def still():
            nonlocal last
            before, last = last, self.desktop.picture().pixels
            return before == last

        until("the screen is still", still, every=0.3)

    def open_panel(self):
        """Opens the panel by a click on the line in the bar, unless it is open."""
        if self.is_shown("Next day"):
            return
        window = until("the line has a window in the bar", self.window_in_bar)
        self.desktop.click(window.x + window.width // 2, window.y + window.height // 2)
        until("the panel is open", lambda: self.is_shown("Next day"))

    def window_in_bar(self):
        return next(iter(self.desktop.docked_windows(self.program)), None)

    def is_shown(self, name):
        self.program.must_run()
        return bool(self.program.nodes(name=name))

    def choose(self, picker, option):
        """Opens the picker and clicks on the option, where the screen shows them."""
        self.click_on(until(f"the picker {picker!r} is on the screen", lambda: next(
            node for node in self.program.nodes("combo box") if picker in node.labels), passing=MISSING))
        self.click_on(until(f"the option {option!r} is on the screen", lambda: next(
            node for node in self.program.nodes("list item", option)), passing=MISSING))

    def click_on(self, node):
        x, y, width, height = node.extents
        self.desktop.click(x + width // 2, y + height // 2)

    def preference_becomes(self, line):
        until(f"the preferences say {line}", lambda: line in self.program.preferences().splitlines())


def main():
    program_path, folder = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    with Desktop(HOST, screen="1280x800x24") as desktop:
        desktop.clock.set(CLOCK)
        tour = Tour(desktop, desktop.start_program(program_path), folder)
        for name in ("label", "panel", "next day", "previous day", "today again", "copy", "settings", "night",
                     "night panel", "daylight", "day number", "quit"):
            tour.stop(name, getattr(tour, name.replace(" ", "_")))
    print(f"The pictures are in {folder}")
    if tour.failed:
        print(f"The tour failed at: {', '.join(tour.failed)}")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
