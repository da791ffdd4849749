# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Where the system is: "/" or the directory of VOKROOT. Paths are spoken of as they are inside it;
the prefix is added only where a file is opened."""

import atexit
import ctypes
import functools
import os
import shutil
import tempfile

_CLONE_FS = 0x200


def separate():
    """Gives this thread a root directory of its own: rpm changes it, or that of the whole process."""
    ctypes.CDLL(None).unshare(_CLONE_FS)


def prefix():
    """The system's directory without a slash at its end, "" for "/"."""
    path = os.environ.get("VOKROOT", "")
    if not path.startswith("/"):
        return ""
    path = os.path.normpath(path)
    return "" if path.strip("/") == "" else path


def resolve(path):
    """`path` of the system as this process opens it."""
    return prefix() + path


def shown(path):
    """The reverse: a path that this process opens, or a file: address, as the system calls it."""
    head = prefix()
    if not head:
        return path
    for start in ("", "file://"):
        if path.startswith(start + head + "/"):
            return start + path[len(start) + len(head):]
    return path


def inside(path):
    """A path or file: address named by a configuration file, as this process opens it: inside the
    system when it is there, else as it stands."""
    head = prefix()
    start = "file://" if path.startswith("file://") else ""
    bare = path[len(start):]
    if head and bare.startswith("/") and not bare.startswith(head + "/") \
            and os.path.exists(head + bare):
        return start + head + bare
    return path


@functools.lru_cache(None)
def user_cache():
    """A directory for caches of the user and this system; where even that cannot be written, one that
    goes with the process."""
    base = os.environ.get("XDG_CACHE_HOME", "")
    if not os.path.isabs(base):
        base = os.path.expanduser("~/.cache")
    path = os.path.join(base, "vok", prefix().strip("/").replace("/", "-") or "system")
    if writable(path):
        return path
    path = tempfile.mkdtemp(prefix="vok-cache-")
    atexit.register(shutil.rmtree, path, True)
    return path


def writable(path):
    """Whether `path`, or the nearest directory above it that exists, can be written."""
    while not os.path.exists(path) and path not in ("", "/"):
        path = os.path.dirname(path)
    return os.access(path, os.W_OK | os.X_OK)
