#!/usr/bin/env python3
"""Makes sheets with room finish schedules of made-up buildings, each with what a person reads off it.

    make_schedules.py FOLDER [COUNT [SEED]]

Writes NNN.pdf and NNN.txt. The text file holds a line `box PAGE X1 Y1 X2 Y2` for each part of the
table (points from the top left of the page as it is looked at), then a line `row` for each room with
its ten cells behind it, separated by tabs: number, name, floor, base, north, east, south, west,
ceiling with its height, remarks. Or a line `refuse` where nothing must be read.
"""

import pathlib
import random
import sys

from schedule_pdf import Page, width_of, write
from schedule_words import (BASES, CEILINGS, FLOORS, GROUPS, HEAD_FORMS, HEIGHTS, NAMES, REMARKS,
                            SIDES, WALLS)

TEN = ["number", "name", "floor", "base", "north", "east", "south", "west", "ceiling", "remarks"]


class Column:
    def __init__(self, role, heads, words, align="left"):
        self.role, self.heads, self.words, self.align = role, heads, words, align
        self.width = 0


class Look:
    """How one sheet is drawn: everything that varies, chosen once."""

    def __init__(self, r):
        self.ruling = r.choice(["full", "full", "full", "rects", "cells", "across", "down", "none",
                                "double", "open"])
        self.size = r.choice([6.5, 7, 7.5, 8, 9])
        self.font = r.choice(["F1", "F1", "F1", "F3"])
        self.way = r.choice(["whole", "whole", "words", "letters", "pieces", "twice", "small"])
        if self.font == "F3" and self.way in ("pieces", "small"):
            self.way = "whole"
        self.ruled = self.ruling not in ("across", "none")
        self.rows_ruled = self.ruling not in ("down", "none")
        self.spacing = 0.0
        self.pad = r.choice([3, 4, 5]) if self.ruled else r.choice([6, 8])
        self.lead = self.size * 1.2
        self.turned_heads = self.ruled and r.random() < 0.2
        self.title_inside = self.ruling in ("full", "rects", "double") and r.random() < 0.25
        self.zebra = self.ruled and r.random() < 0.2
        self.middle = self.rows_ruled and r.random() < 0.4
        self.wraps = self.rows_ruled and r.random() < 0.5
        self.groups = r.random() < 0.25
        self.ditto = r.random() < 0.25
        self.cloud = self.ruled and r.random() < 0.2
        self.strike = self.ruled and r.random() < 0.1
        self.merged_walls = self.ruled and self.ruling != "cells" and r.random() < 0.15
        self.tight = self.ruled and r.random() < 0.15
        self.blocks = r.choice([1, 1, 1, 1, 2, 3]) if not self.title_inside else 1
        self.abut = self.ruling == "full" and r.random() < 0.3


# --- What stands in it

def heads_of(r, role, level):
    return list(r.choice(HEAD_FORMS[role][level]))


def columns_of(r, look):
    level = r.choice([1, 2, 2, 3])
    top = ["FINISHES"] if level == 3 else []
    columns = [Column("number", heads_of(r, "number", min(level, 2)), None),
               Column("name", [], NAMES)]
    columns[1].heads = heads_of(r, "name", 2 if len(columns[0].heads) > 1 else 1)
    if len(columns[0].heads) > 1:
        columns[1].heads = [columns[0].heads[0], "NAME"]
    if r.random() < 0.15:
        columns.append(Column("other", ["AREA (SF)"], ["120", "85", "1,240", "310"]))
    for role, words in (("floor", FLOORS), ("base", BASES)):
        if role == "base" and r.random() < 0.05:
            continue
        columns.append(Column(role, top + heads_of(r, role, 1), words))
    columns += walls_of(r, level, top)
    if r.random() < 0.1:
        columns.append(Column("other", top + ["WAINSCOT"], ["", "", "WD-1"]))
    columns += ceiling_of(r, level, top)
    if r.random() < 0.9:
        columns.append(Column("remarks", heads_of(r, "remarks", 1), REMARKS))
    for column in columns:
        if r.random() < 0.25 and column.role not in ("name", "remarks"):
            column.align = r.choice(["centre", "right"])
    return columns


