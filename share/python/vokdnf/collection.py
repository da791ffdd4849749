# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The collection of packages: what is installed, its updates and what else is available."""

import functools

import dnf.goal
import dnf.rpm
import dnf.selector
import hawkey

from . import packages, replacements, report
from .translation import tr

UPDATABLE, INSTALLABLE, INSTALLED = 0, 1, 2  # states of a row
_FIRST_NUMBER = 2  # of a sack's packages
_AT_ONCE = 2000


class Architectures:
    """Families of architectures, and which package is better."""

    def __init__(self, basearch):
        self._basearch = basearch
        self.family = functools.lru_cache(None)(self._family)

    def _family(self, arch):
        if arch == "noarch":
            return self._basearch
        try:
            return dnf.rpm.basearch(arch)
        except KeyError:
            return arch

    def distance(self, arch):
        """How far an architecture is from the base architecture; 0 is it."""
        if arch == self._basearch:
            return 0
        if arch == "noarch":
            return 1
        return 2 if self.family(arch) == self._basearch else 3

    def is_better(self, first, second):
        """Whether the package `first` is better than `second` (both ours)."""
        order = first.pkg.evr_cmp(second.pkg)
        if order:
            return order > 0
        one, two = self.distance(first.arch), self.distance(second.arch)
        # Of one family the greater name is the newer processor: i686 before i586.
        return one < two or one == two and first.arch > second.arch


class Collection:
    """The packages of a filled sack as rows want them: lists of DNF's objects where nothing else is said.
    `updatable` is the set of (name, family) that have an update."""

    def __init__(self, base, architectures):
        self._base = base
        self._sack = base.sack
        self._source = self._sack, base
        self._architectures = architectures
        self._replacements = []
        self._installed = self._families(self._sack.query().installed())
        self._updates = self._choose_updates()
        self.updatable = {self.key(pkg) for pkg in self._updates}

    def key(self, pkg):
        return pkg.name, self._architectures.family(pkg.arch)

    def is_installed(self, pkg):
        """Whether any version of the package, in its family of architectures, is installed."""
        return self.key(pkg) in self._installed

    def _families(self, query):
        """{key: packages}, newest version first, of one version the nearest architecture first."""
        found = {}
        key = self.key
        for pkg in query:
            found.setdefault(key(pkg), []).append(pkg)
        order = functools.cmp_to_key(self._order)
        for versions in found.values():
            if len(versions) > 1:
                versions.sort(key=order)
        return found

    def _order(self, one, two):
        """Negative when `one` comes first: the newer version, or the nearer architecture."""
        distance = self._architectures.distance
        return two.evr_cmp(one) or distance(one.arch) - distance(two.arch)

    def _choose_updates(self):
        """What DNF's own upgrade would take, were all dependencies met: of the versions that are not older
        than the installed one, first those that the vendor rules allow, of these those of the repository
        with the best priority, of these the newest."""
        query = self._sack.query().available().upgrades().apply()
        newer = set(query)
        one_vendor = not self._base.conf.allow_vendor_change
        by_priority = len({repo.priority for repo in self._base.repos.iter_enabled()}) > 1
        if one_vendor or by_priority:
            # The installed version in a better repository keeps newer ones of others away.
            query = self._sack.query().available().filterm(name=list({pkg.name for pkg in newer}))
        found = {key: versions for key, versions in self._families(query).items()
                 if key in self._installed}
        if one_vendor:
            self._leave_vendor(found)
        updates = []
        for key, versions in found.items():
            if by_priority:
                now = self._installed[key][0]
                versions = [pkg for pkg in versions if not pkg.evr_lt(now)]
                best = min((pkg.repo.priority for pkg in versions), default=None)
                versions = [pkg for pkg in versions if pkg.repo.priority == best]
            updates += [pkg for pkg in versions[:1] if pkg in newer]
        return updates

    def _leave_vendor(self, found):
        """Takes the packages away whose vendor may not take the place of the installed one's."""
        others = [pkg for key, versions in found.items() for pkg in versions
                  if _vendor(pkg) != _vendor(self._installed[key][0])]
        goal, selector = dnf.goal.Goal(self._sack), dnf.selector.Selector(self._sack)
        selector.set(pkg=others)
        goal.upgrade(select=selector)
        # Policies may let vendors take each other's place: the solver knows.
        allowed = {*goal.list_upgrades(), *goal.list_installs()} if others and goal.run() else set()
        forbidden = set(others) - allowed
        for key, versions in found.items():
            found[key] = [pkg for pkg in versions if pkg not in forbidden]

    def updates(self):
        """The update for every name and family that is installed and has one. A package that only replaces
        another name is no update, nor is one for a family that is not installed."""
        return self._updates

    def installed(self):
        return [pkg for packages in self._installed.values() for pkg in packages]

    def available(self):
        """The newest version of everything that is not installed at all, as package objects."""
        found = {}
        for pkg in self._each(self._sack.query().available().filterm(latest_per_arch_by_priority=True)):
            key = self.key(pkg)
            if key not in self._installed and (key not in found or self._order(pkg, found[key].pkg) < 0):
                found[key] = self.package(pkg)
        return list(found.values())

    def package(self, pkg):
        """The package object for one of DNF's."""
        return packages.Numbered(pkg, self._source)

    def _each(self, query):
        """Yields the packages of a query in its order, never more than some at once: what DNF's objects of
        all packages take is lost to the rest of the program."""
        query.apply()
        seen = None
        for first in range(_FIRST_NUMBER, _FIRST_NUMBER + len(self._sack), _AT_ONCE):
            numbers = range(first, min(first + _AT_ONCE, _FIRST_NUMBER + len(self._sack)))
            part = query.filter(pkg=[hawkey.Package((self._sack, number)) for number in numbers])
            yield from part
            seen = part if seen is None else seen.union(part)
        yield from query if seen is None else query.difference(seen)  # numbers may have gaps

    def report_replacements(self):
        """Log lines about available packages that replace installed ones of other names."""
        self._replacements = replacements.candidates(self, self._sack)
        for pkg, old in self._replacements:
            report.log(2, tr("%s replaces the installed %s") % (pkg, ", ".join(map(str, old))))

    def replacements(self):
        """[(name, family, package, the installed ones that it replaces)] of those that DNF's upgrade would take."""
        old = dict(self._replacements)
        return [(*self.key(pkg), pkg, old[pkg]) for pkg in replacements.taken(self._base, list(old))]


def _vendor(pkg):
    return packages.Package(pkg).returnSimple("vendor")


def row(po, state, family):
    """One row of collectRows; a package's fields in the order of YumIO.collectRows."""
    pkg = po.pkg
    try:
        summary, group = pkg.summary, pkg.group
    except UnicodeDecodeError:
        summary, group = po.returnSimple("summary"), po.returnSimple("group")
    arch = pkg.arch
    return (po, state, report.clean(pkg.name),
            packages.evr_text(pkg.epoch, report.clean(pkg.version), report.clean(pkg.release)),
            packages.INSTALLED if state == INSTALLED else pkg.reponame, arch, family(arch), pkg.size,
            report.clean(summary) if summary else "", pkg.buildtime,
            (group or "").rstrip("\n") == "Suite")
