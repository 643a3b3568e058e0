"""What stands in the schedules: heads as architects word them, rooms and finishes of schools, hospitals and offices."""

SIDES = ["north", "east", "south", "west"]
TEN = ["number", "name", "floor", "base"] + SIDES + ["ceiling", "remarks"]

NAMES = """LOBBY|VESTIBULE|CORRIDOR|CORR.|RECEPTION|WAITING|OPEN OFFICE|PRIVATE OFFICE|OFFICE 2|CONFERENCE|CONF. RM.|BREAK
ROOM|COPY / MAIL|JAN.|JAN. CLO.|ELEC.|ELEC. RM.|MECH.|MECHANICAL ROOM|TEL/DATA|I.D.F.|MEN|WOMEN|MEN'S TOILET|WOMEN'S
TOILET|UNISEX TLT.|TOILET 1|STOR.|STORAGE|STAIR A|STAIR #2|ELEVATOR LOBBY|EXAM ROOM #3|EXAM 12|NURSE STATION|SOILED
UTILITY|CLEAN UTIL.|PROCEDURE ROOM|X-RAY|MED PREP|PATIENT ROOM (TYPE A)|CLASSROOM 101|SCIENCE PREP|MEDIA CENTER|GYMNASIUM|
KITCHEN|SERVERY|DRY STOR.|BOYS' LOCKER ROOM|GIRLS|TEACHERS' WORK ROOM|PRINCIPAL|ADMIN. ASST.|MUSIC / CHORUS|STAGE|FIRE
PUMP|LEVEL 1 LOBBY|ROOF ACCESS|UNIT STORAGE|SUITE ENTRY|FLOOR CLOSET|WALL-IN COOLER|AREA OF REFUGE|BASE BLDG. CORE|NORTH
LOBBY|EAST CORRIDOR|Open Office|Café|Mothers' Room|Quiet Room 2|TRASH & RECYCLING|SHIPPING/RECEIVING|ALCOVE|MAIN ENTRY|
EXIST. CORRIDOR|COMPUTER LAB 2B|ROOM 214 ANNEX|HALL|PANTRY|CLOSET|LACTATION RM""".replace("\n", " ").split("|")

FLOORS = """CPT-1|CPT-2|CPT-1/CPT-2|VCT|VCT-1|VCT-1 & 2|LVT-1|PT-1|CT-1|PT-1/PT-2|SC|SEALED CONC.|CONC.|EXIST.|EXISTING TO
REMAIN|ETR|TZ-1|RES-1|EPX-1|WD-1|QT|QT-2|SV-1|RAF / CPT-3|F1|CPT""".replace("\n", " ").split("|")
BASES = """RB-1|RB-2|RB|VB-1|WB-1|PTB-1|CT-1|4" RUBBER|INTEGRAL|EXIST.|B1|RES. BASE|6" COVE|TB-1|WD BASE""".replace(
    "\n", " ").split("|")
