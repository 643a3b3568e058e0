#!/usr/bin/env python3
"""Holds the files under data/ against what they must be.

    scripts/check_data.py

The plans and the sample bid are what their scripts make, byte for byte; the plans are valid PDF;
every topic of the documentation is there, in plain text that fits the window; the sample's takeoff
is what its plan measures. Exit status 0 when all of it holds.
"""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
DATA = ROOT / "data"
WIDEST = 80

TOPICS = """Mission Start Projects OpenProject ClearProject NewProject ProjectInformation
LockUnlockProject CopyProject PasteProject DeleteProject Pricing BuildingSystems Markups CopySystem
PasteSystem ImportSystem ExportSystem ExitPricing Estimate RFS EnterRFS EstimateRFS NonRFS BottomLine
PriceAdjust Reports Quantities RecapSheet AreaRoomDetail BillOfMaterial BillingHelp OST ZoomOut
ZoomIn Scale Files Save Print Documentation Settings ExitOST Versions""".split()

problems = []


def complain(path, what):
    problems.append(f"{path}: {what}")


def check_generated():
    made_dir = pathlib.Path(tempfile.mkdtemp())
    try:
        for script in ("make_plans.py", "make_sample.py"):
            subprocess.run([sys.executable, "-B", ROOT / "scripts" / script, made_dir], check=True)
        made = {p.relative_to(made_dir) for p in made_dir.rglob("*") if p.is_file()}
        for path in sorted(made):
            kept = ROOT / path
            if not kept.is_file():
                complain(path, "is missing; run the scripts again")
            elif kept.read_bytes() != (made_dir / path).read_bytes():
                complain(path, "is not what its script makes")
        for kept in sorted((DATA / "Sample").rglob("*")):
            if kept.is_file() and kept.relative_to(ROOT) not in made:
                complain(kept.relative_to(ROOT), "is made by no script")
    finally:
        shutil.rmtree(made_dir)


def check_pdf():
    if not shutil.which("qpdf"):
        print("qpdf is not installed: the plans are not checked")
        return
    for path in sorted(DATA.rglob("*.pdf")):
        if subprocess.run(["qpdf", "--check", path], capture_output=True).returncode:
            complain(path.relative_to(ROOT), "qpdf finds an error in it")
        if path.stat().st_size > 200_000:
            complain(path.relative_to(ROOT), "is larger than 200 kB")


def check_topics():
    folder = DATA / "Docs"
    there = {p.name for p in folder.iterdir()}
    wanted = {f"{topic}Docs.tamo" for topic in TOPICS}
    for name in sorted(wanted ^ there):
        complain(f"data/Docs/{name}", "is missing" if name in wanted else "is no topic")
    for name in sorted(wanted & there):
        content = (folder / name).read_bytes()
        if content.count(b"\r\n") != content.count(b"\n") or not content.endswith(b"\r\n"):
            complain(name, "has a line that does not end in CR LF")
        if not content.isascii():
            complain(name, "has a character that is not plain")
        for number, line in enumerate(content.decode("latin-1").split("\r\n"), 1):
            if len(line) > WIDEST or line != line.rstrip():
                complain(f"{name}:{number}", f"is {len(line)} wide or ends in blanks")


def check_sample_walls():
    """The paint of a room is its walls on the paper at 1/4 inch to the foot, times its height.
    Each of the four entries may round by half a foot, so two feet are allowed."""
    plan = json.loads((ROOT / "tests/plans/data/Larkspur-dimensions.json").read_text())
    lengths = {}
    for wall in plan["walls"]:
        (x1, y1), (x2, y2) = wall["from"], wall["to"]
        feet = ((x2 - x1) ** 2 + (y2 - y1) ** 2) ** 0.5 / 72 / 0.25
        room = wall["wall"].rsplit(" ", 1)[0]
        lengths[room] = lengths.get(room, 0) + feet
        if abs(feet - wall["feet"]) > 1e-9:
            complain(wall["wall"], f"measures {feet}")
    for path in sorted((DATA / "Sample/Tamo/Projects").glob("*/Rooms/*.rfs")):
        rows = path.read_text().splitlines()
        for row in rows[1:]:
            if row[:21].strip() == "Wall Paint":
                if abs(int(row[32:46]) - lengths[path.stem] * float(rows[0])) > 2:
                    complain(path.name, "paints another wall than the plan shows")


def main():
    check_generated()
    check_pdf()
    check_topics()
    check_sample_walls()
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
