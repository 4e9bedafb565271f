#!/usr/bin/python3
"""What a user sees of the line on each kind of bar, and what clicks on it do. Judged by pixels, since most bars tell a
screen reader nothing of the items in them."""

from harness import DesktopTest, main, until
from harness.eyes import (FAINTEST, HIGHEST, LOWEST, NARROWEST, ONE_DAY, bar_area, floating_label, panel,
                          pictures_of_both_days, places_to_click, sight_of_line, start_seen_program, still_picture)

NEAR = 70  # from the click to the panel: the higher half of the highest bar, and some air


class Line(DesktopTest):
    limit = 90
    screen = "1280x900x24"  # with room for the whole panel beside the label

    def setUp(self):
        super().setUp()
        self.program = start_seen_program(self)

    def test_is_read_as_text(self):
        pictures = pictures_of_both_days(self.desktop)
        sight = sight_of_line(self.desktop, self.program, pictures)
        self.assertTrue(sight, "nothing on the screen changes with the line")
        self.assertGreaterEqual(sight.box.width, NARROWEST, f"squeezed or cut: {sight}")
        self.assertTrue(LOWEST <= sight.box.height <= HIGHEST, f"not one row of text: {sight}")
        # The day's figure, the weekday, the hour and the minutes stand apart.
        self.assertGreaterEqual(len(sight.parts), 3, f"a blur: {sight}")
        self.assertGreaterEqual(sight.contrast, FAINTEST, f"hardly to be told from the ground: {sight}")
        label = floating_label(self.desktop, self.program)
        if label:
            self.is_uncovered_and_beside_the_bar(label, pictures[0])
            self.program.wait_for_text(ONE_DAY[1])

    def is_uncovered_and_beside_the_bar(self, label, picture):
        right, bottom = label.x + label.width - 1, label.y + label.height - 1
        edges = {picture[x, y] for x in range(label.x, right + 1) for y in (label.y, bottom)}
        edges |= {picture[x, y] for x in (label.x, right) for y in range(label.y, bottom + 1)}
        self.assertEqual(len(edges), 1, f"something covers the label's edge: {edges}")
        bar = bar_area(self.desktop, picture)
        gap = bar.y - bottom if self.desktop.host.bar_at_bottom else label.y - (bar.y + bar.height)
        self.assertLessEqual(gap, 20, "the label is far from the bar")

    def test_a_click_opens_the_panel_there_and_the_next_one_closes_it(self):
        places = places_to_click(self.desktop, self.program)
        for name, (x, y) in places.items():
            self.click_or_choose(x, y)
            opened = until(f"a click on the {name} has opened the panel", lambda: panel(self.desktop, self.program))
            self.is_near(opened, x, y)
            self.desktop.click(x, y)
            until(f"a second click on the {name} has closed the panel",
                  lambda: panel(self.desktop, self.program) is None)

    def click_or_choose(self, x, y):
        self.desktop.click(x, y)
        if self.desktop.host.click_opens_menu:
            shown = still_picture(self.desktop)
            self.desktop.key("Down", "Return")  # the line, which cannot be chosen, stands above "Open the panel"
            until("the menu has closed", lambda: self.desktop.picture().pixels != shown.pixels)

    def is_near(self, opened, x, y):
        self.assertTrue(opened.x <= x < opened.x + opened.width, f"the click at {x} is not above or below {opened}")
        distance = max(opened.y - y, y - (opened.y + opened.height))
        self.assertTrue(-1 <= distance <= NEAR, f"the click at {y} is {distance} from {opened}")
        screen = self.desktop.picture()
        self.assertTrue(opened.x >= 0 and opened.y >= 0 and opened.x + opened.width <= screen.width
                        and opened.y + opened.height <= screen.height, f"{opened} leaves the screen")


if __name__ == "__main__":
    main()
