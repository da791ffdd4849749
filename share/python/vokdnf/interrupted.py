# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Transactions that were killed: a marker stands in the system while rpm works, and the next start
that finds one tells what rpm left behind."""

import json
import os

import dnf.rpm.transaction
import dnf.sack

from . import database, locks, report, root
from .elements import ERASING, REPLACED
from .translation import tr

MARKER = "/var/lib/vok/transaction.json"
COMMAND_LINE = "vok"  # in DNF's history


def write(elements):
    """Notes the elements of a transaction before rpm begins. A system that takes no marker takes no
    transaction either, so a failure is only logged."""
    noted = [{"action": element.action, "package": element.envra} for element in elements]
    try:
        path = root.resolve(os.path.dirname(MARKER)) + "/" + os.path.basename(MARKER)
        os.makedirs(os.path.dirname(path), mode=0o755, exist_ok=True)
        _remove(path + ".new")  # of a process that was killed
        descriptor = root.open_file(MARKER + ".new", os.O_WRONLY | os.O_CREAT | os.O_EXCL | os.O_NOFOLLOW)
        with open(descriptor, "w", encoding="utf-8") as stream:
            json.dump({"pid": os.getpid(), "elements": noted, "database": database.identity()}, stream)
            stream.flush()
            os.fsync(stream.fileno())
        os.replace(path + ".new", path)
    except OSError as error:
        report.errorlog(1, tr("%s cannot be written: %s") % (MARKER, error.strerror))


def clear():
    """Removes the marker, or empties it if it cannot be removed."""
    try:
        _remove(root.entry(MARKER))
        return
    except OSError as error:
        report.errorlog(1, tr("%s cannot be removed: %s") % (MARKER, error.strerror))
    try:
        _rewrite({})
    except OSError as error:
        report.errorlog(0, _undeletable(error))


def note_moved():
    """Notes in the marker that rpm's database was moved or replaced while rpm worked."""
    try:
        _rewrite(dict(json.loads(root.read(MARKER)), moved=True))
    except (OSError, ValueError, TypeError) as error:
        report.errorlog(1, tr("%s cannot be written: %s") % (MARKER, error))


def _rewrite(noted):
    """In place, for where no file can be made or removed. OSError."""
    with open(root.open_file(MARKER, os.O_RDWR | os.O_NOFOLLOW), "r+", encoding="utf-8") as stream:
        stream.truncate()
        json.dump(noted, stream)
        stream.flush()
        os.fsync(stream.fileno())


def _undeletable(error):
    return tr("%s can be neither removed nor rewritten: %s. Each start of VOK reads it and reports a transaction: remove "
              "the file.") % (MARKER, error.strerror)


def _remove(path):
    try:
        os.unlink(path)
    except FileNotFoundError:
        pass


def check(session):
    """Lines about an interrupted transaction, [] when there was none, for the program to tell until it calls
    clear(). Only the holder of the lock looks: the marker of another may be one of a running transaction."""
    if not locks.held():
        return []
    try:
        noted = json.loads(root.read(MARKER))
        if noted == {}:
            clear()
            return []
        elements = noted["elements"]
        planned = [(str(one["package"]), int(one["action"])) for one in elements]
    except FileNotFoundError:
        return []
    except (OSError, ValueError, KeyError, TypeError, RecursionError) as error:
        lines = [tr("A transaction was interrupted; what it was to do cannot be read: %s") % error]
    else:
        lines = _lines(planned, *_found(session, noted))
    try:
        os.close(root.open_file(MARKER, os.O_RDWR | os.O_NOFOLLOW))
    except OSError as error:
        lines.append(_undeletable(error))
    return lines


def _found(session, noted):
    """The installed packages, None if they are not those that the transaction was about; how the report begins."""
    if not noted.get("moved"):
        if _has_ended(session.base):
            return installed_packages(session.base), tr("rpm completed the last transaction, but VOK could not record it.")
        return installed_packages(session.base), tr("The last transaction was interrupted.")
    if noted.get("database") == database.identity():
        return (installed_packages(session.base),
                tr("rpm's database in %s was moved away during the last transaction, and is back.") % database.directory())
    return None, moved_text()


def _has_ended(base):
    """Whether DNF's history has the end of the transaction of the marker."""
    try:
        last = base.history.last()
        return (last is not None and last.cmdline == COMMAND_LINE and last.end_timestamp > 0
                and last.beg_timestamp >= int(os.stat(root.resolve(MARKER)).st_mtime))
    except Exception:  # a history that cannot be read
        return False


def moved_text():
    """What is to be done about a database that was moved."""
    return tr("The rpm database in %s was moved or replaced during the last transaction, probably by a scriptlet. What is "
              "installed cannot be told from what is there now. Move the former directory back, or restore it from a "
              "backup, before you install or remove anything.") % database.directory()


def installed_packages(base):
    """The set of installed packages as the database has them now, as
    epoch:name-version-release.arch."""
    reader = dnf.rpm.transaction.initReadOnlyTransaction(root=base.conf.installroot)
    found = set()
    for header in reader.dbMatch():
        found.add(report.clean("%s:%s-%s-%s.%s" % (header["epoch"] or 0, header["name"],
                                                   header["version"], header["release"],
                                                   header["arch"])))
    return found


def _is_twin(old, new):
    """Whether one of two packages (epoch:name-version-release.arch) is to replace the other under its
    name; libraries of two architectures have one name."""
    old_name, old_arch = old.partition(":")[2].rsplit("-", 2)[0], old.rpartition(".")[2]
    new_name, new_arch = new.partition(":")[2].rsplit("-", 2)[0], new.rpartition(".")[2]
    return old_name == new_name and (old_arch == new_arch or "noarch" in (old_arch, new_arch))


def _lines(planned, installed, first):
    if installed is None:
        return [first]
    installs = [package for package, action in planned if action not in ERASING]
    erases = {package: action for package, action in planned
              if action in ERASING and package not in installs}
    missing = [package for package in installs if package not in installed]
    left = [package for package in erases if package in installed]
    lines = [first]
    done = len(installs) + len(erases) - len(missing) - len(left)
    lines.append(tr("Steps that had been done: %d of %d.") % (done, len(installs) + len(erases)))
    for package in missing:
        lines.append(tr("Not installed: %s. If rpm was unpacking it, files of it may be there already.")
                     % package)
    twice = 0
    for package in left:
        twins = [new for new in installs if new in installed and _is_twin(package, new)
                 and erases[package] in REPLACED]
        twice += bool(twins)
        lines.append(tr("Installed twice: %s beside %s.") % (package, twins[0]) if twins
                     else tr("Not removed: %s") % package)
    if len(missing) + len(left) > twice:
        lines.append(tr("Repeat the transaction to complete it."))
    if twice:  # a row of the table stands for all versions of its package
        lines.append(tr("\"dnf remove --duplicates\" removes the older of what is installed twice."))
    if not missing and not left:
        lines.append(tr("Nothing is missing; scriptlets may not have run to their end."))
    return lines
