#!/usr/bin/env python3
"""Makes the plans the benchmarks measure on: make_plans.py FOLDER

sheet.pdf   one 36x48 inch sheet of 200,000 line segments
clip.pdf    the same sheet, cropped to the 1920x1080 pixels that the benchmark looks at
set.pdf     300 sheets, 60 MB
"""
import os
import random
import sys
import zlib


class Writer:
    def __init__(self, path):
        self.out = open(path, "wb")
        self.offsets = {}
        self.out.write(b"%PDF-1.5\n%\xe2\xe3\xcf\xd3\n")

    def obj(self, number, body):
        self.offsets[number] = self.out.tell()
        self.out.write(b"%d 0 obj\n" % number + body + b"\nendobj\n")

    def stream(self, number, data, extra=b""):
        self.obj(number, b"<<%s/Length %d>>\nstream\n" % (extra, len(data)) + data + b"\nendstream")

    def finish(self, root):
        start = self.out.tell()
        size = max(self.offsets) + 1
        self.out.write(b"xref\n0 %d\n0000000000 65535 f \n" % size)
        for number in range(1, size):
            self.out.write(b"%010d 00000 n \n" % self.offsets[number])
        self.out.write(b"trailer\n<</Size %d/Root %d 0 R>>\nstartxref\n%d\n%%%%EOF\n" % (size, root, start))
        self.out.close()


def drawing(rng, width, height, segments):
    """Walls, hatching and short details, as a drawing program writes them: many short paths."""
    parts = []
    left = segments
    while left > 0:
        kind = rng.random()
        x, y = rng.uniform(36, width - 36), rng.uniform(36, height - 36)
        parts.append("%.2f w %.2f G" % (rng.choice([0, 0.24, 0.36, 0.72, 1.44]), rng.choice([0, 0.3, 0.5])))
        if kind < 0.3:  # a wall
            run = min(left, 4)
            dx, dy = rng.choice([(rng.uniform(50, 400), 6), (6, rng.uniform(50, 400))])
            parts.append("%.2f %.2f m %.2f %.2f l %.2f %.2f l %.2f %.2f l h S" % (
                x, y, x + dx, y, x + dx, y + dy, x, y + dy))
        elif kind < 0.6:  # hatching
            run = min(left, 40)
            parts.extend("%.2f %.2f m %.2f %.2f l S" % (x + i * 2, y, x + i * 2 + 12, y + 12) for i in range(run))
        else:  # a detail of short strokes
            run = min(left, 20)
            px, py = x, y
            line = ["%.2f %.2f m" % (px, py)]
            for _ in range(run):
                px += rng.uniform(-8, 8)
                py += rng.uniform(-8, 8)
                line.append("%.2f %.2f l" % (px, py))
            parts.append(" ".join(line) + " S")
        left -= run
    return "\n".join(parts).encode()


def text(rng, width, height, count):
    words = ["OFFICE", "CORRIDOR", "STAIR", "GWB-1", "8'-0\"", "SEE A-501", "EXIST."]
    parts = ["BT /F1 8 Tf"]
    for _ in range(count):
        parts.append("1 0 0 1 %.1f %.1f Tm (%s) Tj" % (
            rng.uniform(36, width - 100), rng.uniform(36, height - 36), rng.choice(words)))
    parts.append("ET")
    return "\n".join(parts).encode()


def plan(path, pages, segments, filler, crop=b""):
    rng = random.Random(4711)
    width, height = 3456, 2592
    out = Writer(path)
    out.obj(1, b"<</Type/Catalog/Pages 2 0 R>>")
    out.obj(3, b"<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>")
    kids = []
    number = 4
    for _ in range(pages):
        content = drawing(rng, width, height, segments) + b"\n" + text(rng, width, height, 200)
        kids.append(b"%d 0 R" % number)
        resources = b"<</Font<</F1 3 0 R>>"
        if filler:
            resources += b"/XObject<</I1 %d 0 R>>" % (number + 2)
            content += b"\nq 300 0 0 300 100 100 cm /I1 Do Q"
        resources += b">>"
        out.obj(number, b"<</Type/Page/Parent 2 0 R/MediaBox[0 0 %d %d]%s/Contents %d 0 R/Resources%s>>"
                % (width, height, crop, number + 1, resources))
        out.stream(number + 1, zlib.compress(content, 6), b"/Filter/FlateDecode")
        number += 2
        if filler:
            side = int(filler ** 0.5)
            pixels = rng.randbytes(side * side)
            out.stream(number, pixels, b"/Type/XObject/Subtype/Image/Width %d/Height %d"
                       b"/BitsPerComponent 8/ColorSpace/DeviceGray" % (side, side))
            number += 1
    out.obj(2, b"<</Type/Pages/Count %d/Kids[%s]>>" % (pages, b" ".join(kids)))
    out.finish(1)


def main():
    folder = sys.argv[1]
    os.makedirs(folder, exist_ok=True)
    plan(os.path.join(folder, "sheet.pdf"), 1, 200000, 0)
    plan(os.path.join(folder, "set.pdf"), 300, 4000, 175000)
    # Left 750, top 750 points, 1440 by 810 points of the sheet.
    plan(os.path.join(folder, "clip.pdf"), 1, 200000, 0, b"/CropBox[750 1032 2190 1842]")


if __name__ == "__main__":
    main()
