#!/usr/bin/python3
"""What an installation holds, and that the desktop reaches the installed program by it: by the bus, by the entry's actions.

Needs TAMBRELLE_INSTALLATION, a prefix with nothing in it but this program's installation; TAMBRELLE_VERSION; and
TAMBRELLE_PLATES, 1 where the build has drawn them, else 0.
"""

import configparser
import gzip
import os
import pathlib
import re
import shlex
import shutil
import stat
import sys
import unittest
import xml.etree.ElementTree as xml

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "desktop"))

from gi.repository import GLib  # noqa: E402
from harness import DesktopTest, main, until  # noqa: E402

IDENTITY = "org.tambrelle.Tambrelle"
OBJECT = "/org/tambrelle/Tambrelle"
INTERFACE = "org.freedesktop.Application"

PREFIX = pathlib.Path(os.environ["TAMBRELLE_INSTALLATION"])
PROGRAM = PREFIX / "bin/tambrelle"
ENTRY = PREFIX / f"share/applications/{IDENTITY}.desktop"
SERVICE = PREFIX / f"share/dbus-1/services/{IDENTITY}.service"
METAINFO = PREFIX / f"share/metainfo/{IDENTITY}.metainfo.xml"
DOCUMENTS = PREFIX / "share/doc/tambrelle"

# One a line, with the print of its picture; the tests of the plates hold this list against the days' names.
APPROVED_PLATES = pathlib.Path(__file__).resolve().parent.parent / "plates" / "golden.txt"
PLATES_ARE_DRAWN = os.environ["TAMBRELLE_PLATES"] == "1"

FILES = {
    "bin/tambrelle",
    "libexec/tambrelle/tambrelle-player",
    f"share/applications/{IDENTITY}.desktop",
    f"share/dbus-1/services/{IDENTITY}.service",
    "share/doc/tambrelle/changelog.gz",
    "share/doc/tambrelle/copyright",
    f"share/icons/hicolor/scalable/apps/{IDENTITY}.svg",
    f"share/icons/hicolor/symbolic/apps/{IDENTITY}-symbolic.svg",
    "share/man/man1/tambrelle.1.gz",
    f"share/metainfo/{IDENTITY}.metainfo.xml",
    "share/tambrelle/marseillaise.mp3",
}


def key_file(path):
    parser = configparser.ConfigParser(interpolation=None, delimiters="=", strict=True)
    parser.optionxform = str
    parser.read_string(path.read_text(encoding="utf-8"))
    return parser


class Files(unittest.TestCase):
    def test_are_these_and_the_plates(self):
        found = {str(path.relative_to(PREFIX)) for path in PREFIX.rglob("*") if not path.is_dir()}
        plates = {path for path in found if re.fullmatch(r"share/tambrelle/plates/[^/]+\.png", path)}
        self.assertEqual(found - plates, FILES)
        names = {line.split()[0] for line in APPROVED_PLATES.read_text(encoding="utf-8").splitlines()}
        self.assertEqual(len(names), 361)
        self.assertEqual({pathlib.Path(path).stem for path in plates}, names if PLATES_ARE_DRAWN else set())

    def test_no_folder_is_empty(self):
        self.assertEqual([path for path in PREFIX.rglob("*") if path.is_dir() and not any(path.iterdir())], [])

    def test_only_programs_can_be_run_and_nobody_else_can_write(self):
        for path in PREFIX.rglob("*"):
            if path.is_file():
                program = path.parent.name == "bin" or "libexec" in path.parts
                self.assertEqual(oct(stat.S_IMODE(path.stat().st_mode)), oct(0o755 if program else 0o644), path)

    def test_speak_of_each_other(self):
        service = key_file(SERVICE)["D-BUS Service"]
        self.assertEqual(dict(service), {"Name": IDENTITY, "Exec": str(PROGRAM)})

        entry = key_file(ENTRY)
        main_group = entry["Desktop Entry"]
        self.assertEqual(shlex.split(main_group["Exec"]), [PROGRAM.name])
        self.assertEqual(main_group["DBusActivatable"], "true")
        icons = {path.name for path in (PREFIX / "share/icons").rglob("*.svg")}
        self.assertEqual(icons, {f"{main_group['Icon']}.svg", f"{main_group['Icon']}-symbolic.svg"})
        actions = main_group["Actions"].rstrip(";").split(";")
        self.assertEqual({f"Desktop Action {action}" for action in actions} | {"Desktop Entry"}, set(entry.sections()))

        component = xml.parse(METAINFO).getroot()
        self.assertEqual(component.findtext("id"), IDENTITY)
        self.assertEqual(component.findtext("launchable"), ENTRY.name)
        self.assertEqual(component.findtext("provides/binary"), PROGRAM.name)
        self.assertEqual(component.findtext("provides/dbus"), IDENTITY)
        self.assertEqual(component.findtext("name"), main_group["Name"])
        self.assertEqual(component.findtext("summary"), main_group["Comment"])

    def test_agree_on_the_version(self):
        version = os.environ["TAMBRELLE_VERSION"]
        self.assertEqual(xml.parse(METAINFO).find("releases/release").get("version"), version)
        changelog = gzip.decompress((DOCUMENTS / "changelog.gz").read_bytes()).decode()
        self.assertEqual(re.match(r"tambrelle \((.*?)\) ", changelog)[1], version)
        manual = gzip.decompress((PREFIX / "share/man/man1/tambrelle.1.gz").read_bytes()).decode()
        self.assertIn(f'"Tambrelle {version}"', manual)


