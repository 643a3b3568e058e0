"""Bids for the proving ground: the scripted one, and others like it that are drawn from a seed."""

import random
import re

from ground import HERE, noticed, put, written
from versions import Versions

NAMES = ("Depot Street Offices", "Wall Paint", "Rubber Base", "HM Door", "Paint", "Corridor", "Entrance", "Dumpsters",
         "Permit", "101")


class Bid:
    """A bid played to its end with nobody in its way: what all others are held against."""

    def __init__(self, ground, seed=0, files=None):
        self.files = files or {}
        self.seed = seed
        plain = ground.scratch / f"plain{seed}.scenario"
        plain.write_text(drawn((HERE / "bid.scenario").read_text(), seed))
        self.scenario = ground.scratch / f"bid{seed}.scenario"
        self.steps = noticed(plain, self.scenario)
        home = ground.new_home()
        put(home, self.files)
        self.played = ground.play(home, self.scenario)
        assert self.played.status == 0, self.played.errors
        self.versions = Versions(self.played.log, self.files)
        self.after = written(home)
        wrong = self.versions.wrong(self.after, self.versions.end)
        assert not wrong, f"the log does not tell what stands in the folder: {wrong}"
        assert not any(self.played.texts.get(line) for line in self.notices()), "the strip is not empty"
        ground.forget(home)

    def notices(self):
        return range(2, 3 * len(self.steps) + 1, 3)

    def count(self, kinds):
        return sum(1 for operation in self.played.log if operation.kind in kinds)


def drawn(text, seed):
    """Seed 0 is the bid itself. The others have other amounts and names of their own."""
    if seed == 0:
        return text
    chance = random.Random(seed)
    for name in NAMES:
        other = f"{name} {seed}" if name != "101" else f"{100 * seed + 1}"
        text = re.sub(rf"(?im)^enter {name}$", f"enter {other}", text)
    return re.sub(r"(?m)^enter (\d+\.\d+)$", lambda found: f"enter {float(found[1]) + chance.randrange(9):.2f}", text)


def bids(ground):
    """One behind the other, each in the folder that the one before it left."""
    files, seed = {}, 0
    while True:
        bid = Bid(ground, seed, files)
        yield bid
        files, seed = bid.after, seed + 1
