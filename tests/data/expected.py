#!/usr/bin/env python3
"""Writes the expected report texts of the projects below this folder.

A second calculation of every report, written for reading and not for speed, that shares nothing with
the program: the texts in <project>/expected come from here, and the tests hold the program against
them. Usage: expected.py PROJECT..., each a folder with project.txt and home. The texts of the
project riverside were made by hand and are only compared: expected.py --check compares every project.
"""
import math
import os
import sys
from decimal import Decimal, ROUND_HALF_EVEN, Context


class Stops(Exception):
    """A report that can't be made; the argument lists what the message must name."""


def value(text):
    at = 0
    while at < len(text) and text[at] == " ":
        at += 1
    sign, digits, point = "", "", False
    if at < len(text) and text[at] in "+-":
        sign, at = text[at], at + 1
    while at < len(text) and (text[at] in "0123456789" or (text[at] == "." and not point)):
        point = point or text[at] == "."
        digits += text[at]
        at += 1
    if not any(c in "0123456789" for c in digits):
        return 0.0
    number = float(sign + digits)
    return number if number else 0.0


def number(x):
    if x == 0:
        return "0"
    cut = Decimal(x).normalize(Context(prec=15, rounding=ROUND_HALF_EVEN))
    text = format(cut, "f")
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    if text.startswith("0."):
        text = text[1:]
    if text.startswith("-0."):
        text = "-" + text[2:]
    return text


def rounded(x):
    return float(math.floor(x + 0.5))


def raised(x):
    return float(math.floor(x + 0.9))


def down(x):
    return float(math.floor(x))


def right(text, width):
    return " " * max(0, width - len(text)) + text


def left(text, width):
    return text + " " * max(0, width - len(text))


def cols(line, start, width):
    return line[start - 1:start - 1 + width]


def point2(x):
    text = number(x)
    while len(text) < 2:
        text = "0" + text
    return text[:-2] + "." + text[-2:]


def money(text):
    v = value(text)
    return "0.00" if v == 0 else point2(down(v * 100 + 0.005))


class Project:
    def __init__(self, folder):
        self.folder = folder

    def text(self, *parts):
        path = os.path.join(self.folder, *parts)
        if not os.path.isfile(path):  # a name finds its file whatever its case
            folder, name = os.path.split(path)
            names = sorted(os.listdir(folder)) if os.path.isdir(folder) else []
            others = [n for n in names if n.lower() == name.lower()]
            if not others:
                return None
            path = os.path.join(folder, others[0])
        raw = open(path, "rb").read()
        try:
            return raw.decode("utf-8-sig")
        except UnicodeDecodeError:
            return raw.decode("cp1252")

    def lines(self, *parts):
        text = self.text(*parts)
        if text is None:
            return None
        lines = text.replace("\r\n", "\n").replace("\r", "\n").split("\n")
        return lines[:-1] if lines[-1] == "" else lines

    def fields(self, *parts):
        lines = self.lines(*parts)
        if lines is None:
            return None
        return [piece.lstrip(" ") for line in lines for piece in line.split(",")]

    def rooms(self):
        names = (self.lines("Rooms", "Rooms.tamo") or [])[::2]
        return [(n, (self.lines("Rooms", n + ".rfs") or [])[1:]) for n in names]

    def areas(self):
        names = (self.lines("ATOs", "Areas.tamo") or [])[::2]
        return [(n, self.lines("ATOs", n + ".ato") or []) for n in names]

    def items(self):
        return self.fields("oItems.tamo") or []

    def adjustment(self):
        fields = self.fields("Adjustment.tamo")
        return fields[0] if fields else ""

    def markups(self):
        names = "MOH MTX MMU LOH LTX LMU BLOH BLTX BLMU MIOH MITX MIMU".split()
        lines = self.lines("Markups.tamo") or []
        return {n: value(lines[i]) if i < len(lines) else 0.0 for i, n in enumerate(names)}


