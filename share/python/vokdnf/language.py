# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The language of what libraries say. Their sentences are read here, in English; the program and its
user keep their own."""

import contextlib
import ctypes
import locale

_GLOBAL = ctypes.c_void_p(-1)
_LIBC = ctypes.CDLL(None)
for _name in ("duplocale", "newlocale", "uselocale"):
    getattr(_LIBC, _name).restype = ctypes.c_void_p


@contextlib.contextmanager
def english():
    """Runs its block with the messages of C libraries in English, on this thread alone."""
    # The new locale takes over the memory of the copy.
    copy = ctypes.c_void_p(_LIBC.duplocale(_GLOBAL))
    own = ctypes.c_void_p(_LIBC.newlocale(1 << locale.LC_MESSAGES, b"C", copy))
    former = ctypes.c_void_p(_LIBC.uselocale(own))
    try:
        yield
    finally:
        _LIBC.uselocale(former)
        _LIBC.freelocale(own)
