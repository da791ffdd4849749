# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""File lists and change logs of available packages."""

import contextlib

import dnf.package

from yum import Errors

from . import base, config, errors, library, locks, packages, report
from .packages import CHANGE_LOGS, FILE_LISTS


def load_file_lists(session):
    """Makes file lists readable. Where DNF read them with the packages, there is nothing to do."""
    if session.base.sack is None:
        session.fill_sack()
    if not library.reads_file_lists(session.conf):
        _load_apart(session, FILE_LISTS)
    report.job_state("done", False)


def load_change_logs(session):
    _load_apart(session, CHANGE_LOGS)


class Apart:
    """The repositories, read once more with data that the first reading lacks."""

    def __init__(self, dnf_base):
        self._base = dnf_base
        self._spans = {}

    def find(self, pkg):
        """The package of DNF that is the same in here; `pkg` itself when it is not here. Both sacks have
        read the same metadata, so it has the same place among those of its repository."""
        name = pkg.reponame
        if name not in self._spans:
            self._spans[name] = packages.span(pkg.base.sack, name), packages.span(self._base.sack, name)
        (first, count), (first_here, count_here) = self._spans[name]
        if count == count_here and 0 <= hash(pkg) - first < count:
            same = dnf.package.Package((self._base.sack, first_here + hash(pkg) - first), self._base)
            if str(same) == str(pkg) and same.location == pkg.location:
                return same
        found = self._base.sack.query().filterm(nevra_strict=str(pkg), reponame=name)
        return found[0] if found else pkg

    def free(self):
        self._base.free()


def _load_apart(session, kind):
    """Reads the repositories into a sack of its own: one that is read takes no further data. What is in
    the cache is not fetched again."""
    if kind in session.base.apart:
        return
    enabled = {repo.id for repo in session.base.repos.iter_enabled()}
    other = base.Base(session.conf)
    wanted = library.file_lists_wanted(session.conf) if kind == FILE_LISTS else contextlib.nullcontext()
    try:
        report.job_state("metadata", True)
        with errors.translated(), wanted:
            config.read_repositories(session.conf, other.repos)
            for repo in other.repos.values():
                if repo.id in enabled:
                    repo.enable()
                    repo.load_metadata_other = kind == CHANGE_LOGS
                else:
                    repo.disable()
            try:
                base.load(other)
            except Errors.CancelledError:
                raise
            except Errors.RepoError as error:
                raise Errors.NoMoreMirrorsRepoError(error.value) from error
            locks.guarded("metadata", True, lambda: other.fill_sack(load_system_repo=False))
    except BaseException:
        other.free()
        raise
    finally:
        report.job_state("done", False)
    session.base.apart[kind] = Apart(other)
