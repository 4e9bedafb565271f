"""The bars and desktops that the tests run on, each started as its users have it, in small."""

import json
import os
import pathlib
import shutil

from .bus import Bus
from .item import watcher_ready
from .pointers import ShellPointer, VirtualPointer, XPointer
from .waiting import until

HOSTS = {}

# The ways in which the line is shown.
DOCKED = "docked text"                  # a window of text in the bar
LABEL = "icon and label"                # set by the bar itself
PICTURE = "picture of the line"         # drawn by the bar as a wide icon
ICON = "icon, and floating label"       # the bar has room for a square only
FLOATING = "floating label"             # there is no bar for it


def host_named(name):
    return HOSTS[name]()


class Host:
    """One kind of desktop. `start` returns when the bar is ready for items; `restart_bar` ends it and starts it anew."""

    name = ""
    needs = ("Xvfb",)
    light = True            # quick to install; ./check requires it
    has_watcher = False     # shows status notifier items
    has_tray = False        # owns the system tray selection
    xdg_name = ""           # XDG_CURRENT_DESKTOP
    refuses_root = False
    wayland = False
    seen_when_empty = True  # draws something even without items
    shown_as = FLOATING     # how the line is shown here
    click_opens_menu = False  # of the bar's own making, whatever the item wants
    bar_at_bottom = False
    bar_depth = 48          # no bar is higher than this

    def __init_subclass__(cls):
        if cls.name:
            HOSTS[cls.name] = cls

    def __init__(self):
        self.bar = None

    def missing(self):
        """The programs that this host needs and that are not installed; a name with a slash is a file."""
        return [need for need in self.needs
                if not (pathlib.Path(need).exists() if "/" in need else shutil.which(need))]

    def environment(self):
        return {"XDG_CURRENT_DESKTOP": self.xdg_name} if self.xdg_name else {}

    def configure(self, desktop):
        """Writes what the host reads at its start."""

    def start_display(self, desktop):
        desktop.start_x_server()

    def start(self, desktop):
        self.start_window_manager(desktop)
        self.start_bar(desktop)
        self.wait_for_bar(desktop)

    def start_window_manager(self, desktop):
        desktop.processes.start("openbox", "openbox")
        until("openbox manages windows", desktop.x11.has_window_manager)

    def start_bar(self, desktop):
        pass

    def wait_for_bar(self, desktop, limit=30.0):
        if self.bar is not None:
            until(f"{self.bar.name} is up", lambda: self.bar_is_up(desktop), limit)

    def bar_is_up(self, desktop):
        if not self.bar.running:
            raise AssertionError(f"{self.bar.name} ended with {self.bar.status}:\n{self.bar.output()}")
        return ((not self.has_watcher or watcher_ready(desktop.bus))
                and (not self.has_tray or desktop.x11.has_tray()))

    def stop_bar(self, desktop):
        self.bar.stop()
        until(f"{self.bar.name} has left the bus and the display", lambda: not self._bar_leaves_traces(desktop))

    def _bar_leaves_traces(self, desktop):
        return ((self.has_watcher and desktop.bus.has_owner("org.kde.StatusNotifierWatcher"))
                or (self.has_tray and desktop.x11.has_tray()))

    def restart_bar(self, desktop):
        self.stop_bar(desktop)
        self.start_bar(desktop)
        self.wait_for_bar(desktop)

    def pointer(self, desktop):
        return XPointer(desktop)

    def windows_of(self, desktop, pid):
        """Where a process's windows are on the screen: x, y, width, height of each."""
        return [(window.x, window.y, window.width, window.height) for window in desktop.x11.windows_of(pid)]

    def picture(self, desktop):
        """The whole screen as a PPM."""
        return desktop.processes.run("import", "-window", "root", "-depth", "8", "ppm:-")


class Nothing(Host):
    """A display without even a window manager."""

    name = "none"

    def start_window_manager(self, desktop):
        pass


class Openbox(Host):
    name = "openbox"
    needs = ("Xvfb", "openbox")


class Trayer(Host):
    name = "trayer"
    shown_as = DOCKED
    needs = ("Xvfb", "openbox", "trayer")
    has_tray = True
    seen_when_empty = False

    def start_bar(self, desktop):
        self.bar = desktop.processes.start(
            "trayer", "trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "26",
            "--expand", "true", "--SetDockType", "true", "--SetPartialStrut", "true")


