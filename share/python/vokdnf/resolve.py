# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""From the user's marks to a resolved transaction, with questions where it cannot be had as marked."""

import contextlib

import dnf.exceptions
import dnf.goal

from yum import Errors

from . import elements, errors, explain, packages, report
from .elements import Action
from .translation import tr, tr_later

# What the resolution adds to the marks without the program being told of it as of an update or install.
_ALSO = {Action.DOWNGRADE: tr_later("Also needed, as a downgrade: %s"),
         Action.REINSTALL: tr_later("Also needed, installed once more: %s"),
         None: tr_later("Also needed: %s")}


class Marks:
    """What the user marked. `wanted` and `unwanted` are DNF's objects; `installs`, `updates`, `removes`
    sets of epoch:name-version-release.arch."""

    def __init__(self, installs, updates, removes):
        new = [pair[0] for pair in updates]
        self.installs = {packages.envra(po) for po in installs}
        self.updates = {packages.envra(po) for po in new}
        self.removes = {packages.envra(po) for po in removes}
        self.wanted = list({packages.envra(po): po.pkg for po in [*installs, *new]}.values())
        self.unwanted = [po.pkg for po in removes]

    def holds(self, key):
        return key in self.installs or key in self.updates or key in self.removes


class Resolver:
    """Resolves marks on a base. `group_members` are names that are wanted for their group's sake. With
    `removals_alone` the solver knows the installed packages alone; otherwise a substitute may be installed for
    a package that is removed."""

    def __init__(self, base, marks, group_members, removals_alone):
        self._base = base
        self._marks = marks
        self._group_members = set(group_members)
        self._alone = removals_alone
        self._erased = self._erased_with_removals()
        self._twins = self._other_architectures()
        self._spared = []    # excluded packages that removals would take along
        self._problems = ()  # the solver's, of the last failure

    def resolve(self):
        """True when base.transaction holds what shall be done; False when the user was asked about a
        way out and declined. Raises YumBaseError with the reasons when there is no way out."""
        erasing = bool(self._marks.unwanted)
        try:
            self._attempt(True, erasing)
        except dnf.exceptions.DepsolveError as error:
            return self._way_out(error, erasing)
        return self._accept_losses() if erasing and not self._alone else True

    def _erased_with_removals(self):
        """The marked removals and what depends on them, by the installed packages alone."""
        erased = set(self._marks.unwanted)
        if erased and not self._alone:
            with self._base.installed_alone():
                goal = dnf.goal.Goal(self._base.sack)
                for pkg in erased:
                    goal.erase(pkg)
                if goal.run(allow_uninstall=True):
                    erased.update(goal.list_erasures())
        return erased

    def _other_architectures(self):
        """The installed packages that share a name with what the removals erase. While a package of the
        better architecture is on offer, the solver would erase them too."""
        if self._alone:
            return []
        names = {pkg.name for pkg in self._erased}.difference(pkg.name for pkg in self._marks.wanted)
        installed = self._base.sack.query().installed().filterm(name=list(names)) if names else ()
        return [pkg for pkg in installed if pkg not in self._erased]

    def _attempt(self, strict, erasing):
        self._spared = []
        while True:
            try:
                self._solve(strict, erasing, self._twins)
            except dnf.exceptions.DepsolveError:
                if not self._twins:
                    raise
                self._solve(strict, erasing, ())
            lost = {element.po.pkg for element in self._lost()} if erasing else set()
            excluded = lost.intersection(self._base.excluded) if lost else ()
            if not excluded:
                return
            self._spared += excluded

    def _solve(self, strict, erasing, kept):
        base = self._base
        with base.installed_alone() if self._alone else contextlib.nullcontext():
            base.reset(goal=True)
            for pkg in self._marks.wanted:
                base.package_install(pkg, strict=strict)
            for pkg in self._marks.unwanted:
                base.package_remove(pkg)
            for pkg in [*kept, *self._spared]:
                base._goal.install(pkg)
            base._goal.group_members.update(self._group_members)
            base._allow_erasing = erasing
            try:
                base.resolve(allow_erasing=erasing)
            except dnf.exceptions.DepsolveError:
                self._problems = base._goal.problem_rules()
                raise

    def _elements(self):
        return elements.of(self._base.transaction)

    def _lost(self):
        """The removals that nobody marked. Of packages kept in several versions the oldest makes room for the
        new one; that is not among them."""
        found = self._elements()
        coming = {(element.name, element.arch) for element in found if not element.erases}
        return [element for element in found if element.action == Action.REMOVE
                and element.envra not in self._marks.removes and (element.name, element.arch) not in coming]

    def _way_out(self, error, erasing):
        """Looks for what can be done instead, and asks about it."""
        lines = explain.explain(self._problems, self._base, self._marks) if self._problems \
            else [report.clean(error)]
        lines += explain.exclusions(self._spared, self._base)
        report.log(1, tr("The solver says:%s") % report.clean(error))
        errors.check_cancelled()
        offers = ([] if erasing else [self._offer_erasing]) + [self._offer_skipping]
        for offer in offers:
            question = offer(erasing)
            if question:
                return report.confirm([tr("The transaction cannot be done as marked:")]
                                      + ["  " + line for line in lines] + ["", *question])
        self._base.reset(goal=True)
        raise Errors.YumBaseError("\n".join([tr("The transaction cannot be done:")]
                                            + ["  " + line for line in lines]))

    def _try(self, strict, erasing):
        try:
            self._attempt(strict, erasing)
        except dnf.exceptions.Error:
            return False
        return True

    def _offer_erasing(self, _):
        if not self._try(True, True):
            return None
        lost = [element.po.pkg for element in self._lost()]
        return [tr("It can be done by removing:")] + _listed(lost) + [
            tr("Do it that way?")] if lost else None

    def _offer_skipping(self, erasing):
        if not self._marks.wanted or not self._try(False, erasing):
            return None
        there = {element.envra for element in self._elements() if not element.erases}
        left_out = [pkg for pkg in self._marks.wanted if packages.envra(pkg) not in there]
        if not left_out or not len(self._base.transaction):
            return None
        return [tr("The rest can be done without:")] + _listed(left_out) + [tr("Do the rest?")]

    def _accept_losses(self):
        """A removal may take what depends on it; what is installed, a substitute included, may not take
        anything along without a question."""
        marked = self._marks.installs | self._marks.updates
        replaced = [element for element in self._elements() if element.action == Action.OBSOLETED
                    and marked.isdisjoint(element.replaced_by)]
        lost = [element.po.pkg for element in self._lost() + replaced if element.po.pkg not in self._erased]
        if not lost:
            return True
        return report.confirm([tr("The installations and updates would also remove:")]
                              + _listed(lost) + [tr("Remove these too?")])


