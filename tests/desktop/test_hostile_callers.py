#!/usr/bin/python3
"""Callers on the session bus who mean harm or know no better: everything that the program offers there, called with all
that the bus lets through."""

from gi.repository import Gio, GLib

from harness import DesktopTest, main, until
from harness.bus import Absent
from harness.chance import chance
from harness.eyes import panel
from harness.moments import LATER, LATER_LINE, LINE, NOON, TWO_TICKS
from harness.preferences import QUIET
from harness.processes import memory_kb

APPLICATION, APPLICATION_PATH = "org.tambrelle.Tambrelle", "/org/tambrelle/Tambrelle"
GROWTH_KB = 24 * 1024   # what glyphs, pictures and the allocator's slack may come to; a leak of the arguments is more

ITEM, MENU = "org.kde.StatusNotifierItem", "com.canonical.dbusmenu"
METHODS = {
    ITEM: ("Activate", "SecondaryActivate", "ContextMenu", "Scroll", "ProvideXdgActivationToken", "Explode"),
    MENU: ("GetLayout", "GetGroupProperties", "GetProperty", "Event", "EventGroup", "AboutToShow",
           "AboutToShowGroup", "Explode"),
    "org.freedesktop.Application": ("Activate", "Open", "ActivateAction", "Explode"),
    "org.freedesktop.DBus.Properties": ("Get", "GetAll", "Set"),
    "org.freedesktop.DBus.Introspectable": ("Introspect",),
    "org.freedesktop.DBus.Peer": ("Ping",),
    "no.such.Interface": ("Activate", "Quit"),
}
# What a caller needs to know to be let past the checks of types.
SIGNATURES = {"Activate": ["ii", "a{sv}"], "SecondaryActivate": ["ii"], "ContextMenu": ["ii"], "Scroll": ["is"],
              "ProvideXdgActivationToken": ["s"], "GetLayout": ["iias"], "GetGroupProperties": ["aias"],
              "GetProperty": ["is"], "Event": ["isvu"], "EventGroup": ["a(isvu)"], "AboutToShow": ["i"],
              "AboutToShowGroup": ["ai"], "Open": ["asa{sv}"], "ActivateAction": ["sava{sv}"], "Get": ["ss"],
              "GetAll": ["s"], "Set": ["ssv"]}
STRAY_SIGNATURES = ["", "s", "i", "u", "b", "d", "x", "v", "as", "ai", "av", "a{sv}", "(ii)", "a(isvu)", "aav", "ssss",
                    "iiii", "ay", "o", "g"]
NUMBERS = {"i": (0, 1, 2, -1, 2**31 - 1, -2**31, 99), "u": (0, 1, 2**32 - 1), "x": (0, 2**63 - 1, -2**63),
           "d": (0.0, float("nan"), float("inf"), -1e308), "b": (True, False), "y": (0, 255)}
# No "quit" and no "clicked": whoever asks the program to end is obeyed, which has a test of its own.
TEXTS = ("", "Title", "XAyatanaLabel", "label", "hovered", "opened", "preferences ", "%s%n%1%2", "\n\t\x01", "🌫️" * 50,
         "&<b>", "a" * 70000, "../../etc/passwd", "horizontal")


class Caller:
    """Random values of D-Bus types."""

    def __init__(self, random):
        self.choose = random.choice

    def value(self, signature, depth=0):
        """A variant of one complete type."""
        kind = signature[0]
        if kind in NUMBERS:
            return GLib.Variant(kind, self.choose(NUMBERS[kind]))
        if kind == "s":
            return GLib.Variant("s", self.choose(TEXTS))
        if kind == "o":
            return GLib.Variant("o", self.choose(("/", "/MenuBar", "/a/b/c")))
        if kind == "g":
            return GLib.Variant("g", self.choose(("", "a{sv}", "(((i)))")))
        if kind == "v":
            inner = "i" if depth > 20 else self.choose(("i", "s", "v", "v", "as", "a{sv}", "ay"))
            return GLib.Variant.new_variant(self.value(inner, depth + 1))
        if kind == "a":
            return self._array(signature[1:], depth)
        fields = parts_of(signature[1:-1])
        if kind == "{":
            return GLib.Variant.new_dict_entry(*(self.value(field, depth + 1) for field in fields))
        return GLib.Variant.new_tuple(*(self.value(field, depth + 1) for field in fields))

    def _array(self, element, depth):
        count = self.choose((0, 1, 3, 40)) if depth < 3 else self.choose((0, 1))
        values = [self.value(element, depth + 1) for _ in range(count)]
        return GLib.Variant.new_array(GLib.VariantType.new(element), values)

    def arguments(self, member):
        fitting = SIGNATURES.get(member, [])
        signature = self.choose(fitting if fitting and self.choose((True, False)) else STRAY_SIGNATURES)
        return GLib.Variant.new_tuple(*(self.value(part) for part in parts_of(signature)))


