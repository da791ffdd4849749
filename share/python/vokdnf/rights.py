# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Whether this process may change the system. Each answer is a text for the user that says why not, "" when it
may."""

import os

from . import config, database, report, root
from .translation import tr


def missing(conf):
    """(why the installed packages cannot be changed, why the configuration cannot, the user's own cache directory
    where the system's cannot be written, else "")."""
    return to_change_packages(), to_change_configuration(), report.clean(conf.cachedir) if conf.own_cache else ""


def to_change_packages():
    path = database.directory()
    if _may_write(path):
        return ""
    text = tr("The package database in %s cannot be written: this needs the rights of the "
              "administrator.") if _is_for_others(path) else \
        tr("The package database in %s cannot be written: the file system is read-only, or the "
           "directory is missing.")
    return text % path


def to_change_configuration():
    path = os.path.dirname(config.main_file() or config.MAIN_FILES[0])
    if _may_write(path):
        return ""
    text = tr("The configuration in %s cannot be written: this needs the rights of the administrator.") \
        if _is_for_others(path) else \
        tr("The configuration in %s cannot be written: the file system is read-only.")
    return text % path


def _may_write(path):
    try:
        return os.geteuid() == 0 and os.access(root.resolve(path), os.W_OK)
    except OSError:
        return False


def _is_for_others(path):
    """Of a directory that may not be written: whether others may."""
    try:
        return not os.statvfs(root.resolve(path)).f_flag & os.ST_RDONLY
    except OSError:
        return os.geteuid() != 0
