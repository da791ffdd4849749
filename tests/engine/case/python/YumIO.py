"""A script whose packages are fixed and whose transaction is what the running test case says.

The case is Python source in the file named by VOK_TEST_CASE, run afresh at every call of `apply`,
`setupRepos` and the clean methods, with the names of this module, `io` (the script object) and `installs`,
`updates` and `removes`. Whatever it stores in `result` is returned."""

import os
import sys
import types

import yumIOC


def module(name, **attributes):
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


errors = module("yum.Errors", YumBaseError=YumBaseError, RepoError=RepoError, LockError=LockError,
                GroupsError=GroupsError, NoMoreMirrorsRepoError=NoMoreMirrorsRepoError)
yum = module("yum", __version__="4.14.0", Errors=errors)
module("cli", __version__="4.14.0")


def usesSqlite():
    return True


class Package:
    def __init__(self, name, version, arch="x86_64", repo="base", size=0, group="Tools",
                 local=False):
        self.name, self.version, self.arch, self.repoid = name, version, arch, repo
        self.size = size
        self.group = group
        self.pkgtup = (name, arch, "0", version, "1")
        self.local = local

    def printVer(self):
        return self.version + "-1"

    def returnSimple(self, key):
        return {"repoid": self.repoid, "group": self.group, "summary": "", "buildtime": "0"}[key]

    def localPkg(self):
        return os.environ["VOKSHARE"] if self.local else "/nonexistent/%s.rpm" % self.name

    localHdr = localPkg

    def __str__(self):
        return self.name


class Member:
    """A member of a resolved transaction."""

    def __init__(self, po, by=None, **changes):
        self.po, self.repoid, self.pkgtup = po, po.repoid, po.pkgtup
        self.relatedto = [((po.pkgtup), "depends")] + ([(by.pkgtup, "obsoletedby")] if by else [])
        for name, value in changes.items():
            setattr(self, name, value)


class Group:
    user_visible = True

    def __init__(self, name, installed, mandatory=(), default=(), optional=(), conditional=()):
        self.name, self.installed = name, installed
        self.mandatory_packages = dict.fromkeys(mandatory, 1)
        self.default_packages = dict.fromkeys(default, 1)
        self.optional_packages = dict.fromkeys(optional, 1)
        self.conditional_packages = dict(conditional)


class TsInfo:
    updated = installed = removed = obsoleted = depupdated = depinstalled = depremoved = ()

    def makelists(self):
        return None


P = Package
INSTALLED = [P("alpha", "1", size=5000), P("gamma", "1", size=40000), P("old", "1", size=20000),
             P("kernel", "1", size=100000), P("kernel", "2", size=200000), P("echo", "1")]
UPDATES = [P("alpha", "2", size=20000), P("kernel", "3", size=300000), P("old", "2", size=1)]
AVAILABLE = [P("beta", "1", size=50000), P("delta", "1", "noarch", size=3413, local=True),
             P("zeta", "1"), P("eta", "1"), P("suite", "1", group="Suite")]
GROUPS = [Group("Tools", False, mandatory=["alpha", "beta"], default=["gamma"], optional=["delta"],
                conditional={"zeta": "beta", "eta": "absent"}),
          Group("More", True, mandatory=["alpha", "gamma", "beta"])]


def package(name):
    return [po for po in UPDATES + AVAILABLE + INSTALLED if po.name == name][0]


class Repos(dict):
    enabled = 1

    @property
    def repos(self):
        return {"base": self}

    def enableRepo(self, name):
        pass


class YumIO:
    def __init__(self):
        self.repos = Repos()
        self.conf = types.SimpleNamespace(yumvar={"basearch": "x86_64"})
        self.tsInfo = TsInfo()
        self.calls = []
        self.noted = []

    def lock(self):
        return True

    def setupRepos(self):
        """The case may load metadata in here."""
        if os.path.getsize(os.environ["VOK_TEST_CASE"]):
            self._run(collecting=True)

    unlock = setupTs = setupTsGroup = collectDone = flush = lock

    def collectUpdates(self):
        return UPDATES

    def collectAll(self):
        return types.SimpleNamespace(installed=INSTALLED, available=AVAILABLE)

    def collectGroupInfo(self):
        return types.SimpleNamespace(visible_groups=GROUPS)

    def isBetterThan(self, first, second):
        return first.version > second.version

    def getBiArch(self, arch):
        return "x86_64" if arch == "noarch" else arch

    def requiredPkgs(self, name):
        return [name]

    def pkgTree(self, name):
        return [name]

    def usesPresto(self):
        return False

    def hasMultiProgress(self):
        return True

    def noteGroups(self, groups):
        self.noted = [(group.name, action) for group, action in groups]

    def _run(self, **names):
        scope = dict(globals(), io=self, result=None, **names)
        with open(os.environ["VOK_TEST_CASE"], encoding="utf-8") as case:
            exec(compile(case.read(), "case", "exec"), scope)
        return scope["result"]

    def apply(self, installs, updates, removes):
        return self._run(installs=installs, updates=updates, removes=removes)

    def applyFailCleanup(self):
        yumIOC.log(0, "cleaned up")

    def cleanHeaders(self):
        return self._run(method="cleanHeaders")

    def cleanPackages(self):
        return self._run(method="cleanPackages")

    def cleanMetadata(self):
        return self._run(method="cleanMetadata")

    def cleanPickles(self):
        return self._run(method="cleanPickles")

    def cleanSqlite(self):
        return self._run(method="cleanSqlite")
