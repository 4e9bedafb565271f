#!/usr/bin/python3
"""Several monitors, one of them unplugged or resized with the panel open, and a scale changed while the program runs."""

import itertools

from harness import PanelTest, main, until
from harness.eyes import Box, floating_label, panel, start_seen_program, still_picture
from harness.monitors import Monitors, Scale

LEFT, RIGHT = Box(0, 0, 800, 900), Box(800, 0, 800, 760)
NARROW_RIGHT = Box(800, 0, 420, 760)
PANEL_WIDTH = 320
FROM_THE_CORNER = 20
WHOLE, SMALL = Box(0, 0, 1600, 900), Box(0, 0, 800, 600)


def within(inner, outer):
    """A pixel more is granted: under a fractional scale the toolkit rounds the screen's own size up."""
    return (inner.x >= outer.x and inner.y >= outer.y and inner.x + inner.width <= outer.x + outer.width + 1
            and inner.y + inner.height <= outer.y + outer.height + 1)


class MonitorsTest(PanelTest):
    screen = "1600x900x24"

    def setUp(self):
        super().setUp()
        self.monitors = Monitors(self.desktop)

    def start_seen(self, *monitors):
        if monitors:
            self.monitors.arrange(*monitors)
        self.program = start_seen_program(self)

    def label(self):
        return floating_label(self.desktop, self.program)

    def until_label_within(self, monitor):
        """The label, still, in the upper right corner of that monitor."""
        def in_corner():
            label = self.place_within(floating_label, monitor)
            if (monitor.x + monitor.width - label.x - label.width > FROM_THE_CORNER
                    or label.y - monitor.y > FROM_THE_CORNER):
                raise LookupError(f"at {label}")
            return label
        return until(f"the label is in the corner of {monitor}", in_corner)

    def until_panel_within(self, monitor):
        return until(f"the open panel is wholly in {monitor}", lambda: self.place_within(panel, monitor))

    def place_within(self, find, monitor):
        box = find(self.desktop, self.program)
        if box is None:
            raise LookupError("not there")
        if not within(box, monitor):
            raise LookupError(f"at {box}")
        return box

    def click_label(self):
        self.desktop.click(*self.label().middle)

    def drag_label(self, x, y):
        """Pulls the label by its middle to a place of the screen, where it must be under the pointer."""
        pointer, before = self.desktop.pointer, self.label()
        pull = itertools.count(1)

        def follows():
            pointer.move(before.middle[0] - 10 * next(pull), before.middle[1] + 10)
            return self.label() != before

        pointer.move(*before.middle)
        pointer.press()
        until("it has been taken hold of", follows)
        pointer.move(x, y)
        until("the label is where the pointer is", lambda: abs(self.label().middle[0] - x) < before.width / 2
              and abs(self.label().middle[1] - y) < 2 * before.height)
        pointer.release()

    def must_be_well(self):
        self.program.must_run()
        self.assertEqual(self.program.output(), "")


class Several(MonitorsTest):
    def test_the_panel_opens_on_the_monitor_of_the_click(self):
        self.start_seen(LEFT, RIGHT)
        self.until_label_within(LEFT)
        self.click_label()
        opened = self.until_panel_within(LEFT)
        self.assertEqual(opened.x + opened.width, LEFT.width, "its middle is that of the click, cut at the seam")
        self.desktop.key("Escape")
        self.until_closed()

        self.drag_label(1000, 300)
        self.click_label()
        self.until_panel_within(RIGHT)
        self.must_be_well()

    def test_a_second_start_opens_it_on_the_monitor_of_the_pointer(self):
        self.start_seen(LEFT, RIGHT)
        for monitor in (RIGHT, LEFT):
            # At the seam, where its middle would be on both.
            self.desktop.pointer.move(800 if monitor is RIGHT else 799, 400)
            self.assertEqual(self.start_program().wait(), 0)
            self.until_panel_within(monitor)
            self.desktop.key("Escape")
            self.until_closed()

    def test_the_primary_one_is_neither_the_leftmost_nor_at_the_origin(self):
        self.start_seen(RIGHT, LEFT)
        self.until_label_within(RIGHT)
        self.click_label()
        self.until_panel_within(RIGHT)

    def test_one_comes_while_the_program_runs(self):
        self.start_seen(LEFT)
        self.monitors.arrange(LEFT, RIGHT)
        self.until_label_within(LEFT)
        self.drag_label(1000, 300)
        self.click_label()
        self.until_panel_within(RIGHT)
        self.must_be_well()


class Dragged(MonitorsTest):
    def test_the_label_follows_the_pointer_and_stays(self):
        self.start_seen(LEFT)
        for x, y in ((300, 300), (500, 200)):
            self.drag_label(x, y)
        stays = self.label()
        self.click_label()
        self.until_panel_within(LEFT)
        self.desktop.key("Escape")
        self.until_closed()
        self.assertEqual(self.label(), stays)
        self.must_be_well()


