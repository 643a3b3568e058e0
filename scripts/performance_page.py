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


def medians(folder):
    runs, release = {}, True
    for name in sorted(os.listdir(folder)):
        if not name.endswith(".json"):
            continue
        try:
            page = json.load(open(os.path.join(folder, name), encoding="utf-8"))
        except json.JSONDecodeError:
            continue
        release = release and page["context"].get("library_build_type") == "release"
        for run in page["benchmarks"]:
            if run.get("run_type") == "iteration" and not run.get("error_occurred"):
                runs.setdefault(run["run_name"], []).append(run)
    times = {name: statistics.median(r["real_time"] * MILLI[r["time_unit"]] for r in all_) for name, all_ in runs.items()}
    return times, runs, release


def waits(times, runs):
    lines = []
    for what, name, counter, limit, peer in TIMES:
        if name not in times:
            continue
        took = times[name] if counter is None else statistics.median(run[counter] for run in runs[name])
        lines.append(row(what, shown(took), peer or "", f"{limit} ms" if limit else "", took / limit if limit else None,
                         1 if limit else None))
    found = statistics.median(run["times_the_save"] for run in runs["EnterBesideItsSave/real_time"]) \
        if "EnterBesideItsSave/real_time" in runs else None
    if found is not None:
        lines.append(row("Enter in Length, median", "", "its durable save", "", found, 1.25))
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


def holds(folder):
    lines = []
    for what, count, made, silence, work in re.findall(
            r"^(\w+) +(\d+) lines +(\d+) ms, longest silence +([\d.]+) ms, of work +([\d.]+) ms",
            text_of(folder, "hold.txt"), re.M):
        lines.append(row(f"The window stands still: {what}, {int(count):,} lines in {int(made):,} ms",
                         f"{float(silence):.1f} ms ({float(work):.1f} of work)", "a frame", "16 ms", float(silence) / 16, 1))
    for answered in re.findall(r"answered in ([\d.]+) ms", text_of(folder, "hold.txt")):
        lines.append(row("Escape stops the Office Copy of 1,000,000 lines", f"{float(answered):.1f} ms", "a frame", "16 ms",
                         float(answered) / 16, 1))
    for more, text, ratio in re.findall(r"^memory +(\d+) MB more for (\d+) MB of text: ([\d.]+)", text_of(folder, "hold.txt"),
                                        re.M):
        lines.append(row("Memory of the Office Copy of 1,000,000 lines", f"{more} MB", "its text", f"{text} MB", float(ratio), 1.5))
    for enters, last, first, ratio in re.findall(r"^day of (\d+) Enters: ([\d.]+) MB after ([\d.]+) MB, ([\d.]+) times",
                                                 text_of(folder, "day.txt"), re.M):
        lines.append(row(f"Memory after a day of {int(enters):,} Enters and {int(enters) // 100} reports", f"{last} MB",
                         "after its first hour", f"{first} MB", float(ratio), 1.1))
    return lines


def refresh(folder):
    found = dict((what, (float(half), float(most))) for what, half, most in re.findall(
        r"^(\w[\w ]*\w) +median +([\d.]+) ms, 99 of 100 within +([\d.]+) ms", text_of(folder, "refresh.txt"), re.M))
    if "Enter" not in found:
        return []
    half, most = found["Enter"]
    lines = [row("Enter with its save and the Recap Sheet anew, 20,000 lines, 99 of 100", f"{most:.1f} ms", "a frame", "16 ms",
                 most / 16, 1)]
    if "its work" in found:
        half, most = found["its work"]
        lines.append(row("The same, without what its save waits for the device", f"{most:.1f} ms", "a frame", "16 ms",
                         most / 16, 1))
        half = found["Enter"][0]
    if "bare save" in found:
        lines.append(row("The same, median", f"{half:.1f} ms", "its durable save", f"{found['bare save'][0]:.1f} ms",
                         half / found["bare save"][0], None))
    return lines


def bottom_line(folder):
    found = dict((what, float(half)) for what, half in re.findall(
        r"^(\w[\w ]*\w) +median +([\d.]+) ms", text_of(folder, "items.txt"), re.M))
    if "bare save" not in found:
        return []
    return [row(f"Enter in the {what} of a bottom line item, 200 items", f"{found[what]:.1f} ms", "the save of the names",
                f"{found['bare save']:.1f} ms", found[what] / found["bare save"], None)
            for what in ("name", "price") if what in found]


def likes(folder):
    lines = []
    for what, there, found, asked, missed, wrong, others, doubted, count, seconds, longest in re.findall(
            r"^([\w ]+): (\d+) there, (\d+) found, (\d+) asked, (\d+) missed, (\d+) wrong; (\d+) others, (\d+) of them asked; "
            r"(\d+) lines, ([\d.]+) s, longest ([\d.]+) s", text_of(folder, "likes.txt"), re.M):
        bad = int(missed) + int(wrong)
        lines.append(row(f"Find Same, {what}: {found} of {there} found, {asked} asked about, {missed} missed, {wrong} wrong among "
                         f"{others} others; up to {int(count):,} lines", f"{float(seconds):.2f} s",
                         "longest", f"{float(longest):.2f} s", float(bad), 0))
    return lines


def start(folder):
    lines = []
    found = re.search(r"empty window (\d+) us, with one word (\d+) us", text_of(folder, "start.txt"))
    if found:
        empty, word = int(found.group(1)) / 1e3, int(found.group(2)) / 1e3
        lines.append(row("From the start to the first frame: a window with one word, for which fonts are sought", shown(word),
                         "an empty Qt window", shown(empty), word / empty, None))
    for words, limit in (("Tamo", 1.5), ("Tamo with a project", 1.5), ("Tamo with a project that is open elsewhere", 1.5)):
        found = re.search(rf"empty window (\d+) us, {words} (\d+) us", text_of(folder, "start.txt"))
        if found:
            empty, tamo = int(found.group(1)) / 1e3, int(found.group(2)) / 1e3
            lines.append(row(f"From the start to the first frame: {words}", shown(tamo), "an empty Qt window", shown(empty),
                             tamo / empty, limit))
    return lines


def main():
    folder = sys.argv[1]
    times, runs, release = medians(folder)
    print("# Performance\n")
    print("Written by `scripts/benchmark.sh`; every figure stands beside its peer of the same run, so that the ratio says more than")
    print("the time. Medians, unless the line says something else.\n")
    print(f"- Machine: {machine()}")
    print(f"- Date: {datetime.date.today().isoformat()}, load at the end {os.getloadavg()[1]:.1f}")
    print("- The program: release build (`bench` preset), run offscreen")
    library = "a release build" if release else "Debian's package, which reports itself a debug build; it touches only the loop around the measured work"
    print(f"- The library that measures: {library}\n")
    print("| What | Takes | Beside | Takes | Ratio | Limit | Held |")
    print("| --- | --- | --- | --- | --- | --- | --- |")
    for line in start(folder) + holds(folder) + refresh(folder) + waits(times, runs) + bottom_line(folder) + likes(folder):
        print(line)
    missing = []
    for what, name, peer, words, limit in RATIOS:
        if name not in times or peer not in times:
            missing.append(what)
            continue
        print(row(what, shown(times[name]), words, shown(times[peer]), times[name] / times[peer], limit))
    if missing:
        print("\nNot measured here, because the benchmark or its peer is missing: " + "; ".join(missing) + ".")


main()
