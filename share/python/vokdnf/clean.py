# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Cleaning the cache directory: DNF's files of one sort, and nothing else."""

import os
import re

import dnf.repo

from . import report
from .translation import tr

_REPOSITORY = dnf.repo._CACHEDIR_RE.replace("?P<repoid>", "?:")
KINDS = {
    "headers": re.compile(r"^%s/headers/[^/]+\.hdr$" % _REPOSITORY),
    "packages": re.compile(r"^%s/packages/[^/]+\.d?rpm$" % _REPOSITORY),
    "metadata": re.compile(dnf.repo.CACHE_FILES["metadata"].replace("?P<repoid>", "?:")),
    "pickles": re.compile(r"^(%s/)?[^/]+\.pickle$" % _REPOSITORY),
    "sqlite": re.compile(r"^(%s/)?[^/]+\.(solvx?|sqlite|search|check)$" % _REPOSITORY),
}


def size_text(size):
    """Bytes in the unit that suits them."""
    for unit in (tr("bytes"), "KiB", "MiB"):
        if size < 1024:
            return "%.4g %s" % (size, unit)
        size /= 1024
    return "%.4g GiB" % size


def clean(conf, kind):
    """Removes the files of a kind (a key of KINDS) below the cache directory. Returns (code, messages):
    0 when all went, 1 when some file stayed; the messages are logged too."""
    pattern, messages = KINDS[kind], []
    count = freed = failed = 0
    for directory, _, names in os.walk(conf.cachedir):
        for name in names:
            path = os.path.join(directory, name)
            if not pattern.match(os.path.relpath(path, conf.cachedir)):
                continue
            try:
                size = os.lstat(path).st_size
                os.unlink(path)
            except OSError as error:
                failed += 1
                messages.append(tr("%s cannot be removed: %s") % (report.clean(path), error.strerror))
            else:
                count, freed = count + 1, freed + size
    for message in messages:
        report.errorlog(0, message)
    messages.append(tr("Removed files: %d. Freed: %s.") % (count, size_text(freed)))
    report.log(0, messages[-1])
    return (1 if failed else 0), messages
