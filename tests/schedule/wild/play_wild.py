#!/usr/bin/env python3
"""Plays made-up sheets through the program and holds what it reads against what a person reads.

    play_wild.py PLAYER FOLDER [--make COUNT SEED] [--show N] [--jitter] [--found] [--only NNN]

PLAYER is tamo_scenario, FOLDER what make_wild.py wrote. `--make`: writes them there first; `--show N`: so many faults of
each sheet; `--jitter`: the boxes are drawn by an unsteady hand; `--found`: without a box, where the sheet has one part.
Ends with 1 when a cell was read wrong and not marked, or a sheet to be refused was read.
"""

import argparse
import json
import pathlib
import random
import subprocess
import sys
import tempfile

import make_wild

GIVEN = pathlib.Path(__file__).resolve().parents[2] / "scenarios/plans/given/riverside-clinic-with-plans.steps"
FIELDS = ["number", "name", "floor", "base", "north", "east", "south", "west", "ceiling", "remarks"]


def steps(folder, truth, options):
    boxes, r = truth["boxes"], random.Random(truth["pdf"])
    lines = [f"use {GIVEN}", f"copy {folder / truth['pdf']} Jobs/S.pdf", "start", "menu Tamo.Settings1", "click Settings.Option2",
             "click Settings.Command1", "menu OST.OpenProject", "select Tamo.JobsList 0", "focus OST.PlanLocation",
             "enter {home}/Jobs/S.pdf"]
    for i, (page, *box) in enumerate(boxes):
        if page > 1:
            lines.append(f"plan page {page}")
        if options.jitter:
            box = [v + (r.uniform(-6, 1.5) if k < 2 else r.uniform(-1.5, 6)) for k, v in enumerate(box)]
        if not (options.found and len(boxes) == 1):
            lines.append("plan box " + " ".join(f"{v:.2f}" for v in box))
        lines.append("menu OST.AddToSchedule" if i else "menu OST.ReadSchedule")
    for what in ("messages", "Schedule.Rows", "Schedule.Unsure"):
        lines += ["print caption menu Schedule.Xit", f"print {what}"]
    return "\n".join(lines) + "\n"


def played(folder, truth, options):
    with tempfile.TemporaryDirectory() as home:
        scenario = pathlib.Path(home) / "s.scenario"
        scenario.write_text(steps(folder, truth, options))
        (pathlib.Path(home) / "h").mkdir()
        (pathlib.Path(home) / "p").mkdir()
        ran = subprocess.run([options.player, "--program", home + "/p", "--home", home + "/h", str(scenario)],
                             capture_output=True, text=True, timeout=120, check=False)
    parts = ran.stdout.split("E&xit\n")
    if len(parts) != 4:
        return ran.stdout + ran.stderr, [], set()
    rows = [line.replace("^^", "^").split("\t") for line in parts[2].replace("^I", "\t").split("\n") if line]
    unsure = {tuple(map(int, line.split())) for line in parts[3].split("\n") if line}
    return parts[1].replace("\n--", "").strip() + ran.stderr, rows, unsure


class Counts:
    cells = right = rows = whole = silent = unsure = refuse = refused = unread = 0


def hold(truth, said, rows, unsure, counts):
    """The faults of one sheet, in words."""
    if truth["refuse"]:
        counts.refuse += 1
        counts.refused += not rows
        return [] if not rows else ["read, and should not be"]
    faults = [said] if said else []
    if not rows:
        counts.unread += 1
    for i, expected in enumerate(truth["rows"]):
        found = rows[i] if i < len(rows) else None
        for k, text in enumerate(expected):
            counts.cells += 1
            if found and k < len(found) and found[k] == text:
                counts.right += 1
                continue
            marked = (i, k) in unsure
            silent = bool(rows) and not marked  # a sheet that is refused in words has no wrong cells
            counts.silent += silent
            faults.append(f"{'' if marked else 'SILENT ' if silent else ''}row {i} {FIELDS[k]}: "
                          f"{found[k] if found and k < len(found) else None!r} for {text!r}")
        counts.rows += 1
        counts.whole += bool(found) and found == expected
    if len(rows) > len(truth["rows"]):
        counts.silent += 1
        faults.insert(0, f"SILENT {len(rows)} rows for {len(truth['rows'])}")
    counts.unsure += len(unsure)
    return faults


def main():
    words = argparse.ArgumentParser()
    words.add_argument("player")
    words.add_argument("folder", type=pathlib.Path)
    words.add_argument("--make", nargs=2, metavar=("COUNT", "SEED"))
    words.add_argument("--show", type=int, default=0)
    words.add_argument("--jitter", action="store_true")
    words.add_argument("--found", action="store_true")
    words.add_argument("--only", default="")
    options = words.parse_args()
    options.player, options.folder = str(pathlib.Path(options.player).resolve()), options.folder.resolve()
    if options.make:
        make_wild.main(options.folder, *options.make)
    counts, sheets = Counts(), sorted(options.folder.glob(f"{options.only}*.json"))
    for path in sheets:
        truth = json.loads(path.read_text(encoding="utf-8"))
        faults = hold(truth, *played(options.folder, truth, options), counts)
        if faults and options.show:
            silent = sum(f.startswith("SILENT") for f in faults)
            print(f"{path.stem}: {len(faults)} faults, {silent} silent ({truth.get('what', '')})")
            print("".join(f"    {fault}\n" for fault in faults[:options.show]), end="")
    print(f"sheets                      {len(sheets)}, read {len(sheets) - counts.unread - counts.refuse}, "
          f"refused though a schedule {counts.unread}")
    print(f"cells right of all          {counts.right} of {counts.cells}")
    print(f"rows right of all           {counts.whole} of {counts.rows}")
    print(f"wrong cells not marked      {counts.silent}")
    print(f"cells marked as unsure      {counts.unsure}")
    print(f"refused of those to refuse  {counts.refused} of {counts.refuse}")
    return 1 if counts.silent or counts.refused < counts.refuse else 0


if __name__ == "__main__":
    sys.exit(main())
