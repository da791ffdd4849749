# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The exceptions that the script raises. `value` and str() are the text for the user."""

from vokdnf.translation import tr


class YumBaseError(Exception):
    """Root of all; raised itself where no narrower class fits."""

    def __init__(self, value=""):
        super().__init__(value)
        self.value = value

    def __str__(self):
        return str(self.value)


class RepoError(YumBaseError):
    """Enabling, disabling or setting up a repository failed."""


class NoMoreMirrorsRepoError(RepoError):
    """A download or a metadata load failed on every mirror."""


class LockError(YumBaseError):
    """Another program holds a lock. `pid` is its process id, 0 when unknown."""

    def __init__(self, value="", pid=0):
        super().__init__(value)
        self.pid = pid


class GroupsError(YumBaseError):
    """Group data is missing ("No Groups Available") or unusable."""


class CancelledError(YumBaseError):
    """The user cancelled; everything is as before."""

    def __init__(self, value=None):
        super().__init__(tr("Cancelled by the user") if value is None else value)


class CancelledRepoError(CancelledError, RepoError):
    """The user cancelled the setting up of the repositories."""


class CancelledLockError(CancelledError, LockError):
    """The user cancelled while waiting for a lock."""

    def __init__(self, value=None, pid=0):
        super().__init__(value)
        self.pid = pid
