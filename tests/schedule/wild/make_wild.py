#!/usr/bin/env python3
"""Makes sheets with room finish schedules as different architects draw them, each with what a person reads off it.

    make_wild.py FOLDER [COUNT [SEED]]

Writes NNN.pdf and NNN.json: `boxes` ([page, x1, y1, x2, y2] around each part, in reading order), `rows` (ten cells a
room), `refuse` (nothing can be read), `what` (how it is drawn).
"""

import json
import pathlib
import random
import sys

import contents
import pages
import tables

SIZES = [(2592, 1728), (3024, 2160), (1728, 1118), (1224, 792), (2592, 1728)]
TITLES = ["ROOM FINISH SCHEDULE", "FINISH SCHEDULE", "INTERIOR FINISH SCHEDULE", "Room Finish Schedule",
          "ROOM FINISH SCHEDULE - LEVEL 1", "FINISH SCHEDULE (CONT.)"]


class Sheet:
    def __init__(self, r):
        self.r = r
        self.faces = pages.fonts()
        self.look = tables.Look(r, self.faces)
        self.columns = contents.columns_of(r)
        self.boxes, self.pages, self.what = [], [], []
        wide, high = r.choice(SIZES)
        self.unit = r.choice([1, 1, 1, 1, 1, 1, 2])
        self.page_settings = dict(width=wide, height=high, rotate=r.choice([0, 0, 0, 0, 90, 180, 270]), unit=self.unit,
                                  crop=r.choice([(0, 0), (0, 0), (0, 0), (36, 54)]))
        count = r.choice([3, 8, 15, 22, 30, 44, 70])
        self.rows = contents.rows_of(r, self.columns, count)
        self.dittos = r.random() < 0.15
        if self.dittos:
            contents.put_dittos(r, self.columns, self.rows)
        self.refuse = r.random() < 0.04 and self.look.face.kind != "drawn"  # drawn letters can't be hidden

    def new_page(self):
        page = pages.Page(**self.page_settings)
        page.forms = self.as_form
        if self.refuse:
            page.hidden = True
            page.picture(40, 40, page.width - 40, page.height - 40)
        self.pages.append(page)
        return page

    def make(self):
        r, look = self.r, self.look
        self.as_form = [1] if r.random() < 0.12 else []
        table = tables.Table(r, look, self.columns, self.rows)
        self.fit(table)
        title = r.choice(TITLES) + ("" if look.title_inside else "")
        groups = self.groups(len(self.rows))
        page = self.new_page()
        x, y = r.choice([60, 200, 333.3]), r.choice([90, 150, 260.7])
        x = max(20, min(x, page.width - table.width - 40))
        parts = self.parts(table, page, y)
        for i, (first, last) in enumerate(parts):
            if i and (self.over_pages or x + table.width * 2 + self.apart + 20 > page.width):
                self.finish(page)
                page = self.new_page()
            elif i:
                x += table.width + self.apart
            own = {at - first: text for at, text in groups.items() if first <= at < last}
            if not look.title_inside and (i == 0 or self.over_pages) and r.random() < 0.8:
                page.text(x, y - 8, look.size * 1.5, look.head_face, title)
            box = table.draw(page, x, y, self.rows[first:last], own, title)
            self.boxes.append([len(self.pages)] + box)
            self.over(page, box)
        self.beside(page, self.boxes[-1][1:])
        self.finish(page)

    def fit(self, table):
        """A table too wide for its sheet gets a wider sheet."""
        if table.width + 90 > self.page_settings["width"]:
            self.page_settings["width"] = table.width + 200

    def groups(self, count):
        if self.dittos or self.r.random() > 0.25 or count < 8:
            return {}
        self.what.append("groups")
        return {at: self.r.choice(contents.GROUPS) for at in sorted({0, self.r.randrange(3, count), count - 2})}

    def parts(self, table, page, y):
        """The rows of each part: beside each other, or on the next page."""
        heights = [table.height_of(row) + (table.look.lead if table.look.spacer else 0) for row in self.rows]
        room = page.height - y - table.head_height - 130
        self.over_pages = self.r.random() < 0.5
        self.apart = 0 if table.look.ruling == "full" and self.r.random() < 0.2 else self.r.choice([14, 40])
        if not table.look.down:
            self.apart = 60
        most = sum(heights) + 10 * (table.look.lead + table.look.gap)
        count = max(1, int(most // room) + 1)
        if count == 1 and len(heights) >= 15 and self.r.random() < 0.2:
            count = 2
        size = -(-len(heights) // count)
        return [(i, min(i + size, len(heights))) for i in range(0, len(heights), size)]

    # --- What else stands on a sheet

    def over(self, page, box):
        r, look = self.r, self.look
        if look.across and r.random() < 0.15:
            self.what.append("cloud")
            x, y = box[0] + r.random() * (box[2] - box[0]) * 0.5, box[1] + (box[3] - box[1]) * (0.3 + r.random() * 0.3)
            for i in range(8):
                page.arc(x + i * 14, y, x + i * 14 + 14, y, 0.4)
                page.arc(x + i * 14 + 14, y + 24, x + i * 14, y + 24, 0.4)
            page.path([(box[2] + 8, y), (box[2] + 24, y), (box[2] + 16, y - 14)])
            page.text(box[2] + 13.5, y - 2, 7, self.faces["H"], "2")
        if r.random() < 0.12:
            self.what.append("slanted lines")
            for i in range(5):
                page.line(box[0] - 60 + i * 9, box[3] + 30, box[2] - 100, box[1] - 60 + i * 11, 0.25)
        if r.random() < 0.12:
            self.what.append("a line through")
            y = box[1] + (box[3] - box[1]) * 0.61
            page.line(box[0] - 80, y, box[0] + (box[2] - box[0]) * 0.3, y, 0.7)

    def beside(self, page, box):
        r, face = self.r, self.faces["H"]
        if r.random() < 0.35:
            self.key(page, box[0], box[3] + r.choice([18, 34]))
        if r.random() < 0.35 and box[2] + 330 < page.width:
            self.notes(page, box[2] + 30, box[1])
        if r.random() < 0.3 and box[0] > 150:
            for i in range(10):
                page.text(20, 60 + i * 31, 6, face, f"{100 + i}")
                page.frame(14, 50 + i * 31, 60, 70 + i * 31)

    def key(self, page, x, y):
        self.what.append("key below")
        face, r = self.faces["H"], self.r
        page.text(x, y + 10, 9, self.faces["B"], r.choice(["FINISH KEY", "FINISH LEGEND", "ABBREVIATIONS"]))
        ruled = r.random() < 0.5
        for i, text in enumerate(contents.LEGEND):
            at = y + 16 + i * 12
            if at + 14 > page.height:
                break
            page.text(x + 3, at + 9, 7, face, r.choice(["CPT", "RB", "P", "CT"]) + f"-{i + 1}")
            page.text(x + 50, at + 9, 7, face, text)
            if ruled:
                page.frame(x, at, x + 240, at + 12)
                page.line(x + 45, at, x + 45, at + 12)

    def notes(self, page, x, y):
        self.what.append("notes")
        page.text(x, y + 10, 9, self.faces["B"], "GENERAL NOTES")
        for i in range(9):
            page.text(x, y + 26 + i * 13, 7, self.faces["H"],
                      f"{i + 1}. {self.r.choice(contents.REMARKS)} AT FLOOR, BASE, WALLS AND CEILING")

    def finish(self, page):
        page.frame(10, 10, page.width - 10, page.height - 10, 1.5)
        page.text(page.width - 220, page.height - 20, 9, self.faces["B"], "A-601 FINISH SCHEDULES")

    def truth(self, name):
        look = self.look
        what = [look.ruling, look.face.name, look.way, f"size {look.size}", look.upright] + self.what
        what += [word for word in ("turned", "title_inside", "wraps", "zebra", "merges", "spacer", "dash") if getattr(look, word)]
        what += [f"{k} {v}" for k, v in self.page_settings.items() if v not in (0, 1, (0, 0))]
        return {"pdf": name + ".pdf", "boxes": self.boxes, "rows": contents.ten_cells(self.columns, self.rows),
                "refuse": self.refuse, "heads": [c.heads for c in self.columns], "what": ", ".join(map(str, what))}


def main(folder, count=100, seed=1):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    for i in range(int(count)):
        sheet = Sheet(random.Random(f"{seed}/{i}"))
        sheet.make()
        name = f"{i:03d}"
        (folder / f"{name}.pdf").write_bytes(pages.File().bytes(sheet.pages, sheet.faces.values()))
        (folder / f"{name}.json").write_text(json.dumps(sheet.truth(name), ensure_ascii=False), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:4])