class Shelf:
    """The system at hand: without a file its materials are none and its price stays."""

    def __init__(self, project):
        self.project, self.price, self.blocks = project, "", []

    def load(self, name):
        lines = self.project.lines("Systems", name + ".sys") if name else None
        self.blocks = []
        if lines is None:
            return
        if len(lines) > 2:
            self.price = lines[2]
        at = 4
        while at < len(lines) and lines[at] != "\x01":
            at += 1
        rows = lines[at + 3:]
        while rows:
            self.blocks.append((rows[:12] + [""] * 12)[:12])
            rows = rows[12:]


class Figures:
    def __init__(self):
        self.order = self.hours = 0.0


def order_of(block, q, figures, system):
    if block[4] == "upo":
        if value(block[3]) == 0:
            raise Stops(system, block[0])
        return q / value(block[3])
    return q * value(block[3]) if block[4] == "opu" else figures.order


def hours_of(block, q, figures, system):
    if block[6] == "upm":
        if value(block[5]) == 0:
            raise Stops(system, block[0])
        return q / value(block[5])
    return q * value(block[5]) if block[6] == "mpu" else figures.hours


def waste(block, x):
    return x + (value(block[7]) / 100) * x


def merged(project):
    rows, place = [], {}
    for sheets, found, first, is_room in ((project.rooms(), 32, 33, True),
                                          (project.areas(), 21, 22, False)):
        for _, lines in sheets:
            for line in lines:
                name = line[:20].strip(" ")
                if name in place:
                    row = rows[place[name]]
                    row[1] = number(value(row[1]) + value(cols(line, found, 15).strip(" ")))
                else:
                    behind = (47 if len(line) > 46 else 43) if is_room else 35
                    place[name] = len(rows)
                    rows.append([name, cols(line, first, 14).strip(" "),
                                 line[behind:].strip(" ")])
    return rows


def block_dollars(block, q, figures, system):
    order = order_of(block, q, figures, system)
    order = math.floor(order * 1000) / 1000
    order = raised(waste(block, order))
    figures.order = order
    price, wage = value(block[2]), value(block[8])
    material = rounded(order * price)
    if price > material:
        material = price
    figures.hours = hours_of(block, q, figures, system)
    labor = raised(figures.hours * wage)
    if wage > labor:
        labor = wage
    return material, labor


RULE = " " * 4 + "_" * 65


def recap(project, detailed):
    m, items, adj = project.markups(), project.items(), project.adjustment()
    out, total, hours = ["Recap Sheet", ""], 0.0, 0.0
    shelf, figures = Shelf(project), Figures()
    for name, quantity, units in merged(project):
        q = value(quantity)
        if q == 0:
            continue
        shelf.load(name)
        if value(shelf.price) != 0:
            amount = rounded(value(shelf.price) * q)
            out += [left("  " + name, 21) + right(quantity, 14) + " " + left(units, 6) +
                    right(shelf.price, 11) + right(number(amount) + ".00", 14), ""]
            total += amount
            continue
        labor = material = 0.0
        for block in shelf.blocks:
            md, ld = block_dollars(block, q, figures, name)
            material += md
            labor += ld
            hours += figures.hours
        lm = rounded(m["LOH"] * labor + m["LTX"] * labor + m["LMU"] * labor + m["MIOH"] * labor +
                     m["MITX"] * labor + m["MIMU"] * labor)
        mm = (m["MOH"] * material + m["MTX"] * material + m["MMU"] * material +
              m["MIOH"] * material + m["MITX"] * material + m["MIMU"] * material)
        marks, rm, rl = rounded(lm + mm), rounded(material), rounded(labor)
        row = rounded(rl + rm + marks)
        total += row
        cents = down(row / q * 100 + 0.05)
        eup = "0.00" if cents == 0 else point2(cents)
        out.append("  " + name + " " * max(0, 35 - len(name) - len(quantity)) + quantity + " " +
                   left(units, 5) + "EUP " + right(eup, 8) + right(number(row), 11) + ".00")
        if not detailed:
            for label, figure, width, sign in (("Labor     ", rl, 37, True),
                                               ("Material  ", rm, 37, True),
                                               ("Markups          ", marks, 30, False)):
                text = (" " if sign and figure >= 0 else "") + number(figure)
                out.append("     " + label + right(text, width) + ".00")
        else:
            for label, figure in (
                    ("-Raw Labor       ", rl), ("Labor Overhead   ", m["LOH"] * rl),
                    ("Labor Tax        ", m["LTX"] * rl), ("Labor Markup     ", m["LMU"] * rl),
                    ("Misc. Overhead   ", m["MIOH"] * rl), ("Misc. Tax        ", m["MITX"] * rl),
                    ("Misc. Markup     ", m["MIMU"] * rl), ("-Raw Material    ", rm),
                    ("Material Overhead", m["MOH"] * rm), ("Material Tax     ", m["MTX"] * rm),
                    ("Material Markup  ", m["MMU"] * rm), ("Misc. Overhead   ", m["MIOH"] * rm),
                    ("Misc. Tax        ", m["MITX"] * rm), ("Misc. Markup     ", m["MIMU"] * rm)):
                out.append(" " * 10 + label + right(number(down(figure)), 13) + ".00")
        out.append("")

    def total_line(label, fill):
        text = number(total)
        return label + " " * max(0, fill - len(text)) + "$ " + text + ".00"

    out += [RULE, ""]
    total = rounded(total)
    more = items or value(adj) != 0
    out.append(total_line("          Subtotal" if more else "          Total   ", 46))
    for item in items:
        price = value(item[-12:])
        mark = (m["BLOH"] + m["BLTX"] + m["BLMU"] + m["MIOH"] + m["MITX"] + m["MIMU"]) * price
        out += [" " * 13 + item, " " * 16 + "Markup" + right(number(down(mark)), 18) + ".00"]
        total = total + price
        total = total + mark
    if items:
        out.append(RULE)
    out.append("")
    if value(adj) == 0 and items:
        out.append(total_line("          Total   ", 46))
    if value(adj) != 0:
        out += [total_line(" " * 16 + "Subtotal", 40), "",
                " " * 39 + "Adjustment" + right(adj, 17) + ".00", " " * 61 + "_" * 10, ""]
        total += value(adj)
        out += [total_line(" " * 16 + "Total", 43), ""]
    return out + ["", "       This project will take " + number(raised(hours)) +
                  " manhours to complete", "       excluding unit priced items.", ""]


