#!/usr/bin/python3
"""A display, a bus, a preference file or a zone that is not as it should be."""

import os
import shutil

from harness import DesktopTest, main, until
from harness.moments import LATER, LATER_LINE, LINE, NOON, TWO_TICKS
from harness.private_etc import EtcOfOnesOwn

DISPLAYS = ("DISPLAY", "WAYLAND_DISPLAY")
# Root too is held to the permissions of files.
WITHOUT_PRIVILEGES = ("setpriv", "--bounding-set=-dac_override,-dac_read_search") if os.geteuid() == 0 else ()


class NoDisplay(DesktopTest):
    def says_so_and_ends(self, environment, *arguments):
        program = self.start_program(*arguments, without=[name for name in DISPLAYS if name not in environment],
                                     environment=environment)
        self.assertEqual(program.wait(10), 1)
        lines = program.output().splitlines()
        self.assertEqual(len(lines), 1, lines)
        self.assertIn("display", lines[0])

    def test_none_is_named(self):
        self.says_so_and_ends({})

    def test_a_platform_is_named_that_needs_one(self):
        self.says_so_and_ends({}, "-platform", "xcb")
        self.says_so_and_ends({}, "-platform", "wayland")
        self.says_so_and_ends({"QT_QPA_PLATFORM": "xcb"})

    def test_one_is_named_that_does_not_answer(self):
        self.says_so_and_ends({"DISPLAY": ":4711"})
        self.says_so_and_ends({"WAYLAND_DISPLAY": "wayland-4711"})

    def test_one_in_memory_is_enough(self):
        program = self.start_program(environment={"QT_QPA_PLATFORM": "offscreen"}, without=DISPLAYS)
        until("it has begun", lambda: self.has_begun(program))
        program.must_run()

    def has_begun(self, program):
        """What the application writes once it has its item."""
        program.must_run()
        file = self.desktop.config / program.PREFERENCES
        return file.exists() and "notificationsConfigured=true" in file.read_text(encoding="utf-8")


