"""Transactions that were killed: a marker stands in the system while rpm works, and the next start
that finds one tells what rpm left behind."""

import json
import os

import dnf.rpm.transaction
import dnf.sack

from . import locks, packages, report, root, tsinfo

MARKER = "/var/lib/vok/transaction.json"


def write(items):
    """Notes the elements of a transaction (items of DNF) before rpm begins. A system that takes no
    marker takes no transaction either, so a failure is only logged."""
    path = root.resolve(MARKER)
    elements = [{"action": item.action, "erase": item.action in tsinfo.ERASING,
                 "package": packages.envra(item.pkg)} for item in items]
    try:
        os.makedirs(os.path.dirname(path), mode=0o755, exist_ok=True)
        with open(path + ".new", "w", encoding="utf-8") as stream:
            json.dump({"pid": os.getpid(), "elements": elements}, stream)
            stream.flush()
            os.fsync(stream.fileno())
        os.replace(path + ".new", path)
    except OSError as error:
        report.errorlog(1, "%s cannot be written: %s" % (path, error.strerror))


def clear():
    try:
        os.unlink(root.resolve(MARKER))
    except OSError:
        pass


def check(session):
    """Lines about an interrupted transaction, [] when there was none. They are logged too, and told
    once. Only the holder of the lock looks: the marker of another may be one of a running
    transaction."""
    if not locks.held():
        return []
    try:
        with open(root.resolve(MARKER), encoding="utf-8") as stream:
            elements = json.load(stream)["elements"]
        planned = [(one["package"], bool(one["erase"])) for one in elements]
    except FileNotFoundError:
        return []
    except (OSError, ValueError, KeyError, TypeError) as error:
        lines = ["A transaction was interrupted; what it was to do cannot be read: %s" % error]
    else:
        lines = _lines(planned, installed_packages(session.base))
    for line in lines:
        report.errorlog(0, line)
    clear()
    return lines


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


def _name(package):
    return package.partition(":")[2].rsplit("-", 2)[0]


def _lines(planned, installed):
    installs = [package for package, erase in planned if not erase]
    erases = [package for package, erase in planned if erase and package not in installs]
    missing = [package for package in installs if package not in installed]
    left = [package for package in erases if package in installed]
    lines = ["The last transaction was interrupted."]
    done = len(installs) + len(erases) - len(missing) - len(left)
    lines.append("%d of its %d steps had been done." % (done, len(installs) + len(erases)))
    new = {_name(package): package for package in installs if package in installed}
    for package in missing:
        lines.append("Not installed: %s. If rpm was unpacking it, files of it may be there already."
                     % package)
    for package in left:
        twin = new.get(_name(package))
        lines.append("Installed twice: %s beside %s." % (package, twin) if twin
                     else "Not removed: %s" % package)
    lines.append("Repeat the transaction to complete it; remove the older of what is installed twice."
                 if missing or left else "Nothing is missing; scriptlets may not have run to their end.")
    return lines
