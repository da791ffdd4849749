# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Full and read-only file systems, and system calls that fail."""

import subprocess
import time

from frame import Lacks, Lost, case, lost_if, needs, needs_root, struck
from guidriver import key
from recorder import INSTALL, REMOVE, UPDATE
from scriptdriver import mounted


class Failing:
    """Makes system calls of a running process and its threads fail, by strace, for a `with` block. `struck` is
    true afterwards if at least one call failed so."""

    def __init__(self, stage, pid, injection, paths=()):
        needs("strace")
        self._output = stage.outputs / "strace.txt"
        calls = injection.partition(":")[0]
        self._command = ["strace", "-f", "-q", "-p", str(pid), "-o", str(self._output), "-e", f"trace={calls}",
                         "-e", f"inject={injection}", *(word for path in paths for word in ("-P", str(path)))]

    def __enter__(self):
        self._process = subprocess.Popen(self._command, stdin=subprocess.DEVNULL, stderr=subprocess.PIPE)
        time.sleep(0.7)  # strace says nothing once it is attached
        if self._process.poll() is not None:
            raise Lacks("strace cannot attach: " + self._process.stderr.read().decode(errors="replace"))
        return self

    def __exit__(self, *_):
        self._process.terminate()
        self._process.wait()
        self._process.stderr.close()

    @property
    def struck(self):
        return "(INJECTED)" in self._output.read_text(errors="replace")


def _full(path, size):
    """A shell command that covers a directory of the root by a small file system with the same files, filled up."""
    return (f"mkdir -p {path} && cp -a {path} {path}.own && mount -t tmpfs -o size={size} none {path} && "
            f"cp -a {path}.own/. {path} && rm -rf {path}.own")


def _window(stage, before):
    if not mounted("true"):
        raise Lacks("this user cannot mount anything")
    return stage.window(before=before)


def _report(told):
    return "\n".join(one["text"] for one in told["dialogs"])


@case("no room for the files of a package")
def full_for_files(stage):
    window = _window(stage, f"mount -t tmpfs -o size=20m none {stage.root}/usr/share")
    before = stage.installed()
    told = _report(stage.apply(window, {INSTALL: ["heavy"]}))
    struck("more space" in told, told)
    lost_if(stage.installed() != before, "packages changed")


@case("the file system of rpm's database is full when rpm writes it")
def full_for_database(stage):
    path = stage.root / "var/lib/rpm"
    window = _window(stage, f"mkdir -p {path}.own && mount -t tmpfs -o size=64m none {path}.own && "
                            f"cp -a {path}/. {path}.own && mount --move {path}.own {path}")
    before = stage.installed()
    pid = window.process.pid
    inside = ["nsenter", "-t", str(pid), "-m", "env", f"HOME={stage.root}/root"]
    subprocess.run([*inside, "sh", "-c", f"cat /dev/zero > {path}/fill"], stderr=subprocess.DEVNULL)
    told = _report(stage.apply(window, {INSTALL: ["chess"]}))
    subprocess.run([*inside, "rm", path / "fill"], check=True)
    struck(told, "nothing failed")
    inside = subprocess.run([*inside, "rpm", f"--root={stage.root}", "-qa"], text=True, check=True,
                            stdout=subprocess.PIPE).stdout.split()
    lost_if(not before <= set(inside), f"packages are gone: {before - set(inside)}")
    lost_if("chess" in " ".join(inside) and "1 failed" in told, f"the report is wrong: {told}")


@case("every synchronisation fails while rpm works")
def no_fsync(stage):
    needs_root()
    window = stage.window()
    with Failing(stage, window.process.pid, "fsync,fdatasync:error=EIO") as failing:
        told = _report(stage.apply(window, {INSTALL: ["chess"], UPDATE: ["clock"], REMOVE: ["compass"]}))
    struck(failing.struck, "no call failed")
    names = {name.rsplit("-", 2)[0] for name in stage.installed()}
    done = "chess" in names and "compass" not in names
    lost_if(not done and not told, "nothing was told, and not everything was done")


@case("the marker of the transaction cannot be written")
def no_marker(stage):
    needs_root()
    window = stage.window()
    marker = stage.root / "var/lib/vok/transaction.json.new"
    with Failing(stage, window.process.pid, "rename,renameat,renameat2:error=EIO", [marker]) as failing:
        told = _report(stage.apply(window, {INSTALL: ["chess"]}))
    struck(failing.struck, "no call failed")
    lost_if("chess-1.0-1.noarch" not in stage.installed() and not told, "not installed, and nothing was told")


