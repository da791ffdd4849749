# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""A script whose packages, groups, repositories and failures are those of a scenario.

A scenario is Python source in the file named by VOK_TEST_SCENARIO, run afresh for every script object
with the names of this module and `io`, the object. It sets `updates`, `installed`, `available`,
`groups`, `repos`, and overrides methods of the script object by functions of their names whose first
argument is the object; the optional ones are there only so. With `rows = True` the object offers the
whole collection in one call. Every call of a method is logged with level 9."""

import bdb  # noqa: F401
import os
import sys
import types

import rpm

import yumIOC


def _module(name, **attributes):
    made = types.ModuleType(name)
    vars(made).update(attributes)
    sys.modules[name] = made
    return made


class YumBaseError(Exception):
    def __init__(self, value=None):
        super().__init__(value)
        self.value = value


class RepoError(YumBaseError):
    pass


class LockError(YumBaseError):
    pass


class GroupsError(YumBaseError):
    pass


class NoMoreMirrorsRepoError(RepoError):
    pass


Errors = _module("yum.Errors", YumBaseError=YumBaseError, RepoError=RepoError, LockError=LockError,
                 GroupsError=GroupsError, NoMoreMirrorsRepoError=NoMoreMirrorsRepoError)
_module("yum", __version__="4.14.0", Errors=Errors)
_module("cli", __version__="4.14.0")

yumIOC.log(9, "script run")
sys.stderr = types.SimpleNamespace(write=yumIOC.stderrWrite, flush=lambda: None)


def usesSqlite():
    yumIOC.log(9, "usesSqlite")
    return True


class Header(dict):
    """An rpm header; made with the names of its tags."""

    def __init__(self, **tags):
        super().__init__((getattr(rpm, "RPMTAG_" + name), value) for name, value in tags.items())

    def __missing__(self, tag):
        return [] if tag != rpm.RPMTAG_INSTALLTIME else None


class Package:
    """`fields` are the simple ones; the others that are given become attributes."""

    def __init__(self, name, version="1-1", arch="x86_64", repo="base", size=0, fields=(), **others):
        self.name, self.version, self.arch, self.repoid, self.size = name, version, arch, repo, size
        self.fields = dict({"repoid": repo, "group": "Tools", "summary": "", "buildtime": 0}, **dict(fields))
        vars(self).update(others)

    def printVer(self):
        return self.version

    def returnSimple(self, key):
        return self.fields[key]

    def __str__(self):
        return self.name


class Group:
    def __init__(self, name, installed=False, mandatory=(), default=(), optional=(), conditional=(),
                 visible=True):
        self.name, self.installed, self.user_visible = name, installed, visible
        self.mandatory_packages = dict.fromkeys(mandatory, 1)
        self.default_packages = dict.fromkeys(default, 1)
        self.optional_packages = dict.fromkeys(optional, 1)
        self.conditional_packages = dict(conditional)


class Repo:
    def __init__(self, enabled=1):
        self.enabled = enabled


class Repos:
    def __init__(self, repos):
        self.repos = repos

    def enableRepo(self, name):
        self.repos[name].enabled = 1

    def disableRepo(self, name):
        self.repos[name].enabled = 0


def run(variable, names):
    """Runs the source in the file that an environment variable names; its scope."""
    with open(os.environ[variable], encoding="utf-8") as file:
        exec(compile(file.read(), variable, "exec"), names)
    return names


def _rows(io):
    for parts in ((0, "updates"),), ((2, "installed"), (1, "available")):
        yield sum(len(io.scenario[part]) for _, part in parts)
        for state, part in parts:
            for po in io.scenario[part]:
                yield (po, state, po.name, po.printVer(), po.returnSimple("repoid"), po.arch,
                       io.getBiArch(po.arch), int(po.size), po.returnSimple("summary"),
                       int(po.returnSimple("buildtime")), po.returnSimple("group").rstrip("\n") == "Suite")


DEFAULTS = dict(
    dict.fromkeys(("lock", "unlock", "setupRepos", "setupTs", "setupTsGroup", "collectDone", "flush",
                   "collectFileLists", "collectOtherData", "usesPresto", "hasMultiProgress"),
                  lambda io: True),
    collectUpdates=lambda io: io.scenario["updates"],
    collectAll=lambda io: types.SimpleNamespace(installed=iter(io.scenario["installed"]),
                                                available=io.scenario["available"]),
    collectGroupInfo=lambda io: types.SimpleNamespace(visible_groups=io.scenario["groups"]),
    isBetterThan=lambda io, first, second: first.version > second.version,
    requiredPkgs=lambda io, name: [name],
    pkgTree=lambda io, name: [name])
OPTIONAL = ("collectRows", "noteGroups", "outdated", "apply", "applyFailCleanup", "cleanHeaders", "cleanPackages",
            "cleanMetadata", "cleanPickles", "cleanSqlite", "testRepo", "repoOptions", "expanded",
            "sources", "installedChanged", "replacements")


class YumIO:
    def __init__(self):
        self.conf = types.SimpleNamespace(yumvar={"basearch": "x86_64"})
        self.scenario = scope = run("VOK_TEST_SCENARIO", dict(
            globals(), updates=[], installed=[], available=[], groups=[], repos={"base": Repo()},
            rows=False, io=self))
        self.repos = scope["repos"] if isinstance(scope["repos"], Repos) else Repos(scope["repos"])
        if scope["rows"]:
            scope.setdefault("collectRows", _rows)
        for name in tuple(DEFAULTS) + OPTIONAL:
            function = scope.get(name, DEFAULTS.get(name))
            if function:
                setattr(self, name, self._logged(name, function))

    def _logged(self, name, function):
        def method(*arguments):
            yumIOC.log(9, name)
            return function(self, *arguments)
        return method

    def getBiArch(self, arch):
        override = self.scenario.get("getBiArch")
        return override(self, arch) if override else \
            {"noarch": "x86_64", "i686": "i386", "i586": "i386"}.get(arch, arch)
