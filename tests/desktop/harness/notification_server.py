#!/usr/bin/python3
"""notification_server.py FILE [--delay SECONDS] [--refuse]: an org.freedesktop.Notifications that shows nothing
and writes each Notify as a line of JSON to FILE. It answers late or with errors where asked to, and prints a line when it
does."""

import argparse
import json

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.freedesktop.Notifications"
INTERFACE = """<node><interface name="org.freedesktop.Notifications">
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="GetServerInformation">
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
  </method>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
</interface></node>"""
FIELDS = ("application", "replaces", "icon", "summary", "body", "actions", "hints", "expiry")


class Server:
    def __init__(self, options):
        self.options = options
        self.count = 0

    def called(self, _connection, _sender, _path, _interface, method, arguments, invocation):
        answer = self.answer(method, arguments.unpack())
        if self.options.delay:
            GLib.timeout_add(round(1000 * self.options.delay), lambda: self.reply(invocation, answer))
        else:
            self.reply(invocation, answer)

    def reply(self, invocation, answer):
        print("answered", flush=True)
        if self.options.refuse:
            invocation.return_dbus_error("org.example.Broken", "out of order")
        else:
            invocation.return_value(answer)
        return GLib.SOURCE_REMOVE

    def answer(self, method, arguments):
        if method == "GetCapabilities":
            return GLib.Variant("(as)", (["body"],))
        if method == "GetServerInformation":
            return GLib.Variant("(ssss)", ("recorder", "tests", "1", "1.2"))
        if method == "Notify":
            self.count += 1
            with open(self.options.file, "a", encoding="utf-8") as record:
                record.write(json.dumps(dict(zip(FIELDS, arguments))) + "\n")
            return GLib.Variant("(u)", (self.count,))
        return None


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("file")
    parser.add_argument("--delay", type=float, default=0)
    parser.add_argument("--refuse", action="store_true")
    server = Server(parser.parse_args())
    loop = GLib.MainLoop()
    interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
    Gio.bus_own_name(
        Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE,
        lambda connection, _: connection.register_object("/org/freedesktop/Notifications", interface, server.called),
        None, lambda *_: loop.quit())
    loop.run()


if __name__ == "__main__":
    main()
