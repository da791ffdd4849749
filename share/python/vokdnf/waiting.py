# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What keeps rpm waiting. rpm says nothing while another process has locked its database, or while a scriptlet
runs."""

import os
import threading
import time

from . import database, locks, report, root
from .translation import tr

_SILENCE = 3.0  # seconds without a word of rpm
_LOOKS = 1.0    # seconds between two looks
# Seconds without a word of rpm after which a scriptlet is reported. Tests shorten them by the environment.
_STUCK = float(os.environ.get("VOK_STUCK_SECONDS") or 60)
_AGAIN = 10     # times as long until it is reported again
_INSIDE = 0, 0  # in place of a process


class Watcher:
    """As a context around a run of rpm: names each holder of a lock on the database in the log, once, and reports
    a scriptlet that keeps running. No file of the database is opened: closing it would drop rpm's own locks."""

    def __init__(self, shown):
        """`shown` is the display.Display of the run."""
        self._shown = shown
        self._strangers = set(_children())
        self._stuck = None  # (process id, start) of the scriptlet that was reported
        self._reported = 0.0
        self._directory = root.resolve(database.directory())
        self._told = set()
        self._ready = threading.Event()
        self._ended = threading.Event()
        self._thread = threading.Thread(target=self._watch, daemon=True)

    def __enter__(self):
        try:
            self._thread.start()
        except RuntimeError as error:  # only lines of the log are lost
            report.errorlog(3, report.clean(error))
            return self
        self._ready.wait()
        return self

    def __exit__(self, *_):
        self._ended.set()
        if self._thread.ident is not None:
            self._thread.join()

    def _watch(self):
        root.separate()
        self._ready.set()
        while not self._ended.wait(_LOOKS):
            try:
                self._look(time.monotonic() - self._shown.last_word)
            except Exception:  # only a message is lost
                break
        self._forget()

    def _look(self, silence):
        if self._stuck and (silence < _STUCK or self._stuck != _INSIDE and self._stuck not in _children()):
            self._forget()
        if silence < _SILENCE:
            return
        for pid in _holders(self._directory) - self._told:
            self._told.add(pid)
            report.log(0, tr("rpm waits for its database, which is locked by process %d (%s).")
                       % (pid, locks.command_of(pid) or tr("unknown command")))
        package = self._shown.running
        if package and silence >= _STUCK and (not self._stuck or
                                              time.monotonic() - self._reported >= _STUCK * _AGAIN):
            self._report(package, silence)

    def _report(self, package, silence):
        children = {child: start for child, start in _children() if (child, start) not in self._strangers}
        if not children:
            # rpm runs most scriptlets in Lua itself: there is no process that could be ended.
            self._stuck = _INSIDE
            report.log(0, tr("A scriptlet of %s has been running for %d seconds inside rpm.") % (package, silence))
        else:
            pid = max(children, key=children.get)
            self._stuck, command = (pid, children[pid]), locks.command_of(pid) or tr("unknown command")
            report.log(0, tr("A scriptlet of %s has been running for %d seconds: process %d (%s).")
                       % (package, silence, pid, command))
            if report.offers("scriptletStuck"):
                report.yumIOC.scriptletStuck(package, *self._stuck, command)
        self._reported = time.monotonic()

    def _forget(self):
        if self._stuck not in (None, _INSIDE) and report.offers("scriptletStuck"):
            report.yumIOC.scriptletStuck("", 0, 0, "")
        self._stuck = None


def _children():
    """[(process id, start in clock ticks since boot)] of the living children of this process."""
    found = []
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open("/proc/%s/stat" % name, encoding="utf-8", errors="replace") as stream:
                fields = stream.read().rpartition(")")[2].split()
        except OSError:
            continue
        if int(fields[1]) == os.getpid() and fields[0] not in "ZX":
            found.append((int(name), int(fields[19])))
    return found


def _holders(directory):
    """The other processes that may write what is in a directory. A process of another namespace has
    no number here."""
    files = {(status.st_dev, status.st_ino) for status in
             (entry.stat(follow_symlinks=False) for entry in os.scandir(directory))}
    found = set()
    with open("/proc/locks", encoding="ascii") as stream:
        for line in stream:
            fields = line.split()
            if fields[1] == "->" or fields[3] != "WRITE":
                continue
            pid, place = int(fields[4]), fields[5].split(":")
            device = os.makedev(int(place[0], 16), int(place[1], 16))
            if pid > 0 and pid != os.getpid() and (device, int(place[2])) in files:
                found.add(pid)
    return found
