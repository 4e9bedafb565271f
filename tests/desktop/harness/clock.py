"""The wall clock of the program under test, through libfaketime."""

import ctypes
import datetime
import glob
import os
import pathlib
import time
import zoneinfo


class Clock:
    """A clock that runs on from where it was last set. Only the program under test sees it, and the monotonic clock is
    left alone: with that faked too, a step backwards would stall every timer."""

    def __init__(self, directory, zone="Europe/Paris"):
        self.zone = zone
        self._file = directory / "clock"
        self._active = False
        self._shared = _Shared(directory.name)

    def set(self, text, zone=None):
        """Sets the clock to a local time "2025-11-15 12:00:00" of `zone`, by default the desktop's own zone."""
        local = datetime.datetime.fromisoformat(text).replace(tzinfo=zoneinfo.ZoneInfo(zone or self.zone))
        self.shift_to(local.timestamp())

    def shift_to(self, epoch):
        """Sets the clock to seconds since 1970-01-01 00:00:00 UTC."""
        # A distance from the true clock rather than a date: a date would count from the reading process's own start.
        # Renamed into place, so that no reader ever sees half a line.
        new = self._file.with_suffix(".new")
        new.write_text(f"{epoch - time.time():+.6f}\n")
        os.replace(new, self._file)
        self._active = True

    def environment(self):
        """What the program needs to see this clock; nothing while it was never set."""
        if not self._active:
            return {}
        libraries = sorted(glob.glob("/usr/lib/*/faketime/libfaketime.so.1"))
        if not libraries:
            raise AssertionError("libfaketime is not installed")
        return {
            "LD_PRELOAD": libraries[0],
            "FAKETIME_TIMESTAMP_FILE": str(self._file),
            "FAKETIME_NO_CACHE": "1",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1",
            "FAKETIME_SHARED": self._shared.names,
            "NO_FAKE_STAT": "1",
        }

    def remove(self):
        self._shared.remove()


class _Shared:
    """The semaphore and the page that faked processes share. libfaketime makes a pair for each process by itself, but leaves
    it behind in /dev/shm where the process does not end in peace; this pair is the desktop's, and goes with it."""

    FOLDER = pathlib.Path("/dev/shm")
    SIZE = 4096  # more than its record of a few time values

    def __init__(self, name):
        self.names = f"/{name}-semaphore /{name}-page"
        self._files = [self.FOLDER / f"sem.{name}-semaphore", self.FOLDER / f"{name}-page"]
        libc = ctypes.CDLL(None, use_errno=True)
        libc.sem_open.restype = ctypes.c_void_p
        semaphore = libc.sem_open(f"/{name}-semaphore".encode(), os.O_CREAT | os.O_EXCL, 0o666, 1)
        if not semaphore:
            raise OSError(ctypes.get_errno(), "no semaphore for the clock")
        libc.sem_close(ctypes.c_void_p(semaphore))
        self._files[1].write_bytes(bytes(self.SIZE))
        for file in self._files:
            file.chmod(0o666)  # also for the other user that a desktop may run as

    def remove(self):
        for file in self._files:
            file.unlink(missing_ok=True)
