#!/usr/bin/python3
"""test_hardening.py BUILD-FOLDER SOURCE-FOLDER: the built programs have every protection that compiler and linker offer.

What leaves a trace in a program is read from the program; what leaves none for sure is read from the commands that
compiled it.
"""

import json
import pathlib
import platform
import re
import subprocess
import sys
import unittest

COMPILED_WITH = ("-fstack-protector-strong", "-fstack-clash-protection", "-U_FORTIFY_SOURCE", "-D_FORTIFY_SOURCE=3",
                 "-D_GLIBCXX_ASSERTIONS")
OURS = ("core", "content", "platform", "app", "ui", "player")
ENDBR64 = bytes.fromhex("f30f1efa")

build, source = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
is_x86_64 = platform.machine() == "x86_64"


class Hardened:
    """What holds for each program; `file` is the program."""

    def readelf(self, *options):
        return subprocess.run(["readelf", *options, "-W", self.file], check=True, capture_output=True, text=True).stdout

    def test_lie_anywhere(self):
        self.assertRegex(self.readelf("-h"), r"Type:\s+DYN")
        self.assertRegex(self.readelf("-d"), r"FLAGS_1.*\bPIE\b")

    def test_close_their_tables_before_main(self):
        self.assertIn("GNU_RELRO", self.readelf("-l"))
        self.assertRegex(self.readelf("-d"), r"\(FLAGS\).*\bBIND_NOW\b")

    def test_have_no_memory_both_writable_and_executable(self):
        segments = re.findall(r"^ +(LOAD|GNU_STACK) +(?:0x\w+ +){5}([R ][W ][E ])", self.readelf("-l"), re.M)
        self.assertIn("GNU_STACK", dict(segments))
        self.assertEqual([flags for _, flags in segments if "W" in flags and "E" in flags], [])
        self.assertNotIn("TEXTREL", self.readelf("-d"))

    def test_watch_their_stacks_and_buffers(self):
        imported = set(re.findall(r" UND (\w+)", self.readelf("--dyn-syms")))
        self.assertIn("__stack_chk_fail", imported)
        self.assertTrue([name for name in imported if re.fullmatch(r"__\w+_chk", name)], "no fortified function")

    def test_load_libraries_of_the_system_only(self):
        self.assertNotRegex(self.readelf("-d"), r"\((RPATH|RUNPATH)\)")

    def test_tell_nothing_of_where_they_were_built(self):
        self.assertNotIn(str(source).encode(), self.file.read_bytes())

    @unittest.skipUnless(is_x86_64, "another processor's protection has another name")
    def test_mark_where_jumps_may_land(self):
        # Not every distribution's C library marks its start files, and then the linker drops the note about the whole.
        # Functions of ours begin with a mark all the same, but for those that nothing can point at.
        text = re.search(r"\.text +PROGBITS +\w+ (\w+) (\w+)", self.readelf("-S"))
        offset, size = (int(number, 16) for number in text.groups())
        code = self.file.read_bytes()[offset:offset + size]
        functions = len(re.findall(r" FUNC +(?:GLOBAL|WEAK|LOCAL) .* \d+ [^U]", self.readelf("-s")))
        self.assertGreater(functions, 10, "a program without its symbols cannot be judged")
        self.assertGreater(code.count(ENDBR64), functions / 2)


class Tambrelle(Hardened, unittest.TestCase):
    file = build / "tambrelle"


class Player(Hardened, unittest.TestCase):
    file = build / "tambrelle-player"


class Commands(unittest.TestCase):
    def test_compile_everything_of_ours_hardened(self):
        wanted = COMPILED_WITH + (("-fcf-protection=full",) if is_x86_64 else ())
        judged = 0
        for entry in json.loads((build / "compile_commands.json").read_text()):
            file = pathlib.Path(entry["file"])
            if not file.is_relative_to(source) or file.relative_to(source).parts[0] not in OURS:
                continue
            options = entry["command"].split()
            self.assertEqual([option for option in wanted if option not in options], [], file)
            # Fortification does nothing in code that is not optimised.
            self.assertTrue({"-O2", "-O3"} & set(options), file)
            judged += 1
        self.assertGreater(judged, 20)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
