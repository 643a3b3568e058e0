#!/usr/bin/env python3
"""Draws the PDFs that come with Tamo: the blank page, the practice plan and the sample bid's plan.

    scripts/make_plans.py [ROOT]

ROOT is the repository's folder (default: the one this script lies in). Only the standard library
is used and the output is the same every time, so the files in the repository can be compared with
a fresh run. Beside the plans it writes what the tests hold them against: walls with their end
points on the paper and their true lengths.
"""

import json
import pathlib
import sys

from finish_sheet import TITLE, finish_sheet
from floor_plans import ABOUT, LARKSPUR, POINTS_PER_FOOT, WALL
from pdf_sheet import Sheet

SAMPLE_PLAN = "data/Sample/Tamo/Projects/12-2611001/Plans/Larkspur First Floor-Marked.pdf"


class Drawing:
    """One floor plan on one sheet; (left, top) is the building's inside north-west corner."""

    def __init__(self, plan, sheet, left, top):
        self.plan, self.sheet, self.left, self.top = plan, sheet, left, top

    def x(self, feet):
        return self.left + feet * POINTS_PER_FOOT

    def y(self, feet):
        return self.top + feet * POINTS_PER_FOOT

    def draw(self):
        s, f, t = self.sheet, POINTS_PER_FOOT, WALL
        s.pen(1.2)
        s.box(self.x(-t), self.y(-t), (self.plan.width + 2 * t) * f,
              (self.plan.depth + 2 * t) * f, fill=0.78)
        s.pen(0.8)
        for room in self.plan.rooms:
            s.box(self.x(room.x), self.y(room.y), room.width * f, room.depth * f, fill=1)
        for window in self.plan.windows:
            self.window(window)
        for door in self.plan.doors:
            self.door(door)
        for room in self.plan.rooms:
            self.label(room)

    def opening(self, item):
        """x, y, width, depth in points of the piece of wall that a door or window takes."""
        f, t = POINTS_PER_FOOT, WALL
        if item.kind == "H":
            return self.x(item.x), self.y(item.y), item.width * f, t * f
        return self.x(item.x), self.y(item.y), t * f, item.width * f

    def window(self, window):
        s = self.sheet
        x, y, w, d = self.opening(window)
        s.pen(0.6)
        s.box(x, y, w, d, fill=1)
        if window.kind == "H":
            s.line(x, y + d / 2, x + w, y + d / 2)
        else:
            s.line(x + w / 2, y, x + w / 2, y + d)

    def door(self, door):
        s = self.sheet
        x, y, w, d = self.opening(door)
        s.fill(x, y, w, d, 1)
        s.pen(0.8)
        if door.kind == "H":
            s.line(x, y, x, y + d)
            s.line(x + w, y, x + w, y + d)
            face = y if door.swing < 0 else y + d
            leaves = [(x, 1, w)] if door.width < 5 else [(x, 1, w / 2), (x + w, -1, w / 2)]
            for hinge, way, leaf in leaves:
                tip = face + door.swing * leaf
                s.line(hinge, face, hinge, tip)
                s.quarter(hinge, face, hinge, tip, hinge + way * leaf, face)
        else:
            s.line(x, y, x + w, y)
            s.line(x, y + d, x + w, y + d)
            face = x if door.swing < 0 else x + w
            tip = face + door.swing * d
            s.line(face, y, tip, y)
            s.quarter(face, y, tip, y, face, y + d)

    def label(self, room):
        s = self.sheet
        middle = self.x(room.x + room.width / 2 + room.shift)
        line = self.y(room.y + room.depth / 2)
        small = room.width < 6
        s.text(middle, line - 4, 6.5 if small else 9, room.name.upper(), bold=True, centre=True)
        s.text(middle, line + 7, 6 if small else 7.5,
               f"{feet_text(room.width)} x {feet_text(room.depth)}", centre=True)
        s.text(middle, line + 17, 6 if small else 7.5,
               f"CLG {feet_text(room.height)}", centre=True)

    def chain_across(self, stops, at):
        """A dimension chain above or below the building, stops in feet, `at` in points."""
        s = self.sheet
        s.pen(0.5)
        s.line(self.x(stops[0]), at, self.x(stops[-1]), at)
        for stop in stops:
            s.line(self.x(stop) - 3, at + 3, self.x(stop) + 3, at - 3)
            s.line(self.x(stop), at - 6, self.x(stop), at + 6)
        for a, b in zip(stops, stops[1:]):
            if b - a > WALL:
                s.text(self.x((a + b) / 2), at - 3, 7, feet_text(b - a), centre=True)

    def chain_down(self, stops, at):
        s = self.sheet
        s.pen(0.5)
        s.line(at, self.y(stops[0]), at, self.y(stops[-1]))
        for stop in stops:
            s.line(at - 3, self.y(stop) + 3, at + 3, self.y(stop) - 3)
            s.line(at - 6, self.y(stop), at + 6, self.y(stop))
        for a, b in zip(stops, stops[1:]):
            if b - a > WALL:
                s.text(at - 3, self.y((a + b) / 2), 7, feet_text(b - a), centre=True,
                       upright=False)

    def scale_bar(self, x, y, feet=20):
        s, f = self.sheet, POINTS_PER_FOOT
        s.pen(0.8)
        for start in range(0, feet, 5):
            s.box(x + start * f, y, 5 * f, 6, fill=0 if start % 10 == 0 else 1)
        for mark in range(0, feet + 1, 5):
            s.text(x + mark * f, y + 17, 7.5, f"{mark}'", centre=True)
        s.text(x, y - 6, 8, 'SCALE BAR   1/4" = 1\'-0"', bold=True)

    def north(self, x, y):
        s = self.sheet
        s.pen(1)
        s.line(x, y, x, y - 34)
        s.line(x, y - 34, x - 6, y - 22)
        s.line(x, y - 34, x + 6, y - 22)
        s.text(x, y - 38, 10, "N", bold=True, centre=True)

    def dimensions(self):
        """Every wall of every room: where it lies on the paper and how long it really is."""
        found = []
        for room in self.plan.rooms:
            for side, length, x1, y1, x2, y2 in room.walls():
                found.append({"wall": f"{room.name} {side}", "page": 1,
                              "from": [self.x(x1), self.y(y1)], "to": [self.x(x2), self.y(y2)],
                              "feet": length})
        return found