def _listed(pkgs):
    return ["  " + name for name in explain.names(pkgs)]


def tell_additions(found, marks, collection):
    """Tells which installs and updates the resolution added to the marks. True when there were any."""
    lines = []
    for element in found:
        if element.erases or marks.holds(element.envra):
            continue
        new, action = element.envra, element.action
        update = collection.key(element) in collection.updatable
        if action not in (Action.UPGRADE, Action.INSTALL, Action.OBSOLETE) \
                or not update and collection.is_installed(element):
            report.log(2, tr(_ALSO.get(action, _ALSO[None])) % new)
            continue
        replaced = [old.envra for old in found if old.action == Action.OBSOLETED
                    and collection.key(old) in collection.updatable and new in old.replaced_by]
        if replaced:
            lines += ["Obsoleting %s with %s for dependencies" % (old, new) for old in replaced]
        else:
            lines.append("Marking %s as %s for dependencies"
                         % (new, "an update" if update else "install"))
    for line in lines:
        report.log(4, "TSINFO: " + line)
    return bool(lines)


def replacements(base, marks):
    """Lines about what is marked, and installed, although another package on offer replaces it."""
    coming = sorted(set(marks.wanted).intersection(base.transaction.install_set))
    if not base.conf.obsoletes or not coming:
        return []
    newest = base.sack.query().available().filterm(latest_per_arch_by_priority=True).apply()
    replacing = newest.filter(obsoletes=coming)
    lines = []
    for pkg in coming:
        new = [report.clean(one) for one in replacing.filter(obsoletes=[pkg]) if one.name != pkg.name]
        if new:
            lines.append(tr("%s is installed as marked, although %s replaces it.")
                         % (report.clean(pkg), ", ".join(dict.fromkeys(new))))
    return lines
