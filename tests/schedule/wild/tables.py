"""Draws one schedule: its heads, rows and ruling, in the way that one sheet's look says."""


class Look:
    """How one sheet draws: everything that varies, chosen once."""

    def __init__(self, r, faces):
        self.ruling = r.choice(["full", "full", "full", "full", "cells", "areas", "segments", "across", "none", "headline",
                                "double", "down", "thick", "open", "past"])
        self.down = self.ruling not in ("across", "none", "headline")
        self.across = self.ruling not in ("none", "headline", "down")
        self.size = r.choice([4.5, 6, 6.5, 7, 8, 9, 11])
        self.face = faces[r.choice("HHHHCNWDX")]
        self.head_face = self.face if self.face.kind in ("drawn", "wide") or self.face.name == "C" else faces[r.choice("HB")]
        self.way = r.choice(["whole", "whole", "matrix", "letters", "words", "kerned", "pieces", "twice", "outlined", "spaced"])
        self.pad = r.choice([1.5, 3, 4, 6]) * self.size / 7 if self.down else r.choice([5, 8, 12]) * self.size / 7
        self.lead = self.size * r.choice([1.1, 1.2, 1.35])
        self.gap = r.choice([2, 4, 7]) * self.size / 7
        self.upright = r.choice(["top", "middle", "middle", "bottom"])
        self.head_upright = r.choice(["middle", "middle", "bottom", "top"])
        self.turned = self.down and r.random() < 0.22
        self.turned_way = r.choice([-1, -1, 1])
        self.title_inside = self.across and self.down and r.random() < 0.3
        self.zebra = r.random() < 0.15
        self.head_fill = r.random() < 0.25
        self.grey = r.choice([0, 0, 0, 0.5, 0.8])
        self.wraps = r.random() < (0.55 if self.across else 0.25)
        self.spacer = self.across and r.random() < 0.12
        self.dash = r.choice([None] * 9 + ["3 2"])
        self.merges = self.ruling in ("full", "thick") and r.random() < 0.15


def wrapped(text, width, face, size):
    lines, line = [], ""
    for word in text.split(" "):
        longer = f"{line} {word}".strip()
        if line and face.width(longer, size) > width:
            lines.append(line)
            line = word
        else:
            line = longer
    return lines + [line]


