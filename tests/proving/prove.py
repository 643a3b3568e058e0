#!/usr/bin/env python3
"""The proving ground. Says what it did with its counts; ends with 1 when something was lost, hidden or half."""

import argparse
import random
import sys
import time

import failures
import kills
import power
import two
import waiting
from ground import Ground
from restart import Restarts


class Report:
    def __init__(self, name, seconds, shown):
        self.name, self.shown = name, shown
        self.until = time.monotonic() + seconds
        self.started = time.monotonic()
        self.count, self.failed = 0, 0

    def late(self):
        return time.monotonic() > self.until

    def one(self, what, complaints):
        self.count += 1
        if not complaints:
            return
        self.failed += 1
        if self.failed <= self.shown:
            print(f"WRONG {what}", *complaints, sep="\n   ", flush=True)

    def end(self, started):
        more = f", {started} different folders started again" if started else ""
        print(f"{self.name}: {self.count} done, {self.failed} wrong{more}, {time.monotonic() - self.started:.0f} s", flush=True)
        return self.failed == 0

    def row(self, words, started):
        return f"| {words} | {self.count} | {self.failed} | {started or ''} | {time.monotonic() - self.started:.0f} |\n"


def main():
    options = argparse.ArgumentParser()
    options.add_argument("what", choices=("kills", "writing", "reading", "power", "away", "two", "waiting"))
    for name in ("player", "shim", "data"):
        options.add_argument("--" + name, required=True)
    options.add_argument("--most", type=int, default=100)
    options.add_argument("--seed", type=int, default=1)
    options.add_argument("--seconds", type=float, default=1e9, help="begins no more after so many")
    options.add_argument("--every", action="store_true", help="kills at each operation in turn, not at random ones")
    options.add_argument("--first", type=int, default=0, help="begins the kills with this bid")
    options.add_argument("--shown", type=int, default=10, help="how many wrong ones are told in full")
    options.add_argument("--words", default="", help="what the figures are called")
    options.add_argument("--figures", help="a file that gets them as a row of a table")
    given = options.parse_args()
    ground = Ground(given.player, given.shim, given.data)
    chance, restarts = random.Random(given.seed), Restarts(ground)
    report = Report(given.what, given.seconds, given.shown)
    try:
        if given.what == "kills":
            kills.prove(ground, restarts, report, given.most, chance, given.every, given.first)
        elif given.what == "power":
            power.prove(ground, restarts, report, given.most, chance)
        elif given.what == "two":
            two.prove(ground, report, given.most, chance)
        elif given.what == "waiting":
            waiting.prove(ground, report, given.most, chance)
        elif given.what == "away":
            failures.prove(ground, report, given.most, chance, "rwl", (5, 30, 150), ("ENOENT",))
        else:
            failures.prove(ground, report, given.most, chance, given.what[0])
    finally:
        ground.close()
    if given.figures:
        with open(given.figures, "a") as figures:
            figures.write(report.row(given.words, len(restarts.known)))
    sys.exit(0 if report.end(len(restarts.known)) else 1)


if __name__ == "__main__":
    main()