def parts_of(signature):
    """A signature's complete types."""
    parts, at = [], 0
    while at < len(signature):
        end = at
        while signature[end] == "a":
            end += 1
        if signature[end] in "({":
            level = 0
            while True:
                level += {"(": 1, "{": 1, ")": -1, "}": -1}.get(signature[end], 0)
                if level == 0:
                    break
                end += 1
        parts.append(signature[at:end + 1])
        at = end + 1
    return parts


class HostileTest(DesktopTest):
    """On a host whose bar takes items over the bus."""

    limit = 120

    def setUp(self):
        super().setUp()
        self.desktop.clock.set(NOON)
        self.program = self.start_program(preferences=QUIET)
        self.item = self.program.wait_for_title(LINE)
        self.lines = 0

    def send(self, service, path, interface, member, arguments, flags=Gio.DBusMessageFlags.NO_REPLY_EXPECTED):
        message = Gio.DBusMessage.new_method_call(service, path, interface, member)
        message.set_body(arguments)
        message.set_flags(flags)
        self.desktop.bus.connection.send_message(message, Gio.DBusSendMessageFlags.NONE)

    def answered(self):
        """All that was sent before has been handled: messages of one sender keep their order."""
        until("the program answers", lambda: self.item.title, 30)

    def lives_and_ticks(self):
        self.program.must_run()
        self.lines += 1
        clock, line = (LATER, LATER_LINE) if self.lines % 2 else (NOON, LINE)
        self.desktop.clock.set(clock)
        self.program.wait_for_title(line, 3 * TWO_TICKS)

    def resident_kb(self):
        return memory_kb(self.program.pid)


class Fuzz(HostileTest):
    def test_lives_through_whatever_is_called(self):
        caller = Caller(chance())
        paths = (self.item.path, "/MenuBar", APPLICATION_PATH, "/", "/org", "/MenuBar/0")
        calls = [(interface, member) for interface, members in METHODS.items() for member in members]
        self.burst(caller, paths, calls, 400)  # what is built once, fonts and the panel, is built
        before = self.resident_kb()
        for _ in range(4):
            self.burst(caller, paths, calls, 400)
            self.lives_and_ticks()
        self.assertLess(self.resident_kb() - before, GROWTH_KB)

    def burst(self, caller, paths, calls, count):
        for number in range(count):
            interface, member = caller.choose(calls)
            path, service = caller.choose(paths), caller.choose((self.item.service, APPLICATION))
            self.send(service, path, caller.choose((interface, interface, None)), member, caller.arguments(member))
            if number % 100 == 99:
                self.answered()


