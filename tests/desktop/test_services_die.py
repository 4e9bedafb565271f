#!/usr/bin/python3
"""The services beside the program are killed again and again at random moments: it stays, and nothing comes twice."""

import datetime
import os
import signal
import time

from harness import DesktopTest, main, until
from harness.bus import Bus
from harness.chance import chance
from harness.moments import LATER, LATER_LINE, LINE, NOON
from harness.preferences import NO_NOTIFICATIONS, QUIET
from harness.processes import children_of, faults_of_ended_children
from harness.services import PLAYER, NotificationRecorder, start_sound_server

TIMES = 100
SILENT = {**QUIET, "notificationsEnabled": "true", "notificationHour": "8", "notificationMinute": "0"}


class ServicesDie(DesktopTest):
    limit = 200


class ServicesWithNotifications(ServicesDie):
    def setUp(self):
        super().setUp()
        self.recorder = NotificationRecorder(self.desktop)
        self.start_server, self.titles = self.recorder.start, self.recorder.titles


class Notifications(ServicesWithNotifications):
    def end_all_servers(self):
        """The one of ours, and those that the bus may start when the program asks for one."""
        def none_is_left():
            if not self.desktop.bus.has_owner(NotificationRecorder.NAME):
                return True
            os.kill(self.desktop.bus.pid_of(NotificationRecorder.NAME), signal.SIGKILL)
            return False
        until("no notification service is left", none_is_left)

    def test_no_morning_comes_twice_and_the_last_one_comes(self):
        random = chance()
        day = datetime.date(2025, 11, 15)
        self.desktop.clock.set(f"{day} 07:00:00")
        program = self.start_program(preferences=SILENT)
        until("the line is there", lambda: any("Brumaire" in text for text in program.texts()))
        mornings = 0
        for turn in range(TIMES):
            server = self.start_server()
            if turn % 4 == 0:
                # A morning comes now, and the service may die at any point of its delivery.
                self.desktop.clock.set(f"{day} 07:59:59.8")
                day += datetime.timedelta(1)
                mornings += 1
            time.sleep(random.uniform(0, 0.25))
            server.kill()
            self.end_all_servers()
            program.must_run()
            titles = self.titles()
            self.assertEqual(len(titles), len(set(titles)), titles)
        self.end_all_servers()
        self.start_server()
        before = len(self.titles())
        self.desktop.clock.set(f"{day} 07:59:59")
        until("the last morning comes", lambda: len(self.titles()) > before, 15)
        titles = self.titles()
        print(f"{len(titles)} of {mornings + 1} mornings shown")
        self.assertEqual(len(titles), len(set(titles)), titles)
        self.assertEqual(program.output(), "")


class Sound(ServicesDie):
    def test_a_hundred_chimes_on_a_dying_server(self):
        random = chance()
        self.desktop.clock.set(NOON)
        program = self.start_program(preferences=NO_NOTIFICATIONS)
        program.wait_for_text(LINE)
        before = faults_of_ended_children(program.pid)
        hour = 5
        for _turn in range(TIMES):
            server = start_sound_server(self.desktop)
            # An hour later, the clock starts a chime with its next tick.
            hour = hour % 9 + 1
            self.desktop.clock.set(f"2025-11-15 {hour * 144 // 60:02}:{hour * 144 % 60:02}:01")
            time.sleep(random.uniform(0, 0.4))
            server.kill()
            for left in self.desktop.runtime.glob("pulse/*"):
                left.unlink()
            program.must_run()
        until("no player is left", lambda: not self.desktop.processes.named(PLAYER), 15)
        self.assertGreater(faults_of_ended_children(program.pid), before, "no player has ever run")
        until("no child is left", lambda: not children_of(program.pid), 5)
        self.desktop.clock.set("2025-11-15 12:00:01")
        program.wait_for_text(LINE)
        self.assertEqual(program.output(), "")


