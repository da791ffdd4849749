# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Available packages that DNF's own upgrade of everything would install in the place of installed ones of
other names."""

import contextlib

import dnf.exceptions
import dnf.goal

from . import relations


def candidates(collection, sack):
    """[(package, the installed ones that it replaces)] of the newest packages that obsolete something."""
    query = sack.query().available().filterm(obsoletes=sack.query().installed())
    found = ((pkg, relations.replaced(sack, pkg)) for pkg in query.filterm(latest_per_arch_by_priority=True)
             if not collection.is_installed(pkg))
    return [(pkg, old) for pkg, old in found if old]


def taken(base, packages):
    """Those of a list of packages that an upgrade would install. The solver is asked, so packages should be few
    or none at all. What is marked on the base is lost."""
    if not packages:
        return []
    base.reset(goal=True)
    goal = base._goal
    with _excludes_of_installed(base):
        try:
            base.upgrade_all()
            if not base.conf.upgrade_group_objects_upgrade:
                base._build_comps_solver()._exclude_packages_from_installed_groups(base)
            goal.add_protected(base.sack.query().filterm(name=base.conf.protected_packages))
            base._set_excludes_from_weak_to_goal()
            installs = set(goal.list_installs()) if base._run_hawkey_goal(goal, False) else ()
        except dnf.exceptions.Error:
            installs = ()
        finally:
            base.reset(goal=True)
    return [pkg for pkg in packages if pkg in installs]


@contextlib.contextmanager
def _excludes_of_installed(base):
    """DNF's upgrade leaves alone what is excluded, be it installed."""
    if not base.excluded:
        yield
        return
    base.sack.add_excludes(base.excluded)
    try:
        yield
    finally:
        base.sack.remove_excludes(base.excluded)
