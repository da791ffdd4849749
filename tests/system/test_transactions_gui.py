"""Transactions as the window runs them: groups with the conflict question, what stops a transaction before
it begins, and the report after one that went wrong."""

import pathlib
import unittest

from recorder import INSTALL, NONE, REMOVE, UPDATE, Recorder
from scriptdriver import Case, tool

GAMES = "Games &<Amusements>"  # libcomps takes the blank away
PRESENT = 2  # the state of what is installed


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

    @staticmethod
    def log(window):
        return "\n".join(text for _, _, text in window.do("log")["log"])

    @staticmethod
    def groups(root):
        return tool(root, "dnf", "-q", "group", "list", "--installed")


class Groups(Window):
    def test_one_after_another(self):
        """Installed, updated and removed groups are what dnf makes of them, in its records too."""
        ours, theirs = self.root(), self.root()
        window = self.open(ours)
        dialogs = self.run_marks(window, {INSTALL: [GAMES]})
        self.assertEqual(self.titles(dialogs), ["Apply"])
        for member in ("chess", "lantern", "mandolin", "text-hebrew"):
            self.assertIn("\tInstall: %s " % member, dialogs[0]["text"])
        self.assertNotIn("abacus", dialogs[0]["text"])
        tool(theirs, "dnf", "-y", "-q", "group", "install", "games")
        self.assertEqual(self.packages(ours), self.packages(theirs))
        self.assertEqual(self.groups(ours), self.groups(theirs))

        dialogs = self.run_marks(window, {UPDATE: ["Office"]})
        self.assertEqual(self.titles(dialogs), ["Apply"])
        self.assertIn("For group Office, not marking package typewriter for Install, becuase the "
                      "package is optional", self.log(window))
        self.assertIn("For group Office, marking package notebook for Update", self.log(window))
        tool(theirs, "dnf", "-y", "-q", "group", "upgrade", "office")
        self.assertEqual(self.packages(ours), self.packages(theirs))

        dialogs = self.run_marks(window, {REMOVE: [GAMES]})
        self.assertEqual(self.titles(dialogs), ["Apply"])
        tool(theirs, "dnf", "-y", "-q", "--noautoremove", "group", "remove", "games")
        self.assertEqual(self.packages(ours), self.packages(theirs))
        self.assertEqual(self.groups(ours), self.groups(theirs))
        self.assertEqual(self.groups(ours).split(), ["Installed", "Groups:", "Office", "Outdoors"])

    def test_conflicts(self):
        root = self.root()
        before = self.packages(root)
        window = self.open(root)

        # Against a mark of its own, and against an earlier answer; cancelled then.
        marks = {REMOVE: ["notebook"], UPDATE: ["Office", "Hobbies"]}
        first, second = self.run_marks(window, marks, ("Apply", "Remove"), ("Apply", "Cancel"))
        start = ("Package notebook is included in group %s which was marked for Update,\n"
                 "so the package would be marked for Update,\n%s\nHow do you wish to proceed?")
        one, other = ("Office", "Hobbies") if "group Office" in first["text"] else ("Hobbies", "Office")
        self.assertEqual(first["text"], start % (one, "but it was marked individually for Remove."))
        self.assertEqual(second["text"], start % (
            other, "but you resolved an earlier conflict by marking it for Remove."))
        self.assertEqual(first["buttons"], ["Update", "Remove", "Cancel"])
        self.assertEqual(self.packages(root), before)
        self.assertIn("Manually resolving conflict: marking package notebook for Remove",
                      self.log(window))

        # Against the mark of another group.
        window.do("press", button="clearActionsButton")
        only, = self.run_marks(window, {REMOVE: ["Office"], UPDATE: ["Hobbies"]}, ("Apply", "Cancel"))
        self.assertIn("but it also was part of group ", only["text"])
        self.assertEqual(self.packages(root), before)

        # The first button takes what the group implies.
        window.do("press", button="clearActionsButton")
        dialogs = self.run_marks(window, {REMOVE: ["notebook"], UPDATE: ["Office"]}, ("Apply", "Update"))
        self.assertEqual(self.titles(dialogs), ["Apply", "Apply"])
        self.assertIn("\tUpdate: notebook ", dialogs[1]["text"])
        self.assertNotIn("Remove", dialogs[1]["text"])
        self.assertIn("notebook-3.1-1.x86_64", self.packages(root))