class Remembered(MonitorsTest):
    """The place to which the label was dragged."""

    def start_again(self):
        self.program.stop()
        self.program = self.start_program()

    def place(self, stored):
        self.program = start_seen_program(self, floatingLabelPlace=stored)

    def test_is_its_place_in_the_next_session(self):
        self.start_seen(LEFT)
        self.drag_label(300, 300)
        self.drag_label(500, 200)
        stays = self.label()
        until("it is stored", lambda: f"floatingLabelPlace={stays.x} {stays.y}" in self.program.preferences())
        self.start_again()
        until("the label is where it was", lambda: self.label() == stays)
        self.drag_label(300, 400)
        stays = self.label()
        self.start_again()  # before it would be stored
        until("the label is where it was", lambda: self.label() == stays)
        self.must_be_well()

    def test_is_on_a_monitor_or_not_taken(self):
        self.monitors.arrange(LEFT)
        for stored in ("1300 300", "-5000 -5000", "300", "300 x", "99999999999 1", "2147483647 2147483647", "0 2147483647", ""):
            with self.subTest(stored=stored):
                self.place(stored)
                self.until_label_within(LEFT)
                self.must_be_well()
                self.program.stop()

    def test_is_wholly_on_its_monitor(self):
        self.monitors.arrange(LEFT)
        self.place("660 300")
        until("the label is whole", lambda: self.place_within(floating_label, LEFT))
        self.assertEqual(self.label().y, 300)
        self.must_be_well()

    def test_outlives_an_unplugged_monitor(self):
        self.start_seen(LEFT, RIGHT)
        self.drag_label(1100, 300)
        stays = self.label()
        self.monitors.arrange(LEFT)
        self.until_label_within(LEFT)
        self.monitors.arrange(LEFT, RIGHT)
        until("the label is where it was", lambda: self.label() == stays)
        self.must_be_well()

    def test_is_on_what_is_left_of_a_second_monitor(self):
        self.start_seen(LEFT, RIGHT)
        self.drag_label(1180, 300)
        height = self.label().y
        self.monitors.arrange(LEFT, NARROW_RIGHT)
        until("the label is whole", lambda: self.place_within(floating_label, NARROW_RIGHT))
        self.assertEqual(self.label().y, height)
        self.must_be_well()

    def test_is_taken_when_its_monitor_is_there_again(self):
        self.monitors.arrange(LEFT)
        self.place("1300 300")
        self.until_label_within(LEFT)
        self.monitors.arrange(LEFT, RIGHT)
        until("the label is there", lambda: (self.label().x, self.label().y) == (1300, 300))
        self.must_be_well()


class Unplugged(MonitorsTest):
    def open_on_the_right(self):
        self.start_seen(LEFT, RIGHT)
        self.drag_label(1000, 300)
        self.click_label()
        self.until_panel_within(RIGHT)

    def test_the_one_with_the_panel(self):
        self.open_on_the_right()
        self.monitors.arrange(LEFT)
        self.until_panel_within(LEFT)
        self.until_label_within(LEFT)
        self.open_again(LEFT)

    def test_the_primary_one(self):
        self.start_seen(LEFT, RIGHT)
        self.click_label()
        self.until_panel_within(LEFT)
        self.monitors.arrange(RIGHT)
        self.until_panel_within(RIGHT)
        self.until_label_within(RIGHT)
        self.open_again(RIGHT)

    def test_time_and_again(self):
        self.start_seen(LEFT, RIGHT)
        for _ in range(5):
            self.monitors.arrange(RIGHT)
            self.monitors.arrange(LEFT, RIGHT)
        self.until_label_within(LEFT)
        self.open_again(LEFT)

    def open_again(self, monitor):
        """What was open can be used as before."""
        if self.panel_is_open():
            self.desktop.key("Escape")
            self.until_closed()
        self.click_label()
        self.until_panel_within(monitor)
        self.desktop.key("Left")
        self.program.wait_for_text("22 Brumaire an CCXXXIV")
        self.must_be_well()


class Resized(MonitorsTest):
    def test_with_the_panel_open(self):
        self.start_seen()
        self.until_label_within(WHOLE)
        self.click_label()
        self.until_panel_within(WHOLE)
        self.monitors.resize(SMALL.width, SMALL.height)
        self.until_panel_within(SMALL)
        self.until_label_within(SMALL)
        self.monitors.resize(WHOLE.width, WHOLE.height)
        self.until_label_within(WHOLE)
        self.must_be_well()

    def test_a_dragged_label_comes_back_to_what_is_left(self):
        self.start_seen()
        self.drag_label(1300, 800)
        self.monitors.resize(SMALL.width, SMALL.height)
        self.until_label_within(SMALL)
        self.must_be_well()


class Scaled(MonitorsTest):
    def look(self):
        """The still label with all its pixels."""
        box = self.until_label_within(WHOLE)
        return still_picture(self.desktop).cropped(box.x, box.y, box.width, box.height).ppm()

    def test_looks_as_if_started_at_that_scale(self):
        scale = Scale(self.desktop)
        fresh = {}
        for factor in (2, 1.25, 1):
            scale.tell(factor)
            self.start_seen()
            fresh[factor] = self.look()
            self.program.stop()
        self.assertEqual(len(set(fresh.values())), 3)
        self.start_seen()
        for factor in (1.25, 2, 1):
            scale.tell(factor)
            until(f"at {factor} it looks as one that was started so", lambda: self.look() == fresh[factor])
        self.must_be_well()

    def test_the_panel_opens_wholly_on_the_screen_at_each(self):
        scale = Scale(self.desktop)
        self.start_seen()
        plain = self.until_label_within(WHOLE)
        for factor in (2, 1, 1.5):
            scale.tell(factor)
            until("the label has the size of the scale", lambda: abs(self.label().width - factor * plain.width) <= 2)
            self.until_label_within(WHOLE)
            self.click_label()
            opened = self.until_panel_within(WHOLE)
            self.assertAlmostEqual(opened.width, factor * PANEL_WIDTH, delta=2)
            self.desktop.key("Escape")
            self.until_closed()
        self.must_be_well()

    def test_with_the_panel_open(self):
        scale = Scale(self.desktop)
        self.start_seen()
        self.click_label()
        self.until_panel_within(WHOLE)
        for factor in (1.5, 2, 1):
            scale.tell(factor)
            until("the panel has the size of the scale",
                  lambda: abs(panel(self.desktop, self.program).width - factor * PANEL_WIDTH) <= 2)
            self.until_panel_within(WHOLE)
        self.must_be_well()


if __name__ == "__main__":
    main()
