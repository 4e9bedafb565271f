#!/usr/bin/python3
"""The chime as a sound server receives it, and what is left of it afterwards."""

import array
import math
import os
import pathlib
import shutil
import subprocess

from harness import DesktopTest, PanelTest, main, until
from harness.preferences import NO_NOTIFICATIONS, QUIET
from harness.processes import children_of, faults_of_ended_children
from harness.services import PLAYER, start_sound_server

RATE = 44100
BLOCK = RATE // 20           # 50 ms
FRAME = 4                    # bytes: two channels of two
AUDIBLE = 500                # of 32767
BEFORE_THREE, THREE = "🌫️ 23 Brumaire · Tridi · 2:99", "🌫️ 23 Brumaire · Tridi · 3:00"
BEFORE_THREE_CLOCK = "2025-11-15 07:11:57"
BEFORE_FOUR_CLOCK = "2025-11-15 09:35:57"
FOUR = "🌫️ 23 Brumaire · Tridi · 4:00"
VOLUME = 0.6


def decoded(file):
    """The samples of a sound file, both channels interleaved."""
    raw = subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-i", str(file), "-ac", "2", "-ar", str(RATE), "-f", "s16le",
                          "-"], check=True, capture_output=True).stdout
    return array.array("h", raw)


def envelope(samples):
    """The root mean square of each 50 ms."""
    size = 2 * BLOCK
    return [math.sqrt(sum(value * value for value in samples[at:at + size]) / size)
            for at in range(0, len(samples) - size + 1, size)]


def power(samples):
    return math.sqrt(sum(value * value for value in samples))


def correlation(left, right):
    count = min(len(left), len(right))
    if count < 2:
        return 0.0
    left, right = left[:count], right[:count]
    mean_left, mean_right = sum(left) / count, sum(right) / count
    covariance = sum((a - mean_left) * (b - mean_right) for a, b in zip(left, right))
    spread = math.sqrt(sum((a - mean_left) ** 2 for a in left) * sum((b - mean_right) ** 2 for b in right))
    return covariance / spread if spread else 0.0


def without_silence_at_the_end(values):
    end = len(values)
    while end and values[end - 1] == 0:
        end -= 1
    return values[:end]


