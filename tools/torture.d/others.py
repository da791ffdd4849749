# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Other programs that work on the system at the same time."""

import os
import signal
import subprocess

from frame import Lost, case, lost_if, needs_root, struck
from recorder import INSTALL, REMOVE, SANDBOX, UPDATE
from guidriver import wait_for


@case("another program removes a package while the confirmation is open")
def removed_while_asked(stage):
    window = stage.window()
    window.do("mark", names=["compass"], action=REMOVE)
    window.do("mark", names=["abacus"], action=INSTALL)
    window.do("answer", rules=[{"title": "", "button": ""}])
    window.do("press", button="applyButton")
    window.do("dialog")
    status, output = stage.tool("rpm", "-e", "compass")
    struck(status == 0, output)
    before = stage.installed()
    window.do("answer", rules=[{"title": "VOK Yum Warning", "button": "Refresh"}])
    window.do("press", button="OK")
    told = window.do("wait", timeout=180)["dialogs"]
    lost_if(stage.installed() != before, "something was applied to packages that are not those listed")
    lost_if(not any("compass" in one["text"] for one in told), f"the change was not named: {told}")
    lost_if("abacus" not in window.marked(), "a mark that still fits was lost")


@case("dnf runs a transaction while VOK applies")
def dnf_beside(stage):
    window = stage.window()
    window.do("mark", names=["slow-1"], action=INSTALL)
    window.do("answer", rules=[{"title": "Apply", "button": "OK"}])
    window.do("press", button="applyButton")
    stage.wait_for_scriptlet("slow-1")
    other = subprocess.Popen([SANDBOX, "dnf", stage.root, "-y", "install", "chess"], stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    window.do("wait", timeout=300)
    output, _ = other.communicate(timeout=300)
    there = {name.rsplit("-", 2)[0] for name in stage.installed()}
    lost_if(not {"slow-1", "chess"} <= there, f"not both were done: {output}")


@case("another program kills VOK between two elements; the next start tells it")
def killed(stage):
    needs_root()
    window = stage.window()
    window.do("mark", names=["slow-1", "abacus"], action=INSTALL)
    window.do("mark", names=["clock"], action=UPDATE)
    window.do("answer", rules=[{"title": "Apply", "button": "OK"}])
    window.do("press", button="applyButton")
    stage.wait_for_scriptlet("slow-1")
    struck(stage.marker() is not None, "there is no marker of the transaction")
    os.kill(stage.marker()["pid"], signal.SIGKILL)
    window.process.wait()
    wait_for(lambda: not stage.processes(), "the end of the scriptlet", 60)
    stage.next_start = ["VOK Interrupted Transaction"]


@case("the configuration is replaced by another program while the table is shown")
def configuration_replaced(stage):
    window = stage.window()
    path = stage.root / "etc/yum.repos.d/Aster-Base.repo"
    text = path.read_bytes()
    path.write_bytes(text.replace(b"[updates]\n", b"[updates]\nenabled=0\n"))
    window.do("answer", rules=[{"title": "VOK Yum Warning", "button": "Refresh"}])
    window.do("press", button="refreshButton")
    window.do("wait", timeout=180)
    table = window.do("rows")["table"]
    struck(all(repo != "updates" for _, _, repo, _ in table.values()), "the repository is still in use")
    path.write_bytes(text)
    window.do("press", button="refreshButton")
    window.do("wait", timeout=180)
    if not any(repo == "updates" for _, _, repo, _ in window.do("rows")["table"].values()):
        raise Lost("the repository did not come back")
