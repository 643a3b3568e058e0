"""What each file may hold: the versions of a play that nobody disturbed."""

import re

import shimlog

# Half-made saves, signs of who has a project open, notes for the next start: no entries of an estimator.
NOT_ENTRIES = re.compile(r"(unfinished|\.lock|/InUse|Locked\.tamo|[Rr]ecover|Unsaved|\.tmp)", re.IGNORECASE)


def is_entry(path):
    return not NOT_ENTRIES.search(path)


class Versions:
    """Of a whole play's log. A step stands for its line in the scenario; 0 is before the first."""

    def __init__(self, log, files=None):
        self.log = log
        self.start = dict(files or {})
        self.states = {}  # by step: the files when it begins
        self.allowed = {}  # by step: path -> the contents that it may have while the step is played; None: no file
        folder, step = shimlog.Folder(self.start), 0
        self._begin(0, folder)
        for operation in log:
            begins = shimlog.step_of(operation)
            if begins is not None:
                step = begins
                self._begin(step, folder)
            changed = folder.apply(operation)
            # What is written in place is whole only when the step is over.
            if operation.name in ("rename", "exchange", "link", "unlink"):
                self._allow(step, changed, folder)
        self._begin(step + 1, folder)
        self.end = step + 1
        self.folders = set(folder.folders)

    def _allow(self, step, paths, folder):
        for path in filter(is_entry, paths):
            self.allowed[step].setdefault(path, {None}).add(folder.files.get(path))

    def _begin(self, step, folder):
        if self.allowed:
            before = max(self.allowed)
            self._allow(before, set(folder.files) | set(self.allowed[before]), folder)
        self.states[step] = {path: content for path, content in folder.files.items() if is_entry(path)}
        self.allowed[step] = {path: {content} for path, content in self.states[step].items()}

    def wrong(self, files, step):
        """What is neither old nor new in `files` while `step` is played, in words."""
        allowed = self.allowed[step]
        complaints = []
        for path, content in files.items():
            if is_entry(path) and content not in allowed.get(path, {None}):
                complaints.append(f"{path} holds what it never held: {content[:200]!r}" if path in allowed
                                  else f"{path} should not be there: {content[:200]!r}")
        for path, contents in allowed.items():
            if path not in files and None not in contents:
                complaints.append(f"{path} is gone")
        return complaints


def last_step(log):
    steps = [step for step in map(shimlog.step_of, log) if step is not None]
    return steps[-1] if steps else 0
