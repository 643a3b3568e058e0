"""The next start on a folder: what the estimator finds there, and whether the start itself loses something."""

import hashlib
import re

from ground import HERE, put, written
from versions import is_entry


def essence(file):
    """Of signs and half-made saves only that they are there: they hold times and the numbers of processes."""
    path, content = file
    return (path, content) if is_entry(path) else (re.sub(r"\d+", "", path), b"")


class Restarts:
    """Each different folder is started once."""

    def __init__(self, ground):
        self.ground = ground
        self.known = {}

    def of(self, files):
        """What was printed, and what went wrong, in words."""
        digest = hashlib.sha256(repr(sorted(map(essence, files.items()))).encode()).digest()
        if digest not in self.known:
            self.known[digest] = self._start(files)
        return self.known[digest]

    def _start(self, files):
        home = self.ground.new_home()
        put(home, files)
        projects = [line for line in files.get("Tamo/Jobs.lst", b"").split(b"\r\n") if line]
        scenario = self.ground.scratch / "again.scenario"
        text = (HERE / "again.scenario").read_text().replace("JobsList 0", f"JobsList {len(projects) - 1}")
        scenario.write_text(text if projects else "start\nprint notice\n")
        played = self.ground.play(home, scenario, logged=False)
        after = written(home)
        wrong = [f"the next start: {line}" for line in played.errors.splitlines()]
        for path, content in files.items():
            if is_entry(path) and after.get(path) != content:
                wrong.append(f"the next start changes {path}: {content[:120]!r} becomes {after.get(path, b'')[:120]!r}")
        self.ground.forget(home)
        return played.texts, wrong

    def wrong(self, files, bid, step):
        """`files` were left in `step` of the bid: the reports must be those of before it or of behind it."""
        texts, wrong = self.of(files)
        following = min((other for other in bid.versions.states if other > step), default=step)
        right = [self.of(bid.versions.states[each])[0] for each in (step, following)]
        if texts not in right and not tells(texts):
            wrong = wrong + [f"the next start shows neither what was nor what is: {texts}"]
        return wrong


def tells(texts):
    """Whether it says that something was not read or not counted."""
    said = " ".join(texts.values()).lower()
    return any(word in said for word in ("not counted", "can't be read", "not read", "gone", "missing", "unreadable"))
