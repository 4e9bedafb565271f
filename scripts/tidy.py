#!/usr/bin/python3
"""tidy.py BUILD_DIR: runs clang-tidy over every tracked .cpp file and fails on any finding. The build is one by GCC.

Nearly all of clang-tidy's time goes into the headers of the toolkit, so the files of one folder are read together, as one
translation unit that includes them all. Files that do not compile together (two of them have an unnamed namespace with the
same name in it) are divided until they do; a file alone is read as it is.

A file whose text, project headers, compile command and rules are as in an earlier clean run is not read again: the hash of
all that is kept in BUILD_DIR/../tidy. The plate recipes are left out: they are lists of strokes, which the engraver's tests
judge better.
"""

import concurrent.futures
import dataclasses
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

TIDY = "clang-tidy-14"
ROOT = pathlib.Path(__file__).resolve().parent.parent
LEFT_OUT = ("plates/subjects/", "tests/fuzz/")  # the fuzzers are in no release build
LARGEST_GROUP = 12
# Our own folders, but not what the build generates below its own.
HEADERS = f"^{re.escape(str(ROOT))}/(core|content|platform|app|ui|player|plates|resources|tests|bench)/"
DOES_NOT_COMPILE = "[clang-diagnostic-error"


@dataclasses.dataclass(frozen=True)
class Source:
    name: str           # from the root
    options: tuple      # the compiler and its options, without the names of input and output
    stamp: pathlib.Path

    @property
    def path(self):
        return str(ROOT / self.name)


def output_of(*command):
    return subprocess.run(command, cwd=ROOT, check=True, capture_output=True, text=True).stdout


def tracked_sources():
    names = output_of("git", "-c", f"safe.directory={ROOT}", "ls-files", "-z", "--", "*.cpp").split("\0")
    return [name for name in names if name and not name.startswith(LEFT_OUT)]


def project_files(build):
    """Source path -> the project's files that it was compiled from, as Ninja recorded them."""
    found = {}
    for block in output_of("ninja", "-C", str(build), "-t", "deps").split("\n\n"):
        files = [os.path.normpath(os.path.join(build, line.strip())) for line in block.splitlines()[1:]]
        if files:
            found[files[0]] = sorted(file for file in files if file.startswith(f"{ROOT}/") and not file.endswith(".gch"))
    return found


def compile_options(build):
    """Source path -> the options it is compiled with."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        words = shlex.split(entry["command"])
        if os.path.basename(words[0]) == "ccache":
            words = words[1:]
        at = words.index("-o")
        del words[at:at + 2]
        options = [word for word in words if word not in ("-c", entry["file"], "-Winvalid-pch", "-fpch-preprocess")]
        # Each file is read with its own includes alone.
        if "-include" in options:
            at = options.index("-include")
            del options[at:at + 2]
        found[os.path.normpath(os.path.join(entry["directory"], entry["file"]))] = tuple(options)
    return found


def fingerprint(parts):
    digest = hashlib.sha256()
    for part in parts:
        digest.update(part)
        digest.update(b"\0")
    return digest.hexdigest()


def run_tidy(place, file, options, extra=()):
    """The findings in `file`, empty for none; `place` takes the compile command."""
    place.mkdir(exist_ok=True)
    (place / "compile_commands.json").write_text(json.dumps([
        {"directory": str(place), "file": str(file), "command": shlex.join([*options, "-c", str(file)])}]))
    done = subprocess.run(
        [TIDY, "--quiet", "-p", str(place), f"--header-filter={HEADERS}", "--extra-arg=-Wno-unknown-warning-option",
         *extra, str(file)],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    told = "\n".join(line for line in done.stdout.splitlines() if not line.endswith("warnings generated."))
    return told.strip() or f"status {done.returncode}" if done.returncode else ""


def judge(group, stamps):
    """Reads the files of a group; gives the findings of each part of it that has any."""
    if len(group) == 1:
        source, = group
        found = run_tidy(source.stamp.with_suffix(".alone"), source.path, source.options)
    else:
        place = stamps / (fingerprint(str(source.stamp).encode() for source in group) + ".group")
        place.mkdir(exist_ok=True)
        together = place / "together.cpp"
        together.write_text("".join(f'#include "{source.path}"\n' for source in group))
        found = run_tidy(place, together, group[0].options, ["--checks=-bugprone-suspicious-include"])
        if DOES_NOT_COMPILE in found:
            half = len(group) // 2
            return judge(group[:half], stamps) + judge(group[half:], stamps)
    if found:
        return [found]
    for source in group:
        source.stamp.touch()
    return []


def groups_of(sources):
    """Files of one folder with the same options, the larger groups first so that none runs alone at the end."""
    alike = {}
    for source in sources:
        alike.setdefault((os.path.dirname(source.name), source.options), []).append(source)
    groups = [files[at:at + LARGEST_GROUP] for files in alike.values() for at in range(0, len(files), LARGEST_GROUP)]
    return sorted(groups, key=len, reverse=True)


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    options, files = compile_options(build), project_files(build)
    rules = [output_of(TIDY, "--version").encode(), (ROOT / ".clang-tidy").read_bytes()]
    stamps = build.parent / "tidy"
    stamps.mkdir(exist_ok=True)

    uncompiled, todo, known = [], [], 0
    for name in tracked_sources():
        path = str(ROOT / name)
        if path not in options:
            uncompiled.append(name)
            continue
        texts = [pathlib.Path(file).read_bytes() for file in files.get(path, [path]) if os.path.exists(file)]
        stamp = stamps / fingerprint([*rules, path.encode(), shlex.join(options[path]).encode(), *texts])
        if stamp.exists():
            known += 1
        else:
            todo.append(Source(name, options[path], stamp))

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda group: judge(group, stamps), groups_of(todo)))
    findings = [found for result in results for found in result]
    for found in findings:
        print(found)
    for name in uncompiled:
        print(f"{name}: not compiled by this build, so not checked")
    print(f"clang-tidy: {len(todo)} files read, {known} unchanged since a clean run")
    return 1 if findings or uncompiled else 0


if __name__ == "__main__":
    sys.exit(main())
