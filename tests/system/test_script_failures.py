# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What the script does when a transaction cannot be had, is stopped, or fails half-way."""

import pathlib
import re
import unittest

import httpserver
from scriptdriver import Case, calls, mounted, run, tool

# Marks that cannot be resolved as they are; words of the explanation; the question, when there is a way
# out; what comes and goes after a yes.
UNRESOLVABLE = {
    "a missing provider": ({"install": ["broken"]}, ["broken-1.0-1.noarch needs no-such-thing >= 2"]),
    "an update in the same case": ({"update": ["stuck"]}, ["needs libmissing.so.3"]),
    "an excluded provider": ({"install": ["needs-shunned"]},
                             ["shunned-1.0-1.noarch is excluded", "repository extras", "exclude=shunned"]),
    "a protected package": ({"remove": ["vital"]}, ["vital, which is protected"]),
    "what a protected package needs": ({"remove": ["vital-libs"]}, ["vital, which is protected"]),
    "what would push a protected package out": ({"install": ["usurper"]}, ["vital"]),
    "an excluded package that depends on a removal": (
        {"remove": ["mail-alpha"]}, ["mail-reader-1.0-1.noarch needs mail-server", "exclude=mail-reader"]),
    "the same beside an installation": ({"remove": ["notebook"], "install": ["abacus"]},
                                        ["needs notebook", "exclude=office-suite"]),
}
WAYS_OUT = {
    "leaving out what is broken": ({"install": ["broken", "abacus"]}, "The rest can be done without:",
                                   (), ("abacus-1.2-1.x86_64",)),
    "erasing what conflicts": ({"install": ["mail-beta"]}, "It can be done by removing:",
                               ("mail-alpha-1.0-1.noarch",), ("mail-beta-1.0-1.noarch",)),
    "erasing beside a removal": ({"install": ["mail-beta"], "remove": ["clock"]}, "Remove these too?",
                                 ("mail-alpha-1.0-1.noarch", "clock-1.0-1.x86_64"),
                                 ("mail-beta-1.0-1.noarch",)),
}
LONG = "fail-pretrans-under-a-name-that-is-too-long-for-lua"
# Marks; what is reported of each element that is not simply done; what came and what went.
HALF_WAY = {
    "%pretrans beside an epoch and a name that is cut": (
        {"install": ["fail-pretrans", LONG, "abacus"]},
        {"fail-pretrans": ("failed", "%pretrans"), LONG: ("failed", "%pretrans")}, {"abacus"}, set()),
    "scriptlets of what comes": (
        {"install": ["needs-fail-pre", "fail-lua", "fail-post", "badwire", "no-shell", "abacus"]},
        {"fail-pre": ("failed", "%prein"), "fail-lua": ("failed", "on purpose"), "fail-post": ("done", "%post"),
         "badwire": ("done", "%triggerin(bad-watcher"), "no-shell": ("done", "no-such-shell")},
        {"needs-fail-pre", "fail-post", "badwire", "no-shell", "abacus"}, set()),
    "scriptlets of updates and of what goes": (
        {"update": ["fail-update", "doubles"], "remove": ["fail-preun", "clock"]},
        {"fail-update": ("failed", "%prein"), "fail-update old": ("skipped", "was not installed"),
         "doubles old": ("failed", "%preun"), "fail-preun": ("failed", "%preun")}, {"doubles"}, {"clock"}),
}

# Lines of a repository's section, the names of URLs standing for them; what a test answers, in order.
REPO_TESTS = {
    "every URL": ("baseurl={gone} {good}", "missing good"),
    "names and passwords": ("baseurl={good}kivvet?u=joe&p=S3cr%26t%2fword&path=/ {good}kivvet?u=joe&p=x&path=/"
                            " {good}rhel/u=joe/p=x/ {wrong}", "good password password password"),
    "a sign-in page, an unknown host": ("baseurl={page} http://nobody.invalid/x", "nothing host"),
    "nobody listens": ("baseurl={closed} ftp://127.0.0.1:{port}/x", "refused refused"),
    "an authority of its own": ("baseurl={https}\nsslcacert={ca}", "good"),
    "certificates": ("baseurl={https} {stranger}", "certificate certificate"),
    "whoever it is": ("baseurl={https}\nsslverify=0", "good"),
    "a proxy that is not there": ("baseurl={good}\nproxy={closed}", "proxy"),
    "files, and a variable": ("baseurl=file://{files}/$basearch/extras file:///gone", "good missing"),
    "the first good mirror": ("mirrorlist={mirrors}", "refused good"),
    "a metalink": ("metalink={metalink}", "good"),
    "a list without mirrors": ("mirrorlist={page}", "empty"),
    "a metalink that is called a list": ("mirrorlist={good}links", "empty"),
    "a list that is not there": ("mirrorlist={gone}\nbaseurl={good}", "good nolist"),
    "an option that DNF does not take": ("baseurl={good}\nsslverify=maybe", "definition good"),
    "no section at all": ("baseurl={good}\nno option", "definition"),
    "no repository": ("[main]\nbaseurl={good}", "definition"),
    "no URL": ("enabled=1", ""),
}


