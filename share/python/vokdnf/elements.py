# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The elements of a transaction: plain values that the library's own items are turned into once. What
lists, reports and remembers a transaction knows nothing else of it."""

import enum

from . import packages, report


class Action(enum.IntEnum):
    """What is done with a package. The marker of a transaction keeps the numbers on the disk."""

    INSTALL = 1
    DOWNGRADE = 2
    DOWNGRADED = 3
    OBSOLETE = 4  # an installation that replaces a package of another name
    OBSOLETED = 5
    UPGRADE = 6
    UPGRADED = 7
    REMOVE = 8
    REINSTALL = 9
    REINSTALLED = 10


# The erased side of an installation, which has no line of its own.
REPLACED = (Action.UPGRADED, Action.DOWNGRADED, Action.REINSTALLED)
ERASING = (Action.REMOVE, Action.OBSOLETED) + REPLACED


class Element:
    """One package that comes or goes. `envra` is epoch:name-version-release.arch, `replaced_by` the same
    of the packages that push this one out, `po` the package object."""

    __slots__ = ("action", "envra", "name", "arch", "replaced_by", "po")

    def __init__(self, action, po, replaced_by=()):
        self.action = action
        self.envra = packages.envra(po)
        self.name = po.name
        self.arch = po.arch
        self.replaced_by = tuple(replaced_by)
        self.po = po

    @property
    def erases(self):
        return self.action in ERASING


def of(transaction):
    """The elements of a resolved transaction of DNF. A removal also changes the reasons of what it leaves
    without a need, which touches no package; a reinstallation is listed twice."""
    return [Element(Action(item.action), packages.Package(item.pkg),
                    [_envra(by.getRPMItem()) for by in item._item.getReplacedBy()])
            for item in transaction if item.action in Action._value2member_map_]


def _envra(item):
    """The same name of an item of DNF's history."""
    return report.clean("%s:%s-%s-%s.%s" % (item.getEpoch(), item.getName(), item.getVersion(),
                                            item.getRelease(), item.getArch()))


def making_room(elements, family):
    """The envras of removals that are part of an update: of a package that is kept in several versions
    the oldest goes when a new one comes. `family` gives the family of an architecture."""
    coming = {(element.name, family(element.arch)) for element in elements if not element.erases}
    return {element.envra for element in elements if element.action == Action.REMOVE
            and (element.name, family(element.arch)) in coming}