class Tint2(Host):
    name = "tint2"
    shown_as = ICON
    needs = ("Xvfb", "openbox", "tint2")
    has_tray = True

    def configure(self, desktop):
        desktop.write_config("tint2/tint2rc", """\
rounded = 0
background_color = #222222 100
panel_items = FSC
panel_background_id = 1
panel_position = top center horizontal
panel_size = 100% 26
panel_monitor = all
systray_padding = 4 2 2
systray_icon_size = 22
time1_format = %H:%M
time1_font = DejaVu Sans 10
clock_font_color = #eeeeee 100
strut_policy = follow_size
""")

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("tint2", "tint2", "-c", desktop.config / "tint2/tint2rc")


class Polybar(Host):
    name = "polybar"
    shown_as = ICON
    needs = ("Xvfb", "openbox", "polybar")
    has_tray = True

    def configure(self, desktop):
        desktop.write_config("polybar/config.ini", """\
[bar/top]
width = 100%
height = 26
background = #222
foreground = #eee
modules-left = date
tray-position = right
tray-maxsize = 22
[module/date]
type = internal/date
date = %H:%M
""")

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("polybar", "polybar", "top", "-c", desktop.config / "polybar/config.ini")


class I3(Host):
    name = "i3"
    shown_as = ICON
    needs = ("Xvfb", "i3", "i3bar")
    has_tray = True

    def configure(self, desktop):
        desktop.write_config("i3/config", """\
# i3 config file (v4)
font pango:DejaVu Sans Mono 10
bar {
  position top
  status_command while true; do date +%H:%M; sleep 5; done
  tray_output screen
  tray_padding 2
}
""")

    def start_window_manager(self, desktop):
        self.wm = desktop.processes.start("i3", "i3", "-c", desktop.config / "i3/config")
        until("i3 manages windows", desktop.x11.has_window_manager)

    def start_bar(self, desktop):
        # i3 starts its bars itself, and again when its configuration is read again; there is no process of ours.
        self.bar = self.wm

    def restart_bar(self, desktop):
        before = desktop.processes.named("i3bar")
        desktop.processes.run("i3-msg", "restart")
        until("i3's bar is a new one",
              lambda: (now := desktop.processes.named("i3bar")) and not now & before and desktop.x11.has_tray(), 30)


class Xfce(Host):
    name = "xfce"
    shown_as = DOCKED
    needs = ("Xvfb", "xfwm4", "xfce4-panel", "xfconf-query")
    has_watcher = has_tray = True
    xdg_name = "XFCE"

    def configure(self, desktop):
        desktop.write_config("xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml", """\
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="true"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="26"/>
      <property name="icon-size" type="uint" value="0"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/><value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
""")

    def start_window_manager(self, desktop):
        desktop.processes.start("xfwm4", "xfwm4", "--compositor=off")
        until("xfwm4 manages windows", desktop.x11.has_window_manager, 20)

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("xfce4-panel", "xfce4-panel")


class Mate(Host):
    name = "mate"
    shown_as = DOCKED
    needs = ("Xvfb", "openbox", "mate-panel")
    has_watcher = has_tray = True
    xdg_name = "MATE"
    applet = "NotificationAreaAppletFactory::NotificationArea"

    def environment(self):
        return {**super().environment(), "GSETTINGS_BACKEND": "keyfile"}

    def configure(self, desktop):
        desktop.write_config("glib-2.0/settings/keyfile", f"""\
[org/mate/panel/general]
toplevel-id-list=['top']
object-id-list=['tray','clock']
[org/mate/panel/toplevels/top]
expand=true
orientation='top'
screen=0
size=26
[org/mate/panel/objects/tray]
object-type='applet'
applet-iid='{self.applet}'
panel-right-stick=true
position=10
toplevel-id='top'
[org/mate/panel/objects/clock]
object-type='applet'
applet-iid='ClockAppletFactory::ClockApplet'
panel-right-stick=true
position=0
toplevel-id='top'
""")

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("mate-panel", "mate-panel")


class MateIndicator(Mate):
    """MATE with the indicator applet: the watcher is a service of its own beside the panel."""

    name = "mate-indicator"
    shown_as = LABEL
    needs = Mate.needs + ("/usr/libexec/ayatana-indicator-application/ayatana-indicator-application-service",)
    light = False
    has_tray = False
    click_opens_menu = True
    applet = "IndicatorAppletFactory::IndicatorApplet"

    def start_bar(self, desktop):
        desktop.processes.start("indicator-service", self.needs[-1])
        super().start_bar(desktop)

    def stop_bar(self, desktop):
        self.bar.stop()  # the service, and with it the watcher, outlives the panel


