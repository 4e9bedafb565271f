#!/usr/bin/python3
"""The panel where the user has asked the desktop for more contrast: by the settings portal, and by a theme."""

import pathlib

from harness import PanelTest, main, until

PORTAL = "org.freedesktop.portal.Desktop"
FAINTEST = "Marseille"  # nothing in the panel is set fainter


def luminance(colour):
    linear = [value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4
              for value in (component / 255 for component in colour)]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


class Contrast(PanelTest):
    screen = "1280x900x24"

    def tell(self, contrast):
        with open(self.desktop.directory / "contrast", "a", encoding="ascii") as file:
            file.write(f"{contrast}\n")

    def start_portal(self, contrast):
        self.tell(contrast)
        script = pathlib.Path(__file__).with_name("portal.py")
        copy = self.desktop.directory / script.name
        copy.write_bytes(script.read_bytes())
        self.desktop.processes.start("portal", "/usr/bin/python3", "-B", copy, self.desktop.directory / "contrast")
        until("the portal is there", lambda: self.desktop.bus.has_owner(PORTAL))

    def standing_out(self):
        """The ratio between the ground and the darkest pixel of the faintest text."""
        node = next(node for node in self.program.nodes(name=FAINTEST) if node.role in self.program.TEXT_ROLES)
        bright = [luminance(colour) for colour in self.desktop.picture().cropped(*node.extents).colours()]
        return (max(bright) + 0.05) / (min(bright) + 0.05)

    def test_follows_the_portal(self):
        self.start_portal(0)
        self.start()
        self.open_panel()
        texts = [text for text in self.program.texts() if ":" not in text]
        usual = until("the panel is drawn", self.standing_out)
        self.tell(1)
        until("the faintest text stands out more", lambda: self.standing_out() > max(4.5, 1.5 * usual))
        self.assertEqual([text for text in self.program.texts() if ":" not in text], texts)
        self.tell(0)
        until("it is as before", lambda: abs(self.standing_out() - usual) < 0.01)
        self.assertEqual(self.program.output(), "")

    def test_is_there_from_the_start(self):
        self.start_portal(1)
        self.start()
        self.open_panel()
        until("the faintest text stands out", lambda: self.standing_out() > 4.5)

    def test_a_portal_that_comes_late(self):
        self.start()
        self.start_portal(1)
        self.open_panel()
        until("the faintest text stands out", lambda: self.standing_out() > 4.5)

    def test_a_theme_of_high_contrast_leaves_the_panel_as_it_is(self):
        self.start()
        self.open_panel()
        texts, usual = self.program.texts(), until("the panel is drawn", self.standing_out)
        self.program.stop()
        colours = "\n".join(f"[Colors:{part}]\nBackgroundNormal=0,0,0\nForegroundNormal=255,255,0"
                            for part in ("Window", "View", "Button", "Selection", "Tooltip"))
        self.desktop.write_config("kdeglobals", colours + "\n")
        self.start(environment={"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"})
        self.open_panel()
        until("the inks are the panel's own", lambda: abs(self.standing_out() - usual) < 0.5)
        self.assertEqual(len(self.program.texts()), len(texts))
        self.open_settings()
        x, y, _width, _height = self.program.node("check box", "Launch at login").extents
        until("the settings have the theme's ground", lambda: self.desktop.picture()[x - 4, y] == (0, 0, 0))


if __name__ == "__main__":
    main()