def walls_of(r, level, top):
    if r.random() < 0.12:
        return [Column("walls", top + heads_of(r, "walls", 1), WALLS)]
    order = r.choice([SIDES, SIDES, ["north", "south", "east", "west"],
                      ["east", "west", "north", "south"]])
    if level == 1:
        form = r.choice(["{} WALL", "WALL {}", "{}"])
        short = r.random() < 0.5
        return [Column(s, [form.format(s[0] if short else s).upper()], WALLS) for s in order]
    over = r.choice(["WALLS", "WALL FINISH", "WALL FINISHES", "WALL"])
    short = r.random() < 0.6
    return [Column(s, top + [over, (s[0] if short else s).upper()], WALLS) for s in order]


def ceiling_of(r, level, top):
    kind = r.random()
    if kind < 0.2:
        return [Column("ceiling", top + heads_of(r, "ceiling", 1), CEILINGS)]
    if level == 1 or kind < 0.4:
        return [Column("ceiling", top + heads_of(r, "ceiling", 1), CEILINGS),
                Column("height", top + heads_of(r, "height", 1), HEIGHTS)]
    over, low, high = r.choice([("CEILING", "MATL", "HGT"), ("CLG.", "FIN.", "HT."),
                                ("CEILING", "MATERIAL", "HEIGHT"), ("CEILINGS", "TYPE", "HT")])
    return [Column("ceiling", top + [over, low], CEILINGS),
            Column("height", top + [over, high], HEIGHTS)]


def numbers_of(r, count):
    form = r.choice(["{}", "{}", "B-{}", "{}", "1.{:02d}", "A{}"])
    at = 1 if "02d" in form else r.choice([101, 201, 1, 12])
    numbers = []
    while len(numbers) < count:
        numbers.append(form.format(at))
        if r.random() < 0.1 and len(numbers) < count:
            numbers.append(form.format(at) + r.choice("AB"))
        at += 1
    return numbers


def rows_of(r, columns, count, look):
    numbers = numbers_of(r, count)
    rows = []
    for i in range(count):
        row = []
        for column in columns:
            words = numbers[i] if column.role == "number" else r.choice(column.words)
            if column.role not in ("number", "name") and r.random() < 0.07:
                words = r.choice(["", "", "-", "N/A"])
            row.append(words)
        rows.append(row)
    if look.ditto:
        for i in range(1, count):
            for k, column in enumerate(columns):
                if column.role in ("floor", "base", "ceiling") and rows[i - 1][k] and r.random() < 0.2:
                    rows[i][k] = '"'
    return rows


def ten_cells(columns, rows):
    told, above = [], [""] * len(columns)
    for row in rows:
        above = [a if words == '"' else words for a, words in zip(above, row)]
        cells = {role: "" for role in TEN}
        for column, words in zip(columns, above):
            roles = SIDES if column.role == "walls" else [column.role]
            for role in roles:
                if role == "height":
                    cells["ceiling"] = (cells["ceiling"] + " " + words).strip()
                elif role != "other":
                    cells[role] = words
        told.append([cells[role] for role in TEN])
    return told


# --- How it is drawn

def wrapped(words, width, size, font):
    lines, line = [], ""
    for word in words.split(" "):
        longer = f"{line} {word}".strip()
        if line and width_of(longer, size, font) > width:
            lines.append(line)
            line = word
        else:
            line = longer
    return lines + [line]


