# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Scriptlets that misbehave, and markers and locks that cannot be used."""

import os
import shutil
import signal
import subprocess

import ownrepo
from disks import Failing
from frame import LOCK, MARKER, Lacks, case, lost_if, needs, needs_root, struck
from guidriver import key, wait_for
from recorder import INSTALL


def _told(answer):
    return "\n".join(one["text"] for one in answer["dialogs"])


def _add(stage, *packages):
    """Adds a repository of these packages."""
    ownrepo.add(stage.root, "torture", *packages)
    stage.configuration = stage.read_configuration()


@case("a scriptlet in Lua leaves a child process behind")
def lua_child(stage):
    _add(stage, ownrepo.package("forker", "1-1", scripts={
        "post -p <lua>": "if posix.fork() == 0 then posix.sleep(60) posix._exit(0) end"}))
    window = stage.window()
    stage.apply(window, {INSTALL: ["forker"]})
    lost_if(window.close(), "it did not end with status 0")
    left = stage.processes()
    struck(left, "no child is left")
    again = stage.window()
    titles = [dialog["title"] for dialog in again.opened["dialogs"]]
    again.close()
    for pid, _ in left:
        os.kill(pid, signal.SIGKILL)
    lost_if(titles, f"the next start showed {titles}")


@case("the marker of a finished transaction cannot be removed, but rewritten")
def marker_stays(stage):
    needs_root()
    window = stage.window()
    with Failing(stage, window.process.pid, "unlink,unlinkat:error=EIO", [stage.root / MARKER]) as failing:
        told = _told(stage.apply(window, {INSTALL: ["chess"]}))
    struck(failing.struck and stage.marker() is not None, "the marker was removed")
    lost_if("1 done" not in window.logged() or "interrupted" in told, f"told wrongly: {told}")
    lost_if(MARKER not in window.logged(), "the reason is not in the log")


@case("the marker of a finished transaction can be neither removed nor rewritten")
def marker_immutable(stage):
    needs_root()
    needs("chattr")
    window = stage.window()
    window.do("mark", names=["slow-1"], action=INSTALL)
    window.do("answer", rules=[{"title": "Apply", "button": "OK"}])
    window.do("press", button="applyButton")
    stage.wait_for_scriptlet("slow-1")
    if subprocess.run(["chattr", "+i", stage.root / MARKER], stderr=subprocess.DEVNULL).returncode:
        raise Lacks("no file can be made immutable here")
    try:
        window.do("wait", timeout=180)
        window.close()
        again = stage.window()
        told = _told(again.opened)
        again.close()
    finally:
        subprocess.run(["chattr", "-i", stage.root / MARKER], check=True)
    lost_if("interrupted" in told or "remove the file" not in told, f"the next start told: {told}")
    stage.next_start = ["VOK Interrupted Transaction"]


@case("the lock file cannot be locked")
def no_locks(stage):
    needs_root()
    output = stage.outputs / "strace.txt"
    path = stage.root / LOCK
    path.parent.mkdir(parents=True, exist_ok=True)
    path.touch()
    window = stage.window(before=f"(strace -f -q -p $$ -o {output} -P {path} -e trace=fcntl,flock "
                                 "-e inject=fcntl,flock:error=ENOLCK </dev/null >/dev/null 2>&1 &) && sleep 1")
    told = _told(window.opened)
    window.close()
    struck("(INJECTED)" in output.read_text(errors="replace"), "no call failed")
    lost_if("vok.lock" not in told or "process 0" in told, f"the reason is not told: {told}")


@case("a scriptlet moves rpm's database away")
def database_moved(stage):
    _add(stage, ownrepo.package("mover", "1-1", scripts={
        "post -p <lua>": 'os.rename("/var/lib/rpm", "/var/lib/rpm.moved")'}))
    window = stage.window()
    told = _told(stage.apply(window, {INSTALL: ["mover", "chess"]}))
    database = stage.root / "var/lib/rpm"
    moved = database.with_name("rpm.moved")
    struck(moved.exists(), "the database was not moved")
    window.close()
    lost_if(told.count("database was moved") != 2 or "another package failed" in told, f"told wrongly: {told}")
    again = stage.window()
    told = _told(again.opened)
    lost_if("moved or replaced" not in told, f"the next start told: {told}")
    again.close()
    if database.exists():
        shutil.rmtree(database)
    moved.rename(database)


@case("a scriptlet that never ends is ended by the user, and by nobody else")
def never_ends(stage):
    _add(stage, ownrepo.package("endless", "1-1", requires=("/bin/sh",), scripts={"post": "echo endless; exec sleep 1000"}),
         ownrepo.package("later", "1-1", requires=("endless",)))
    stage.screen()
    os.environ["VOK_STUCK_SECONDS"] = "3"
    try:
        program = stage.program("-s", "all", "-e", "^(endless|later) ", "--log")
    finally:
        del os.environ["VOK_STUCK_SECONDS"]
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    table = program.find(("table", "tree table"))
    wait_for(lambda: len(program.cells(table)) == 2, "the rows alone in the table")
    for row in range(2):
        program.click(table.get_table_iface().get_accessible_at(row, 0))
    program.wait_enabled(program.find("push button", "Apply Actions"), "Apply Actions")
    program.click(program.find("push button", "Apply Actions"))
    program.click(program.find("push button", "OK", program.find("dialog", "Apply")))
    stage.wait_for_scriptlet("endless")
    box = program.find(("alert", "dialog"), "VOK Scriptlet")
    text = "\n".join(map(program.texts, program.walk(box)))
    stage.screens[0].picture(stage.outputs / "box.png")
    child, = [pid for pid, command in stage.processes() if command.startswith("sleep 1000")]
    lost_if("endless-1-1" not in text or str(child) not in text, f"the process is not named: {text}")
    keep = program.find("push button", "Keep Waiting", box)
    lost_if(not program.has(keep, "IS_DEFAULT"), "the safe answer is not the default")
    program.click(keep)
    wait_for(lambda: not program.look(("alert", "dialog"), "VOK Scriptlet"), "the end of the box")
    os.kill(child, 0)
    box = program.find(("alert", "dialog"), "VOK Scriptlet", timeout=90)  # again
    program.click(program.find("push button", "End the Scriptlet", box))
    report = program.find("dialog", "VOK Transaction Report")
    text = "\n".join(map(program.texts, program.walk(report)))
    lost_if("endless" not in text or "signal 15" not in text, f"the report is wrong: {text}")
    key("Return")
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("ctrl+q")
    lost_if(program.end(), "it did not end with status 0")
    lost_if("later-1-1.noarch" not in stage.installed(), "the rest was not done")


@case("the message about a scriptlet goes when the scriptlet ends by itself")
def ends_late(stage):
    _add(stage, ownrepo.package("late", "1-1", requires=("/bin/sh",), scripts={"post": "echo late; exec sleep 12"}))
    os.environ["VOK_STUCK_SECONDS"] = "3"
    try:
        window = stage.window()
    finally:
        del os.environ["VOK_STUCK_SECONDS"]
    told = _told(stage.apply(window, {INSTALL: ["late"]}))
    struck("A scriptlet of late-1-1.noarch has been running" in window.logged(), window.logged())
    lost_if("late-1-1.noarch" not in stage.installed() or "failed" in told, f"it was not left alone: {told}")
    lost_if("SIGTERM" in window.logged(), "the scriptlet was ended")
