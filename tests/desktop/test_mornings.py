#!/usr/bin/python3
"""The morning notification: at its minute, after sleep, across midnights, and with a service that is not as it should be.

The service is one that only records. Where it must stay silent, a later morning shows that it would have been heard."""

import pathlib

from harness import DesktopTest, PanelTest, main, until
from harness.moments import LINE, NOON
from harness.processes import wakes
from harness.services import NotificationRecorder

AT_EIGHT = {"notificationsConfigured": "true", "notificationsEnabled": "true",
            "notificationHour": "8", "notificationMinute": "0"}
DAY_15 = ("23 Brumaire an CCXXXIV", "🌿 Aujourd'hui : Garance — Madder")
DAY_16 = "24 Brumaire an CCXXXIV"
DAY_17 = "25 Brumaire an CCXXXIV"
DAY_29 = "7 Frimaire an CCXXXIV"
ON_TIME = 5      # seconds after the minute
AFTER_JUMP = 10  # seconds after sleep or after the clock was set
SOME_WAKES = 6   # of the program: ticks, each of which looks at the clock, and the answers to its few calls


class MorningTest(DesktopTest):
    limit = 120

    def setUp(self):
        super().setUp()
        self.recorder = NotificationRecorder(self.desktop)
        self.shown, self.titles = self.recorder.shown, self.recorder.titles
        self.server = None

    def start_server(self, *options):
        self.server = self.recorder.start(*options)

    def stop_server(self):
        self.recorder.stop(self.server)

    def start_at(self, clock, line, **options):
        """Starts the program, and waits until it has put the mornings on its list: a stored line shows that it ran."""
        self.desktop.clock.set(clock)
        program = self.start_program(**options)
        program.wait_for_text(line)
        return program

    def wait_for(self, titles, limit):
        until(f"shown: {titles}", lambda: self.titles() == titles or None, limit)

    def live(self, program, times=SOME_WAKES):
        """Until the program has woken so often, mostly for ticks: at each it looks at the clock, and delivers what is due."""
        def woken():
            program.must_run()
            return wakes(program.pid) >= enough

        enough = wakes(program.pid) + times
        until(f"the program has woken {times} times", woken, 2 * times, every=0.1)

class Mornings(MorningTest):
    def test_comes_once_at_its_minute(self):
        self.start_server()
        program = self.start_at("2025-11-15 07:59:30", "🌫️ 23 Brumaire · Tridi · 3:32")  # at first run: at 8:00
        self.live(program)
        self.desktop.clock.set("2025-11-15 07:59:58")
        program.wait_for_text("🌫️ 23 Brumaire · Tridi · 3:33")
        self.assertEqual(self.shown(), [])
        self.wait_for([DAY_15[0]], 2 + ON_TIME)
        self.live(program)
        notification, = self.shown()
        self.assertEqual((notification["summary"], notification["body"]), DAY_15)
        self.assertEqual(notification["application"], "Tambrelle")
        self.assertEqual(notification["hints"]["desktop-entry"], "org.tambrelle.Tambrelle")
        self.assertEqual(notification["hints"]["urgency"], 1)
        self.assertTrue(notification["hints"]["category"])
        self.assertTrue(notification["hints"]["sound-name"])

    def test_slept_through_is_shown_once(self):
        self.start_server()
        program = self.start_at("2025-11-15 07:00:00", "🌫️ 23 Brumaire · Tridi · 2:91")
        self.desktop.clock.set("2025-11-15 09:30:00")
        self.wait_for([DAY_15[0]], AFTER_JUMP)
        self.live(program)
        self.assertEqual(self.titles(), [DAY_15[0]])

    def test_slept_through_into_a_new_day_is_shown_once(self):
        self.start_server()
        program = self.start_at("2025-11-15 07:00:00", "🌫️ 23 Brumaire · Tridi · 2:91")
        self.desktop.clock.set("2025-11-16 07:59:55")
        self.wait_for([DAY_15[0]], 4)
        self.wait_for([DAY_15[0], DAY_16], 5 + ON_TIME)
        self.live(program)
        self.assertEqual(self.titles(), [DAY_15[0], DAY_16])

    def test_the_window_slides_at_midnight(self):
        self.start_server()
        program = self.start_at("2025-11-15 23:59:57", "🌫️ 23 Brumaire · Tridi · 9:99")
        program.wait_for_text("🌫️ 24 Brumaire · Quartidi · 0:00")
        # The fourteenth morning from the new day on was not on the list of the old one.
        self.desktop.clock.set("2025-11-29 08:00:10")
        # Of the fourteen that were slept through only the last one is still true.
        self.wait_for([DAY_29], AFTER_JUMP)
        self.live(program)
        self.assertEqual(self.titles(), [DAY_29])

    def stays_silent_until(self, clock, line, program):
        """Over eight o'clock of this day, and of the ones until that time; then the program ends."""
        self.desktop.clock.set("2025-11-15 08:00:01")
        self.live(program)
        self.desktop.clock.set(clock)
        program.wait_for_text(line)
        self.live(program)
        self.assertEqual(self.shown(), [])
        program.stop()

    def program_would_have_been_heard(self):
        """The same morning, with nothing in its way."""
        self.start_at("2025-11-15 07:59:58", "🌫️ 23 Brumaire · Tridi · 3:33", preferences=AT_EIGHT)
        self.wait_for([DAY_15[0]], 2 + ON_TIME)

    def test_switched_off(self):
        self.start_server()
        program = self.start_at("2025-11-15 07:59:57", "🌫️ 23 Brumaire · Tridi · 3:33",
                                preferences={**AT_EIGHT, "notificationsEnabled": "false"})
        self.stays_silent_until("2025-11-16 09:00:00", "🌫️ 24 Brumaire · Quartidi · 3:75", program)
        self.program_would_have_been_heard()

    def test_at_another_time(self):
        self.start_server()
        self.start_at("2025-11-15 08:00:00", "🌫️ 23 Brumaire · Tridi · 3:33",
                      preferences={**AT_EIGHT, "notificationHour": "9", "notificationMinute": "15"})
        self.desktop.clock.set("2025-11-15 09:14:55")
        self.wait_for([DAY_15[0]], 5 + ON_TIME)

    def test_the_clock_is_set_back(self):
        self.start_server()
        self.start_at("2025-11-15 07:59:58", "🌫️ 23 Brumaire · Tridi · 3:33")
        self.wait_for([DAY_15[0]], 2 + ON_TIME)
        self.desktop.clock.set("2025-11-15 07:59:58")
        self.desktop.clock.set("2025-11-16 07:59:58")
        self.wait_for([DAY_15[0], DAY_16], 2 + ON_TIME)

    def test_times_out_of_range(self):
        self.start_server()
        for hour, minute in (("-1", "0"), ("99", "0"), ("8", "99"), ("8", "-1"), ("9223372036854775807", "0")):
            with self.subTest(hour=hour, minute=minute):
                program = self.start_at(
                    "2025-11-15 07:59:58", "🌫️ 23 Brumaire · Tridi · 3:33",
                    preferences={**AT_EIGHT, "notificationHour": hour, "notificationMinute": minute})
                self.stays_silent_until("2025-11-16 10:00:00", "🌫️ 24 Brumaire · Quartidi · 4:16", program)
        self.program_would_have_been_heard()


