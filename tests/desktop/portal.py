#!/usr/bin/python3
"""portal.py FILE: a settings portal (org.freedesktop.portal.Settings) that knows one setting, the contrast of
org.freedesktop.appearance: the last number in FILE, which it tells of anew whenever another line is appended."""

import pathlib
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

PATH, SETTINGS = "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings"
SPACE, KEY = "org.freedesktop.appearance", "contrast"
INTERFACE = f"""<node><interface name="{SETTINGS}">
  <method name="Read">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""


class Portal:
    def __init__(self, file):
        self.file = pathlib.Path(file)
        self.told = self.contrast()

    def contrast(self):
        return GLib.Variant("u", int(self.file.read_text(encoding="ascii").split()[-1]))

    def called(self, _connection, _sender, _path, _interface, _method, arguments, invocation):
        if arguments.unpack() == (SPACE, KEY):
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", self.contrast()),)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "Requested setting not found")

    def serve(self, connection, _name):
        connection.register_object(PATH, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], self.called)
        GLib.timeout_add(50, self.look, connection)

    def look(self, connection):
        contrast = self.contrast()
        if contrast.unpack() != self.told.unpack():
            self.told = contrast
            connection.emit_signal(None, PATH, SETTINGS, "SettingChanged", GLib.Variant("(ssv)", (SPACE, KEY, contrast)))
        return GLib.SOURCE_CONTINUE


def main():
    portal = Portal(sys.argv[1])
    loop = GLib.MainLoop()
    Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, portal.serve, None,
                     lambda *_: loop.quit())
    loop.run()


if __name__ == "__main__":
    main()
