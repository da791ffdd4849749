"""One transaction: mark, resolve, list, confirm, download, check signatures, run, report."""

import ctypes
import encodings.idna  # noqa: F401  (nothing can be imported while rpm is in another root)
import linecache  # noqa: F401
import os
import traceback  # noqa: F401

import dnf.drpm
import dnf.exceptions
import dnf.repo
import rpm

from yum import Errors

from . import clean, display, errors, groups, interrupted, keys, locks, meters, packages, report
from . import resolve, root, tsinfo
from .base import full_cache

_CLONE_FS = 0x200


class Transaction:
    """`yumio` is the YumIO object: the program reads `tsInfo` of it. The marks are as for apply; `noted`
    is a list of (group, action)."""

    def __init__(self, yumio, installs, updates, removes, noted):
        self._yumio = yumio
        self._session = yumio._session
        self._base = self._session.base
        self._collection = yumio._collection
        self._marks = resolve.Marks(installs, updates, removes)
        self._noted = noted

    def run(self):
        """True when rpm ran, False when there was nothing to do or the user declined. Raises YumBaseError
        (with everything as before) when it cannot be done; once rpm has begun it raises nothing, and
        the callback transactionReport tells what failed."""
        if self._session.spent:
            raise Errors.YumBaseError("A transaction has run already; the packages must be read again.")
        _check_writable()
        try:
            with errors.translated():
                if not self._prepare():
                    forget(self._session)
                    return False
            self._execute()
            return True
        finally:
            report.job_state("done", False)

    def _prepare(self):
        report.job_state("resolve", True)
        report.yumIOC.dsTsCheck()
        grouped = {name for group, action in self._noted if action != groups.REMOVE
                   for name in group.members()}
        if not resolve.Resolver(self._base, self._marks, grouped).resolve():
            return False
        errors.check_cancelled()
        if resolve.tell_additions(self._base, self._marks, self._collection):
            report.yumIOC.dsRestartLoop()
            report.yumIOC.dsTsCheck()
        groups.record(self._base, self._noted)
        if not len(self._base.transaction) and not self._noted:
            report.log(0, "Nothing to do.")
            return False
        self._fill_tsinfo(tsinfo.elements(self._base.transaction))
        install = list(self._base.transaction.install_set)
        report.yumIOC.listTransaction(self._yumio)
        report.yumIOC.reportDownloadSize([packages.Package(pkg) for pkg in install
                                          if not os.path.exists(pkg.localPkg())])
        if not report.yumIOC.userconfirm():
            return False
        report.job_state("download", True)
        self._download(install)
        keys.check_signatures(self._base, sorted(install))
        errors.check_cancelled()
        return True

    def _fill_tsinfo(self, items):
        self._yumio.tsInfo.fill(items, self._marks, lambda pkg: self._collection.key(pkg)
                                in self._collection.updatable)

    def _download(self, install):
        base = self._base
        remote, _ = base._select_remote_pkgs(install)
        if not remote:
            return
        progress = meters.PackageProgress()
        delta = dnf.drpm.DeltaInfo(base.sack.query().installed(), progress,
                                   base.conf.deltarpm_percentage if self._yumio.usesPresto() else 0)
        base._add_tempfiles([pkg.localPkg() for pkg in remote])
        payloads = [dnf.repo._pkg2payload(pkg, progress, delta.delta_factory, meters.PackagePayload)
                    for pkg in remote]
        try:
            locks.guarded("download", True, lambda: base._download_remote_payloads(
                payloads, delta, progress, None))
        except dnf.exceptions.DownloadError as error:
            if progress.cancelled:
                raise Errors.CancelledError() from error
            lines = [report.told(error)] + [text for text in dict.fromkeys(progress.failures)
                                             if text not in report.clean(error)
                                             and "No more mirrors" not in text]
            raise Errors.NoMoreMirrorsRepoError(
                "\n".join(lines) + full_cache(base.conf.cachedir)) from error
        finally:
            progress.finish()

    def _execute(self):
        base, session = self._base, self._session
        report.job_state("transaction", False)
        report.yumIOC.tsInitCallback(1)
        items = tsinfo.elements(base.transaction)
        shown = display.Display(items)
        base.args = ["vok"]  # what DNF's history shows as the command line
        if base.conf.installroot != "/":
            # rpm changes the root directory; this thread's alone, not that of the whole process.
            ctypes.CDLL(None).unshare(_CLONE_FS)
        before = {packages.envra(pkg) for pkg in base.sack.query().installed()}
        interrupted.write(items)
        base.history.log_scriptlet_output = HistoryOutput(base.history)
        failure = ""
        try:
            with errors.translated():
                locks.guarded("transaction", False, lambda: base.do_transaction(shown))
        except BaseException as error:
            if not shown.begun:
                interrupted.clear()
                raise
            failure = report.told(error) or type(error).__name__
            report.errorlog(0, failure)
        session.spent = True
        shown.finish()
        interrupted.clear()
        try:
            self._tell_outcome(items, shown, failure, before)
        except Exception as error:  # what was done stays done, whatever its report meets
            report.errorlog(0, "The report of the transaction failed: %s" % report.clean(error))

    def _tell_outcome(self, items, shown, failure, before):
        outcomes = Outcomes(items, interrupted.installed_packages(self._base), shown.reasons, failure)
        self._fill_tsinfo([item for item in items if outcomes.of(item)[0] == "done"])
        report.yumIOC.postTransactionOutput(self._yumio)
        rows = outcomes.rows() + outcomes.unasked(before)
        if report.offers("transactionReport"):
            report.yumIOC.transactionReport(rows)
            return
        for name, outcome, reason in rows:
            if reason:
                report.errorlog(0, "%s %s: %s" % (name, outcome, reason))