def likeness(recording, samples):
    """How much the recording's envelope goes up and down as the sound's, 1 at best, wherever in it the sound is.

    The blocks of the recording begin anywhere within the sound's, so those are begun at several places too.
    """
    def best(sound):
        return max(correlation(recording[start:start + len(sound)], sound)
                   for start in range(max(1, len(recording) - len(sound) + 1)))
    return max(best(without_silence_at_the_end(envelope(samples[skip:]))) for skip in range(0, 2 * BLOCK, BLOCK // 2))


class ChimeTest(DesktopTest):
    limit = 120

    @property
    def chime(self):
        return self.program_path.parent / "share" / "tambrelle" / "marseillaise.mp3"

    def start_sound_server(self):
        server = start_sound_server(self.desktop, RATE)
        self.recording = self.desktop.directory / "recording"
        self.recorder = self.desktop.processes.start(
            "parec", "parec", "-d", "test.monitor", "--raw", "--format=s16le", f"--rate={RATE}", "--channels=2",
            str(self.recording))
        until("the recording runs", lambda: self.recording.stat().st_size > 0)
        return server

    def heard(self):
        """All samples so far."""
        data = self.recording.read_bytes()
        return array.array("h", data[:len(data) // 4 * 4])

    def record_on(self, seconds):
        """Waits until so much more is recorded: the recorder, which is behind, then has what was played before."""
        enough = self.recording.stat().st_size + seconds * RATE * FRAME
        until(f"{seconds} s more are recorded", lambda: self.recording.stat().st_size >= enough)

    def loudest(self):
        return max(map(abs, self.heard()), default=0)

    def wait_for_level(self, sound, level):
        """Waits until the recorder, which is behind, has all of a sound, and requires it to have that level."""
        def share():
            return power(self.heard()) / power(sound)
        until("all of the sound is recorded", lambda: share() > 0.99 * level or None)
        self.record_on(1)  # more of it would be there now
        self.assertAlmostEqual(share(), level, delta=0.02)

    def players(self):
        return self.desktop.processes.named(PLAYER)

    def resources(self, files):
        """A folder of resources of its own: name -> a file to copy, or bytes to write."""
        folder = self.desktop.directory / "resources"
        folder.mkdir()
        for name, content in files.items():
            if isinstance(content, bytes):
                (folder / name).write_bytes(content)
            else:
                shutil.copyfile(content, folder / name)
        return {"TAMBRELLE_RESOURCES": str(folder)}

    def start_before_three(self, **options):
        self.desktop.clock.set(BEFORE_THREE_CLOCK)
        program = self.start_program(**{"preferences": NO_NOTIFICATIONS, **options})
        program.wait_for_text(BEFORE_THREE)
        return program

    def wait_for_chime(self, limit=30):
        until("a player runs", self.players, 10)
        until("no player is left", lambda: not self.players(), limit)

    def converted(self, name, *options):
        file = self.desktop.directory / name
        subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-i", str(self.chime), *options, str(file)], check=True)
        return file


class Chime(ChimeTest):
    def test_sounds_at_a_decimal_hour_at_its_level(self):
        self.start_sound_server()
        program = self.start_before_three()  # the first launch: chimes are on
        self.assertEqual(self.loudest(), 0)
        program.wait_for_text(THREE, limit=6)
        self.wait_for_chime()
        sound = decoded(self.chime)
        self.wait_for_level(sound, VOLUME)
        heard = self.heard()
        self.assertGreater(likeness(envelope(heard), sound), 0.97)
        self.assertEqual(program.output(), "")

    def test_is_silent_when_switched_off(self):
        self.start_sound_server()
        program = self.start_before_three(preferences=QUIET)
        program.wait_for_text(THREE, limit=6)
        self.desktop.clock.set(BEFORE_FOUR_CLOCK)
        program.wait_for_text(FOUR, limit=6)
        self.record_on(1)
        self.assertEqual(self.players(), set())
        self.assertEqual(faults_of_ended_children(program.pid), 0, "a player has come and gone")
        self.assertEqual(self.loudest(), 0)
        program.stop()
        # That a chime would have been noticed:
        program = self.start_before_three()
        program.wait_for_text(THREE, limit=6)
        until("a player runs", self.players)
        until("it is heard", lambda: self.loudest() > AUDIBLE)

    def test_other_formats(self):
        for name, options in (("marseillaise.m4a", ["-t", "4", "-c:a", "aac"]), ("marseillaise.wav", ["-t", "4"])):
            with self.subTest(name=name):
                self.desktop.stop()
                self.setUp()
                self.start_sound_server()
                sound = self.converted(name, *options)
                program = self.start_before_three(environment=self.resources({name: sound}))
                program.wait_for_text(THREE, limit=6)
                self.wait_for_chime()
                wanted = decoded(sound)
                self.wait_for_level(wanted, VOLUME)
                self.assertGreater(likeness(envelope(self.heard()), wanted), 0.95)
                self.assertEqual(program.output(), "")

    def test_the_last_of_two_is_heard_to_the_end(self):
        self.start_sound_server()
        program = self.start_before_three()
        program.wait_for_text(THREE, limit=6)
        first = until("a player runs", self.players)
        until("it is heard", lambda: self.loudest() > AUDIBLE)
        self.desktop.clock.set(BEFORE_FOUR_CLOCK)
        program.wait_for_text(FOUR, limit=6)
        second = until("another player runs alone", lambda: not self.players() & first and self.players())
        until("no player is left", lambda: not self.players(), 30)
        self.record_on(2)
        self.assertEqual(len(second), 1)
        sound = decoded(self.chime)
        heard = without_silence_at_the_end(envelope(self.heard()))
        last = heard[-len(without_silence_at_the_end(envelope(sound))) - 10:]
        self.assertGreater(likeness(last, sound), 0.97)
        # The first one was cut off: before the last one there is less than a whole chime.
        self.assertLess(power(self.heard()) / power(sound), VOLUME * math.sqrt(2) - 0.05)
        self.assertEqual(program.output(), "")


class ByHand(ChimeTest, PanelTest):
    def test_alt_click_lets_it_be_heard(self):
        self.start_sound_server()
        sound = self.converted("short.wav", "-t", "2")
        self.start(preferences=NO_NOTIFICATIONS, environment=self.resources({"marseillaise.wav": sound}))
        self.open_panel()
        self.desktop.click_with("alt", *self.middle_of(self.program.node("push button", "Toggle chime")))
        self.wait_for_chime()
        wanted = decoded(sound)
        self.wait_for_level(wanted, VOLUME)
        self.assertGreater(likeness(envelope(self.heard()), wanted), 0.95)
        self.assertIn("soundEnabled=true", self.program.preferences().splitlines(), "a trial switches nothing")
        self.assertEqual(self.program.output(), "")


class BadDays(ChimeTest):
    def bell(self):
        """A bell of a second in the user's own sound theme."""
        folder = self.desktop.home / ".local/share/sounds/freedesktop/stereo"
        folder.mkdir(parents=True)
        subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-f", "lavfi", "-i", "sine=frequency=880:duration=1",
                        "-ac", "2", "-ar", str(RATE), str(folder / "bell.wav")], check=True)
        return decoded(folder / "bell.wav")

    def complains(self, content, reason):
        self.start_sound_server()
        bell = self.bell()
        folder = self.desktop.directory / "resources"
        folder.mkdir()
        chime = folder / "marseillaise.mp3"
        if content is None:
            chime.mkdir()
        else:
            chime.write_bytes(content)
        program = self.start_before_three(environment={"TAMBRELLE_RESOURCES": str(folder)})
        program.wait_for_text(THREE, limit=6)
        until("it complains", program.output)
        until("no player is left", lambda: not self.players())
        self.wait_for_level(bell, 1)
        self.assertEqual(program.output(), f"Failed to play sound: {chime}: {reason}\n")

    def test_empty(self):
        self.complains(b"", "the file is empty")

    def test_cut_short(self):
        content = self.chime.read_bytes()
        self.complains(content[:len(content) // 2], "the file is cut short")

    def test_only_a_beginning(self):
        self.complains(self.chime.read_bytes()[:1000], "no sound that can be decoded")

    def test_a_folder(self):
        self.complains(None, "a folder")

    def test_no_sound(self):
        self.complains(b"Liberty, equality, fraternity\n" * 100, "no sound that can be decoded")

    def test_none_at_all(self):
        self.start_sound_server()
        bell = self.bell()
        program = self.start_before_three(environment=self.resources({}))
        program.wait_for_text(THREE, limit=6)
        self.wait_for_level(bell, 1)
        self.assertEqual(program.output(), "")

    def test_no_sound_server(self):
        program = self.start_before_three()
        self.assertEqual(faults_of_ended_children(program.pid), 0)
        program.wait_for_text(THREE, limit=6)
        until("a player has run and ended", lambda: faults_of_ended_children(program.pid) and not self.players(), 5)
        self.assertEqual(program.output(), "")

    def test_a_sound_server_that_hangs(self):
        server = self.start_sound_server()
        sound = self.converted("short.wav", "-t", "2")
        program = self.start_before_three(environment=self.resources({"marseillaise.wav": sound}))
        os.killpg(server.pid, 19)  # SIGSTOP
        try:
            program.wait_for_text(THREE, limit=6)
            first = until("a player runs", self.players)
            self.desktop.clock.set(BEFORE_FOUR_CLOCK)
            program.wait_for_text(FOUR, limit=5)  # the tick is not held up
            until("another player runs, and the first has given up",
                  lambda: self.players() and not self.players() & first, 2)
            until("no player is left", lambda: not self.players(), 2 + 10)
        finally:
            os.killpg(server.pid, 18)  # SIGCONT
        self.assertEqual(program.output(), "")

    def test_the_player_ends_with_the_program(self):
        self.start_sound_server()
        program = self.start_before_three()
        program.wait_for_text(THREE, limit=6)
        until("a player runs", self.players)
        program.process.kill()
        until("no player is left", lambda: not self.players(), 2)


class Remains(ChimeTest):
    """What ten chimes leave in the main process."""

    limit = 150
    ALLOWED = 300  # KB

    @staticmethod
    def private_dirty(pid):
        for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
            if line.startswith("Private_Dirty:"):
                return int(line.split()[1])
        raise AssertionError("no Private_Dirty")

    def test_ten_chimes(self):
        self.start_sound_server()
        sound = self.converted("short.wav", "-t", "1")
        program = self.start_before_three(environment=self.resources({"marseillaise.wav": sound}))
        program.wait_for_text(THREE, limit=6)
        self.wait_for_chime()  # the first one loads what a process is started with
        before = self.private_dirty(program.pid)
        for chime in range(10):
            hour = 4 + chime % 5
            self.desktop.clock.set(f"2025-11-{16 + chime // 5} {hour * 144 // 60:02}:{hour * 144 % 60:02}:01")
            self.wait_for_chime()
        after = self.private_dirty(program.pid)
        until("no child is left", lambda: not children_of(program.pid), 10)
        print(f"private dirty: {before} KB before, {after} KB after ten chimes")
        self.assertLess(after - before, self.ALLOWED)


if __name__ == "__main__":
    main()
