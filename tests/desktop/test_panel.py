#!/usr/bin/python3
"""The panel and the settings window, driven by real clicks and keys and read as a screen reader does."""

from harness import PanelTest, main, until
from harness.moments import LINE
from harness.picture import Picture

TODAY = "23 Brumaire an CCXXXIV"
TWO_DAYS_BEFORE_9_THERMIDOR = "2025-07-27 12:00:00"
PARCHMENT, MAHOGANY = (237, 232, 219), (56, 41, 31)
PLATE_SHOWN = (288, 260, 8)  # its size in the panel, and what is between it and the name below
CONTROLS = ["Previous day", "Next day", "Toggle chime", "Copy", "Preferences", "Quit"]


class Manners(PanelTest):
    """For every host on which the line can be clicked."""

    def test_a_click_opens_and_the_next_one_closes(self):
        self.start()
        self.open_panel()
        self.desktop.click(*self.line)
        self.until_closed()
        self.desktop.click(*self.line)
        until("the panel is open again", self.panel_is_open)

    def test_escape_and_a_click_outside_close(self):
        self.start()
        self.open_panel()
        self.desktop.key("Escape")
        self.until_closed()
        self.open_panel()
        self.desktop.click(5, 715)
        self.until_closed()

    def test_is_wholly_on_the_screen(self):
        self.start()
        self.open_panel()
        for name in CONTROLS:
            x, y, width, height = self.program.node("push button", name).extents
            self.assertTrue(0 <= x and x + width <= 1280 and 0 <= y and y + height <= 720, f"{name}: {x}, {y}")

    def test_keys_work_the_moment_it_opens(self):
        self.start(TWO_DAYS_BEFORE_9_THERMIDOR, "☀️ 7 Thermidor · Septidi · 5:00")
        self.open_panel()
        self.desktop.key("Right", "Right")
        self.program.wait_for_text("9 Thermidor an CCXXXIII")
        texts = self.program.texts()
        for text in ("THERMIDOR", '"Month of Heat"', "Nonidi", "9th of décade", "29 Jul 2025", "ON THIS DAY", "9 Thermidor",
                     "(An II)", "Robespierre arrested - the Terror begins to end", "12:00", "Standard Time"):
            self.assertIn(text, texts)
        self.desktop.key("t")
        self.program.wait_for_text("7 Thermidor an CCXXXIII")
        self.program.wait_for_text("AUJOURD'HUI")
        self.desktop.key("Left")
        self.program.wait_for_text("6 Thermidor an CCXXXIII")

    def test_tab_visits_every_control_as_it_is_read(self):
        self.start()
        self.open_panel()
        visited = []
        for _ in CONTROLS:
            self.desktop.key("Tab")
            visited.append(until("a control has the focus", lambda: next(
                (node.name for node in self.program.nodes("push button")
                 if node.has("focused") and node.name not in visited), None)))
        self.assertEqual(visited, CONTROLS)


class Panel(PanelTest):
    screen = "1280x900x24"  # with room for a picture of full height, whatever the fonts

    def test_says_the_day_in_full(self):
        self.start()
        self.open_panel()
        texts = self.program.texts()
        for text in ("AUJOURD'HUI", "BRUMAIRE", '"Month of Fog"', "🌫️", TODAY, "Tridi", "3rd of décade", "15 Nov 2025",
                     "Gregorian", "Decimal Time", "12:00", "Standard Time", "Garance", "Madder • Plant",
                     "Days Since Last Guillotine", "Sep 10, 1977", "Marseille"):
            self.assertIn(text, texts)
        for name in CONTROLS:
            self.assertTrue(self.program.node("push button", name).has("enabled"), name)

    def test_shows_the_days_plate(self):
        """The plate on the panel's paper, or where none has been drawn the emoji of the day's item."""
        self.start()
        self.open_panel()
        plate = self.program_path.parent / "share/tambrelle/plates/day_053_garance.png"
        self.assertEqual("🌿" in self.program.texts(), not plate.exists())
        if not plate.exists():
            return
        width, height, gap = PLATE_SHOWN
        x, y, breadth, _height = self.program.node(name="Garance").extents
        left, top = x + breadth // 2 - width // 2, y - gap - height
        wanted = Picture.from_ppm(self.desktop.processes.run(
            "convert", plate, "-resize", f"{width}x{height}!", "-depth", "8", "ppm:-"))
        shown = self.desktop.picture().cropped(left, top, width, height)
        places = [(x, y) for x in range(8, width - 8, 2) for y in range(8, height - 8, 2)]  # without the round corners
        off = [abs(shown[place][part] - wanted[place][part] * PARCHMENT[part] / 255) for place in places for part in range(3)]
        self.assertLess(sum(off) / len(off), 4, "another picture")

    def test_copies_the_line_of_the_viewed_day(self):
        self.start()
        self.open_panel()
        self.desktop.key("Left")
        self.program.wait_for_text("22 Brumaire an CCXXXIV")
        self.click_on("Copy")
        until("the clipboard has the day", lambda: self.desktop.clipboard() == "🌫️ 22 Brumaire an CCXXXIV · 5:00 décimal")
        self.click_on("Aujourd'hui")
        self.program.wait_for_text(TODAY)

    def test_toggles_the_chime(self):
        self.start()
        self.preference_becomes("soundEnabled=true")
        self.open_panel()
        self.click_on("Toggle chime")
        self.preference_becomes("soundEnabled=false")
        self.click_on("Toggle chime")
        self.preference_becomes("soundEnabled=true")

    def test_quits(self):
        self.start()
        self.open_panel()
        self.click_on("Quit")
        self.assertEqual(self.program.wait(10), 0)


