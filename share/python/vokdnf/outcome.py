# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What became of a transaction, element by element."""

import os

from . import clean, root
from .translation import tr


class Outcomes:
    """What became of each element, by the rpm database as it is now: "done", "failed" or "skipped", and
    why. An element that is done has a reason when a scriptlet of it failed. `unknown` is a reason why nothing is
    known of any."""

    def __init__(self, elements, installed, reasons, failure, unknown=""):
        self._elements = elements
        self._new = {element.envra for element in elements if not element.erases}
        self._installed = installed
        self._reasons = reasons
        self._failure = failure
        self._unknown = unknown

    def of(self, element):
        """(outcome, reason) of an element."""
        if self._unknown:
            return "failed", self._unknown
        key, erases = element.envra, element.erases
        # That rpm skipped an element is no reason of its own: it follows from another's failure.
        reason = "; ".join(text for text in self._reasons.get(key, ()) if not text.endswith(" skipped"))
        if (key in self._installed) != erases or key in self._new and erases:
            return "done", reason
        if reason:
            return "failed", _with_room(reason, element.po.pkg) if "cpio: write" in reason else reason
        return "skipped", self._why_skipped(element)

    def _why_skipped(self, element):
        for key in element.replaced_by:
            if key in self._new and key not in self._installed:
                return tr("%s was not installed") % key
        return self._failure.strip() or tr("rpm left it out because another package failed")

    def rows(self):
        """[(epoch:name-version-release.arch, outcome, reason)], a reinstalled package once."""
        return [(element.envra, *self.of(element)) for element in self._elements
                if not (element.erases and element.envra in self._new)]


def _with_room(reason, pkg):
    """rpm often names another error than the full disk that it met: the reason, saying so when there is no
    room."""
    free = []
    for path in ("/", "/usr", "/usr/share", "/var", "/opt"):
        try:
            status = os.statvfs(root.resolve(path))
        except OSError:
            continue
        free.append(status.f_bavail * status.f_frsize)
    if min(free, default=pkg.installsize) >= pkg.installsize:
        return reason
    return tr("%s (the package needs %s, and a file system has only %s left)") % (
        reason, clean.size_text(pkg.installsize), clean.size_text(min(free)))