class Table:
    def __init__(self, r, look, columns, rows):
        self.r, self.look, self.columns, self.rows = r, look, columns, rows
        self.head_font = "F3" if look.font == "F3" else "F2"
        self.levels = max(len(c.heads) for c in columns)
        self.measure()

    def measure(self):
        look = self.look
        for k, column in enumerate(self.columns):
            widths = [width_of(row[k], look.size, look.font) for row in self.rows]
            longest = max(widths + [10])
            own = column.heads[-1]
            if look.turned_heads and column.role not in ("number", "name", "remarks"):
                own = "MM"
            head = max(width_of(w, look.size, self.head_font)
                       for w in (own.split(" ") if self.levels > 1 and look.ruled else [own]))
            if look.wraps and column.role in ("name", "remarks"):
                single = [w for row in self.rows for w in row[k].split(" ")]
                longest = max(60, longest * 0.55,
                              *(width_of(w, look.size, look.font) for w in single))
            pad = 1.5 if look.tight else look.pad
            column.width = max(longest, head) + 2 * pad + (6 if not look.ruled else 0)
        self.width = sum(c.width for c in self.columns)
        self.head_height = self.levels * (look.size + 6)
        if look.turned_heads:
            self.head_height += 45
        elif self.levels == 1:
            self.head_height += look.lead

    def lines_of(self, row, k):
        look, column = self.look, self.columns[k]
        if not row[k]:
            return []
        if look.wraps and column.role in ("name", "remarks"):
            return wrapped(row[k], column.width - 2 * look.pad + 0.5, look.size, look.font)
        return [row[k]]

    def height_of(self, row):
        most = max(1, *(len(self.lines_of(row, k)) for k in range(len(row))))
        return most * self.look.lead + (6 if self.look.rows_ruled else 3)

    # The whole table: rows from `first` on, group titles before the rows that `groups` names.
    def draw(self, page, x, y, rows, groups):
        look, top = self.look, y
        if look.title_inside:
            self.title(page, x, y)
            y += 22
        self.heads(page, x, y)
        body = y + self.head_height
        y, stops = body, [body]
        for i, row in enumerate(rows):
            if i in groups:
                self.group(page, x, y, groups[i])
                y += look.lead + 6
                stops.append(y)
            height = self.height_of(row)
            if look.zebra and i % 2:
                page.area(x, y, x + self.width, y + height, 0.9)
            merged = self.row(page, x, y, height, row)
            self.row_rules(page, x, y, height, merged)
            y += height
            stops.append(y)
        self.rules(page, x, top, body, y, stops, groups)
        if look.cloud:
            self.cloud_over(page, x, body, y)
        return [x, top, x + self.width, y]

    def title(self, page, x, y):
        words = "ROOM FINISH SCHEDULE"
        page.text(x + self.width / 2 - width_of(words, 12, "F2") / 2, y + 15, 12, words, "F2")

    def group(self, page, x, y, words):
        look = self.look
        if look.rows_ruled:
            page.area(x, y, x + self.width, y + look.lead + 6, 0.85)
        page.text(x + look.pad, y + look.lead + 1, look.size, words, self.head_font)

    def cell_x(self, column, x, words):
        look = self.look
        free = column.width - width_of(words, look.size, look.font)
        pad = 1.5 if look.tight else look.pad
        return x + {"left": pad, "centre": free / 2, "right": free - pad}[column.align]

    def row(self, page, x, y, height, row):
        look, merged = self.look, set()
        sides = [k for k, c in enumerate(self.columns) if c.role in SIDES]
        same = len({row[k] for k in sides}) == 1 and row[sides[0]] if len(sides) == 4 else False
        together = look.merged_walls and same and sides[3] - sides[0] == 3
        for k, column in enumerate(self.columns):
            left = x + sum(c.width for c in self.columns[:k])
            lines = self.lines_of(row, k)
            if together and k in sides:
                if k == sides[0]:
                    span = sum(self.columns[s].width for s in sides)
                    at = left + span / 2 - width_of(row[k], look.size, look.font) / 2
                    page.text(at, y + look.lead + 1, look.size, row[k], look.font, look.way)
                else:
                    merged.add(k)
                continue
            free = height - len(lines) * look.lead
            base = y + look.size + (free / 2 if look.middle else (3 if look.rows_ruled else 1))
            for i, words in enumerate(lines):
                page.text(self.cell_x(column, left, words), base + i * look.lead, look.size, words,
                          look.font, look.way)
        if look.strike and height < 2 * look.lead + 6 and self.r.random() < 0.15:
            middle = y + look.size * 0.65 + (height - look.lead) / 2 * look.middle \
                + 3 * (not look.middle)
            page.line(x + 2, middle, x + self.width - 2, middle, 0.8)
        return merged

    def rule(self, page, x1, y1, x2, y2):
        if self.look.ruling == "rects":
            half = 0.35
            page.area(min(x1, x2) - half, min(y1, y2) - half, max(x1, x2) + half, max(y1, y2) + half)
        else:
            page.line(x1, y1, x2, y2)

    def row_rules(self, page, x, y, height, merged):
        """The rules of one row that depend on its cells: those between columns."""
        if not self.look.ruled:
            return
        left = x
        for k, column in enumerate(self.columns):
            if self.look.ruling == "cells":
                page.frame(left, y, left + column.width, y + height)
            elif k not in merged and (k > 0 or self.look.ruling != "open"):
                self.rule(page, left, y, left, y + height)
            left += column.width
        if self.look.ruling not in ("open", "cells"):
            self.rule(page, left, y, left, y + height)

    def rules(self, page, x, top, body, bottom, stops, groups):
        look, right = self.look, x + self.width
        if look.ruling == "none":
            page.line(x, body - 1, right, body - 1)
            return
        if look.ruling == "down":
            stops = [body, bottom]
        if look.ruling != "cells":
            for y in stops:
                self.rule(page, x, y, right, y)
        if look.ruling != "cells" or groups:
            self.rule(page, x, bottom, right, bottom)
        if look.ruled and look.ruling != "open":
            self.rule(page, x, top, x, bottom)
            self.rule(page, right, top, right, bottom)
        if look.ruling == "double":
            page.frame(x - 2, top - 2, right + 2, bottom + 2, 1.2)

    # --- Heads

    def spans(self, level):
        """Columns side by side under one head at a level: (first, last, text, is the lowest)."""
        spans, k = [], 0
        while k < len(self.columns):
            heads = self.columns[k].heads
            if level >= len(heads):
                k += 1
                continue
            last = k
            lowest = level == len(heads) - 1
            while not lowest and last + 1 < len(self.columns) and \
                    len(self.columns[last + 1].heads) > level + 1 and \
                    self.columns[last + 1].heads[:level + 1] == heads[:level + 1]:
                last += 1
            spans.append((k, last, heads[level], lowest))
            k = last + 1
        return spans

    def heads(self, page, x, y):
        look = self.look
        step = look.size + 6
        edges = [x + sum(c.width for c in self.columns[:k]) for k in range(len(self.columns) + 1)]
        for level in range(self.levels):
            for first, last, words, lowest in self.spans(level):
                top = y + level * step
                bottom = y + self.head_height if lowest else top + step
                self.head(page, edges[first], top, edges[last + 1], bottom, words,
                          self.columns[first], lowest)
                if not lowest and look.ruling not in ("none", "cells"):
                    self.rule(page, edges[first], bottom, edges[last + 1], bottom)

    def head(self, page, x1, y1, x2, y2, words, column, lowest):
        look, font = self.look, self.head_font
        if look.ruling == "cells":
            page.frame(x1, y1, x2, y2)
        elif look.ruled:
            self.rule(page, x1, y1, x1, y2)
            self.rule(page, x2, y1, x2, y2)
        if look.ruling in ("full", "rects", "double", "across", "down"):
            self.rule(page, x1, y1, x2, y1)
        if lowest and look.turned_heads and column.role not in ("number", "name", "remarks"):
            page.text((x1 + x2) / 2 + look.size * 0.35, y2 - 3, look.size, words, font, up=True)
            return
        room = x2 - x1 - 2
        lines = wrapped(words, room, look.size, font) if look.ruled and self.levels > 1 else [words]
        base = (y1 + y2) / 2 - (len(lines) - 1) * look.lead / 2 + look.size * 0.35
        if not look.ruled and lowest:
            base = y2 - 4 - (len(lines) - 1) * look.lead
        for i, line in enumerate(lines):
            at = (x1 + x2) / 2 - width_of(line, look.size, font) / 2
            if not look.ruled and lowest and column.align == "left":
                at = x1 + look.pad
            page.text(at, base + i * look.lead, look.size, line, font,
                      "letters" if look.way == "letters" else "whole")

    def cloud_over(self, page, x, top, bottom):
        left, right = x + self.width * 0.4, x + self.width + 20
        low, high = bottom - 8, max(top + 6, bottom - 60)
        at = left
        while at < right:
            page.arc(at, high, at + 14, high, 0.5)
            page.arc(at + 14, low, at, low, 0.5)
            at += 14
        edge = x + sum(c.width for c in self.columns[:-1]) + self.columns[-1].width + 12
        page.outline([(edge, bottom + 2), (edge + 16, bottom + 2), (edge + 8, bottom - 12)])
        page.text(edge + 5.8, bottom, 7, "2")


