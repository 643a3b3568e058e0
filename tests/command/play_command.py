#!/usr/bin/env python3
"""Plays the commands of the real program without a display and rereads what they write with readers of its own.

Usage: play_command.py TAMO REPOSITORY. TAMO is the built program. Pages are looked at with pdftotext where it is installed.
"""
import csv
import io
import json
import os
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import zipfile
import xml.etree.ElementTree as ElementTree

tamo, repository = sys.argv[1:3]
scratch = tempfile.mkdtemp(prefix="tamo-command-")
environment = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
environment.update(HOME=os.path.join(scratch, "home"), XDG_CONFIG_HOME=os.path.join(scratch, "config"), LC_ALL="C.UTF-8")
failures = []


def check(holds, *what):
    if not holds:
        failures.append(" ".join(str(part) for part in what))


def play(*arguments, **how):
    return subprocess.run([tamo, *arguments], env=environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=120, **how)


def cells(path):
    """The sheets of a workbook: for each its rows, numbers as floats."""
    main = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
    with zipfile.ZipFile(path) as book:
        check(book.testzip() is None, path, "is damaged")
        shared = []
        if "xl/sharedStrings.xml" in book.namelist():
            for one in ElementTree.fromstring(book.read("xl/sharedStrings.xml")):
                shared.append("".join(t.text or "" for t in one.iter(main + "t")))
        sheets = []
        for name in sorted(n for n in book.namelist() if n.startswith("xl/worksheets/sheet")):
            tree = ElementTree.fromstring(book.read(name))
            check(tree.find(f"{main}sheetViews/{main}sheetView/{main}pane") is not None, path, "has no frozen head")
            check(tree.find(main + "cols") is not None, path, "has no column widths")
            check(tree.find(f".//{main}f") is None, path, "has a formula")
            rows = []
            for row in tree.iter(main + "row"):
                found = {}
                for cell in row.iter(main + "c"):
                    column = 0
                    for letter in re.match("[A-Z]+", cell.get("r")).group():
                        column = column * 26 + ord(letter) - 64
                    if cell.get("t") == "inlineStr":
                        text = "".join(t.text or "" for t in cell.iter(main + "t"))
                        found[column] = re.sub("_x([0-9A-F]{4})_", lambda m: chr(int(m.group(1), 16)), text)
                    elif cell.get("t") == "s":
                        found[column] = shared[int(cell.find(main + "v").text)]
                    elif cell.find(main + "v") is not None:
                        found[column] = float(cell.find(main + "v").text)
                rows.append([found.get(i, "") for i in range(1, max(found, default=0) + 1)])
            sheets.append(rows)
        return sheets


def plain(text):
    return text[1:] if re.match("'+[=+@\t\r\n-]", text) else text


def numbers(text):
    return {round(float(n), 4) for n in re.findall(r"-?\d*\.?\d+", text)} | {0.0}


def formats(data, project, report):
    """One report in every format: the figures of each are those of the text."""
    base = ["report", report, project, "--data", data]
    text = play(*base)
    check(text.returncode in (0, 1), report, text.stderr.decode())
    as_csv = play(*base, "--csv")
    records = list(csv.reader(io.StringIO(as_csv.stdout.decode(), newline=""), strict=True))
    check(len({len(r) for r in records}) == 1, report, "rows of different lengths")
    check(as_csv.stdout.count(b"\r\n") >= len(records), report, "line ends")
    document = json.loads(play(*base, "--json").stdout)
    kinds = [c["type"] for c in document["columns"]]
    check([c["name"] for c in document["columns"]] == records[0], report, "heads")
    book = os.path.join(scratch, report + ".xlsx")
    check(play(*base, "--xlsx", "-o", book).returncode == text.returncode, report, "as a workbook")
    rows = [row for sheet in cells(book) for row in sheet][1:]
    remarks = len(document["remarks"])
    check(len(rows) == len(records) - 1 == len(document["rows"]) + remarks, report, "count of rows")
    of_text = numbers(text.stdout.decode())
    for number, (row, record) in enumerate(zip(rows, records[1:])):
        row = row + [""] * (len(record) - len(row))
        for column, (cell, entry) in enumerate(zip(row, record)):
            where = (report, "row", number + 1, records[0][column], repr(cell), repr(entry))
            if isinstance(cell, float):
                check(kinds[column] != "text" and float(entry) == cell, *where)
                free = report.endswith("recap") and record[0] == "Item"  # counts with its cents
                check(free or round(cell, 4) in of_text or round(cell, 2) in of_text, *where, "is not in the text")
            else:
                check(plain(entry) == cell.replace("\r\n", "\n").replace("\n", "\r\n") or plain(entry) == cell, *where)
    return text, records


