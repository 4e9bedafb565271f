#!/usr/bin/python3
"""bars.py PROGRAM [HOST...]: starts the program in every bar that is installed, or in those named, and leaves a picture of
each with the line and the open panel in build/bars/, and docs/pictures/bars.png, a sheet of the line in all of them."""

import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests" / "desktop"))

from harness import HOSTS, Desktop, Late, host_named, until  # noqa: E402
from harness.eyes import (ONE_DAY, QUIET, floating_label, panel, places_to_click, still_picture,  # noqa: E402
                          wait_until_shown)

SCREEN = "1280x900x24"
FOLDER = ROOT / "build" / "bars"
SHEET = ROOT / "docs" / "pictures" / "bars.png"
STRIP_WIDTH, STRIP_HEIGHT = 480, 84


def visit(name, program_path):
    """Pictures of one bar; gives the file with the strip of the screen that shows the line."""
    with Desktop(name, screen=SCREEN) as desktop:
        desktop.clock.set(ONE_DAY[0])
        program = desktop.start_program(program_path, preferences=QUIET)
        wait_until_shown(desktop, program)
        places = places_to_click(desktop, program)
        picture = still_picture(desktop)
        whole = FOLDER / f"{name}.png"
        desktop.save_picture(whole)
        label = floating_label(desktop, program)
        print(f"{name}: {desktop.host.shown_as}; clicks at {places}; label {label}", flush=True)
        top = picture.height - STRIP_HEIGHT if desktop.host.bar_at_bottom else 0
        strip = FOLDER / f"{name}-strip.png"
        # The whole right end: there the bars have their items, and there the label stands.
        subprocess.run(["convert", whole, "-crop", f"{STRIP_WIDTH}x{STRIP_HEIGHT}+{picture.width - STRIP_WIDTH}+{top}",
                        "+repage", strip], check=True)
        if not desktop.host.click_opens_menu:
            desktop.click(*next(iter(places.values())))
            until("the panel is open", lambda: panel(desktop, program))
            still_panel(desktop, FOLDER / f"{name}-panel.png")
        return strip


def still_panel(desktop, file):
    """The panel's own clock runs on, so that no two pictures of it are the same."""
    before = desktop.picture()
    until("it is drawn", lambda: desktop.picture().pixels != before.pixels, 5)
    desktop.save_picture(file)


def main():
    program, names = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:] or list(HOSTS)
    shutil.rmtree(FOLDER, ignore_errors=True)
    FOLDER.mkdir(parents=True)
    tiles, failed = [], []
    for name in names:
        if host_named(name).missing():
            print(f"{name}: not installed")
            continue
        try:
            strip = visit(name, program)
        except (Late, AssertionError, LookupError) as error:
            print(f"{name}: FAILED: {error}")
            failed.append(name)
            continue
        tiles += ["-label", f"{name}: {HOSTS[name].shown_as}", strip]
    if not sys.argv[2:] and not failed:
        SHEET.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["montage", "-font", "DejaVu-Sans", "-pointsize", "13", *map(str, tiles), "-tile", "2x",
                        "-geometry", "+10+8", "-background", "#f4f4f4", "-strip", SHEET], check=True)
        print(f"The sheet is {SHEET}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
