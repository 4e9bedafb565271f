#!/usr/bin/python3
"""Every screen as a screen reader and a keyboard find it: no control without a name, no text without words, everything
within reach of the keyboard and in the order in which it is read; also with large text."""

from harness import Late, PanelTest, main, until
from harness.eyes import panel

CONTROLS = {"push button", "toggle button", "check box", "combo box", "spin box", "radio button", "slider", "entry"}
TEXTS = {"label", "static", "text"}
MOST_STOPS = 40
# A form has its words beside the control.
NAMED_BY_LABELS = {"combo box", "spin box"}


class Walk(PanelTest):
    limit = 90

    def nodes(self):
        return [(node.role, node.name, node) for node in self.program.nodes()]

    def assert_speaks(self):
        nodes = self.nodes()
        controls = [(role, name, node) for role, name, node in nodes if role in CONTROLS]
        self.assertTrue(controls)
        for role, name, node in controls:
            self.assertTrue(name.strip() or (role in NAMED_BY_LABELS and any(node.labels)), f"a {role} without a name")
        for role, name, _node in nodes:
            if role in TEXTS:
                self.assertTrue(name.strip(), f"a {role} without words")
                self.assertNotIn("�", name)
        return controls

    def focused(self):
        return next(((node.role, node.name, node.extents) for node in self.program.nodes() if node.has("focused")), None)

    def tab_order(self):
        """What Tab visits until it comes round, each by its role, name and place."""
        order = []
        for _ in range(MOST_STOPS):
            self.desktop.key("Tab")
            try:
                place = until("the focus has moved", lambda: (now := self.focused()) not in (None, *order[-1:]) and now, 1)
            except Late:
                continue  # within a control of several fields
            if place in order:
                return order
            order.append(place)
        self.fail(f"Tab does not come round: {order}")

    @staticmethod
    def in_reading_order(places):
        """Row by row: of what overlaps in height the left one is first."""
        for (_, _, first), (_, _, second) in zip(places, places[1:]):
            is_below = second[1] >= first[1] + first[3] / 2
            is_right = second[0] >= first[0] and second[1] + second[3] / 2 >= first[1]
            if not (is_below or is_right):
                return False
        return True

    def assert_keyboard_reaches(self, controls):
        order = [place for place in self.tab_order() if place[0] in CONTROLS]
        start = order.index(min(order, key=lambda place: (place[2][1], place[2][0])))
        order = order[start:] + order[:start]
        self.assertTrue(self.in_reading_order(order), [place[1] for place in order])
        visited = {(role, name) for role, name, _ in order}
        for role, name, node in controls:
            if node.has("enabled") and node.has("showing"):
                self.assertIn((role, name), visited, "out of the keyboard's reach")

    def test_the_panel(self):
        self.start()
        self.open_panel()
        self.assert_keyboard_reaches(self.assert_speaks())

    def test_the_panel_on_every_kind_of_day(self):
        """With events, without; with a plant, an animal, a tool, a mineral; a complementary day; in both themes."""
        for clock, line, theme in (("2025-07-27 12:00:00", "☀️ 7 Thermidor · Septidi · 5:00", "sepiaNight"),
                                   ("2025-09-19 12:00:00", None, "light"), ("2025-12-25 12:00:00", None, "light")):
            with self.subTest(clock=clock):
                self.line = None
                self.desktop.clock.set(clock)
                self.program = self.start_program(preferences={"appTheme": theme})
                until("the line is there", lambda: any(" · " in text for text in self.program.texts()))
                self.open_panel()
                for _ in range(6):
                    self.assert_speaks()
                    self.desktop.key("Right")
                self.program.stop()

    def test_the_settings(self):
        self.start()
        self.open_settings()
        self.until_closed()
        self.assert_keyboard_reaches(self.assert_speaks())

    def test_large_text(self):
        """Half as large again, where the desktop enlarges everything, and where it enlarges only its text: all is there, on the
        screen, and larger."""
        enlarged = {"QT_FONT_DPI": "144"}
        usual, usual_label = self.sizes({})
        everything, label = self.sizes(enlarged)
        self.assertAlmostEqual(everything.width, 1.5 * usual.width, delta=1)
        self.assertEqual(label, usual_label, "told in the toolkit's own pixels, which have become larger")
        text, label = self.sizes({**enlarged, "QT_ENABLE_HIGHDPI_SCALING": "0"})
        self.assertAlmostEqual(text.width, 1.5 * usual.width, delta=1)
        self.assertAlmostEqual(label, 1.5 * usual_label, delta=2)

    def sizes(self, environment):
        """The panel's place on the screen, and the height of one of its texts."""
        self.line = None
        self.start(environment=environment)
        self.open_panel()
        self.assert_speaks()
        opened = panel(self.desktop, self.program)
        self.assertTrue(0 <= opened.x and opened.x + opened.width <= 1280 and 0 <= opened.y
                        and opened.y + opened.height <= 720, opened)
        for name in ("Previous day", "Next day", "Toggle chime", "Copy", "Preferences", "Quit"):
            self.program.node("push button", name)
        _x, _y, _width, height = self.program.node(name="Decimal Time").extents
        self.program.stop()
        return opened, height


if __name__ == "__main__":
    main()
