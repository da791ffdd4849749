# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The run: roots, steps, comparisons, and what is told."""

import collections
import os
import pathlib
import random
import shutil
import time

import choice
import mirror
import records
import root
import rules
import variants
import window

_STEPS_OF_A_ROOT = (8, 20)
_NAMES = {window.UPDATE: "update", window.INSTALL: "install", window.REMOVE: "remove"}


class Difference(Exception):
    """What no rule explains; the text is for the user."""


class Run:
    def __init__(self, place, steps, seed, first):
        self._place, self._steps, self._seed, self._chapter = place, steps, seed, first
        self._counts = collections.Counter()
        self._used = collections.Counter()

    def all(self):
        """All steps; the exit status."""
        started, done = time.monotonic(), 0
        while done < self._steps:
            chapter = Chapter(self._place, f"{self._seed}.{self._chapter}", self._counts, self._used)
            try:
                done += chapter.all(min(self._steps - done, chapter.length))
            except (Difference, AssertionError) as difference:
                print(f"\n{difference}\n\nroot: {chapter.lines}\nmarks of each step so far:")
                print("\n".join(chapter.told))
                print(f"again: tools/agree {len(chapter.told)} {chapter.seed}", flush=True)
                self._keep()
                return 1
            finally:
                chapter.close()
            self._chapter += 1
        print(f"{done} steps in {time.monotonic() - started:.0f} s, no difference that no rule explains.")
        for title, counter in (("outcomes", self._counts), ("rules used", self._used)):
            print(f"{title}: " + (", ".join(f"{name} {count}" for name, count in counter.most_common())
                                  or "none"))
        return 0

    def _keep(self):
        keep = os.environ.get("AGREE_KEEP")
        if keep:
            shutil.copytree(self._place, keep, symlinks=True, dirs_exist_ok=True)


