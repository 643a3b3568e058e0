#!/usr/bin/env python3
"""Writes the page of figures from what the benchmarks left in a folder (scripts/benchmark.sh).

A benchmark is told by the median of its repetitions, a ratio is that of two medians of one run."""
import datetime
import json
import os
import platform
import re
import statistics
import subprocess
import sys

MILLI = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}

# What is told, in the words of an estimator: (text, benchmark, peer, words for the peer, limit of the ratio).
RATIOS = [
    ("Recap Sheet, 1,000 rooms of 20 lines", "BM_Recap/1000/5", "BM_PlainReading/1000/5",
     "reading the same files", 1.3),
    ("Recap Sheet, 10,000 lines", "BM_Recap/500/2", "BM_LedgerBal/500/2", "`ledger bal`, as many postings", .1),
    ("Recap Sheet, 100,000 lines", "BM_Recap/5000/2", "BM_LedgerBal/5000/2", "`ledger bal`, as many postings", .1),
    ("Quantities, 10,000 lines", "BM_Quantities/500/2", "BM_PlainReading/500/2", "reading the same files", 1.3),
    ("BreakDown, 10,000 lines", "BM_BreakDown/500/2", "BM_PlainReading/500/2", "reading the same files", 1.3),
    ("Bill of Material, 10,000 lines", "BM_BillofMaterial/500/2", "BM_PlainReading/500/2", "reading the same files", 1.3),
    ("Field Copy, 10,000 lines, two materials a system", "BM_FieldCopy/500/2", "BM_PlainReading/500/2",
     "reading the same files", 1.3),
    ("Field Copy, 10,000 lines, five materials", "BM_FieldCopy/500/5", "BM_PlainReading/500/5",
     "reading the same files", 1.3),
    ("Office Copy, 10,000 lines, two materials", "BM_OfficeCopy/500/2", "BM_PlainReading/500/2",
     "reading the same files", 1.6),
    ("Office Copy, 10,000 lines, five materials", "BM_OfficeCopy/500/5", "BM_PlainReading/500/5",
     "reading the same files", 1.6),
    ("Recap Sheet anew, 1,000 rooms unchanged", "BM_RecapAnew/1000/5", "BM_Recap/1000/5", "the first one", .6),
    ("Files read ahead", "BM_TextsAhead/real_time", "BM_PlainTexts/real_time", "one thread", 1.0),
    ("Files remembered", "BM_TextsRemembered/real_time", "BM_PlainTexts/real_time", "reading them", .6),
    ("A row of a copy", "BM_DetailRow", "BM_PlainDetailRow", "put together plainly", .5),
    ("Rows in few pieces", "BM_TextRows", "BM_PlainRows", "a list of texts", 1.0),
    ("A number from a text", "BM_Value", "BM_PlainValue", "the standard library", 1.0),
    ("A sum cut to 15 digits", "BM_CutTo15Digits", "BM_PlainCut", "the standard library", 1.0),
    ("The text of a number", "BM_NumberText", "BM_PlainText", "the standard library", 1.0),
    ("A whole number below", "BM_Truncated", "BM_Floor", "the standard library", 1.0),
    ("A durable save", "DurableSave/real_time", "RawSave/real_time", "the bare system calls", 1.25),
    ("A save with its former state in the journal", "SaveWithJournal/real_time", "SaveWithoutJournal/real_time",
     "a save without", 1.1),
    ("Enter in WageRate, 200 materials", "EnterInWageRate/real_time", "TwoDurableSaves/real_time", "its two saves", 1.25),
    ("A system of a library of 10,000", "LoadSystem/10000/real_time", "LoadSystem/10/real_time", "of one of 10", 1.25),
    ("A sharp view of a plan", "SharpView/real_time", "SharpViewMutool/real_time", "`mutool draw`", 1.0),
    ("One mark saved, on the 60 MB set", "SaveOneMark/set/iterations:200/real_time",
     "SaveOneMark/sheet/iterations:200/real_time", "on one sheet", 1.5),
    ("The thumbnails of 300 sheets", "Thumbnails/real_time", "ThumbnailsMutool/real_time", "`mutool draw`", 1.0),
]


# Times that somebody waits: (text, benchmark, counter of it or None, milliseconds that are the limit, what those are).
TIMES = [
    ("The coarse picture of a plan of 60 MB", "OpenToCoarse/set/real_time", None, 100, "a blink"),
    ("The longest hold while a plan is moved", "PanAndZoom/iterations:2000/real_time", "longest_ms", 16, "a frame"),
    ("Enter in Length, a room of 300 lines, 99 of 100", "EnterBesideItsSave/real_time", "enter_p99_ms", 16, "a frame"),
    ("A room schedule opened on 1,000 rooms", "OpenOnAThousandRooms/real_time", None, 100, "a blink"),
    ("What changed, 1,000 rooms of which 200 changed", "CompareLargeBids/real_time", None, None, None),
]