class Settings(PanelTest):
    def choose(self, present, option):
        """To a screen reader a picker bears the name of its option. Until the list is open, its items have no place."""
        self.click_on(present, "combo box")
        self.desktop.click(*self.middle_of(until(f"the option {option!r}", lambda: next(
            (node for node in self.program.nodes("list item", option) if node.extents[0] > 0), None))))

    def ground(self):
        """The colour of the open panel beside its first button."""
        x, y, _width, _height = self.program.node("push button", "Previous day").extents
        return tuple(self.desktop.picture()[x - 8, y])

    def test_has_its_sections(self):
        self.start()
        self.open_settings()
        self.until_closed()
        texts = self.program.texts()
        for text in ("General", "Appearance", "Theme", "Menu bar", "Show", "Daily reminder", "Time", "Sound"):
            self.assertIn(text, texts)
        for name in ("Launch at login", "Notify me each morning", "Hourly chimes (La Marseillaise)"):
            self.program.node("check box", name)

    def test_a_theme_shows_in_the_panel_at_once(self):
        self.start()
        self.open_panel()
        until("the panel is parchment", lambda: self.ground() == PARCHMENT)
        self.open_settings()
        self.choose("Light parchment", "Sepia night")
        self.preference_becomes("appTheme=sepiaNight")
        self.open_panel()
        until("the panel is mahogany", lambda: self.ground() == MAHOGANY)

    def test_a_format_shows_in_the_line_at_once(self):
        self.start()
        self.open_settings()
        for present, option, stored, line in (
                ("Date & decimal time", "Date only", "date", "🌫️ 23 Brum."),
                ("Date only", "Decimal time only", "decimalTime", "🌫️ 5:00"),
                ("Decimal time only", "Day number only", "dayNumber", "🌫️ 23"),
                ("Day number only", "Date & decimal time", "dateAndTime", LINE)):
            self.choose(present, option)
            self.preference_becomes(f"menuBarFormat={stored}")
            self.program.wait_for_text(line)

    def test_the_reminder_and_its_time(self):
        self.start()
        self.open_settings()
        time = self.program.node("spin box", "Time")
        x, y, _width, height = time.extents
        self.desktop.click(x + 12, y + height // 2)  # the hour
        self.desktop.key("Up")
        self.preference_becomes("notificationHour=9")
        self.preference_becomes("notificationMinute=0")
        self.click_on("Notify me each morning", "check box")
        self.preference_becomes("notificationsEnabled=false")
        until("the time is gone", lambda: "Time" not in self.program.texts())
        self.click_on("Notify me each morning", "check box")
        self.preference_becomes("notificationsEnabled=true")
        self.program.wait_for_text("Time")

    def test_the_chime(self):
        self.start()
        self.open_settings()
        self.click_on("Hourly chimes (La Marseillaise)", "check box")
        self.preference_becomes("soundEnabled=false")

    def test_launches_at_login(self):
        self.start()
        entry = self.desktop.config / "autostart" / "org.tambrelle.Tambrelle.desktop"
        self.open_settings()
        self.click_on("Launch at login", "check box")
        until("the autostart entry is there", entry.exists)
        self.click_on("Launch at login", "check box")
        until("the autostart entry is gone or off",
              lambda: not entry.exists() or "Hidden=true" in entry.read_text(encoding="utf-8"))

    def test_launch_at_login_springs_back_where_it_is_refused(self):
        obstacle = self.desktop.config / "autostart"
        obstacle.write_text("in the way of the folder", encoding="utf-8")
        self.start()
        self.open_settings()
        self.click_on("Launch at login", "check box")
        # Clicks are dealt with in their order: once this one shows in what is stored, the one before is over.
        self.click_on("Hourly chimes (La Marseillaise)", "check box")
        self.preference_becomes("soundEnabled=false")
        self.assertFalse(self.program.node("check box", "Launch at login").has("checked"))
        self.assertEqual(obstacle.read_text(encoding="utf-8"), "in the way of the folder")
        self.assertEqual(list(self.desktop.config.rglob("*.desktop")), [])

    def test_a_second_request_raises_the_open_window(self):
        self.start()
        self.open_settings()
        self.open_settings()
        self.assertEqual(len(self.program.nodes("check box", "Launch at login")), 1)
        self.desktop.key("Escape")
        until("the settings are closed", lambda: not self.program.nodes("check box", "Launch at login"))
        self.program.must_run()


if __name__ == "__main__":
    main()
