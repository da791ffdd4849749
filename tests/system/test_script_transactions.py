"""Transactions of the script: marks, the listing, and what the rpm database holds afterwards."""

import os
import subprocess
import unittest

from scriptdriver import SANDBOX, Case, calls, run, tool

# Marks; the listing (names only); what is gone and what came, as rpm tells it; what scriptlets print.
TABLE = {
    "an installation alone": (
        {"install": ["abacus"]}, {"installed": ["abacus"]},
        (), ("abacus-1.2-1.x86_64",)),
    "a chain of dependencies": (
        {"install": ["chain-one"]},
        {"installed": ["chain-one"], "depinstalled": ["chain-two", "chain-three", "chain-four"]},
        (), ("chain-one-1.0-1.noarch", "chain-two-1.0-1.noarch", "chain-three-1.0-1.noarch",
             "chain-four-1.0-1.noarch")),
    "an update with an epoch": (
        {"update": ["epochal"]}, {"updated": ["epochal"]},
        ("epochal-5.0-1.noarch",), ("epochal-1.2-1.noarch",)),
    "an update that needs an installation": (
        {"update": ["bellows"]}, {"updated": ["bellows"], "depinstalled": ["airpipe"]},
        ("bellows-2.0-1.noarch",), ("bellows-3.0-1.noarch", "airpipe-1.0-1.noarch")),
    "an update that needs another": (
        {"update": ["lockstep"]}, {"updated": ["lockstep"], "depupdated": ["lockstep-libs"]},
        ("lockstep-1.0-1.noarch", "lockstep-libs-1.0-1.noarch"),
        ("lockstep-2.0-1.noarch", "lockstep-libs-2.0-1.noarch")),
    "changes between noarch and an architecture": (
        {"update": ["swift-data", "swallow-data"]}, {"updated": ["swallow-data", "swift-data"]},
        ("swift-data-1.0-1.noarch", "swallow-data-1.0-1.x86_64"),
        ("swift-data-2.0-1.x86_64", "swallow-data-2.0-1.noarch")),
    "both architectures of one name": (
        {"update": ["libtwin"]}, {"updated": ["libtwin", "libtwin"]},
        ("libtwin-1.0-1.i686", "libtwin-1.0-1.x86_64"),
        ("libtwin-1.1-1.i686", "libtwin-1.1-1.x86_64")),
    "a package kept in several versions": (
        {"update": ["kernel"]}, {"updated": ["kernel"]}, (), ("kernel-6.1.0-9.x86_64",)),
    "all versions of such a package": (
        {"remove": ["kernel"]}, {"removed": ["kernel", "kernel"]},
        ("kernel-6.1.0-1.x86_64", "kernel-6.1.0-5.x86_64"), ()),
    "a removal that takes what stands on it": (
        {"remove": ["stack-floor"]},
        {"removed": ["stack-floor"], "depremoved": ["stack-roof", "stack-wall"]},
        ("stack-floor-1.0-1.noarch", "stack-roof-1.0-1.noarch", "stack-wall-1.0-1.noarch"), ()),
    "a package that replaces another name": (
        {"install": ["newname"]}, {"installed": ["newname"], "obsoleted": ["oldname"]},
        ("oldname-1.0-1.noarch",), ("newname-2.0-1.noarch",)),
    "an update that takes over another package": (
        {"update": ["merged"]}, {"updated": ["merged"], "obsoleted": ["oldtwin"]},
        ("merged-1.0-1.noarch", "oldtwin-1.0-1.noarch"), ("merged-2.0-1.noarch",)),
    "an installation that brings a downgrade": (
        {"install": ["pins-old"]}, {"installed": ["pins-old"], "depinstalled": ["libpin"]},
        ("libpin-2.0-1.x86_64",), ("libpin-1.0-1.x86_64", "pins-old-1.0-1.noarch")),
    "all three kinds at once": (
        {"install": ["chess"], "update": ["clock"], "remove": ["orphan-notes"]},
        {"installed": ["chess"], "updated": ["clock"], "removed": ["orphan-notes"]},
        ("clock-1.0-1.x86_64", "orphan-notes-1.0-1.noarch"),
        ("chess-1.2-1.x86_64", "clock-1.0-2.x86_64")),
    "twenty thousand files": (
        {"install": ["many-files"]}, {"installed": ["many-files"]},
        (), ("many-files-1.0-1.noarch",)),
    "one of two providers": (
        {"install": ["poster"]}, {"installed": ["poster"], "depinstalled": ["font-sans"]},
        (), ("font-sans-1.0-1.noarch", "poster-1.0-1.noarch")),
    "both providers": (
        {"install": ["font-sans", "font-serif"]}, {"installed": ["font-sans", "font-serif"]},
        (), ("font-sans-1.0-1.noarch", "font-serif-1.0-1.noarch")),
    "a removal for which another provider comes": (
        {"remove": ["mail-alpha"]}, {"removed": ["mail-alpha"], "depinstalled": ["mail-beta"]},
        ("mail-alpha-1.0-1.noarch",), ("mail-beta-1.0-1.noarch",)),
    "rich and weak dependencies": (
        {"install": ["richly"]}, {"installed": ["richly"], "depinstalled": ["chess"]},
        (), ("chess-1.2-1.x86_64", "richly-1.0-1.noarch")),
    "the newest of several updates": (
        {"update": ["weather"]}, {"updated": ["weather"]},
        ("weather-1.0-1.noarch",), ("weather-1.2-2.noarch",)),
    "one version in two repositories": (
        {"install": ["twice"]}, {"installed": ["twice"]}, (), ("twice-1.0-1.noarch",)),
    "the other architecture alone": (
        {"install": ["libsolo.i686"]}, {"installed": ["libsolo"]}, (), ("libsolo-1.1-1.i686",)),
    "both architectures removed": (
        {"remove": ["libtwin"]}, {"removed": ["libtwin", "libtwin"]},
        ("libtwin-1.0-1.i686", "libtwin-1.0-1.x86_64"), ()),
    "an update of a suite": (
        {"update": ["office-suite"]}, {"updated": ["office-suite"]},
        ("office-suite-1.0-1.noarch",), ("office-suite-2.0-1.noarch",)),
    "a suite with what it holds": (
        {"install": ["games-suite"]},
        {"installed": ["games-suite"], "depinstalled": ["chess", "mandolin"]},
        (), ("chess-1.2-1.x86_64", "games-suite-1.0-1.noarch", "mandolin-1.2-1.x86_64")),
    "versions that compare unlike texts": (
        {"update": ["dictionary", "notebook"]}, {"updated": ["dictionary", "notebook"]},
        ("dictionary-9.1-1.x86_64", "notebook-3.1~rc2-1.x86_64"),
        ("dictionary-9.10-1.x86_64", "notebook-3.1-1.x86_64")),
    "texts of all sorts": (
        {"update": ["chronicle", "latin-text", "longwinded", "polyglot"], "remove": ["markup"]},
        {"updated": ["chronicle", "latin-text", "longwinded", "polyglot"], "removed": ["markup"]},
        ("chronicle-1.200-1.noarch", "latin-text-1.0-1.noarch", "longwinded-1.0-1.noarch",
         "markup-1.0-1.noarch", "polyglot-1.0-1.noarch"),
        ("chronicle-1.400-1.noarch", "latin-text-1.1-1.noarch", "longwinded-1.1-1.noarch",
         "polyglot-1.1-1.noarch")),
    "a configuration file that is kept": (
        {"update": ["confy"]}, {"updated": ["confy"]},
        ("confy-1.0-1.noarch",), ("confy-2.0-1.noarch",)),
    "one storey of a stack": (
        {"update": ["stack-wall"]}, {"updated": ["stack-wall"]},
        ("stack-wall-1.0-1.noarch",), ("stack-wall-1.1-1.noarch",)),
    "a removal of what no repository has": (
        {"remove": ["orphan"]}, {"removed": ["orphan"], "depremoved": ["orphan-notes"]},
        ("orphan-1.0-1.noarch", "orphan-notes-1.0-1.noarch"), ()),
    "a protected package's update": (
        {"update": ["vital"]}, {"updated": ["vital"]},
        ("vital-1.0-1.noarch",), ("vital-1.1-1.noarch",)),
    "the distribution's release": (
        {"update": ["aster-release"]}, {"updated": ["aster-release"]},
        ("aster-release-9-1.noarch",), ("aster-release-9-3.noarch",)),
    "scriptlets of the shell": (
        {"install": ["shell-hello"]}, {"installed": ["shell-hello"]},
        (), ("shell-hello-1.1-1.noarch",), "shell-hello pre 1\nshell-hello post 1\n"),
    "scriptlets in Lua": (
        {"install": ["lua-hello"]}, {"installed": ["lua-hello"]}, (), ("lua-hello-1.0-1.noarch",),
        "lua-hello pretrans\nlua-hello pre\nlua-hello post\nlua-hello posttrans\n"),
    "a trigger of an installed package": (
        {"install": ["tripwire"]}, {"installed": ["tripwire"]},
        (), ("tripwire-1.0-1.noarch",), "watcher saw tripwire come\n"),
    "a scriptlet that reads": (
        {"install": ["inquisitive"]}, {"installed": ["inquisitive"]},
        (), ("inquisitive-1.0-1.noarch",), "no input\n"),
    "a scriptlet that prints a lot": (
        {"install": ["loud"]}, {"installed": ["loud"]}, (), ("loud-1.0-1.noarch",), "\n4711\n"),
}

