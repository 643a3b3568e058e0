"""Kills the program at its file operations: before one, or in the middle of it."""

import signal

from bids import bids
from ground import put, written
from versions import last_step


def kill(ground, restarts, bid, at, deed):
    home = ground.new_home()
    put(home, bid.files)
    played = ground.play(home, bid.scenario, {"AT": at, "DO": deed, "DATA": ""})
    files, step = written(home), last_step(played.log)
    ground.forget(home)
    # The player tells of it, unless it was killed itself, before it began to play.
    if "signal 9" not in played.errors and played.status != -signal.SIGKILL:
        return ["the program was not killed: " + played.errors]
    return bid.versions.wrong(files, step) + restarts.wrong(files, bid, step)


def prove(ground, restarts, report, most, chance, every=False, first=0):
    """`most` kills; with `every` at each operation in turn, else at random ones; `first`: of the bids."""
    done = 0
    for bid in bids(ground):
        if bid.seed < first:
            continue
        count = bid.count("rw")
        places = [(at, deed) for at in range(1, count + 1) for deed in ("kill", "half")]
        if not every:
            places = chance.sample(places, min(most, len(places)))
        for at, deed in places[:most - done]:
            done += 1
            report.one(f"kills: bid {bid.seed} AT={at} DO={deed}", kill(ground, restarts, bid, at, deed))
            if report.late():
                return
        if done >= most:
            return