class NoSessionBus(DesktopTest):
    def label_picture(self, program):
        """The pixels of the program's one window, once they are those of a drawn text."""
        def drawn():
            program.must_run()
            windows = self.desktop.x11.windows_of(program.pid)
            if len(windows) != 1:
                return None
            window, = windows
            picture = self.desktop.picture().cropped(window.x, window.y, window.width, window.height)
            return picture if len(picture.colours()) > 2 else None
        return until("the floating label is drawn", drawn)

    def test_the_floating_label_still_shows(self):
        # Without the bus no screen reader can tell what it says; that it looks exactly as it does with one can be seen.
        self.desktop.clock.set(NOON)
        program = self.start_program()
        program.wait_for_text(LINE)
        with_bus = self.label_picture(program)
        program.stop()
        for case, environment, without in (
                ("no address", {}, ("DBUS_SESSION_BUS_ADDRESS",)),
                ("nobody answers", {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.desktop.directory}/nothing"}, ()),
                ("no such transport", {"DBUS_SESSION_BUS_ADDRESS": "pigeon:loft=3"}, ())):
            with self.subTest(case=case):
                self.desktop.clock.set(NOON)
                program = self.start_program(environment=environment, without=without)
                until("it looks as it does with a bus",
                      lambda: self.label_picture(program).ppm() == with_bus.ppm())
                self.desktop.clock.set(LATER)
                until("it ticks", lambda: self.label_picture(program).ppm() != with_bus.ppm(), TWO_TICKS)
                program.stop()

    def test_the_bus_goes(self):
        self.desktop.clock.set(NOON)
        program = self.start_program()
        program.wait_for_text(LINE)
        with_bus = self.label_picture(program)
        self.desktop.bus.process.kill()
        self.desktop.clock.set(LATER)
        until("the label ticks on", lambda: self.label_picture(program).ppm() != with_bus.ppm(), TWO_TICKS)


class Preferences(DesktopTest):
    def file(self):
        file = self.desktop.config / "tambrelle" / "tambrelle.conf"
        file.parent.mkdir(exist_ok=True)
        return file

    def shows_the_default(self, **options):
        self.desktop.clock.set(NOON)
        program = self.start_program(**options)
        program.wait_for_text(LINE)
        # Two ticks later it is as well as before.
        self.desktop.clock.set(LATER)
        program.wait_for_text(LATER_LINE, TWO_TICKS)
        program.stop()

    def test_unknown_values_read_as_the_default_and_stay_as_they_are(self):
        for case, stored in (("unknown text", ["menuBarFormat=Date", "appTheme=midnight"]),
                             ("a number", ["menuBarFormat=7", "appTheme=1"]),
                             ("a truth", ["menuBarFormat=true", "appTheme=false"]),
                             ("a list", ["menuBarFormat=date, decimalTime", "appTheme=light, sepiaNight"]),
                             ("nothing", ["menuBarFormat=", "appTheme="])):
            with self.subTest(case=case):
                self.file().write_text("\n".join(["[General]", *stored, ""]), encoding="utf-8")
                self.shows_the_default()
                lines = self.file().read_text(encoding="utf-8").splitlines()
                self.assertEqual(sorted(line for line in lines if line.startswith(("menuBarFormat", "appTheme"))),
                                 sorted(stored))

    def test_damaged_files_count_as_empty(self):
        for case, content in (("no file of this kind", bytes(range(256)) * 40), ("only zeros", b"\0" * 4096),
                              ("cut short", b"[General]\nmenuBarFormat=\"da"), ("empty", b""),
                              ("values of a strange type", b"[General]\nmenuBarFormat=@Variant(\\0\\0\\0\\x2)\n"
                                                           b"notificationHour=@Invalid()\nsoundEnabled=@Size(1 2)\n")):
            with self.subTest(case=case):
                self.file().write_bytes(content)
                self.shows_the_default()

    def in_place_of_the_file(self, make, **options):
        """Runs the program with what `make` puts where the file would be; gives the names that are there afterwards."""
        file = self.file()
        make(file)
        self.shows_the_default(**options)
        names = {name.name for name in file.parent.iterdir()} if file.parent.is_dir() else set()
        shutil.rmtree(file.parent) if file.parent.is_dir() else file.parent.unlink()
        return names

    def test_unreadable_files_count_as_empty(self):
        def folder(file):
            file.mkdir()

        def link_to_itself(file):
            file.symlink_to(file)

        def folder_that_is_a_file(file):
            file.parent.rmdir()
            file.parent.write_text("no folder", encoding="utf-8")

        def unreadable(file):
            file.write_text("[General]\nmenuBarFormat=date\n", encoding="utf-8")
            file.chmod(0)
            attempt = self.desktop.processes.start("cat", *WITHOUT_PRIVILEGES, "cat", file)
            self.assertNotEqual(attempt.wait(), 0, "it can be read")

        with self.subTest(case="a folder in its place"):
            self.assertIn("tambrelle.conf.damaged", self.in_place_of_the_file(folder), "nobody's folder is lost")
        with self.subTest(case="a link to itself"):
            self.in_place_of_the_file(link_to_itself)
        with self.subTest(case="a folder that is a file"):
            self.in_place_of_the_file(folder_that_is_a_file)
        with self.subTest(case="no right to read"):
            self.in_place_of_the_file(unreadable, prefix=WITHOUT_PRIVILEGES)


class LocalZone(DesktopTest):
    """The system's own zone, /etc/localtime, replaced while the program runs."""

    def test_a_new_zone_counts_at_once(self):
        etc = EtcOfOnesOwn(self.desktop)
        self.require_mounts(etc)
        etc.set_zone("Europe/Paris")
        self.desktop.clock.set(NOON)
        program = self.start_program(prefix=etc.prefix, without=["TZ"])
        program.wait_for_text(LINE)
        for zone, line in (("Asia/Tokyo", "🌫️ 23 Brumaire · Tridi · 8:33"),              # 20:00 there
                           ("Pacific/Kiritimati", "🌫️ 24 Brumaire · Quartidi · 0:41"),    # 01:00 of the next day
                           ("America/Los_Angeles", "🌫️ 23 Brumaire · Tridi · 1:25"),      # 03:00
                           ("Europe/Paris", LINE)):
            with self.subTest(zone=zone):
                etc.set_zone(zone)
                program.wait_for_text(line, TWO_TICKS)


if __name__ == "__main__":
    main()