class ByHand(MorningTest, PanelTest):
    def test_a_time_set_in_the_settings_counts(self):
        self.start_server()
        self.start("2025-11-15 07:30:00", "🌫️ 23 Brumaire · Tridi · 3:12", preferences=AT_EIGHT)
        self.open_settings()
        x, y, _width, height = self.program.node("spin box", "Time").extents
        self.desktop.click(x + 12, y + height // 2)  # the hour
        self.desktop.key("Up")
        self.preference_becomes("notificationHour=9")
        self.desktop.clock.set("2025-11-15 07:59:58")
        self.program.wait_for_text("🌫️ 23 Brumaire · Tridi · 3:33")
        self.desktop.clock.set("2025-11-15 08:00:01")
        self.live(self.program)
        self.desktop.clock.set("2025-11-15 08:59:58")
        self.assertEqual(self.shown(), [], "not at the old time")
        self.wait_for([DAY_15[0]], 2 + ON_TIME)


class BadServices(MorningTest):
    def lives_through_the_next_morning(self, program, expected):
        self.desktop.clock.set("2025-11-16 07:59:57")
        program.wait_for_text("🌫️ 24 Brumaire · Quartidi · 3:33", limit=2)  # nothing blocks
        self.wait_for(expected, 3 + ON_TIME)

    def test_answers_with_errors(self):
        self.start_server("--refuse")
        program = self.start_at("2025-11-15 07:59:58", "🌫️ 23 Brumaire · Tridi · 3:33")
        self.wait_for([DAY_15[0]], 2 + ON_TIME)
        self.lives_through_the_next_morning(program, [DAY_15[0], DAY_16])
        self.assertEqual(program.output(), "")

    def test_answers_after_half_a_minute(self):
        self.start_server("--delay", "30")
        program = self.start_at("2025-11-15 07:59:00", "🌫️ 23 Brumaire · Tridi · 3:32")
        self.desktop.clock.set(NOON)
        program.wait_for_text(LINE, limit=2)
        # Permission comes half a minute late; the next morning is on the list then, and is told half a minute late too.
        until("the service has answered", lambda: self.server.output(), 40)
        self.live(program)
        self.desktop.clock.set("2025-11-16 07:59:58")
        self.wait_for([DAY_16], 32 + ON_TIME)

    def test_dies_between_two_mornings(self):
        self.start_server()
        program = self.start_at("2025-11-15 07:59:58", "🌫️ 23 Brumaire · Tridi · 3:33")
        self.wait_for([DAY_15[0]], 2 + ON_TIME)
        self.stop_server()
        self.start_server()
        self.lives_through_the_next_morning(program, [DAY_15[0], DAY_16])


class Drawn(MorningTest):
    """The same, drawn by a real service."""

    def test_dunst(self):
        dunst = self.desktop.processes.start("dunst", "dunst", "-print", without=["XDG_DATA_DIRS"])
        until("dunst is there", lambda: self.desktop.bus.has_owner(NotificationRecorder.NAME), 10)
        program = self.start_at("2025-11-15 07:59:57", "🌫️ 23 Brumaire · Tridi · 3:33")
        before = {window.id for window in self.desktop.x11.windows()}
        until("dunst has it", lambda: DAY_15[0] in dunst.output(), 3 + ON_TIME)
        self.assertIn(DAY_15[1], dunst.output())
        def its_window():
            """The line may have taken another window of its own meanwhile."""
            others = before | {window.id for window in self.desktop.x11.windows_of(program.pid)}
            return next((window for window in self.desktop.x11.windows() if window.id not in others), None)

        window = until("its window is there", its_window)
        until("it is drawn", lambda: len(self.desktop.picture().cropped(
            window.x, window.y, window.width, window.height).colours()) > 8)
        if self.evidence:
            self.desktop.save_picture(pathlib.Path(self.evidence) / "dunst.png")


if __name__ == "__main__":
    main()