def quantities(project):
    return ["Quantities", ""] + [
        n + " " * max(0, 32 - len(n) - len(q)) + q + " " + u for n, q, u in merged(project)]


def bill(project):
    shelf, figures, rows, place = Shelf(project), Figures(), [], {}
    for sheets, is_room in ((project.rooms(), True), (project.areas(), False)):
        for _, lines in sheets:
            for line in lines:
                system = line[:20].strip(" ")
                shelf.load(system)
                for block in shelf.blocks:
                    new = block[0] not in place
                    if is_room:
                        q = value(cols(line, 33 if new else 37, 10))
                    else:
                        q = value(cols(line, 22 if new and block[4] == "opu" else 25, 11))
                    figures.order = waste(block, order_of(block, q, figures, system))
                    if new:
                        place[block[0]] = len(rows)
                        rows.append([block[0], number(figures.order), ""])
                    else:
                        row = rows[place[block[0]]]
                        row[1] = number(value(row[1]) + figures.order)
                    rows[place[block[0]]][2] = block[1].strip(" ")
    out = ["Bill Of Materials", ""]
    for material, quantity, unit in rows:
        order = raised(value(quantity)) or 1.0
        for text, width in ((material, 21), (number(order), 10), (unit, 10)):
            if len(text) > width:
                raise Stops(material, str(len(text)))
        out += [" " * 5 + left(material, 21) + right(number(order), 10) + "  " + left(unit, 10) +
                "_" * 12, ""]
    return out