def name_of(package):
    return package.rpartition(":")[2].rsplit("-", 2)[0]


class Failures(Case):
    def change(self, root, before):
        after = self.packages(root)
        return set(after - before), set(before - after)

    @staticmethod
    def configure(root, line):
        """Puts a line at the end of the main section."""
        with pathlib.Path(root, "etc/yum.conf").open("a") as main:
            main.write(line + "\n")

    def test_unresolvable(self):
        root = self.root()
        self.configure(root, "exclude=mail-reader office-suite")
        before = self.packages(root)
        steps = [dict(marks, do="apply") for marks, _ in UNRESOLVABLE.values()]
        result = run(root, {"steps": [{"do": "collect"}, *steps]})
        for (name, (_, words)), error in zip(UNRESOLVABLE.items(), result["errors"][1:]):
            with self.subTest(name):
                self.assertEqual(error[0], "YumBaseError")
                for word in words:
                    self.assertIn(word, error[1])
                self.assertNotIn("What was marked", error[1])  # it has a reason
        self.assertEqual(calls(result, "userconfirm"), [])
        self.assertEqual(self.packages(root), before)

    def test_no_reason(self):
        """Where the solver knows none, the marks are named: here more kernels than may be kept."""
        root = self.root()
        self.configure(root, "installonly_limit=2")
        tool(root, "rpm", "-e", "kernel-6.1.0-1", "kernel-6.1.0-5")
        kernels = "io._session.sack.query().available().filter(name='kernel')"
        code = "io.apply([io._collected().package(one) for one in %s], [], [])" % kernels
        result = run(root, {"confirm": [0], "steps": [{"do": "collect"}, {"do": "eval", "code": code}]})
        self.assertIn([0, "  What was marked cannot be had all together: %s." % ", ".join(
            "kernel-6.1.0-%d.x86_64" % release for release in (1, 5, 9))], calls(result, "log"))

    def test_ways_out(self):
        for name, (marks, question, gone, came) in WAYS_OUT.items():
            with self.subTest(name):
                root = self.root()
                before = self.packages(root)
                declined, value, error = self.apply(root, marks, confirm=[0])
                self.assertEqual((value, error), (False, None))
                self.assertEqual(calls(declined, "listTransaction"), [])
                self.assertTrue(any(question in text for _, text in calls(declined, "log")))
                self.assertEqual(self.packages(root), before)
                _, value, error = self.apply(root, marks, confirm=[1, 1])
                self.assertEqual((value, error), (True, None))
                self.assertEqual(self.change(root, before), (set(came), set(gone)))

    def test_half_way(self):
        for name, (marks, reported, came, gone) in HALF_WAY.items():
            with self.subTest(name):
                root = self.root()
                before = self.packages(root)
                result, value, error = self.apply(root, marks)
                self.assertEqual((value, error), (True, None))
                found = {}
                for package, outcome, reason in calls(result, "transactionReport")[0][0]:
                    old = package.partition(":")[2] in before and package not in str(marks) \
                        and name_of(package) in marks.get("update", ())
                    found[name_of(package) + " old" * old] = outcome, reason
                self.assertEqual({key for key, row in found.items() if row != ("done", "")},
                                 set(reported))
                for key, (outcome, word) in reported.items():
                    self.assertEqual(found[key][0], outcome)
                    self.assertIn(word, found[key][1])
                new, lost = self.change(root, before)
                self.assertEqual((set(map(name_of, new)), set(map(name_of, lost))), (came, gone))

    def test_full_disk(self):
        """A disk that fills while rpm unpacks."""
        root = self.root()
        before = self.packages(root)
        main = pathlib.Path(root, "etc/yum.conf")
        main.write_text(main.read_text().replace("[main]", "[main]\ndiskspacecheck=0"))
        under = mounted("mount -t tmpfs -o size=4m tmpfs %s/usr/share" % root)
        if not under:
            self.skipTest("this user cannot mount anything")
        result, _, error = self.apply(root, {"install": ["heavy", "abacus"]}, under=under)
        self.assertIsNone(error)
        done, failed = sorted(calls(result, "transactionReport")[0][0])
        self.assertEqual(done, ["0:abacus-1.2-1.x86_64", "done", ""])
        self.assertEqual(failed[:2], ["0:heavy-1.0-1.noarch", "failed"])
        self.assertIn("needs 64 MiB, and a file system has only", failed[2])
        self.assertEqual(self.change(root, before)[0], {"abacus-1.2-1.x86_64"})

    def test_file_conflict(self):
        root = self.root()
        for marks in ({"install": ["clash-left", "clash-right"]}, {"install": ["clash-calendar"]}):
            result, value, error = self.apply(root, marks)
            self.assertEqual((value, error[0]), (None, "YumBaseError"))
            self.assertRegex(error[1], "file /.+ conflicts ")
            self.assertEqual(calls(result, "tsEvent"), [])

    def test_only_tested(self):
        """With tsflags=test nothing changes, and no transaction looks interrupted."""
        root = self.root()
        before = self.packages(root)
        main = pathlib.Path(root, "etc/yum.conf")
        main.write_text(main.read_text().replace("[main]", "[main]\ntsflags=test"))
        result, value, error = self.apply(root, {"install": ["abacus"], "remove": ["compass"]})
        self.assertEqual((value, error), (True, None))
        self.assertIn("tsflags=test", "".join(text for _, text in calls(result, "log")))
        self.assertEqual(calls(result, "transactionReport")[0][0], [["0:abacus-1.2-1.x86_64", "tested", ""],
                                                                    ["0:compass-0.8-1.x86_64", "tested", ""]])
        self.assertEqual(self.packages(root), before)
        self.assertFalse(pathlib.Path(root, "var/lib/vok/transaction.json").exists())
        self.assertEqual(self.apply(root, {"install": ["clash-left", "clash-right"]})[2][0], "YumBaseError")

    @staticmethod
    def serve(root, urls, extra=""):
        path = pathlib.Path(root, "etc/yum.repos.d/aster-extras.repo")
        text = re.sub("baseurl = .*", "baseurl = " + "\n  ".join(urls), path.read_text())
        path.write_text(text + "\ntimeout=5\nretries=1\n%s\n" % extra)

    def test_cancel(self):
        """A cancel ends what is running; the packages and the session are as before."""
        for at, step, error in (("collectGrabMeterUpdate", 0, "CancelledRepoError"),
                                ("collectProgress", 0, "CancelledError"),
                                ("dsTsCheck", 1, "CancelledError"),
                                ("reportDownloadSize", 1, "CancelledError"),
                                ("applyGrabMeterUpdate", 1, "CancelledError")):
            with self.subTest(at):
                root = self.root()
                before = self.packages(root)
                directory = pathlib.Path(root, "srv/repos/9/x86_64/extras")
                with httpserver.Server(directory) as server:
                    self.serve(root, [server.url("", "rate=40000;only=*.rpm")])
                    result = run(root, {"cancelAt": at, "steps": [
                        {"do": "collect"}, {"do": "apply", "install": ["heavy"]}][:step + 1]})
                self.assertEqual(result["errors"][step], [error, "Cancelled by the user"])
                self.assertEqual(len(calls(result, "userconfirm")), at == "applyGrabMeterUpdate")
                self.assertEqual(self.packages(root), before)
                opened = calls(result, "applyGrabMultiMeterStart")
                self.assertEqual(len(opened), len(calls(result, "applyGrabMultiMeterEnd")))

    def test_repo_tests(self):
        """What keeps a repository from being reached is told apart, and no file is written."""
        root = self.root()
        top = pathlib.Path(root, "srv/repos/9/x86_64/extras")
        with httpserver.Server(top, tls=True) as server:
            good = server.url()
            (top / "mirrors").write_text("# mirrors\n%s\n%s\n" % (server.url(kind="closed"), good))
            (top / "metalink").write_text("<metalink><file name='repomd.xml'><url>%srepodata/repomd.xml"
                                          "</url></file></metalink>" % good)
            (top / "links").write_text("<metalink><url>%srepodata/repomd.xml</url></metalink>" % good)
            names = {"good": good, "gone": server.url("gone/"), "page": server.url("", "html"),
                     "wrong": server.url("", "status=401"),
                     "mirrors": server.url("mirrors"), "metalink": server.url("metalink"),
                     "ca": server.authority_in(root), "port": server.ports["closed"], "files": "/srv/repos/9",
                     **{kind: server.url(kind=kind) for kind in ("closed", "https", "stranger")}}
            sections = [("[one]\n" if lines[0] != "[" else "") + lines.format_map(names) + "\n"
                        for lines, _ in REPO_TESTS.values()]
            steps = [{"do": "eval", "code": "list(program.make().testRepo(%r.encode()))" % text}
                     for text in sections]
            run(root, {"steps": steps[-1:]})
            files = set(pathlib.Path(root).rglob("*"))
            result = run(root, {"steps": steps})
            later = "setattr(__import__('yumIOC'), 'cancelled', iter([0] + 99 * [1]).__next__)"
            hung = "[%s, *program.make().testRepo(b'[a]\\nbaseurl=%s')]" % (later, server.url("", "hang"))
            cancelled = run(root, {"steps": [{"do": "eval", "code": hung}]}, timeout=20)
        for (name, (_, kinds)), answers in zip(REPO_TESTS.items(), result["values"]):
            with self.subTest(name):
                told = [answer[0] for answer in answers[1:] if answer[0] != "trying"]
                self.assertEqual(told, kinds.split(), answers)
        self.assertIn("Callback aborted", str(cancelled["values"]))
        self.assertEqual(files, set(pathlib.Path(root).rglob("*")))


if __name__ == "__main__":
    unittest.main()
