# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What rpm reports while it runs a transaction, told to the program as it happens.

Everything here runs inside rpm, possibly with another root directory: nothing is opened or imported, and
no exception leaves.
"""

import functools
import re
import time

import dnf.callback
import dnf.transaction
import dnf.yum.rpmtrans

from . import packages, report
from .elements import Action, making_room
from .translation import tr, tr_later

_INSTALL_CODES = {Action.INSTALL: 30, Action.UPGRADE: 10, Action.OBSOLETE: 60, Action.DOWNGRADE: 20,
                  Action.REINSTALL: 20}
_UPDATED = 90  # the old version goes at the end of its update
_ERASE_CODES = {Action.REMOVE: 40, Action.OBSOLETED: 50, Action.UPGRADED: _UPDATED,
                dnf.transaction.PKG_CLEANUP: _UPDATED}
_TEXTS = dict(dnf.transaction.ACTIONS)
_TEXTS[dnf.transaction.TRANS_POST] = tr_later("Running the final scriptlets")
_TROUBLE = re.compile(r"^(error|warning): ")
_SCRIPTLET = re.compile(r"^Error in (\S+) scriptlet in rpm package (.+)$")
_LINE_LEVEL = 4  # log lines about elements that have no event


def _contained(function):
    """No exception may pass through rpm, not even one that ends the process."""
    @functools.wraps(function)
    def call(self, *arguments):
        try:
            self.last_word = time.monotonic()
            return function(self, *arguments)
        except BaseException as error:
            self.trouble.append("%s: %r" % (function.__name__, error))
            return None
    return call


class RpmTransaction(dnf.yum.rpmtrans.RPMTransaction):
    """DNF's own, which keeps to itself what rpm says before an unpacking fails and at the very end."""

    def __init__(self, *arguments, **options):
        super().__init__(*arguments, **options)
        for display in self.displays:
            if isinstance(display, Display):
                display.unread = self._scriptOutput

    def _unpackError(self, key):
        self._scriptout()
        super()._unpackError(key)

    def verify_tsi_package(self, *arguments):
        self._scriptout()
        super().verify_tsi_package(*arguments)


dnf.yum.rpmtrans.RPMTransaction = RpmTransaction


class Erased(str):
    """The name of a package that is erased, with its `pkgtup`: of one name several may be erased."""

    def __new__(cls, package):
        name = super().__new__(cls, report.clean(package.name))
        name.pkgtup = tuple(map(report.clean, package.pkgtup))
        return name


def _spellings(envra):
    """A package as rpm writes it in its messages."""
    epoch, _, nvra = envra.partition(":")
    name, version, rest = nvra.rsplit("-", 2)
    return nvra, "%s-%s:%s-%s" % (name, epoch, version, rest)


