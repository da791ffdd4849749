# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""A program that is killed in the middle of a transaction: what the next start tells, and that the system
is sound and can be brought to where it was to go."""

import concurrent.futures
import json
import os
import pathlib
import re
import signal
import subprocess
import unittest

from recorder import start_program, wait_for_scriptlet
from scriptdriver import SANDBOX, Case, calls, run, tool
from guidriver import Screen, key, wait_for

UPDATE, REMOVE = ["clock", "bellows", "confy"], ["compass"]
NEVER = {"killAt": ["never", 0]}  # allows that a scenario is killed from outside
MARKER = "var/lib/vok/transaction.json"


def event(name, code, started=True):
    """A condition: rpm begins with an element, or is in the midst of it."""
    def holds(arguments):
        package, its_code, done, total = arguments[:4]
        return name in package and its_code == code and (done == 0 if started else 0 < done < total)
    return holds


def line(start):
    return lambda arguments: arguments[1].startswith(start)


# What is installed beside the updates and the removal; a callback and what its arguments hold in the call
# that kills; whether rpm had begun by then.
IN_A_CALLBACK = {
    "while it resolves": ("abacus", "dsTsCheck", lambda _: True, False),
    "while the user is asked": ("abacus", "userconfirm", lambda _: True, False),
    "before rpm begins": ("abacus", "tsInitCallback", lambda _: True, False),
    "while rpm prepares": ("abacus", "log", line("Preparing"), True),
    "between two elements": ("abacus", "tsEvent", event("confy", 10), True),
    "while a large file is unpacked": ("heavy", "tsEvent", event("heavy", 30, False), True),
    "at the removal": ("abacus", "tsEvent", event("compass", 40), True),
    "in the cleanup of an update": ("abacus", "tsEvent", event("clock", 90), True),
    "at the last element": ("abacus", "tsEvent", event("bellows", 90), True),
    "once rpm is through": ("abacus", "log", line("Removed: "), True),
}
# A scriptlet's own words: it is killed while that runs.
IN_A_SCRIPTLET = {"slow-1 pre": "slow-1", "slow-2 post": "slow-2"}


def name_of(package):
    return package.rsplit("-", 2)[0]


def row_of(package):
    return name_of(package), package.rpartition(".")[2]


def check(root):
    """What dnf finds wrong with a root; empty when nothing is."""
    return subprocess.run([SANDBOX, "dnf", root, "-q", "check"], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT).stdout


def kill_in_scriptlet(root, words, process):
    """Kills a process then."""
    wait_for_scriptlet(root, words)
    os.kill(process(), signal.SIGKILL)


class Interrupted(Case):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.rehearsals = {}

    def rehearse(self, install):
        """How a transaction goes when nobody kills it: the marks, the result, the packages before and
        after."""
        if install not in self.rehearsals:
            root = self.root()
            marks = {"install": [install], "update": UPDATE, "remove": REMOVE}
            before = self.packages(root)
            result, value, error = self.apply(root, marks)
            self.assertEqual((value, error), (True, None))
            self.rehearsals[install] = marks, result, before, self.packages(root)
        self.marks, self.result, self.before, self.after = self.rehearsals[install]

    def kill_in_callback(self, root, callback, condition, marks):
        told = calls(self.result, callback)
        number = [condition(arguments) for arguments in told].index(True)
        # Lines of the log about the cache come and go.
        moment = [callback, 1, told[number]] if callback == "log" else [callback, number + 1]
        done = run(root, {"steps": [{"do": "collect"}, dict(marks, do="apply")], "killAt": moment})
        self.assertIsNone(done, "it was not killed")

    def kill_in_scriptlet(self, root, words):
        with concurrent.futures.ThreadPoolExecutor(1) as pool:
            done = pool.submit(run, root, dict(NEVER, steps=[{"do": "collect"},
                                                             dict(self.marks, do="apply")]))
            kill_in_scriptlet(root, words,
                              lambda: json.loads((root / MARKER).read_text(encoding="utf-8"))["pid"])
            self.assertIsNone(done.result())

    def verify(self, root, begun):
        """The next start tells what the database shows; the rest can then be done."""
        tool(root, "rpm", "--verifydb")
        left = self.packages(root)
        missing = self.after - self.before - left
        remaining = (self.before - self.after) & left
        doubled = {old for old in remaining if row_of(old) in map(row_of, left - self.before)}
        # dnf pairs the architectures of a library at will.
        pairs = re.findall(r"^(\S+) is a duplicate with ", check(root), re.M)
        self.assertEqual(set(map(name_of, pairs)), set(map(name_of, doubled)))

        steps = ["collect", "interrupted", "collect", "interrupted", "forgetInterrupted", "collect", "interrupted"]
        result = run(root, {"steps": [{"do": step} for step in steps]})
        self.assertEqual(set(result["errors"]), {None})
        _, lines, _, unread, _, _, again = result["values"]
        self.assertEqual((lines, []), (unread, again), "it is told until it has been read")
        self.assertEqual(bool(lines), begun, lines)
        if begun:
            total = len(self.after ^ self.before)
            self.assertIn("done: %d of %d." % (total - len(missing) - len(remaining), total),
                          lines[1])
            for pattern, expected in ((r"Not installed: 0:(\S+)\. If", missing),
                                      (r"Installed twice: 0:(\S+) beside 0:\S+\.$", doubled),
                                      (r"Not removed: 0:(\S+)$", remaining - doubled)):
                matches = [re.match(pattern, one) for one in lines]
                self.assertEqual({match[1] for match in matches if match}, expected, lines)
        self.complete(root, left, doubled)

    def complete(self, root, left, doubled):
        """The user marks what is missing, and the older of what is there twice for removal."""
        missing, there = set(map(name_of, self.after - left)), set(map(name_of, left))
        marks = {"install": sorted(missing.intersection(self.marks["install"])),
                 "update": sorted(missing.intersection(UPDATE)),
                 "remove": ["0:" + one for one in doubled] + sorted(there.intersection(REMOVE))}
        if any(marks.values()):
            _, value, error = self.apply(root, marks)
            self.assertEqual((value, error), (True, None))
        self.assertEqual(self.packages(root), self.after)
        self.assertEqual(check(root), "")
        tool(root, "rpm", "--verifydb")
        self.assertEqual(tool(root, "rpm", "-V", *self.marks["install"], *UPDATE), "")

    def test_killed_in_a_callback(self):
        for name, (install, callback, condition, begun) in IN_A_CALLBACK.items():
            with self.subTest(name):
                self.rehearse(install)
                root = self.root()
                self.kill_in_callback(root, callback, condition, self.marks)
                self.verify(root, begun)

    def test_killed_between_two_architectures(self):
        """One that is new does not make the other a double. (It is not completed here: rpm takes these
        two, which hold no binaries, for versions of one another when it updates one alone.)"""
        marks, seen = {"update": ["libtwin"]}, set()
        self.result, *_ = self.apply(self.root(), marks)
        for arch in ("i686", "x86_64"):
            root = self.root()
            self.kill_in_callback(root, "tsEvent", event("libtwin-1.1-1." + arch, 10), marks)
            left = self.packages(root)
            lines = run(root, {"steps": [{"do": "collect"}, {"do": "interrupted"}]})["values"][1]
            for one in ("i686", "x86_64"):
                old, new = "libtwin-1.0-1." + one, "libtwin-1.1-1." + one
                seen.add(new in left)
                self.assertIn("Installed twice: 0:%s beside 0:%s." % (old, new) if new in left
                              else "Not removed: 0:%s" % old, lines)
        self.assertEqual(seen, {True, False})

    def test_killed_in_a_scriptlet(self):
        for words, install in IN_A_SCRIPTLET.items():
            with self.subTest(words):
                self.rehearse(install)
                root = self.root()
                self.kill_in_scriptlet(root, words)
                self.verify(root, True)


class RealProgram(Case):
    """The program itself, with mouse and keys on a virtual display."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.enterClassContext(Screen())

    def apply_listed(self, program, count):
        """Marks the rows that are listed, a known number of them, and applies."""
        program.wait_enabled(program.find("push button", "Refresh"), "the window")
        table = program.find(("table", "tree table"))
        wait_for(lambda: len(program.cells(table)) == count, "the rows alone in the table")
        for row in range(count):
            program.click(table.get_table_iface().get_accessible_at(row, 0))
        program.wait_enabled(program.find("push button", "Apply Actions"), "Apply Actions")
        program.click(program.find("push button", "Apply Actions"))
        program.click(program.find("push button", "OK", program.find("dialog", "Apply")))

    def test_killed_and_started_again(self):
        root = self.root()
        program = start_program(self, root, "-s", "all", "-e", "^slow-1 ")
        self.apply_listed(program, 1)
        kill_in_scriptlet(root, "slow-1 post", lambda: program.process.pid)
        program.process.wait()
        tool(root, "rpm", "--verifydb")

        program = start_program(self, root)
        dialog = program.find("dialog", "VOK Interrupted Transaction")
        text = "\n".join(map(program.texts, program.walk(dialog)))
        self.assertIn("The last transaction was interrupted.\nSteps that had been done: 1 of 1.", text)
        key("Return")
        program.wait_enabled(program.find("push button", "Refresh"), "the window")
        self.assertIsNone(program.look("dialog"))
        key("ctrl+q")
        self.assertEqual(program.end(), 0)
        self.assertEqual(check(root), "")

    def test_quit_in_the_midst(self):
        """What rpm has done is told: at once to who quits, at the next start after a SIGTERM."""
        for attended in (True, False):
            root = self.root()
            program = start_program(self, root, "-s", "all", "-e", "^(slow-1|fail-post) ")
            self.apply_listed(program, 2)
            wait_for_scriptlet(root, "slow-1 post")
            if attended:
                key("alt+F4")
                key("alt+F4")
            else:
                program.process.terminate()
                self.assertEqual(program.end(), 0)
                program = start_program(self, root)
            dialog = program.find("dialog", "VOK Transaction Report")
            text = "\n".join(map(program.texts, program.walk(dialog)))
            self.assertIn("Transaction: 2 done, 0 failed, 0 skipped", text)
            self.assertIn("fail-post", text)
            key("Return")
            tool(root, "rpm", "--verifydb")
            if not attended:
                program.wait_enabled(program.find("push button", "Refresh"), "the window")
                self.assertFalse((root / "var/lib/vok/report.txt").exists(), "it is shown once")
                key("ctrl+q")
            self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    unittest.main()
