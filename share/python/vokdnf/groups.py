# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Groups of packages, from the repositories' group data and DNF's own records of what is installed."""

import dnf.comps
import dnf.goal
import dnf.selector
import libcomps
import libdnf.error

from yum import Errors

from . import errors, report
from .translation import tr

NO_GROUPS = "No Groups Available"
UPDATE, INSTALL, REMOVE = 0, 1, 2  # actions
# The kinds of members that an installed group is recorded with, as DNF's own default.
_RECORDED = dnf.comps.MANDATORY | dnf.comps.DEFAULT | dnf.comps.CONDITIONAL


class Group:
    """A group. The four package collections are dictionaries from package name to the name that the
    member depends on (conditional members) or None. `installed` follows DNF's records, without one it
    says whether all mandatory members are there (a group without any is then not installed)."""

    __slots__ = ("group_id", "name", "description", "user_visible", "installed", "mandatory_packages",
                 "default_packages", "optional_packages", "conditional_packages")

    def __init__(self, group, recorded, installed_names):
        self.group_id = group.id
        self.name = report.clean(group.ui_name or group.name or group.id)
        self.description = report.clean(group.ui_description or "")
        self.user_visible = bool(group.visible)
        kinds = {kind: {} for kind in (libcomps.PACKAGE_TYPE_MANDATORY, libcomps.PACKAGE_TYPE_DEFAULT,
                                       libcomps.PACKAGE_TYPE_OPTIONAL,
                                       libcomps.PACKAGE_TYPE_CONDITIONAL)}
        for member in group.packages:
            if member.type in kinds and member.name:
                needs = member.requires if member.type == libcomps.PACKAGE_TYPE_CONDITIONAL else None
                kinds[member.type][report.clean(member.name)] = report.clean(needs) if needs else None
        self.mandatory_packages = kinds[libcomps.PACKAGE_TYPE_MANDATORY]
        self.default_packages = kinds[libcomps.PACKAGE_TYPE_DEFAULT]
        self.optional_packages = kinds[libcomps.PACKAGE_TYPE_OPTIONAL]
        self.conditional_packages = kinds[libcomps.PACKAGE_TYPE_CONDITIONAL]
        self.installed = recorded or bool(self.mandatory_packages) \
            and installed_names.issuperset(self.mandatory_packages)

    def __str__(self):
        return self.name

    def members(self):
        """The names of all members."""
        return {*self.mandatory_packages, *self.default_packages, *self.optional_packages,
                *self.conditional_packages}


class GroupInfo:
    """The result of collectGroupInfo: `visible_groups`, all groups (each says by `user_visible` whether
    it wants to be shown)."""

    def __init__(self, session):
        names = {pkg.name for pkg in session.sack.query().installed()}
        recorded = _recorded_groups(session.base)
        found = [Group(group, group.id in recorded, names) for group in session.base.comps.groups]
        without = nameless(found)
        self.visible_groups = [group for group in found if group not in without]


def nameless(found):
    """Those of some groups that lack an identifier, by which DNF's records know a group."""
    return [group for group in found if not group.group_id]


def _recorded_groups(base):
    """The identifiers of the groups that DNF's records call installed; none when there are no records
    and this file system takes no new ones."""
    try:
        history = base.history.group
        return {group.id for group in base.comps.groups if group.id and history.get(group.id) is not None}
    except libdnf.error.Error as error:
        report.errorlog(2, tr("DNF's group records cannot be read: %s") % report.clean(error))
        return set()


def setup(session):
    """Reads the group data. GroupsError with exactly NO_GROUPS when there is none."""
    with errors.translated():
        session.base.read_comps(arch_filter=True)
    if not session.base.comps.groups:
        raise Errors.GroupsError(NO_GROUPS)


def member_names(session, name):
    """The packages that marking the group member `name` stands for: itself when any package is called
    so, or what DNF would install in its place when others replace it, nothing when one of these is
    installed. What it requires is left to the resolution of the transaction: a required package marked
    here would count as wanted for itself, would be updated with the group and removed with it."""
    query = session.sack.query().filterm(name=name).apply()
    if not query or query.installed() or not session.conf.obsoletes:
        return [name] if query else []
    replacing = session.sack.query().filterm(obsoletes=query).apply()
    if not replacing:
        return [name]
    beside = _members_beside(session.base, name).intersection(pkg.name for pkg in replacing)
    if beside:  # whatever repository is preferred, not both can be had
        return sorted(beside)
    query = query.union(replacing)
    goal, selector = dnf.goal.Goal(session.sack), dnf.selector.Selector(session.sack)
    selector.set(pkg=query)
    goal.install(select=selector)
    if not goal.run():
        return [name]  # resolving the transaction tells why
    chosen = set(query)
    return sorted({pkg.name for pkg in goal.list_installs() if pkg in chosen})


def _members_beside(base, name):
    """The names that stand in a group together with `name`."""
    found = set()
    for group in base.comps.groups:
        names = {member.name for member in group.packages}
        if name in names:
            found |= names - {name}
    return found


def record(base, noted):
    """Enters marked groups, a list of (group object, action), into DNF's group records of the
    transaction that base holds. Call it when that is resolved and before it runs."""
    history = base.history.group
    for group, action in noted:
        known = history.get(group.group_id)
        if action == REMOVE:
            if known:
                history.remove(known)
            continue
        comps_group = base.comps._group_by_id(group.group_id)
        if comps_group is None:
            continue
        types = known.getPackageTypes() if known else _RECORDED
        entry = history.new(group.group_id, comps_group.name or group.group_id,
                            comps_group.ui_name or "", types)
        for member in comps_group.packages_iter():
            entry.addPackage(member.name, False, member.option_type)
        if action == UPDATE and known:
            history.upgrade(entry)
        else:
            history.install(entry)
