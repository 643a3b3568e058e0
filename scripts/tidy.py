#!/usr/bin/env python3
"""clang-tidy over src, only where it can find something new.

    scripts/tidy.py BUILD_FOLDER

A file is looked at when its own text, a header that it includes, its compile command, .clang-tidy or the version of clang-tidy
has changed since it last passed; what passed is remembered in ${XDG_CACHE_HOME:-~/.cache}/tamo/tidy, so a fresh clone on the
same machine has it, too. Files of one folder are looked at together, since most of the time goes into the headers they share; a
group that does not pass, or whose files don't compile together, is halved until each complaint is about one file.

BUILD_FOLDER is a Ninja build folder in which everything has been built (its record of included headers is read).
"""

import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor

TOGETHER = 12  # files in a group at most
REMEMBERED = 60  # days
root = pathlib.Path(__file__).resolve().parent.parent


def output(*command):
    return subprocess.run(command, cwd=root, capture_output=True, text=True, check=True).stdout


def cache_folder():
    base = os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache")
    folder = pathlib.Path(base) / "tamo" / "tidy"
    folder.mkdir(parents=True, exist_ok=True)
    oldest = time.time() - REMEMBERED * 86400
    for entry in folder.iterdir():
        if entry.stat().st_mtime < oldest:
            entry.unlink(missing_ok=True)
    return folder


def qt_version(build):
    folder = re.search(r"^Qt6_DIR:[^=]*=(.*)$", (build / "CMakeCache.txt").read_text(), re.M)[1]
    return (pathlib.Path(folder) / "Qt6ConfigVersionImpl.cmake").read_bytes()


def included(build):
    """The headers of each object file, as the last build found them."""
    headers, current = {}, None
    for line in output("ninja", "-C", str(build), "-t", "deps").splitlines():
        if line and not line.startswith((" ", "ninja:")):
            current = headers.setdefault(line.split(": #deps")[0], []) if "(VALID)" in line else []
        elif line.startswith("    "):
            current.append(line.strip())
    return headers


class File:
    def __init__(self, entry, build, headers):
        self.path = pathlib.Path(entry["file"])
        self.folder = self.path.parent
        self.command = shlex.split(entry["command"])
        at = self.command.index("-o")
        self.object = self.command[at + 1]
        # What a launcher, the object and the record of headers are called says nothing about the code.
        self.command = self.command[:at] + self.command[at + 2 :]
        while not self.command[0].endswith(("c++", "g++", "clang++")):
            self.command.pop(0)
        # The headers are read as they stand: another compiler has precompiled them.
        while "-include" in self.command:
            at = self.command.index("-include")
            del self.command[at : at + 2]
        self.flags = [part for part in self.command if part not in ("-c", "-Winvalid-pch", entry["file"])]
        self.headers = headers.get(self.object)
        self.build = build

    def digest(self, salt, texts):
        """None when it is not known what the file includes."""
        if self.headers is None:
            return None
        whole = hashlib.sha256(salt)
        whole.update(" ".join(self.flags).replace(str(root), "").encode())
        for name in [str(self.path)] + [header for header in self.headers if "cmake_pch" not in header]:
            path = os.path.realpath(self.build / name)
            if path not in texts:
                try:
                    if path.startswith(str(root) + os.sep):
                        texts[path] = path[len(str(root)) :].encode() + pathlib.Path(path).read_bytes()
                    else:
                        state = os.stat(path)
                        texts[path] = f"{path} {state.st_size} {state.st_mtime_ns}".encode()
                except OSError:
                    return None
            whole.update(hashlib.sha256(texts[path]).digest())
        return whole.hexdigest()


def look(files):
    """What clang-tidy says about the files; "" when they pass."""
    with tempfile.TemporaryDirectory() as folder:
        if len(files) == 1:
            source = files[0].path
        else:
            source = pathlib.Path(folder) / "together.cpp"
            source.write_text("".join(f'#include "{file.path}"\n' for file in files))
        entry = {"directory": str(files[0].build), "file": str(source), "arguments": files[0].flags + ["-c", str(source)]}
        (pathlib.Path(folder) / "compile_commands.json").write_text(json.dumps([entry]))
        command = ["clang-tidy", "--quiet", "-p", folder, f"--config-file={root / '.clang-tidy'}"]
        if len(files) > 1:
            command.append("--checks=-bugprone-suspicious-include")
        ran = subprocess.run(command + [str(source)], cwd=root, capture_output=True, text=True)
    return "" if ran.returncode == 0 else ran.stdout or ran.stderr or "clang-tidy failed"


def complaints(files):
    said = look(files)
    if said == "":
        for file in files:
            if file.key is not None:
                (cache / file.key).touch()
        return []
    if len(files) == 1:
        return [said]
    half = len(files) // 2
    return complaints(files[:half]) + complaints(files[half:])


def groups(files):
    by_kind = {}
    for file in files:
        by_kind.setdefault((file.folder, tuple(file.flags)), []).append(file)
    for alike in by_kind.values():
        count = -(-len(alike) // TOGETHER)
        for at in range(count):
            yield alike[at::count]


cache = cache_folder()


def main(build):
    salt = (root / ".clang-tidy").read_bytes() + output("clang-tidy", "--version").encode()
    # Of headers that were precompiled only the library's version tells a change.
    salt += qt_version(build)
    sources = {str(root / name) for name in output("git", "ls-files", "src/*.cpp").split("\n") if name}
    headers, texts = included(build), {}
    entries = json.loads((build / "compile_commands.json").read_text())
    files = [File(entry, build, headers) for entry in entries if entry["file"] in sources]
    for file in files:
        file.key = file.digest(salt, texts)
    open_files = [file for file in files if file.key is None or not (cache / file.key).exists()]
    print(f"{len(files)} files, {len(open_files)} to look at", flush=True)
    with ThreadPoolExecutor(max_workers=2) as pool:
        found = [said for some in pool.map(complaints, sorted(groups(open_files), key=len, reverse=True)) for said in some]
    print("\n".join(found))
    return 1 if found or len(files) < len(sources) else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
