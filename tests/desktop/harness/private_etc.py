"""/etc as one program sees it: a copy in a mount namespace of its own, so that its time zone can be changed."""

import os
import shutil

from .mounts import MountOfOnesOwn

ETC = "/etc"


class EtcOfOnesOwn(MountOfOnesOwn):
    """Put `prefix` before a command to run it with this copy of /etc in the place of the true one."""

    def __init__(self, desktop):
        self._copy = desktop.directory / "etc"
        self._copy.mkdir()
        self._copy_readable(ETC, self._copy)
        super().__init__(desktop, f'mount --bind "{self._copy}" {ETC}')

    def set_zone(self, name):
        """As a system's tools do it: a new link, renamed into the place of the old one."""
        new = self._copy / "localtime.new"
        new.symlink_to(f"/usr/share/zoneinfo/{name}")
        os.replace(new, self._copy / "localtime")

    @staticmethod
    def _copy_readable(source, target):
        """Files that only root may read are of no use to the program and are left out."""
        for entry in os.scandir(source):
            place = target / entry.name
            try:
                if entry.is_symlink():
                    place.symlink_to(os.readlink(entry.path))
                elif entry.is_dir():
                    place.mkdir()
                    EtcOfOnesOwn._copy_readable(entry.path, place)
                elif entry.is_file():
                    shutil.copyfile(entry.path, place)
            except OSError:
                continue
