# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Transactions of the script: marks, the listing, and what the rpm database holds afterwards."""

import os
import unittest

from scriptdriver import Case, calls, run, tool

# Marks; the listing (names only); what is gone and what came, as rpm tells it; what scriptlets print.
TABLE = {
    "installations, with what they need": (
        {"install": ["abacus", "chain-one", "richly", "poster", "games-suite", "twice", "many-files",
                     "libsolo.i686"]},
        {"installed": ["abacus", "chain-one", "richly", "poster", "games-suite", "twice", "many-files",
                       "libsolo"],
         "depinstalled": ["chain-two", "chain-three", "chain-four", "font-sans", "chess", "mandolin"]},
        (), ("abacus-1.2-1.x86_64", "chain-one-1.0-1.noarch", "chain-two-1.0-1.noarch",
             "chain-three-1.0-1.noarch", "chain-four-1.0-1.noarch", "richly-1.0-1.noarch",
             "chess-1.2-1.x86_64", "poster-1.0-1.noarch", "font-sans-1.0-1.noarch",
             "games-suite-1.0-1.noarch", "mandolin-1.2-1.x86_64", "twice-1.0-1.noarch",
             "many-files-1.0-1.noarch", "libsolo-1.1-1.i686")),
    "updates that need others, change their architecture, have both, or take over a package": (
        {"update": ["epochal", "bellows", "lockstep", "swift-data", "swallow-data", "libtwin", "merged",
                    "weather", "stack-wall"]},
        {"updated": ["epochal", "bellows", "lockstep", "swift-data", "swallow-data", "libtwin", "libtwin",
                     "merged", "weather", "stack-wall"],
         "depinstalled": ["airpipe"], "depupdated": ["lockstep-libs"], "obsoleted": ["oldtwin"]},
        ("epochal-5.0-1.noarch", "bellows-2.0-1.noarch", "lockstep-1.0-1.noarch",
         "lockstep-libs-1.0-1.noarch", "swift-data-1.0-1.noarch", "swallow-data-1.0-1.x86_64",
         "libtwin-1.0-1.i686", "libtwin-1.0-1.x86_64", "merged-1.0-1.noarch", "oldtwin-1.0-1.noarch",
         "weather-1.0-1.noarch", "stack-wall-1.0-1.noarch"),
        ("epochal-1.2-1.noarch", "bellows-3.0-1.noarch", "airpipe-1.0-1.noarch", "lockstep-2.0-1.noarch",
         "lockstep-libs-2.0-1.noarch", "swift-data-2.0-1.x86_64", "swallow-data-2.0-1.noarch",
         "libtwin-1.1-1.i686", "libtwin-1.1-1.x86_64", "merged-2.0-1.noarch", "weather-1.2-2.noarch",
         "stack-wall-1.1-1.noarch")),
    "updates of the distribution, of several versions, and with texts of all sorts": (
        {"update": ["kernel", "vital", "aster-release", "office-suite", "dictionary", "notebook", "chronicle",
                    "latin-text", "longwinded", "polyglot", "confy"]},
        {"updated": ["kernel", "vital", "aster-release", "office-suite", "dictionary", "notebook", "chronicle",
                     "latin-text", "longwinded", "polyglot", "confy"]},
        ("vital-1.0-1.noarch", "aster-release-9-1.noarch", "office-suite-1.0-1.noarch",
         "dictionary-9.1-1.x86_64", "notebook-3.1~rc2-1.x86_64", "chronicle-1.200-1.noarch",
         "latin-text-1.0-1.noarch", "longwinded-1.0-1.noarch", "polyglot-1.0-1.noarch", "confy-1.0-1.noarch"),
        ("kernel-6.1.0-9.x86_64", "vital-1.1-1.noarch", "aster-release-9-3.noarch", "office-suite-2.0-1.noarch",
         "dictionary-9.10-1.x86_64", "notebook-3.1-1.x86_64", "chronicle-1.400-1.noarch",
         "latin-text-1.1-1.noarch", "longwinded-1.1-1.noarch", "polyglot-1.1-1.noarch", "confy-2.0-1.noarch")),
    "removals of all versions and architectures, and of what stands on something": (
        {"remove": ["kernel", "libtwin", "stack-floor", "orphan", "markup"]},
        {"removed": ["kernel", "kernel", "libtwin", "libtwin", "stack-floor", "orphan", "markup"],
         "depremoved": ["stack-roof", "stack-wall", "orphan-notes", "twin-guest"]},
        ("kernel-6.1.0-1.x86_64", "kernel-6.1.0-5.x86_64", "libtwin-1.0-1.i686", "libtwin-1.0-1.x86_64",
         "twin-guest-1.0-1.i686", "stack-floor-1.0-1.noarch", "stack-roof-1.0-1.noarch", "stack-wall-1.0-1.noarch",
         "orphan-1.0-1.noarch", "orphan-notes-1.0-1.noarch", "markup-1.0-1.noarch"), ()),
    "all three kinds, with a replacement, a downgrade, another provider and one of two architectures": (
        {"install": ["newname", "pins-old"], "update": ["clock"], "remove": ["mail-alpha", "libtwin.x86_64"]},
        {"installed": ["newname", "pins-old"], "updated": ["clock"], "removed": ["mail-alpha", "libtwin"],
         "obsoleted": ["oldname"], "depinstalled": ["mail-beta"], "depdowngraded": ["libpin"]},
        ("oldname-1.0-1.noarch", "libpin-2.0-1.x86_64", "clock-1.0-1.x86_64", "mail-alpha-1.0-1.noarch",
         "libtwin-1.0-1.x86_64"),
        ("newname-2.0-1.noarch", "libpin-1.0-1.x86_64", "pins-old-1.0-1.noarch", "clock-1.0-2.x86_64",
         "mail-beta-1.0-1.noarch")),
    "scriptlets of the shell and in Lua, a trigger, one that reads, one that prints a lot": (
        {"install": ["shell-hello", "lua-hello", "tripwire", "inquisitive", "loud"]},
        {"installed": ["shell-hello", "lua-hello", "tripwire", "inquisitive", "loud"]},
        (), ("shell-hello-1.1-1.noarch", "lua-hello-1.0-1.noarch", "tripwire-1.0-1.noarch",
             "inquisitive-1.0-1.noarch", "loud-1.0-1.noarch"),
        "shell-hello pre 1\n", "shell-hello post 1\n", "lua-hello pretrans\n", "lua-hello pre\n",
        "lua-hello post\n", "lua-hello posttrans\n", "watcher saw tripwire come\n", "no input\n", "\n4711\n"),
}

