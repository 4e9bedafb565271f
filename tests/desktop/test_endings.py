#!/usr/bin/python3
"""The program's end, asked for in every state: within a second, with nothing lost and nothing left behind."""

import os
import signal
import time

from harness import PanelTest, main, until
from harness.preferences import NO_NOTIFICATIONS
from harness.services import PLAYER, start_sound_server

BEFORE_THREE_CLOCK = "2025-11-15 07:11:57"
BEFORE_THREE = "🌫️ 23 Brumaire · Tridi · 2:99"
NAME = "org.tambrelle.Tambrelle"
A_SECOND = 1.0


class Ending(PanelTest):
    """The states, and what every end has to be."""

    limit = 90

    def files(self):
        """What lies in the folders that a program may leave things in."""
        places = (self.desktop.home, self.desktop.runtime, self.desktop.directory)
        return {str(file) for place in places for file in place.rglob("*")
                if not file.name.endswith((".log", "clock", "clock.new")) and ".cache" not in file.parts and "pulse" not in file.parts}

    # The states

    def quiet(self):
        self.start(preferences=NO_NOTIFICATIONS)

    def panel_open(self):
        self.start(preferences=NO_NOTIFICATIONS)
        self.open_panel()

    def settings_open(self):
        self.start(preferences=NO_NOTIFICATIONS)
        self.open_settings()

    def chime_sounding(self):
        start_sound_server(self.desktop)
        self.start(BEFORE_THREE_CLOCK, BEFORE_THREE, preferences=NO_NOTIFICATIONS)
        until("a player runs", lambda: self.desktop.processes.named(PLAYER))

    # The endings

    def ends(self, state, ending, statuses):
        before = self.files()
        self.line = None
        state()
        mine = {str(self.desktop.config / "tambrelle"), str(self.desktop.config / "tambrelle" / "tambrelle.conf")}
        self.preference_becomes("soundEnabled=true")
        asked = time.monotonic()
        ending()
        status = self.program.wait(5)
        self.assertLess(time.monotonic() - asked, A_SECOND)
        self.assertIn(status, statuses, self.program.output())
        until("no player is left", lambda: not self.desktop.processes.named(PLAYER), 2)
        self.assertEqual(self.files() - before - mine, set())


class Signals(Ending):
    def signalled(self, number):
        return lambda: os.kill(self.program.pid, number)

    def test_sigterm(self):
        for state in (self.quiet, self.panel_open, self.settings_open, self.chime_sounding):
            with self.subTest(state=state.__name__):
                self.ends(state, self.signalled(signal.SIGTERM), (0,))
                self.assertEqual(self.program.output(), "")
                self.assertFalse(self.desktop.bus.has_owner(NAME))

    def test_sighup(self):
        for state in (self.quiet, self.panel_open, self.settings_open, self.chime_sounding):
            with self.subTest(state=state.__name__):
                self.ends(state, self.signalled(signal.SIGHUP), (0,))
                self.assertEqual(self.program.output(), "")

    def test_sigint(self):
        self.ends(self.quiet, self.signalled(signal.SIGINT), (0,))

    def test_what_was_chosen_just_before_is_kept(self):
        chosen = ("check box", "Hourly chimes (La Marseillaise)")
        self.start(preferences=NO_NOTIFICATIONS)
        for wanted in ("false", "true", "false"):
            self.line = None
            self.open_settings()
            was = self.program.node(*chosen).has("checked")
            self.click_on(chosen[1], chosen[0])
            until("it is chosen", lambda: self.program.node(*chosen).has("checked") != was, every=0)
            os.kill(self.program.pid, signal.SIGTERM)
            self.assertEqual(self.program.wait(5), 0)
            self.assertIn(f"soundEnabled={wanted}", self.program.preferences().splitlines())
            self.start()


class Logout(Ending):
    """The display goes with the session: the program ends with a sentence and a status, not with a core."""

    def display_goes(self):
        self.desktop.x11.close()
        self.desktop.x11 = None
        server, = self.desktop.processes.named("Xvfb")
        os.kill(server, signal.SIGKILL)

    def goes_in(self, state):
        self.ends(state, self.display_goes, (1,))
        lines = [line for line in self.program.output().splitlines() if line]
        self.assertTrue(lines)
        self.assertRegex(lines[0], "(?i)x11|display")
        # Where Xlib notices before the program has ended, it has a sentence of its own.
        self.assertRegex("\n".join(lines[1:]), r"\A(XIO: +fatal IO error .*\n +after .*)?\Z")

    def test_quiet(self):
        self.goes_in(self.quiet)

    def test_with_the_panel_open(self):
        self.goes_in(self.panel_open)

    def test_with_the_settings_open(self):
        self.goes_in(self.settings_open)

    def test_while_the_chime_sounds(self):
        self.goes_in(self.chime_sounding)


if __name__ == "__main__":
    main()
