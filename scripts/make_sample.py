#!/usr/bin/env python3
"""Writes the sample bid, a data folder with a priced library and one project.

    scripts/make_sample.py [ROOT]

Every quantity is taken off the floor plan in floor_plans.py wall by wall, with the rounding that
the takeoff itself does, so that whoever measures the plan finds the same figures. Only the
standard library is used and the output is the same every time. The plan beside it is drawn by
make_plans.py.
"""

import math
import pathlib
import sys

from floor_plans import LARKSPUR
from make_plans import SAMPLE_PLAN
from sample_library import (FINISH_AREAS, KNOWN_ITEMS, MARKUPS, SYSTEMS, UNITS, materials)
from sample_version import version

JOB_ID = "12-2611001"
JOB_NAME = "Larkspur Learning Center"

FLOORS = {"Lobby 100": "LVT Plank", "Vestibule 101": "Entrance Mat", "Break Room 106": "LVT Plank",
          "Men 108": "Floor Tile", "Women 109": "Floor Tile", "Hall 110": "LVT Plank",
          "Janitor 111": "Sealed Concrete", "Storage 112": "Sealed Concrete"}
TOILETS = ("Men 108", "Women 109")
GYPSUM_CEILINGS = TOILETS + ("Vestibule 101",)

INFORMATION = ["12-11-2026", "1", "Bid", "Base bid", "Interior finishes as scheduled",
               "Millwork and signs", "Orrin & Vale Architects"]
NOTES = ["Walk the building with the owner's agent before bid day.",
         "Base is measured between door openings; walls are not reduced for them."]
PLAN_NOTES = ["Sheet A1.1 carries the partition heights in its general notes.",
              "Confirm the tile height in the toilets: 4'-0\" on this sheet."]
SCALE = ["1/4", "1", '" =' + " " * 13 + "'"]

ITEMS = [("Mobilization", "1200.00"), ("Dumpsters", "650.00"), ("Final Cleaning", "400.00")]
ADJUSTMENT = "-850"


def number_text(value):
    """A quantity as the takeoff prints it: 141.5, 108, .5"""
    text = f"{value:.10f}".rstrip("0").rstrip(".")
    return text[1:] if text.startswith("0.") else text


def surface(entries):
    """Height by length, the running total rounded to a whole number at each entry."""
    total = 0
    for height, length in entries:
        total = math.floor(total + height * length + 0.5)
    return total


def whole_lengths(entries):
    total = 0
    for length in entries:
        total = math.floor(total + length + 0.5)
    return total


def room_line(system, area, quantity):
    return f"{system:<21}{area:<11}{number_text(quantity):>14} {SYSTEMS[system][0]}"


def area_line(system, quantity):
    text = number_text(quantity)
    return system + text.rjust(35 - len(system)) + " " + SYSTEMS[system][0]


def take_off_room(room):
    """The lines of one room: walls, base, floor, ceiling and the frames of its doors."""
    walls = [length for _, length, *_ in room.walls()]
    doors = LARKSPUR.openings(room)
    base = room.perimeter() - sum(doors)
    lines = []
    if room.name in TOILETS:
        lines.append(("Wall Tile", "WAINSCOT", surface([(4, w) for w in walls])))
        lines.append(("Epoxy Wall Paint", "WALLS", surface([(room.height - 4, w) for w in walls])))
        lines.append(("Tile Base", "BASE", base))
    else:
        lines.append(("Wall Paint", "WALLS", surface([(room.height, w) for w in walls])))
        lines.append(("Rubber Base 4in", "BASE", base))
    floor = surface([(room.width, room.depth)])
    lines.append((FLOORS.get(room.name, "Carpet Tile"), "FLR", floor))
    if room.name in GYPSUM_CEILINGS:
        lines.append(("GWB Ceiling", "CLNG", floor))
        lines.append(("Ceiling Paint", "CLNG", floor))
    else:
        lines.append(("ACT 2x2 Ceiling", "CLNG", floor))
    lines.append(("Frame Paint", "DOORS", len(doors)))
    return lines