WALLS = """P-1|P-2|PT-3|P-1/P-2|P1|PNT|PAINT|WC-1|VWC-2|CT-3/P-1|FRP|GL-1|EXIST.|CMU/P-4|EPX PT|P-1, WC-2|ACC-1|GWB/PT|P-3
(ACCENT)|SEE ELEV.|CT-2|WDP-1""".replace("\n", " ").split("|")
CEILINGS = """ACT-1|ACT-2|ACT|GYP. BD.|GWB|GWB/P-5|EXP.|EXPOSED|EXPOSED STRUCT.|OPEN|ACT-1/GWB|SAT-1|EXIST.|PLAS.|C1|MTL-1|
APC-3""".replace("\n", " ").split("|")
MATERIALS = "CARPET|VINYL|TILE|CONC.|GYP. BD.|CMU|WOOD|TERR.|GWB|BRICK|PLAS.".split("|")
FINISHED = "PAINT|PT-1|SEALED|EPOXY|STAIN|P-2|FACTORY|FIELD|-".split("|")
HEIGHTS = """9'-0"|8'-0"|10'-6"|12'-0"|8'-8"|9'-4 1/2"|VARIES|9' - 0"|11'-0"|SEE RCP|14'-2"|7'-10\"""".split("|")
REMARKS = ["SEE NOTE 1", "1", "1, 2", "2,5,7", "NOTE 3", "SEE INTERIOR ELEVATIONS", "COORDINATE W/ OWNER", "ALIGN W/ CEILING GRID",
           "PROVIDE CORNER GUARDS AT ALL OUTSIDE CORNERS", "TILE TO 6'-0\" A.F.F. AT WET WALLS, PAINT ABOVE",
           "REFER TO SHEET A-601 FOR FLOOR PATTERN", "ALT. #2", "EXISTING FINISHES TO REMAIN; PATCH AND REPAIR AS REQ'D",
           "PAINT EXPOSED STRUCTURE", "SEE NOTES 4 & 6", "Verify in field", "FLOOR DRAIN", "N.I.C.", "WALL PAD AT NORTH SIDE",
           "SEE A-901", "MATCH ADJ.", "101 SIM.", "(2) COATS EPOXY", "BASE AT CASEWORK ONLY"]
GROUPS = ["FIRST FLOOR", "SECOND FLOOR", "LEVEL 1", "LEVEL 2", "BASEMENT", "LOWER LEVEL", "EAST WING", "BUILDING A",
          "AREA B - CLASSROOMS", "MEZZANINE", "PHASE 1", "GROUND FLOOR - PUBLIC AREAS", "UNIT A"]
LEGEND = ["BROADLOOM CARPET, MILL A", "RUBBER BASE, 4\" COVED", "LATEX PAINT, EGGSHELL", "ACOUSTICAL TILE 2X2", "PORCELAIN TILE",
          "VINYL COMPOSITION TILE", "SEALED CONCRETE", "VINYL WALL COVERING"]

HEADS = {
    "number": ["NO.", "RM NO", "RM. NO.", "ROOM NO.", "ROOM NUMBER", "NUMBER", "RM #", "ROOM #", "NO", "#", "RM. NUM.", "Number",
               "Room No."],
    "name": ["ROOM NAME", "NAME", "ROOM", "ROOM DESCRIPTION", "SPACE", "DESCRIPTION", "RM NAME", "Room Name", "ROOM TITLE",
             "SPACE NAME"],
    "both": ["ROOM", "ROOM NO. & NAME", "ROOM NAME AND NUMBER", "ROOM NUMBER/NAME"],
    "floor": ["FLOOR", "FLR", "FLR.", "FLOOR FINISH", "FLOOR FIN.", "FLOORING", "FLOOR MATL", "FLOOR MAT'L", "Floor Finish",
              "FLOORS", "FLOOR MATERIAL"],
    "base": ["BASE", "BASE FINISH", "BASE MATL", "WALL BASE", "Base Finish", "BASE MAT'L.", "BS."],
    "walls": ["WALLS", "WALL FINISH", "WALL", "WALL MATL", "Wall Finish", "WALL FIN.", "WALL TREATMENT"],
    "ceiling": ["CEILING", "CLG", "CLG.", "CEILING FINISH", "CLG. MAT'L", "CEIL.", "CEILING TYPE", "Ceiling Finish", "CEILING MATL"],
    "height": ["CLG HT", "CLG. HGT.", "CEILING HEIGHT", "HEIGHT", "HT.", "HGT", "CEIL. HT.", "Ceiling Height", "C.H.",
               "CLG. HT. A.F.F."],
    "remarks": ["REMARKS", "NOTES", "COMMENTS", "REMARKS / NOTES", "Comments", "GENERAL REMARKS", "RMKS.", "KEYNOTES",
                "FINISH NOTES", "SEE NOTE"],
    "other": [("AREA", ["120 SF", "85 SF", "1,240 SF", "310 SF"]), ("DEPT.", ["ADMIN", "CLIN.", "SUPPORT"]),
              ("WAINSCOT", ["", "", "WD-2", "CT-4"]), ("OCC.", ["B", "A-3", "S-1"]), ("CASEWORK", ["PL-1", "", "PL-2/SS-1"]),
              ("LEVEL", ["1", "2", "LEVEL 1"]), ("AREA (SF)", ["120", "85", "1240"]), ("PHASE", ["1", "2"])],
}
UNDER_ROOM = [("NO.", "NAME"), ("NUMBER", "NAME"), ("NO", "DESCRIPTION"), ("#", "NAME")]
MATERIAL_PAIRS = [("MATL", "FIN"), ("MAT'L", "FINISH"), ("MATERIAL", "FINISH"), ("MAT.", "FIN.")]
CEILING_PARTS = [("MATL", "HGT"), ("FIN.", "HT."), ("MATERIAL", "HEIGHT"), ("TYPE", "HT"), ("FINISH", "HEIGHT"), ("MAT'L", "HGT.")]


