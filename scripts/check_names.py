#!/usr/bin/env python3
"""Holds docs/names.md against the code: each name of its tables stands in the folder that its line gives."""

import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parent.parent


def main():
    texts, wrong, names = {}, [], 0
    for number, line in enumerate((root / "docs/names.md").read_text().splitlines(), 1):
        row = re.fullmatch(r"\| ([A-Za-z0-9, ]+) \| .* \| `(src/\w+)` \|", line)
        if not row:
            if line.startswith("| ") and not line.startswith("| Name |"):
                wrong.append(f"docs/names.md:{number}: this line has no name or no folder")
            continue
        folder = row[2]
        if folder not in texts:
            files = sorted((root / folder).rglob("*.cpp")) + sorted((root / folder).rglob("*.h"))
            texts[folder] = "\n".join(file.name + "\n" + file.read_text() for file in files)
        for name in row[1].split(", "):
            names += 1
            if name not in texts[folder]:
                wrong.append(f"docs/names.md:{number}: {folder} has no {name}")
    print("\n".join(wrong) or f"{names} names are where docs/names.md says")
    return 1 if wrong or names == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
