# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The display, the message bus or the session ends while the program runs."""

import os
import signal
import subprocess
import time

from driving import SLOW, check_complete, confirm, confirm_and, end_of, has_ended, in_rpm, installed_names, running
from frame import case, lost_if, needs, struck
from guidriver import key, wait_for
from httpserver import Server
from recorder import BUILD, SANDBOX


def display_of(stage):
    """The process of the X server."""
    return stage.screens[-1].processes[0]


def end_display(stage, how=signal.SIGKILL):
    server = display_of(stage)
    os.kill(server.pid, how)
    server.wait()


def press(program, name, top=None):
    """Presses a button without mouse or keys."""
    program.find("push button", name, top).get_action_iface().do_action(0)


class Weston:
    """A Wayland compositor without a screen, for the programs that are started while it runs."""

    def __init__(self, stage):
        needs("weston")
        stage.screen()  # for the message bus, and for accessibility
        self.stage = stage
        self.process = stage.screens[-1]._start(["weston", "--backend=headless-backend.so", "--socket=wayland-torture",
                                                 "--idle-time=0"])
        path = os.path.join(os.environ["XDG_RUNTIME_DIR"], "wayland-torture")
        wait_for(lambda: os.path.exists(path), "the compositor's socket", 20)

    def listing(self, names):
        """The real program with these packages marked and Apply's listing open."""
        under = ["env", "QT_QPA_PLATFORM=wayland", "WAYLAND_DISPLAY=wayland-torture"]
        program = self.stage.program("-s", "all", "-e", "^(%s) " % "|".join(names), under=under)
        program.wait_enabled(program.find("push button", "Refresh"), "the window")
        table = program.find(("table", "tree table"))
        wait_for(lambda: len(program.cells(table)) == len(names), "the rows alone in the table")
        for row in range(len(names)):
            table.get_table_iface().add_row_selection(row)
        press(program, "Set Install/Update of Selected")
        program.wait_enabled(program.find("push button", "Apply Actions"), "Apply Actions")
        press(program, "Apply Actions")
        program.find("dialog", "Apply")
        with open(f"/proc/{program.process.pid}/maps", encoding="utf-8", errors="replace") as stream:
            struck("libQt6WaylandClient" in stream.read(), "it does not use Wayland")
        return program

    def in_rpm(self, names):
        program = self.listing(names)
        press(program, "OK", program.find("dialog", "Apply"))
        self.stage.wait_for_scriptlet("slow-")
        return program


def outlives(stage, program, end):
    end()
    struck(stage.marker(), "rpm had ended before")
    time.sleep(0.5)
    lost_if(has_ended(program.process), f"the program ended inside rpm with {program.process.poll()}")
    status = end_of(program.process)
    lost_if(status < 0, f"it ended by signal {-status}")
    check_complete(stage, SLOW)
    return f"status {status}"


@case("the X server is killed while rpm works")
def x_killed(stage):
    return outlives(stage, in_rpm(stage, SLOW), lambda: end_display(stage))


@case("the X server is terminated while rpm works, with the log window open")
def x_terminated(stage):
    program = running(stage, SLOW, log=True)
    confirm(program)
    stage.wait_for_scriptlet("slow-")
    return outlives(stage, program, lambda: end_display(stage, signal.SIGTERM))


@case("the X server closes the program's connection while rpm works")
def x_client_killed(stage):
    needs("xkill")
    program = in_rpm(stage, SLOW)

    def end():
        window = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^VOK$"], text=True, check=True,
                                stdout=subprocess.PIPE).stdout.split()[0]
        subprocess.run(["xkill", "-id", window], check=True, stdout=subprocess.DEVNULL)

    return outlives(stage, program, end)


@case("the Wayland compositor is killed while rpm works")
def wayland_killed(stage):
    compositor = Weston(stage)
    return outlives(stage, compositor.in_rpm(SLOW), compositor.process.kill)


@case("the X server ends while rpm works, and its scriptlet prints more than a pipe holds")
def x_killed_loud(stage):
    program = in_rpm(stage, ["loud", "slow-1"])
    end_display(stage)
    struck(stage.marker(), "rpm had ended before")
    lost_if(end_of(program.process) < 0, "it ended by a signal")
    check_complete(stage, ["loud", "slow-1"])


def ends_without_rpm(stage, program, before):
    """Nothing was begun: the program ends at once, and nothing is left."""
    status = end_of(program.process, 20)
    lost_if(status < 0, f"it ended by signal {-status}")
    lost_if(stage.installed() != before, "packages changed")
    lost_if(stage.marker(), "there is a marker of a transaction")
    return f"status {status}"


@case("the X server is killed while the window is idle")
def x_killed_idle(stage):
    before = stage.installed()
    stage.screen()
    program = stage.program()
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    end_display(stage)
    return ends_without_rpm(stage, program, before)


@case("the X server is killed while the confirmation is open")
def x_killed_at_confirmation(stage):
    before = stage.installed()
    program = running(stage, SLOW)
    end_display(stage)
    return ends_without_rpm(stage, program, before)


