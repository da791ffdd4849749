# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Locks: VOK's own, one for a system and held by this module, and the waiting for DNF's."""

import errno
import fcntl
import os
import struct
import time

import dnf.exceptions
import dnf.lock

from yum import Errors

from . import errors, report, rights, root
from .translation import tr

LOCK_FILE = "/run/vok/vok.lock"
_PAUSE = 0.3  # seconds between two attempts
_SHOWN = 200  # characters of a command line
_held = {}    # path of the lock file, with the system's directory: its descriptor


def command_of(pid):
    """The command line of a process, its name when it hides that, "" when there is none."""
    for name, join in (("cmdline", True), ("comm", False)):
        try:
            with open("/proc/%d/%s" % (pid, name), "rb") as stream:
                data = stream.read(4096)
        except OSError:
            continue
        text = " ".join(report.clean(data.replace(b"\0", b" ") if join else data).split())
        if text:
            return text[:_SHOWN]
    return ""


def acquire(conf):
    """Takes VOK's lock unless this process has it, and sees that DNF's rpm database lock is free.
    Raises LockError naming the holder; where the program can ask, the user decides whether to wait.
    A user without the right to change the system gets on without a lock."""
    if rights.to_change_packages():
        return
    waiter = _Waiter()
    while True:
        holder = _take() or _database_holder(conf)
        if holder is None:
            return
        _release()
        waiter.wait(*holder)


def held():
    """Whether this process has VOK's lock on the system."""
    return _key() in _held


def release():
    """Gives the lock back. Without a lock it does nothing."""
    _release()


def _key():
    return root.prefix() + LOCK_FILE


def _take():
    """None when the lock is ours (or cannot be had for lack of rights), else the holder's pid and
    command."""
    path = _key()
    if path in _held:
        return None
    try:
        os.makedirs(root.resolve(os.path.dirname(LOCK_FILE)), mode=0o755, exist_ok=True)
        descriptor = root.open_file(LOCK_FILE, os.O_RDWR | os.O_CREAT | os.O_NOFOLLOW)
    except OSError as error:
        if error.errno in (errno.ELOOP, errno.ENOTSUP):
            raise Errors.LockError(tr("%s is not a plain file and is not opened. Remove it.") % LOCK_FILE, 0) from error
        return None
    try:
        _lock(descriptor)
    except OSError as error:
        pid = _holder(descriptor)
        os.close(descriptor)
        if error.errno not in (errno.EAGAIN, errno.EACCES):
            raise Errors.LockError(tr("The lock file %s cannot be locked: %s. Its file system may not support "
                                      "locks: mount one that does (such as tmpfs) on its directory.")
                                   % (LOCK_FILE, error.strerror)) from error
        return pid, command_of(pid) or "VOK"
    os.ftruncate(descriptor, 0)
    os.write(descriptor, b"%d\n" % os.getpid())
    _held[path] = descriptor
    return None


def _lock(descriptor):
    """OSError, EAGAIN or EACCES if another process has the lock. It is a POSIX record lock, which a child that a
    scriptlet forks does not inherit. It is lost when this process closes any descriptor of the file."""
    try:
        fcntl.flock(descriptor, fcntl.LOCK_SH | fcntl.LOCK_NB)  # former versions lock this way
        fcntl.flock(descriptor, fcntl.LOCK_UN)
    except BlockingIOError:
        raise
    except OSError:
        pass
    fcntl.lockf(descriptor, fcntl.LOCK_EX | fcntl.LOCK_NB)


def _holder(descriptor):
    """The process id of who holds the lock, 0 if unknown: the kernel's answer, else what the file says, as for
    former versions and other process namespaces."""
    layout = "hhqqi"  # struct flock: type, whence, start, length, process id
    try:
        answer = fcntl.fcntl(descriptor, fcntl.F_GETLK, struct.pack(layout, fcntl.F_WRLCK, os.SEEK_SET, 0, 0, 0))
        kind, _, _, _, pid = struct.unpack(layout, answer)
        if kind != fcntl.F_UNLCK and pid > 0:
            return pid
        text = os.read(descriptor, 32).decode("ascii", "replace").strip()
    except OSError:
        return 0
    return int(text) if text.isdigit() else 0


def _release():
    descriptor = _held.pop(_key(), None)
    if descriptor is not None:
        # The file stays: removing it would let two programs lock two files of one name.
        os.ftruncate(descriptor, 0)
        os.close(descriptor)


def _database_holder(conf):
    """(pid, command) of the process that DNF's lock file names while it lives, else None."""
    path = dnf.lock.build_rpmdb_lock(conf.persistdir, True).target
    try:
        with open(path, encoding="ascii", errors="replace") as stream:
            text = stream.read(20).strip()
    except OSError:
        return None
    pid = int(text) if text.isdigit() else 0
    if pid in (0, os.getpid()) or not os.path.exists("/proc/%d" % pid):
        return None
    return pid, command_of(pid)


class _Waiter:
    """Waiting for one lock. The user is asked once about every holder."""

    def __init__(self):
        self._agreed = None  # the holder that the user is willing to wait for

    def wait(self, pid, command):
        """One round. Raises LockError when nobody can be asked, the user gives up or cancels."""
        report.job_state("lock", True)
        errors.check_cancelled(Errors.CancelledLockError)
        if self._agreed != pid:
            if not report.offers("lockWait") or not report.yumIOC.lockWait(pid, command):
                # Whoever gave up was told who holds the lock.
                errors.check_cancelled(Errors.CancelledLockError)
                raise Errors.LockError(tr("The package database is in use by process %d (%s).")
                                       % (pid, command or tr("unknown command")), pid)
            self._agreed = pid
        errors.check_cancelled(Errors.CancelledLockError)
        time.sleep(_PAUSE)


def guarded(state, can_cancel, call):
    """Runs `call`, an operation of DNF that takes one of DNF's locks before it does anything, again
    and again while another process holds the lock and the user is willing to wait. `state` is the
    job's state to return to."""
    waiter = _Waiter()
    while True:
        try:
            return call()
        except dnf.exceptions.ProcessLockError as error:
            waiter.wait(error.pid, command_of(error.pid))
            report.job_state(state, can_cancel)
