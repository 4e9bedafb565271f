#!/usr/bin/python3
"""A session with the program, every system call watched: no socket that reaches beyond this machine, no file written but the
preferences and the autostart entry."""

import pathlib
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent / "desktop")]

from harness import DesktopTest, main, until  # noqa: E402
from system_calls import SystemCalls  # noqa: E402

# The display, the session bus, the accessibility bus and the sound server are all reached through these.
LOCAL_SOCKETS = {"AF_UNIX"}

PREFERENCES = "tambrelle"
AUTOSTART = "autostart"
ENTRY = "autostart/org.tambrelle.Tambrelle.desktop"


def is_below(path, folder):
    return pathlib.PurePath(path).is_relative_to(folder)


class Footprint(DesktopTest):
    def setUp(self):
        super().setUp()
        self.account = self.desktop.directory / "account"

    def watch(self, path, *arguments, **options):
        return self.desktop.start_program(path, *arguments, prefix=SystemCalls.prefix(self.account), **options)

    def calls_once_ended(self, program, limit=10):
        self.assertEqual(program.wait(limit), 0, program.output())
        # The tracer ends after the program; only then is its account whole.
        until("the tracer has ended", lambda: not self.desktop.processes.named("strace"))
        return SystemCalls(self.account)

    def assert_local(self, calls):
        self.assertEqual(calls.families - LOCAL_SOCKETS, set())
        # An account without them is one of something else.
        self.assertIn("AF_UNIX", calls.families)

    def strangers(self, calls, allowed_folders, allowed_files=()):
        """What was written and is none of ours."""
        return sorted(path for path in calls.written
                      if path not in map(str, allowed_files)
                      and not any(is_below(path, folder) for folder in allowed_folders))

    def test_of_a_session(self):
        program = self.watch(self.program_path)
        label = until("the line is on the screen", lambda: [node for node in program.nodes() if " · " in node.name])[0]
        x, y, width, height = label.extents

        def open_panel():
            self.desktop.click(x + width // 2, y + height // 2)
            until("the panel is open", lambda: program.nodes(name="Next day"))

        open_panel()
        program.press("Next day")
        program.press("Copy")
        program.press("Toggle chime")
        until("the chime's switch is stored", lambda: "soundEnabled=false" in program.preferences())
        program.press("Preferences")
        login = until("the settings are open", lambda: program.nodes("check box", "Launch at login"))[0]
        entry = self.desktop.config / ENTRY
        login.act("Toggle")
        until("the program is to start at login", entry.exists)
        kept_while_on = self.files()
        login.act("Toggle")
        until("it no longer is", lambda: not entry.exists())
        program.node("check box", "Notify me each morning").act("Toggle")
        until("the wish is stored", lambda: "notificationsEnabled=false" in program.preferences())
        open_panel()
        program.press("Quit")
        calls = self.calls_once_ended(program)

        self.assert_local(calls)
        config = self.desktop.config
        preferences = config / PREFERENCES / "tambrelle.conf"
        self.assertEqual(self.strangers(
            calls,
            allowed_folders=[
                # The preferences, the lock beside them and the new file that takes their place.
                config / PREFERENCES,
                # The autostart entry, likewise.
                config / AUTOSTART,
                # Fontconfig's own, made by the first program that asks it for a font where the system's is stale.
                self.desktop.home / ".cache/fontconfig"],
            allowed_files=["/dev/null"]), [])
        self.assertIn(str(preferences), calls.written)
        self.assertIn(str(entry), calls.written)
        self.assertEqual(kept_while_on, {preferences, entry})
        self.assertEqual(self.files(), {preferences})
        self.assertEqual(calls.started, {str(self.program_path)})

    def test_of_a_chime(self):
        socket = self.desktop.runtime / "pulse-test"
        server = self.desktop.processes.start(
            "pulseaudio", "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
            "-L", "module-null-sink", "-L", f"module-native-protocol-unix auth-anonymous=1 socket={socket}")
        until("the sound server listens", lambda: socket.exists() or not server.running)
        player = self.program_path.parent / "tambrelle-player"
        sound = self.program_path.parent / "share/tambrelle/marseillaise.mp3"
        program = self.watch(player, "0.6", sound, environment={"PULSE_SERVER": f"unix:{socket}"})
        calls = self.calls_once_ended(program, limit=40)  # the chime sounds for 16 s

        self.assert_local(calls)
        self.assertEqual(self.strangers(
            calls,
            allowed_folders=[
                # The sound library's: its cookie, and its part of the memory that it shares with the server.
                self.desktop.config / "pulse", self.desktop.runtime / "pulse", "/dev/shm"],
            allowed_files=["/dev/null"]), [])
        self.assertEqual(calls.started, {str(player)})

    def files(self):
        """What lies in the home, but for fontconfig's cache."""
        cache = self.desktop.home / ".cache/fontconfig"
        return {path for path in self.desktop.home.rglob("*") if path.is_file() and not is_below(path, cache)}


class Account(unittest.TestCase):
    """That the watching sees what it is to see."""

    def calls_of(self, account):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder, "account")
            file.write_text(account)
            return SystemCalls(file)

    def test_sees_writing_by_any_name(self):
        calls = self.calls_of(
            '7 openat(AT_FDCWD</home>, "a", O_RDONLY|O_CLOEXEC) = 3</home/a>\n'
            '7 openat(AT_FDCWD</home>, "b", O_RDWR|O_CREAT|O_CLOEXEC, 0600) = 3</home/b>\n'
            '7 openat(5</tmp>, "c", O_WRONLY) = -1 EACCES (Permission denied)\n'
            '7 rename("/d", "/e") = 0\n'
            '7 unlink("/f") = -1 ENOENT (No such file or directory)\n'
            '7 linkat(AT_FDCWD</home>, "/proc/self/fd/3", AT_FDCWD</home>, "/g", AT_SYMLINK_FOLLOW) = 0\n'
            '7 openat(AT_FDCWD</home>, "/h", O_WRONLY <unfinished ...>\n'
            '8 openat(AT_FDCWD</home>, "i", O_RDONLY <unfinished ...>\n'
            '7 <... openat resumed>) = 4</h>\n'
            '8 <... openat resumed>) = 4</home/i>\n')
        self.assertEqual(calls.written, {"/home/b", "/tmp/c", "/d", "/e", "/g", "/h"})

    def test_sees_every_family_of_sockets(self):
        calls = self.calls_of(
            '7 socket(AF_UNIX, SOCK_STREAM|SOCK_CLOEXEC, 0) = 3<UNIX-STREAM:[1]>\n'
            '9 socket(AF_INET6, SOCK_DGRAM, IPPROTO_IP <unfinished ...>\n'
            '9 <... socket resumed>) = -1 EAFNOSUPPORT (Address family not supported by protocol)\n')
        self.assertEqual(calls.families, {"AF_UNIX", "AF_INET6"})


if __name__ == "__main__":
    main()