@case("the X server is killed at any time between the confirmation and the end")
def x_killed_anywhere(stage):
    before = stage.installed()
    program = running(stage, ["slow-1"])
    confirm_and(program, lambda: end_display(stage))
    status = end_of(program.process)
    lost_if(status < 0, f"it ended by signal {-status}")
    if "slow-1" in installed_names(stage):
        check_complete(stage, ["slow-1"])
        return "rpm had begun"
    lost_if(stage.installed() != before or stage.marker(), "rpm was interrupted")
    return "rpm had not begun"


@case("the X server is killed while packages are collected")
def x_killed_collecting(stage):
    before = stage.installed()
    stage.screen()
    program = stage.program()
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("alt+r")
    end_display(stage)
    return ends_without_rpm(stage, program, before)


@case("the X server is killed while the report is on the screen")
def x_killed_at_report(stage):
    program = running(stage, ["fail-post"])
    confirm(program)
    program.find("dialog", "VOK Transaction Report")
    end_display(stage)
    lost_if(end_of(program.process) < 0, "it ended by a signal")
    stage.next_start = ["VOK Transaction Report"]


@case("the message bus is killed while rpm works")
def bus_killed(stage):
    program = in_rpm(stage, SLOW)
    for process in stage.screens[-1].processes[1:2]:
        process.kill()
    struck(stage.marker(), "rpm had ended before")
    wait_for(lambda: set(SLOW) <= installed_names(stage) and not stage.marker(), "the end of the transaction")
    lost_if(has_ended(program.process), "the program ended")
    key("ctrl+q")
    lost_if(end_of(program.process), "the exit status is not 0")


@case("the X server is killed before the window is shown")
def x_killed_at_start(stage):
    before = stage.installed()
    stage.screen()
    os.environ["VOKSHARE"] = str(BUILD / "share" / "vok")
    statuses = []
    for tenths in (1, 2, 4, 6):
        with stage.outputs.joinpath(f"start{tenths}.txt").open("wb") as output:
            process = subprocess.Popen([SANDBOX, "run", stage.root, "--", BUILD / "bin" / "vok"], stdout=output,
                                       stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, start_new_session=True)
        time.sleep(tenths / 10)
        end_display(stage)
        statuses.append(end_of(process, 20))
        lost_if(stage.marker() or stage.installed() != before, "packages changed")
        stage.screens.pop().__exit__()
        stage.screen()
    # Qt itself calls abort when there is no display to begin with.
    lost_if([one for one in statuses if one < 0 and one != -signal.SIGABRT], f"it ended with {statuses}")
    return f"statuses {statuses}"


@case("the X server is killed while packages are downloaded")
def x_killed_downloading(stage):
    before = stage.installed()
    with Server(stage.root / "srv/repos/9/x86_64") as server:
        path = stage.root / "etc/yum.repos.d/aster-extras.repo"
        path.write_text(f"[extras]\nname=Extras\nbaseurl={server.url('extras')}\ngpgcheck=0\n", encoding="utf-8")
        stage.configuration = stage.read_configuration()
        program = running(stage, ["heavy"])
        server.misbehave("rate=20000;only=*.rpm")
        confirm(program)
        wait_for(lambda: any(asked.endswith(".rpm") for _, asked, _ in server.requests()), "the download")
        time.sleep(0.5)
        end_display(stage)
        status = ends_without_rpm(stage, program, before)
        path.unlink()
        stage.configuration = stage.read_configuration()
    return status


@case("the X server is killed while VOK asks whether to wait for DNF's lock, after the confirmation")
def x_killed_at_question(stage):
    before = stage.installed()
    program = running(stage, ["slow-1"])
    lock = stage.root / "var/lib/dnf/rpmdb_lock.pid"
    holder = subprocess.Popen(["sleep", "1000"])
    lock.write_text(str(holder.pid), encoding="ascii")
    try:
        confirm(program)
        program.find(("alert", "dialog"), "VOK Package Lock")
        struck(stage.marker(), "the marker was not written yet")
        end_display(stage)
        return ends_without_rpm(stage, program, before)
    finally:
        holder.kill()
        holder.wait()


@case("the X server does not answer while rpm works")
def x_stopped(stage):
    program = in_rpm(stage, SLOW)
    server = display_of(stage)
    os.kill(server.pid, signal.SIGSTOP)
    try:
        wait_for(lambda: set(SLOW) <= installed_names(stage) and not stage.marker(), "the end of the transaction", 60)
    finally:
        os.kill(server.pid, signal.SIGCONT)
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("ctrl+q")
    lost_if(end_of(program.process), "the exit status is not 0")


@case("SIGTERM and SIGINT while VOK finishes without a display")
def x_killed_and_signals(stage):
    program = in_rpm(stage, SLOW)
    end_display(stage)
    time.sleep(0.5)
    struck(stage.marker() and not has_ended(program.process), "rpm had ended before")
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGTERM):
        os.kill(program.process.pid, number)
    lost_if(end_of(program.process) < 0, "it ended by a signal")
    check_complete(stage, SLOW)


@case("the Wayland compositor is killed while the confirmation is open")
def wayland_killed_at_confirmation(stage):
    before = stage.installed()
    compositor = Weston(stage)
    program = compositor.listing(SLOW)
    compositor.process.kill()
    return ends_without_rpm(stage, program, before)
