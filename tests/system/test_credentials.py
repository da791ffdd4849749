"""Repositories that need a user name and a password: the real program on a display, driven by real events,
with a server in a process of its own."""

import subprocess
import unittest

import scriptdriver
from httpserver import PASSWORD, USER, Server
from recorder import start_program
from guidriver import Screen, key, type_text, wait_for, xdotool
from scriptdriver import tool

PACKAGE = "bulk-001"


class Credentials(scriptdriver.Case):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        screen = Screen()
        screen.__enter__()
        cls.addClassCleanup(screen.__exit__)

    def setUp(self):
        self.root = super().root()
        self.files = [self.root / "etc/yum.repos.d" / name for name in ("bulk.repo", "aster-extras.repo")]
        (self.root / "etc/yum.repos.d/foundry.repo").unlink()
        self.server = Server(self.root / "srv/repos/9/x86_64")
        self.addCleanup(self.server.close)

    def configure(self, user="", password=""):
        """Two repositories on one host, in both shapes."""
        keys = " ".join(f"file://{self.root}{path}" for path in
                        ("/etc/pki/rpm-gpg/RPM-GPG-KEY-aster", "/srv/repos/RPM-GPG-KEY-foundry"))
        for file, identifier, path in zip(self.files, ("bulk", "extras"), (
                f"rhel/login={user}/key={password}/bulk/",
                f"kivvet?user={user}&password={password}&path=/extras/")):
            file.write_text(f"[{identifier}]\nbaseurl={self.server.url(path)}\ngpgkey={keys}\nretries=1\n")

    def start(self, *arguments):
        self.program = start_program(self, self.root, *arguments)

    def press(self, name, kind="push button"):
        self.program.click(self.program.find(kind, name))

    def ready(self):
        self.program.wait_enabled(self.program.find("push button", "Refresh"), "Refresh")

    def assertHidden(self, *passwords, told=""):
        """Nothing that is on the screen, the log among it, or that other users see holds a password."""
        key("ctrl+l")
        self.program.find("push button", "Save...")
        seen = [text for item in self.program.walk() for text in (self.program.texts(item),) if text]
        self.assertIn("Initialization", "\n".join(seen))
        listed = subprocess.run(["ps", "-eww", "-o", "args"], capture_output=True, text=True).stdout
        for password in passwords:
            self.assertNotIn(password, "\n".join([told, *seen, listed, self.program.log.read_text()]))

    def test_asked_once(self):
        """One answer for the host is written, and serves to collect from both and to install."""
        self.configure()
        self.start("-s", "installable", "-e", f"^{PACKAGE} ")
        self.program.find("push button", "Apply to All with this Host")
        type_text(USER)
        key("Tab")
        type_text(PASSWORD)
        self.press("Apply to All with this Host")
        self.ready()
        key("space")
        self.press("Apply Actions")
        self.press("OK")
        wait_for(lambda: f"{PACKAGE}-" in tool(self.root, "rpm", "-qa"), "the package")
        self.ready()
        self.assertEqual({status for _, _, status in self.server.requests()}, {200})
        self.assertTrue(any("kivvet" in path for _, path, _ in self.server.requests()))
        self.assertHidden(PASSWORD, "S3cr")
        for file in self.files:
            self.assertEqual(file.stat().st_mode & 0o777, 0o640)

    def test_refused(self):
        """A wrong password is told, and its repository's form is a button away; what is changed there is
        written and collected."""
        self.configure(USER, "wr0ng")
        self.files[0].unlink()
        self.start()
        told = self.program.texts(self.program.find("label", top=self.program.find("alert")))
        self.assertIn("Wrong user name or password for repository extras.", told)
        self.press("Edit Repository")
        form = self.program.find("dialog", "VOK Repository Configuration")
        self.program.click(self.program.find("password text", top=form))
        key("ctrl+a")
        type_text(PASSWORD)
        self.program.click(self.program.find("push button", "OK", form))
        wait_for(lambda: not self.program.look("dialog", "VOK Repository Configuration"), "the form to close")
        self.press("OK")
        wait_for(lambda: self.server.requests()[-1][2] == 200, "the metadata")
        self.ready()
        self.assertHidden("wr0ng", PASSWORD, "S3cr", told=told)

    def test_quit(self):
        """Nothing is written, and nobody is asked any more, when the program is ended at the question."""
        self.configure()
        before = [file.read_bytes() for file in self.files]
        for end in (lambda: self.press("Quit"), lambda: self.program.process.terminate(),
                    lambda: xdotool("search", "--onlyvisible", "--name", "^VOK$", "windowactivate") or key("alt+F4")):
            self.start()
            self.program.find("push button", "Quit")
            type_text(USER)
            end()
            self.assertEqual(self.program.end(), 0)
            self.assertEqual([file.read_bytes() for file in self.files], before)
        self.assertEqual(self.server.requests(), [])


if __name__ == "__main__":
    unittest.main()