class Column:
    def __init__(self, role, heads, words):
        self.role, self.heads, self.words = role, heads, words
        self.align = "left"
        self.width = 0.0


def head(r, role):
    return r.choice(HEADS[role])


def room_columns(r, levels):
    kind = r.random()
    if levels > 1 and kind < 0.25:
        low = r.choice(UNDER_ROOM)
        return [Column("number", ["ROOM", low[0]], None), Column("name", ["ROOM", low[1]], NAMES)]
    if kind < 0.33:
        return [Column("both", [head(r, "both")], NAMES)]
    if kind < 0.40:
        return [Column("name", [r.choice(["ROOM", "ROOM NAME", "SPACE", "LOCATION"])], NAMES)]
    number, name = Column("number", [head(r, "number")], None), Column("name", [head(r, "name")], NAMES)
    if name.heads == ["ROOM"] and number.heads[0].startswith("R"):
        name.heads = ["NAME"]
    return [name, number] if kind > 0.95 else [number, name]


def side(r, name, form):
    return form.format(name.upper(), name[0].upper(), name.capitalize())


def wall_columns(r, levels, top):
    kind = r.random()
    if kind < 0.14:
        return [Column("walls", top + [head(r, "walls")], WALLS)]
    order = r.choice([SIDES, SIDES, SIDES, ["north", "south", "east", "west"], ["west", "north", "east", "south"]])
    if levels == 1:
        form = r.choice(["{0} WALL", "{1} WALL", "WALL {1}", "WALL-{1}", "{2} Wall", "{1}. WALL", "{0}", "{1}"])
        return [Column(s, top + [side(r, s, form)], WALLS) for s in order]
    over = r.choice(["WALLS", "WALLS", "WALL FINISH", "WALL FINISHES", "WALL", "Walls"])
    if levels == 2 and not top and kind < 0.22:
        return [Column("northsouth", [over, "N/S"], WALLS), Column("eastwest", [over, "E/W"], WALLS)]
    form = r.choice(["{1}", "{1}", "{0}", "{1}."])
    if kind > 0.93:
        low = r.choice(MATERIAL_PAIRS)
        return [Column(s, top + [over, side(r, s, form), part], words)
                for s in order for part, words in zip(low, (MATERIALS, FINISHED))]
    return [Column(s, top + [over, side(r, s, form)], WALLS) for s in order]


def finish_columns(r, role, levels, top, words):
    if levels > 1 and r.random() < 0.14:
        low, over = r.choice(MATERIAL_PAIRS), "FLOOR" if role == "floor" else "BASE"
        return [Column(role, top + [over, low[0]], MATERIALS), Column(role, top + [over, low[1]], FINISHED)]
    return [Column(role, top + [head(r, role)], words)]


