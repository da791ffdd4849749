"""Package objects and the collection of packages.

A package object wraps one of DNF's and computes nothing before it is asked; tens of thousands exist at
once. Its texts are always fit for crossing into the program.
"""

import calendar
import functools
import os

import dnf.rpm

from . import report

INSTALLED = "installed"  # what installed packages have for a repository identifier
UPDATABLE, INSTALLABLE, IS_INSTALLED = 0, 1, 2  # states of a row
_RELATIONS = ("provides", "requires", "conflicts", "obsoletes")
_FLAGS = {"=": "EQ", "<": "LT", ">": "GT", "<=": "LE", ">=": "GE"}
_clean = report.clean


def evr_text(epoch, version, release):
    return "%s-%s" % (version, release) if epoch in (0, "0", "") else \
        "%s:%s-%s" % (epoch, version, release)


def envra(pkg):
    """A package as epoch:name-version-release.arch, of DNF's or ours."""
    name, arch, epoch, version, release = pkg.pkgtup
    return _clean("%s:%s-%s-%s.%s" % (epoch, name, version, release, arch))


class Header:
    """An installed package's rpm header; item access by tag, texts fit for crossing."""

    __slots__ = ("_header",)

    def __init__(self, header):
        self._header = header

    def __getitem__(self, tag):
        value = self._header[tag]
        if isinstance(value, (list, tuple)):
            return [_clean(item) if isinstance(item, (str, bytes)) else item for item in value]
        return _clean(value) if isinstance(value, (str, bytes)) else value


def _of_available(function):
    """A property that installed packages do not have."""
    @functools.wraps(function)
    def getter(self):
        if self.pkg._from_system:
            raise AttributeError(function.__name__)
        return function(self)
    return property(getter)


class Package:
    """One package. `pkg` is DNF's object. Two objects are equal when they are the same package of the
    same repository."""

    __slots__ = ("pkg",)

    def __init__(self, pkg):
        self.pkg = pkg

    def __eq__(self, other):
        return isinstance(other, Package) and self.pkg == other.pkg \
            and self.pkg.reponame == other.pkg.reponame

    def __hash__(self):
        return hash(self.pkg)

    def __str__(self):
        return envra(self)

    @property
    def name(self):
        return _clean(self.pkg.name)

    @property
    def arch(self):
        return _clean(self.pkg.arch)

    @property
    def pkgtup(self):
        """(name, arch, epoch, version, release), all texts."""
        return tuple(map(_clean, self.pkg.pkgtup))

    @property
    def repoid(self):
        return INSTALLED if self.pkg._from_system else _clean(self.pkg.reponame)

    @property
    def size(self):
        """Bytes: of the package file, for an installed package of its files."""
        return int(self.pkg.size)

    def printVer(self):
        """[epoch:]version-release, the epoch only when it is not 0."""
        return evr_text(self.pkg.epoch, _clean(self.pkg.version), _clean(self.pkg.release))

    def returnSimple(self, key):
        """A simple field: text, for "buildtime" seconds since 1970. KeyError when the package lacks
        it."""
        if key == "repoid":
            return self.repoid
        if key == "buildtime":
            return int(self.pkg.buildtime)
        if key == "buildhost":
            if not self.pkg._from_system:
                raise KeyError(key)
            return self.hdr["buildhost"] or ""
        if key == "relativepath":
            if self.pkg._from_system:
                raise KeyError(key)
            return _clean(self.pkg.location or "")
        if key in ("summary", "description", "group", "vendor", "sourcerpm", "license", "packager",
                   "url"):
            return self._text(key)
        raise KeyError(key)

    def _text(self, key):
        try:
            value = getattr(self.pkg, key)
        except UnicodeDecodeError:  # the database holds bytes that are no UTF-8
            value = self.hdr[key] if self.pkg._from_system else ""
        return _clean(value) if value else ""

    @property
    def hdr(self):
        """The rpm header; only installed packages have it."""
        if not self.pkg._from_system:
            raise AttributeError("hdr")
        return Header(self.pkg.get_header())

    @_of_available
    def relativepath(self):
        return self.returnSimple("relativepath")

    def returnPrco(self, key):
        """[(name, flags or None, (epoch, version, release) or None)] of "provides", "requires",
        "conflicts" or "obsoletes"."""
        if key not in _RELATIONS:
            raise KeyError(key)
        return [_relation(_clean(one)) for one in getattr(self.pkg, key)]

    @property
    def prco(self):
        return {key: self.returnPrco(key) for key in _RELATIONS}

    def _loadFiles(self):
        """The file lists are loaded for all packages at once, by collectFileLists."""

    def returnFileEntries(self, kind):
        """The paths of a package; repository data has them under "file" alone."""
        return sorted(map(_clean, self.pkg.files)) if kind == "file" else []

    def returnChangelog(self):
        """[(seconds since 1970, author, text)], newest first. Available packages have them after
        collectOtherData, which reads them apart from everything else."""
        pkg = self.pkg
        other = getattr(pkg.base, "other", None)
        if other is not None and not pkg._from_system:
            same = other.sack.query().filterm(nevra_strict=str(pkg), reponame=pkg.reponame)
            pkg = same[0] if same else pkg
        return [(calendar.timegm(change["timestamp"].timetuple()) + 12 * 3600,
                 _clean(change["author"]), _clean(change["text"])) for change in pkg.changelogs]

    @property
    def changelog(self):
        return self.returnChangelog()

    def localPkg(self):
        """The path of the package file, existing or not; "" for an installed package."""
        return "" if self.pkg._from_system else _clean(self.pkg.localPkg())

    def localHdr(self):
        """An existing path. No header files are fetched; the dependencies come from the metadata."""
        if self.pkg._from_system:
            return _clean(self.pkg.base.conf.persistdir)
        path = self.pkg.localPkg()
        return _clean(path if os.path.exists(path) else self.pkg.repo.get_metadata_path("primary"))


