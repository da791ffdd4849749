# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""rpm's database, read beside what DNF has of it: whether it is sound, and whether it changed."""

import os
import sys
import tempfile

import dnf.rpm.transaction
import hawkey
import rpm

from . import databasecopy, packages, report, root
from .translation import tr

# rpm on some distributions keeps its database in the user's home unless told otherwise.
_PATH = "/var/lib/rpm"
_KEY = "gpg-pubkey"  # what rpm calls a key that it keeps among the packages
_UP = "../" * 64     # out of the root directory that rpm puts in front; with a slash before, rpm 6 stays in it
_place = {"directory": _PATH, "copy": None}


def _reach():
    """Sees to it that rpm opens the database of the system, or a copy of it. OSError."""
    if rpm.expandMacro("%{_dbpath}") == _place["copy"]:
        rpm.delMacro("_dbpath")
    if root.prefix() and rpm.expandMacro("%{_dbpath}") != _PATH:
        rpm.addMacro("_dbpath", _PATH)
    _place["directory"] = rpm.expandMacro("%{_dbpath}")
    root.refuse_links(_place["directory"])
    _place["copy"] = None
    if databasecopy.wanted(root.resolve(_place["directory"])):
        copy = databasecopy.make(root.resolve(_place["directory"]))
        _place["copy"] = _UP + copy[1:] if root.prefix() else copy
        rpm.addMacro("_dbpath", _place["copy"].replace("%", "%%"))


def check(conf):
    """Raises SystemExit with the reason when the database cannot be opened for reading."""
    try:
        _reach()
    except OSError as error:
        raise SystemExit(tr("The rpm database in %s cannot be read in place, and cannot be copied: %s")
                         % (directory(), error.strerror)) from error
    if rpm.TransactionSet(conf.installroot).openDB() == 0:
        return
    with tempfile.TemporaryFile("w+", errors="replace") as log:  # rpm tells reasons in its log alone
        rpm.setLogFile(log)
        rpm.TransactionSet(conf.installroot).openDB()
        rpm.setLogFile(sys.stderr)
        log.seek(0)
        lines = list(dict.fromkeys(line.strip().replace("error: ", "", 1) for line in log))
    advice = tr("Run \"rpm --rebuilddb\" as the administrator, or restore the directory from a backup.") \
        if os.geteuid() == 0 else tr("The administrator can mend it by \"rpm --rebuilddb\" or from a backup.")
    raise SystemExit(report.told("\n".join([tr("The rpm database in %s cannot be read:")
                                            % directory()]
                                           + ["  " + line for line in lines] + [advice])))


def cookie(conf):
    """A text that changes with the database; "" when it cannot be read. What is read afterwards is read of the
    same place."""
    try:
        _reach()
        return dnf.rpm.transaction.initReadOnlyTransaction(root=conf.installroot).dbCookie()
    except (rpm.error, OSError, SystemExit) as error:
        report.errorlog(2, tr("The rpm database cannot be read: %s") % report.clean(error))
        return ""


def directory():
    """The directory of the database, as the system calls it."""
    return _place["directory"]


def identity():
    """[inode] of the directory of the database and of its file, None for what is missing: differs once the database
    was moved or replaced."""
    return [next(filter(None, (_inode(name) for name in names)), None)
            for names in (("",), ("rpmdb.sqlite", "Packages.db", "Packages"))]


def _inode(name):
    try:
        return os.stat(os.path.join(root.resolve(directory()), name)).st_ino
    except OSError:
        return None


def numbers(conf):
    """The numbers under which rpm keeps the installed packages, keys left out: the keys of contents, sooner.
    None when the database cannot be read."""
    try:
        index = dnf.rpm.transaction.initReadOnlyTransaction(root=conf.installroot).ts.dbIndex("name")
        return {number for name in index if name != _KEY for number, _ in index.instances()}
    except rpm.error:
        return None


def has_packages(conf):
    """Whether rpm has installed anything; True when its database cannot be read."""
    return numbers(conf) != set()


def contents(conf):
    """{number: (name, arch, epoch, version, release)} of the installed packages, keys left out. The number
    is rpm's own, under which a transaction removes a package; a reinstallation changes it."""
    reader = dnf.rpm.transaction.initReadOnlyTransaction(root=conf.installroot)
    return {header[rpm.RPMTAG_DBINSTANCE]:
            tuple(report.clean(part) for part in (header["name"], header["arch"], header["epoch"] or 0,
                                                  header["version"], header["release"]))
            for header in reader.dbMatch() if header["name"] != _KEY}


def read_by(sack):
    """The same of a filled sack."""
    return {pkg.rpmdbid: tuple(map(report.clean, pkg.pkgtup))
            for pkg in sack.query(hawkey.IGNORE_EXCLUDES).installed()}


def numbers_read_by(sack):
    """The same of a filled sack."""
    return {pkg.rpmdbid for pkg in sack.query(hawkey.IGNORE_EXCLUDES).installed()}


def differences(before, after):
    """(came, gone, changed) of two contents, lists of texts in the order of their names. What came and went
    stands as name-[epoch:]version-release.arch, a package of changed version as "name.arch OLD -> NEW", of
    which a reinstalled one has the same version twice."""
    old = _by_name(before, after)
    new = _by_name(after, before)
    came, gone, changed = [], [], []
    for key in sorted({*old, *new}):
        name, arch = key
        if key in old and key in new:
            changed.append("%s.%s %s -> %s" % (name, arch, ", ".join(old[key]), ", ".join(new[key])))
        else:
            (came if key in new else gone).extend("%s-%s.%s" % (name, version, arch)
                                                  for version in (new.get(key) or old[key]))
    return came, gone, changed


def _by_name(contents_, other):
    """{(name, arch): versions} of the packages that `other` does not have."""
    found = {}
    for number, (name, arch, epoch, version, release) in sorted(contents_.items()):
        if other.get(number) != (name, arch, epoch, version, release):
            found.setdefault((name, arch), []).append(packages.evr_text(epoch, version, release))
    return found
