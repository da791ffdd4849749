# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""VOK's side: its window on a root, marked and applied by clicks, its boxes answered by rule."""

import collections
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent.parent / "tests" / "system"))
from recorder import Recorder  # noqa: E402

UPDATE, INSTALL, REMOVE, NONE = range(4)          # actions
UPDATABLE, INSTALLABLE, INSTALLED = range(3)      # states
SUITE, GROUP, PACKAGE = range(3)                  # kinds
_CLICKS = {(UPDATABLE, UPDATE): 1, (UPDATABLE, REMOVE): 2, (INSTALLABLE, INSTALL): 1,
           (INSTALLED, REMOVE): 1}
_VIEW_ALL = 3

Row = collections.namedtuple("Row", "index kind state name version arch repo action chain")


class Box(collections.namedtuple("Box", "title text buttons")):
    """A box that came up. `kind` is what it is about, None when it is none that an apply may show."""

    @property
    def kind(self):
        text, buttons = self.text, set(self.buttons)
        if "Internal error" in text:
            return None
        if buttons == {"OK", "Cancel"} and "Transaction to be performed:" in text:
            return "listing"
        if "How do you wish to proceed?" in text and len(self.buttons) == 3:
            return "conflict"
        if buttons == {"Yes", "No"}:
            for words, kind in (("It can be done by removing:", "removing"),
                                ("The rest can be done without:", "skipping"),
                                ("would also remove:", "losing"),
                                ("It would also remove what", "unlisted")):
                if words in text:
                    return kind
            if self.title == "VOK Key Import":
                return "key"
        if self.title == "VOK Transaction Report":
            return "report"
        if self.title == "VOK Yum Error":
            return "refusal"
        return None


class Window:
    """The window on a root; its table lists everything."""

    def __init__(self, place):
        self._recorder = Recorder(place)
        self._log = 0
        opened = self._recorder.do("wait", timeout=180)
        self.boxes = [self._box(one) for one in opened["dialogs"]]
        self._recorder.do("press", button="groupsCheck")
        self._recorder.do("choose", box="stateCombo", index=_VIEW_ALL)
        self._recorder.do("answer", rules=[{"title": "", "button": ""}])  # each box waits for us

    @staticmethod
    def _box(dialog):
        return Box(dialog["title"], dialog["text"], dialog["buttons"])

    def rows(self):
        """All rows, in an order that does not depend on the run."""
        table = self._recorder.do("table")["table"]
        rows = [Row(index, *fields, tuple(map(tuple, chain)))
                for index, (*fields, chain) in enumerate(table)]
        return sorted(rows, key=lambda row: (row.kind == GROUP, row.name, row.arch, row.version))

    def mark(self, marks):
        """Clicks the action cells of [(row, action)]."""
        self._recorder.do("toggle", rows=[[row.index, _CLICKS[row.state, action]] for row, action in marks])
        table = self._recorder.do("table")["table"]
        for row, action in marks:
            if table[row.index][6] != action:
                raise AssertionError(f"the clicks on {row} gave it action {table[row.index][6]}")

    def update_listed(self):
        """Presses the button for all updates; returns what is marked."""
        self._recorder.do("press", button="setUpdateListedButton")
        return [(row, row.action) for row in self.rows() if row.action != NONE]

    def apply(self, answer):
        """Applies; `answer(box)` gives the text of the button to press. Returns (boxes, whether rpm ran,
        the new log lines)."""
        boxes, states = [], []
        self._recorder.do("press", button="applyButton")
        while True:
            told = self._recorder.do("next", timeout=180)
            states += told["states"]
            if not told["dialogs"]:
                break
            box = self._box(told["dialogs"][-1])
            boxes.append(box)
            self._recorder.do("press", button=answer(box))
        lines = self._recorder.do("log", **{"from": self._log})["log"]
        self._log += len(lines)
        return boxes, "transaction" in states, [text for _, _, text in lines]

    def clear_actions(self):
        self._recorder.do("press", button="clearActionsButton")

    def close(self):
        self._recorder.close()
