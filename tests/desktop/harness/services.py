"""The services beside the program: a sound server whose sink leads nowhere, and a notification service that records."""

import json

from .waiting import until

PLAYER = "tambrelle-playe"   # the kernel keeps 15 bytes of a command's name


def start_sound_server(desktop, rate=44100):
    """The server's process; what it plays can be recorded at "test.monitor"."""
    server = desktop.processes.start(
        "pulseaudio", "pulseaudio", "--daemonize=no", "--exit-idle-time=-1", "-n", "-L", "module-native-protocol-unix",
        "-L", f"module-null-sink sink_name=test rate={rate}")
    until("the sound server listens", (desktop.runtime / "pulse" / "native").exists)
    return server


class NotificationRecorder:
    """What was shown by one notification service after another."""

    NAME = "org.freedesktop.Notifications"

    def __init__(self, desktop):
        self._desktop = desktop
        self._record = desktop.directory / "notifications"

    def start(self, *options):
        """Starts a service with the options of notification_server.py and gives its process."""
        server = self._desktop.processes.start(
            "notification-server", "/usr/bin/python3", "-B", self._desktop.copy_of_script("notification_server.py"),
            self._record, *options)
        until("the notification service is there", lambda: self._desktop.bus.has_owner(self.NAME))
        return server

    def stop(self, server):
        server.kill()
        until("the notification service is gone", lambda: not self._desktop.bus.has_owner(self.NAME))

    def shown(self):
        """Each as a dictionary of the arguments that it was asked for with."""
        if not self._record.exists():
            return []
        return [json.loads(line) for line in self._record.read_text(encoding="utf-8").splitlines()]

    def titles(self):
        return [notification["summary"] for notification in self.shown()]
