# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""DNF's exceptions become those of yum.Errors, with DNF's text."""

import contextlib

import dnf.exceptions
import hawkey
import libdnf.error
import rpm

from yum import Errors

from . import report


def check_cancelled(kind=Errors.CancelledError):
    """Raises `kind` when the user asked to cancel."""
    if report.cancelled():
        raise kind()


@contextlib.contextmanager
def translated(repo_error=Errors.NoMoreMirrorsRepoError, prefix=""):
    """Runs its block; `repo_error` is what a failed download or metadata load becomes, `prefix` goes
    before the text. Errors of the operating system pass unchanged, they have their own report."""
    try:
        yield
    except Errors.YumBaseError:
        raise
    except (dnf.exceptions.RepoError, dnf.exceptions.DownloadError) as error:
        raise repo_error(prefix + report.told(error)) from error
    except dnf.exceptions.ProcessLockError as error:
        raise Errors.LockError(prefix + report.told(error), error.pid) from error
    except dnf.exceptions.LockError as error:
        raise Errors.LockError(prefix + report.told(error)) from error
    except dnf.exceptions.CompsError as error:
        raise Errors.GroupsError(prefix + report.told(error)) from error
    except (dnf.exceptions.Error, hawkey.Exception, libdnf.error.Error, rpm.error, RuntimeError) as error:
        raise Errors.YumBaseError(prefix + report.told(error)) from error