class Storms(HostileTest):
    def test_a_storm_of_clicks(self):
        at = GLib.Variant("(ii)", (900, 10))
        for _ in range(3000):
            self.send(self.item.service, self.item.path, ITEM, "Activate", at)
        self.answered()
        self.lives_and_ticks()

    def test_absurd_places_open_the_panel_on_the_screen(self):
        for x, y in ((2**31 - 1, 2**31 - 1), (-2**31, -2**31), (-1, 10**6)):
            self.item.call("Activate", GLib.Variant("(ii)", (x, y)))
            opened = until(f"the panel is open for {x}, {y}", lambda: panel(self.desktop, self.program))
            self.assertTrue(0 <= opened.x and opened.x + opened.width <= 1280 and 0 <= opened.y
                            and opened.y + opened.height <= 720, f"{opened} for {x}, {y}")
            self.desktop.key("Escape")
            until("the panel is closed", lambda: panel(self.desktop, self.program) is None)
        self.lives_and_ticks()

    def test_the_wheel_and_the_middle_button_do_nothing(self):
        for _ in range(3000):
            self.send(self.item.service, self.item.path, ITEM, "Scroll", GLib.Variant("(is)", (120, "vertical")))
            self.send(self.item.service, self.item.path, ITEM, "SecondaryActivate", GLib.Variant("(ii)", (0, 0)))
        self.answered()
        self.assertIsNone(panel(self.desktop, self.program))
        self.lives_and_ticks()

    def test_huge_strings_are_not_kept(self):
        huge = "1" * (8 * 1024 * 1024)

        def shout():
            for path, interface, member, arguments in (
                    (self.item.path, ITEM, "ProvideXdgActivationToken", GLib.Variant("(s)", (huge,))),
                    ("/MenuBar", MENU, "GetProperty", GLib.Variant("(is)", (1, huge))),
                    (APPLICATION_PATH, "org.freedesktop.Application", "ActivateAction",
                     GLib.Variant("(sava{sv})", (huge, [], {})))):
                self.send(self.item.service, path, interface, member, arguments)
            self.answered()

        shout()
        before = self.resident_kb()
        for _ in range(6):
            shout()
        self.assertLess(self.resident_kb() - before, 3 * GROWTH_KB)
        self.lives_and_ticks()

    def test_wrong_calls_are_refused_by_an_error(self):
        for path, interface, member, arguments in (
                (self.item.path, ITEM, "Activate", GLib.Variant("(s)", ("here",))),
                (self.item.path, ITEM, "Explode", None),
                ("/MenuBar", MENU, "GetLayout", GLib.Variant("(s)", ("all",))),
                ("/MenuBar", MENU, "Explode", None),
                (APPLICATION_PATH, "org.freedesktop.Application", "Activate", GLib.Variant("(i)", (1,))),
                (APPLICATION_PATH, "org.freedesktop.Application", "ActivateAction", GLib.Variant("(i)", (1,))),
                (APPLICATION_PATH, "org.freedesktop.Application", "Explode", None)):
            with self.assertRaises(Absent, msg=f"{interface}.{member}"):
                self.desktop.bus.call(self.item.service, path, interface, member, arguments)
        self.assertIsNone(panel(self.desktop, self.program))


class SecondStart(HostileTest):
    """One instance: the bus name, and what the first one does for the others."""

    def act(self, action):
        self.desktop.bus.call(APPLICATION, APPLICATION_PATH, "org.freedesktop.Application", "ActivateAction",
                              GLib.Variant("(sava{sv})", (action, [], {})))

    def test_opens_the_panel_of_the_first_and_ends_well(self):
        for _ in range(2):  # the second time it is open already, and stays so
            second = self.start_program()
            self.assertEqual(second.wait(10), 0)
            self.assertEqual(second.output(), "")
            until("the first one's panel is open", lambda: panel(self.desktop, self.program))
        self.program.must_run()

    def test_many_at_once_leave_one(self):
        others = [self.start_program() for _ in range(5)]
        self.assertEqual([other.wait(20) for other in others], [0] * len(others))
        self.program.must_run()

    def test_preferences_are_an_action(self):
        self.act("preferences")
        until("the settings are open", lambda: self.program.nodes("check box", "Launch at login"))

    def test_quit_is_an_action(self):
        self.act("quit")
        self.assertEqual(self.program.wait(10), 0)

    def test_an_unknown_action_does_nothing(self):
        self.act("surrender")
        self.lives_and_ticks()
        self.assertIsNone(panel(self.desktop, self.program))

    def test_the_menu_quits(self):
        self.desktop.bus.call(self.item.service, "/MenuBar", MENU, "Event",
                              GLib.Variant("(isvu)", (5, "clicked", GLib.Variant("i", 0), 0)))
        self.assertEqual(self.program.wait(10), 0)


if __name__ == "__main__":
    main()
