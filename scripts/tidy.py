#!/usr/bin/python3
"""tidy.py BUILD_DIR: runs clang-tidy over every tracked .cpp file and fails on any finding.

A file whose own text, whose project headers, whose compile command and whose configuration are as in an earlier clean
run is not read again: the hash of all that is kept in BUILD_DIR/../tidy. The plate recipes are left out: they are
hundreds of lists of strokes, which the engraver's tests judge better.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

TIDY = "clang-tidy-14"
ROOT = pathlib.Path(__file__).resolve().parent.parent
LEFT_OUT = ("plates/subjects/",)


def tracked_sources():
    listing = subprocess.run(
        ["git", "-c", f"safe.directory={ROOT}", "ls-files", "-z", "--", "*.cpp"],
        cwd=ROOT, check=True, capture_output=True, text=True)
    return [name for name in listing.stdout.split("\0") if name and not name.startswith(LEFT_OUT)]


def project_headers(build):
    """Source path -> the project's files it was compiled from, as Ninja recorded them."""
    listing = subprocess.run(["ninja", "-C", str(build), "-t", "deps"], check=True, capture_output=True, text=True)
    headers = {}
    for block in listing.stdout.split("\n\n"):
        files = [os.path.normpath(os.path.join(build, line.strip())) for line in block.splitlines()[1:]]
        if files:
            headers[files[0]] = sorted(file for file in files if file.startswith(f"{ROOT}/"))
    return headers


def fingerprint(parts):
    digest = hashlib.sha256()
    for part in parts:
        digest.update(part)
        digest.update(b"\0")
    return digest.hexdigest()


def judge(build, source):
    return subprocess.run(
        [TIDY, "--quiet", "-p", str(build), "--extra-arg=-Wno-unknown-warning-option", str(source)],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    commands = {os.path.normpath(os.path.join(entry["directory"], entry["file"])): entry["command"]
                for entry in json.loads((build / "compile_commands.json").read_text())}
    headers = project_headers(build)
    version = subprocess.run([TIDY, "--version"], check=True, capture_output=True).stdout
    rules = (ROOT / ".clang-tidy").read_bytes()
    stamps = build.parent / "tidy"
    stamps.mkdir(exist_ok=True)

    bad, todo, known = [], [], 0
    for name in tracked_sources():
        source = str(ROOT / name)
        if source not in commands:
            print(f"{name}: not compiled by this build, so not checked")
            bad.append(name)
            continue
        contents = [pathlib.Path(file).read_bytes() for file in headers.get(source, [source]) if os.path.exists(file)]
        stamp = stamps / fingerprint([version, rules, commands[source].encode(), *contents])
        if stamp.exists():
            known += 1
        else:
            todo.append((name, source, stamp))

    # The largest first, so that no long one runs alone at the end.
    todo.sort(key=lambda entry: -os.path.getsize(entry[1]))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for (name, _, stamp), result in zip(todo, pool.map(lambda entry: judge(build, entry[1]), todo)):
            if result.returncode == 0:
                stamp.touch()
            else:
                print(f"{name}:\n{result.stdout}")
                bad.append(name)
    print(f"clang-tidy: {len(todo)} files read, {known} unchanged since a clean run, {len(bad)} with findings")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