# The same marks as commands of dnf. Of updates that cannot be had it says nothing, while here the user
# is asked; those whose scriptlets fail it tells by its status; and what replaces another name or comes in
# another family of architectures is an installation here.
BESIDE_DNF = {
    "a mixed installation": ({"install": ["richly", "poster", "text-hebrew"]},
                             ["install", "richly", "poster", "text-hebrew"]),
    "every update": (None, ["upgrade", "--setopt=best=0"]),
    "a deep removal, of one architecture and of one of two providers": (
        {"remove": ["stack-ground", "libtwin.x86_64", "mail-alpha"]},
        ["remove", "--noautoremove", "stack-ground", "libtwin.x86_64", "mail-alpha"]),
}


def listed(result):
    """The lists that were shown, {list: sorted names}, empty ones left out."""
    lists = calls(result, "listTransaction")[0][0]
    return {name: sorted(member[0].split(":")[1].rsplit("-", 2)[0] for member in members)
            for name, members in lists.items() if members}


class Transactions(Case):
    def test_table(self):
        for name, (marks, listing, gone, came, *printed) in TABLE.items():
            with self.subTest(name):
                root = self.root()
                before = self.packages(root)
                files = self.files(root, gone)
                result, value, error = self.apply(root, marks)
                self.assertEqual((value, error), (True, None))
                self.assertEqual(listed(result), {key: sorted(part) for key, part in listing.items()})
                after = self.packages(root)
                self.assertEqual((before - after, after - before), (set(gone), set(came)))
                outcomes = calls(result, "transactionReport")[0][0]
                self.assertEqual({outcome for _, outcome, _ in outcomes}, {"done"})
                told = {row[0].partition(":")[2].replace(":", "", 1) for row in outcomes}
                self.assertEqual({one for one in before ^ after}, told)
                output = "".join(text for text, in calls(result, "stdoutWrite")) + result["stdout"]
                for text in printed:
                    self.assertIn(text, output)
                self.assertTraces(root, files - self.files(root, came), came)
                history = tool(root, "dnf", "history", "info", "last")
                self.assertRegex(history, r"Comment +: Done with VOK")
                self.assertRegex(history, r"Return-Code +: Success")
                for one in gone + came:
                    self.assertIn(one.replace("epochal-1.2", "epochal-1:1.2"), history)

    @staticmethod
    def files(root, packages):
        """The paths that installed packages own."""
        lines = tool(root, "rpm", "-ql", *packages).splitlines() if packages else []
        return {line for line in lines if line.startswith("/")}

    def assertTraces(self, root, lost, came):
        """Lost files are gone, those of what came are as they were packed."""
        self.assertEqual({path for path in lost if os.path.lexists("%s%s" % (root, path))
                          and not os.path.isdir("%s%s" % (root, path))}, set())
        if came:
            self.assertEqual(tool(root, "rpm", "-V", "--nodeps", *came, check=False), "")

    def test_beside_dnf(self):
        for name, (marks, command) in BESIDE_DNF.items():
            with self.subTest(name):
                ours, theirs = self.root(), self.root()
                if marks is None:
                    marks = {"install": ["newname", "heron.i686", "stork.noarch"],
                             "update": run(ours, {"steps": [{"do": "collect"}]})
                             ["values"][0]["updates"]}
                result, value, error = self.apply(ours, marks)
                self.assertEqual((value, error), (True, None))
                tool(theirs, "dnf", "-y", "-q", *command, check="update" not in marks)
                self.assertSame(ours, theirs)

    def test_told_while_it_runs(self):
        result, *_ = self.apply(self.root(), {"install": ["shell-hello"], "update": ["bellows"],
                                              "remove": ["orphan-notes"]})
        names = [call[0] for call in result["calls"]]
        order = ["dsTsCheck", "dsRestartLoop", "listTransaction", "reportDownloadSize",
                 "userconfirm", "tsInitCallback", "tsEvent", "postTransactionOutput",
                 "transactionReport"]
        self.assertEqual(sorted(order, key=names.index), order)
        self.assertIn([4, "TSINFO: Marking 0:airpipe-1.0-1.noarch as install for dependencies"],
                      calls(result, "log"))
        events = calls(result, "tsEvent")
        firsts = {}
        for package, code, done, total, number, count in events:
            firsts.setdefault(number, (package, code))
            self.assertLessEqual(done, total)
            self.assertLessEqual(number, count)
        self.assertEqual(set(firsts.values()), {
            ("0:airpipe-1.0-1.noarch", 30), ("0:bellows-3.0-1.noarch", 10),
            ("0:shell-hello-1.1-1.noarch", 30), ("orphan-notes", 40), ("bellows", 90)})
        self.assertEqual([state for state, _ in calls(result, "jobState")][-5:],
                         ["resolve", "download", "transaction", "done", "done"])
        self.assertEqual([can for state, can in calls(result, "jobState")
                          if state == "transaction"], [0])

    def test_sessions_after_one_another(self):
        """Declined and failed applies leave the session usable; a transaction ends it."""
        root = self.root()
        before = self.packages(root)
        result = run(root, {"confirm": [0], "steps": [
            {"do": "collect"}, {"do": "apply", "install": ["abacus"]},
            {"do": "apply", "install": ["clash-left", "clash-right"]},
            {"do": "apply", "install": ["chess"]}, {"do": "apply", "install": ["abacus"]},
            {"do": "collect"}, {"do": "apply", "remove": ["chess"]}]})
        self.assertEqual([value for value in result["values"] if not isinstance(value, dict)],
                         [False, None, True, None, True])
        self.assertIn("/etc/clash.conf", result["errors"][2][1])
        self.assertIn("read again", result["errors"][4][1])
        self.assertEqual(self.packages(root), before)


if __name__ == "__main__":
    unittest.main()