def take_off_areas():
    """What belongs to no room: partitions, doors, accessories and the heads of the partitions."""
    plan = LARKSPUR
    sound = [14, 14, 14, 14]
    plain = [72, 72, 16.5, 16.5, 16.5, 16.5, 16.5, 18, 9, 7]
    singles = sum(1 for door in plan.doors if door.width < 5)
    return {
        "Partitions": [("Partition 3-5-8", surface([(10, w) for w in plain])),
                       ("Partition Sound", surface([(10, w) for w in sound])),
                       ("Furring Exterior", surface([(10, w) for w in (72, 37.5, 72, 37.5)])),
                       ("Fire Caulk", whole_lengths([72, 72]))],
        "Doors": [("Door Single", singles), ("Door Pair", len(plan.doors) - singles)],
        "Accessories": [("Toilet Partition", 4), ("Grab Bar Set", 2), ("Corner Guard", 14),
                        ("Marker Board 8ft", 3), ("Roller Shade", len(plan.windows)),
                        ("Window Sill", whole_lengths([w.width for w in plan.windows]))],
        "Entry Soffit": [("GWB Ceiling", surface([(4, 18)])),
                         ("Ceiling Paint", surface([(4, 18)]))],
    }


class Folder:
    """Writes text files with CR LF ends below one folder."""

    def __init__(self, root):
        self.root = root
        self.files = {}  # the texts that were put, by their paths

    def put(self, path, lines):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        self.files[path] = "".join(line + "\r\n" for line in lines)
        target.write_bytes(self.files[path].encode("utf-8"))

    def put_version(self, name, text):
        target = self.root / "History" / "Versions" / name
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(text.encode("utf-8"))


def system_lines(name):
    unit, price, colour, notes, blocks = SYSTEMS[name]
    lines = [name, unit, price or "0.00", colour] + notes + ["\x01", "", ""]
    for block in blocks:
        lines += list(block) + ["", "", ""]
    return lines


def write_library(folder):
    found = materials()
    order_units, wages = [], []
    for block in found.values():
        if block[1] not in order_units:
            order_units.append(block[1])
        if block[8] not in wages:
            wages.append(block[8])
    folder.put("Descriptions.tamo", SYSTEMS)
    folder.put("Units.tamo", UNITS)
    folder.put("oUnits.tamo", order_units)
    folder.put("Materials.tamo", found)
    folder.put("Wages.tamo", wages)
    folder.put("Markups.tamo", MARKUPS.values())
    folder.put("Items.tamo", [item + " " for item in KNOWN_ITEMS])
    folder.put("Areas.tamo", FINISH_AREAS)
    for name in SYSTEMS:
        folder.put(f"Systems/{name}.sys", system_lines(name))
    for name, block in found.items():
        folder.put(f"Systems/{name}.mat", block)


def write_project(folder):
    job = f"Projects/{JOB_ID}"
    used = []

    def use(lines):
        for system, *_ in lines:
            if system not in used:
                used.append(system)

    folder.put(f"{job}/Rooms/Rooms.tamo",
               [text for room in LARKSPUR.rooms for text in (room.name, "True")])
    for room in LARKSPUR.rooms:
        lines = take_off_room(room)
        use(lines)
        folder.put(f"{job}/Rooms/{room.name}.rfs",
                   [number_text(room.height)] + [room_line(*line) for line in lines])
    areas = take_off_areas()
    folder.put(f"{job}/ATOs/Areas.tamo", [text for name in areas for text in (name, "True")])
    for name, lines in areas.items():
        use(lines)
        folder.put(f"{job}/ATOs/{name}.ato", [area_line(*line) for line in lines])
    for name in used:
        folder.put(f"{job}/Systems/{name}.sys", system_lines(name))
    plan = pathlib.PurePosixPath(SAMPLE_PLAN).name
    folder.put(f"{job}/JobNFO.tamo",
               [JOB_ID, JOB_NAME] + INFORMATION
               + [rf"C:\Tamo\projects\{JOB_ID}\plans\{plan}", "1/1", "4", "0", "0", "0"]
               + SCALE + NOTES)
    folder.put(f"{job}/Locked.tamo", ["False"])
    folder.put(f"{job}/Markups.tamo", MARKUPS.values())
    folder.put(f"{job}/oItems.tamo",
               [name + price.rjust(30 - len(name)) for name, price in ITEMS])
    folder.put(f"{job}/Adjustment.tamo", [ADJUSTMENT])
    folder.put(f"{job}/Plans/PlanNotes.tamo", PLAN_NOTES)


def main():
    here = pathlib.Path(__file__).resolve().parent.parent
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else here
    folder = Folder(root / "data" / "Sample" / "Tamo")
    write_library(folder)
    folder.put("Project.num", [JOB_ID])
    folder.put("Jobs.lst", [f"{JOB_ID}   {JOB_NAME}"])
    write_project(folder)
    folder.put_version(f"{JOB_ID}/2026-11-17 140211.version", version(folder.files, JOB_ID, JOB_NAME))


if __name__ == "__main__":
    main()