def copy(project, office):
    m = project.markups()
    out = ["Project Manager", "Office Copy" if office else "Field Copy", ""]
    shelf, figures, hours = Shelf(project), Figures(), 0.0
    begin = " " * 5 if office else "___  "
    for sheets, pad, start, width, sub in ((project.rooms(), 21, 33, 10, 28),
                                           (project.areas(), 20, 22, 14, 26)):
        for sheet, lines in sheets:
            out.append(sheet)
            for line in lines:
                system = line[:20].strip(" ")
                shelf.load(system)
                head = len(out)
                out.append("   " + left(system, pad) + line[-28:])
                if value(shelf.price) != 0:
                    out[head] += "     Unit price item"
                    continue
                for block in shelf.blocks:
                    q = value(cols(line, start, width))
                    figures.order = waste(block, order_of(block, q, figures, system))
                    shown = point2(down(figures.order * 100))
                    text = (begin + left(block[0], 21) + right(shown, 14) + " " + block[1] +
                            "(s)" + " " * max(0, 5 - len(block[1])))
                    if office:
                        d = value(shown) * value(block[2])
                        marks = (m["MOH"] * d + m["MTX"] * d + m["MMU"] * d + m["MIOH"] * d +
                                 m["MITX"] * d + m["MIMU"] * d)
                        text += right(number(raised(d + marks)) + ".00", 13)
                    out.append(text)
                    figures.hours = hours_of(block, q, figures, system)
                    hours += figures.hours
                    text = (begin + "Labor" + right(point2(down(figures.hours * 100 + 0.5)), 30) +
                            " Manhours")
                    if office:
                        d = figures.hours * value(block[8])
                        marks = rounded(m["LOH"] * d + m["LTX"] * d + m["LMU"] * d +
                                        m["MIOH"] * d + m["MITX"] * d + m["MIMU"] * d)
                        text += right(number(rounded(d + marks)) + ".00", 14)
                    out.append(text)
                if office and shelf.blocks:
                    dollars = sum(value(t[-14:]) for t in out[head + 1:])
                    out[head] += right(money(number(dollars)), sub)
            out.append("")
    out += ["_" * 63, ""]
    if office:
        out += ["   This project will take " + number(raised(hours)) + " manhours to complete",
                "   excluding all unit priced descriptions and quantities.", ""]
    return out


def breakdown(project):
    m, rows = project.markups(), merged(project)
    f = {k: 0.0 for k in "bid tl rl lo lt lm tm rm mo mt mm tb rb bo bt bm tx xo xt xm gp np".split()}
    if rows:
        shelf, figures, rl, rm = Shelf(project), Figures(), 0.0, 0.0
        for name, quantity, _ in rows:
            if value(quantity) == 0:
                continue
            shelf.load(name)
            if value(shelf.price) != 0:
                continue
            for block in shelf.blocks:
                md, ld = block_dollars(block, value(quantity), figures, name)
                rm += md
                rl += raised(ld)
        rb = sum((value(i[-12:]) for i in project.items()), 0.0)
        rm = rounded(rm)
        f.update(rl=rl, lo=rounded(m["LOH"] * rl), lt=down(m["LTX"] * rl),
                 lm=rounded(m["LMU"] * rl), rm=rm, mo=rounded(m["MOH"] * rm),
                 mt=down(m["MTX"] * rm), mm=rounded(m["MMU"] * rm), rb=rb,
                 bo=down(m["BLOH"] * rb), bt=down(m["BLTX"] * rb), bm=down(m["BLMU"] * rb))
        f["tl"] = rl + f["lo"] + f["lt"] + f["lm"]
        f["tb"] = rb + f["bo"] + f["bt"] + f["bm"]
        f["xo"] = rounded((rl + rm + rb) * m["MIOH"])
        f["xt"] = rounded((rl + rm + rb) * m["MITX"])
        f["xm"] = rounded((f["mt"] + rl + rm + rb) * m["MIMU"])
        f["tx"] = f["xm"] + f["xo"]
        f["tm"] = rounded(rm + f["mo"] + f["mt"] + f["mm"])
        f["bid"] = rounded(f["tm"] + f["tl"] + f["tb"] + f["tx"])
        marks = f["mm"] + f["lm"] + f["bm"]
        costs = (rl + rm + rb + f["lo"] + f["mo"] + f["bo"] + f["mt"] + f["lt"] + f["bt"] +
                 f["lm"] + f["mm"] + f["bm"])
        if rl + rm + rb == 0 or costs == 0:
            raise Stops("unit-priced items alone has no breakdown")
        f["gp"] = down(marks / (rl + rm + rb) * 100)
        f["np"] = down(marks / costs * 100)
        f["bid"] += value(project.adjustment())
    bid = "Total Bid Price:" + " " * max(0, 50 - len(number(f["bid"]))) + "$ " + \
        number(f["bid"]) + ".00"
    out = ["BreakDown", "", bid, ""]

    def group(heading, *lines):
        out.append(heading)
        for label, blanks, width, key in lines:
            out.append(label + " " * blanks + right(number(f[key]), width) + ".00")
        out.append("")

    group("Labor", ("    Total Labor:", 0, 52, "tl"), ("        Raw Labor:", 24, 15, "rl"),
          ("        Labor Overhead:", 7, 12, "lo"), ("        Labor Tax:", 9, 15, "lt"),
          ("        Labor Markup:", 6, 15, "lm"))
    group("Material", ("    Total Material:", 0, 49, "tm"), ("        Raw Material:", 21, 15, "rm"),
          ("        Material Overhead:", 1, 15, "mo"), ("        Material Tax:", 6, 15, "mt"),
          ("        Material Markup:", 3, 15, "mm"))
    group("Bottom Line Items", ("    Total Bottom Line:", 0, 46, "tb"),
          ("        Raw Bottom Line:", 18, 15, "rb"),
          ("        Bottom Line Overhead:", 0, 13, "bo"),
          ("        Bottom Line Tax:", 0, 18, "bt"),
          ("        Bottom Line Markup:", 0, 15, "bm"))
    group("Miscellaneous", ("    Total Miscellaneous:", 0, 44, "tx"),
          ("        Misc. Overhead:", 0, 19, "xo"), ("        Misc. Tax:", 3, 21, "xt"),
          ("        Misc. Markup:", 0, 21, "xm"))
    return out + ["_" * 71, bid, "", "    Gross Profit:" + right(number(f["gp"]), 11) + " %",
                  "    Net Profit:" + right(number(f["np"]), 13) + " %"]