def pages(data, project, report):
    path = os.path.join(scratch, report + ".pdf")
    done = play("report", report, project, "--data", data, "--pdf", "-o", path)
    check(done.returncode in (0, 1), report, "as a PDF:", done.stderr.decode())
    check(open(path, "rb").read(5) == b"%PDF-", report, "is no PDF")
    if shutil.which("pdftotext"):
        text = subprocess.run(["pdftotext", "-layout", path, "-"], capture_output=True).stdout.decode()
        check("Page 1 of" in text, report, "has no foot")
        for line in play("report", report, project, "--data", data).stdout.decode().split("\n"):
            words = line.split()
            check(all(word in text for word in words), report, "lacks", line)


def strange_project():
    """A project with names that a spreadsheet or a reader could take for something else."""
    names = ["Wall, painted", '5/8" board', "=SUM(A1:A9)", "+1", "-2 coats", "@home", "'=1", "été 天井", "<b>&amp;", "a;b"]
    data = os.path.join(scratch, "strange", "Tamo")
    folder = os.path.join(data, "Projects", "07-2611009")
    for sub in ("Rooms", "ATOs", "Systems"):
        os.makedirs(os.path.join(folder, sub))

    def put(path, *lines):
        with open(os.path.join(folder, path), "w", newline="", encoding="utf-8") as file:
            file.write("".join(line + "\r\n" for line in lines))

    with open(os.path.join(data, "Jobs.lst"), "w", newline="") as file:
        file.write("07-2611009   =HYPERLINK(\"x\")\r\n")
    put("JobNFO.tamo", "07-2611009", '=HYPERLINK("x")')
    put("Rooms/Rooms.tamo", "101", "True")
    put("Rooms/101.rfs", "8", *("%-21s%-11s%14d SF" % (name, "WALLS", 10 + i) for i, name in enumerate(names)))
    for name in names:
        if "/" not in name and "<" not in name:
            put(f"Systems/{name}.sys", name, "SF", "2.00", "255000000", "\x01", "", "")
    return data, names


def main():
    data = os.path.join(repository, "tests/data/riverside/home/Tamo")
    sample = os.path.join(repository, "data/Sample/Tamo")
    reports = ["recap", "detailed-recap", "quantities", "bill", "breakdown", "field-copy", "office-copy", "information"]
    for report in reports:
        formats(data, "07-2611004", report)
        formats(sample, "12-2611001", report)
    formats(sample, "12-2611001", "schedule-check")
    formats(sample, "12-2611001", "changes")
    for report in ("recap", "office-copy"):
        pages(data, "07-2611004", report)

    strange, names = strange_project()
    for report in ("recap", "quantities", "field-copy"):
        text, records = formats(strange, "07-2611009", report)
        check(all(any(plain(cell) == name for record in records for cell in record) for name in names), report, "lost a name")
    check(not re.search(r"(^|,)[=+@]", play("list", "--data", strange, "--csv").stdout.decode(), re.M), "a formula in the list")

    # What goes wrong is told by the exit status, and what was there before stays.
    base = ["report", "office-copy", "07-2611004", "--data", data]
    target = os.path.join(scratch, "there.csv")
    for why, limit in (("too long a file", 2048), ("no file at all", 0)):
        with open(target, "w") as file:
            file.write("before")
        def small():
            resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))
        done = play(*base, "--csv", "-o", target, preexec_fn=small)
        check(done.returncode == 5, why, done.returncode, done.stderr.decode())
        check(b"could not be written" in done.stderr, why, done.stderr.decode())
        check(open(target).read() == "before", why, "replaced the file")
        left = [n for n in os.listdir(scratch) if "unfinished" in n]
        check(not left, why, "left", left)
    if os.path.exists("/dev/full"):
        for extra in (["-o", "/dev/full"], []):
            out = open("/dev/full", "wb") if not extra else subprocess.PIPE
            done = subprocess.run([tamo, *base, *extra], env=environment, stdout=out, stderr=subprocess.PIPE)
            check(done.returncode == 5 and b"the disk is full" in done.stderr, "full disk", extra, done.returncode, done.stderr)
        check(os.path.exists("/dev/full"), "the device was replaced")
    pipe = subprocess.Popen([tamo, *base, "--csv"], env=environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    pipe.stdout.close()
    check(pipe.wait(60) == 5, "broken pipe", pipe.returncode)
    check(b"stopped reading" in pipe.stderr.read(), "broken pipe says nothing")
    check(play("--help").returncode == 0 and play("--version").stdout.startswith(b"Tamo "), "help, version")
    check(play("report").returncode == 2 and play("report", "recap", "none", "--data", data).returncode == 3, "bad lines")
    stopped = play("report", "recap", "07-2611004", "--data", os.path.join(repository, "tests/data/zero-ratio/home/Tamo"))
    check(stopped.returncode in (3, 4), "a report that stops", stopped.returncode)

    shutil.rmtree(scratch)
    for failure in failures[:40]:
        print(failure)
    print(f"{len(failures)} failures")
    sys.exit(1 if failures else 0)


signal.signal(signal.SIGINT, signal.SIG_DFL)
main()