class Chapter:
    """The steps on one root."""

    def __init__(self, place, seed, counts, used):
        self.seed = seed
        self.told = []
        self._counts, self._used = counts, used
        self._random = random.Random(seed)
        self.length = self._random.randint(*_STEPS_OF_A_ROOT)
        self.lines = variants.choose(self._random)
        self._window = None
        self._same = True   # whether the roots are, as far as is known
        self._answers = []  # (kind of a box, the button pressed) of a step
        self._place = pathlib.Path(place) / "window"
        theirs = pathlib.Path(place) / "mirror"
        root.create(self._place)
        root.copy(self._place, theirs)
        variants.configure(self._place, self.lines)
        variants.configure(theirs, self.lines, spread=True)
        self._used[rules.EXCLUDES.name] += variants.spreads(self.lines)
        print(f"root {seed}: {self.lines or 'as it is'}", flush=True)
        self._mirror = mirror.Mirror(theirs)

    def close(self):
        if self._window:
            self._window.close()

    def all(self, steps):
        self._window = window.Window(self._place)
        for box in self._window.boxes:
            raise Difference(f"a box at the start: {box}")
        self._window_transaction = records.last_transaction(self._place)
        self._mirror_transaction = records.last_transaction(self._mirror.place)
        for _ in range(steps):
            started = time.monotonic()
            told = self._step()
            print(f"  {len(self.told)}. {self.told[-1]}: {told} ({time.monotonic() - started:.1f} s)",
                  flush=True)
            if told == "barren":
                break
        return len(self.told)

    def _step(self):
        rows = self._window.rows()
        before = records.packages(self._place)
        self._explain(self._rows_against_mirror(rows, before), rules.Step(self.lines, rows, [], []))
        marks = self._mark(rows)
        self.told.append(", ".join(f"{_NAMES[action]} {row.name}.{row.arch}" for row, action in marks)
                         or "nothing")
        if not marks:
            return "barren"
        self._answers = []
        boxes, ran, log = self._window.apply(self._answer)
        wrong = [f"box: {box.title} {box.text} {box.buttons}" for box in boxes if not box.kind]
        wrong += [f"log: {line}" for line in log if "Internal error" in line]
        if wrong:
            raise Difference("\n".join(wrong))
        lost = self._lost_twins(rows, self._for_dnf(rows, marks), before)
        if lost:
            raise Difference(f"lost, although nobody marked them: {lost}")
        kinds = [box.kind for box in boxes]
        outcome = ", ".join(["done" if ran else "nothing", *(kind for kind in kinds if kind != "listing")])
        differences = []
        if not ran:
            differences += self._changed("VOK", self._place, before)
            if records.last_transaction(self._place) != self._window_transaction:
                differences.append("VOK alone: a transaction is recorded")
        differences += self._likewise(rows, self._for_dnf(rows, marks), kinds, ran, before)
        self._explain(differences, rules.Step(self.lines, rows, marks, kinds))
        if any(row.action != window.NONE for row in self._window.rows()):
            self._window.clear_actions()
        self._counts[outcome] += 1
        said = [" ".join(box.text.split())[:300] for box in boxes if box.kind not in ("listing", "report")]
        return "; ".join([outcome, *said])

    def _mark(self, rows):
        if self._random.random() < 0.03:
            return self._window.update_listed()
        marks = choice.marks(self._random, rows)
        self._window.mark(marks)
        return marks

    def _for_dnf(self, rows, marks):
        """The marks with what dnf has to be told besides to do the same."""
        result = list(marks)
        for translation in rules.TRANSLATIONS:
            more = [one for one in translation.more(rows, result) if one not in result]
            self._used[translation.name] += bool(more)
            result += more
        return result

    def _lost_twins(self, rows, marks, before):
        """The other architectures of what was removed that are gone, too: nothing in a root makes them go."""
        after = records.packages(self._place)
        lost, there = ({(name.rsplit("-", 2)[0], name.rpartition(".")[2]) for name in names}
                       for names in (before - after, after))
        kept = {(row.name, arch) for row in rules.twins(rows, [one for one in marks if one[1] != mirror.KEEP])
                for _, arch in mirror.installed(row)}
        return sorted(lost.difference(there) & kept)

    def _hidden(self, rows, marks):
        """The options that hide from dnf the installed packages that are excluded and not marked."""
        marked = {row for row, _ in marks}
        names = [f"{row.name}-{version}.{arch}" for row in rows if row.kind != window.GROUP and row not in marked
                 for version, arch in mirror.installed(row) if variants.hides(self.lines, row.name, version, arch)]
        removes = any(action == window.REMOVE for _, action in marks)
        return [f"--exclude={','.join(names)}"] if names and removes else []

    def _answer(self, box):
        """The text of the button to press; what is declined is noted."""
        button = "OK" if "OK" in box.buttons else box.buttons[-1]
        if box.kind == "listing":
            button = "Cancel" if self._random.random() < 0.05 else "OK"
        elif box.kind == "conflict":
            button = "Cancel"
        elif "Yes" in box.buttons:
            button = "Yes" if self._random.random() < 0.7 else "No"
        self._answers.append((box.kind, button))
        return button

    def _likewise(self, rows, marks, kinds, ran, before):
        """Has the mirror do the same; returns what differs."""
        asked = [kind for kind in kinds if kind in ("removing", "skipping")]
        declined = any(button in ("Cancel", "No") for _, button in self._answers)
        if declined and not asked:
            return []
        hidden = self._hidden(rows, marks)
        if asked and self._mirror.can(marks, *hidden):
            return [f"VOK asks about {asked}, dnf does it as marked"]
        removals = {action for _, action in marks} == {window.REMOVE}
        if removals:
            self._mirror.remove([row for row, _ in marks], *hidden)
            if ran:
                return self._roots_differ()
        if not ran:
            if not asked and not removals:
                self._mirror.apply(marks, *hidden)
            if not asked:
                # Some of what it cannot do it records all the same.
                self._same = records.last_transaction(self._mirror.place) == self._mirror_transaction
            return self._changed("DNF", self._mirror.place, before)
        lost = []
        if not asked:
            upgrading = {action for _, action in marks} == {window.UPDATE} and self._random.random() < 0.5
            lost = self._mirror.apply(marks, *hidden, upgrading=upgrading)
        elif "removing" in asked:
            self._mirror.apply(marks, *hidden, "--allowerasing")
        else:
            self._mirror.apply(marks, *hidden, "--setopt=strict=0")
        return self._roots_differ() + [f"dnf upgrade leaves out {name}" for name in lost]

    def _changed(self, whose, place, before):
        """Lines about what changed in a root that should be as it was."""
        after = records.packages(place)
        return [f"{whose} alone: {sign} {name}" for sign, names in (("-", before - after), ("+", after - before))
                for name in sorted(names)]

    def _roots_differ(self):
        ours, theirs = records.packages(self._place), records.packages(self._mirror.place)
        lines = [f"packages: only {whose} {name}" for whose, names in
                 (("VOK", ours - theirs), ("DNF", theirs - ours)) for name in sorted(names)]
        ours = records.transactions(self._place, self._window_transaction)
        theirs = records.transactions(self._mirror.place, self._mirror_transaction)
        if len(ours) != len(theirs):
            return lines + [f"records: VOK has {len(ours)} transactions, DNF {len(theirs)}"]
        for one, other in zip(ours, theirs):
            lines += [f"records: only {whose} {line}" for whose, items in
                      (("VOK", _without(one, other)), ("DNF", _without(other, one))) for line in items]
        return lines

    def _rows_against_mirror(self, rows, before):
        packages = [row for row in rows if row.kind != window.GROUP]
        there = set()
        for row in packages:
            for version, arch in mirror.installed(row):
                epoch = "" if ":" in version else "0:"
                there.add(f"{row.name}-{epoch}{version}.{arch}")
        installed = {name for name in before if not name.startswith("gpg-pubkey")}
        offered = {f"{row.name}.{row.arch} {row.version}" for row in packages
                   if row.state == window.UPDATABLE}
        return [f"{what}: only {whose} {name}" for what, ours, theirs in
                (("installed rows", there, installed), ("updates", offered, self._mirror.upgrades))
                for whose, names in (("VOK", ours - theirs), ("DNF", theirs - ours))
                for name in sorted(names)]

    def _explain(self, differences, step):
        """Takes the differences that a rule explains; Difference for the rest. Both roots are the same
        afterwards."""
        left = []
        for line in differences:
            rule = next((rule for rule in rules.RULES if rule.explains(line, step)), None)
            if rule:
                self._used[rule.name] += 1
            else:
                left.append(line)
        if left:
            raise Difference("\n".join([*left, "", "what dnf said:", self._mirror.output]))
        if not step.marks:
            return
        if differences or not self._same:
            self._mirror.become(self._place)
        self._same = True
        self._window_transaction = records.last_transaction(self._place)
        self._mirror_transaction = records.last_transaction(self._mirror.place)


def _without(some, others):
    """What is in a list and not in the other, as often as that is so."""
    rest = collections.Counter(some)
    rest.subtract(others)
    return sorted(rest.elements())