class TheBar(ServicesDie):
    def test_a_hundred_times(self):
        random = chance()
        host = self.desktop.host
        self.desktop.clock.set(NOON)
        program = self.start_program(preferences=QUIET)
        until("it is docked", lambda: self.desktop.docked_windows(program))
        for _turn in range(TIMES):
            time.sleep(random.uniform(0, 0.3))
            host.bar.kill()
            until("the tray is gone", lambda: not self.desktop.x11.has_tray())
            host.start_bar(self.desktop)
            program.must_run()
        host.wait_for_bar(self.desktop)
        # The X server gives the ids of a dead bar's windows to the next bar, and a window manager that is still busy with
        # the first takes the second for it and may never show it.
        until("it is docked again", lambda: len(self.desktop.x11.embedded_of(program.pid)) == 1, 15)
        elsewhere = [window for window in self.desktop.x11.windows_of(program.pid) if not window.docked]
        self.assertEqual(elsewhere, [], "a window is left behind")
        self.desktop.clock.set(LATER)
        program.wait_for_text(LATER_LINE, 5)
        # The X server gives the window back to the root when the tray dies, which the toolkit remarks upon.
        remarks = [line for line in program.output().splitlines() if not line.startswith("qt.qpa.xcb: internal error")]
        self.assertEqual(remarks, [])


class SessionBus(ServicesWithNotifications):
    NAME = "org.tambrelle.Tambrelle"
    NO_SERVICES = "<servicedir>/nonexistent</servicedir>"  # that the bus could start beside those of the test

    def kill_bus(self):
        self.desktop.bus.process.kill()
        (self.desktop.directory / "session-bus").unlink()
        self.desktop.bus.close()

    def start_bus(self):
        self.desktop.bus = Bus(self.desktop.processes, "session-bus", self.NO_SERVICES)

    def look(self, program):
        """The pixels of the program's one window: nobody can tell by the bus any more what it shows."""
        program.must_run()
        window, = self.desktop.x11.windows_of(program.pid)
        return self.desktop.picture().cropped(window.x, window.y, window.width, window.height).ppm()

    def wait_for_name(self, program):
        until("the program has its name again", lambda: self.desktop.bus.pid_of(self.NAME) == program.pid)

    def test_dies_and_returns(self):
        self.desktop.clock.set(NOON)
        program = self.start_program(preferences=SILENT)
        program.wait_for_text(LINE)
        for hour in (6, 7):
            before = self.look(program)
            self.kill_bus()
            self.desktop.clock.set(f"2025-11-15 {hour * 144 // 60:02}:{hour * 144 % 60:02}:00")
            until("the label ticks on", lambda: self.look(program) != before, 5)
            self.start_bus()
            self.wait_for_name(program)
        self.assertEqual(self.start_program().wait(), 0, "a second start finds the first")
        until("it has opened the panel", lambda: len(self.desktop.x11.windows_of(program.pid)) == 2)
        self.assertEqual(program.output(), "")

    def test_comes_late(self):
        self.kill_bus()
        self.desktop.clock.set(NOON)
        program = self.start_program(preferences=SILENT)
        until("the label floats", lambda: self.desktop.x11.windows_of(program.pid))
        self.start_bus()
        self.wait_for_name(program)

    def test_the_morning_after_is_shown(self):
        self.desktop.clock.set("2025-11-15 07:00:00")
        program = self.start_program(preferences=SILENT)
        self.wait_for_name(program)
        # Before that the toolkit's accessibility bridge waits for the bus's answer, for as long as it takes.
        until("the label floats", lambda: self.desktop.x11.windows_of(program.pid))
        self.kill_bus()
        self.start_bus()
        self.wait_for_name(program)
        server = self.start_server()
        self.desktop.clock.set("2025-11-15 07:59:59")
        until("the morning is shown", lambda: self.titles(), 15)
        server.stop()

    def test_a_morning_without_a_bus_is_shown_when_it_returns(self):
        self.desktop.clock.set("2025-11-15 07:59:00")
        server = self.start_server()
        program = self.start_program(preferences=SILENT)
        # It asks for its mornings only once somebody is there to show them.
        until("the service has answered", server.output)
        until("the label floats", lambda: self.desktop.x11.windows_of(program.pid))
        before = self.look(program)
        self.kill_bus()
        self.desktop.clock.set("2025-11-15 08:01:30")
        until("the label ticks on", lambda: self.look(program) != before, 5)
        self.start_bus()
        self.start_server()
        until("the morning is shown", lambda: self.titles(), 15)
        self.assertEqual(len(self.titles()), 1)

    def test_the_item_is_in_the_bar_again(self):
        """For hosts that take items."""
        self.desktop.clock.set(NOON)
        program = self.start_program(preferences=SILENT)
        program.wait_for_title(LINE)
        for _ in range(2):
            self.kill_bus()
            until("the line floats", lambda: self.desktop.x11.windows_of(program.pid))
            self.start_bus()
            self.desktop.restart_bar()
            program.wait_for_title(LINE)
        program.must_run()


if __name__ == "__main__":
    main()
