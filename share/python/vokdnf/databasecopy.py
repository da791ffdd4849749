# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""A copy of rpm's database in the user's cache. A database in sqlite's write-ahead mode can be opened in place
only by who may write beside it, or while files are there that the last writer may have taken away."""

import errno
import os
import shutil
import tempfile

from . import root

_MAIN = "rpmdb.sqlite"
_LOG, _SHARED = _MAIN + "-wal", _MAIN + "-shm"
_MODE = 18          # the byte of the main file that tells the mode
_WRITE_AHEAD = 2
_ATTEMPTS = 5


def wanted(directory):
    """Whether this process can read the database in `directory` only as a copy."""
    def readable(name):
        return os.access(os.path.join(directory, name), os.R_OK)

    if os.access(directory, os.W_OK) or not readable(_MAIN) or readable(_LOG) and readable(_SHARED):
        return False
    with open(os.path.join(directory, _MAIN), "rb") as stream:
        return stream.read(_MODE + 1)[_MODE:] == bytes([_WRITE_AHEAD])


def make(directory):
    """The directory with a copy of the database in `directory`. One of the same state is used again. OSError."""
    place = os.path.join(root.user_cache(), "rpmdb")
    os.makedirs(place, mode=0o700, exist_ok=True)
    for _ in range(_ATTEMPTS):
        state = _state(directory)
        target = os.path.join(place, state)
        if os.path.isdir(target):
            return target
        fresh = tempfile.mkdtemp(dir=place)
        try:
            for name in (_MAIN, _LOG):
                if os.path.exists(os.path.join(directory, name)):
                    shutil.copyfile(os.path.join(directory, name), os.path.join(fresh, name))
            if _state(directory) == state:
                for old in os.listdir(place):
                    if old != os.path.basename(fresh):
                        shutil.rmtree(os.path.join(place, old), ignore_errors=True)
                os.rename(fresh, target)
                return target
        finally:
            shutil.rmtree(fresh, ignore_errors=True)
    raise OSError(errno.EBUSY, os.strerror(errno.EBUSY))


def _state(directory):
    """A name for what the files hold, another one after each change."""
    parts = []
    for name in (_MAIN, _LOG):
        try:
            status = os.stat(os.path.join(directory, name))
        except FileNotFoundError:
            continue
        parts += [status.st_ino, status.st_size, status.st_mtime_ns]
    return "-".join(map(str, parts))
