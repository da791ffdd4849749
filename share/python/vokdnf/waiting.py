# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Who keeps rpm waiting. rpm says nothing while another process has locked its database."""

import os
import threading
import time

from . import database, locks, report, root
from .translation import tr

_SILENCE = 3.0  # seconds without a word of rpm
_LOOKS = 1.0    # seconds between two looks


class Watcher:
    """As a context around a run of rpm: names each holder of a lock on the database in the log, once.
    No file of the database is opened: closing it would drop rpm's own locks."""

    def __init__(self, last_word):
        """`last_word` gives the time.monotonic() of rpm's last report."""
        self._last_word = last_word
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
            if time.monotonic() - self._last_word() < _SILENCE:
                continue
            try:
                for pid in _holders(self._directory) - self._told:
                    self._told.add(pid)
                    report.log(0, tr("rpm waits for its database, which is locked by process %d (%s).")
                               % (pid, locks.command_of(pid) or tr("unknown command")))
            except Exception:  # only a line of the log is lost
                return


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
