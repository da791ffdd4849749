# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The program as it is started: what it says about its command line, and how it ends on a signal."""

import os
import pathlib
import re
import signal
import subprocess
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
BUILD = pathlib.Path(os.environ.get("VOK_BUILD", ROOT / "build" / "release")).resolve()
PROGRAM = BUILD / "bin" / "vok"
LIMIT = 60  # seconds; reached only by a program that hangs

OPTIONS = """-h -H --help -m --mode=m -e --regexp=r -s --state=s -d --duplicates -g --groups -r --repo-editor -l --log
--disablerepo=r --enablerepo=r""".split()


class Helpers(unittest.TestCase):
    def test_what_is_opened(self):
        with tempfile.TemporaryDirectory() as directory:
            seen = pathlib.Path(directory, "seen")
            opener = pathlib.Path(directory, "opener")
            opener.write_text(f"#!/bin/sh\nprintf '%s|' \"$@\" > {seen}\n")
            opener.chmod(0o755)
            own = f"/not/there:{opener}"
            pdf = "application/pdf"
            for *words, opened in [
                    ("webbrowser", "https://a.example/?x='$(id)';&y=a b", True), ("webbrowser", "HTTP://a", True),
                    ("webbrowser", directory, True), ("webbrowser", "file:///etc", True),
                    ("webbrowser", "/not/there", False), ("webbrowser", "javascript:1", False),
                    ("webbrowser", "--help", False),
                    ("mimeviewer", pdf, str(opener), True), ("mimeviewer", "text/html", str(opener), True),
                    ("mimeviewer", pdf, "/not/there", False), ("mimeviewer", pdf, directory, False),
                    ("mimeviewer", pdf, "--help", False), ("mimeviewer", "$(id)/pdf", str(opener), False),
                    ("mimeviewer", "pdf", str(opener), False), ("mimeviewer", str(opener), False)]:
                for options in (["--check"], []):
                    with self.subTest(words=words, options=options):
                        seen.unlink(missing_ok=True)
                        done = subprocess.run([BUILD / "share/vok" / words[0], *options, *words[1:]],
                                              env=dict(os.environ, BROWSER=own, PDFVIEWER=own),
                                              capture_output=True, text=True)
                        self.assertEqual(done.returncode == 0, opened)
                        self.assertEqual(bool(done.stderr), not opened)
                        text = seen.read_text() if seen.exists() else ""
                        self.assertEqual(text, words[-1] + "|" if opened and not options else "")


class CommandLine(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.folder = pathlib.Path(directory.name)
        self.environment = dict(
            os.environ, QT_QPA_PLATFORM="offscreen", VOKSHARE=str(BUILD / "share" / "vok"),
            VOKROOT=str(self.folder / "root"), HOME=str(self.folder),
            XDG_RUNTIME_DIR=str(self.folder), LC_ALL="C.UTF-8")

    def complain(self, program, *arguments):
        """Runs the program, which must end at once, also without a display; returns what it says on standard error."""
        environment = {name: value for name, value in self.environment.items()
                       if name not in ("QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE")}
        done = subprocess.run([program, *arguments], env=environment, timeout=LIMIT,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True)
        self.assertTrue(done.stdout.startswith(f"usage: {pathlib.Path(program).name} [options...]\n\nVOK, "))
        self.assertEqual(re.findall(r"(?<![\w-])--?[\w-]+(?:=\w)?", done.stdout.partition("options:")[2]), OPTIONS)
        self.assertEqual(done.returncode, 1)
        return done.stderr

    def test_messages(self):
        letter = "vok: unrecognized option letter: "
        option = "vok: unrecogized option: "
        argument = "vok: unrecognized argument: "
        for arguments, message in [
                (["-h"], ""), (["-H"], ""), (["--help"], ""), (["-l", "-h", "stray"], ""),
                (["-d"], letter + "d\n"), (["-gx"], letter + "x\n"), (["-m"], letter + "m\n"),
                (["-l", "-s"], letter + "s\n"),
                (["--bogus"], option + "--bogus\n"), (["-l", "--bogus=1"], option + "--bogus=1\n"),
                (["--enablerepo"], option + "--enablerepo\n"), (["-l", "--state"], option + "--state\n"),
                (["--mod"], option + "--mod\n"), (["--groups=1"], option + "--groups=1\n"),
                (["--log", "-xm"], letter + "x\n"),
                (["-s", "allx"], "vok: unrecogized argument to -s/--state option: allx\n"),
                (["--mode=x"], "vok: unrecogized argument to -m/--mode option: x\n"),
                (["stray", "-d"], argument + "stray\n"), (["-g", "--", "-d"], argument + "-d\n"),
                # The first complaint ends it.
                (["-s", "x", "--bogus"], "vok: unrecogized argument to -s/--state option: x\n")]:
            with self.subTest(arguments=arguments):
                self.assertEqual(self.complain(PROGRAM, *arguments), message)

    def test_program_name(self):
        link = self.folder / "other name"
        link.symlink_to(PROGRAM)
        self.assertEqual(self.complain(link, "-d"), "other name: unrecognized option letter: d\n")

    def start(self, configuration):
        """Starts the program on a root of its own; returns it once it answers to signals."""
        etc = self.folder / "root" / "etc"
        etc.mkdir(parents=True)
        if configuration is not None:
            (etc / "yum.conf").write_text(configuration)
        program = subprocess.Popen([PROGRAM], env=self.environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(program.kill)
        status = pathlib.Path("/proc", str(program.pid), "status")
        end = time.monotonic() + LIMIT
        while time.monotonic() < end:
            self.assertIsNone(program.poll(), "it ended by itself")
            caught = next(line for line in status.read_text().splitlines()
                          if line.startswith("SigCgt"))
            if int(caught.split()[1], 16) >> (signal.SIGTERM - 1) & 1:
                return program
            time.sleep(0.02)
        self.fail("it does not catch SIGTERM")

    def test_ends_on_a_signal(self):
        """In whatever it is at: the start, a job, or a dialog that nobody answers."""
        for number, wait in [(signal.SIGTERM, 0), (signal.SIGHUP, 0), (signal.SIGTERM, 0.3),
                             (signal.SIGTERM, 2)]:
            for configuration in ["[main]\nreposdir=/etc/none\n", None]:
                with self.subTest(number=number, wait=wait, configuration=configuration):
                    self.setUp()
                    program = self.start(configuration)
                    time.sleep(wait)
                    program.send_signal(number)
                    self.assertIn(program.wait(LIMIT), (0, 1))


if __name__ == "__main__":
    unittest.main()
