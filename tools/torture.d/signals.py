# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Signals, and what is told of a transaction when the program ends in or after it."""

import os
import signal
import sys
import time

from driving import REPORT, SLOW, add_package, check_complete, confirm, confirm_and, end_of, has_ended, in_rpm, installed_names
from driving import running
from frame import case, lost_if, struck
from guidriver import key, wait_for

_FAULTS = {signal.SIGILL, signal.SIGTRAP, signal.SIGABRT, signal.SIGBUS, signal.SIGFPE, signal.SIGSEGV}
_HARMLESS = {signal.SIGCHLD, signal.SIGCONT, signal.SIGURG, signal.SIGWINCH}
_STOPPING = {signal.SIGSTOP, signal.SIGTSTP, signal.SIGTTIN, signal.SIGTTOU}
# All that end a process by default.
ENDING = sorted(set(range(1, signal.SIGRTMAX + 1)) - _FAULTS - _HARMLESS - _STOPPING
                - {signal.SIGKILL, *range(32, signal.SIGRTMIN)})

# Runs a command as a shell with job control does: the kernel stops no job without one.
_JOB = "import os, sys; pid = os.fork(); os.setpgid(pid, pid); pid or os.execvp(sys.argv[1], sys.argv[1:]); " \
       "sys.exit(os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1]))"


def status_of(pid, field):
    """A mask of signals of /proc/PID/status, as a set."""
    with open(f"/proc/{pid}/status", encoding="ascii") as stream:
        text = next(line.split()[1] for line in stream if line.startswith(field + ":"))
    return {number for number in range(1, 65) if int(text, 16) >> (number - 1) & 1}


def children(pid):
    with open(f"/proc/{pid}/task/{pid}/children", encoding="ascii") as stream:
        found = [int(one) for one in stream.read().split()]
    for task in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{task}/children", encoding="ascii") as stream:
            found += [int(one) for one in stream.read().split()]
    return set(found)


def held_in_rpm(stage, numbers):
    program = in_rpm(stage, SLOW)
    for number in numbers:
        os.kill(program.process.pid, number)
        time.sleep(0.05)
        struck(stage.marker(), "rpm had ended before")
        lost_if(has_ended(program.process), f"signal {number} ended it: {program.process.poll()}")
    lost_if(end_of(program.process), "the exit status is not 0")
    check_complete(stage, SLOW)


@case("SIGINT while rpm works")
def interrupted(stage):
    held_in_rpm(stage, [signal.SIGINT])


@case("every other signal that ends a process, while rpm works")
def every_signal(stage):
    held_in_rpm(stage, ENDING)


@case("a scriptlet sends its parent every signal that ends a process")
def parent_of_scriptlet(stage):
    add_package(stage, "signaller", "for s in %s; do kill -$s $PPID && echo sent; done" % " ".join(map(str, ENDING)))
    names = ["signaller", "slow-1"]
    program = running(stage, names)
    confirm(program)
    lost_if(end_of(program.process), f"the exit status is not 0: {program.process.returncode}")
    check_complete(stage, names)


@case("scriptlets have the default actions and no signal blocked, as rpm starts them")
def children_have_defaults(stage):
    program = in_rpm(stage, ["slow-1"], words="slow-1 post")
    ours = status_of(program.process.pid, "SigCgt")
    struck(ours >= set(ENDING) - {signal.SIGKILL, signal.SIGPIPE, signal.SIGXFSZ}, f"not all are held: {ours}")
    for child in wait_for(lambda: children(program.process.pid), "the scriptlet", 2):
        blocked = status_of(child, "SigBlk") - {signal.SIGINT, signal.SIGQUIT}  # which rpm blocks in scriptlets
        # The interpreter ignores SIGXFSZ; busybox itself ignores SIGQUIT.
        ignored = status_of(child, "SigIgn") - {signal.SIGXFSZ, signal.SIGQUIT}
        lost_if(blocked or ignored, f"blocked {blocked}, ignored {ignored}")
    wait_for(lambda: "slow-1" in installed_names(stage) and not stage.marker(), "the end of the transaction")
    wait_for(lambda: signal.SIGUSR1 not in status_of(program.process.pid, "SigCgt"), "the default actions")
    os.kill(program.process.pid, signal.SIGINT)
    lost_if(end_of(program.process) != -signal.SIGINT, "SIGINT had another action outside of rpm")


@case("SIGTERM twice while rpm works")
def terminated_twice(stage):
    held_in_rpm(stage, [signal.SIGTERM, signal.SIGTERM])


@case("the terminal stops the job, scriptlets included, while rpm works, and continues it")
def stopped(stage):
    program = in_rpm(stage, SLOW, sys.executable, "-c", _JOB)
    pid = stage.marker()["pid"]
    os.killpg(pid, signal.SIGTSTP)

    def state():
        with open(f"/proc/{pid}/stat", encoding="ascii") as stream:
            return stream.read().rpartition(")")[2].split()[0]

    wait_for(lambda: state() == "T", "the program to stop", 10)
    time.sleep(1)
    os.killpg(pid, signal.SIGCONT)
    wait_for(lambda: set(SLOW) <= installed_names(stage) and not stage.marker(), "the end of the transaction")
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("ctrl+q")
    lost_if(end_of(program.process), "the exit status is not 0")


@case("signals while the confirmation is open: SIGTERM ends the program, nothing was done")
def terminated_at_confirmation(stage):
    before = stage.installed()
    program = running(stage, SLOW)
    os.kill(program.process.pid, signal.SIGTERM)
    lost_if(end_of(program.process), "the exit status is not 0")
    lost_if(stage.installed() != before, "packages changed")


@case("SIGINT, which has its default action then, at any time between the confirmation and the end")
def interrupted_anywhere(stage):
    names = ["slow-1"]
    program = running(stage, names)
    began = []

    def interrupt():
        began.append(stage.marker() is not None)
        os.kill(program.process.pid, signal.SIGINT)

    confirm_and(program, interrupt)
    status = end_of(program.process)
    struck(status in (0, -signal.SIGINT), f"it ended with {status}")
    if "slow-1" in installed_names(stage):
        check_complete(stage, names)
    else:
        lost_if(began[0], "rpm was interrupted")
    return f"status {status}"


@case("killed while the report is on the screen: the next start shows it")
def killed_at_report(stage):
    program = running(stage, ["fail-post", "slow-1"])
    confirm(program)
    program.find("dialog", "VOK Transaction Report")
    program.kill()
    text = (stage.root / REPORT).read_text(encoding="utf-8")
    lost_if("2 done" not in text or "fail-post" not in text, f"the report is wrong: {text}")
    stage.next_start = ["VOK Transaction Report"]


@case("killed while the message about an interrupted transaction is on the screen")
def killed_at_interrupted(stage):
    program = in_rpm(stage, SLOW)
    struck(stage.marker() is not None, "there is no marker")
    program.kill()
    wait_for(lambda: not any("rpm-tmp" in command for _, command in stage.processes()), "the end of the scriptlet")
    program = stage.program()
    program.find("dialog", "VOK Interrupted Transaction")
    program.kill()
    stage.next_start = ["VOK Interrupted Transaction"]


@case("the report is removed once it has been read")
def report_read(stage):
    program = running(stage, ["fail-post"])
    confirm(program)
    program.find("dialog", "VOK Transaction Report")
    struck((stage.root / REPORT).exists(), "no report was kept")
    key("Return")
    wait_for(lambda: not (stage.root / REPORT).exists(), "the report to be removed", 10)
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("ctrl+q")
    lost_if(end_of(program.process), "the exit status is not 0")


