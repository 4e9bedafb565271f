#!/usr/bin/python3
"""A home, a locale, fonts, a disk and resources that are not as they should be: the calendar shows all the same."""

import pathlib
import shutil

from harness import PanelTest, main, until
from harness.moments import LATER, LATER_LINE, TWO_TICKS
from harness.mounts import MountOfOnesOwn

TODAY = "23 Brumaire an CCXXXIV"
CHIME = "Hourly chimes (La Marseillaise)"
FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"


class OddSurroundings(PanelTest):
    def lives(self, **options):
        """It shows the line, opens its panel, steps through it, and ticks on."""
        program = self.start(**options)
        self.open_panel()
        program.wait_for_text(TODAY)
        self.desktop.key("Left")
        program.wait_for_text("22 Brumaire an CCXXXIV")
        self.desktop.key("Escape")
        self.until_closed()
        self.desktop.clock.set(LATER)
        program.wait_for_text(LATER_LINE, TWO_TICKS + 2)
        return program

    def test_no_home(self):
        self.lives(without=["HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "USER"])

    def test_no_runtime_folder(self):
        self.lives(without=["XDG_RUNTIME_DIR"])

    def test_a_locale_that_nobody_knows(self):
        self.lives(environment={"LANG": "tlh_QO.UTF-99", "LC_ALL": "tlh_QO.UTF-99"})

    def test_a_locale_without_utf_8(self):
        self.lives(environment={"LANG": "C", "LC_ALL": "C"})

    def fonts(self, *files):
        folder = self.desktop.directory / "fonts"
        folder.mkdir()
        for file in files:
            shutil.copy(file, folder)
        configuration = self.desktop.directory / "fonts.conf"
        configuration.write_text(
            f'<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig><dir>{folder}</dir>'
            f"<cachedir>{self.desktop.directory}/font-cache</cachedir></fontconfig>", encoding="utf-8")
        return {"FONTCONFIG_FILE": str(configuration)}

    def test_one_font_only(self):
        self.lives(environment=self.fonts(FONT))

    def test_no_font_at_all(self):
        self.lives(environment=self.fonts())

    def test_a_home_that_is_read_only(self):
        home = self.desktop.home
        self.start_on(f'mount --bind "{home}" "{home}"; mount -o remount,bind,ro "{home}"')
        self.keeps_what_is_chosen()
        self.assertFalse((self.desktop.config / "tambrelle").exists(), "the file was written after all")
        self.assertEqual(list(self.desktop.home.rglob("org.tambrelle*")), [])

    def test_a_disk_that_is_full(self):
        config = self.desktop.config
        self.start_on(f'mount -t tmpfs -o size=128k none "{config}"; mkdir "{config}/tambrelle"; '
                      f'printf "[General]\\nmenuBarFormat=dateAndTime\\n" > "{config}/tambrelle/tambrelle.conf"; '
                      f'cat /dev/zero > "{config}/fill" 2>/dev/null || true')
        seen = pathlib.Path(f"/proc/{self.program.pid}/root{config}")
        file = seen / "tambrelle" / "tambrelle.conf"
        before = file.read_text(encoding="utf-8")
        self.assertIn("menuBarFormat", before)
        self.keeps_what_is_chosen()
        self.assertEqual(file.read_text(encoding="utf-8"), before, "what was stored is lost")
        self.assertEqual(list(seen.rglob("org.tambrelle*")), [])
        (seen / "fill").unlink()
        self.click_on(CHIME, "check box")
        self.click_on(CHIME, "check box")
        until("it is written once there is room", lambda: "soundEnabled=false" in file.read_text(encoding="utf-8"))

    def start_on(self, script):
        """Starts the program with `script` done to its mounts."""
        mount = MountOfOnesOwn(self.desktop, script)
        self.require_mounts(mount)
        self.start(prefix=mount.prefix)

    def chime_is_on(self):
        return self.program.node("check box", CHIME).has("checked")

    def keeps_what_is_chosen(self):
        """As long as it runs; the settings stay open."""
        self.open_settings()
        self.assertTrue(self.chime_is_on())
        self.click_on(CHIME, "check box")
        until("the chime is off", lambda: not self.chime_is_on())
        self.click_on("Launch at login", "check box")
        # Clicks are dealt with in their order: once this one shows, the one before is over.
        self.click_on(CHIME, "check box")
        until("the chime is on again", self.chime_is_on)
        self.assertFalse(self.program.node("check box", "Launch at login").has("checked"), "what can't be written stays on")
        self.click_on(CHIME, "check box")
        until("the chime is off again", lambda: not self.chime_is_on())
        self.desktop.key("Escape")
        until("the settings are closed", lambda: not self.program.nodes("check box", CHIME))
        self.open_settings()
        self.assertFalse(self.chime_is_on(), "the choice is lost though the program runs on")
        self.desktop.clock.set(LATER)
        self.program.wait_for_text(LATER_LINE, TWO_TICKS + 2)

    def resources(self):
        """A copy of the program's resources, to be damaged."""
        copy = self.desktop.directory / "resources"
        shutil.copytree(self.program_path.parent / "share" / "tambrelle", copy)
        return copy

    def test_no_resources(self):
        program = self.lives(environment={"TAMBRELLE_RESOURCES": str(self.desktop.directory / "nowhere")})
        self.open_panel()
        # The panel is where it was left. Where there is no plate, the emoji of the day's item stands in for it.
        program.wait_for_text("🍒")

    def test_plates_that_are_damaged(self):
        folder = self.resources()
        plates = sorted((folder / "plates").glob("*.png"))
        self.assertGreater(len(plates), 300)
        damages = (lambda data: b"", lambda data: data[:len(data) // 2], lambda data: data[:40], lambda data: b"no picture",
                   lambda data: data[:200] + bytes(byte ^ 0x55 for byte in data[200:400]) + data[400:])
        for number, plate in enumerate(plates):
            plate.write_bytes(damages[number % len(damages)](plate.read_bytes()))
        program = self.start(environment={"TAMBRELLE_RESOURCES": str(folder)})
        self.open_panel()
        for day in (22, 21, 20, 19, 18, 17, 16, 15, 14, 13):  # each damage at least once
            self.desktop.key("Left")
            program.wait_for_text(f"{day} Brumaire an CCXXXIV")

    def test_a_folder_in_the_place_of_a_plate(self):
        folder = self.resources()
        for plate in (folder / "plates").glob("*.png"):
            plate.unlink()
            plate.mkdir()
        self.lives(environment={"TAMBRELLE_RESOURCES": str(folder)})


if __name__ == "__main__":
    main()
