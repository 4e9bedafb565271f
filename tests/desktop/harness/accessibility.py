"""The accessibility tree of a running program, read the way a screen reader does: AT-SPI over its own bus."""

import sys

from gi.repository import Gio, GLib

from .bus import Absent, Bus
from .waiting import until

REGISTRY = "org.a11y.atspi.Registry"
REGISTRY_PATH = "/org/a11y/atspi/registry"
FOCUSED = "object:state-changed:focused"
ROOT = "/org/a11y/atspi/accessible/root"
NULL = "/org/a11y/atspi/null"
ACCESSIBLE = "org.a11y.atspi.Accessible"

LABELLED_BY = 2  # a kind of relation

# Bits of the state set that the tests ask for.
STATES = {"checked": 4, "enabled": 8, "focused": 12, "sensitive": 24, "showing": 25, "visible": 30}


class Node:
    """One object of the tree. What has vanished meanwhile raises Absent, which is a LookupError."""

    def __init__(self, bus, service, path):
        self.bus = bus
        self.service = service
        self.path = path

    def __repr__(self):
        return f"<{self.role} {self.name!r}>"

    def _call(self, interface, method, arguments=None):
        return self.bus.call(self.service, self.path, interface, method, arguments)

    @property
    def name(self):
        return self.bus.get(self.service, self.path, ACCESSIBLE, "Name")

    @property
    def role(self):
        return self._call(ACCESSIBLE, "GetRoleName")

    @property
    def parent(self):
        """None at the top."""
        service, path = self.bus.get(self.service, self.path, ACCESSIBLE, "Parent")
        return Node(self.bus, service, path) if path != NULL else None

    @property
    def children(self):
        return [Node(self.bus, service, path) for service, path in self._call(ACCESSIBLE, "GetChildren")
                if path != NULL]

    def has(self, state):
        low, high = self._call(ACCESSIBLE, "GetState")
        return bool((low | high << 32) >> STATES[state] & 1)

    @property
    def labels(self):
        """The texts of the labels that belong to this control. A combo box's own name is what is chosen in it."""
        return [Node(self.bus, service, path).name for kind, targets in self._call(ACCESSIBLE, "GetRelationSet")
                if kind == LABELLED_BY for service, path in targets]

    @property
    def extents(self):
        """x, y, width, height on the screen, in pixels."""
        return tuple(self._call("org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (0,))))

    @property
    def actions(self):
        return [name for name, *_ in self._call("org.a11y.atspi.Action", "GetActions")]

    def act(self, action="Press"):
        """Does the named action, which must be one that the object offers."""
        offered = self.actions
        if action not in offered:
            raise AssertionError(f"{self!r} offers {offered}, not {action}")
        if not self._call("org.a11y.atspi.Action", "DoAction", GLib.Variant("(i)", (offered.index(action),))):
            raise AssertionError(f"{self!r} refused {action}")

    def walk(self):
        """This object and all below it; what vanishes on the way is passed over."""
        yield self
        try:
            children = self.children
        except Absent:
            return
        for child in children:
            yield from child.walk()


class Accessibility:
    """The accessibility bus with its registry, and the service on the session bus that tells programs of it."""

    def __init__(self, processes):
        self._processes = processes
        self.bus = Bus(processes, "accessibility-bus", Bus.ACCESSIBILITY, own_address_as="AT_SPI_BUS_ADDRESS")
        # A popup is in no application's list of windows: like a screen reader, we learn of it when it takes the focus.
        self._focused = {}
        self.bus.connection.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, "focused",
                                             Gio.DBusSignalFlags.NONE, self._remember_focus)

    def _remember_focus(self, _connection, sender, path, _interface, _signal, _arguments):
        self._focused.setdefault(sender, {})[path] = True

    def announce(self, session_bus, script):
        self._processes.start("accessibility-service", sys.executable, script, self.bus.address)
        until("the session knows of the accessibility bus", lambda: session_bus.has_owner("org.a11y.Bus"))
        until("the registry takes our wish to hear of the focus", self._ask_for_focus, passing=(Absent,))

    def _ask_for_focus(self):
        self.bus.call(REGISTRY, REGISTRY_PATH, REGISTRY, "RegisterEvent", GLib.Variant("(sass)", (FOCUSED, [], "")))
        return True

    def applications(self):
        return Node(self.bus, REGISTRY, ROOT).children

    def application(self, pid):
        """The root of the process `pid`. Raises Absent while it has not come to the registry."""
        for node in self.applications():
            try:
                if self.bus.pid_of(node.service) == pid:
                    return node
            except Absent:
                continue
        raise Absent(f"process {pid} is not in the accessibility tree")

    def windows(self, pid):
        """The roots of a process's windows, popups included."""
        application = self.application(pid)
        roots = {node.path: node for node in application.children}
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass
        for path in list(self._focused.get(application.service, ())):
            try:
                node = Node(self.bus, application.service, path)
                while (parent := node.parent) is not None and parent.path != application.path:
                    node = parent
                if parent is not None:
                    roots.setdefault(node.path, node)
            except Absent:
                del self._focused[application.service][path]  # it has been destroyed
        return list(roots.values())

    def nodes(self, pid, role=None, name=None, showing=True):
        """The objects of a process with this role and name, by default those that are on the screen."""
        found = []
        for node in (node for window in self.windows(pid) for node in window.walk()):
            try:
                if ((role is None or node.role == role) and (name is None or node.name == name)
                        and (not showing or node.has("showing"))):
                    found.append(node)
            except Absent:
                continue
        return found

    def node(self, pid, role=None, name=None, showing=True):
        """The only such object. Raises Absent where there is none, AssertionError where there are several."""
        found = self.nodes(pid, role, name, showing)
        if not found:
            raise Absent(f"no {role or 'object'} named {name!r}")
        if len(found) > 1:
            raise AssertionError(f"{len(found)} objects are a {role} named {name!r}")
        return found[0]

    def close(self):
        self.bus.close()