def feet_text(feet):
    whole = int(feet)
    return f"{whole}'-{'6' if feet > whole else '0'}\""


def frame(sheet, column):
    sheet.pen(1.5)
    sheet.box(24, 24, sheet.width - 48, sheet.height - 48)
    sheet.pen(0.8)
    sheet.line(sheet.width - 24 - column, 24, sheet.width - 24 - column, sheet.height - 24)


def column_text(sheet, column, rows):
    """The title block: rows of (y, size, bold, words) in the column at the right."""
    for y, size, bold, words in rows:
        sheet.text(sheet.width - 24 - column + 10, y, size, words, bold=bold)


def about():
    sheet = Sheet(1224, 792, "Tamo practice plan")
    drawing = Drawing(ABOUT, sheet, 144, 180)
    frame(sheet, 270)
    drawing.draw()
    drawing.chain_across([0, 20, 20.5, 36], drawing.y(-WALL) - 22)
    drawing.chain_across([0, 36], drawing.y(-WALL) - 46)
    drawing.chain_across([0, 10, 10.5, 20, 20.5, 28.5, 29, 36], drawing.y(24.5) + 30)
    drawing.chain_down([0, 14, 14.5, 24], drawing.x(-WALL) - 22)
    drawing.chain_down([0, 24], drawing.x(-WALL) - 46)
    drawing.scale_bar(144, 712)
    drawing.north(800, 730)
    lines = [
        (70, 20, True, "PRACTICE PLAN"), (92, 10, False, "A small studio, drawn to scale"),
        (128, 11, True, "Measure your first wall"),
        (146, 9, False, "1. Choose Scale, then 1/4\" (the 1/4\" = 1' of"),
        (158, 9, False, "    this sheet)."),
        (174, 9, False, "2. Press Measure."),
        (190, 9, False, "3. Draw from the inside north-west corner of"),
        (202, 9, False, "    the Studio to its north-east corner."),
        (218, 9, False, "4. The distance must read 20.0."),
        (242, 9, False, "All dimensions run between inside faces of"),
        (254, 9, False, "walls. Walls are 6 inches thick."),
        (290, 11, True, "Try these too"),
        (308, 9, False, "Studio, west wall              14.0"),
        (322, 9, False, "Office A, south wall          10.0"),
        (336, 9, False, "Office B, south wall            9.5"),
        (350, 9, False, "Kitchen, north wall            15.5"),
        (364, 9, False, "Hall, west wall                     4.0"),
        (378, 9, False, "Whole building, inside       36.0 by 24.0"),
        (414, 9, False, "Seven rooms and seven doors to count."),
        (690, 10, True, "SHEET A1"), (706, 9, False, "FLOOR PLAN"),
        (722, 9, False, "SCALE 1/4\" = 1'-0\""), (738, 9, False, "SHEET SIZE 17 x 11 INCHES"),
    ]
    column_text(sheet, 270, lines)
    return sheet, drawing