class Measured:
    """What the benchmark library left: medians in milliseconds by name, and all runs."""

    def __init__(self, folder):
        self.runs, self.release = {}, True
        for name in sorted(os.listdir(folder)):
            if name.endswith(".json"):
                self.take(json.loads(text_of(folder, name)))
        self.times = {name: statistics.median(run["real_time"] * MILLI[run["time_unit"]] for run in runs)
                      for name, runs in self.runs.items()}

    def take(self, page):
        self.release = self.release and page["context"].get("library_build_type") == "release"
        for run in page["benchmarks"]:
            if run.get("run_type") == "iteration" and not run.get("error_occurred"):
                self.runs.setdefault(run["run_name"], []).append(run)

    def counter(self, name, counter):
        return statistics.median(run[counter] for run in self.runs[name])


def waits(measured):
    lines = []
    for what, name, counter, limit, peer in TIMES:
        if name in measured.times:
            took = measured.times[name] if counter is None else measured.counter(name, counter)
            lines.append(row(what, shown(took), peer or "", f"{limit} ms" if limit else "", took / limit if limit else None,
                             1 if limit else None))
    if "EnterBesideItsSave/real_time" in measured.runs:
        lines.append(row("Enter in Length, median", "", "its durable save", "",
                         measured.counter("EnterBesideItsSave/real_time", "times_the_save"), 1.25))
    return lines


def text_of(folder, name):
    path = os.path.join(folder, name)
    return open(path, encoding="utf-8").read() if os.path.exists(path) else ""


def shown(milliseconds):
    if milliseconds >= 1:
        return f"{milliseconds:.1f} ms"
    return f"{milliseconds * 1e3:.1f} us" if milliseconds >= 1e-3 else f"{milliseconds * 1e6:.1f} ns"


def row(what, figure, peer, peer_figure, ratio, limit):
    verdict = "" if ratio is None or limit is None else ("yes" if ratio <= limit else "**no**")
    return (f"| {what} | {figure} | {peer} | {peer_figure} | {'' if ratio is None else f'{ratio:.2f}'} | "
            f"{'' if limit is None else f'{limit:g}'} | {verdict} |")


def machine():
    model = re.search(r"model name\s*: (.*)", text_of("/proc", "cpuinfo"))
    memory = re.search(r"MemTotal:\s*(\d+)", text_of("/proc", "meminfo"))
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=False).stdout.split("\n")[0]
    return (f"{os.cpu_count()} cores, {model.group(1) if model else platform.processor()}, "
            f"{int(memory.group(1)) / 2 ** 20:.0f} GB, Linux {platform.release()}; {compiler}")


def told(folder, parts):
    """The lines that programs print themselves (bench/figureline.h)."""
    lines = []
    for part in parts:
        for line in text_of(folder, part + ".txt").splitlines():
            if not line.startswith("figure\t"):
                continue
            _, what, takes, peer, peer_takes, limit, unit = line.split("\t")
            takes, peer_takes, limit = float(takes), float(peer_takes), float(limit)
            said = shown if unit == "ms" else lambda value, unit=unit: f"{value:,.1f} {unit}"
            lines.append(row(what, said(takes), peer, said(peer_takes) if peer_takes else "",
                             takes / peer_takes if peer_takes else None, limit or None))
    return lines


def runs_of(folder, parts):
    """When each part was measured, and which were not."""
    when, missing = {}, []
    for part in parts:
        left = [path for path in (os.path.join(folder, part + kind) for kind in (".txt", ".json")) if os.path.exists(path)]
        if left:
            day = datetime.datetime.fromtimestamp(os.path.getmtime(left[0])).strftime("%Y-%m-%d")
            when.setdefault(day, []).append(part)
        else:
            missing.append(part)
    days = "; ".join(f"{day}: {', '.join(of)}" if len(when) > 1 or missing else day for day, of in sorted(when.items()))
    return days + (f"; not measured: {', '.join(missing)}" if missing else "")


def main():
    folder, parts = sys.argv[1], sys.argv[2:]
    measured = Measured(folder)
    library = "a release build" if measured.release else \
        "Debian's package, which reports itself a debug build; it touches only the loop around the measured work"
    print("# Performance\n")
    print("Written by `scripts/benchmark.sh`; every figure stands beside its peer of the same run, so that the ratio says more than")
    print("the time. Medians, unless the line says something else.\n")
    print(f"- Machine: {machine()}")
    print(f"- Measured: {runs_of(folder, parts)}; load at the end {os.getloadavg()[1]:.1f}")
    print("- The program: release build (`bench` preset), run offscreen")
    print(f"- The library that measures: {library}\n")
    print("| What | Takes | Beside | Takes | Ratio | Limit | Held |")
    print("| --- | --- | --- | --- | --- | --- | --- |")
    missing = []
    for line in told(folder, parts) + waits(measured):
        print(line)
    for what, name, peer, words, limit in RATIOS:
        if name in measured.times and peer in measured.times:
            took, beside = measured.times[name], measured.times[peer]
            print(row(what, shown(took), words, shown(beside), took / beside, limit))
        else:
            missing.append(what)
    if missing:
        print("\nNot measured here, because the benchmark or its peer is missing: " + "; ".join(missing) + ".")


main()
