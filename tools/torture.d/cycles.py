# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The same work many times in one process. $TORTURE_CYCLES is the number of cycles, 100 by default."""

import os

from frame import case, lost_if
from recorder import INSTALL, REMOVE

_PAGES = (3, 4, 5, 6, 7)  # of the description of a package; two of them load data
_FROM = 10  # memory may not grow after this cycle
_GROWTH = 1.05


def _read(pid):
    """(descriptors, threads, children, resident memory in KB) of a process."""
    status = dict(line.split(":", 1) for line in open(f"/proc/{pid}/status", encoding="utf-8"))
    children = sum(len(open(f"/proc/{pid}/task/{task}/children", encoding="ascii").read().split())
                   for task in os.listdir(f"/proc/{pid}/task"))
    return (len(os.listdir(f"/proc/{pid}/fd")), int(status["Threads"]), children, int(status["VmRSS"].split()[0]))


def _cycle(window, number):
    """Refresh, filter, describe, mark, clear, apply."""
    window.job("refreshButton")
    window.do("answer", rules=[{"title": "", "button": ""}])
    window.do("filter", expression="^ch")
    window.do("filter", expression=".*")
    window.do("describe", name="abacus")
    window.do("dialog")
    for page in _PAGES:
        window.do("choose", box="tabs", index=page)
    window.do("answer", rules=[{"title": "Apply", "button": "OK"}])
    window.do("press", button="Close")
    window.do("wait", timeout=120)
    window.do("mark", names=["abacus", "clock"], action=INSTALL)
    window.do("press", button="clearActionsButton")
    window.do("mark", names=["chess"], action=INSTALL if number % 2 else REMOVE)
    window.do("press", button="applyButton")
    dialogs = window.do("wait", timeout=300)["dialogs"]
    window.do("forget")
    return dialogs


@case("refresh, filter, describe, mark, clear and apply again and again")
def cycles(stage):
    """The log of the session grows by some 30 lines a cycle, which is not lost."""
    count = int(os.environ.get("TORTURE_CYCLES", "100"))
    window = stage.window()
    pid = window.process.pid
    window.do("choose", box="stateCombo", index=3)  # all
    seen = []
    for number in range(1, count + 1):
        dialogs = [one["title"] for one in _cycle(window, number)]
        lost_if(dialogs != ["Apply"], f"cycle {number} showed {dialogs}")
        there = any(name.startswith("chess-") for name in stage.installed())
        lost_if(there != bool(number % 2), f"cycle {number} was not applied")
        seen.append(_read(pid))
        if number in (1, 2, _FROM) or number % 20 == 0:
            print("  cycle %d: %d descriptors, %d threads, %d children, %d KB" % (number, *seen[-1]), flush=True)
    if len(seen) <= _FROM:
        return f"too few cycles for a result: {seen}"
    for what, index in (("descriptors", 0), ("threads", 1), ("children", 2)):
        values = {one[index] for one in seen[_FROM - 1:]}
        lost_if(len(values) > 1, f"{what}: {[one[index] for one in seen]}")
    memory = [one[3] for one in seen]
    growth = max(memory[_FROM:]) / memory[_FROM - 1]
    lost_if(growth > _GROWTH, f"memory grew by {growth - 1:.1%}: {memory}")
    return "%d cycles: %d descriptors, %d threads, %d children, memory %+.1f %% after the tenth, the log included" % (
        count, *seen[-1][:3], (growth - 1) * 100)
