# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Repositories that need a user name and a password: the real program on a display, driven by real events,
with a server in a process of its own."""

import subprocess
import unittest

import scriptdriver
from httpserver import PASSWORD, USER, Server
from recorder import start_program
from guidriver import Screen, key, type_text, wait_for, xdotool
from scriptdriver import tool


class Credentials(scriptdriver.Case):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        screen = Screen()
        screen.__enter__()
        cls.addClassCleanup(screen.__exit__)

    def configure(self, user="", password=""):
        """Two repositories on one host, in both shapes."""
        self.root = self.root()
        self.server = Server(self.root / "srv/repos/9/x86_64")
        self.addCleanup(self.server.close)
        place = self.root / "etc/yum.repos.d"
        (place / "foundry.repo").unlink()
        self.files = [place / "bulk.repo", place / "aster-extras.repo"]
        paths = [f"rhel/login={user}/key={password}/bulk/", f"kivvet?user={user}&password={password}&path=/extras/"]
        for file, identifier, path in zip(self.files, ("bulk", "extras"), paths):
            file.write_text(f"[{identifier}]\nbaseurl={self.server.url(path)}\nretries=1\ngpgkey=file://{self.root}"
                            "/etc/pki/rpm-gpg/RPM-GPG-KEY-aster\n")

    def press(self, name, top=None):
        self.program.click(self.program.find("push button", name, top))

    def told(self):
        return self.program.texts(self.program.find("text", top=self.program.find("dialog", "VOK Yum Error")))

    def press_apply(self):
        self.program.wait_enabled(self.program.find("push button", "Apply Actions"), "Apply Actions")
        self.press("Apply Actions")
        self.press("OK")

    def assertHidden(self, *passwords, told=""):
        """None of these is on the screen, in the log window among it, or where other users see it."""
        key("ctrl+l")
        self.program.find("push button", "Save...")
        seen = [told, self.program.log.read_text(), *filter(None, map(self.program.texts, self.program.walk())),
                subprocess.run(["ps", "-eww", "-o", "args"], capture_output=True, text=True).stdout]
        self.assertIn("Initialization", "\n".join(seen))
        for password in passwords:
            self.assertNotIn(password, "\n".join(seen))

    def test_asked_once(self):
        """One answer for the host is written, and serves to collect from both and to install, when it is refused
        once too; after a start in the editor that ends with Cancel."""
        self.configure()
        self.program = start_program(self, self.root, "-r", "-s", "installable", "-e", "^bulk-001 ")
        self.press("Cancel", self.program.find("dialog", "VOK Repository Configuration Editor"))
        self.press("Read the Packages")
        self.program.find("push button", "Quit")
        type_text(USER)
        key("Tab")
        type_text(PASSWORD)
        self.press("Apply to All with this Host")
        self.program.wait_enabled(self.program.find("push button", "Refresh"), "Refresh")
        key("space")
        self.server.misbehave("status=401;only=*.rpm")
        self.press_apply()
        told = self.told()
        self.assertRegex(told, "(?s)^Wrong user name or password for repository bulk.*Unable to apply changes: ")
        self.press("Close")
        self.server.misbehave("")
        self.press_apply()
        wait_for(lambda: "bulk-001-" in tool(self.root, "rpm", "-qa"), "the package")
        self.program.wait_enabled(self.program.find("push button", "Refresh"), "Refresh")
        self.assertEqual({status for _, path, status in self.server.requests() if ".rpm" not in path}, {200})
        self.assertEqual([file.stat().st_mode & 0o777 for file in self.files], [0o640] * 2)
        self.assertHidden(PASSWORD, "S3cr")

    def test_refused(self):
        """A wrong password is told, and the repository's form is a button away; what is changed there is
        written and collected."""
        self.configure(USER, "wr0ng")
        self.files[0].unlink()
        self.program = start_program(self, self.root)
        told = self.told()
        self.assertIn("Wrong user name or password for repository extras.", told)
        self.press("Edit Repository")
        form = self.program.find("dialog", "VOK Repository Configuration")
        self.program.click(self.program.find("password text", top=form))
        key("ctrl+a")
        type_text(PASSWORD)
        self.press("OK", form)
        self.press("OK", self.program.find("dialog", "VOK Repository Configuration Editor"))
        wait_for(lambda: self.server.requests()[-1][2] == 200, "the metadata")
        self.program.wait_enabled(self.program.find("push button", "Refresh"), "Refresh")
        self.assertHidden("wr0ng", PASSWORD, "S3cr", told=told)

    def test_skipped(self):
        """Who skips the questions has only a line in the window, also after a refresh, until asking again."""
        self.configure()
        self.program = start_program(self, self.root)
        tried = []
        for question, press in ((True, "Refresh"), (False, "Use Again"), (True, None)):
            if question:
                self.press("Skip All")
            self.program.find("label", "Left out for this session: extras, bulk.")
            self.program.wait_enabled(self.program.find("push button", "Refresh"), "Refresh")
            tried.append(len(self.server.requests()))
            if press:
                self.press(press)
        self.assertEqual(tried, [tried[0], tried[0], 2 * tried[0]])

    def test_quit(self):
        """Nothing is written and asked any more when the program is ended at the question."""
        self.configure()
        before = [file.read_bytes() for file in self.files]
        for end in (lambda: self.program.process.terminate(),
                    lambda: xdotool("search", "--onlyvisible", "--name", "^VOK$", "windowactivate", "key", "alt+F4")):
            self.program = start_program(self, self.root)
            self.program.find("push button", "Quit")
            type_text(USER)
            end()
            self.assertEqual(self.program.end(), 0)
        self.assertEqual([file.read_bytes() for file in self.files], before)
        self.assertEqual(self.server.requests(), [])


if __name__ == "__main__":
    unittest.main()
