"""The sample bid as it was sent, before an addendum: the version that comes with the sample.

The addendum lays carpet instead of planks in Class 113 and adds a storage room. The bid then also
took up a new quote for the carpet, the final cleaning and a larger discount.
"""

import hashlib

SENT = "2026-11-17 14:02:11.000"
NAME = "as sent to the owner"


def replaced(text, old, new):
    assert old in text, old
    return text.replace(old, new)


def before_the_addendum(files, job):
    """The project's files, by their paths, as they stood when the bid was sent."""
    then = {path: text for path, text in files.items()
            if path.startswith(job + "/") and not path.endswith("/Locked.tamo")}
    then["Markups.tamo"] = files["Markups.tamo"]

    def edit(name, old, new):
        then[f"{job}/{name}"] = replaced(then[f"{job}/{name}"], old, new)

    edit("JobNFO.tamo", "12-11-2026\r\n1\r\n", "12-11-2026\r\n0\r\n")
    edit("Rooms/Class 113.rfs", "Carpet Tile          FLR", "LVT Plank            FLR")
    edit("Rooms/Rooms.tamo", "Storage 112\r\nTrue\r\n", "")
    del then[f"{job}/Rooms/Storage 112.rfs"]
    edit("Systems/Carpet Tile.sys", "214.00", "198.00")
    edit("oItems.tamo", "Final Cleaning          400.00\r\n", "")
    edit("Adjustment.tamo", "-850", "-500")
    return then


def entry(path, text):
    data = text.encode("utf-8")
    check = hashlib.sha1(data).hexdigest()[:8]
    lines = "".join("\t" + line for line in text.splitlines(keepends=True))
    return f"@ {SENT} {check} whole {path}\n{lines}"


def version(files, job_id, job_name):
    """The text of the version file."""
    then = before_the_addendum(files, f"Projects/{job_id}")
    head = (f"Tamo: a bid as it stood\nVersion: {NAME}\nProject: {job_id}\nProject name: {job_name}\n"
            f"Kept: {SENT}\nReason: kept\n\n")
    return head + "".join(entry(*each) for each in sorted(then.items())) + f"@ End: {len(then)} files\n"
