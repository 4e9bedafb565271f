"""Test cases on a private desktop, and how ctest learns what became of them."""

import argparse
import os
import pathlib
import signal
import sys
import unittest

from .desktop import Desktop
from .hosts import HOSTS, host_named

SKIPPED = 77  # what ctest takes for "skipped"

MOUNTS = "mounts of a process's own"
# What a machine may lack although all packages are installed: a container may forbid it.
MAY_BE_LACKING = {MOUNTS}


class OutOfTime(AssertionError):
    """A test's hard limit."""


class DesktopTest(unittest.TestCase):
    """Each test gets a fresh desktop of the chosen kind as self.desktop, and no more than `limit` seconds."""

    host_name = "none"          # main's --host puts another in its place
    zone = "Europe/Paris"
    screen = "1280x720x24"
    limit = 60
    program_path = None
    evidence = None             # folder for a failed test's pictures and logs
    starts_desktop = True

    def run(self, result=None):
        def ring(*_):
            raise OutOfTime(f"the test took more than its {self.limit} s")

        before = signal.signal(signal.SIGALRM, ring)
        signal.alarm(self.limit)
        try:
            return super().run(result)
        finally:
            signal.alarm(0)
            signal.signal(signal.SIGALRM, before)

    def setUp(self):
        if self.starts_desktop:
            require_host(self, self.host_name)
            self.desktop = Desktop(self.host_name, self.zone, self.screen)
            self.addCleanup(self.desktop.stop)

    def start_program(self, *arguments, **options):
        if not self.program_path:
            self.fail("no program given: --program PATH or TAMBRELLE_PROGRAM")
        return self.desktop.start_program(self.program_path, *arguments, **options)

    def end_for_lack_of(self, what, reason):
        """Skips the test, or fails it where TAMBRELLE_BARS says that everything has been installed."""
        print(f"lacking here: {what}: {reason}", flush=True)
        if os.environ.get("TAMBRELLE_BARS") and what not in MAY_BE_LACKING:
            self.fail(reason)
        self.skipTest(reason)

    def require_mounts(self, mount):
        """That a program can be started with `mount`, a MountOfOnesOwn."""
        if reason := mount.obstacle():
            self.end_for_lack_of(MOUNTS, reason)

    def _callTestMethod(self, method):
        try:
            return super()._callTestMethod(method)
        except unittest.SkipTest:
            raise
        except BaseException:
            signal.alarm(20)  # for the evidence and the cleaning up
            self._keep_evidence()
            raise

    def _keep_evidence(self):
        desktop = getattr(self, "desktop", None)
        if desktop is None or not self.evidence:
            return
        folder = pathlib.Path(self.evidence) / self.id().split(".", 1)[-1]
        folder.mkdir(parents=True, exist_ok=True)
        for log in desktop.directory.glob("*.log"):
            (folder / log.name).write_bytes(log.read_bytes())
        try:
            desktop.save_picture(folder / "screen.png")
        except Exception as error:  # the picture is a help, its lack no failure of its own
            print(f"no picture: {error}", file=sys.stderr)
        print(f"logs and picture: {folder}", file=sys.stderr)


def required_hosts():
    """The hosts whose absence is a failure: TAMBRELLE_BARS is "light", "all", or not set for none."""
    wanted = os.environ.get("TAMBRELLE_BARS", "")
    return {name for name, host in HOSTS.items() if wanted == "all" or (wanted == "light" and host.light)}


def require_host(test, name):
    missing = host_named(name).missing()
    if not missing:
        return
    reason = f"the host {name} needs {', '.join(missing)}"
    print(f"lacking here: {reason}", flush=True)
    if name in required_hosts():
        test.fail(reason)
    test.skipTest(reason)


def main():
    """Runs the calling script's tests. Status 0: all passed; 77: something was skipped and nothing failed."""
    parser = argparse.ArgumentParser()
    parser.add_argument("--host", default=DesktopTest.host_name, choices=sorted(HOSTS))
    parser.add_argument("--program", default=os.environ.get("TAMBRELLE_PROGRAM"), type=pathlib.Path)
    parser.add_argument("--evidence", help="folder for the pictures and logs of failed tests")
    parser.add_argument("tests", nargs="*", help="Class.test_name, by default all")
    options = parser.parse_args()

    DesktopTest.host_name = options.host
    DesktopTest.program_path = options.program.resolve() if options.program else None
    DesktopTest.evidence = options.evidence
    # As an interruption, which alone ends the test under way and all that would follow.
    signal.signal(signal.SIGTERM, signal.default_int_handler)

    loader = unittest.defaultTestLoader
    script = sys.modules["__main__"]
    suite = loader.loadTestsFromNames(options.tests, script) if options.tests else loader.loadTestsFromModule(script)
    result = unittest.TextTestRunner(verbosity=2, failfast=False).run(suite)
    if not result.wasSuccessful() or result.testsRun == 0 or result.unexpectedSuccesses:
        sys.exit(1)
    sys.exit(SKIPPED if result.skipped else 0)
