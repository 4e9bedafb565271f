"""The program under test while it runs."""

from .bus import Absent
from .waiting import until


class Program:
    PREFERENCES = "tambrelle/tambrelle.conf"

    # Roles under which toolkits publish a text that is only shown.
    TEXT_ROLES = ("label", "static", "text")

    def __init__(self, desktop, process):
        self.desktop = desktop
        self.process = process

    @property
    def pid(self):
        return self.process.pid

    @property
    def running(self):
        return self.process.running

    def output(self):
        return self.process.output()

    def wait(self, limit=10.0):
        return self.process.wait(limit)

    def stop(self):
        self.process.stop()

    def preferences(self):
        """The preference file's text."""
        return (self.desktop.config / self.PREFERENCES).read_text(encoding="utf-8")

    def must_run(self):
        if not self.running:
            raise AssertionError(f"the program ended with {self.process.status}:\n{self.output()}")

    # What a screen reader finds

    def nodes(self, role=None, name=None, showing=True):
        return self.desktop.accessibility.nodes(self.pid, role, name, showing)

    def node(self, role=None, name=None, showing=True):
        return self.desktop.accessibility.node(self.pid, role, name, showing)

    def texts(self):
        """Every text that is on the screen, in the tree's order."""
        return [node.name for node in self.nodes() if node.role in self.TEXT_ROLES]

    def press(self, name, role="button"):
        """Presses the control of that accessible name, once it is on the screen."""
        node = until(f"the {role} {name!r} is on the screen",
                     lambda: self._alive() and self.node(_ROLE_NAMES.get(role, role), name))
        node.act("Press")

    def wait_for_text(self, text, limit=10.0):
        """Waits until a label on the screen reads exactly so, and gives it."""
        def label():
            self.must_run()
            return next((node for node in self.nodes(name=text) if node.role in self.TEXT_ROLES), None) \
                or _missing(self.texts())
        return until(f"a label reads {text!r}", label, limit)

    def wait_for_title(self, title, limit=10.0):
        """Waits until the registered item's Title reads exactly so, and gives the item."""
        def item():
            self.must_run()
            found = self.desktop.item_of(self)
            return found if found.title == title else _missing(found.title)
        return until(f"the item's Title reads {title!r}", item, limit)

    def _alive(self):
        self.must_run()
        return True


# A button's role has this name in AT-SPI 2.46.
_ROLE_NAMES = {"button": "push button"}


def _missing(instead):
    raise Absent(f"found instead: {instead!r}")
