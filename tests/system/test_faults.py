# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Failures as the user sees them: the real window on a sandbox whose repositories, files and locks fail
in every way. Each failure is told in one dialog that says what failed and why; the job ends, and the
table can be used afterwards."""

import fcntl
import hashlib
import os
import sqlite3
import subprocess
import unittest

import scriptdriver
from httpserver import Server
from recorder import INSTALL, NONE, SANDBOX, Recorder, start_program
from guidriver import Screen, key, wait_for
from scriptdriver import mounted

# Takes a lock file by lockf, as the program does, or by flock, as DNF does, and holds it until its standard input ends.
HOLD = "import fcntl, os, sys; f = open(sys.argv[1], 'r+'); getattr(fcntl, sys.argv[2])(f, fcntl.LOCK_EX); " \
       "f.write(str(os.getpid())); f.flush(); print(flush=True); sys.stdin.read()"
WAIT = {"title": "VOK Package Lock", "button": "Wait"}
CLOSE = {"title": "VOK Yum Error", "button": "Close"}
GIVE_UP = {"title": "VOK Package Lock", "button": "Give Up"}
PASSWORD = "se%40cret"
# Numbers, as the words change from version to version. What curl says of a refused certificate ends in a
# bracket; the reason that was looked for stands behind it.
CURL = r"Curl error \(%d\)"
REFUSED = CURL % 60 + r".*\]: \w"


class Case(scriptdriver.Case):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        for path in (cls.place / "model/etc/yum.repos.d").iterdir():
            if path.name != "Aster-Base.repo":
                path.unlink()

    def setUp(self):
        self.root = super().root()
        self.repositories = self.root / "srv/repos/9/x86_64"

    def serve(self, *urls, **options):
        """Makes the repository "web" with those base URLs and forgets what was cached of all."""
        options = {"timeout": 1, "retries": 1,
                   "gpgkey": f"file://{self.root}/etc/pki/rpm-gpg/RPM-GPG-KEY-aster", **options}
        lines = ["[web]", "name=Web", "baseurl=" + "\n  ".join(urls),
                 *(f"{name}={value}" for name, value in options.items()), ""]
        (self.root / "etc/yum.repos.d/web.repo").write_text("\n".join(lines))
        subprocess.run(["rm", "-rf", self.root / "var/cache"], check=True)

    def apply(self, window, *names, rules=()):
        """Marks packages for installation and applies; the dialogs after the listing's."""
        window.do("mark", names=names, action=INSTALL)
        window.do("answer", rules=[*rules])
        dialogs = window.job("applyButton")["dialogs"]
        if dialogs and dialogs[0]["title"] == "Apply":
            for name in names:
                self.assertIn(f"Install: {name} ", dialogs[0]["text"])
            del dialogs[0]
        return dialogs

    def one(self, dialogs, *patterns, title="VOK Yum Error"):
        """The text of the only dialog, which matches all the patterns."""
        self.assertEqual([dialog["title"] for dialog in dialogs], [title], dialogs)
        for pattern in patterns:
            self.assertRegex(dialogs[0]["text"], pattern)
        return dialogs[0]["text"]

    def installed(self, *names):
        done = subprocess.run([SANDBOX, "rpm", self.root, "-q", *names], text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return "not installed" not in done.stdout

    def holding(self, path):
        """A process that holds the lock file of that path in the root."""
        how = "lockf" if path.endswith("/vok.lock") else "flock"
        lock = self.root / path
        lock.parent.mkdir(parents=True, exist_ok=True)
        lock.touch()
        holder = subprocess.Popen(["/usr/bin/python3", "-c", HOLD, lock, how], stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE)
        self.addCleanup(holder.stdout.close)
        holder.stdout.readline()
        return holder


class Downloads(Case):
    def test_metadata(self):
        """Every way of failing leaves the table as it was, and a refresh mends it."""
        primary = "only=*primary*;"
        with Server(self.repositories, tls=True) as server:
            def url(behaviour="", kind="http"):
                plain = server.url("bulk/", behaviour, kind)
                return plain.replace("://", f"://joe:{PASSWORD}@")

            trusted = {"sslcacert": server.authority_in(self.root)}
            # Trusting somebody else asks nothing of the authorities that this machine knows.
            untrusted = {"sslcacert": server.authority_in(self.root, "stranger.pem")}
            cases = {
                "refused": ([url(kind="closed")], {}, CURL % 7),
                "timeout": ([url("hang")], {}, CURL % 28),
                "not found": ([url("status=404")], {}, "Status code: 404"),
                "forbidden": ([url("status=403")], {}, "Status code: 403"),
                "server error": ([url("status=500")], {}, "Status code: 500"),
                "a page": ([url("html")], {}, r"(?s)repomd\.xml parser error.*~html/bulk"),
                "truncated": ([url(primary + "truncate=100")], {}, "(?s)primary.*" + CURL % 18),
                "wrong checksum": ([url(primary + "flip")], {}, "checksum doesn't match.*primary"),
                "redirect loop": ([url("loop")], {}, CURL % 47),
                "expired": ([url(kind="expired")], trusted, REFUSED),
                "another host": ([url(kind="stranger")], trusted, REFUSED),
                "unknown authority": ([url(kind="https")], untrusted, REFUSED),
                "two mirrors": ([url("status=404"), url(kind="closed")], {},
                                "(?s)404.*" + CURL % 7),
            }
            self.serve(url())
            with Recorder(self.root) as window:
                rows = window.do("wait")["rows"]
                window.do("answer", rules=[CLOSE])
                for name, (urls, options, reason) in cases.items():
                    with self.subTest(name):
                        self.serve(*urls, **options)
                        answer = window.job("refreshButton")
                        self.one(answer["dialogs"], "(?m)^Repository web: ", reason)
                        self.assertNotIn(PASSWORD, answer["dialogs"][0]["text"])
                        self.assertEqual(answer["rows"], rows)
                # What is shown can be used, while the files are as they were; after that it has to be read anew.
                self.serve(url())
                (self.repositories / "bulk/repodata").rename(self.root / "tmp/repodata")
                self.one(self.apply(window, "bulk-300", rules=[CLOSE]), "^Repository web: ")
                self.assertTrue(self.installed("bulk-300"))
                self.assertEqual(window.do("rows")["rows"], 0)
                (self.root / "tmp/repodata").rename(self.repositories / "bulk/repodata")

                for name, urls, options, present, told in (
                        ("trusted", [url(kind="https")], trusted, True, "web"),
                        ("a mirror takes over", [url("status=500"), url()], {}, True, "code: 500"),
                        ("left out", [url("status=410")], {"skip_if_unavailable": 1}, False,
                         r"(?s)Repository web: .*code: 410.*left out")):
                    with self.subTest(name):
                        self.serve(*urls, **options)
                        self.assertEqual(window.job("refreshButton")["dialogs"], [])
                        table = window.do("rows")["table"]
                        self.assertEqual("bulk-001" in table, present)
                        self.assertIn("archiver", table)
                        self.assertRegex(window.logged(), told)
                self.assertNotIn(PASSWORD, window.logged())
                self.assertNotIn("se@cret", window.logged())

    def test_left_out(self):
        """One dialog names all that failed before they are read, and a declined key as such; another what
        cannot be read. What is left out stays so, with the installed packages in the table, until it is used
        again."""
        damaged = self.root / "srv/damaged/repodata"
        damaged.mkdir(parents=True)
        (damaged / "primary.xml").write_bytes(b"<metadata><package")
        (damaged / "repomd.xml").write_text(
            '<repomd><data type="primary"><location href="repodata/primary.xml"/><checksum type="sha256">%s'
            "</checksum></data></repomd>" % hashlib.sha256(b"<metadata><package").hexdigest())
        (self.root / "etc/yum.repos.d/Aster-Base.repo").write_text(
            "[gone]\nbaseurl=file:///gone\n[damaged]\nbaseurl=file:///srv/damaged\n[foundry]\nrepo_gpgcheck=1\n"
            "baseurl=file:///srv/repos/9/x86_64/foundry\ngpgkey=file:///srv/repos/RPM-GPG-KEY-foundry\n")
        leave = dict(CLOSE, button="Leave Out for This Session")
        with Server(self.repositories) as server:
            self.serve(server.url("bulk/", "status=404"))
            with Recorder(self.root) as window:
                window.do("answer", rules=[dict(CLOSE, button="Try Again", times=1), leave])
                dialogs = window.do("wait")["dialogs"]
                key, first, _, again, second = (dialog["text"] for dialog in dialogs)
                self.assertIn("Import the key", key)
                self.assertEqual(first, again)
                self.assertRegex(first, "(?s)^Repository gone: .*\nRepository foundry: The key 0x[0-9A-F]+, .* not "
                                        "imported.\nRepository web: .*404.*\nUnable to initialize$")
                self.assertRegex(second, "(?s)^Unable to setup transaction: .*\nRepository damaged: .* at line 1")
                self.assertEqual({state for state, *_ in window.do("rows")["table"].values()}, {2})
                self.assertEqual(window.job("refreshButton")["dialogs"], [])
                self.serve(server.url("bulk/"))
                self.assertNotIn("web", window.job("leftOutNoticeButton")["dialogs"][1]["text"])
                self.assertIn("bulk-001", window.do("rows")["table"])

    def test_packages(self):
        with Server(self.repositories) as server:
            self.serve(server.url("bulk/"))
            with Recorder(self.root) as window:
                window.do("wait")
                for behaviour, reason in (("status=404", "Status code: 404"),
                                          ("truncate=100", CURL % 18), ("hang", CURL % 28),
                                          ("flip", "checksum doesn't match"), ("loop", CURL % 47),
                                          ("html", "file length")):
                    with self.subTest(behaviour):
                        server.misbehave("only=*.rpm;" + behaviour)
                        self.one(self.apply(window, "bulk-001"), "^Unable to apply changes: ",
                                 "bulk-001-1.0-1.*" + reason)
                        self.assertEqual([*window.marked()], ["bulk-001"])
                server.misbehave("")
                self.serve(server.url("bulk/", "only=*.rpm;status=503"), server.url("bulk/"))
                window.job("refreshButton")
                self.assertEqual(self.apply(window, "bulk-001"), [])
                self.assertIn("Status code: 503", window.logged())
            self.assertTrue(self.installed("bulk-001"))

    def test_cancel(self):
        """A cancel is no failure: no dialog, and the table with its marks is as before."""
        with Server(self.repositories) as server:
            self.serve(server.url("bulk/"), timeout=60)
            with Recorder(self.root) as window:
                rows = window.do("wait")["rows"]
                window.do("mark", names=["archiver"], action=NONE)
                for state, behaviour, start in (
                        ("download", "only=*.rpm;hang", lambda: self.apply(window, "bulk-001")),
                        ("metadata", "only=*primary*;stall=50",
                         lambda: window.job("refreshButton")["dialogs"])):
                    with self.subTest(state):
                        server.misbehave(behaviour)
                        subprocess.run(["rm", "-rf", self.root / "var/cache"], check=True)
                        window.do("cancelAt", state=state)
                        self.assertEqual(start(), [])
                        self.assertEqual(window.do("rows")["rows"], rows)
                        self.assertEqual([*window.marked()], ["bulk-001"])
                        self.assertIn("Cancelled by the user", window.logged())
                server.misbehave("")
                self.assertEqual(self.apply(window, "bulk-001"), [])
            self.assertTrue(self.installed("bulk-001"))


class Locks(Case):
    def test_waiting(self):
        """The holder is named; giving up needs no other dialog, and waiting ends with the lock."""
        for path in ("run/vok/vok.lock", "var/lib/dnf/rpmdb_lock.pid"):
            with self.subTest(path):
                holder = self.holding(path)
                question = rf"/usr/bin/python3 -c .* \(process {holder.pid}\)"
                with Recorder(self.root) as window:
                    window.do("answer", rules=[dict(GIVE_UP, times=1), WAIT])
                    answer = window.do("wait")
                    self.one(answer["dialogs"], question, title=GIVE_UP["title"])
                    self.assertEqual(answer["rows"], 0)
                    window.do("cancelAt", state="lock")
                    self.one(window.job("refreshButton")["dialogs"], question, title=WAIT["title"])
                    window.do("press", button="refreshButton")
                    asked = window.do("until", state="lock")["dialogs"]
                    holder.communicate()
                    answer = window.do("wait")
                    self.one(asked + answer["dialogs"], question, title=WAIT["title"])
                    self.assertGreater(answer["rows"], 50)

    def test_databases(self):
        """rpm's and DNF's databases, locked by somebody who does not tell who he is: the lock of rpm's
        transactions, DNF's records, and rpm's own database, for which rpm waits."""
        with Recorder(self.root) as window:
            rows = window.do("wait")["rows"]
            with open(self.root / "var/lib/rpm/.rpm.lock", "a+") as lock:
                fcntl.lockf(lock, fcntl.LOCK_EX)
                self.one(self.apply(window, "twice"), "transaction lock on /var/lib/rpm")
            history = self.locked(self.root / "var/lib/dnf/history.sqlite")
            self.one(self.apply(window, "twice"), "history.*database is locked")
            self.assertEqual(window.do("rows")["rows"], rows)
            self.assertEqual([*window.marked()], ["twice"])
            history.close()

            database = self.locked(self.root / "var/lib/rpm/rpmdb.sqlite")
            window.do("press", button="applyButton")
            wait_for(lambda: f"process {os.getpid()} " in window.logged(), "the name of the holder")
            database.close()
            self.assertEqual(window.do("wait")["dialogs"][1:], [])
            self.assertTrue(self.installed("twice"))

    @staticmethod
    def locked(path):
        lock = sqlite3.connect(path, isolation_level=None)
        lock.execute("BEGIN EXCLUSIVE")
        return lock


@unittest.skipUnless(mounted("true"), "this user cannot mount anything")
class FileSystems(Case):
    def start(self, before):
        return Recorder(self.root, before.replace("ROOT", str(self.root)))

    def test_full(self):
        """No room for the files of a package, for a download, for metadata."""
        self.serve(f"file://{self.repositories}/extras")
        with self.start("mount -t tmpfs -o size=20m none ROOT/usr/share") as window:
            window.do("wait")
            self.one(self.apply(window, "heavy"), "heavy-1.0-1.*48MB more space.*/usr/share")
            self.assertEqual([*window.marked()], ["heavy"])
        with Server(self.repositories) as server:
            self.serve(server.url("extras/"))
            (self.root / "etc/yum.repos.d/Aster-Base.repo").unlink()
            with self.start("mkdir -p ROOT/var/cache && "
                            "mount -t tmpfs -o size=16k none ROOT/var/cache") as window:
                window.do("answer", rules=[CLOSE])
                answer = window.do("wait")
                self.one(answer["dialogs"], "'web'", "no room left in .*/var/cache/yum")
                self.assertEqual(answer["rows"], 0)

    def test_read_only(self):
        """All is shown, of a copy where rpm's database cannot be opened in place, and nothing is applied."""
        for name in ("wal", "shm"):
            (self.root / f"var/lib/rpm/rpmdb.sqlite-{name}").unlink(missing_ok=True)
        with self.start("mount --bind ROOT ROOT && mount -o remount,ro,bind ROOT && cd ROOT") as window:
            answer = window.do("wait")
            self.assertEqual(answer["dialogs"], [])
            self.assertGreater(answer["rows"], 50)
            with self.assertRaisesRegex(AssertionError, "applyButton"):  # cannot be pressed
                self.apply(window, "twice")
            self.assertEqual([*window.marked()], ["twice"])


class Termination(Case):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.enterClassContext(Screen())

    def settled(self):
        """Nothing is left that only a running program has, and rpm's database is sound."""
        self.assertEqual((self.root / "run/vok/vok.lock").read_text(), "")
        self.assertEqual([*(self.root / "var/lib/vok").glob("*")], [])
        subprocess.run([SANDBOX, "rpm", self.root, "--verifydb"], check=True)

    def test_terminated(self):
        """By SIGTERM, while it downloads and when it is at rest."""
        before = (self.root / "etc/yum.conf").read_bytes()
        with Server(self.repositories) as server:
            self.serve(server.url("bulk/", "only=*primary*;stall=50"), timeout=60)
            program = start_program(self, self.root)
            wait_for(lambda: any("primary" in path for _, path, _ in server.requests()), "the download")
            program.process.terminate()
            self.assertEqual(program.end(), 0)
            self.settled()

            self.serve(f"file://{self.repositories}/extras")
            program = start_program(self, self.root)
            program.wait_enabled(program.find("push button", "Refresh"), "Refresh")
            program.process.terminate()
            self.assertEqual(program.end(), 0)
        self.settled()
        self.assertEqual((self.root / "etc/yum.conf").read_bytes(), before)

    def speaks(self, program):
        """What a screen reader has to work with: each control has a role and a name, and both bars say
        what they are at and how far."""
        nameless = [program.role(item) for item in program.walk()
                    if program.has(item, "SHOWING") and program.has(item, "FOCUSABLE")
                    and (not item.get_name() or program.role(item) in ("unknown", "filler", "panel"))]
        self.assertEqual(nameless, [])
        bars = [item for item in program.walk() if program.role(item) == "progress bar"]
        wait_for(lambda: all(bar.get_value_iface().get_current_value() > 0 for bar in bars), "both bars")
        self.assertRegex("|".join(bar.get_name() for bar in bars),
                         "Total progress: Running .*[|]Progress of the current step: .* heavy")

    def test_started(self):
        """What is missing at the start is told with what to do next, and the editor is there to mend it."""
        with Server(self.repositories) as server:
            (self.root / "etc/yum.repos.d/Aster-Base.repo").unlink()
            web, url = self.root / "etc/yum.repos.d/web.repo", server.url("extras/")
            unread = "The repositories could not be read.\nRefresh tries again"
            for name, prepare, box, told in (
                    ("nothing", lambda: self.serve(url), "", ""),
                    ("fresh metadata", lambda: (server.misbehave("status=503"), [
                        os.utime(file, (0, 0)) for file in (self.root / "var/cache").rglob("*")]), "Close", unread),
                    ("a network", lambda: self.serve(server.url("extras/", kind="closed")), "Close", unread),
                    ("one of them", lambda: self.serve(server.url("extras/", kind="closed"), skip_if_unavailable=1), "",
                     "Not everything could be read."),
                    ("one that is enabled", lambda: self.serve(url, enabled=0), "OK",
                     "No repositories are enabled.\nEdit Configuration"),
                    ("repositories", web.unlink, "OK", "No repositories are configured.\nEdit Configuration"),
                    ("installed packages", lambda: (server.misbehave(""), self.serve(url), subprocess.run(
                        ["rm", "-rf", self.root / "var/lib/rpm"], check=True)), "",
                     "Nothing is installed: the rpm database is empty.")):
                with self.subTest(missing=name):
                    prepare()
                    program = start_program(self, self.root, "-s", "all")
                    if box:
                        program.find(("alert", "dialog"))
                        program.click(program.find("push button", box))
                    program.wait_enabled(program.find("push button", "Refresh"), "Refresh")
                    said = "\n".join(filter(None, [program.find("table", "Packages").get_description(),
                                                   *map(program.texts, program.walk())]))
                    self.assertIn(told, said)
                    key("ctrl+e")
                    program.find("dialog", "VOK Repository Configuration Editor")
                    key("Escape")
                    program.process.terminate()
                    self.assertEqual(program.end(), 0)

    def test_closed(self):
        """Who closes the window is asked when marks or downloads would be lost; a signal asks nothing."""
        marked = "1 package is marked and not applied."
        with Server(self.repositories) as server:
            self.serve(server.url("extras/"))
            for way, marks, downloads, asked in (
                    ("alt+F4", False, False, None), ("ctrl+q", True, False, marked),
                    ("SIGTERM", True, False, None),
                    ("alt+F4", True, True, "Packages are being downloaded.\n" + marked)):
                with self.subTest(way=way, marks=marks, downloads=downloads):
                    program = start_program(self, self.root, "-s", "all", "-e", "^heavy ")
                    program.wait_enabled(program.find("push button", "Refresh"), "Refresh")
                    if marks:
                        key("Home", "space")
                        program.wait_enabled(program.find("push button", "Apply Actions"), "Apply")
                    if downloads:
                        server.misbehave("rate=20000;only=*.rpm")
                        key("alt+a")
                        program.click(program.find("push button", "OK", program.find("dialog", "Apply")))
                        program.wait_enabled(program.find("push button", "Cancel"), "Cancel")
                        self.speaks(program)
                    program.process.terminate() if way == "SIGTERM" else key(way)
                    if asked:
                        box = program.find(("alert", "dialog"), "VOK Quit")
                        self.assertIn(asked, map(program.texts, program.walk(box)))
                        key("alt+b" if downloads else "alt+q")
                    self.assertEqual(program.end(), 0)
                    self.settled()
        self.assertFalse(self.installed("heavy"))


if __name__ == "__main__":
    unittest.main()