class Table:
    def __init__(self, r, look, columns, rows):
        self.r, self.look, self.columns, self.rows = r, look, columns, rows
        self.levels = max(len(c.heads) for c in columns)
        self.head_size = look.size * r.choice([1, 1, 1, 1.15])
        for k, column in enumerate(columns):
            column.width = self.width_of(column, [row[k] for row in rows])
        self.width = sum(c.width for c in columns)
        self.tops = self.level_heights()
        self.head_height = self.tops[-1]

    def head_turned(self, column):
        return self.look.turned and column.role not in ("number", "name", "remarks", "both")

    def width_of(self, column, texts):
        look = self.look
        longest = max([look.face.width(t, look.size) for t in texts] + [look.size])
        if look.wraps and column.role in ("name", "remarks", "floor", "north") and longest > 12 * look.size:
            words = [w for t in texts for w in t.split(" ")]
            longest = max([longest * self.r.choice([0.4, 0.6])] + [look.face.width(w, look.size) for w in words])
        own = column.heads[-1]
        parts = own.split(" ") if look.down and len(own) > 6 else [own]
        head = look.size * 1.3 if self.head_turned(column) else max(
            look.head_face.width(p, self.head_size) for p in parts)
        return max(longest, head) + 2 * look.pad

    def level_heights(self):
        """Where the levels of the heads begin, and where the rows do."""
        look, tops = self.look, [0.0]
        for level in range(self.levels):
            height = self.head_size + 2.2 * look.gap
            for k, column in enumerate(self.columns):
                last = level == len(column.heads) - 1
                if last and self.head_turned(column):
                    height = max(height, look.head_face.width(column.heads[level], self.head_size) + 6)
                elif last and level == self.levels - 1:
                    lines = wrapped(column.heads[level], column.width - 2 * look.pad + 0.1, look.head_face, self.head_size)
                    height = max(height, len(lines) * self.head_size * 1.2 + 1.5 * look.gap)
            tops.append(tops[-1] + height)
        for column in self.columns:  # a head of one level over several lines
            lines = wrapped(column.heads[-1], column.width - 2 * look.pad + 0.1, look.head_face, self.head_size)
            need = len(lines) * self.head_size * 1.2 + 1.5 * look.gap
            if not self.head_turned(column):
                tops[-1] = max(tops[-1], tops[len(column.heads) - 1] + need)
        return tops

    def lines_of(self, k, text):
        column, look = self.columns[k], self.look
        if not text:
            return []
        if look.wraps and look.face.width(text, look.size) > column.width - 2 * look.pad + 0.1:
            return wrapped(text, column.width - 2 * look.pad + 0.1, look.face, look.size)
        return [text]

    def height_of(self, row):
        most = max([1] + [len(self.lines_of(k, text)) for k, text in enumerate(row)])
        return most * self.look.lead + self.look.gap

    # --- Drawing

    def draw(self, page, x, y, rows, groups, title, repeat_heads=True):
        """Rows from the top down; gives the box around its ruling (or its texts) and where the grid begins."""
        look, top = self.look, y
        if look.title_inside and title:
            size = self.head_size * 1.4
            wide = look.head_face.width(title, size)
            if wide < self.width:
                page.text(x + (self.width - wide) / 2, y + size * 1.3, size, look.head_face, title, look.way)
                y += size * 2
        grid = y
        if repeat_heads:
            if look.head_fill:
                page.area(x, y, x + self.width, y + self.head_height, 0.85)
            self.heads(page, x, y)
            y += self.head_height
        body, stops, whole, shared = y, [y], [], []
        for i, row in enumerate(rows):
            if i in groups:
                height = look.lead + look.gap
                if look.across and self.r.random() < 0.5:
                    page.area(x, y, x + self.width, y + height, 0.8)
                page.text(x + look.pad, y + look.gap / 2 + look.size * 0.9, look.size, look.head_face, groups[i], look.way)
                whole.append((y, y + height))
                y += height
                stops.append(y)
            if look.spacer and self.r.random() < 0.1:
                y += look.lead
                stops.append(y)
            height = self.height_of(row)
            if look.zebra and i % 2:
                page.area(x, y, x + self.width, y + height, 0.92)
            merged = self.shared_walls(row)
            self.row(page, x, y, height, row, merged)
            shared += [(k, y, y + height) for k in merged[1:]]
            y += height
            stops.append(y)
        self.rules(page, x, top, grid, body, y, stops, whole, shared)
        return [x, top, x + self.width, y]

    def shared_walls(self, row):
        """The columns of walls that one text in one wide cell stands for."""
        sides = [k for k, c in enumerate(self.columns) if c.role in ("north", "east", "south", "west")]
        together = len(sides) == 4 and sides[3] - sides[0] == 3
        if not self.look.merges or not together or self.r.random() < 0.6:
            return []
        for k in sides:
            row[k] = row[sides[0]] or "P-1"
        return sides

    def heads(self, page, x, y):
        left = x
        spans = {}
        for k, column in enumerate(self.columns):
            for level, text in enumerate(column.heads):
                before = self.columns[k - 1].heads if k else []
                joined = level < len(column.heads) - 1 and before[:level + 1] == column.heads[:level + 1]
                joined = joined and len(before) > level + 1
                first = spans[(k - 1, level)] if joined else k
                spans[(k, level)] = first
            left += column.width
        self.spans = spans
        for (k, level), first in spans.items():
            if spans.get((k + 1, level)) == first:
                continue  # goes on to the right
            self.head(page, x, y, first, k, level)

    def head(self, page, x, y, first, last, level):
        look, column = self.look, self.columns[last]
        left = x + sum(c.width for c in self.columns[:first])
        right = x + sum(c.width for c in self.columns[:last + 1])
        low = self.levels if level == len(column.heads) - 1 else level + 1
        top, bottom = y + self.tops[level], y + self.tops[low]
        text, size, face = column.heads[level], self.head_size, look.head_face
        way = "whole" if look.way == "twice" else look.way
        if level == len(column.heads) - 1 and self.head_turned(column):
            middle, wide = (left + right) / 2, face.width(text, size)
            if look.turned_way < 0:
                page.text(middle + size * 0.35, bottom - 3, size, face, text, way, 0, -1)
            else:
                page.text(middle - size * 0.35, bottom - 3 - wide, size, face, text, way, 0, 1)
            return
        lines = wrapped(text, right - left - 2 * look.pad + 0.1, face, size)
        height = len(lines) * size * 1.2
        room = bottom - top - height
        start = top + (room / 2 if look.head_upright == "middle" else room - look.gap / 2
                       if look.head_upright == "bottom" else look.gap / 2)
        for i, line in enumerate(lines):
            at = left + (right - left - face.width(line, size)) / 2
            if not look.down and first == last:  # without rules heads stand over where their texts begin
                at = left + look.pad if column.align == "left" else (
                    at if column.align == "centre" else right - look.pad - face.width(line, size))
            page.text(at, start + size * 0.95 + i * size * 1.2, size, face, line, way)

    def row(self, page, x, y, height, row, merged):
        look, left = self.look, x
        for k, column in enumerate(self.columns):
            width = column.width
            if k in merged:
                width = sum(self.columns[m].width for m in merged)
            lines = [] if k in merged[1:] else self.lines_of(k, row[k])
            room = height - look.gap - len(lines) * look.lead
            start = y + look.gap / 2 + {"top": 0, "middle": room / 2, "bottom": room}[look.upright]
            for i, line in enumerate(lines):
                wide = look.face.width(line, look.size)
                at = {"left": left + look.pad, "centre": left + (width - wide) / 2,
                      "right": left + width - look.pad - wide}["centre" if k in merged else column.align]
                page.text(at, start + look.size * 0.85 + i * look.lead, look.size, look.face, line, look.way)
            left += column.width

    # --- Ruling

    def rules(self, page, x, top, grid, body, bottom, stops, whole, shared):
        look, right = self.look, x + self.width
        draw = self.drawer(page)
        if look.ruling == "headline":
            draw(x, body, right, body)
            return
        if look.across:
            draw(x, top, right, top)
            for at in sorted({grid, body, *stops}):
                draw(x, at, right, at)
        elif look.down:
            draw(x, top, right, top)
            draw(x, body, right, body)
            draw(x, bottom, right, bottom)
        self.head_rules(draw, x, grid, body)
        if not look.down:
            return
        at = x
        for k in range(len(self.columns) + 1):
            outer = k in (0, len(self.columns))
            if outer and look.ruling != "open":
                draw(at, top, at, bottom)
            elif not outer:
                self.column_rule(draw, at, k, grid, body, bottom, whole, shared)
            if not outer or k == 0:
                at += self.columns[k].width if k < len(self.columns) else 0
        if look.ruling == "thick":
            page.frame(x, top, right, bottom, 2)
            page.line(x, body, right, body, 1.6)

    def column_rule(self, draw, at, k, grid, body, bottom, whole, shared):
        """Between two columns: from where their heads part down to the last row, but for titles between the rows."""
        start = grid
        for level in range(self.levels):
            if self.spans_over(k, level):
                start = grid + self.tops[level + 1]
        draw(at, start, at, body)
        gaps = sorted(whole + [(a, b) for column, a, b in shared if column == k])
        y = body
        for first, last in gaps:
            if first > y:
                draw(at, y, at, first)
            y = max(y, last)
        if y < bottom:
            draw(at, y, at, bottom)

    def spans_over(self, k, level):
        spans = getattr(self, "spans", {})
        return (k, level) in spans and spans[(k, level)] < k

    def head_rules(self, draw, x, grid, body):
        """Lines under the heads that stand over others."""
        if body <= grid:
            return
        at = x
        for k, column in enumerate(self.columns):
            for level in range(len(column.heads) - 1):
                draw(at, grid + self.tops[level + 1], at + column.width, grid + self.tops[level + 1])
            at += column.width

    def drawer(self, page):
        look = self.look

        def draw(x1, y1, x2, y2):
            along = y1 == y2
            if look.ruling == "areas":
                page.area(x1 - 0.3, y1 - 0.3, x2 + 0.3, y2 + 0.3, look.grey)
            elif look.ruling == "double":
                off = (0, 0.9) if along else (0.9, 0)
                page.line(x1 - off[0], y1 - off[1], x2 - off[0], y2 - off[1], 0.3)
                page.line(x1 + off[0], y1 + off[1], x2 + off[0], y2 + off[1], 0.3)
            elif look.ruling in ("segments", "cells"):
                self.in_pieces(page, x1, y1, x2, y2)
            elif look.ruling == "past":
                more = (4, 0) if along else (0, 4)
                page.line(x1 - more[0], y1 - more[1], x2 + more[0], y2 + more[1], 0.4, look.grey)
            else:
                page.line(x1, y1, x2, y2, self.r.choice([0.3, 0.5]), look.grey, look.dash)

        return draw

    def in_pieces(self, page, x1, y1, x2, y2):
        """As a drawing program writes it that makes each side of each cell a line of its own, slightly off."""
        steps = max(1, int(max(x2 - x1, y2 - y1) // 40))
        for i in range(steps):
            a, b = i / steps, (i + 1) / steps
            off = self.r.choice([-0.05, 0, 0.05])
            page.line(x1 + (x2 - x1) * a + off, y1 + (y2 - y1) * a + off,
                      x1 + (x2 - x1) * b + off, y1 + (y2 - y1) * b + off, 0.4, self.look.grey)
