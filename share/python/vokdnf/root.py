# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Where the system is: "/" or the directory of VOKROOT. Paths are spoken of as they are inside it;
the prefix is added only where a file is opened. Symbolic links of the system lead to places inside it."""

import atexit
import ctypes
import errno
import functools
import os
import shutil
import stat
import tempfile

from .translation import tr

_CLONE_FS = 0x200
_OPENAT2 = 437           # the number of the system call, on every architecture
_RESOLVE_IN_ROOT = 0x10
_MOST_LINKS = 40         # the kernel's own limit
_MOST_BYTES = 1 << 24    # of a file that is read whole


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
    """The file or directory of the system that `path` leads to, as this process opens it: no part of the result
    is a symbolic link. OSError when links lead nowhere near an end."""
    return _walk(path, True) if prefix() else path


def entry(path):
    """As resolve, but the last part of `path` may be a symbolic link, which stays."""
    return _walk(path, False) if prefix() else path


def _walk(path, follow_last):
    head = done = prefix()
    ahead, links = path.split("/"), 0
    while ahead:
        part = ahead.pop(0)
        if part in ("", "."):
            continue
        if part == "..":
            done = head + os.path.dirname(done[len(head):]).rstrip("/")
            continue
        candidate = done + "/" + part
        try:
            leads_to = os.readlink(candidate) if ahead or follow_last else None
        except OSError:
            leads_to = None
        if leads_to is None:
            done = candidate
            continue
        links += 1
        if links > _MOST_LINKS:
            raise OSError(errno.ELOOP, os.strerror(errno.ELOOP), path)
        if leads_to.startswith("/"):
            done = head
        ahead = leads_to.split("/") + ahead
    return done


class _How(ctypes.Structure):
    _fields_ = [(name, ctypes.c_uint64) for name in ("flags", "mode", "resolve")]


def open_file(path, flags, mode=0o644):
    """A descriptor of the regular file `path` of the system. OSError, also for a file that could be created but
    has a second name, and, where `flags` has O_NOFOLLOW, for a symbolic link."""
    flags |= os.O_CLOEXEC | os.O_NONBLOCK | os.O_NOCTTY
    descriptor = _open_inside(path, flags, mode) if prefix() else os.open(path, flags, mode)
    status = os.fstat(descriptor)
    if not stat.S_ISREG(status.st_mode) or flags & os.O_CREAT and status.st_nlink > 1:
        os.close(descriptor)
        raise OSError(errno.ENOTSUP, os.strerror(errno.ENOTSUP))
    return descriptor


def _open_inside(path, flags, mode):
    top = os.open(prefix(), os.O_PATH | os.O_DIRECTORY | os.O_CLOEXEC)
    try:
        how = _How(flags, mode if flags & os.O_CREAT else 0, _RESOLVE_IN_ROOT)
        libc = ctypes.CDLL(None, use_errno=True)
        descriptor = libc.syscall(ctypes.c_long(_OPENAT2), ctypes.c_int(top), os.fsencode(path),
                                  ctypes.byref(how), ctypes.c_size_t(ctypes.sizeof(how)))
    finally:
        os.close(top)
    if descriptor >= 0:
        return descriptor
    error = ctypes.get_errno()
    if error in (errno.ENOSYS, errno.EPERM):  # an older kernel, or a container's filter of system calls
        path = entry(path) if flags & os.O_NOFOLLOW else resolve(path)
        return os.open(path, flags | os.O_NOFOLLOW, mode)
    raise OSError(error, os.strerror(error))


def read(path):
    """The text of the regular file `path` of the system. OSError, also for a file that is too large."""
    with open(open_file(path, os.O_RDONLY), encoding="utf-8", errors="replace") as stream:
        text = stream.read(_MOST_BYTES)
        if stream.read(1):
            raise OSError(errno.EFBIG, os.strerror(errno.EFBIG))
        return text


def refuse_links(path):
    """Raises SystemExit when a name at or below `path` of the system, which DNF or rpm opens by name, is a symbolic
    link out of the system, or neither a file nor a directory. OSError."""
    wrong = prefix() and _first_link_out(path)
    if wrong:
        raise SystemExit(tr("%s is a symbolic link that leads out of %s, or no file at all, and is not opened. "
                            "Remove it, or make it a file or directory.") % (os.fsencode(wrong).decode("utf-8", "replace"), prefix()))


def _first_link_out(path):
    if not _same(prefix() + path):
        return path
    pending = [resolve(path)]
    while pending:
        place = pending.pop()
        try:
            mode = os.lstat(place).st_mode
            if stat.S_ISDIR(mode):
                with os.scandir(place) as entries:
                    pending += [one.path for one in entries if not one.is_file(follow_symlinks=False)]
        except OSError:
            continue
        if not (_same(place) if stat.S_ISLNK(mode) else stat.S_ISDIR(mode) or stat.S_ISREG(mode)):
            return shown(place)
    return None


def _same(path):
    """Whether a path below the system's directory leads to the same place inside the system and for this process."""
    return os.path.realpath(path) == os.path.realpath(prefix()) + resolve(path[len(prefix()):])[len(prefix()):]


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
    """A path or file: address named by a configuration file, as this process opens it; one that already begins
    with the directory of the system is meant as it stands. Other addresses stay."""
    head = prefix()
    start = "file://" if path.startswith("file://") else ""
    bare = path[len(start):]
    if not head or not bare.startswith("/"):
        return path
    return start + resolve(bare[len(head):] if bare.startswith(head + "/") else bare)


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
