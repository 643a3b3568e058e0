"""The priced library of the sample bid: 26 building systems and their materials.

A material is (name, order unit, price, ratio, direction, labor ratio, direction, waste, wage).
"upo" is takeoff units per order unit, "opu" order units per takeoff unit, "upm" takeoff units per
manhour, "mpu" manhours per takeoff unit. A system has either a price or materials.
"""

CARPENTER, TAPER, PAINTER = "52.50", "49.75", "47.25"
CEILING, FLOORING, TILE = "51.00", "46.00", "50.75"

STUD = ("Stud 3-5-8", "FT", ".74", "1.18", "upo", "48", "upm", "5", CARPENTER)
TRACK = ("Track 3-5-8", "FT", ".71", "4", "upo", "240", "upm", "5", CARPENTER)
SCREWS = ("Drywall Screws", "BOX", "31.50", "1100", "upo", "2500", "upm", "0", CARPENTER)
COMPOUND = ("Joint Compound", "PAIL", "18.90", "420", "upo", "75", "upm", "5", TAPER)
TAPE = ("Joint Tape", "ROLL", "5.25", "800", "upo", "600", "upm", "5", TAPER)


def board(covers, rate):
    return ("Gypsum Board 5-8", "SHT", "14.60", covers, "upo", rate, "upm", "10", CARPENTER)