@case("no process can be made for the second scriptlet of a package")
def no_fork(stage):
    needs_root()
    window = stage.window()
    window.do("mark", names=["slow-1"], action=INSTALL)
    window.do("answer", rules=[{"title": "Apply", "button": "OK"}])
    window.do("press", button="applyButton")
    stage.wait_for_scriptlet("slow-1 pre")
    with Failing(stage, window.process.pid, "clone,fork,vfork:error=EAGAIN") as failing:
        told = _report(window.do("wait", timeout=180))
    struck(failing.struck, "no call failed")
    lost_if("slow-1" not in told, f"the failure was not told: {told}")


@case("no process can be made for rpmkeys, which checks signatures")
def no_rpmkeys(stage):
    needs_root()
    window = stage.window()
    before = stage.installed()
    with Failing(stage, window.process.pid, "clone,fork,vfork:error=EAGAIN") as failing:
        told = _report(stage.apply(window, {INSTALL: ["chess"]}))
    if not failing.struck:
        raise Lacks("this DNF starts no rpmkeys")
    lost_if("Unable to apply changes" not in told, f"the failure was not told: {told}")
    lost_if(stage.installed() != before, "packages changed")


def _edit_first(stage, before):
    """Switches the first repository off in the editor of the real program and presses OK."""
    needs_root()
    if not mounted("true"):
        raise Lacks("this user cannot mount anything")
    stage.screen()
    program = stage.program(under=mounted(before))
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("ctrl+e")
    editor = program.find("dialog", "VOK Repository Configuration Editor")
    program.click(program.find("table", top=editor))
    key("ctrl+Home", "Right", "space")
    program.click(program.find("push button", "OK", editor))
    return program, program.find(("alert", "dialog"), "VOK Repository Editor Error")


@case("no room for the repository files")
def full_for_configuration(stage):
    path = stage.root / "etc/yum.repos.d"
    program, box = _edit_first(stage, _full(path, "64k") + f" && dd if=/dev/zero of={path}/fill bs=1k 2>/dev/null || true")
    text = "\n".join(map(program.texts, program.walk(box)))
    struck("28" in text or "space" in text, text)
    key("Return")
    program.process.terminate()
    program.end()


@case("the repository files cannot be renamed into place")
def no_rename(stage):
    needs_root()
    stage.screen()
    program = stage.program()
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("ctrl+e")
    editor = program.find("dialog", "VOK Repository Configuration Editor")
    program.click(program.find("table", top=editor))
    key("ctrl+Home", "Right", "space")
    with Failing(stage, program.process.pid, "rename,renameat,renameat2:error=EIO") as failing:
        program.click(program.find("push button", "OK", editor))
        box = program.find(("alert", "dialog"), "VOK Repository Editor Error")
        text = "\n".join(map(program.texts, program.walk(box)))
        key("Return")
    struck(failing.struck, "no call failed")
    lost_if("errno = 5" not in text, f"the error is not named: {text}")
    program.process.terminate()
    program.end()


@case("memory runs out at Apply, in the download, in rpm and in a refresh")
def no_memory(stage):
    needs("prlimit")
    ends = []
    for moment, spares in (("apply", (0, 0.05, 0.3, 2, 6, 12, 20, 30, 40, 120)), ("download", (0, 0.3, 2, 8, 20)),
                           ("transaction", (8,)), ("refresh", (0.05, 0.3, 2, 8, 20))):
        for spare in spares:
            ends.append(f"{moment}, {spare} MiB: {_without_memory(stage, moment, spare)}")
            stage.tool("rpm", "-e", "chess")
    struck(any("done" not in one for one in ends), f"nothing failed: {ends}")
    return "; ".join(ends)


def _without_memory(stage, moment, spare):
    """How a job ends when so many MiB are left from a moment on."""
    window = stage.window()
    pid = str(window.process.pid)
    with open(f"/proc/{pid}/statm", encoding="ascii") as stream:
        limit = int(stream.read().split()[0]) * 4096 + int(spare * (1 << 20))
    window.do("mark", names=["chess"], action=INSTALL)
    window.do("answer", rules=[{"title": "Apply", "button": "OK"}])
    try:
        if moment in ("download", "transaction"):
            window.do("press", button="applyButton")
            window.do("until", state=moment)
        subprocess.run(["prlimit", "--pid", pid, f"--as={limit}:"], check=True)
        if moment in ("apply", "refresh"):
            window.do("press", button=f"{moment}Button")
        told = _report(window.do("wait", timeout=120))
    except (AssertionError, OSError) as error:
        raise Lost(f"{moment}, {spare} MiB: the program ended: {error}") from None
    subprocess.run(["prlimit", "--pid", pid, "--as=unlimited:"], check=True)
    lost_if(window.close(), f"{moment}, {spare} MiB: it did not end with status 0")
    return told.splitlines()[-1] if told else "done"
