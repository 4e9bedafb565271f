"""A private desktop for tests: its own bus, display, home and bar, and nothing of the desktop it runs on.

    with Desktop("lxqt") as desktop:
        desktop.clock.set("2025-11-15 12:00:00")
        program = desktop.start_program(path)
        until("the item is there", lambda: desktop.item_of(program))

Only processes started here are ever ended; they carry a mark in their environment by which a guard finds them even
when the test itself was killed.
"""

from .case import DesktopTest, main
from .desktop import Desktop
from .hosts import HOSTS, host_named
from .panel import PanelTest
from .waiting import Late, until

__all__ = ["Desktop", "DesktopTest", "HOSTS", "Late", "PanelTest", "host_named", "main", "until"]
