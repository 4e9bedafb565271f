"""One private desktop: folders, buses, display, host, and the program under test on it."""

import os
import pathlib
import pwd
import shutil
import tempfile

from .accessibility import Accessibility
from .bus import Bus
from .clock import Clock
from .hosts import host_named
from .item import item_of
from .picture import Picture
from .processes import Processes
from .program import Program
from .x11 import Display


class Desktop:
    """A running desktop of the kind `host_name`. Use it as a context manager, or call stop()."""

    OTHER_USER, OTHER_GROUP = "nobody", "nogroup"

    def __init__(self, host_name="none", zone="Europe/Paris", screen="1280x720x24"):
        self.host = host_named(host_name)
        self.zone = zone
        self.screen = screen
        # A short path: sockets in it may have 107 bytes.
        self.directory = pathlib.Path(tempfile.mkdtemp(prefix="tambrelle-"))
        self.home = self.directory / "home"
        self.config = self.home / ".config"
        self.runtime = self.directory / "run"
        self.clock = Clock(self.directory, zone)
        self.x11 = self.bus = self.accessibility = None
        self._installed = {}
        self.processes = Processes(self.directory, self._base_environment())
        try:
            self._start()
        except BaseException:
            self.stop()
            raise

    def _base_environment(self):
        return {
            "PATH": "/usr/local/bin:/usr/bin:/bin:/usr/games:/usr/sbin:/sbin",
            "LANG": "C.UTF-8",
            "TZ": self.zone,
            "HOME": str(self.home),
            "USER": "citizen",
            "XDG_CONFIG_HOME": str(self.config),
            "XDG_CACHE_HOME": str(self.home / ".cache"),
            "XDG_DATA_HOME": str(self.home / ".local/share"),
            "XDG_STATE_HOME": str(self.home / ".local/state"),
            "XDG_RUNTIME_DIR": str(self.runtime),
            "XDG_CONFIG_DIRS": "/etc/xdg",
            "XDG_DATA_DIRS": "/usr/local/share:/usr/share",
            "TMPDIR": str(self.directory),
            "GSETTINGS_BACKEND": "memory",
            "GIO_USE_VFS": "local",
            "LIBGL_ALWAYS_SOFTWARE": "1",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            # Nothing here may reach the machine's own system bus.
            "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={self.directory}/no-system-bus",
            **self.host.environment(),
        }

    def _start(self):
        for folder in (self.config, self.home / ".cache", self.home / ".local/share", self.home / ".local/state"):
            folder.mkdir(parents=True)
        self.runtime.mkdir(mode=0o700)
        self.directory.chmod(0o755)
        self.host.configure(self)
        if self.host.refuses_root and os.geteuid() == 0:
            self._become_other_user()
        self.host.start_display(self)
        self.accessibility = Accessibility(self.processes)
        self.bus = Bus(self.processes, "session-bus", Bus.SESSION)
        self.add_to_environment({"DBUS_SESSION_BUS_ADDRESS": self.bus.address})
        self.accessibility.announce(self.bus, self.copy_of_script("accessibility_service.py"))
        self.host.start(self)

    def _become_other_user(self):
        self.processes.prefix = ["setpriv", f"--reuid={self.OTHER_USER}", f"--regid={self.OTHER_GROUP}", "--clear-groups"]
        user = pwd.getpwnam(self.OTHER_USER)
        for place, folders, files in os.walk(self.directory):
            for path in (place, *(os.path.join(place, name) for name in folders + files)):
                os.chown(path, user.pw_uid, user.pw_gid)

    @property
    def resolution(self):
        """The screen's width and height, as WIDTHxHEIGHT."""
        return self.screen.rpartition("x")[0]

    def copy_of_script(self, name):
        """A script of this folder, copied to where any user can read it."""
        copy = self.directory / name
        copy.write_bytes(pathlib.Path(__file__).with_name(name).read_bytes())
        return copy

    def start_x_server(self):
        reading, writing = os.pipe()
        try:
            server = self.processes.start(
                "Xvfb", "Xvfb", "-displayfd", writing, "-screen", "0", self.screen, "-nolisten", "tcp", "-noreset",
                pass_fds=(writing,))
        finally:
            os.close(writing)
        with os.fdopen(reading, "rb") as answers:
            number = answers.readline().decode().strip()  # ends with the server where it can't start
        if not number:
            raise AssertionError(f"no X server: {server.output()}")
        self.add_to_environment({"DISPLAY": f":{number}"})
        self.x11 = Display(f":{number}")

    def add_to_environment(self, variables):
        """For everything that is started from now on, services of the bus included."""
        self.processes.environment.update(variables)
        if self.bus is not None:
            self.bus.set_activation_environment(variables)

    def write_config(self, path, text):
        """Writes a file below the configuration folder."""
        file = self.config / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")
        return file

    def stop(self):
        if self.x11 is not None:
            self.x11.close()
        for connected in (self.accessibility, self.bus):
            if connected is not None:
                connected.close()
        self.processes.stop_all()
        self.clock.remove()
        shutil.rmtree(self.directory, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()

    # The program under test

    def start_program(self, path, *arguments, preferences=None, environment=None, without=(), prefix=()):
        """Starts the program at `path` on this desktop, with its clock. `preferences`: key -> text."""
        if preferences is not None:
            lines = "".join(f"{key}={value}\n" for key, value in preferences.items())
            self.write_config(Program.PREFERENCES, f"[General]\n{lines}")
        process = self.processes.start(
            "program", *prefix, self._reachable(pathlib.Path(path)), *arguments,
            environment={**self.clock.environment(), **(environment or {})}, without=without)
        return Program(self, process)

    def _reachable(self, path):
        """The program itself, or a copy of it and its resources where another user is to run it."""
        if not self.processes.prefix:
            return path
        if path not in self._installed:
            place = self.directory / "installed"
            place.mkdir(exist_ok=True)
            for file in path.parent.iterdir():
                if file.is_file() and os.access(file, os.X_OK) and not file.is_symlink():
                    shutil.copy2(file, place)
            if (path.parent / "share").is_dir():
                shutil.copytree(path.parent / "share", place / "share", dirs_exist_ok=True)
            self._installed[path] = place / path.name
        return self._installed[path]

    # Eyes and hands

    def item_of(self, program):
        return item_of(self.bus, program.pid)

    def docked_windows(self, program):
        """The program's windows that a tray holds."""
        return [window for window in self.x11.windows_of(program.pid) if window.docked]

    def restart_bar(self):
        self.host.restart_bar(self)

    def picture(self):
        return Picture.from_ppm(self.host.picture(self))

    def save_picture(self, file):
        """The whole screen, in the format that the name's ending says."""
        file = pathlib.Path(file)
        file.parent.mkdir(parents=True, exist_ok=True)
        raw = self.directory / "picture.ppm"
        raw.write_bytes(self.host.picture(self))
        self.processes.run("convert", raw, self.directory / f"picture{file.suffix}")
        shutil.copyfile(self.directory / f"picture{file.suffix}", file)

    @property
    def pointer(self):
        return self.host.pointer(self)

    def click(self, x, y, button=1):
        self.pointer.click(x, y, button)

    def click_with(self, key, x, y):
        """Clicks while a key is held, for example "alt"."""
        self.processes.run("xdotool", "mousemove", x, y, "keydown", key, "click", 1, "keyup", key)

    def key(self, *keys):
        """Presses keys by their X names, for example "Escape" or "alt+c"."""
        self.processes.run("xdotool", "key", *keys)

    def clipboard(self):
        """The clipboard's text, empty where nobody offers any."""
        return self.processes.run("xclip", "-o", "-selection", "clipboard", check=False).decode()