# --- What stands beside it

def door_schedule(page, x, y, r):
    heads = ["DOOR NO.", "SIZE", "FRAME", "HDWR", "REMARKS"]
    widths = [50, 90, 50, 40, 80]
    page.text(x, y - 8, 12, "DOOR SCHEDULE", "F2")
    rows = [[f"{100 + i}A", "3'-0\" X 7'-0\"", r.choice(["HM", "WD"]), str(r.randint(1, 9)), ""]
            for i in range(r.randint(5, 14))]
    plain_table(page, x, y, heads, widths, rows)


def legend(page, x, y):
    rows = [["CPT-1", "CARPET TILE, FIELD"], ["CT-1", "CERAMIC TILE 2X2"], ["P-1", "PAINT, EGGSHELL"],
            ["RB-1", "RUBBER BASE 4 IN."], ["ACT-1", "ACOUSTICAL TILE 2X4"]]
    page.text(x, y - 8, 12, "FINISH LEGEND", "F2")
    plain_table(page, x, y, ["CODE", "DESCRIPTION"], [44, 150], rows)


def plain_table(page, x, y, heads, widths, rows):
    height = 15
    for i, row in enumerate([heads] + rows):
        left = x
        for words, width in zip(row, widths):
            page.text(left + 3, y + i * height + 10, 7, words, "F1" if i else "F2")
            left += width
    right, bottom = x + sum(widths), y + height * (len(rows) + 1)
    for i in range(len(rows) + 2):
        page.line(x, y + i * height, right, y + i * height)
    for k in range(len(widths) + 1):
        page.line(x + sum(widths[:k]), y, x + sum(widths[:k]), bottom)


