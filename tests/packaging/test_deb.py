#!/usr/bin/python3
"""test_deb.py BUILD-FOLDER SCRATCH-FOLDER CPACK: the Debian package that this build makes."""

import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

build, scratch = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
cpack = sys.argv[3]

COMMIT_TIME = 1763208000  # any time; 2025-11-15 12:00 UTC


def package_into(folder, umask):
    """Makes the package as ./package does, under another umask, and gives its file."""
    folder.mkdir(parents=True)
    subprocess.run([cpack, "--config", build / "CPackConfig.cmake", "-B", folder], check=True, capture_output=True,
                   umask=umask, env={**os.environ, "SOURCE_DATE_EPOCH": str(COMMIT_TIME)})
    [file] = folder.glob("*.deb")
    return file


def tool(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, env={**os.environ, "TZ": "UTC"}).stdout


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(scratch, ignore_errors=True)
        cls.file = package_into(scratch / "a", 0o022)

    def field(self, name):
        return tool("dpkg-deb", "--field", self.file, name).strip()

    def test_passes_lintian(self):
        judged = subprocess.run(["lintian", "--fail-on", "error,warning", "--allow-root", self.file], text=True,
                                capture_output=True, check=False)
        self.assertEqual(judged.returncode, 0, judged.stdout + judged.stderr)

    def test_is_the_same_to_the_byte_each_time(self):
        again = package_into(scratch / "another/and/longer", 0o022)
        self.assertEqual(hashlib.sha256(self.file.read_bytes()).hexdigest(),
                         hashlib.sha256(again.read_bytes()).hexdigest())

    def test_finds_out_what_it_depends_on(self):
        depends = {alternative.split()[0] for alternative in self.field("Depends").split(", ")}
        # What the toolkit loads by itself is in no program's list.
        self.assertIn("qt6-wayland", depends)
        for program in ("tambrelle", "tambrelle-player"):
            libraries = re.findall(r"\(NEEDED\).*\[(.*)\]", tool("readelf", "-d", "-W", build / program))
            self.assertGreater(len(libraries), 3)
            for library in libraries:
                owners = {line.split(":")[0] for line in tool("dpkg-query", "--search", f"*/{library}").splitlines()}
                self.assertTrue(owners & depends, f"{program} needs {library} of {owners}")

    def test_holds_what_an_installation_holds_as_roots_at_one_time(self):
        listed = tool("dpkg-deb", "--contents", self.file).splitlines()
        self.assertGreater(len(listed), 20)
        for line in listed:
            self.assertRegex(line, r"^(drwxr-xr-x|-rwxr-xr-x|-rw-r--r--) root/root +\d+ 2025-11-15 12:00 \./usr/")

    def test_has_no_scripts_that_could_fail(self):
        control = set(re.findall(r"\./(\w+)$", tool("sh", "-c", f"dpkg-deb --ctrl-tarfile '{self.file}' | tar -t"), re.M))
        self.assertEqual(control, {"control", "md5sums"})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