def ceiling_columns(r, levels, top):
    kind = r.random()
    if kind < 0.2:
        return [Column("ceiling", top + [head(r, "ceiling")], CEILINGS)]
    if levels == 1 or kind < 0.4:
        return [Column("ceiling", top + [head(r, "ceiling")], CEILINGS), Column("height", top + [head(r, "height")], HEIGHTS)]
    over = r.choice(["CEILING", "CLG.", "CEILINGS", "CLG"])
    if kind > 0.9:
        return [Column("ceiling", top + [over, "MATL"], CEILINGS), Column("ceiling", top + [over, "FIN"], FINISHED),
                Column("height", top + [over, "HGT"], HEIGHTS)]
    parts = r.choice(CEILING_PARTS)
    return [Column("ceiling", top + [over, parts[0]], CEILINGS), Column("height", top + [over, parts[1]], HEIGHTS)]


def columns_of(r):
    levels = r.choice([1, 1, 2, 2, 2, 3])
    top = [r.choice(["FINISHES", "FINISH", "ROOM FINISHES", "MATERIALS"])] if levels == 3 else []
    columns = room_columns(r, levels)
    if r.random() < 0.12:
        name, words = r.choice(HEADS["other"])
        columns.append(Column("other", [name], words))
    columns += finish_columns(r, "floor", levels, top, FLOORS)
    if r.random() < 0.94:
        columns += finish_columns(r, "base", levels, top, BASES)
    columns += wall_columns(r, levels, top)
    if r.random() < 0.08:
        columns.append(Column("other", top + ["WAINSCOT"], ["", "", "", "WD-2"]))
    columns += ceiling_columns(r, levels, top)
    if r.random() < 0.88:
        columns.append(Column("remarks", [head(r, "remarks")], REMARKS))
    for column in columns:
        if r.random() < 0.35 and column.role not in ("name", "remarks", "both"):
            column.align = r.choice(["centre", "centre", "right"])
    if r.random() < 0.2:
        for column in columns:
            column.align = "centre"
    return columns


def numbers_of(r, count):
    form = r.choice(["{}", "{}", "{}", "A{}", "B-{}", "1-{}", "{:03d}", "1.{:02d}", "E{}", "LL{:02d}", "{}.1"])
    at, made = r.choice([1, 100, 101, 201, 1001, 12]), []
    while len(made) < count:
        made.append(form.format(at))
        if r.random() < 0.15:
            made += [form.format(at) + letter for letter in "AB"]
        if r.random() < 0.04:
            made.append(f"ST-{at % 7}")
        at += 1
    return made[:count]


def rows_of(r, columns, count):
    numbers, blanks = numbers_of(r, count), r.choice([0.03, 0.08, 0.2])
    quiet = r.choice([0.2, 0.6, 0.85])
    rows = []
    for i in range(count):
        row = []
        for column in columns:
            text = numbers[i] if column.role == "number" else r.choice(column.words or [""])
            if column.role == "both":
                text = f"{numbers[i]} {text}"
            if column.role == "remarks" and r.random() < quiet:
                text = ""
            if column.role not in ("number", "name", "both") and r.random() < blanks:
                text = r.choice(["", "", "-", "--", "N/A", "NONE", "\u2014"])
            row.append(text)
        rows.append(row)
    return rows


def put_dittos(r, columns, rows):
    mark = r.choice(['"', "\u201d"])
    for i in range(1, len(rows)):
        for k, column in enumerate(columns):
            if column.role not in ("number", "name", "both", "remarks") and rows[i - 1][k] and r.random() < 0.15:
                rows[i][k] = mark


def ten_cells(columns, rows):
    """What a person reads off it."""
    told, above = [], [""] * len(columns)
    for row in rows:
        above = [a if text in ('"', "\u201d") else text for a, text in zip(above, row)]
        cells, height = dict.fromkeys(TEN, ""), ""
        for column, text in zip(columns, above):
            text = " ".join(text.split())
            if column.role == "height":
                height = text
            elif column.role == "both":
                cells["number"], _, cells["name"] = text.partition(" ")
            elif column.role != "other":
                roles = {"walls": SIDES, "northsouth": ["north", "south"], "eastwest": ["east", "west"]}
                for role in roles.get(column.role, [column.role]):
                    cells[role] = f"{cells[role]} {text}".strip()
        cells["ceiling"] = f"{cells['ceiling']} {height}".strip()
        told.append([cells[role] for role in TEN])
    return told