class Display(dnf.callback.TransactionProgress):
    """`begun` is set once rpm runs. `reasons` is {epoch:name-version-release.arch: [texts]} of what went
    wrong with an element, `trouble` a list of faults in reporting, `last_word` the time.monotonic() of
    rpm's last report, `running` the package whose scriptlet runs, as a text, `unread` a function for the output that is
    left."""

    def __init__(self, elements, family):
        """`family` gives the family of an architecture."""
        super().__init__()
        self.begun = False
        self.reasons = {}
        self.trouble = []
        self.last_word = time.monotonic()
        self.unread = None
        self.running = ""
        self._current = None      # (package, action) of the element that rpm works on
        self._scriptlet = None    # the package whose scriptlet runs
        self._number = 0          # of the present element
        self._told = False        # whether the present element had an event
        self._last_line = None
        self._making_room = making_room(elements, family)
        # rpm writes the epoch in some messages only. The longest first: it may hold a shorter one.
        self._spellings = sorted(((spelling, element.envra) for element in elements
                                  for spelling in _spellings(element.envra)),
                                 key=lambda pair: len(pair[0]), reverse=True)
        self._total = len({element.envra for element in elements})

    @_contained
    def progress(self, package, action, ti_done, ti_total, ts_done, ts_total):
        self.begun = True
        self.running = report.clean(package) if action == dnf.transaction.PKG_SCRIPTLET else ""
        self._scriptlet = package if action == dnf.transaction.PKG_SCRIPTLET \
            and hasattr(package, "pkgtup") else None
        if self._tell(package, action, int(ti_done or 0), int(ti_total or 0), int(ts_done or 0),
                      int(ts_total or 0)):
            self._told = True
        else:
            self._log_line(package, action)

    def _tell(self, package, action, *numbers):
        """Makes an event of an action; False when it has none."""
        code = _INSTALL_CODES.get(action)
        if code:
            report.yumIOC.tsEvent(packages.Package(package), code, *numbers)
            return True
        code = _ERASE_CODES.get(action)
        if code:
            if self._makes_room(package, action):
                code = _UPDATED
            report.yumIOC.tsEvent(Erased(package), code, *numbers)
        return bool(code)

    def _makes_room(self, package, action):
        return action == Action.REMOVE and packages.envra(package) in self._making_room

    def _log_line(self, package, action):
        line = (action, str(package))
        if line != self._last_line:
            self._last_line = line
            text = tr(_TEXTS[action]) if action in _TEXTS else str(action)
            report.log(_LINE_LEVEL, "%s: %s" % (text, package) if package else text)

    @_contained
    def filelog(self, package, action):
        """rpm turns to the next element."""
        self._finish_element()
        self._current = (package, action)
        self._scriptlet = None
        self.running = ""
        self._number += 1
        self._told = False
        if self._makes_room(package, action):
            report.log(1, tr("Removing %s") % package)

    def _finish_element(self):
        # A package without files reports no progress of its own.
        if self._current is not None and not self._told:
            self._tell(*self._current, 1, 1, self._number, self._total)

    @_contained
    def scriptout(self, msgs):
        """Output of scriptlets and of rpm itself."""
        if not msgs:
            return
        text = report.clean(msgs)
        if not _TROUBLE.search(text) and "\nerror: " not in text and "\nwarning: " not in text:
            report.write_out(text)
        else:
            troubles = []
            for line in text.splitlines(keepends=True):
                trouble = _TROUBLE.match(line)
                (report.write_err if trouble else report.write_out)(line)
                if trouble:
                    troubles.append(line.strip()[trouble.end():])
            self._note(troubles)
        if not text.endswith("\n"):
            report.write_out("\n")

    def _note(self, troubles):
        """Remembers lines of rpm as reasons for the elements that they are about. A line that names none
        is about the one named next: rpm first says what happened and then to which package."""
        unnamed = []
        for text in troubles:
            unnamed.append(text)
            element = next((key for spelling, key in self._spellings if spelling in text), None)
            if element is not None:
                self._blame(element, unnamed)
                unnamed = []
        # Of a scriptlet in Lua rpm tells a name that is cut, and no more.
        about = self._scriptlet or self._current and self._current[0]
        if about:
            self._blame(packages.envra(about), unnamed)

    def _blame(self, element, texts):
        known = self.reasons.setdefault(element, [])
        known += [text for text in texts if text not in known]

    @_contained
    def error(self, message):
        text = report.clean(message)
        report.errorlog(0, text)
        # The scriptlets' own failures come with rpm's line about them; the others only here.
        if not _SCRIPTLET.match(text):
            self._note([text])

    @_contained
    def drain(self):
        """Tells what rpm wrote last, and lets go of its transaction, whose end restores rpm's log."""
        unread, self.unread = self.unread, None
        if unread:
            self.scriptout(unread())

    @_contained
    def finish(self):
        """rpm is through."""
        self._finish_element()
        self._current = self._scriptlet = None
        for fault in self.trouble:
            report.errorlog(3, tr("Internal error: transaction report: %s") % fault)
