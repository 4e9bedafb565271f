#!/usr/bin/python3
"""The line itself, as a screen reader finds it in the floating label of a desktop without a bar."""

from harness import DesktopTest, main, until
from harness.moments import LATER, LATER_LINE, LINE, NOON, TWO_TICKS



class Line(DesktopTest):
    def test_reads_today_and_the_decimal_time(self):
        self.desktop.clock.set(NOON)
        self.start_program().wait_for_text(LINE)

    def test_has_each_stored_format(self):
        for stored, line in (("dateAndTime", LINE), ("date", "🌫️ 23 Brum."),
                             ("decimalTime", "🌫️ 5:00"), ("dayNumber", "🌫️ 23")):
            with self.subTest(stored=stored):
                self.desktop.clock.set(NOON)
                program = self.start_program(preferences={"menuBarFormat": stored})
                program.wait_for_text(line)
                self.assertEqual([text for text in program.texts() if "🌫️" in text], [line])
                program.stop()

    def test_ticks(self):
        self.desktop.clock.set("2025-11-15 11:59:58")
        program = self.start_program()
        program.wait_for_text("🌫️ 23 Brumaire · Tridi · 4:99")
        program.wait_for_text(LINE, limit=4)

    def test_follows_the_clock_within_two_ticks(self):
        self.desktop.clock.set(NOON)
        program = self.start_program()
        program.wait_for_text(LINE)
        for clock, line in (
                (LATER, LATER_LINE),                                                # hours on
                ("2025-11-15 01:00:00", "🌫️ 23 Brumaire · Tridi · 0:41"),           # and back
                ("2025-09-23 06:00:00", "🎉 5 Sansculottides · Quintidi · 2:50"),    # weeks back, the year's last day
                ("2025-09-24 06:00:00", "🍇 1 Vendémiaire · Primidi · 2:50"),        # a day on, a new year
                ("2035-11-15 12:00:00", "🌫️ 22 Brumaire · Duodi · 5:00"),            # ten years on
                ("1792-09-22 12:00:00", "🍇 1 Vendémiaire · Primidi · 5:00"),        # the first day of all
                ("1789-07-14 18:00:00", "🍇 1 Vendémiaire · Primidi · 7:50"),        # before it the date stands still
                (NOON, LINE)):
            with self.subTest(clock=clock):
                self.desktop.clock.set(clock)
                program.wait_for_text(line, limit=TWO_TICKS)

    def test_changes_the_day_at_local_midnight(self):
        self.desktop.clock.set("2025-09-23 23:59:57")
        program = self.start_program()
        program.wait_for_text("🎉 5 Sansculottides · Quintidi · 9:99")
        program.wait_for_text("🍇 1 Vendémiaire · Primidi · 0:00", limit=5)


class Overlooked(DesktopTest):
    def test_shows_its_label_again_until_it_is_seen(self):
        self.desktop.x11.lose_windows(True)
        self.desktop.clock.set(NOON)
        program = self.start_program()
        program.wait_for_text("🌫️ 23 Brumaire · Tridi · 5:00")
        self.assertEqual(self.desktop.x11.windows_of(program.pid), [])
        self.desktop.x11.lose_windows(False)
        until("the label is on the screen", lambda: self.desktop.x11.windows_of(program.pid))


class Zones(DesktopTest):
    """Midnights that do not exist and hours that come twice, lived through."""

    def lives_through(self, zone, start, before, after):
        self.desktop.clock.set(start, zone=zone)
        program = self.start_program(environment={"TZ": zone}, preferences={"menuBarFormat": "decimalTime"})
        program.wait_for_text(before)
        program.wait_for_text(after, limit=5)
        program.stop()

    def test_a_midnight_that_does_not_exist(self):
        # At 00:00 the clocks of these places were put forward to 01:00, decimal 0:41.
        for zone, start, before, after in (
                ("Africa/Cairo", "2025-04-24 23:59:58", "🌸 9:99", "🌸 0:41"),
                ("America/Sao_Paulo", "2018-11-03 23:59:58", "🌫️ 9:99", "🌫️ 0:41"),
                ("Asia/Beirut", "2025-03-29 23:59:58", "🌱 9:99", "🌱 0:41")):
            with self.subTest(zone=zone):
                self.lives_through(zone, start, before, after)

    def test_an_hour_left_out(self):
        self.lives_through("Europe/Paris", "2025-03-30 01:59:58", "🌱 0:83", "🌱 1:25")  # 02:00 becomes 03:00

    def test_a_zone_that_does_not_exist_is_utc(self):
        self.desktop.clock.set(NOON, zone="UTC")
        program = self.start_program(environment={"TZ": "Atlantis/Poseidonis"})
        program.wait_for_text(LINE)


if __name__ == "__main__":
    main()