def information(project, job):
    lines = project.lines("JobNFO.tamo") or []
    lines += [""] * (10 - len(lines))
    notes = "".join(line + "\r\n" for line in lines[10:] if line)
    out = ["  Project Information", ""]
    for label, text in (("  Project ID Number:     ", job), ("  Project Name           ", lines[1]),
                        ("  BidDate:               ", lines[2]),
                        ("  Phase Of Project:      ", lines[4]),
                        ("  Addenda Received:      ", lines[3]),
                        ("  Inclusions:            ", lines[6]),
                        ("  Exclusions:            ", lines[7]),
                        ("  Architect:             ", lines[8])):
        out += [label + text, ""]
    pieces = notes.split("\r\n")
    return out + ["      Notes:             " + pieces[0]] + pieces[1:]


REPORTS = {
    "recap": lambda p, job: recap(p, False),
    "recap-detailed": lambda p, job: recap(p, True),
    "quantities": lambda p, job: quantities(p),
    "bill-of-material": lambda p, job: bill(p),
    "breakdown": lambda p, job: breakdown(p),
    "field-copy": lambda p, job: copy(p, False),
    "office-copy": lambda p, job: copy(p, True),
    "project-information": information,
}


def made(folder):
    job = open(os.path.join(folder, "project.txt")).read().strip()
    project = Project(os.path.join(folder, "home", "Tamo", "Projects", job))
    texts = {}
    for name, report in REPORTS.items():
        try:
            texts[name + ".txt"] = report(project, job)
        except Stops as stop:
            texts[name + ".failure.txt"] = list(stop.args)
    return texts


def main():
    check = "--check" in sys.argv
    different = 0
    folders = [a for a in sys.argv[1:] if a != "--check"]
    if check and not folders:
        here = os.path.dirname(os.path.abspath(__file__))
        folders = [f.path for f in os.scandir(here) if os.path.isfile(os.path.join(f, "project.txt"))]
    for folder in folders:
        expected = os.path.join(folder, "expected")
        os.makedirs(expected, exist_ok=True)
        for name, lines in made(folder).items():
            text = "".join(line + "\n" for line in lines)
            path = os.path.join(expected, name)
            if check:
                same = os.path.isfile(path) and \
                    open(path, encoding="utf-8", newline="").read().replace("\r\n", "\n") == text
                if not same:
                    print("differs:", path)
                    different += 1
            else:
                open(path, "w", encoding="utf-8", newline="").write(text)
    sys.exit(1 if different else 0)


if __name__ == "__main__":
    main()
