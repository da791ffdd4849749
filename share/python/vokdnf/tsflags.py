# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What the option tsflags of the configuration leaves out of a transaction."""

from .translation import tr, tr_later

_NOTES = {
    "test": tr_later("tsflags=test in the configuration: the transaction is only tested. No package is changed."),
    "justdb": tr_later("tsflags=justdb in the configuration: only the package database is changed. No files are "
                       "installed or removed, and no scriptlets are run."),
    "noscripts": tr_later("tsflags=noscripts in the configuration: no scriptlets are run."),
}


def only_tests(base):
    """Whether rpm only tests the transaction. DNF then returns before it begins, and says nothing."""
    return "test" in base.conf.tsflags


def notes(base):
    """Lines about what a transaction does not do although it is listed."""
    return [tr(text) for flag, text in _NOTES.items() if flag in base.conf.tsflags]