# The same marks as commands of dnf. Of updates that cannot be had it says nothing, while here the user
# is asked; those whose scriptlets fail it tells by its status; and what replaces another name is an
# installation here.
BESIDE_DNF = {
    "a mixed installation": ({"install": ["richly", "poster", "text-hebrew"]},
                             ["install", "richly", "poster", "text-hebrew"]),
    "every update": (None, ["upgrade", "--setopt=best=0"]),
    "a deep removal": ({"remove": ["stack-ground", "calendar"]},
                       ["remove", "--noautoremove", "stack-ground", "calendar"]),
    "an installed group": ({"groups": [["Messages", 1]]}, ["group", "install", "messages"]),
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
                self.assertIn(*(printed or [""]), output)
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

    def assertSame(self, ours, theirs):
        """Two roots hold the same packages, groups and reasons."""
        self.assertEqual(self.packages(ours), self.packages(theirs))
        for query in (["group", "list"], ["repoquery", "--userinstalled"]):
            self.assertEqual(tool(ours, "dnf", "-q", *query), tool(theirs, "dnf", "-q", *query))

    def test_beside_dnf(self):
        for name, (marks, command) in BESIDE_DNF.items():
            with self.subTest(name):
                ours, theirs = self.root(), self.root()
                if marks is None:
                    marks = {"install": ["newname"],
                             "update": run(ours, {"steps": [{"do": "collect"}]})
                             ["values"][0]["updates"]}
                result, value, error = self.apply(ours, marks)
                self.assertEqual((value, error), (True, None))
                tool(theirs, "dnf", "-y", "-q", *command, check="update" not in marks)
                self.assertSame(ours, theirs)

    def test_group_removed_as_dnf_does(self):
        """What was installed for a group leaves with it, by us or by dnf."""
        ours = self.root()
        self.apply(ours, {"groups": [["Games &<Amusements>", 1]]})
        self.assertIn("text-hebrew-1.0-1.noarch", self.packages(ours))  # its condition holds
        theirs = self.place / "copy"
        subprocess.run([SANDBOX, "copy", ours, theirs], check=True)
        self.apply(ours, {"groups": [["Games &<Amusements>", 2]]})
        tool(theirs, "dnf", "-y", "-q", "group", "remove", "--noautoremove", "games")
        self.assertSame(ours, theirs)

    def test_told_while_it_runs(self):
        root = self.root()
        result, *_ = self.apply(root, {"install": ["shell-hello"], "update": ["bellows"],
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
        output = "".join(text for text, in calls(result, "stdoutWrite"))
        self.assertIn("shell-hello pre 1\n", output)
        self.assertEqual([state for state, _ in calls(result, "jobState")][-4:],
                         ["resolve", "download", "transaction", "done"])
        self.assertEqual([can for state, can in calls(result, "jobState")
                          if state == "transaction"], [0])
        history = tool(root, "dnf", "history", "info", "last")
        self.assertRegex(history, r"Comment +: Done with VOK")
        self.assertRegex(history, r"Return-Code +: Success")

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

    def test_groups_are_recorded(self):
        """Groups follow in DNF's records, even when no package has to change."""
        root = self.root()
        result, value, error = self.apply(root, {"groups": [["Science", 1], ["Office", 2]]})
        self.assertEqual((value, error), (True, None))
        self.assertFalse({one for one in self.packages(root) if one.startswith("notebook")})
        self.assertEqual(self.groups(root), ["Outdoors", "Science"])
        result, value, error = self.apply(root, {"groups": [["Science", 0]]})
        self.assertEqual((value, error), (True, None))
        self.assertEqual(calls(result, "tsEvent"), [])
        self.assertEqual(self.groups(root), ["Outdoors", "Science"])

    @staticmethod
    def groups(root):
        return tool(root, "dnf", "-q", "group", "list", "--installed").split()[2:]


if __name__ == "__main__":
    unittest.main()
