"""Processes that belong to one private desktop, and their end."""

import os
import pathlib
import signal
import subprocess
import sys
import uuid

MARK = "TAMBRELLE_PRIVATE_DESKTOP"


class Process:
    """A started process with its output in a file."""

    def __init__(self, name, popen, log):
        self.name = name
        self.popen = popen
        self.log = log

    @property
    def pid(self):
        return self.popen.pid

    @property
    def running(self):
        return self.popen.poll() is None

    @property
    def status(self):
        """Exit status, negative for a signal; None while it runs."""
        return self.popen.poll()

    def output(self):
        return self.log.read_text(errors="replace")

    def wait(self, limit=10.0):
        """The exit status. A process that does not end in time is an AssertionError."""
        try:
            return self.popen.wait(limit)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"{self.name} still runs after {limit:g} s") from None

    def stop(self, limit=5.0):
        """Asks it to end, then makes it. It leads a process group of its own, which ends with it."""
        for number, patience in ((signal.SIGTERM, limit), (signal.SIGKILL, limit)):
            if not self.running:
                break
            self._signal_group(number)
            try:
                self.popen.wait(patience)
            except subprocess.TimeoutExpired:
                continue
        self._signal_group(signal.SIGKILL)

    def kill(self):
        """Ends it as a crash would."""
        self._signal_group(signal.SIGKILL)
        self.popen.wait(5)

    def _signal_group(self, number):
        try:
            os.killpg(self.popen.pid, number)
        except (ProcessLookupError, PermissionError):
            pass


class Processes:
    """Starts processes with one environment and ends them all.

    A guard beside the test watches a pipe: when the test ends, in whatever way, the guard ends every process that carries
    this desktop's mark (bars start helpers, buses start services) and removes the desktop's folder.
    """

    def __init__(self, directory, environment):
        self.directory = pathlib.Path(directory)
        self.mark = uuid.uuid4().hex
        self.environment = environment
        self.environment[MARK] = self.mark
        # Comes before every command: how a process becomes another user's, where a program refuses root.
        self.prefix = []
        self._started = []
        self._count = 0
        guard = pathlib.Path(__file__).with_name("guard.py")
        self._guard = subprocess.Popen(
            [sys.executable, "-I", str(guard), MARK, self.mark, str(self.directory)],
            stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, start_new_session=True)

    def start(self, name, *command, environment=None, without=(), **options):
        """Starts a command in the background; its output goes to NAME-N.log in the desktop's folder."""
        self._count += 1
        log = self.directory / f"{name}-{self._count}.log"
        full = {**self.environment, **(environment or {})}
        for variable in without:
            full.pop(variable, None)
        with open(log, "wb") as output:
            popen = subprocess.Popen(
                [*self.prefix, *map(str, command)], env=full, cwd=self.directory, stdin=subprocess.DEVNULL,
                stdout=output, stderr=subprocess.STDOUT, start_new_session=True, **options)
        process = Process(name, popen, log)
        self._started.append(process)
        return process

    def run(self, *command, limit=20.0, check=True, **options):
        """Runs a command to its end and gives its output as bytes."""
        done = subprocess.run([*self.prefix, *map(str, command)], env=self.environment, cwd=self.directory,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=limit, check=False, **options)
        if check and done.returncode != 0:
            raise AssertionError(f"{command[0]} ended with {done.returncode}: {done.stderr.decode(errors='replace')}")
        return done.stdout

    def named(self, name):
        """The pids of all processes of this desktop, started here or by one that was, whose command has this name."""
        found = set()
        for entry in filter(str.isdigit, os.listdir("/proc")):
            place = pathlib.Path("/proc", entry)
            try:
                if ((place / "comm").read_text().strip() == name
                        and f"{MARK}={self.mark}".encode() in (place / "environ").read_bytes().split(b"\0")):
                    found.add(int(entry))
            except OSError:
                continue
        return found

    def stop_all(self):
        for process in reversed(self._started):
            process.stop(limit=2.0)
        self._started.clear()
        self._guard.stdin.close()
        self._guard.wait(20)


def children_of(pid):
    """The pids of a process's children, those that have ended and wait to be asked for included."""
    return [int(child) for child in pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text().split()]


def memory_kb(pid, field="VmRSS"):
    """A figure of /proc/PID/status: VmRSS, what lies in memory now, or VmHWM, the most that did."""
    status = pathlib.Path(f"/proc/{pid}/status").read_text(encoding="utf-8")
    return next(int(line.split()[1]) for line in status.splitlines() if line.startswith(f"{field}:"))


def faults_of_ended_children(pid):
    """Grows with every child that has ended and been waited for, however soon: each has touched memory."""
    return int(pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[8])


def wakes(pid):
    """How often the process's main thread has gone to sleep of its own accord, which its event loop does after each
    turn."""
    status = pathlib.Path(f"/proc/{pid}/task/{pid}/status").read_text(encoding="utf-8")
    return next(int(line.split()[1]) for line in status.splitlines() if line.startswith("voluntary_ctxt_switches:"))
