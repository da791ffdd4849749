# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Package objects.

A package object wraps one of DNF's and computes nothing before it is asked; tens of thousands exist at
once. Its texts are always fit for crossing into the program.
"""

import calendar
import datetime
import functools
import os

import dnf.exceptions
import dnf.package
import hawkey

from . import report

INSTALLED = "installed"  # what installed packages have for a repository identifier
CHANGE_LOGS, FILE_LISTS = "changelogs", "filelists"  # what available packages get later
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


def _best_known(pkg, kind):
    """The package of DNF that has data of a kind: `pkg`, or the same one where that was read apart."""
    apart = getattr(pkg.base, "apart", {}).get(kind)
    return apart.find(pkg) if apart is not None and not pkg._from_system else pkg


@functools.lru_cache(4096)
def _time_of(day):
    """Seconds since 1970 of a change. hawkey gives the day alone, that of the local time zone; rpm sets changes
    that have no time of day to noon UTC, of which each day has one."""
    noon = calendar.timegm(day.timetuple()) + 12 * 3600
    return noon + (day - datetime.date.fromtimestamp(noon)).days * 24 * 3600


def span(sack, repo_id):
    """(first, count): the packages of a repository lie one behind the other in a sack, and the hash of a
    package of DNF's is its place. (0, 0) where that does not hold."""
    query = sack.query(flags=hawkey.IGNORE_EXCLUDES).filterm(reponame=repo_id)
    count = len(query)
    first = hash(query[0]) if count else 0
    return (first, count) if count and hash(query[count - 1]) - first == count - 1 else (0, 0)


class Header:
    """An installed package's rpm header; item access by tag, texts fit for crossing. Of a package that
    another program removed it holds None alone."""

    __slots__ = ("_header",)

    def __init__(self, header):
        self._header = header

    def __getitem__(self, tag):
        value = self._header[tag] if self._header else None
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
        """A simple field: text, for "buildtime" seconds since 1970, for "installedsize" bytes. KeyError
        when the package lacks it."""
        if key == "repoid":
            return self.repoid
        if key == "buildtime":
            return int(self.pkg.buildtime)
        if key == "installedsize":
            return int(self.pkg.installsize)
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
        try:
            return Header(self.pkg.get_header())
        except dnf.exceptions.PackageNotFoundError:
            return Header(None)

    @_of_available
    def relativepath(self):
        return self.returnSimple("relativepath")

    def returnPrco(self, key):
        """[(name, flags or None, (epoch, version, release) or None)] of "provides", "requires",
        "conflicts" or "obsoletes"."""
        if key not in _RELATIONS:
            raise KeyError(key)
        return [relation(_clean(one)) for one in getattr(self.pkg, key)]

    @property
    def prco(self):
        return {key: self.returnPrco(key) for key in _RELATIONS}

    def _loadFiles(self):
        """The file lists are loaded for all packages at once, by collectFileLists."""

    def returnFileEntries(self, kind):
        """The paths of a package; repository data has them under "file" alone."""
        pkg = _best_known(self.pkg, FILE_LISTS)
        return sorted(map(_clean, pkg.files)) if kind == "file" else []

    def returnChangelog(self):
        """[(seconds since 1970, author, text)], newest first; see _time_of for the seconds. Available
        packages have them after collectOtherData, which reads them apart from everything else."""
        pkg = _best_known(self.pkg, CHANGE_LOGS)
        return [(_time_of(change["timestamp"]), _clean(change["author"]), _clean(change["text"]))
                for change in pkg.changelogs]

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


class Numbered(Package):
    """A package that keeps DNF's number instead of its object, which takes much more memory: for the tens of
    thousands that stay. `source` is (sack, base), one for all of them."""

    __slots__ = ("_source", "_number")

    def __init__(self, pkg, source):
        self._source = source
        self._number = hash(pkg)

    def __hash__(self):
        return self._number

    @property
    def pkg(self):
        sack, base = self._source
        return dnf.package.Package((sack, self._number), base)


def relation(text):
    """Splits a relation as DNF prints it. Boolean ones are names as a whole."""
    parts = text.split(" ")
    if text.startswith("(") or len(parts) != 3 or parts[1] not in _FLAGS:
        return text, None, None
    epoch, colon, rest = parts[2].partition(":")
    if not colon:
        epoch, rest = "0", parts[2]
    version, dash, release = rest.partition("-")
    return parts[0], _FLAGS[parts[1]], (epoch, version, release if dash else None)
