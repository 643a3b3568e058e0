#!/usr/bin/env python3
"""Makes the former state of the benchmark's sheet: make_revisions.py FOLDER

sheet-before.pdf   sheet.pdf of make_plans.py, with forty walls and notes otherwise, on a page with
                   another origin, as another program would write it
"""
import os
import random
import sys
import zlib

import make_plans


def main():
    folder = sys.argv[1]
    os.makedirs(folder, exist_ok=True)
    rng = random.Random(4711)
    width, height = 3456, 2592
    content = make_plans.drawing(rng, width, height, 200000) + b"\n" + make_plans.text(rng, width, height, 200)
    content = content.replace(b"(GWB-1)", b"(GWB-2)", 20)
    others = random.Random(12)
    parts = ["1.44 w 0 G"]
    for _ in range(20):
        x, y = others.uniform(100, width - 500), others.uniform(100, height - 100)
        parts.append("%.2f %.2f %.2f 6 re S" % (x, y, others.uniform(100, 300)))
    content = b"1 0 0 1 -40 25 cm\n" + content + b"\n" + "\n".join(parts).encode()
    out = make_plans.Writer(os.path.join(folder, "sheet-before.pdf"))
    out.obj(1, b"<</Type/Catalog/Pages 2 0 R>>")
    out.obj(2, b"<</Type/Pages/Count 1/Kids[4 0 R]>>")
    out.obj(3, b"<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>")
    out.obj(4, b"<</Type/Page/Parent 2 0 R/MediaBox[-40 25 %d %d]/Contents 5 0 R/Resources<</Font<</F1 3 0 R>>>>>>"
            % (width - 40, height + 25))
    out.stream(5, zlib.compress(content, 6), b"/Filter/FlateDecode")
    out.finish(1)


if __name__ == "__main__":
    main()
