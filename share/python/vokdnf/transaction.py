# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""One transaction: mark, resolve, list, confirm, download, check signatures, run, report."""

import encodings.idna  # noqa: F401  (nothing can be imported while rpm is in another root)
import linecache  # noqa: F401
import mmap
import os
import resource
import traceback  # noqa: F401

import dnf.drpm
import dnf.exceptions
import dnf.repo

from yum import Errors

from . import credentials, database, display, elements, errors, groups, interrupted, keys, language, locks, meters
from . import outcome, packages, report, resolve, rights, root, tsflags, unlisted, waiting
from .base import full_cache
from .translation import tr

_DESCRIPTORS = 100  # that rpm, its scriptlets and DNF's history get at least
_MEMORY = 32 << 20  # bytes that rpm gets at least


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
            raise Errors.YumBaseError(tr("A transaction has run already; the packages must be read again."))
        reason = rights.to_change_packages() or _too_few_descriptors()
        if reason:
            raise Errors.YumBaseError(reason)
        try:
            with language.english():
                with errors.translated():
                    if not self._prepare():
                        forget(self._session)
                        return False
                if tsflags.only_tests(self._base):
                    self._test()
                else:
                    self._execute()
                return True
        finally:
            report.job_state("done", False)

    def _prepare(self):
        report.job_state("resolve", True)
        report.yumIOC.dsTsCheck()
        removed = {pkg.name for pkg in self._marks.unwanted}
        grouped = {name for group, action in self._noted for name in group.members()
                   if (action == groups.REMOVE) == (name in removed)}
        alone = not self._marks.wanted and all(action == groups.REMOVE for _, action in self._noted)
        if not resolve.Resolver(self._base, self._marks, grouped, alone).resolve():
            return False
        errors.check_cancelled()
        self._elements = elements.of(self._base.transaction)
        if resolve.tell_additions(self._elements, self._marks, self._collection):
            report.yumIOC.dsRestartLoop()
            report.yumIOC.dsTsCheck()
        groups.record(self._base, self._noted)
        if not len(self._base.transaction) and (not self._noted or tsflags.only_tests(self._base)):
            report.log(0, tr("Nothing to do."))
            return False
        self._fill_tsinfo(self._elements)
        install = list(self._base.transaction.install_set)
        report.yumIOC.listTransaction(self._yumio)
        report.yumIOC.reportDownloadSize([packages.Package(pkg) for pkg in install
                                          if not os.path.exists(pkg.localPkg())])
        self._tell_more(install)
        errors.check_cancelled()
        if not report.yumIOC.userconfirm():
            return False
        report.job_state("download", True)
        self._download(install)
        keys.check_signatures(self._base, sorted(install))
        errors.check_cancelled()
        self._confirm_unlisted()
        return True

    def _tell_more(self, install):
        """Adds to the listing what its lines do not say."""
        local = [packages.Package(pkg) for pkg in install if pkg._is_local_pkg()]
        if local and report.offers("reportLocalSize"):
            report.yumIOC.reportLocalSize(local)
        for line in [*resolve.replacements(self._base, self._marks), *tsflags.notes(self._base)]:
            report.log(1, line)
            if report.offers("listingNote"):
                report.yumIOC.listingNote(line)

    def _confirm_unlisted(self):
        """Takes in what rpm would remove beside the confirmed listing, when the user agrees."""
        gone = unlisted.removals(self._base, self._elements)
        if not gone:
            return
        for pkg in gone:
            self._base.transaction.add_remove(pkg)
        listed, self._elements = self._elements, elements.of(self._base.transaction)
        known = {element.envra for element in listed}
        self._fill_tsinfo([element for element in self._elements if element.envra not in known])
        if not (report.yumIOC.confirmRemovals(self._yumio) if report.offers("confirmRemovals") else
                report.confirm([tr("rpm would also remove:"), *map(str, gone), tr("Go on?")])):
            raise Errors.CancelledError()

    def _fill_tsinfo(self, chosen):
        self._yumio.tsInfo.fill(chosen, self._marks, lambda element: self._collection.key(element)
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
            text = "\n".join(lines) + full_cache(base.conf.cachedir)
            for repo, refusals in progress.refusals.items():
                if credentials.refused(repo, "\n".join(refusals)):
                    report.repository_failed(repo.id, text, True)
            raise Errors.NoMoreMirrorsRepoError(text) from error
        finally:
            progress.finish()

    def _test(self):
        """Has rpm test the transaction, which may not run. Raises when the test fails."""
        base, session = self._base, self._session
        report.job_state("resolve", False)
        report.yumIOC.tsInitCallback(0)
        if base.conf.installroot != "/":
            root.separate()
        with errors.translated():
            locks.guarded("resolve", False, base.do_transaction)
        session.spent = True
        if report.offers("transactionReport"):
            report.yumIOC.transactionReport([(element.envra, "tested", "") for element in self._elements])

    def _execute(self):
        base, session = self._base, self._session
        report.job_state("transaction", False)
        report.yumIOC.tsInitCallback(1)
        shown = display.Display(self._elements, self._yumio.getBiArch)
        base.args = [interrupted.COMMAND_LINE]
        if base.conf.installroot != "/":
            root.separate()
        if _too_few_descriptors():
            raise Errors.YumBaseError(_too_few_descriptors())
        _check_memory()
        self._database = database.identity()
        interrupted.write(self._elements)
        base.history.log_scriptlet_output = HistoryOutput(base.history)
        failure = ""
        try:
            with errors.translated():
                locks.guarded("transaction", False, lambda: self._run(shown))
        except BaseException as error:
            if not shown.begun:
                interrupted.clear()
                raise
            failure = report.told(error) or type(error).__name__
            report.errorlog(0, failure)
        session.spent = True
        shown.finish()
        moved = database.identity() != self._database
        if moved:
            report.errorlog(0, interrupted.moved_text())
            interrupted.note_moved()
        report.job_state("done", False)
        try:
            self._tell_outcome(shown, failure, moved)
        except Exception as error:  # what was done stays done, whatever its report meets
            report.errorlog(0, tr("The report of the transaction failed: %s") % report.clean(error))
        if not moved:
            interrupted.clear()  # the program has the report now

    def _run(self, shown):
        try:
            with waiting.Watcher(shown):
                self._base.do_transaction(shown)
        finally:
            shown.drain()

    def _tell_outcome(self, shown, failure, moved):
        """`moved`: rpm's database is not the one that the transaction began with."""
        if moved:
            unknown = tr("not known, because rpm's database was moved or replaced")
            outcomes = outcome.Outcomes(self._elements, set(), {}, failure, unknown)
        else:
            outcomes = outcome.Outcomes(self._elements, interrupted.installed_packages(self._base),
                                        shown.reasons, failure)
        self._fill_tsinfo([element for element in self._elements if outcomes.of(element)[0] == "done"])
        report.yumIOC.postTransactionOutput(self._yumio)
        rows = outcomes.rows()
        if report.offers("transactionReport"):
            report.yumIOC.transactionReport(rows)
            return
        for name, result, reason in rows:
            if reason:
                report.errorlog(0, "%s %s: %s" % (name, result, reason))


def _too_few_descriptors():
    """Why rpm cannot begin: it and its scriptlets open files all the time, and rpm or DNF may crash where that
    fails. "" if enough are left."""
    limit, _ = resource.getrlimit(resource.RLIMIT_NOFILE)
    used = len(os.listdir("/proc/self/fd"))
    if limit == resource.RLIM_INFINITY or limit - used >= _DESCRIPTORS:
        return ""
    return tr("VOK has %d files open and may open %d at most, which leaves too few for rpm. Quit VOK and start it "
              "again, with a higher limit if necessary.") % (used, limit)


def _check_memory():
    """Raises YumBaseError if little is left: rpm, libsolv and GLib end the process when an allocation fails."""
    try:
        mmap.mmap(-1, _MEMORY).close()
    except OSError as error:
        raise Errors.YumBaseError(tr("Less than %d MiB of memory are left, which is too little for VOK and rpm. Quit "
                                     "other programs, or raise the limit, and try again.") % (_MEMORY >> 20)) from error


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


def forget(session):
    """Drops marks and transaction, so that another apply can follow on the same packages."""
    base = session.base
    if session.spent or base.sack is None:
        return
    base.reset(goal=True)
    del base._ts
