#!/usr/bin/env python3
"""Plays a whole measured bid while the processes that read its plan are killed at random: nothing may be lost.

    play_killed.py PLAYER FOLDER [--rounds N] [--seconds S] [--windows]

The bid: a set of three sheets is opened, each wall is measured on one of them and entered, which saves the marked copy. From
the first marked copy to the last walls but a few processes are killed; then the project is closed, opened again and compared.
Each round kills at other moments, the first is left alone. It fails when anything is missing, or when too few processes were
killed to prove anything.
"""

import argparse
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import threading
import time

WALLS = 90
FEET = 4  # of each
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent.parent
JOB = "12-2611001"
PATIENCE = 60  # seconds that a round may take


def lines(*texts):
    return "".join(text + "\n" for text in texts)


def room(feet):
    return lines("10", f"Base                 WALLS{feet:>20} LF")


def file_step(word, path, text):
    return f"{word} {path} <<END\n{text}END\n"


def scenario():
    """The bid, with what is expected after each step."""
    project = f"Tamo/Projects/{JOB}"
    system = lines("Base", "LF", "1.00", "255000000")
    steps = [file_step("write", "Tamo/Jobs.lst", lines(f"{JOB}   Depot")),
             file_step("write", f"{project}/JobNFO.tamo", lines(JOB, "Depot", *[""] * 8)),
             file_step("write", f"{project}/Plans/readme.txt", ""),
             file_step("write", "Tamo/Descriptions.tamo", lines("Base")),
             file_step("write", f"{project}/Systems/Base.sys", system),
             file_step("write", f"{project}/Rooms/Rooms.tamo", lines("Lobby", "True")),
             file_step("write", f"{project}/Rooms/Lobby.rfs", room(40)),
             lines("copy three-sheets.pdf Jobs/Set.pdf", "start", "menu Tamo.Settings1", "click Settings.Option2",
                   "click Settings.Command1", "menu OST.OpenProject", "select Tamo.JobsList 0", "focus OST.PlanLocation",
                   "enter {home}/Jobs/Set.pdf", "expect shown = Set.pdf", "menu OST.Quarter", "menu OST.TakeoffRFS")]
    for wall in range(WALLS):
        y = 80 + 7 * wall
        steps.append(lines(f"plan page {1 + wall % 3}", f"plan line 100 {y} 172 {y}", f"expect RFSForm.Length = {FEET}.0",
                           "key Enter"))
        steps.append(file_step("expect file", f"{project}/Rooms/Lobby.rfs", room(40 + FEET * (wall + 1))))
    steps.append(lines("close RFSForm", "menu OST.ClearProject", "menu OST.OpenProject", "select Tamo.JobsList 0",
                       "expect shown = Set-Marked.pdf"))
    for wall in range(WALLS):
        y = 80 + 7 * wall
        steps.append(f"expect marks contains line {1 + wall % 3} 100 {y} 172 {y}\n")
    return "".join(steps)


def children(process):
    found = []
    for task in pathlib.Path(f"/proc/{process}/task").glob("*/children"):
        try:
            found += [int(word) for word in task.read_text().split()]
        except OSError:
            pass
    return found


def workers(player):
    """The processes that read plans for the player, which plays in a process of its own."""
    found = []
    for process in children(player):
        found += workers(process)
        try:
            if pathlib.Path(f"/proc/{process}/comm").read_text().strip() == "tamo-engine":
                found.append(process)
        except OSError:
            pass
    return found


class Killer(threading.Thread):
    """Kills now and then, sometimes two in a moment, so that also the one that takes over is hit."""

    def __init__(self, player, chance, home):
        super().__init__(daemon=True)
        self.player, self.chance, self.killed, self.over = player, chance, 0, False
        self.project = home / f"Tamo/Projects/{JOB}"

    def measuring(self):
        """Whether the bid is between its first marked copy and its last walls but a few."""
        if not (self.project / "Plans/Set-Marked.pdf").exists():
            return False
        feet = (self.project / "Rooms/Lobby.rfs").read_text().split()[-2]
        return int(feet) < 40 + FEET * (WALLS - 5)

    def run(self):
        while not self.over:
            try:
                go = self.measuring()
            except (OSError, IndexError, ValueError):  # just being replaced
                go = False
            if not go:
                time.sleep(0.001)
                continue
            time.sleep(self.chance.choice((0.001, 0.004, 0.01, 0.03)))
            for worker in workers(self.player):
                try:
                    os.kill(worker, signal.SIGKILL)
                    self.killed += 1
                except ProcessLookupError:
                    pass
            time.sleep(self.chance.uniform(0.01, 0.06))


def play(options, home, chance):
    """(what was wrong, or "", and how many were killed)"""
    shutil.rmtree(home, ignore_errors=True)
    home.mkdir(parents=True)
    shutil.copy(ROOT / "tests/scenarios/plans/three-sheets.pdf", home.parent / "three-sheets.pdf")
    program = home.parent / "program"
    shutil.rmtree(program, ignore_errors=True)
    program.mkdir()
    for name in ("Blank.pdf", "About.pdf"):
        shutil.copy(ROOT / "data" / name, program / name)
    script = home.parent / "bid.scenario"
    script.write_text(scenario())
    command = [options.player, "--program", str(program), "--home", str(home), "--clock", "2026-01-15"]
    command += ["--windows"] if options.windows else []
    played = subprocess.Popen(command + [str(script)], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    killer = Killer(played.pid, chance, home) if chance else None
    if killer:
        killer.start()
    try:
        said = played.communicate(timeout=PATIENCE)[0]
    except subprocess.TimeoutExpired:
        played.kill()
        said = "it hung"
    killed = 0
    if killer:
        killer.over = True
        killer.join()
        killed = killer.killed
    return ("" if played.returncode == 0 else said[:1500] or "it failed"), killed


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("player")
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--rounds", type=int, default=12)
    parser.add_argument("--seconds", type=float, default=60)
    parser.add_argument("--windows", action="store_true")
    options = parser.parse_args()
    home = options.folder.resolve() / "home"
    end = time.monotonic() + options.seconds
    killed = rounds = 0
    for seed in range(options.rounds + 1):
        wrong, count = play(options, home, random.Random(seed) if seed else None)
        if wrong:
            print(f"round {seed}, {count} killed:\n{wrong}")
            return 1
        killed += count
        rounds += 1
        if time.monotonic() > end:
            break
    print(f"{rounds} rounds, {killed} processes killed, nothing lost")
    return 0 if killed >= 2 * (rounds - 1) and rounds > 1 else 1


if __name__ == "__main__":
    sys.exit(main())
