# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Everything that the script says to the program: text made safe for crossing, DNF's log records,
the interpreter's output, and the callbacks that not every program has."""

import ctypes
import logging
import re
import sys

import yumIOC

from . import root
from .translation import tr

_UNSAFE = re.compile("[\ud800-\udfff\0]")
_PIECE = 1 << 16  # characters of output that cross at once


def clean(text):
    """`text` (str, bytes or any object) as str that UTF-8 and C strings can carry."""
    if isinstance(text, bytes):
        text = text.decode("utf-8", "replace")
    elif not isinstance(text, str):
        text = str(text)
    return _UNSAFE.sub("\ufffd", text) if _UNSAFE.search(text) else text


def told(text):
    """A message, clean, with its paths as the system calls them."""
    head = root.prefix()
    return clean(text).replace(head + "/", "/") if head else clean(text)


def log(level, text):
    """`level` 0 (important) to 10 (debugging)."""
    yumIOC.log(level, told(text))


def errorlog(level, text):
    yumIOC.errorlog(level, told(text))


def write_out(text):
    """Output text, complete lines or not, to the program's standard-output log."""
    text = clean(text)
    for start in range(0, len(text), _PIECE):
        yumIOC.stdoutWrite(text[start:start + _PIECE])


def write_err(text):
    text = clean(text)
    for start in range(0, len(text), _PIECE):
        yumIOC.stderrWrite(text[start:start + _PIECE])


def offers(name):
    """Whether the program has the optional callback `name`."""
    return hasattr(yumIOC, name)


def cancelled():
    """Whether the user asked to cancel the running job."""
    return bool(offers("cancelled") and yumIOC.cancelled())


def job_state(state, can_cancel):
    if offers("jobState"):
        yumIOC.jobState(state, 1 if can_cancel else 0)


def repository_failed(repo_id, text, refused=False):
    """A repository cannot be used. The error that is raised because of it, if any, contains `text`; `refused`:
    the server refused user name and password."""
    if offers("repositoryFailed"):
        yumIOC.repositoryFailed(clean(repo_id), clean(text), 1 if refused else 0)


def import_key(key_id, user_id, fingerprint, source):
    """Asks whether a signing key may be imported. Without the callback for it the lines of the log
    make up the question."""
    texts = [clean(text or "") for text in (key_id, user_id, fingerprint, source)]
    if offers("keyQuestion"):
        return bool(yumIOC.keyQuestion(*texts))
    yumIOC.gpgsigcheck()
    log(0, tr("Import the key 0x%s?\n  Owner: %s\n  Fingerprint: %s\n  From: %s") % tuple(texts))
    return bool(yumIOC.userconfirm())


def confirm(lines):
    """A plain yes/no question; `lines` are its text."""
    yumIOC.gpgsigcheck()
    for line in lines:
        log(0, line)
    return bool(yumIOC.userconfirm())


class Writer:
    """A stand-in for sys.stdout or sys.stderr. It knows the descriptor because rpm wants one."""

    encoding = "utf-8"
    errors = "replace"
    closed = False

    def __init__(self, write, descriptor):
        self._write = write
        self._descriptor = descriptor

    def write(self, text):
        if text:
            self._write(text)
        return len(text)

    def writelines(self, lines):
        for line in lines:
            self.write(line)

    def flush(self):
        pass

    def isatty(self):
        return False

    def fileno(self):
        return self._descriptor


class _Handler(logging.Handler):
    """Sends DNF's records to the program. Mirror failures are told nowhere else."""

    def emit(self, record):
        # What rpm and scriptlets say reaches the program through the transaction's display.
        if record.name == "dnf.rpm":
            return
        try:
            text = record.getMessage()
            if record.levelno >= logging.WARNING:
                errorlog(0, text)
            else:
                log(0 if record.levelno >= logging.INFO else 10, text)
        except Exception:  # a record that cannot be told must not end DNF's work
            pass


_HANDLER = _Handler(logging.DEBUG)
_WRITTEN = 1 << 3 | 1 << 4 | 1 << 5  # GLib's levels critical, warning and message


@ctypes.CFUNCTYPE(None, ctypes.c_char_p, ctypes.c_int, ctypes.c_char_p, ctypes.c_void_p)
def _librepo_message(_domain, _level, text, _data):
    """Sends to the log what GLib would write to standard error: addresses in it may hold passwords. What
    matters of it is in the exception that follows."""
    log(3, text or b"")


def _attach_librepo():
    try:
        ctypes.CDLL("libglib-2.0.so.0").g_log_set_handler(b"librepo", _WRITTEN, _librepo_message, None)
    except OSError:  # no GLib, and no librepo that uses it
        pass


def attach():
    """Routes the interpreter's output, DNF's log and librepo's to the program. Repeating it is harmless."""
    sys.stdout = Writer(write_out, 1)
    sys.stderr = Writer(write_err, 2)
    logger = logging.getLogger("dnf")
    logger.setLevel(logging.DEBUG)
    logger.propagate = False
    if _HANDLER not in logger.handlers:
        logger.addHandler(_HANDLER)
        _attach_librepo()
