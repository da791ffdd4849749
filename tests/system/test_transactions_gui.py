# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The table, groups, what stops a transaction before it begins, and the report after one that went wrong, as
the window has them."""

import pathlib
import unittest

import ownrepo
from ownrepo import package
from recorder import INSTALL, REMOVE, UPDATE, Recorder
from scriptdriver import Case, tool

GAMES = "Games &<Amusements>"  # libcomps takes the blank away
GROUP, PRESENT = 1, 2  # a kind of row, and the state of what is installed


class Window(Case):
    def open(self, root, rules=()):
        """The window on a root, its table filled."""
        window = Recorder(root)
        self.addCleanup(window.close)
        if rules:
            window.do("answer", rules=rules)
        self.opened = window.do("wait", timeout=180)
        return window

    def run_marks(self, window, marks, *answers):
        """Marks {action: names} and applies; answers are (title, button) of the questions in their order,
        after them "Apply" is confirmed. Returns the dialogs as {"title", "text", "buttons"}."""
        for action, names in marks.items():
            window.do("mark", names=names, action=action)
        window.do("answer", rules=[dict(title=title, button=button, times=1)
                                   for title, button in answers]
                  + [{"title": "Apply", "button": "OK"}])
        window.do("press", button="applyButton")
        return window.do("wait", timeout=180)["dialogs"]

    def titles(self, dialogs):
        return [dialog["title"] for dialog in dialogs]


class Table(Window):
    def test_collected(self):
        """The rows are what rpm and dnf say."""
        root = self.root()
        rows = [row[1:] for row in self.open(root).do("table")["table"] if row[0] != GROUP]
        found = [[row[1], *version] for row in rows for version in row[6]]
        found += [row[1:4] for row in rows if row[0] == PRESENT]
        told = tool(root, "rpm", "-qa", "--qf", "%{NAME} %|EPOCH?{%{EPOCH}:}|%{VERSION}-%{RELEASE} %{ARCH}\\n")
        # Keys are no packages to anybody but rpm.
        self.assertEqual(sorted(map(" ".join, found)), sorted(
            line.replace(" 0:", " ") for line in told.splitlines() if not line.startswith("gpg-pubkey ")))
        words = tool(root, "dnf", "-q", "list", "--all").partition("Available Packages")[2].split()
        # Of a version that several repositories offer dnf lists each, the table shows one.
        offers = {(*name.rpartition(".")[::2], version, repo) for name, version, repo in zip(*[iter(words)] * 3)}
        offers = {(name, version, arch, repo) for name, arch, version, repo in offers if arch != "src"}
        shown = [tuple(row[1:5]) for row in rows if row[0] != PRESENT]
        self.assertEqual(set(shown) - offers, set())
        self.assertEqual(sorted(one[:3] for one in shown), sorted({one[:3] for one in offers}))
        self.assertGreater(len(shown), 20)

    def test_groups(self):
        """Installed, updated and removed groups are what dnf makes of them, in its records too, even when no
        package has to change."""
        ours, theirs = self.root(), self.root()
        window = self.open(ours)
        for action, name, command in ((INSTALL, GAMES, "install games"), (UPDATE, "Office", "upgrade office"),
                                      (REMOVE, GAMES, "remove games"), (INSTALL, "Messages", "install messages"),
                                      (UPDATE, "Messages", "upgrade messages")):
            with self.subTest(command):
                self.assertEqual(self.titles(self.run_marks(window, {action: [name]})), ["Apply"])
                tool(theirs, "dnf", "-y", "-q", "--noautoremove", "group", *command.split())
                self.assertSame(ours, theirs)
        log = window.logged()
        self.assertIn("For group Office, not marking package typewriter for Install, becuase the package is "
                      "optional", log)
        self.assertIn("For group Office, marking package notebook for Update", log)
        self.assertIn("text-hebrew-1.0-1", log)  # its condition held


class Elements(Window):
    def test_other_rows(self):
        """What an update replaces may belong to the row of another family, or to one without an update: nothing
        is reported beside the listing."""
        root = self.root()
        old = package("foo", "1-1", "x86_64")
        installed = ownrepo.add(root, "old", old, package("archy", "1-1"), package("twin", "1-1", "i686"),
                                package("twin", "1-1", "x86_64"), options="enabled=0")
        ownrepo.add(root, "better", old, options="priority=10")
        ownrepo.add(root, "late", package("foo", "2-1", "x86_64"), package("bar", "1-1", requires=("foo >= 2",)),
                    package("archy", "2-1", "i686"), package("twin", "2-1"))
        tool(root, "rpm", "-U", "--nosignature", *installed)
        before = self.packages(root)
        window = self.open(root)
        box, = self.run_marks(window, {INSTALL: ["bar", "archy.i686"], UPDATE: ["twin.noarch"]})
        self.assertIn("Update: foo 2-1 (x86_64) [late]", box["text"])
        self.assertEqual(before ^ self.packages(root), {
            "foo-1-1.x86_64", "foo-2-1.x86_64", "bar-1-1.noarch", "archy-1-1.noarch", "archy-2-1.i686",
            "twin-1-1.i686", "twin-1-1.x86_64", "twin-2-1.noarch"})


class Trouble(Window):
    def test_nothing_is_changed(self):
        """What stops a transaction before rpm begins, named by its package."""
        root = self.root()
        before = self.packages(root)
        window = self.open(root)
        for marks, title, words in (
                ({INSTALL: ["unsigned", "abacus"]}, "VOK Yum Error", ["unsigned-1.0-1.noarch", "sign"]),
                ({INSTALL: ["damaged", "abacus"]}, "VOK Yum Error", ["damaged-1.0-1.noarch"]),
                ({INSTALL: ["foreign-key"]}, "VOK Key Import", ["Owner: ", "Fingerprint: ", "@foundry.example",
                                                               "file:///srv/repos/RPM-GPG-KEY-foundry"]),
                ({REMOVE: ["vital"]}, "VOK Yum Error", ["vital", "protected"])):
            with self.subTest(marks):
                dialogs = self.run_marks(window, marks, ("VOK Key Import", "No"))
                text = "".join(one["text"] for one in dialogs if one["title"] == title)
                for word in words:
                    self.assertIn(word, text, dialogs)
                self.assertEqual(self.packages(root), before)
                self.assertEqual(window.marked(), {name: action for action, names in marks.items()
                                                       for name in names}, "the marks stay")
                window.do("press", button="clearActionsButton")

        dialogs = self.run_marks(window, {INSTALL: ["foreign-key"]}, ("VOK Key Import", "Yes"))
        self.assertEqual(self.titles(dialogs), ["Apply", "VOK Key Import"])
        self.assertEqual(self.packages(root) - before, {"foreign-key-1.0-1.noarch"})

    def test_metadata_key(self):
        """A repository whose metadata is signed with an unknown key is left out, or the key imported."""
        root = self.root()
        configured = root / "etc/yum.repos.d/foundry.repo"
        configured.write_text(configured.read_text(encoding="utf-8").replace(
            "enabled=0", "enabled=1", 1).replace("[foundry]\n", "[foundry]\nskip_if_unavailable=1\n"),
            encoding="utf-8")
        window = self.open(root, [{"title": "VOK Key Import", "button": "No", "times": 1},
                                  {"title": "VOK Key Import", "button": "Yes"}])
        self.assertIn("VOK Key Import", self.titles(self.opened["dialogs"]))
        self.assertNotIn("hammer", window.do("rows")["table"])
        window.do("press", button="refreshButton")
        self.assertIn("VOK Key Import", self.titles(window.do("wait", timeout=180)["dialogs"]))
        self.assertIn("hammer", window.do("rows")["table"])

    def test_another_program_changed_packages(self):
        """Nothing is applied on rows that are not true; the marks that still fit outlive the refresh."""
        root = self.root()
        window = self.open(root)
        packages = pathlib.Path(root, "srv/repos/9/x86_64").glob("*/Packages/*.rpm")
        tool(root, "rpm", "-U", "--nodeps", "--nosignature",
             *(str(path) for path in packages if path.name.startswith(("abacus-1.2-1.x", "clock-1.0-2."))))
        after = self.packages(root)
        box, = self.run_marks(window, {INSTALL: ["abacus", "chess"], REMOVE: ["clock"], UPDATE: ["notebook"]},
                              ("VOK Yum Warning", "Refresh"))
        for line in ("Installed: abacus-1.2-1.x86_64", "Changed: clock.x86_64 1.0-1 -> 1.0-2"):
            self.assertIn(line, box["text"])
        self.assertEqual(self.packages(root), after)
        self.assertEqual(window.marked(), {"chess": INSTALL, "clock": REMOVE, "notebook": UPDATE})
        for line in ("No longer possible, and not marked any more: abacus.",
                     "Marked now in another version: clock 1.0-1 -> 1.0-2."):
            self.assertIn(line, window.logged())

        # The same while the listing is shown.
        window.do("answer", rules=[{"title": "", "button": ""}])
        window.do("press", button="applyButton")
        window.do("next")
        tool(root, "rpm", "-e", "compass")
        window.do("press", button="OK")
        self.assertIn("Removed: compass-0.8-1.x86_64", window.do("next")["dialogs"][0]["text"])
        window.do("press", button="Cancel")
        self.assertEqual(after - self.packages(root), {"compass-0.8-1.x86_64"})

    def test_failures_are_reported(self):
        window = self.open(self.root())
        dialogs = self.run_marks(window, {INSTALL: ["abacus", "fail-pre", "fail-post"],
                                          UPDATE: ["doubles"], REMOVE: ["fail-preun", "compass"]})
        self.assertEqual(self.titles(dialogs), ["Apply", "VOK Transaction Report"])
        self.assertRegex(dialogs[1]["text"], "(?s)Failed:.*fail-pre-1.*Done, with errors:.*fail-post.*Done:.*abacus")
        self.assertEqual(dialogs[1]["text"].count("scriptlet failed, exit status 7"), 4)
        table = window.do("rows")["table"]
        self.assertEqual([table[name][0] for name in ("abacus", "fail-post", "fail-preun")], [PRESENT] * 3)
        self.assertEqual(window.marked(), {"fail-pre": INSTALL, "fail-preun": REMOVE},
                         "the marks of what was not done")
        self.assertIn("fail-post gives up", window.logged())


if __name__ == "__main__":
    unittest.main()
