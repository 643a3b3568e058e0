"""Plays scenarios on the whole program, in a process of its own, under the preloaded library that strikes at its files."""

import os
import shutil
import subprocess
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

import shimlog

HERE = Path(__file__).resolve().parent
LONGEST = 120  # seconds of one play


@dataclass
class Played:
    status: int
    texts: dict = field(default_factory=dict)  # by the line of the step: what it printed
    errors: str = ""
    log: list = field(default_factory=list)  # of shimlog.Operation


class Ground:
    """`player` and `shim` are built files, `data` the content of the program folder."""

    def __init__(self, player, shim, data, keep=None):
        base = "/dev/shm" if os.path.isdir("/dev/shm") and "TMPDIR" not in os.environ else None
        self.scratch = Path(keep or tempfile.mkdtemp(prefix="tamo-proving-", dir=base))
        self.player, self.shim = str(player), str(shim)
        self.program = self.scratch / "program"
        shutil.copytree(data, self.program, dirs_exist_ok=True)
        self.places = 0
        self.plays = 0

    def close(self):
        shutil.rmtree(self.scratch, ignore_errors=True)

    def new_home(self):
        self.places += 1
        home = self.scratch / f"home{self.places}" / "h"
        home.mkdir(parents=True)
        return home

    @staticmethod
    def forget(home):
        shutil.rmtree(Path(home).parent, ignore_errors=True)

    def start(self, home, scenario, orders=None, logged=True):
        """The running player; its log is home.log."""
        environment = dict(os.environ, LD_PRELOAD=self.shim, PROVING_BELOW=str(home), PROVING_CLASSES="rw",
                           QT_QPA_PLATFORM="offscreen")
        log = Path(str(home) + ".log")
        log.unlink(missing_ok=True)
        if logged:
            environment.update(PROVING_LOG=str(log), PROVING_DATA="1")
        environment.update({"PROVING_" + name: str(value) for name, value in (orders or {}).items()})
        self.plays += 1
        return subprocess.Popen(
            [self.player, "--program", str(self.program), "--home", str(home), "--tell", str(scenario)],
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=environment)

    def end(self, home, process):
        try:
            out, err = process.communicate(timeout=LONGEST)
        except subprocess.TimeoutExpired:
            process.kill()
            out, err = process.communicate()
            err += b"\nthe play did not come to its end"
        log = Path(str(home) + ".log")
        operations = shimlog.read(log, home) if log.exists() else []
        return Played(process.returncode, texts_of(out.decode(errors="replace"), home), err.decode(errors="replace"),
                      operations)

    def play(self, home, scenario, orders=None, logged=True):
        return self.end(home, self.start(home, scenario, orders, logged))


def texts_of(out, home):
    texts, line = {}, 0
    for text in out.replace(str(home), "{home}").split("\n"):
        if text.startswith("step ") and text[5:].isdigit():
            line = int(text[5:])
            texts[line] = ""
        else:
            texts[line] = texts.get(line, "") + text + "\n"
    return {line: text.strip("\n") for line, text in texts.items()}


def noticed(scenario, into):
    """The scenario with a look at the strip and at the messages behind each step. Lines 3n+1 are the steps."""
    steps = [line for line in Path(scenario).read_text().splitlines() if line and not line.startswith("#")]
    Path(into).write_text("".join(f"{step}\nprint notice\nprint messages\n" for step in steps))
    return steps


def written(folder):
    """Every file of a folder: its path from there and its bytes, the folder's own name written {home}."""
    found = {}
    for root, _, names in os.walk(folder):
        for name in names:
            path = Path(root, name)
            if path.is_file():
                found[str(path.relative_to(folder))] = path.read_bytes().replace(str(folder).encode(), b"{home}")
    return found


def put(folder, files, folders=()):
    """The other way: makes a folder of such files."""
    for path in folders:
        Path(folder, path).mkdir(parents=True, exist_ok=True)
    for path, content in files.items():
        Path(folder, path).parent.mkdir(parents=True, exist_ok=True)
        Path(folder, path).write_bytes(content.replace(b"{home}", str(folder).encode()))
