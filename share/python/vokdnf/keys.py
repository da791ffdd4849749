# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Signing keys and signatures. No key is imported without a yes of the user."""

import concurrent.futures
import os
import re

import dnf.callback
import dnf.exceptions
import dnf.rpm.miscutils
import dnf.rpm.transaction

from yum import Errors

from . import errors, library, report, root
from .translation import tr

library.mend()

_SIGNATURE = re.compile("GPG|[Ss]ignature")


class RepositoryKeyImport(dnf.callback.KeyImport):
    """Asks about the keys that sign a repository's metadata."""

    def __init__(self, repo):
        self._repo = repo
        self._declined = []

    def _confirm(self, id, userid, fingerprint, url, timestamp):
        source = tr("%s (metadata of the repository %s)") % (root.shown(url), self._repo.id)
        answer = report.import_key(id, userid, fingerprint, source)
        if not answer:
            self._declined.append(id)
            report.errorlog(0, tr("The key 0x%s of the repository %s was not imported.")
                            % (id, self._repo.id))
        return answer

    def reason(self, error):
        """What to say in the place of `error`: that a key was declined, where libdnf speaks of a bad signature
        because of it; else ""."""
        if not self._declined or not _SIGNATURE.search(str(error)):
            return ""
        return tr("The key 0x%s, which signs its metadata, was not imported.") % self._declined[-1]


def check_signatures(base, packages):
    """Checks every package (DNF objects) whose repository wants it, before anything is changed.
    Raises YumBaseError naming the first package that must not be installed and why."""
    if packages:
        # Alone, because the first makes DNF look for rpm's tool and log that: on this thread.
        _check(base, packages[0])
    # Each check waits for a process of its own, so several are made at once.
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1) as pool:
        try:
            for pkg, early in [(pkg, pool.submit(base.package_signature_check, pkg))
                               for pkg in packages[1:]]:
                errors.check_cancelled()
                _check(base, pkg, early)
        finally:
            pool.shutdown(wait=False, cancel_futures=True)


def _check(base, pkg, early=None):
    """Checks one package. `early` is the future of a check that may be older than a key."""
    with errors.translated(prefix="%s: " % pkg):
        if early is not None and early.result()[0] == 0:
            return
        result, text = base.package_signature_check(pkg)
    if result == 0:
        return
    if result != 1:
        if _is_damaged(base, pkg):
            text = tr("its signature is wrong or the file is damaged (%s)") % text
        raise Errors.YumBaseError(tr("%s cannot be trusted: %s. Nothing was changed.")
                                  % (pkg, report.clean(text)))
    _import_key(base, pkg, report.clean(text))


def _is_damaged(base, pkg):
    """DNF calls a signature that does not match a problem of opening the file."""
    reader = dnf.rpm.transaction.initReadOnlyTransaction(base.conf.installroot)
    return dnf.rpm.miscutils.checkSig(reader, pkg.localPkg()) == 2


def _import_key(base, pkg, reason):
    def ask(about):
        return report.import_key(about["hexkeyid"], about["userid"], about["fingerprint"],
                                 tr("%s (package %s)") % (root.shown(about["keyurl"]), pkg))
    try:
        base.package_import_key(pkg, fullaskcb=ask)
    except (dnf.exceptions.Error, ValueError, OSError) as error:
        # DNF remembers the repository as asked about; a second apply has to ask again.
        base._repo_set_imported_gpg_keys.discard(pkg.repoid)
        raise Errors.YumBaseError(tr("%s cannot be trusted: %s. %s\nNothing was changed.")
                                  % (pkg, reason, report.clean(error))) from error
