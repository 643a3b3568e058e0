"""Lets file operations fail, once, for a while or from then on: nothing is lost in silence, and the strip tells the truth."""

import shimlog
from bids import bids
from ground import put, written
from restart import tells
from versions import Versions, is_entry

# Made from the date at the first start; a number is never given twice without it, too.
SEED = "Tamo/Project.num"
ERRORS = ("EIO", "EACCES", "ENOSPC", "short")


def lost(before, after, final):
    """Lines of entries that stood in a file, stand there at the end of the undisturbed play, and are gone."""
    found = []
    for path, content in before.items():
        kept = set(after.get(path, b"").split(b"\r\n"))
        stays = set(final.get(path, b"").split(b"\r\n"))
        gone = [line for line in content.split(b"\r\n") if line in stays and line not in kept]
        if gone:
            found.append(f"{path} lost {gone[:3]!r}")
    return found


def said(played, bid):
    """By step: what the strip and the messages told behind it."""
    return {line - 1: (played.texts.get(line, ""), played.texts.get(line + 1, "")) for line in bid.notices()}


def wrong(played, bid, files, struck):
    """What is wrong with a play in which operations failed; `struck` are the steps in which they did."""
    if not struck:
        return []
    told = said(played, bid)
    first = min(struck)
    final = bid.versions.states[bid.versions.end]
    complaints = lost(bid.versions.states[max(step for step in bid.versions.states if step <= first)], files, final)
    ever = any(strip or message for step, (strip, message) in told.items() if step >= first)
    shown = played.texts.get(3 * len(bid.steps) - 2, "")
    differs = [path for path in set(files) | set(final) if is_entry(path) and files.get(path) != final.get(path)]
    if differs and not ever and not tells({0: shown}):
        complaints.append(f"in silence other than undisturbed: {sorted(differs)}")
    return complaints + strip(played, bid, told, first)


def strip(played, bid, told, first):
    """An empty strip in a play that has told nothing yet says that all entries are on the disk."""
    versions = Versions(played.log, bid.files)
    complaints, spoke = [], False
    for step, (notice, message) in sorted(told.items()):
        spoke = spoke or bool(notice) or bool(message)
        state = versions.states.get(step + 1)
        if step < first or spoke or state is None:
            continue
        behind = bid.versions.states[step + 1]
        missing = [path for path in behind if state.get(path) != behind[path] and path != SEED]
        if missing:
            complaints.append(f"the strip is empty behind step {step // 3 + 1} ({bid.steps[step // 3]}), not saved: {missing}")
            break
    return complaints


def struck_steps(log):
    step, found = 0, set()
    for operation in log:
        begins = shimlog.step_of(operation)
        step = step if begins is None else begins
        if operation.result.startswith("failed") and operation.number:
            found.add(step)
    return found


def strike(ground, bid, orders):
    home = ground.new_home()
    put(home, bid.files)
    played = ground.play(home, bid.scenario, orders)
    files = written(home)
    ground.forget(home)
    if "broke down" in played.errors or "come" in played.errors:
        return [played.errors]
    return wrong(played, bid, files, struck_steps(played.log))


def prove(ground, report, most, chance, kinds="rw", lengths=(1, 5, 0), errors=ERRORS):
    """`lengths`: how many operations in a row fail; 0: all from there on."""
    done = 0
    for bid in bids(ground):
        for _ in range(min(most - done, 3000)):
            orders = {"AT": chance.randrange(1, bid.count(kinds) + 1), "FOR": chance.choice(lengths),
                      "DO": chance.choice(errors), "CLASSES": kinds}
            done += 1
            name = " ".join(f"{key}={value}" for key, value in orders.items())
            report.one(f"failures: bid {bid.seed} {name}", strike(ground, bid, orders))
            if report.late():
                return
        if done >= most:
            return