class Lxqt(Host):
    name = "lxqt"
    shown_as = ICON
    needs = ("Xvfb", "openbox", "lxqt-panel")
    has_watcher = True
    xdg_name = "LXQt"

    def configure(self, desktop):
        desktop.write_config("lxqt/panel.conf", r"""panels=panel1
[panel1]
alignment=0
background-color=@Variant(\0\0\0\x43\x1\xff\xff\x33\x33\x33\x33\x33\x33\0\0)
font-color=@Variant(\0\0\0\x43\x1\xff\xff\xee\xee\xee\xee\xee\xee\0\0)
desktop=0
hidable=false
iconSize=22
lineCount=1
panelSize=28
plugins=spacer, statusnotifier, worldclock
position=Top
reserve-space=true
width=100
width-percent=true
[spacer]
type=spacer
expandable=true
alignment=Left
[statusnotifier]
type=statusnotifier
alignment=Right
[worldclock]
type=worldclock
alignment=Right
""")

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("lxqt-panel", "lxqt-panel")


class Plasma(Host):
    name = "plasma"
    shown_as = ICON
    needs = ("Xvfb", "kwin_x11", "kded5", "plasmashell")
    light = False
    has_watcher = True
    xdg_name = "KDE"
    bar_at_bottom = True

    def environment(self):
        return {**super().environment(), "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5",
                "XDG_SESSION_TYPE": "x11", "XDG_SESSION_DESKTOP": "KDE", "QT_QUICK_BACKEND": "software"}

    def start_window_manager(self, desktop):
        desktop.processes.start("kwin", "kwin_x11")
        until("kwin manages windows", desktop.x11.has_window_manager, 30)
        desktop.processes.start("kded5", "kded5")

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("plasmashell", "plasmashell", "--no-respawn")

    def wait_for_bar(self, desktop, limit=60.0):
        super().wait_for_bar(desktop, limit)

    def stop_bar(self, desktop):
        self.bar.stop()
        until("Plasma's tray has left the bus", lambda: not self._tray_is_up(desktop))

    def bar_is_up(self, desktop):
        return super().bar_is_up(desktop) and self._tray_is_up(desktop)

    @staticmethod
    def _tray_is_up(desktop):
        # kded5 keeps the watcher, and that says at all times that a bar is there.
        return any(name.startswith("org.kde.StatusNotifierHost-") for name in desktop.bus.names())


class _GnomeShell(Host):
    light = False
    xdg_name = "GNOME"
    extensions = ()

    def environment(self):
        return {**super().environment(), "GSETTINGS_BACKEND": "keyfile", "XDG_SESSION_TYPE": "x11",
                "XDG_SESSION_DESKTOP": "GNOME", "GNOME_SHELL_SESSION_MODE": "user"}

    def configure(self, desktop):
        desktop.write_config("glib-2.0/settings/keyfile", f"""\
[org/gnome/shell]
enabled-extensions={list(self.extensions) or '@as []'}
disable-user-extensions=false
welcome-dialog-last-shown-version='999'
[org/gnome/desktop/interface]
enable-animations=false
[org/gnome/desktop/notifications]
show-banners=false
""")

    def start_system_bus(self, desktop):
        """GNOME Shell ends at once where it can't reach a system bus; an empty one will do."""
        bus = Bus(desktop.processes, "system-bus", "")
        desktop.add_to_environment({"DBUS_SYSTEM_BUS_ADDRESS": bus.address})
        bus.close()

    def start_window_manager(self, desktop):
        self.start_system_bus(desktop)

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("gnome-shell", "gnome-shell", "--x11", "--unsafe-mode")

    def bar_is_up(self, desktop):
        return super().bar_is_up(desktop) and desktop.bus.has_owner("org.gnome.Shell")

    def wait_for_bar(self, desktop, limit=60.0):
        super().wait_for_bar(desktop, limit)
        until("the shell has started up",
              lambda: self.shell(desktop).evaluate("Main.layoutManager._startingUp === false") == "true", limit)
        # It starts with the overview of all windows.
        self.shell(desktop).evaluate("Main.overview.hide(); 1")
        until("the overview is closed", lambda: self.shell(desktop).evaluate("Main.overview.visible") == "false")

    def shell(self, desktop):
        return ShellPointer(desktop)

    def restart_bar(self, desktop):
        # The shell is the session: what users see restart is the extension that holds the items.
        for extension in self.extensions:
            desktop.processes.run("gnome-extensions", "disable", extension)
        until("the watcher has gone", lambda: not desktop.bus.has_owner("org.kde.StatusNotifierWatcher"))
        for extension in self.extensions:
            desktop.processes.run("gnome-extensions", "enable", extension)
        until("the watcher is back", lambda: watcher_ready(desktop.bus), 20)


_APPINDICATOR = "ubuntu-appindicators@ubuntu.com"


