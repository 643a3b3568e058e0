"""The sheet of the lesson on finish schedules: the annex of the sample bid, with its legend."""

from pdf_sheet import Sheet

TITLE = "Larkspur Annex Finish Schedule"
HEADS = [("NO.", 40), ("ROOM NAME", 118), ("FLOOR", 66), ("BASE", 54), ("N", 54), ("E", 54), ("S", 54), ("W", 54),
         ("MATL", 66), ("HGT", 46), ("REMARKS", 150)]
OVER = {4: ("WALLS", 4), 8: ("CEILING", 2)}
ROOMS = [
    ("201", "ANNEX LOBBY", "LVT-1", "RB-1", "P-1", "P-1", "P-1", "P-1", "ACT-1", "9'-0\"", ""),
    ("202", "OFFICE", "CPT-1", "RB-1", "P-1", "P-1", "P-1", "P-1", "ACT-1", "9'-0\"", ""),
    ("203", "OFFICE", "CPT-1", "RB-1", "P-1", "P-1", "P-1", "P-1", "ACT-1", "9'-0\"", ""),
    ("204", "CLASS", "CPT-1", "RB-1", "P-1", "P-1", "P-1", "P-1", "ACT-1", "10'-0\"", "MARKER BOARD NORTH"),
    ("205", "GIRLS", "CT-1", "CT-2", "P-2", "P-2", "CT-3", "CT-3", "GB-1", "8'-6\"", "TILE TO 4'-0\" A.F.F."),
    ("206", "BOYS", "CT-1", "CT-2", "P-2", "P-2", "CT-3", "CT-3", "GB-1", "8'-6\"", "TILE TO 4'-0\" A.F.F."),
    ("207", "JANITOR", "SC", "RB-1", "P-2", "P-2", "P-2", "P-2", "EXPOSED", "-", ""),
    ("208", "STORAGE", "SC", "-", "P-1", "P-1", "P-1", "P-1", "EXPOSED", "-", "SEE PLAN"),
]
LEGEND = [("ACT-1", "ACOUSTICAL TILE, 2X2"), ("CPT-1", "CARPET TILE"), ("CT-1", "FLOOR TILE"), ("CT-2", "TILE BASE"),
          ("CT-3", "WALL TILE"), ("GB-1", "GYPSUM BOARD, PAINTED"), ("LVT-1", "VINYL PLANK"), ("P-1", "LATEX PAINT"),
          ("P-2", "EPOXY PAINT"), ("RB-1", "RUBBER BASE, 4 IN."), ("SC", "SEALED CONCRETE")]
LEFT, TOP, ROW = 60, 120, 20


def edges():
    at = [LEFT]
    for _, width in HEADS:
        at.append(at[-1] + width)
    return at


def heads(sheet, at):
    middle = TOP + ROW
    for k, (word, width) in enumerate(HEADS):
        first = next((f for f, (_, count) in OVER.items() if f <= k < f + count), None)
        y = TOP + ROW * 1.5 if first is not None else TOP + ROW
        sheet.text(at[k] + width / 2, y + 3, 8, word, bold=True, centre=True)
        if k in OVER:
            over, count = OVER[k]
            sheet.text((at[k] + at[k + count]) / 2, TOP + ROW / 2 + 3, 8, over, bold=True, centre=True)
            sheet.line(at[k], middle, at[k + count], middle)


def finish_sheet():
    sheet = Sheet(1224, 792, TITLE)
    at = edges()
    bottom = TOP + ROW * (2 + len(ROOMS))
    sheet.pen(0.6)
    sheet.text(LEFT, TOP - 12, 14, "ROOM FINISH SCHEDULE - ANNEX", bold=True)
    heads(sheet, at)
    for i, room in enumerate(ROOMS):
        for k, words in enumerate(room):
            if words:
                sheet.text(at[k] + 4, TOP + ROW * (2 + i) + 13, 8, words)
    sheet.line(at[0], TOP, at[-1], TOP)
    for i in range(2, len(ROOMS) + 3):
        sheet.line(at[0], TOP + ROW * i, at[-1], TOP + ROW * i)
    for k, x in enumerate(at):
        inner = any(first < k < first + count for first, (_, count) in OVER.items())
        sheet.line(x, TOP + ROW if inner else TOP, x, bottom)
    legend(sheet, bottom + 40)
    return sheet


def legend(sheet, top):
    sheet.text(LEFT, top, 11, "FINISH LEGEND", bold=True)
    top += 8
    for i, (code, told) in enumerate([("CODE", "DESCRIPTION"), *LEGEND]):
        y = top + i * 16
        sheet.box(LEFT, y, 60, 16)
        sheet.box(LEFT + 60, y, 200, 16)
        sheet.text(LEFT + 4, y + 11, 8, code, bold=i == 0)
        sheet.text(LEFT + 64, y + 11, 8, told, bold=i == 0)
