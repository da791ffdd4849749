# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Runs the program vok_recorder, VOK's window with a driver inside, on a sandbox root. The commands and
their answers are described in tools/recorder/recorder.h."""

import json
import os
import pathlib
import select
import shlex
import subprocess
import sys
import time

CHECKOUT = pathlib.Path(__file__).resolve().parent.parent.parent
SANDBOX = CHECKOUT / "tools" / "sandbox"
BUILD = pathlib.Path(os.environ.get("VOK_BUILD", CHECKOUT / "build" / "release"))
UPDATE, INSTALL, REMOVE, NONE = range(4)

sys.path.insert(0, str(CHECKOUT / "tools"))
from guidriver import Program, wait_for  # noqa: E402


class Recorder:
    """A running window, as a context. `before` is a shell command that runs first, in a mount namespace
    of its own when it is given; `display` False shows the window nowhere; `errors` is a file for its standard error."""

    def __init__(self, root, before="", display=False, errors=None):
        program = str(BUILD / "bin" / "vok_recorder")
        command = [SANDBOX, "run", root, "--", program]
        if before:
            user = ["--user", "--map-root-user"] if os.geteuid() else []
            inner = f"{before} && exec {shlex.quote(program)}"
            command = ["unshare", *user, "--mount", SANDBOX, "run", root, "--", "sh", "-c", inner]
        environment = dict(os.environ, VOKSHARE=str(BUILD / "share" / "vok"), LC_ALL="C.UTF-8")
        if not display:
            environment["QT_QPA_PLATFORM"] = "offscreen"
        self.process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=errors, env=environment)
        self._buffer = b""

    def do(self, what, timeout=60, **fields):
        """Gives one command; returns its answer. Fails when the program ends or does not answer."""
        self.process.stdin.write(json.dumps(dict(fields, do=what)).encode() + b"\n")
        self.process.stdin.flush()
        end = time.monotonic() + timeout
        while b"\n" not in self._buffer:
            left = end - time.monotonic()
            if left <= 0 or not select.select([self.process.stdout], [], [], left)[0]:
                raise AssertionError(f"no answer to {what} {fields} within {timeout} s")
            data = os.read(self.process.stdout.fileno(), 1 << 20)
            if not data:
                raise AssertionError(f"the program ended with {self.process.wait(10)} at {what} {fields}")
            self._buffer += data
        line, _, self._buffer = self._buffer.partition(b"\n")
        answer = json.loads(line)
        if "failed" in answer:
            raise AssertionError(f"cannot do {answer['failed']}")
        return answer

    def job(self, button):
        """Presses a button that starts a job; returns the answer at the job's end."""
        self.do("press", button=button)
        return self.do("wait")

    def logged(self):
        """The texts of the log, one a line."""
        return "\n".join(text for _, _, text in self.do("log")["log"])

    def marked(self):
        """{name: action} of the marked rows, in order of the names."""
        table = self.do("rows")["table"]
        return {name: action for name, (_, _, _, action) in table.items() if action != NONE}

    def close(self):
        """Ends the program by its menu, or by force when a job still runs; returns its exit status."""
        try:
            self.do("answer", rules=[{"title": "VOK Quit", "button": "Quit Without Applying"}])
            self.do("press", button="quitAction", timeout=5)
            return self.process.wait(20)
        except (AssertionError, OSError, subprocess.TimeoutExpired):
            self.process.kill()
            return self.process.wait()
        finally:
            self.process.stdin.close()
            self.process.stdout.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


def start_program(case, root, *arguments):
    """Starts the real program on a root, for as long as a test case runs; needs a screen."""
    os.environ["VOKSHARE"] = str(BUILD / "share" / "vok")
    case.addCleanup(os.environ.pop, "VOKSHARE", None)
    program = Program([SANDBOX, "run", root, "--", BUILD / "bin" / "vok", *arguments], root / "vok.output")
    case.addCleanup(program.kill)
    return program


def wait_for_scriptlet(root, words, timeout=60):
    """Waits until rpm runs the scriptlet of a root that holds these words."""
    def runs():
        for path in pathlib.Path(root, "var/tmp").glob("rpm-tmp.*"):
            try:
                if words in path.read_text(encoding="utf-8"):
                    return True
            except OSError:
                pass
        return False

    wait_for(runs, "the scriptlet of %s" % words, timeout)