def notes(page, x, y):
    for i, words in enumerate(["GENERAL NOTES", "1. ALL FLOOR FINISHES SHALL BE INSTALLED OVER A LEVEL BASE.",
                               "2. PAINT WALLS AND CEILINGS OF STAIRS P-1.", "3. SEE A-501."]):
        page.text(x, y + i * 11, 8, words)


# --- Sheets

def good_sheet(r):
    look = Look(r)
    columns = columns_of(r, look)
    count = r.choice([3, 6, 12, 18, 25, 40])
    rows = rows_of(r, columns, count, look)
    table = Table(r, look, columns, rows)
    look.blocks = min(look.blocks, int(2400 // (table.width + 30)))
    turned = r.random() < 0.1 and count < 30
    if turned:
        look.blocks = 1
    page = Page(2592, 1728, r.choice([0, 0, 0, 90, 180, 270]), r.choice([0, 0, 0, 36]))
    page.frame(20, 20, 2572, 1708, 3)
    if turned:
        page.turned = (120, 100, 1500)
    boxes, at, each = [], [90.0, 110.0], -(-count // look.blocks)
    for first in range(0, count, each):
        part = rows[first:first + each]
        if first and look.ditto:
            resolve(rows, first)
        groups = {0: GROUPS[0]} if look.groups and not first else {}
        if look.groups and len(part) > 6:
            groups[len(part) // 2] = r.choice(GROUPS[1:])
        if not look.title_inside:
            page.text(at[0], at[1] - 10, 13, "ROOM FINISH SCHEDULE", "F2")
        box = table.draw(page, *at, part, groups)
        boxes.append(page.box_of(*box))
        at[0] += table.width + 30
    page.turned = None
    low = max(b[3] for b in boxes) + 60
    if not turned and low < 1400:
        for thing in r.sample([lambda: door_schedule(page, 90, low, r),
                               lambda: legend(page, 560, low), lambda: notes(page, 900, low)], 2):
            thing()
    return [page], [(1, b) for b in boxes], ten_cells(columns, rows)


def resolve(rows, index):
    """A block begins with words, not with a ditto mark."""
    for k, words in enumerate(rows[index]):
        at = index
        while words == '"':
            at -= 1
            words = rows[at][k]
        rows[index][k] = words


def bad_sheet(r):
    page = Page(1224, 792)
    kind = r.choice(["legend", "door", "notes", "dots"])
    if kind == "legend":
        legend(page, 100, 100)
    elif kind == "door":
        door_schedule(page, 100, 100, r)
    elif kind == "notes":
        notes(page, 100, 100)
    else:
        heads = ["NO.", "ROOM NAME", "CARPET", "VCT", "TILE", "PAINT", "VINYL", "ACT", "GYP"]
        rows = [[str(101 + i), r.choice(NAMES)] + [r.choice(["•", ""]) for _ in heads[2:]]
                for i in range(12)]
        page.text(100, 90, 12, "ROOM FINISH SCHEDULE", "F2")
        plain_table(page, 100, 100, heads, [40, 150] + [44] * 7, rows)
    return [page], [(1, [90, 80, 900, 500])], None


def main():
    folder = pathlib.Path(sys.argv[1])
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    folder.mkdir(parents=True, exist_ok=True)
    for index in range(count):
        r = random.Random(f"{seed}/{index}")
        pages, boxes, rows = bad_sheet(r) if index % 12 == 11 else good_sheet(r)
        write(folder / f"{index:03d}.pdf", pages)
        lines = ["box %d %.2f %.2f %.2f %.2f" % (page, *box) for page, box in boxes]
        lines += ["refuse"] if rows is None else ["\t".join(["row", *row]) for row in rows]
        (folder / f"{index:03d}.txt").write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
