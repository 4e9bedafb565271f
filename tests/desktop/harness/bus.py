"""Private message buses, and calls on them that never wait for ever."""

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from .waiting import until  # noqa: E402

CALL_LIMIT_MS = 3000

# Any user may connect: a desktop that refuses root runs as another user than the test that looks at it.
CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>{kind}</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  {services}
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


class Absent(LookupError):
    """The bus, the name or the answer is not there."""


class Bus:
    """A dbus-daemon of our own and a connection to it."""

    SESSION = "<standard_session_servicedirs/>"
    ACCESSIBILITY = "<servicedir>/usr/share/dbus-1/accessibility-services</servicedir>"

    def __init__(self, processes, name, services, own_address_as=None):
        socket = processes.directory / name
        configuration = processes.directory / f"{name}.conf"
        kind = "session" if services else "system"
        configuration.write_text(CONFIGURATION.format(kind=kind, socket=socket, services=services))
        self.address = f"unix:path={socket}"
        # Services that the bus starts may have to find it by a variable of that name.
        environment = {own_address_as: self.address} if own_address_as else {}
        self.process = processes.start(name, "dbus-daemon", f"--config-file={configuration}", "--nofork", "--nopidfile",
                                       environment=environment)
        until(f"the {name} listens", lambda: socket.exists() or not self.process.running)
        self.connection = until(f"the {name} answers", self._connect)

    def _connect(self):
        if not self.process.running:
            raise AssertionError(f"dbus-daemon ended at once: {self.process.output()}")
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        try:
            connection = Gio.DBusConnection.new_for_address_sync(self.address, flags, None, None)
        except GLib.Error as error:
            raise Absent(error.message) from None
        connection.set_exit_on_close(False)
        return connection

    def call(self, name, path, interface, method, arguments=None):
        """The unpacked answer: a value, a tuple of values, or None. Raises Absent where none comes."""
        try:
            answer = self.connection.call_sync(name, path, interface, method, arguments, None,
                                               Gio.DBusCallFlags.NONE, CALL_LIMIT_MS, None)
        except GLib.Error as error:
            raise Absent(f"{interface}.{method} of {name}{path}: {error.message}") from None
        values = answer.unpack()
        return values[0] if len(values) == 1 else values or None

    def get(self, name, path, interface, member):
        return self.call(name, path, "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (interface, member)))

    def _ask_daemon(self, method, name):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                         GLib.Variant("(s)", (name,)))

    def has_owner(self, name):
        return self._ask_daemon("NameHasOwner", name)

    def pid_of(self, name):
        return self._ask_daemon("GetConnectionUnixProcessID", name)

    def names(self):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames")

    def set_activation_environment(self, environment):
        """What services that the bus starts from now on find in their environment."""
        self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                  "UpdateActivationEnvironment", GLib.Variant("(a{ss})", (environment,)))

    def close(self):
        try:
            self.connection.close_sync(None)
        except GLib.Error:
            pass
