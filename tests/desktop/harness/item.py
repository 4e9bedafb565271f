"""The status item as a bar sees it: over the session bus, through the watcher."""

from .bus import Absent

WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_PATH = "/StatusNotifierWatcher"
INTERFACE = "org.kde.StatusNotifierItem"


def watcher_ready(bus):
    """A watcher is there and a bar shows what it watches."""
    return bus.has_owner(WATCHER) and bus.get(WATCHER, WATCHER_PATH, WATCHER, "IsStatusNotifierHostRegistered")


class Item:
    """One registered item."""

    def __init__(self, bus, service, path):
        self.bus = bus
        self.service = service
        self.path = path

    def __getitem__(self, member):
        """A property's value; a property that the item leaves out is Absent, which is a LookupError."""
        return self.bus.get(self.service, self.path, INTERFACE, member)

    def get(self, member, otherwise=None):
        try:
            return self[member]
        except Absent:
            return otherwise

    @property
    def title(self):
        return self["Title"]

    def call(self, method, arguments=None):
        return self.bus.call(self.service, self.path, INTERFACE, method, arguments)


def registered_items(bus):
    """Watchers write an entry as SERVICE, SERVICE/PATH or SERVICE@/PATH."""
    for entry in bus.get(WATCHER, WATCHER_PATH, WATCHER, "RegisteredStatusNotifierItems"):
        service, slash, path = entry.partition("/")
        yield Item(bus, service.rstrip("@"), f"/{path}" if slash else "/StatusNotifierItem")


def item_of(bus, pid):
    """The item that the process `pid` has registered with the present watcher. Raises Absent."""
    for item in registered_items(bus):
        try:
            if bus.pid_of(item.service) == pid:
                return item
        except Absent:
            continue  # an entry that its owner has left behind
    raise Absent(f"no item of process {pid} is registered")
