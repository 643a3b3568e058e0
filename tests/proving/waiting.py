"""Kills the program while bottom line items wait for their last step: the next start offers what was entered."""

import shimlog
from bids import Bid
from ground import put, written
from versions import last_step

# The program makes the folder of the user's configuration before it starts; the player does not.
CONFIGURED = {".config/Tamo/windows.ini": b""}
OFFERED = """start
menu Tamo.OpenProject
answer Yes
select Tamo.JobsList 0
print BottomLine.oiList
print messages
"""
STORED = """start
menu Tamo.OpenProject
select Tamo.JobsList 0
menu Tamo.BottomLineItems
print BottomLine.oiList
print messages
"""


class Items:
    """The steps of the bid in which items are entered, and the operations of the files in them."""

    def __init__(self, bid):
        first = bid.steps.index("menu Tamo.BottomLineItems")
        last = bid.steps.index("menu Tamo.PriceAdjustment")
        lines = {3 * at + 1: bid.steps[at] for at in range(first, last)}
        names = [(line, text.split(" ", 1)[1]) for line, text in lines.items() if text[:6] == "enter " and text[6].isalpha()]
        self.known = [(line + 3, name) for line, name in names]  # with its price, once the step of that line is over
        step, self.operations = 0, []
        for operation in bid.played.log:
            begins = shimlog.step_of(operation)
            step = step if begins is None else begins
            if step in lines and operation.number:
                self.operations.append(operation.number)


def kill(ground, bid, items, at, deed):
    home = ground.new_home()
    put(home, bid.files)
    played = ground.play(home, bid.scenario, {"AT": at, "DO": deed, "DATA": ""})
    files, step = written(home), last_step(played.log)
    ground.forget(home)
    if "signal 9" not in played.errors:
        return ["the program was not killed: " + played.errors]
    return again(ground, files, [name for line, name in items.known if line < step])


def again(ground, files, entered):
    offered = any("recovery" in path for path in files)
    scenario = ground.scratch / "waiting.scenario"
    scenario.write_text(OFFERED if offered else STORED)
    home = ground.new_home()
    put(home, files)
    played = ground.play(home, scenario, logged=False)
    ground.forget(home)
    shown = " ".join(played.texts.values())
    gone = [f"{name} was entered and is not there: {played.texts}" for name in entered if name not in shown]
    return gone + [f"the next start: {line}" for line in played.errors.splitlines()]


def prove(ground, report, most, chance):
    bid = Bid(ground, 0, CONFIGURED)
    items = Items(bid)
    places = [(at, deed) for at in items.operations for deed in ("kill", "half")]
    for at, deed in chance.sample(places, min(most, len(places))):
        report.one(f"waiting: AT={at} DO={deed}", kill(ground, bid, items, at, deed))
        if report.late():
            return
