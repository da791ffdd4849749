# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""File descriptors and threads that are missing."""

import os
import re
import shutil
import subprocess

from driving import SLOW, confirm, end_of, in_rpm, installed_names, running
from frame import Lacks, case, lost_if, needs, struck
from guidriver import key, wait_for
from recorder import INSTALL

# Fails while the file that TORTURE_THREADS names exists.
_NO_THREADS = """
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>
int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*start)(void *), void *argument)
{
    static int (*own)(pthread_t *, const pthread_attr_t *, void *(*)(void *), void *);
    const char *path = getenv("TORTURE_THREADS");
    if (path && access(path, F_OK) == 0) {
        fprintf(stderr, "torture: no thread\\n");
        return EAGAIN;
    }
    if (!own)
        own = dlsym(RTLD_NEXT, "pthread_create");
    return own(thread, attributes, start, argument);
}
"""


def _closed(stage, *numbers):
    close = " ".join(f"{number}<&-" for number in numbers)
    program = running(stage, ["slow-1"], "sh", "-c", f'exec "$@" {close}', "sh")
    confirm(program)
    wait_for(lambda: "slow-1" in installed_names(stage) and not stage.marker(), "the end of the transaction", 60)
    program.wait_enabled(program.find("push button", "Refresh"), "the window", 60)
    key("ctrl+q")
    lost_if(end_of(program.process), "the exit status is not 0")


@case("descriptor 0 is closed at the start")
def closed_0(stage):
    _closed(stage, 0)


@case("descriptors 1 and 2 are closed at the start")
def closed_1_2(stage):
    _closed(stage, 1, 2)


@case("descriptors 0, 1 and 2 are closed at the start")
def closed_all(stage):
    _closed(stage, 0, 1, 2)


def _no_threads(stage):
    """What goes before a command in which the creation of threads can be switched off, and the switch."""
    compiler = shutil.which("cc") or shutil.which("gcc")
    if not compiler:
        raise Lacks("no C compiler")
    library, switch = stage.place / "nothreads.so", stage.place / "nothreads"
    subprocess.run([compiler, "-shared", "-fPIC", "-x", "c", "-", "-o", library], input=_NO_THREADS, text=True, check=True)
    return ["env", f"LD_PRELOAD={library}", f"TORTURE_THREADS={switch}"], switch


def _box(program):
    box = program.find(("alert", "dialog"), "VOK Yum Error")
    return "\n".join(map(program.texts, program.walk(box)))


@case("no thread can be started at Refresh, then at Apply")
def no_thread(stage):
    under, switch = _no_threads(stage)
    stage.screen()
    program = stage.program("-s", "all", "-e", "^slow-1 ", under=under)
    refresh = program.find("push button", "Refresh")
    program.wait_enabled(refresh, "the window")
    switch.touch()
    program.click(refresh)
    text = _box(program)
    struck("torture: no thread" in program.log.read_text(errors="replace"), "a thread was started")
    lost_if("thread" not in text, f"the cause is not named: {text}")
    switch.unlink()
    key("Return")
    wait_for(lambda: program.look(("alert", "dialog")) is None, "the box to close")
    program.wait_enabled(refresh, "the window")
    program.click(refresh)
    program.wait_enabled(refresh, "the window")
    wait_for(lambda: len(program.cells(program.find(("table", "tree table")))) == 1, "the row")
    key("ctrl+q")
    lost_if(end_of(program.process), "the exit status is not 0")


@case("no thread can be started once rpm has begun")
def no_thread_in_rpm(stage):
    under, switch = _no_threads(stage)
    program = in_rpm(stage, SLOW, *under)
    switch.touch()
    text = _box(program)
    lost_if("thread" not in text, f"the cause is not named: {text}")
    lost_if(not set(SLOW) <= installed_names(stage), "the transaction was not finished")
    switch.unlink()
    key("Return")
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    program.click(program.find("push button", "Refresh"))
    program.wait_enabled(program.find("push button", "Refresh"), "the window")
    key("ctrl+q")
    lost_if(end_of(program.process), "the exit status is not 0")


@case("too few descriptors are left for rpm")
def too_few(stage):
    needs("prlimit")
    before = stage.installed()
    window = stage.window()
    pid = window.process.pid
    used = len(os.listdir(f"/proc/{pid}/fd"))
    subprocess.run(["prlimit", "--pid", str(pid), f"--nofile={used + 20}:4096"], check=True)
    told = "\n".join(one["text"] for one in stage.apply(window, {INSTALL: ["slow-1"]})["dialogs"])
    lost_if(window.process.poll() is not None, f"the program ended: {window.process.returncode}")
    struck("slow-1" not in installed_names(stage), "there were enough")
    lost_if(not re.search(r"\d+ files open", told), f"the cause is not named: {told}")
    lost_if(stage.marker() or stage.installed() != before, "rpm had begun")
    subprocess.run(["prlimit", "--pid", str(pid), "--nofile=1024:4096"], check=True)
    stage.apply(window, {})
    lost_if("slow-1" not in installed_names(stage), "it cannot be applied afterwards")
