"""The words of made-up room finish schedules."""

SIDES = ["north", "east", "south", "west"]
NAMES = ["LOBBY", "OPEN OFFICE", "CORRIDOR", "MEN", "WOMEN", "STAIR 1", "JANITOR", "CAFÉ & LOUNGE",
         "CONFERENCE ROOM", "ELECTRICAL", "MDF/IDF", "WORK ROOM", "EXAM 2", "CHECK-IN/CHECK-OUT",
         "WAITING AREA & CHECK-IN DESK", "RESOURCE, SMALL GROUP", "DR. OFFICE", "TOILET - STAFF"]
FLOORS = ["CPT-1", "CPT-2", "VCT-1", "LVT-2", "CT-1", "SEALED CONC", "CONC", "VCT-2/VCT-3", "TZ-1",
          "WD-1 / RUB-1"]
BASES = ["RB-1", "RB-2", "CT-2", "WB-1", "VB 1", "NONE"]
WALLS = ["P-1", "P-2", "P-1", "P-1/P-2", "CT-3", "WC-1", "GL-1", "P1,P2", "SEE ELEV", "FRP-1", "EXIST"]
CEILINGS = ["ACT-1", "ACT-2", "GYP BD / P-3", "OPEN", "EXPOSED / P-4", "EXIST"]
HEIGHTS = ["9'-0\"", "8'-6\"", "10'-0\"", "-", "24'-0\"", "VARIES"]
REMARKS = ["", "", "", "SEE PLAN", "NOTES 1, 3", "MATCH EXIST.", "TILE TO 6'-0\" AFF",
           "CORNER GUARDS AT ALL OUTSIDE CORNERS", "PROVIDE CHAIR RAIL @ 34\" AFF",
           "SEE INTERIOR ELEVATIONS, A-501", "FULL HT. TILE AT WET WALL"]
GROUPS = ["FIRST FLOOR", "SECOND FLOOR", "BASEMENT", "LEVEL 2", "WEST WING"]

# For each role its heads in one level, and in two.
HEAD_FORMS = {
    "number": {1: [["NO."], ["RM NO."], ["ROOM #"], ["ROOM NO."], ["RM"], ["NUMBER"], ["RM. NO."]],
               2: [["ROOM", "NO."], ["NO."], ["ROOM", "NUMBER"], ["RM NO"], ["SPACE", "NO."]]},
    "name": {1: [["ROOM NAME"], ["NAME"], ["SPACE NAME"], ["ROOM DESCRIPTION"]],
             2: [["ROOM NAME"]]},
    "floor": {1: [["FLOOR"], ["FLR"], ["FLOOR FIN."], ["FLOOR FINISH"], ["FLOORING"], ["FLR. FIN."],
                  ["FLOOR MAT'L"]]},
    "base": {1: [["BASE"], ["BASE MATL"], ["WALL BASE"], ["BASE FIN."]]},
    "walls": {1: [["WALLS"], ["WALL FINISH"], ["WALL"]]},
    "ceiling": {1: [["CEILING"], ["CLG"], ["CEIL. MAT'L"], ["CLG. FIN."], ["CEILING FINISH"]]},
    "height": {1: [["CLG HT"], ["CEILING HGT"], ["CLG. HEIGHT"], ["CEILING HEIGHT"], ["CLG HT."]]},
    "remarks": {1: [["REMARKS"], ["NOTES"], ["COMMENTS"], ["REMARKS / NOTES"]]},
}
