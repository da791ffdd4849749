"""What rpm reports while it runs a transaction, told to the program as it happens.

Everything here runs inside rpm, possibly with another root directory: nothing is opened or imported, and
no exception leaves.
"""

import functools
import re

import dnf.callback
import dnf.transaction
import dnf.yum.rpmtrans

from . import packages, report

INSTALL_CODES = {dnf.transaction.PKG_INSTALL: 30, dnf.transaction.PKG_UPGRADE: 10,
                 dnf.transaction.PKG_OBSOLETE: 60, dnf.transaction.PKG_DOWNGRADE: 20,
                 dnf.transaction.PKG_REINSTALL: 20}
ERASE_CODES = {dnf.transaction.PKG_ERASE: 40, dnf.transaction.PKG_OBSOLETED: 50,
               dnf.transaction.PKG_UPGRADED: 90, dnf.transaction.PKG_CLEANUP: 90}
_TEXTS = dict(dnf.transaction.ACTIONS)
_TEXTS[dnf.transaction.TRANS_POST] = "Running the final scriptlets"
_TROUBLE = re.compile(r"^(error|warning): ")
_SCRIPTLET = re.compile(r"^Error in (\S+) scriptlet in rpm package (.+)$")
_LINE_LEVEL = 4  # log lines about elements that have no event


def _contained(function):
    """No exception may pass through rpm, not even one that ends the process."""
    @functools.wraps(function)
    def call(self, *arguments):
        try:
            return function(self, *arguments)
        except BaseException as error:
            self.trouble.append("%s: %r" % (function.__name__, error))
            return None
    return call


class RpmTransaction(dnf.yum.rpmtrans.RPMTransaction):
    """DNF's own, which keeps to itself what rpm says before an unpacking fails and at the very end."""

    def _unpackError(self, key):
        self._scriptout()
        super()._unpackError(key)

    def verify_tsi_package(self, *arguments):
        self._scriptout()
        super().verify_tsi_package(*arguments)


dnf.yum.rpmtrans.RPMTransaction = RpmTransaction


def rpm_name(pkg):
    """A package as rpm writes it in its messages."""
    name, arch, _, version, release = pkg.pkgtup
    return report.clean("%s-%s-%s.%s" % (name, version, release, arch))


def element_name(item):
    return rpm_name(item.pkg)


class Display(dnf.callback.TransactionProgress):
    """`begun` is set once rpm runs. `reasons` is {name-version-release.arch: [texts]} of what went wrong
    with an element, `trouble` a list of faults in reporting."""

    def __init__(self, items):
        """`items` are DNF's items of the transaction."""
        super().__init__()
        self.begun = False
        self.reasons = {}
        self.trouble = []
        self._current_name = None  # as rpm writes it
        self._current = None      # (package or name, action) of the element that rpm works on
        self._number = 0          # of the present element
        self._told = False        # whether the present element had an event
        self._last_line = None
        # The longest name first: it may hold a shorter one.
        self._elements = sorted(set(map(element_name, items)), key=len, reverse=True)
        self._total = len(self._elements)

    @_contained
    def progress(self, package, action, ti_done, ti_total, ts_done, ts_total):
        self.begun = True
        code = INSTALL_CODES.get(action)
        erase = code is None and ERASE_CODES.get(action)
        if not code and not erase:
            self._log_line(package, action)
            return
        self._told = True
        report.yumIOC.tsEvent(self._argument(package, code), code or erase, int(ti_done or 0),
                              int(ti_total or 0), int(ts_done or 0), int(ts_total or 0))

    @staticmethod
    def _argument(package, code):
        if code:
            return packages.Package(package)
        return report.clean(getattr(package, "name", package))

    def _log_line(self, package, action):
        line = (action, str(package))
        if line != self._last_line:
            self._last_line = line
            report.log(_LINE_LEVEL, "%s: %s" % (_TEXTS.get(action, action), package)
                       if package else _TEXTS.get(action, ""))

    @_contained
    def filelog(self, package, action):
        """rpm turns to the next element."""
        self._finish_element()
        self._current = (package, action)
        self._current_name = rpm_name(package)
        self._number += 1
        self._told = False

    def _finish_element(self):
        # A package without files reports no progress of its own.
        if self._current is None or self._told:
            return
        package, action = self._current
        code = INSTALL_CODES.get(action) or ERASE_CODES.get(action)
        if code:
            report.yumIOC.tsEvent(self._argument(package, action in INSTALL_CODES), code, 1, 1,
                                  self._number, self._total)

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
            element = next((one for one in self._elements if one in text), None)
            if element is not None:
                self._blame(element, unnamed)
                unnamed = []
        if self._current_name is not None:
            self._blame(self._current_name, unnamed)

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
    def finish(self):
        """rpm is through."""
        self._finish_element()
        self._current = self._current_name = None
        for fault in self.trouble:
            report.errorlog(3, "Internal error: transaction report: %s" % fault)