# name: (unit, price, line colour, notes, materials)
SYSTEMS = {
    "Partition 3-5-8": ("SF", "", "255000000",
                        ["One layer of board each side, studs at 16 inches.",
                         "Ten feet high, braced to structure above."],
                        [STUD, TRACK, board("16", "40"), SCREWS, COMPOUND, TAPE]),
    "Partition Sound": ("SF", "", "185000000",
                        ["As Partition 3-5-8 with sound batt in the cavity."],
                        [STUD, TRACK,
                         ("Sound Batt 3-1-2", "BAG", "72.40", "88", "upo", "140", "upm", "3",
                          CARPENTER),
                         board("16", "38"), SCREWS, COMPOUND, TAPE]),
    "Furring Exterior": ("SF", "", "255155000", ["Hat channel and one layer of board."],
                         [("Hat Channel 7-8", "FT", ".69", ".8", "opu", "70", "upm", "5",
                           CARPENTER),
                          board("32", "80"), SCREWS, COMPOUND, TAPE]),
    "GWB Ceiling": ("SF", "", "139069013", ["Suspended drywall grid and one layer of board."],
                    [("Drywall Main Tee", "PC", "11.20", "48", "upo", "60", "upm", "5", CEILING),
                     ("Drywall Cross Tee", "PC", "3.95", "8", "upo", "90", "upm", "5", CEILING),
                     board("32", "55"), SCREWS, COMPOUND]),
    "ACT 2x2 Ceiling": ("SF", "", "000000255", ["Lay-in tile, 15-16 inch grid."],
                        [("Main Tee 12ft", "PC", "9.85", "48", "upo", "120", "upm", "3", CEILING),
                         ("Cross Tee 4ft", "PC", "3.40", "8", "upo", "160", "upm", "3", CEILING),
                         ("Cross Tee 2ft", "PC", "1.90", "8", "upo", "180", "upm", "3", CEILING),
                         ("Wall Angle 12ft", "PC", "6.15", ".025", "opu", "400", "upm", "5",
                          CEILING),
                         ("Ceiling Tile 2x2", "CTN", "88.00", "64", "upo", "110", "upm", "5",
                          CEILING)]),
    "Wall Paint": ("SF", "", "000255000", ["One coat of primer, two of finish."],
                   [("Primer", "GAL", "19.50", "350", "upo", "300", "upm", "5", PAINTER),
                    ("Latex Eggshell", "GAL", "34.75", "175", "upo", "170", "upm", "5",
                     PAINTER)]),
    "Epoxy Wall Paint": ("SF", "", "000150000", ["Water based epoxy above the tile."],
                         [("Primer", "GAL", "19.50", "350", "upo", "300", "upm", "5", PAINTER),
                          ("Epoxy Finish", "GAL", "62.00", "150", "upo", "120", "upm", "8",
                           PAINTER)]),
    "Ceiling Paint": ("SF", "", "200255200", ["On gypsum board ceilings."],
                      [("Primer", "GAL", "19.50", "350", "upo", "250", "upm", "5", PAINTER),
                       ("Ceiling Flat", "GAL", "26.40", "320", "upo", "220", "upm", "5",
                        PAINTER)]),
    "Frame Paint": ("EA", "", "000150150", ["Hollow metal frames, two coats."],
                    [("Alkyd Semi-Gloss", "GAL", "41.00", "10", "upo", ".9", "mpu", "5",
                      PAINTER)]),
    "Carpet Tile": ("SF", "", "125000125", ["24 inch modular, quarter turn."],
                    [("Carpet Tile 24in", "CTN", "214.00", "64", "upo", "95", "upm", "5",
                      FLOORING),
                     ("Pressure Adhesive", "PAIL", "118.00", "900", "upo", "700", "upm", "0",
                      FLOORING)]),
    "LVT Plank": ("SF", "", "240150255", ["Glue down plank, 20 mil wear layer."],
                  [("LVT Plank 7x48", "CTN", "108.50", "35", "upo", "70", "upm", "7", FLOORING),
                   ("LVT Adhesive", "PAIL", "142.00", "700", "upo", "600", "upm", "0",
                    FLOORING)]),
    "Floor Tile": ("SF", "", "255255000", ["Porcelain, thin set."],
                   [("Porcelain 12x24", "CTN", "61.20", "15.5", "upo", "11", "upm", "8", TILE),
                    ("Thinset", "BAG", "24.80", "75", "upo", "90", "upm", "5", TILE),
                    ("Grout", "BAG", "21.60", "160", "upo", "85", "upm", "5", TILE)]),
    "Wall Tile": ("SF", "", "255255000", ["Glazed wall tile to four feet."],
                  [("Glazed Tile 4x12", "CTN", "48.75", "11", "upo", "8", "upm", "8", TILE),
                   ("Thinset", "BAG", "24.80", "90", "upo", "80", "upm", "5", TILE),
                   ("Grout", "BAG", "21.60", "140", "upo", "75", "upm", "5", TILE)]),
    "Tile Base": ("LF", "", "255255000", ["Bullnose base to match the floor."],
                  [("Bullnose 6x12", "PC", "5.40", "1", "upo", "9", "upm", "8", TILE),
                   ("Thinset", "BAG", "24.80", "180", "upo", "120", "upm", "5", TILE)]),
    "Rubber Base 4in": ("LF", "", "000000175", ["Coiled base, job formed corners."],
                        [("Rubber Base Coil", "COIL", "112.00", "120", "upo", "42", "upm", "5",
                          FLOORING),
                         ("Base Adhesive", "TUBE", "6.80", "60", "upo", "300", "upm", "0",
                          FLOORING)]),
    "Sealed Concrete": ("SF", "", "150200255", ["Two coats of penetrating sealer."],
                        [("Concrete Sealer", "GAL", "38.50", "250", "upo", "180", "upm", "5",
                          PAINTER)]),
    "Door Single": ("EA", "", "255000000", ["Hollow metal frame, wood door, lever lock."],
                    [("HM Frame 3070", "PC", "212.00", "1", "upo", "1.5", "mpu", "0", CARPENTER),
                     ("Wood Door 3070", "PC", "318.00", "1", "upo", "1.25", "mpu", "0",
                      CARPENTER),
                     ("Hardware Set", "SET", "286.00", "1", "upo", "1.5", "mpu", "0",
                      CARPENTER)]),
    "Door Pair": ("EA", "", "255000000", ["Frame 6070, two doors, panic hardware."],
                  [("HM Frame 6070", "PC", "295.00", "1", "upo", "2.5", "mpu", "0", CARPENTER),
                   ("Wood Door 3070", "PC", "318.00", "2", "opu", "2.5", "mpu", "0", CARPENTER),
                   ("Panic Set", "SET", "1140.00", "1", "upo", "4", "mpu", "0", CARPENTER)]),
    "Fire Caulk": ("LF", "", "255155000", ["At the heads of rated partitions."],
                   [("Fire Sealant", "TUBE", "17.25", "22", "upo", "38", "upm", "5",
                     CARPENTER)]),
    "Window Sill": ("LF", "14.25", "000255255", ["Solid surface, installed by others' crew."],
                    []),
    "Corner Guard": ("EA", "42.50", "NoColor", ["Stainless, four feet."], []),
    "Entrance Mat": ("SF", "18.75", "139069013", ["Recessed, vinyl inserts."], []),
    "Toilet Partition": ("EA", "985.00", "NoColor", ["Floor mounted, plastic."], []),
    "Grab Bar Set": ("EA", "145.00", "NoColor", ["36 and 42 inch bars."], []),
    "Marker Board 8ft": ("EA", "420.00", "NoColor", ["With tray and rail."], []),
    "Roller Shade": ("EA", "165.00", "NoColor", ["Manual, three percent open."], []),
}

UNITS = ["SF", "LF", "EA", "SY", "LY", "CT"]

# Most recently used first, as the list stands on the screen.
FINISH_AREAS = ["WALLS", "BASE", "FLR", "CLNG", "WAINSCOT", "DOORS"]

KNOWN_ITEMS = ["Mobilization", "Dumpsters", "Final Cleaning", "Permit", "Lift Rental"]

MARKUPS = {
    "MOH": ".05", "MTX": ".06", "MMU": ".10",
    "LOH": ".12", "LTX": ".08", "LMU": ".10",
    "BLOH": ".05", "BLTX": "0", "BLMU": ".08",
    "MIOH": ".01", "MITX": "0", "MIMU": ".02",
}


def materials():
    """Every material once, in the order of first use, as the last system that uses it has it."""
    found = {}
    for _, _, _, _, blocks in SYSTEMS.values():
        for block in blocks:
            found[block[0]] = block
    return found
