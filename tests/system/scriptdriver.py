# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Runs the script on a root in a process of its own, with a yumIOC that records what it is told.

As a program: reads one JSON object, a scenario, from standard input and writes what happened to the
file named as the argument. As a module: `run(root, scenario)` does that on a sandbox and returns the
object. A process runs one scenario, because a session runs one transaction and rpm reads its
configuration once.

A scenario may hold
    enable              list of repository ids
    steps               list of steps, each {"do": "collect" | "apply" | a method of yumIO, ...}
    confirm             answers to userconfirm, in order; then yes
    key                 answer to keyQuestion (default no)
    confirmRemovals     answer to it (default no)
    cancelAt            name of a callback: from its first call on the job is cancelled
    killAt              [callback, number]: the process is killed in that call; with a third item only calls with
                        these arguments count
The result holds `calls` (a list of [callback, arguments...]), `values` (one for each step) and `errors`
([exception's class, text] or null for each step).
"""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import traceback
import types
import unittest

CHECKOUT = pathlib.Path(__file__).resolve().parent.parent.parent
SANDBOX = CHECKOUT / "tools" / "sandbox"
CALLBACKS = """stdoutWrite stderrWrite log errorlog collectProgress collectGrabMeterStart
collectGrabMeterUpdate collectGrabMeterEnd collectGrabMeterFailure collectGrabMultiMeterStart
collectGrabMultiMeterNew collectGrabMultiMeterRemove collectGrabMultiMeterEnd applyGrabMeterStart
applyGrabMeterUpdate applyGrabMeterEnd applyGrabMeterFailure applyGrabMultiMeterStart
applyGrabMultiMeterNew applyGrabMultiMeterRemove applyGrabMultiMeterEnd dsTsCheck dsRestartLoop
userconfirm reportDownloadSize listTransaction tsInitCallback tsCallback tsEvent
postTransactionOutput gpgsigcheck cancelled jobState lockWait keyQuestion confirmRemovals
transactionReport""".split()
LISTS = ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved",
         "downgraded", "reinstalled", "depdowngraded", "depreinstalled")


def mounted(command):
    """What goes before a command so that it runs after the shell command `command`, with mounts of its
    own; [] where this user cannot have any."""
    own = ["unshare", "--mount"] + (["--user", "--map-root-user"] if os.geteuid() else [])
    if subprocess.run([*own, "true"], capture_output=True).returncode:
        return []
    return [*own, "sh", "-ec", command + '\nexec "$@"', "sh"]


def run(root, scenario, environment=None, timeout=120, under=()):
    """Runs a scenario on a sandbox; the driver's own failures raise with its output. `under` is a command
    that runs the command given behind it."""
    with tempfile.TemporaryDirectory() as place:
        result = pathlib.Path(place, "result.json")
        variables = dict(os.environ, VOKSHARE=str(CHECKOUT / "share"), **(environment or {}))
        done = subprocess.run([*under, SANDBOX, "run", root, "--", "/usr/bin/python3", __file__, result],
                              input=json.dumps(scenario), text=True, capture_output=True,
                              errors="replace", env=variables, timeout=timeout)
        if "killAt" in scenario and done.returncode in (-signal.SIGKILL, 128 + signal.SIGKILL):
            return None
        if done.returncode or not result.exists():
            raise AssertionError("the driver ended with %d\n%s\n%s"
                                 % (done.returncode, done.stdout, done.stderr))
        answer = json.loads(result.read_text(encoding="utf-8"))
        answer["stdout"] = done.stdout
        return answer


def quick_place():
    """A directory in memory, where rpm's and DNF's many synchronous writes cost nothing; None when
    there is none with room for the roots."""
    place = "/dev/shm"
    try:
        return place if shutil.disk_usage(place).free > 2 << 30 and os.access(place, os.W_OK) else None
    except OSError:
        return None


class Case(unittest.TestCase):
    """Tests that each work on a copy of one sandbox, made once for a class."""

    @classmethod
    def setUpClass(cls):
        place = tempfile.TemporaryDirectory(prefix="vok-script-", dir=quick_place())
        cls.addClassCleanup(place.cleanup)
        cls.place = pathlib.Path(place.name)
        subprocess.run([SANDBOX, "create", cls.place / "model"], check=True,
                       stdout=subprocess.DEVNULL)
        cls.count = 0

    def root(self):
        type(self).count += 1
        root = self.place / ("root%d" % self.count)
        subprocess.run([SANDBOX, "copy", self.place / "model", root], check=True)
        self.addCleanup(subprocess.run, ["rm", "-rf", root])
        return root

    @staticmethod
    def packages(root):
        """The installed packages as name-version-release.arch, without their keys."""
        return {line for line in tool(root, "rpm", "-qa").split()
                if not line.startswith("gpg-pubkey-")}

    def assertSame(self, ours, theirs):
        """Two roots hold the same packages, groups and reasons."""
        self.assertEqual(self.packages(ours), self.packages(theirs))
        for query in (["group", "list"], ["repoquery", "--userinstalled"]):
            self.assertEqual(tool(ours, "dnf", "-q", *query), tool(theirs, "dnf", "-q", *query))

    def apply(self, root, marks, under=(), **scenario):
        """Collects and applies; returns the result, its value and its error."""
        steps = [{"do": "collect"}, dict(marks, do="apply")]
        result = run(root, dict(steps=steps, **scenario), under=under)
        self.assertIsNone(result["errors"][0])
        return result, result["values"][1], result["errors"][1]


def tool(root, name, *arguments, check=True):
    """The output of rpm or dnf on a root."""
    done = subprocess.run([SANDBOX, name, root, *arguments], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, errors="replace")
    if check and done.returncode:
        raise AssertionError("%s %s ended with %d\n%s" % (name, " ".join(arguments),
                                                          done.returncode, done.stdout))
    return done.stdout


def calls(result, name):
    """The arguments of each call of a callback."""
    return [call[1:] for call in result["calls"] if call[0] == name]


class Recorder:
    """The module yumIOC."""

    def __init__(self, scenario):
        self.calls = []
        self.cancelled_now = False
        self._scenario = scenario
        self._seen = 0
        self._confirm = list(scenario.get("confirm", ()))
        self.module = types.ModuleType("yumIOC")
        for name in CALLBACKS:
            setattr(self.module, name, self._callback(name))

    def _callback(self, name):
        def call(*arguments):
            if name == "cancelled":
                return 1 if self.cancelled_now else 0
            self.calls.append([name, *map(plain, arguments)])
            if name == self._scenario.get("cancelAt"):
                self.cancelled_now = True
            self._kill_in_time(name, self.calls[-1][1:])
            return self._answer(name)
        return call

    def _kill_in_time(self, name, arguments):
        callback, number, *wanted = self._scenario.get("killAt", (None, 0))
        if name == callback and wanted in ([], [arguments]):
            self._seen += 1
            if self._seen == number:
                os.kill(os.getpid(), signal.SIGKILL)

    def _answer(self, name):
        if name == "userconfirm":
            return int(self._confirm.pop(0) if self._confirm else True)
        if name == "lockWait":
            return 0
        if name in ("keyQuestion", "confirmRemovals"):
            return int(self._scenario.get({"keyQuestion": "key"}.get(name, name), False))
        return "" if name == "postTransactionOutput" else None


def plain(value):
    """A value as JSON has it; packages as their names, a transaction as its lists."""
    if hasattr(value, "tsInfo"):
        value.tsInfo.makelists()
        return {name: [[plain(member.po), member.repoid,
                        [" ".join((packages_text(tup), relation)) for tup, relation
                         in member.relatedto]] for member in getattr(value.tsInfo, name)]
                for name in LISTS}
    if isinstance(value, str):
        value.encode("utf-8")  # what cannot cross must not come here
        assert "\0" not in value
        return value
    if value is None or isinstance(value, (int, float)):
        return value
    if isinstance(value, (list, tuple)):
        return [plain(one) for one in value]
    return str(value)


def packages_text(tup):
    return "%s:%s-%s-%s.%s" % (tup[2], tup[0], tup[3], tup[4], tup[1])


class Program:
    """What the program does with the object yumIO."""

    def __init__(self, make):
        self.make = make
        self.yumio = None
        self.updates = self.all = self.groups = None

    def collect(self, step, scenario):
        self.yumio = io = self.make()
        io.lock()
        for name in scenario.get("enable", ()):
            io.repos.enableRepo(name)
        io.setupRepos()
        io.setupTs()
        self.updates = {}
        for po in io.collectUpdates():
            self.updates.setdefault(po.name, []).append(po)
        self.all = io.collectAll()
        io.setupTsGroup()
        self.groups = {group.name: group for group in io.collectGroupInfo().visible_groups}
        io.collectDone()
        return {state: sorted(map(str, part)) for state, part in (
            ("updates", sum(self.updates.values(), [])), ("installed", self.all.installed),
            ("available", self.all.available))}

    def _find(self, part, wanted):
        found = [po for po in part if wanted in (po.name, "%s.%s" % (po.name, po.arch), str(po))]
        assert found, "no %s to mark" % wanted
        return found

    def _family(self, po):
        return po.name, self.yumio.getBiArch(po.arch)

    def apply(self, step, scenario):
        installs, updates, removes = [], [], []
        wanted = {key: list(step.get(key, ())) for key in ("install", "update", "remove")}
        for name in wanted["install"]:
            installs += self._find(self.all.available, name)[:1]
        for name in wanted["update"]:
            for new in self._find(sum(self.updates.values(), []), name):
                updates += [[new, old] for old in self.all.installed
                            if self._family(old) == self._family(new)]
        for name in wanted["remove"]:
            removes += self._find(self.all.installed, name)
        try:
            return self.yumio.apply(installs, updates, removes)
        except Exception:
            self.yumio.applyFailCleanup()
            raise
        finally:
            self.yumio.flush()

    def step(self, step, scenario):
        if hasattr(self, step["do"]):
            return getattr(self, step["do"])(step, scenario)
        if step["do"] == "rows":
            return [[plain(field) for field in row] for row in self.yumio.collectRows()
                    if isinstance(row, tuple)]
        if step["do"] == "eval":
            return plain(eval(step["code"], {"io": self.yumio, "program": self}))
        return plain(getattr(self.yumio, step["do"])())


def main(target):
    scenario = json.load(sys.stdin)
    recorder = Recorder(scenario)
    sys.modules["yumIOC"] = recorder.module
    script = os.path.join(os.environ["VOKSHARE"], "python", "YumIO.py")
    names = {"__name__": "__main__"}
    values, errors = [], []
    try:
        with open(script, encoding="utf-8") as stream:
            exec(compile(stream.read(), "YumIO.py", "exec"), names)
        program = Program(names["YumIO"])
        for step in scenario.get("steps", ()):
            try:
                values.append(program.step(step, scenario))
                errors.append(None)
            except (Exception, SystemExit) as error:
                values.append(traceback.format_exc() if not hasattr(error, "value") else None)
                errors.append([type(error).__name__, str(error)])
    finally:
        sys.stdout, sys.stderr = sys.__stdout__, sys.__stderr__
    with open(target, "w", encoding="utf-8") as stream:
        json.dump({"calls": recorder.calls, "values": values, "errors": errors}, stream)


if __name__ == "__main__":
    main(sys.argv[1])
