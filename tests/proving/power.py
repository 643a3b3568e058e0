"""The power fails: what was not synced is lost, or is there before what came earlier."""

import os

import shimlog
from bids import bids
from versions import is_entry


class Unsynced:
    """A disk that keeps the operations of a log apart until they are synced. Contents hang on the file, not on its name."""

    def __init__(self, files):
        self.safe = {path: [content] for path, content in files.items()}  # name -> file, a list of its parts
        self.live = dict(self.safe)
        self.folders = {os.path.dirname(path) for path in files}
        self.waiting = []  # (folder, what happens to the names there)
        self.fresh = {}  # by file: the parts that are not synced

    def apply(self, operation):
        if operation.kind != "w" or not operation.worked():
            return
        path, other = operation.path.rstrip("/"), operation.other
        if operation.name == "open" and ("t" in other or ("c" in other and path not in self.live)):
            if path not in self.live:
                self.live[path] = []
                self._name(path, lambda names, file=self.live[path]: names.__setitem__(path, file))
            self.live[path].clear()
        elif operation.name == "write":
            self.live[path].append(operation.data)
            self.fresh.setdefault(id(self.live[path]), set()).add(len(self.live[path]) - 1)
        elif operation.name == "rename" and path in self.live:
            file = self.live.pop(path)
            self.live[other] = file
            self._name(other, lambda names: (names.__setitem__(other, file), names.pop(path, None)))
        elif operation.name == "exchange" and path in self.live and other in self.live:
            ours, theirs = self.live[path], self.live[other]
            self.live[path], self.live[other] = theirs, ours
            self._name(other, lambda names: names.update({other: ours, path: theirs}))
        elif operation.name == "unlink":
            self.live.pop(path, None)
            self._name(path, lambda names: names.pop(path, None))
        elif operation.name == "mkdir":
            self._name(path, lambda names: self.folders.add(path))
        elif operation.name == "fsync" and path in self.live:
            self.fresh.pop(id(self.live[path]), None)
        elif operation.name == "fsync":
            self._settle(path)

    def _name(self, path, change):
        self.waiting.append((os.path.dirname(path), change))

    def _settle(self, folder):
        for where, change in self.waiting:
            if where == folder:
                change(self.safe)
        self.waiting = [each for each in self.waiting if each[0] != folder]

    def after_loss(self, chance, keeps):
        """The files that stand after the loss. Each operation that waits is kept by the chance of `keeps`, in any order."""
        names, folders = dict(self.safe), set(self.folders)
        waiting = [change for _, change in self.waiting if chance.random() < keeps]
        chance.shuffle(waiting)
        for change in waiting:
            change(names)
        found = {}
        for path, file in names.items():
            fresh = self.fresh.get(id(file), ())
            parts = [part if at not in fresh or chance.random() < keeps else part[:chance.randrange(len(part) + 1)]
                     for at, part in enumerate(file)]
            if self._reached(os.path.dirname(path)):
                found[path] = b"".join(parts)
        self.folders = folders
        return found

    def _reached(self, folder):
        while folder:
            if folder not in self.folders:
                return False
            folder = os.path.dirname(folder)
        return True


def lose(bid, at, keeps, chance):
    """The files after a loss behind the first `at` lines of the log, and the step that was played."""
    disk, step = Unsynced(bid.files), 0
    disk.folders.update(*(parents(path) for path in bid.files))
    for operation in bid.played.log[:at]:
        begins = shimlog.step_of(operation)
        step = step if begins is None else begins
        disk.apply(operation)
    return {path: content for path, content in disk.after_loss(chance, keeps).items()}, step


def parents(path):
    while path := os.path.dirname(path):
        yield path


def prove(ground, restarts, report, most, chance):
    done = 0
    for bid in bids(ground):
        for _ in range(min(most - done, 2000)):
            at, keeps = chance.randrange(len(bid.played.log) + 1), chance.choice((0, 0.25, 0.5, 0.75, 1))
            files, step = lose(bid, at, keeps, chance)
            done += 1
            whole = {path: content for path, content in files.items() if is_entry(path)}
            report.one(f"power: bid {bid.seed} behind line {at} of its log, {keeps} kept",
                       bid.versions.wrong(whole, step) + restarts.wrong(files, bid, step))
            if report.late():
                return
        if done >= most:
            return