def _relation(text):
    """Splits a relation as DNF prints it. Boolean ones are names as a whole."""
    parts = text.split(" ")
    if text.startswith("(") or len(parts) != 3 or parts[1] not in _FLAGS:
        return text, None, None
    epoch, colon, rest = parts[2].partition(":")
    if not colon:
        epoch, rest = "0", parts[2]
    version, dash, release = rest.partition("-")
    return parts[0], _FLAGS[parts[1]], (epoch, version, release if dash else None)


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
    """The packages of a filled sack as rows want them: lists of DNF's objects. `updatable` is the set of
    (name, family) that have an update."""

    def __init__(self, sack, architectures):
        self._sack = sack
        self._architectures = architectures
        self._installed = self._families(sack.query().installed())
        self._updates = self._newest(sack.query().available().upgrades(), self._installed)
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
        distance = self._architectures.distance
        order = functools.cmp_to_key(lambda one, two: two.evr_cmp(one)
                                     or distance(one.arch) - distance(two.arch))
        for packages in found.values():
            if len(packages) > 1:
                packages.sort(key=order)
        return found

    def _newest(self, query, keys):
        query.filterm(latest_per_arch_by_priority=True)
        return [packages[0] for key, packages in self._families(query).items() if key in keys]

    def updates(self):
        """The newest update for every name and family that is installed. A package that only replaces
        another name is no update, nor is one for a family that is not installed."""
        return self._updates

    def installed(self):
        return [pkg for packages in self._installed.values() for pkg in packages]

    def available(self):
        """The newest version of everything that is not installed at all."""
        query = self._sack.query().available().filterm(latest_per_arch_by_priority=True)
        return [packages[0] for key, packages in self._families(query).items()
                if key not in self._installed]

    def report_replacements(self):
        """Log lines about available packages that replace installed ones of other names."""
        installed = self._sack.query().installed()
        query = self._sack.query().available().filterm(obsoletes=installed)
        for pkg in query.filterm(latest_per_arch_by_priority=True):
            if self.is_installed(pkg):
                continue
            names = [str(relation).split(" ")[0] for relation in pkg.obsoletes]
            itself = self._sack.query().filterm(pkg=[pkg])
            old = [str(one) for one in installed.filter(name=names)
                   if one.name != pkg.name and itself.filter(obsoletes=[one])]
            if old:
                report.log(2, "%s replaces the installed %s" % (pkg, ", ".join(old)))


def row(po, state, family):
    """One row of collectRows; a package's fields in the order of YumIO.collectRows."""
    pkg = po.pkg
    try:
        summary, group = pkg.summary, pkg.group
    except UnicodeDecodeError:
        summary, group = po.returnSimple("summary"), po.returnSimple("group")
    arch = pkg.arch
    return (po, state, _clean(pkg.name),
            evr_text(pkg.epoch, _clean(pkg.version), _clean(pkg.release)),
            INSTALLED if state == IS_INSTALLED else pkg.reponame, arch, family(arch), pkg.size,
            _clean(summary) if summary else "", pkg.buildtime, group == "Suite")
