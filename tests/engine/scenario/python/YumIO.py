"""A script whose packages and failures are those of a scenario.

A scenario is Python source in the file named by VOK_TEST_SCENARIO, run afresh for every script object
with the names of this module. It sets `updates`, `installed`, `available`, `groups`, `repos`, and
overrides methods of the script object by functions of their names whose first argument is the object.
With `rows = True` the object offers the whole collection in one call. Every call of a method is
logged with level 9."""

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


VERSION = os.environ.get("VOK_TEST_VERSION", "4.14.0")
Errors = _module("yum.Errors", YumBaseError=YumBaseError, RepoError=RepoError, LockError=LockError,
                 GroupsError=GroupsError, NoMoreMirrorsRepoError=NoMoreMirrorsRepoError)
_module("yum", __version__=VERSION, Errors=Errors)
_module("cli", __version__=VERSION)

yumIOC.log(9, "script run")


class Writer:
    def write(self, text):
        yumIOC.stderrWrite(text)

    def flush(self):
        pass


sys.stderr = Writer()


def usesSqlite():
    yumIOC.log(9, "usesSqlite")
    return 1


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
    def __init__(self, name, installed=False, mandatory=(), visible=True):
        self.name, self.installed, self.user_visible = name, installed, visible
        self.mandatory_packages = dict.fromkeys(mandatory, 1)
        self.default_packages = {"second": 1, "first": 1}
        self.optional_packages = {}
        self.conditional_packages = {"conditional": "second"}


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


class YumIO:
    def __init__(self):
        self.conf = types.SimpleNamespace(yumvar={"basearch": "x86_64"})
        self.scenario = scope = dict(globals(), updates=[], installed=[], available=[], groups=[],
                                     repos={"base": Repo()}, rows=False, io=self)
        with open(os.environ["VOK_TEST_SCENARIO"], encoding="utf-8") as file:
            exec(compile(file.read(), "scenario", "exec"), scope)
        self.repos = scope["repos"] if isinstance(scope["repos"], Repos) else Repos(scope["repos"])
        if scope["rows"]:
            self.collectRows = lambda: self._call("_collectRows", self._rows)

    def _call(self, name, default, *args):
        yumIOC.log(9, name.lstrip("_"))
        override = self.scenario.get(name.lstrip("_"))
        return override(self, *args) if override else default(*args)

    def _rows(self):
        return [(po, state, po.name, po.printVer(), po.returnSimple("repoid"), po.arch,
                 self._family(po.arch), int(po.size), po.returnSimple("summary").rstrip("\n"),
                 int(po.returnSimple("buildtime")), po.returnSimple("group") == "Suite")
                for state, part in ((0, "updates"), (2, "installed"), (1, "available"))
                for po in self.scenario[part]]

    def _family(self, arch):
        override = self.scenario.get("getBiArch")
        return override(self, arch) if override else \
            {"noarch": "x86_64", "i686": "i386", "i586": "i386"}.get(arch, arch)

    def getBiArch(self, arch):
        return self._family(arch)

    def isBetterThan(self, first, second):
        return self._call("isBetterThan", lambda *_: first.version > second.version, first, second)

    def collectUpdates(self):
        return self._call("collectUpdates", lambda: self.scenario["updates"])

    def collectAll(self):
        return self._call("collectAll", lambda: types.SimpleNamespace(
            installed=iter(self.scenario["installed"]), available=self.scenario["available"]))

    def collectGroupInfo(self):
        return self._call("collectGroupInfo", lambda: types.SimpleNamespace(
            visible_groups=self.scenario["groups"]))


def _plain(name):
    def method(self):
        return self._call(name, lambda: True)
    return method


for _name in ("lock", "unlock", "setupRepos", "setupTs", "setupTsGroup", "collectDone", "flush",
              "collectFileLists", "collectOtherData", "usesPresto", "hasMultiProgress"):
    setattr(YumIO, _name, _plain(_name))