def larkspur():
    sheet = Sheet(1728, 1296, "Larkspur Learning Center, first floor")
    drawing = Drawing(LARKSPUR, sheet, 126, 306)
    frame(sheet, 210)
    drawing.draw()
    drawing.chain_across([0, 12, 12.5, 24.5, 25, 36, 36.5, 56.5, 57, 72],
                         drawing.y(-WALL) - 24)
    drawing.chain_across([0, 72], drawing.y(-WALL) - 50)
    drawing.chain_across([0, 18, 18.5, 29.5, 30, 39, 39.5, 44, 44.5, 51.5, 52, 72],
                         drawing.y(38) + 72)
    drawing.chain_down([0, 14, 14.5, 20.5, 21, 37.5], drawing.x(-WALL) - 24)
    drawing.chain_down([0, 37.5], drawing.x(-WALL) - 50)
    drawing.chain_down([21, 31, 31.5, 37.5], drawing.x(-WALL) - 37)
    drawing.scale_bar(126, 1170)
    drawing.north(700, 1190)
    lines = [
        (70, 15, True, "LARKSPUR"), (90, 15, True, "LEARNING CENTER"),
        (112, 9, False, "Interior finishes, one story"),
        (160, 10, True, "GENERAL NOTES"),
        (178, 8, False, "1. Dimensions run between inside faces."),
        (192, 8, False, "2. Partitions are 6 inches, 10'-0\" high,"),
        (204, 8, False, "    gypsum board on 3-5/8 inch studs."),
        (218, 8, False, "3. Sound batt in the four walls between"),
        (230, 8, False, "    Offices 102 to 104, Meeting 105 and"),
        (242, 8, False, "    Break Room 106."),
        (256, 8, False, "4. Tile in toilets to 4'-0\", epoxy paint"),
        (268, 8, False, "    above it to the ceiling."),
        (282, 8, False, "5. Single doors 3'-0\", at Meeting 105,"),
        (294, 8, False, "    Work Room 107 and Class 113 3'-6\";"),
        (306, 8, False, "    pairs 6'-0\"."),
        (1150, 10, True, "SHEET A1.1"), (1168, 9, False, "FIRST FLOOR PLAN"),
        (1186, 9, False, "SCALE 1/4\" = 1'-0\""), (1204, 9, False, "SHEET SIZE 24 x 18 INCHES"),
        (1222, 9, False, "PROJECT 12-2611001"),
    ]
    column_text(sheet, 210, lines)
    return sheet, drawing


def write_dimensions(path, name, sheet, drawing):
    path.parent.mkdir(parents=True, exist_ok=True)
    walls = ",\n    ".join(json.dumps(wall) for wall in drawing.dimensions())
    path.write_text(
        "{\n"
        f'  "plan": {json.dumps(name)},\n'
        '  "units": "points (1/72 inch) from the top left corner of the page; lengths in feet",\n'
        '  "scale1": "1/4", "scale2": "1",\n'
        f'  "page_size": [{sheet.width}, {sheet.height}],\n'
        f'  "walls": [\n    {walls}\n  ]\n'
        "}\n", encoding="ascii")


def main():
    here = pathlib.Path(__file__).resolve().parent.parent
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else here
    data = root / "data"
    tests = root / "tests" / "plans" / "data"
    data.mkdir(parents=True, exist_ok=True)
    Sheet(612, 792, "Blank page").write(data / "Blank.pdf")
    sheet, drawing = about()
    sheet.write(data / "About.pdf")
    write_dimensions(tests / "About-dimensions.json", "About.pdf", sheet, drawing)
    sheet, drawing = larkspur()
    target = root / SAMPLE_PLAN
    target.parent.mkdir(parents=True, exist_ok=True)
    sheet.write(target)
    write_dimensions(tests / "Larkspur-dimensions.json", target.name, sheet, drawing)
    finish_sheet().write(target.with_name(TITLE + ".pdf"))


if __name__ == "__main__":
    main()
