#!/usr/bin/python3
"""The harness itself: what the other desktop tests take for granted."""

import os
import pathlib
import signal
import subprocess
import sys
import unittest

from gi.repository import Gio, GLib

from harness import Desktop, DesktopTest, Late, main, until
from harness.item import WATCHER, WATCHER_PATH, registered_items
from harness.picture import Picture
from harness.processes import MARK


class Waiting(unittest.TestCase):
    def test_gives_the_answer(self):
        answers = iter([None, 0, "here"])
        self.assertEqual(until("it comes", lambda: next(answers), limit=2), "here")

    def test_says_what_did_not_come(self):
        with self.assertRaisesRegex(Late, "after 0.1 s still not: the moon is green .*'grey'"):
            until("the moon is green", lambda: (_ for _ in ()).throw(LookupError("grey")), limit=0.1)

    def test_lets_other_errors_through(self):
        with self.assertRaises(ZeroDivisionError):
            until("never", lambda: 1 / 0, limit=1)


class Pictures(unittest.TestCase):
    def test_crops_and_counts(self):
        picture = Picture.from_ppm(b"P6\n3 2\n255\n" + bytes([1, 2, 3] * 5 + [9, 9, 9]))
        self.assertEqual(picture[2, 1], (9, 9, 9))
        self.assertEqual(picture.cropped(1, 1, 9, 9).colours(), {(1, 2, 3): 1, (9, 9, 9): 1})


def marked(mark):
    """Processes that carry a desktop's mark."""
    found = []
    for entry in filter(str.isdigit, os.listdir("/proc")):
        try:
            if f"{MARK}={mark}".encode() in pathlib.Path(f"/proc/{entry}/environ").read_bytes().split(b"\0"):
                found.append(int(entry))
        except OSError:
            continue
    return found


class Endings(DesktopTest):
    starts_desktop = False

    def test_nothing_is_left_after_stop(self):
        with Desktop("none") as desktop:
            mark, directory = desktop.processes.mark, desktop.directory
            # One that ignores the request to end, and one that has left its group and its parent.
            desktop.processes.start("stubborn", "sh", "-c", "trap '' TERM; while :; do sleep 60; done")
            desktop.processes.run("sh", "-c", "setsid sleep 600 >/dev/null 2>&1 &")
            self.assertGreaterEqual(len(marked(mark)), 5)
        self.assertEqual(marked(mark), [])
        self.assertFalse(directory.exists())

    def test_nothing_is_left_after_a_killed_test(self):
        script = ("import sys, time; sys.path.insert(0, sys.argv[1]); from harness import Desktop\n"
                  "desktop = Desktop('none'); print(desktop.processes.mark, desktop.directory, flush=True)\n"
                  "time.sleep(600)")
        for end in (signal.SIGKILL, signal.SIGINT):
            with self.subTest(end=end), subprocess.Popen(
                    [sys.executable, "-c", script, str(pathlib.Path(__file__).parent)], stdout=subprocess.PIPE,
                    stderr=subprocess.DEVNULL, text=True) as test:
                mark, directory = test.stdout.readline().split()
                self.assertTrue(marked(mark))
                test.send_signal(end)
                test.wait(10)
                until("its processes have ended", lambda: not marked(mark), 15)
                until("its folder is gone", lambda: not pathlib.Path(directory).exists())