class GnomeStock(_GnomeShell):
    name = "gnome-stock"
    needs = ("Xvfb", "gnome-shell")


class Gnome(_GnomeShell):
    name = "gnome"
    shown_as = LABEL
    needs = ("Xvfb", "gnome-shell", f"/usr/share/gnome-shell/extensions/{_APPINDICATOR}")
    has_watcher = True
    extensions = (_APPINDICATOR,)


class GnomeWayland(Gnome):
    name = "gnome-wayland"
    wayland = True

    def environment(self):
        return {**super().environment(), "XDG_SESSION_TYPE": "wayland"}

    def start_display(self, desktop):
        pass  # the shell is the display

    def start_bar(self, desktop):
        self.bar = desktop.processes.start(
            "gnome-shell", "gnome-shell", "--headless", "--virtual-monitor", desktop.resolution, "--wayland-display",
            "wayland-tambrelle", "--unsafe-mode")
        until("the shell's display is there", (desktop.runtime / "wayland-tambrelle").exists, 60)
        desktop.add_to_environment({"WAYLAND_DISPLAY": "wayland-tambrelle"})

    def wait_for_bar(self, desktop, limit=60.0):
        super().wait_for_bar(desktop, limit)
        found = until("the shell has an X server for those who want one",
                      lambda: self.shell(desktop).evaluate("imports.gi.GLib.getenv('DISPLAY')"))
        authority = next(desktop.runtime.glob(".mutter-Xwaylandauth*"), None)
        desktop.add_to_environment({"DISPLAY": found.strip('"'), **({"XAUTHORITY": str(authority)} if authority else {})})

    def pointer(self, desktop):
        return self.shell(desktop)

    def windows_of(self, desktop, pid):
        return json.loads(json.loads(self.shell(desktop).evaluate(
            "JSON.stringify(global.get_window_actors().map(actor => actor.meta_window)"
            f".filter(window => window.get_pid() === {pid}).map(window => window.get_frame_rect())"
            ".map(place => [place.x, place.y, place.width, place.height]))")))

    def picture(self, desktop):
        return self.shell(desktop).picture()


class Sway(Host):
    name = "sway"
    shown_as = PICTURE
    needs = ("sway", "waybar", "grim")
    light = False
    has_watcher = True
    xdg_name = "sway"
    refuses_root = True
    wayland = True

    def environment(self):
        return {**super().environment(), "XDG_SESSION_TYPE": "wayland", "WLR_BACKENDS": "headless",
                "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman"}

    def configure(self, desktop):
        desktop.write_config("sway/config", f"""\
output HEADLESS-1 resolution {desktop.resolution} position 0 0
xwayland enable
default_border pixel 2
for_window [app_id="org.tambrelle.Tambrelle" title="Tambrelle"] floating enable, border none, move position 950 30
""")
        desktop.write_config("waybar/config", """\
{ "layer": "top", "position": "top", "height": 28, "modules-left": ["sway/workspaces"],
  "modules-right": ["tray", "clock"], "tray": { "icon-size": 20, "spacing": 6 }, "clock": { "format": "{:%H:%M}" } }
""")
        desktop.write_config("waybar/style.css", """\
* { font-family: "DejaVu Sans Mono"; font-size: 13px; }
window#waybar { background: #222; color: #eee; }
""")

    def start_display(self, desktop):
        pass  # sway is the display

    def start_window_manager(self, desktop):
        sway = desktop.processes.start("sway", "sway")

        def sockets():
            if not sway.running:
                raise AssertionError(f"sway ended with {sway.status}:\n{sway.output()}")
            names = os.listdir(desktop.runtime)
            ipc = [name for name in names if name.startswith("sway-ipc")]
            display = [name for name in names if name.startswith("wayland-") and not name.endswith(".lock")]
            return ipc and display and (ipc[0], display[0])

        ipc, display = until("sway's sockets are there", sockets, 30)
        desktop.add_to_environment({"SWAYSOCK": str(desktop.runtime / ipc), "WAYLAND_DISPLAY": display})
        self._pointer = VirtualPointer(desktop)

    def start_bar(self, desktop):
        self.bar = desktop.processes.start("waybar", "waybar")

    def pointer(self, desktop):
        return self._pointer

    def windows_of(self, desktop, pid):
        def places(node):
            if node.get("pid") == pid:
                yield tuple(node["rect"][side] for side in ("x", "y", "width", "height"))
            for child in node["nodes"] + node["floating_nodes"]:
                yield from places(child)

        return list(places(json.loads(desktop.processes.run("swaymsg", "-r", "-t", "get_tree"))))

    def picture(self, desktop):
        return desktop.processes.run("grim", "-t", "ppm", "-")