class Trouble(Window):
    def test_nothing_is_changed(self):
        """What stops a transaction before rpm begins, named by its package."""
        root = self.root()
        before = self.packages(root)
        window = self.open(root)
        for marks, title, words in (
                ({INSTALL: ["unsigned", "abacus"]}, "VOK Yum Error", ["unsigned-1.0-1.noarch", "sign"]),
                ({INSTALL: ["damaged", "abacus"]}, "VOK Yum Error", ["damaged-1.0-1.noarch"]),
                ({INSTALL: ["foreign-key"]}, "VOK Key Import", ["Owner: ", "Fingerprint: ", "foundry"]),
                ({REMOVE: ["vital"]}, "VOK Yum Error", ["vital", "protected"])):
            with self.subTest(marks):
                dialogs = self.run_marks(window, marks, ("VOK Key Import", "No"))
                text = "".join(one["text"] for one in dialogs if one["title"] == title)
                for word in words:
                    self.assertIn(word, text, dialogs)
                self.assertEqual(self.packages(root), before)
                self.assertEqual(self.marked(window), {name: action for action, names in marks.items()
                                                       for name in names}, "the marks stay")
                window.do("press", button="clearActionsButton")

        dialogs = self.run_marks(window, {INSTALL: ["foreign-key"]}, ("VOK Key Import", "Yes"))
        self.assertEqual(self.titles(dialogs), ["Apply", "VOK Key Import"])
        self.assertEqual(self.packages(root) - before, {"foreign-key-1.0-1.noarch"})

    @staticmethod
    def marked(window):
        table = window.do("rows")["table"]
        return {name: action for name, (_, _, _, action) in table.items() if action != NONE}

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

    def test_what_goes_along(self):
        """Removals show what they take along before anything goes."""
        root = self.root()
        window = self.open(root)
        before = self.packages(root)
        window.do("mark", names=["stack-ground"], action=REMOVE)
        window.do("answer", rules=[{"title": "Apply", "button": "Cancel"}])
        window.do("press", button="applyButton")
        listing, = window.do("wait", timeout=120)["dialogs"]
        marked, _, extra = listing["text"].partition("Performing the following to resolve dependencies:")
        self.assertIn("\tRemove: stack-ground 1.0-1 (noarch)\n", marked)
        for storey in ("floor", "wall", "roof"):
            self.assertIn("\tRemove: stack-%s 1.0-1 (noarch)\n" % storey, extra)
        self.assertEqual(self.packages(root), before)

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
        self.assertEqual(self.marked(window), {"chess": INSTALL, "clock": REMOVE, "notebook": UPDATE})
        for line in ("No longer possible, and not marked any more: abacus.",
                     "Marked now in another version: clock 1.0-1 -> 1.0-2."):
            self.assertIn(line, self.log(window))

    def test_failures_are_reported(self):
        root = self.root()
        before = self.packages(root)
        window = self.open(root)
        dialogs = self.run_marks(window, {INSTALL: ["abacus", "fail-pre", "fail-post"],
                                          UPDATE: ["doubles"], REMOVE: ["fail-preun", "compass"]})
        self.assertEqual(self.titles(dialogs), ["Apply", "VOK Transaction Report"])
        parts = dict(part.split(":\n", 1) for part in dialogs[1]["text"].strip().split("\n\n")[1:])
        self.assertEqual(
            {title: {line.split(":")[1] for line in text.splitlines()} for title, text in parts.items()},
            {"Failed": {"fail-pre-1.0-1.noarch", "fail-preun-1.0-1.noarch", "doubles-1.0-1.noarch"},
             "Done, with errors": {"fail-post-1.0-1.noarch"},
             "Done": {"abacus-1.2-1.x86_64", "doubles-2.0-1.noarch", "compass-0.8-1.x86_64"}})
        self.assertEqual(parts["Failed"].count("scriptlet failed, exit status 7"), 3)
        after = self.packages(root)
        self.assertEqual((before - after, after - before),
                         ({"compass-0.8-1.x86_64"},
                          {"abacus-1.2-1.x86_64", "fail-post-1.0-1.noarch", "doubles-2.0-1.noarch"}))
        table = window.do("rows")["table"]
        self.assertEqual([table[name][0] for name in ("abacus", "fail-post", "fail-preun")], [PRESENT] * 3)
        self.assertEqual(self.marked(window), {"fail-pre": INSTALL, "fail-preun": REMOVE},
                         "the marks of what was not done")
        self.assertIn("fail-post gives up", self.log(window))
        history = tool(root, "dnf", "history", "info", "last")
        self.assertRegex(history, r"Comment +: Done with VOK")


if __name__ == "__main__":
    unittest.main()
