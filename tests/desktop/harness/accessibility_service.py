#!/usr/bin/python3
"""accessibility_service.py ADDRESS: says on the session bus where the accessibility bus is and that it is wanted, as a
desktop's own launcher does. Toolkits look here; Qt 6.4 stays silent when it learns the address by the environment."""

import sys

from gi.repository import Gio, GLib

SERVICE = """<node>
<interface name="org.a11y.Bus"><method name="GetAddress"><arg type="s" direction="out"/></method></interface>
<interface name="org.a11y.Status">
  <property name="IsEnabled" type="b" access="readwrite"/>
  <property name="ScreenReaderEnabled" type="b" access="readwrite"/>
</interface></node>"""


def main():
    address = sys.argv[1]
    wanted = {"IsEnabled": True, "ScreenReaderEnabled": False}

    def call(_connection, _sender, _path, _interface, _method, _arguments, invocation):
        invocation.return_value(GLib.Variant("(s)", (address,)))

    def get(_connection, _sender, _path, _interface, name):
        return GLib.Variant("b", wanted[name])

    def change(_connection, _sender, _path, _interface, name, value):
        wanted[name] = value.unpack()
        return True

    def serve(connection, _name):
        for interface in Gio.DBusNodeInfo.new_for_xml(SERVICE).interfaces:
            connection.register_object("/org/a11y/bus", interface, call, get, change)

    loop = GLib.MainLoop()
    Gio.bus_own_name(Gio.BusType.SESSION, "org.a11y.Bus", Gio.BusNameOwnerFlags.NONE, serve, None,
                     lambda *_: loop.quit())
    loop.run()


if __name__ == "__main__":
    main()