class Clocks(DesktopTest):
    def read(self):
        date = self.desktop.processes.start("date", "date", "+%F %T %Z", environment=self.desktop.clock.environment())
        self.assertEqual(date.wait(), 0)
        return date.output().strip()

    def test_is_set_in_the_zone(self):
        self.desktop.clock.set("2025-11-15 12:00:00")
        self.assertRegex(self.read(), r"^2025-11-15 12:00:0[0-2] CET$")
        self.desktop.clock.set("1805-07-15 12:00:00", zone="UTC")
        self.assertRegex(self.read(), r"^1805-07-15 12:09:2[1-3] LMT$")

    def test_moves_under_a_running_program(self):
        self.desktop.clock.set("2025-11-15 23:59:00")
        loop = self.desktop.processes.start(
            "loop", sys.executable, "-c",
            "import select, time\n"
            "while True: print(time.strftime('%F'), time.monotonic(), flush=True); select.select([], [], [], .02)",
            environment=self.desktop.clock.environment())

        def last():
            return loop.output().splitlines()[-2].split()  # the last one may be half written

        for day in ("2025-11-16", "2031-01-01", "1999-12-31"):
            before = float(until("a line", last)[1])
            self.desktop.clock.set(f"{day} 00:00:05")
            until(f"the program sees {day}", lambda: last()[0] == day, 2)
            self.assertLess(abs(float(last()[1]) - before), 5, "the monotonic clock went along")


ITEM = """<node><interface name="org.kde.StatusNotifierItem"><property name="Title" type="s" access="read"/>
<property name="Status" type="s" access="read"/><property name="Id" type="s" access="read"/>
<property name="Category" type="s" access="read"/><property name="IconName" type="s" access="read"/>
<property name="ItemIsMenu" type="b" access="read"/></interface></node>"""


class Hosts(DesktopTest):
    """The chosen host comes up and shows something."""

    def test_comes_up(self):
        host = self.desktop.host
        if host.has_tray:
            self.assertTrue(self.desktop.x11.has_tray())
        if host.bar is not None and host.seen_when_empty:
            until("the bar is drawn", lambda: len(self.desktop.picture().colours()) > 1, 20)

    def test_a_picture_sees_what_is_drawn(self):
        self.desktop.processes.start("colour", "display", "-size", "200x100", "-geometry", "+500+300", "xc:#123456")
        until("the colour is on the screen",
              lambda: self.desktop.picture().colours().get((0x12, 0x34, 0x56), 0) >= 200 * 100 * 0.9)


class Bars(DesktopTest):
    def setUp(self):
        super().setUp()
        if self.desktop.host.bar is None:
            self.skipTest("this host has no bar")

    def test_restarts(self):
        self.desktop.restart_bar()
        self.assertTrue(self.desktop.host.bar_is_up(self.desktop))


class Watchers(DesktopTest):
    def setUp(self):
        super().setUp()
        if not self.desktop.host.has_watcher:
            self.skipTest("this host has no watcher")

    def test_an_item_is_found_through_the_watcher(self):
        """An item of this process's own."""
        bus, connection = self.desktop.bus, self.desktop.bus.connection
        values = {"Title": "Primidi", "Status": "Active", "Id": "self-test", "Category": "ApplicationStatus",
                  "IconName": "face-smile", "ItemIsMenu": False}

        def answer(_connection, _sender, _path, _interface, name):
            return GLib.Variant("b" if isinstance(values[name], bool) else "s", values[name])

        connection.register_object("/StatusNotifierItem", Gio.DBusNodeInfo.new_for_xml(ITEM).interfaces[0], None,
                                   answer, None)
        service = connection.get_unique_name()
        connection.call(WATCHER, WATCHER_PATH, WATCHER, "RegisterStatusNotifierItem", GLib.Variant("(s)", (service,)),
                        None, Gio.DBusCallFlags.NONE, 3000, None, None)
        context = GLib.MainContext.default()

        def listed():
            while context.iteration(False):
                pass
            return [item.service for item in registered_items(bus)] == [service]

        until("the watcher lists the item", listed)


class Accessibility(DesktopTest):
    def setUp(self):
        super().setUp()
        if self.desktop.host.bar is None:
            self.skipTest("this host has no bar to read")

    def test_reads_a_toolkit_program(self):
        """The tree of a bar that a toolkit draws."""
        pid = self.desktop.host.bar.pid
        until("the panel is in the tree", lambda: self.desktop.accessibility.nodes(pid, role="panel"))


if __name__ == "__main__":
    main()
