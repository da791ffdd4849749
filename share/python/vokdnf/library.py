# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Where versions of DNF and rpm differ, told by what they offer."""

import contextlib

import dnf.yum.misc

_FILE_LISTS = "filelists"


def mend():
    """Puts right what DNF does not know of newer versions of rpm. Repeating it is harmless."""
    dnf.yum.misc.keyInstalled = _key_installed


def _key_installed(reader, key_id, timestamp):
    """Whether rpm has a key: -1 no, else how its time compares: 0 same, 1 older, 2 newer. `key_id` is the
    end of its fingerprint, which rpm names a key by, up to version 5 by its last eight digits."""
    for header in reader.dbMatch("name", "gpg-pubkey"):
        if header["version"].lower().endswith(key_id.lower()):
            installed = int(header["release"], 16)
            return 0 if installed == timestamp else 1 if installed < timestamp else 2
    return -1


def untie(repo):
    """Breaks the cycle between a repository and its callbacks, which libdnf owns. No metadata can be loaded by it
    afterwards."""
    repo._callbacks._repo = None
    repo._key_import = None


def reads_file_lists(conf):
    """Whether DNF reads the file lists along with the packages. Newer versions do when an option asks."""
    return _FILE_LISTS in getattr(conf, "optional_metadata_types", (_FILE_LISTS,))


@contextlib.contextmanager
def file_lists_wanted(conf):
    """While its block runs, what is read with `conf` is read with file lists."""
    if reads_file_lists(conf):
        yield
        return
    types = list(conf.optional_metadata_types)
    conf.optional_metadata_types = [*types, _FILE_LISTS]
    try:
        yield
    finally:
        conf.optional_metadata_types = types
