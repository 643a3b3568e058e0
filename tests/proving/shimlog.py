"""The log of the preloaded library, and the folder that its operations make."""

from dataclasses import dataclass


@dataclass
class Operation:
    number: int  # 0 when it was not counted
    kind: str  # r, w, l; s: the program said something
    name: str
    result: str
    path: str  # from the folder that is looked after; of kind s: the text
    other: str
    data: bytes

    def worked(self):
        return not self.result.startswith(("failed", "killed before"))


def read(log, home):
    mark = str(home).encode()
    found = []
    for line in log.read_bytes().split(b"\n"):
        parts = line.decode(errors="surrogateescape").split("\t")
        if len(parts) < 7:
            continue
        path, other = (part.removeprefix(str(home)).lstrip("/") for part in parts[4:6])
        data = bytes.fromhex(parts[6]).replace(mark, b"{home}")
        found.append(Operation(int(parts[0]), parts[1], parts[2], parts[3], path, other, data))
    return found


def step_of(operation):
    """The line of the step that begins here, None when none does."""
    if operation.kind == "s" and operation.path.startswith("step "):
        return int(operation.path[5:])
    return None


class Folder:
    """What stands in a folder after some operations."""

    def __init__(self, files=None):
        self.files = dict(files or {})
        self.folders = set()

    def apply(self, operation):
        """The paths whose content it changed."""
        if not operation.worked() or operation.kind != "w":
            return ()
        path, other = operation.path, operation.other
        if operation.name == "open" and ("t" in other or ("c" in other and path not in self.files)):
            self.files[path] = b""
        elif operation.name == "write":
            self.files[path] = self.files.get(path, b"") + operation.data
        elif operation.name in ("rename", "link") and path in self.files:
            self.files[other] = self.files[path]
            if operation.name == "rename":
                del self.files[path]
            return (path, other)
        elif operation.name == "exchange" and path in self.files and other in self.files:
            self.files[path], self.files[other] = self.files[other], self.files[path]
            return (path, other)
        elif operation.name == "unlink":
            self.files.pop(path, None)
        elif operation.name == "mkdir":
            self.folders.add(path.rstrip("/"))
        elif operation.name == "rmdir":
            self.folders.discard(path.rstrip("/"))
        else:
            return ()
        return (path,)
