"""Two programs at one folder, each with a bid of its own, the operations of both delayed at random."""

import os

from bids import Bid
from ground import put, written

LISTS = ("Descriptions", "Materials", "Areas", "Items", "Wages", "oUnits")
LONGEST_DELAY = 400  # microseconds before an operation


def named(complaint, said):
    """Whether the program spoke of the file that the complaint begins with."""
    return os.path.basename(complaint.split(" ")[0]) in said


def lines(files, path):
    return [line for line in files.get(path, b"").split(b"\r\n") if line]


def project_files(files, project):
    """Of one project, by their paths in its folder, without its number."""
    start = f"Tamo/Projects/{project}/"
    return {path.removeprefix(start): content.replace(project.encode(), b"{id}")
            for path, content in files.items() if path.startswith(start)}


def project_of(line):
    return line.split(b" ")[0].decode()


def lost(files, bid):
    """What the bid entered and the folder does not hold."""
    final = bid.versions.states[bid.versions.end]
    found = []
    for name in LISTS:
        path = f"Tamo/{name}.tamo"
        missing = [line for line in lines(final, path) if line not in lines(files, path)]
        if missing:
            found.append(f"{path} lost {missing}")
    for path, content in final.items():
        if path.startswith("Tamo/Systems/") and files.get(path) != content:
            found.append(f"{path} is not what was entered")
    return found + lost_project(files, final)


def lost_project(files, final):
    own = lines(final, "Tamo/Jobs.lst")[-1]
    name = own.split(b"   ", 1)[1]
    now = [line for line in lines(files, "Tamo/Jobs.lst") if line.endswith(b"   " + name)]
    if len(now) != 1:
        return [f"{name!r} stands {len(now)} times in Jobs.lst"]
    entered, there = project_files(final, project_of(own)), project_files(files, project_of(now[0]))
    return [f"{path} of {name!r} is not what was entered" for path in entered if there.get(path) != entered[path]]


def numbers(files):
    projects = [project_of(line) for line in lines(files, "Tamo/Jobs.lst")]
    return [] if len(projects) == len(set(projects)) else [f"one number for two: {projects}"]


def prove(ground, report, most, chance):
    before = Bid(ground).after
    pair = [Bid(ground, seed, before) for seed in (1, 2)]
    for _ in range(most):
        home = ground.new_home()
        put(home, before)
        seeds = [chance.randrange(10**6) for _ in pair]
        # Each has its own log beside the home.
        orders = [{"DO": "delay", "DELAY": LONGEST_DELAY, "SEED": seed, "LOG": f"{home}.{seed}.log"} for seed in seeds]
        running = [ground.start(home, bid.scenario, order) for bid, order in zip(pair, orders)]
        played = [ground.end(home, process) for process in running]
        files = written(home)
        ground.forget(home)
        complaints = numbers(files)
        for bid, play in zip(pair, played):
            said = " ".join(play.texts.get(line, "") + play.texts.get(line + 1, "") for line in bid.notices())
            complaints += [each for each in lost(files, bid) if not named(each, said)]
            complaints += [play.errors] if "broke down" in play.errors else []
        report.one(f"two: seeds {seeds}", complaints)
        if report.late():
            return
