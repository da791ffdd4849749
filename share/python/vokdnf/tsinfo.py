# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What a resolved transaction holds, in the lists that the program shows and weighs."""

from .elements import REPLACED, Action

NAMES = ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved")
OTHER_NAMES = ("downgraded", "reinstalled", "depdowngraded", "depreinstalled")


class Member:
    """One package of a transaction. Texts: `repoid`, `epoch`, `ver`, `rel`; `pkgtup` is (name, arch,
    epoch, version, release); `po` the package object; `relatedto` pairs of such a tuple and a relation,
    of which "obsoletedby" is used; `replaces` the installed packages of the same name, of whatever architecture,
    that this one is an update, downgrade or reinstallation of: of a package kept in several versions none."""

    __slots__ = ("pkgtup", "repoid", "po", "epoch", "ver", "rel", "relatedto", "replaces")

    def __init__(self, po, relatedto, replaces):
        self.po = po
        self.pkgtup = po.pkgtup
        self.repoid = po.repoid
        self.epoch, self.ver, self.rel = self.pkgtup[2:]
        self.relatedto = relatedto
        self.replaces = replaces


class TsInfo:
    """Lists of Members, as attributes; empty before a transaction is resolved."""

    def __init__(self):
        for name in NAMES + OTHER_NAMES:
            setattr(self, name, [])

    def makelists(self):
        """The lists of NAMES as a tuple, in their order."""
        return tuple(getattr(self, name) for name in NAMES)

    def fill(self, elements, marks, has_row):
        """Sorts elements into the lists. `marks` has `installs`, `updates` and `removes`, sets of what
        the user marked (epoch:name-version-release.arch); `has_row` tells of an element whether an
        update row stands for it."""
        for name in NAMES + OTHER_NAMES:
            getattr(self, name).clear()
        tuples = {element.envra: element.po.pkgtup for element in elements if not element.erases}
        replaces = {}
        for element in elements:
            if element.action in REPLACED:
                for key in element.replaced_by:
                    replaces.setdefault(key, []).append(element.po)
        for element in elements:
            name = _list_of(element, marks, has_row)
            if name:
                relations = [(tuples[key], "obsoletedby") for key in element.replaced_by if key in tuples]
                getattr(self, name).append(Member(element.po, relations, replaces.get(element.envra, [])))


def _list_of(element, marks, has_row):
    action, key = element.action, element.envra
    if action in (Action.DOWNGRADE, Action.REINSTALL):
        dep = "" if key in marks.updates or key in marks.installs else "dep"
        return dep + ("downgraded" if action == Action.DOWNGRADE else "reinstalled")
    if action == Action.UPGRADE:
        return "updated" if key in marks.updates or key in marks.installs else "depupdated"
    if not element.erases:
        if key in marks.updates:
            return "updated"
        if key in marks.installs:
            return "installed"
        return "depupdated" if has_row(element) and action == Action.INSTALL else "depinstalled"
    if action == Action.REMOVE:
        return "removed" if key in marks.removes else "depremoved"
    return "obsoleted" if action == Action.OBSOLETED else None