def _check_writable():
    """Says early that this user, or this file system, takes no transaction."""
    path = rpm.expandMacro("%{_dbpath}")
    if not os.access(root.resolve(path), os.W_OK):
        reason = "this needs the rights of the administrator" if os.geteuid() else \
            "the file system is read-only, or the directory is missing"
        raise Errors.YumBaseError("The package database in %s cannot be written: %s." % (path, reason))


class HistoryOutput:
    """Scriptlet output for DNF's history, which takes milliseconds for every line: the first lines of a
    transaction. The program's log has all of it."""

    LINES, CHARACTERS = 300, 1 << 18

    def __init__(self, history):
        self._record = type(history).log_scriptlet_output.__get__(history)
        self._lines, self._characters = self.LINES, self.CHARACTERS

    def __call__(self, output):
        if not output or self._lines <= 0:
            return
        lines = output[:max(self._characters, 0)].splitlines()[:self._lines]
        self._lines -= len(lines)
        self._characters -= len(output)
        if self._characters <= 0 or self._lines <= 0:
            self._lines = 0
            lines.append(b"(more output is not recorded)")
        self._record(b"\n".join(line if isinstance(line, bytes) else line.encode("utf-8", "replace")
                                for line in lines))


class Outcomes:
    """What became of each element, by the rpm database as it is now: "done", "failed" or "skipped", and
    why. An element that is done has a reason when a scriptlet of it failed."""

    def __init__(self, items, installed, reasons, failure):
        self._items = [item for item in items if item.action in tsinfo.ERASING
                       or item.action == tsinfo.UPGRADE or item.action in tsinfo.INSTALLING]
        self._new = {packages.envra(item.pkg) for item in self._items
                     if item.action not in tsinfo.ERASING}
        self._installed = installed
        self._reasons = reasons
        self._failure = failure

    def of(self, item):
        """(outcome, reason) of an item."""
        key = packages.envra(item.pkg)
        erasing = item.action in tsinfo.ERASING
        # That rpm skipped an element is no reason of its own: it follows from another's failure.
        reason = "; ".join(text for text in self._reasons.get(display.element_name(item), ())
                           if not text.endswith(" skipped"))
        if (key in self._installed) != erasing or key in self._new and erasing:
            return "done", reason
        if reason:
            return "failed", reason + (_lack_of_room(item.pkg) if "write failed" in reason else "")
        return "skipped", self._why_skipped(item)

    def _why_skipped(self, item):
        for by in item._item.getReplacedBy():
            new = by.getRPMItem()
            key = "%s:%s-%s-%s.%s" % (new.getEpoch(), new.getName(), new.getVersion(),
                                      new.getRelease(), new.getArch())
            if key in self._new and key not in self._installed:
                return "%s was not installed" % key
        return self._failure.strip() or "rpm left it out because another package failed"

    def unasked(self, before):
        """Rows of packages that were there `before` and went although the transaction does not hold
        them: to rpm, an update of one architecture may replace the other."""
        erased = {packages.envra(item.pkg) for item in self._items if item.action in tsinfo.ERASING}
        return [(key, "done", "rpm removed it along with the others")
                for key in sorted(before - self._installed - erased)]

    def rows(self):
        """[(epoch:name-version-release.arch, outcome, reason)], a reinstalled package once."""
        return [(packages.envra(item.pkg), *self.of(item)) for item in self._items
                if not (item.action in tsinfo.ERASING and packages.envra(item.pkg) in self._new)]


def _lack_of_room(pkg):
    """rpm often names another error than the full disk that it met; the end of the reason that says so,
    "" when there is room."""
    free = []
    for path in ("/", "/usr", "/usr/share", "/var", "/opt"):
        try:
            status = os.statvfs(root.resolve(path))
        except OSError:
            continue
        free.append(status.f_bavail * status.f_frsize)
    if min(free, default=pkg.installsize) >= pkg.installsize:
        return ""
    return " (the package needs %s, and a file system has only %s left)" % (
        clean.size_text(pkg.installsize), clean.size_text(min(free)))


def forget(session):
    """Drops marks and transaction, so that another apply can follow on the same packages."""
    base = session.base
    if session.spent or base.sack is None:
        return
    base.reset(goal=True)
    del base._ts