class Activation(DesktopTest):
    """The installed program, started and asked by the bus as a desktop does."""

    def setUp(self):
        super().setUp()
        services = self.desktop.home / ".local/share/dbus-1/services"
        services.mkdir(parents=True)
        shutil.copy(SERVICE, services)
        self.desktop.bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig")

    def ask(self, method, signature, *arguments):
        return self.desktop.bus.call(IDENTITY, OBJECT, INTERFACE, method, GLib.Variant(signature, arguments))

    def shown(self, name):
        pid = self.desktop.bus.pid_of(IDENTITY)
        return self.desktop.accessibility.nodes(pid, name=name)

    def panel(self):
        """The panel's window, which no other window is as tall as. Opened at the very start, it is there before a screen
        reader can hear of it."""
        pid = self.desktop.bus.pid_of(IDENTITY)
        return [window for window in self.desktop.x11.windows() if window.pid == pid and window.height > 300]

    def running(self):
        return self.desktop.bus.has_owner(IDENTITY)

    def wait_for_end(self):
        until("the program has ended", lambda: not self.running() and not self.desktop.processes.named("tambrelle"))

    def run_action(self, name):
        command = key_file(ENTRY)[f"Desktop Action {name}"]["Exec"]
        self.desktop.processes.run(*shlex.split(command))

    def test_starts_it_with_its_panel_open(self):
        self.ask("Activate", "(a{sv})", {})
        until("the panel is open", self.panel)
        self.assertEqual(os.readlink(f"/proc/{self.desktop.bus.pid_of(IDENTITY)}/exe"), str(PROGRAM.resolve()))
        self.ask("ActivateAction", "(sava{sv})", "preferences", [], {})
        until("the preferences are open", lambda: self.shown("Launch at login"))
        self.ask("ActivateAction", "(sava{sv})", "quit", [], {})
        self.wait_for_end()

    def test_a_second_start_opens_the_panel_of_the_first(self):
        first = self.desktop.start_program(PROGRAM)
        until("the first runs", self.running)
        second = self.desktop.start_program(PROGRAM)
        self.assertEqual(second.wait(), 0)
        until("the panel is open", self.panel)
        self.assertEqual(self.desktop.bus.pid_of(IDENTITY), first.pid)

    def test_the_actions_of_the_entry_do_the_same(self):
        self.run_action("preferences")
        until("the preferences are open", lambda: self.shown("Launch at login"))
        self.run_action("quit")
        self.wait_for_end()

    def test_describes_itself_to_the_bus(self):
        self.ask("Activate", "(a{sv})", {})
        text = self.desktop.bus.call(IDENTITY, OBJECT, "org.freedesktop.DBus.Introspectable", "Introspect")
        described = {
            method.get("name"): [(arg.get("type"), arg.get("direction")) for arg in method.findall("arg")]
            for method in xml.fromstring(text).findall(f"interface[@name='{INTERFACE}']/method")}
        self.assertEqual(described, {
            "Activate": [("a{sv}", "in")],
            "Open": [("as", "in"), ("a{sv}", "in")],
            "ActivateAction": [("s", "in"), ("av", "in"), ("a{sv}", "in")]})


if __name__ == "__main__":
    main()
