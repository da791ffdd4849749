# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What the cases that drive the real program share; no cases. The program is driven by mouse and keys, without
accessibility: a case may take the display or the message bus away."""

import os
import random
import shutil
import signal
import subprocess
import threading

from frame import lost_if, needs
from guidriver import Failure, Program, wait_for, xdotool
from recorder import BUILD, SANDBOX

REPORT = "var/lib/vok/report.txt"
SLOW = ["slow-1", "slow-2", "slow-3"]  # packages whose scriptlets take a second each


def add_package(stage, name, script):
    """Adds a package with this %post to the repositories of the root."""
    needs("rpmbuild", "createrepo_c")
    top = stage.place / "build"
    top.mkdir()
    spec = top / f"{name}.spec"
    spec.write_text(f"Name: {name}\nVersion: 1.0\nRelease: 1\nSummary: Misbehaves\nLicense: MIT\nBuildArch: noarch\n"
                    f"Requires: /bin/sh\n%description\nMisbehaves.\n%post\n{script}\n%files\n", encoding="utf-8")
    repository = stage.root / "srv/torture"
    subprocess.run(["rpmbuild", "-bb", "--quiet", f"-D_topdir {top}", f"-D_rpmdir {repository}", f"-D_dbpath {top}/db",
                    spec], check=True, capture_output=True)
    subprocess.run(["createrepo_c", "--quiet", repository], check=True, capture_output=True)
    path = stage.root / "etc/yum.repos.d/torture.repo"
    path.write_text("[torture]\nname=Torture\nbaseurl=file:///srv/torture\ngpgcheck=0\n", encoding="utf-8")
    stage.configuration = stage.read_configuration()


def running(stage, names, *under, log=False):
    """The real program, run by the command `under`, with these packages marked for installation and Apply's listing
    on the screen."""
    stage.screen()
    os.environ["VOKSHARE"] = str(BUILD / "share" / "vok")
    program = Program([SANDBOX, "run", stage.root, "--", *under, BUILD / "bin" / "vok", "-s", "all", "-e",
                       "^(%s) " % "|".join(names), *["--log"] * log], stage.outputs / "program.txt")
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    table = program.find(("table", "tree table"))
    wait_for(lambda: len(program.cells(table)) == len(names), "the rows alone in the table")
    for row in range(len(names)):
        program.click(table.get_table_iface().get_accessible_at(row, 0))
    program.wait_enabled(program.find("push button", "Apply Actions"), "Apply Actions")
    program.click(program.find("push button", "Apply Actions"))
    program.find("dialog", "Apply")
    return program


def confirm(program):
    program.click(program.find("push button", "OK", program.find("dialog", "Apply")))


def confirm_and(program, act):
    """Confirms, and calls `act` at a random moment between the click and rpm's first seconds."""
    ok = program.box(program.find("push button", "OK", program.find("dialog", "Apply")))
    xdotool("mousemove", "--sync", ok[0] + ok[2] // 2, ok[1] + ok[3] // 2)
    timer = threading.Timer(random.uniform(0, 0.4), act)
    timer.start()
    subprocess.run(["xdotool", "click", "1"], stderr=subprocess.DEVNULL)
    timer.join()


def in_rpm(stage, names, *under, words="slow-"):
    """As running(), confirmed, and rpm is running a scriptlet."""
    program = running(stage, names, *under)
    confirm(program)
    stage.wait_for_scriptlet(words)
    return program


def has_ended(process):
    return process.poll() is not None


def end_of(process, timeout=60):
    """The exit status of a process that ends by itself. Its stacks are in the failure otherwise."""
    try:
        return process.wait(timeout)
    except subprocess.TimeoutExpired:
        stacks = ""
        if shutil.which("gdb"):
            stacks = subprocess.run(["gdb", "-p", str(process.pid), "-batch", "-ex", "thread apply all bt 25"], text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        raise Failure(f"the program did not end\n{stacks}") from None


def installed_names(stage):
    return {name.rsplit("-", 2)[0] for name in stage.installed()}


def check_complete(stage, names):
    """The transaction was finished, and the next start tells so."""
    missing = set(names) - installed_names(stage)
    lost_if(missing, f"not installed: {sorted(missing)}")
    path = stage.root / REPORT
    lost_if(not path.exists(), "no report is kept")
    text = path.read_text(encoding="utf-8")
    lost_if(f"{len(names)} done, 0 failed, 0 skipped" not in text, f"the report is wrong: {text}")
    stage.next_start = ["VOK Transaction Report"]
