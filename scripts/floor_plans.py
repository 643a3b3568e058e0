"""The two floor plans that come with Tamo, as rooms and doors in feet.

A room is its inside faces: x and y of the north-west corner, width (east-west) and depth
(north-south), counted from the inside north-west corner of the building. Walls are half a foot
thick. Every number is a multiple of half a foot, so a wall measured on the plan at 1/4" = 1'
gives its length with one decimal exactly.
"""

from dataclasses import dataclass

WALL = 0.5            # feet
POINTS_PER_FOOT = 18  # 1/4 inch = 1 foot, 72 points to the inch


@dataclass(frozen=True)
class Room:
    name: str
    x: float
    y: float
    width: float
    depth: float
    height: float
    shift: float = 0  # feet to the east by which the name stands off the middle

    def walls(self):
        """(side, length, x1, y1, x2, y2) in feet, in the order an estimator walks round."""
        east, south = self.x + self.width, self.y + self.depth
        return [
            ("north", self.width, self.x, self.y, east, self.y),
            ("east", self.depth, east, self.y, east, south),
            ("south", self.width, east, south, self.x, south),
            ("west", self.depth, self.x, south, self.x, self.y),
        ]

    def perimeter(self):
        return 2 * (self.width + self.depth)


@dataclass(frozen=True)
class Door:
    """An opening in the wall whose north or west face starts at (x, y). 'H' is a wall that runs
    east-west. `swing` is +1 or -1: the side of the wall to which the leaf opens."""
    kind: str
    x: float
    y: float
    width: float
    swing: int


@dataclass(frozen=True)
class Window:
    kind: str
    x: float
    y: float
    width: float


@dataclass(frozen=True)
class Plan:
    width: float
    depth: float
    rooms: tuple
    doors: tuple
    windows: tuple

    def room(self, name):
        return next(r for r in self.rooms if r.name == name)

    def openings(self, room):
        """Widths of the door openings that break this room's base."""
        found = []
        for door in self.doors:
            if door.kind == "H":
                along = room.x <= door.x and door.x + door.width <= room.x + room.width
                touches = room.y + room.depth == door.y or room.y == door.y + WALL
            else:
                along = room.y <= door.y and door.y + door.width <= room.y + room.depth
                touches = room.x + room.width == door.x or room.x == door.x + WALL
            if along and touches:
                found.append(door.width)
        return found


LARKSPUR = Plan(
    width=72, depth=37.5,
    rooms=(
        Room("Lobby 100", 0, 21, 18, 10, 10),
        Room("Vestibule 101", 0, 31.5, 18, 6, 9),
        Room("Office 102", 0, 0, 12, 14, 9),
        Room("Office 103", 12.5, 0, 12, 14, 9),
        Room("Office 104", 25, 0, 11, 14, 9),
        Room("Meeting 105", 36.5, 0, 20, 14, 9),
        Room("Break Room 106", 57, 0, 15, 14, 9),
        Room("Work Room 107", 18.5, 21, 11, 16.5, 9),
        Room("Men 108", 30, 21, 9, 8, 8.5, -1.2),
        Room("Women 109", 30, 29.5, 9, 8, 8.5, -1.2),
        Room("Hall 110", 39.5, 21, 4.5, 16.5, 9),
        Room("Janitor 111", 44.5, 21, 7, 8, 9, 1.4),
        Room("Storage 112", 44.5, 29.5, 7, 8, 9, 1.4),
        Room("Class 113", 52, 21, 20, 16.5, 10),
        Room("Corridor 114", 0, 14.5, 72, 6, 9),
    ),
    doors=(
        Door("H", 8, 14, 3, -1), Door("H", 14, 14, 3, -1), Door("H", 27, 14, 3, -1),
        Door("H", 45, 14, 3.5, -1), Door("H", 60, 14, 3, -1),
        Door("H", 6, 20.5, 6, 1), Door("H", 6, 31, 6, -1), Door("H", 6, 37.5, 6, 1),
        Door("H", 24, 20.5, 3.5, 1), Door("H", 40, 20.5, 3, 1), Door("H", 56, 20.5, 3.5, 1),
        Door("V", 39, 24, 3, -1), Door("V", 39, 32, 3, -1),
        Door("V", 44, 24, 3, 1), Door("V", 44, 32, 3, 1),
        Door("H", 40, 37.5, 3, 1),
    ),
    windows=tuple(
        [Window("H", x, -WALL, 4) for x in (2, 7, 14.5, 19.5, 28, 39, 45, 51, 60, 66)]
        + [Window("V", 72, y, 5) for y in (4, 24, 31)]
        + [Window("V", -WALL, y, 5) for y in (4, 23)]
        + [Window("H", x, 37.5, 4) for x in (22, 55, 62, 67)]
    ),
)

ABOUT = Plan(
    width=36, depth=24,
    rooms=(
        Room("Studio", 0, 0, 20, 14, 10),
        Room("Office A", 0, 14.5, 10, 9.5, 9),
        Room("Office B", 10.5, 14.5, 9.5, 9.5, 9),
        Room("Kitchen", 20.5, 0, 15.5, 9, 9),
        Room("Hall", 20.5, 9.5, 15.5, 4, 9),
        Room("Bath", 20.5, 14, 8, 10, 8),
        Room("Store", 29, 14, 7, 10, 9),
    ),
    doors=(
        Door("V", 20, 10, 3, -1), Door("H", 6, 14, 3, 1), Door("H", 12, 14, 3, 1),
        Door("H", 24, 9, 3, -1), Door("H", 23, 13.5, 3, 1), Door("H", 31, 13.5, 3, 1),
        Door("V", 36, 10, 3, 1),
    ),
    windows=(
        Window("H", 3, -WALL, 5), Window("H", 11, -WALL, 5), Window("H", 26, -WALL, 4),
        Window("V", -WALL, 4, 5), Window("V", -WALL, 17, 4), Window("H", 13, 24, 4),
    ),
)


def check(plan):
    """Raises when two rooms overlap or a door stands in no wall."""
    for i, a in enumerate(plan.rooms):
        assert a.x + a.width <= plan.width and a.y + a.depth <= plan.depth, a.name
        for b in plan.rooms[i + 1:]:
            apart = (a.x + a.width + WALL <= b.x or b.x + b.width + WALL <= a.x
                     or a.y + a.depth + WALL <= b.y or b.y + b.depth + WALL <= a.y)
            assert apart, (a.name, b.name)
    touched = sum(len(plan.openings(room)) for room in plan.rooms)
    outside = sum(1 for d in plan.doors
                  if d.x in (-WALL, plan.width) or d.y in (-WALL, plan.depth))
    assert touched == 2 * len(plan.doors) - outside, (touched, outside)


check(LARKSPUR)
check(ABOUT)
