"""What a program has done to files and sockets, read from strace's account of it."""

import pathlib
import re

OPENED_TO_WRITE = re.compile(r"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND|O_TMPFILE")
LINE = re.compile(r"^(?P<pid>\d+) +(?P<call>\w+)\((?P<arguments>.*)\) += (?P<result>-?\d+|0x\w+|\?)(?P<rest>.*)$")
TEXT = re.compile(r'"((?:[^"\\]|\\.)*)"')
FOLDER = re.compile(r"(?:AT_FDCWD|\d+)<((?:[^>\\]|\\.)*)>")

OPENING = ("open", "openat", "openat2", "creat")
# Calls that change the file system by the names that they are given.
NAMING = ("rename", "renameat", "renameat2", "link", "linkat", "symlink", "symlinkat", "unlink", "unlinkat", "mkdir",
          "mkdirat", "rmdir", "mknod", "mknodat", "truncate", "chmod", "fchmodat", "chown", "lchown", "fchownat")
SOCKETS = ("socket", "socketpair")
STARTING = ("execve", "execveat")


class SystemCalls:
    """The account in `file`, of a program started with `prefix(file)` before it in the command line.

    families: of the sockets that were asked for; written: paths that were opened for writing, made, renamed, changed or
    removed; started: programs.
    """

    def __init__(self, file):
        calls = [match for match in map(LINE.match, _whole_lines(pathlib.Path(file))) if match]
        self.families = set()
        self.written = set()
        self.started = set()
        for call in calls:
            name, arguments = call["call"], call["arguments"]
            succeeded = not call["result"].startswith("-")
            if name in SOCKETS:
                # Refused or not, it was asked for.
                self.families.add(arguments.split(",")[0])
            elif name in STARTING and succeeded:
                self.started.add(TEXT.search(arguments)[1])
            elif name == "creat" or (name in OPENING and OPENED_TO_WRITE.search(arguments)):
                self.written.update(_places(arguments))
            elif name in NAMING and succeeded:
                places = list(_places(arguments))
                # A link leaves what it leads to as it was.
                self.written.update(places[-1:] if "link" in name and "unlink" not in name else places)

    @staticmethod
    def prefix(file):
        # -D leaves the program the child that it would be without strace.
        calls = ",".join(OPENING + NAMING + SOCKETS + STARTING)
        # A question mark: not every processor's kernel has each of them.
        return ("strace", "-D", "-f", "-y", "-s", "4096", "-o", str(file), "-e", "signal=none", "-e",
                "trace=" + ",".join("?" + call for call in calls.split(",")))


def _whole_lines(file):
    """The lines, with the two halves of a call joined that another thread's call has interrupted."""
    halves = {}
    for line in file.read_text(errors="surrogateescape").splitlines():
        pid, _, rest = line.partition(" ")
        if rest.endswith("<unfinished ...>"):
            halves[pid] = line.removesuffix("<unfinished ...>").rstrip()
        elif resumed := re.match(r" *<\.\.\. \w+ resumed>(.*)", rest):
            yield halves.pop(pid, pid) + resumed[1]
        else:
            yield line


def _places(arguments):
    """Every path among a call's arguments, made absolute by the folder that stands before it."""
    for path in TEXT.finditer(arguments):
        folders = FOLDER.findall(arguments[:path.start()])
        yield str(pathlib.PurePosixPath(folders[-1] if folders else "/", path[1]))
