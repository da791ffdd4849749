"""A script with fixed packages for the table and the window.

VOK_TEST_ROWS adds so many available packages. While the file named by VOK_TEST_HOLD exists, the
reading of repositories and a transaction wait in the state that it names ("metadata", "transaction")
until it goes, or until the user cancels where that is allowed; NAME.held exists meanwhile."""

import os
import sys
import time
import types

import rpm
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
module("yum", __version__="4.14.0", Errors=errors)
module("cli", __version__="4.14.0")


def usesSqlite():
    return True


class Package:
    def __init__(self, name, version, arch="x86_64", repo="base", size=0, buildtime=0, group="Tools",
                 description=""):
        self.name, self.version, self.arch, self.repoid = name, version, arch, repo
        self.size = size
        self.simple = {"repoid": repo, "group": group, "summary": name + " summary",
                       "buildtime": str(buildtime), "description": description}

    def printVer(self):
        return self.version

    def returnSimple(self, key):
        return self.simple.get(key, "")

    def returnPrco(self, kind):
        return [(self.name + "-" + kind, None, (None, None, None))]

    def localPkg(self):
        return "/nonexistent"

    localHdr = localPkg
    changelog = ()

    def returnChangelog(self):
        return self.changelog

    def __str__(self):
        return self.name


class Header(dict):
    def __missing__(self, tag):
        return []


class Installed(Package):
    def __init__(self, name, version, size=0):
        super().__init__(name, version, repo="installed", size=size)
        self.hdr = Header({rpm.RPMTAG_INSTALLTIME: 86400})


class Group:
    user_visible = True

    def __init__(self, name, installed):
        self.name, self.installed = name, installed
        self.mandatory_packages = {}
        self.default_packages = {}
        self.optional_packages = {"alpha": 1}
        self.conditional_packages = {}


P = Package
INSTALLED = [Installed("alpha", "1-1", 100), Installed("kernel", "1-1"),
             Installed("kernel", "2-1"), Installed("echo", "1-1", 3 << 30),
             Installed("modules", "1-1"), Installed("modules", "2-1")]
UPDATES = [P("alpha", "2:2-1", repo="updates", size=2000),
           P("kernel", "3-1", repo="updates", size=1 << 30)]
AVAILABLE = [P("beta", "1-1", repo="extras", size=500, buildtime=86400, description="needle in it"),
             P("pair", "1-1", size=10), P("pair", "2-1", arch="i686", size=20),
             P("Zulu", "1-1", arch="noarch", size=2 << 30),
             P("tools-suite", "1-1", group="Suite"),
             P("grüße", "1-1", repo="extras")]
AVAILABLE += [P("package-%05d-%s" % (i, "w" * (i * 7 % 23)), "1.%d-%d" % (i % 977, i % 13),
                repo=("base", "updates-testing")[i % 2], arch=("x86_64", "noarch")[i % 3 == 0],
                size=i * 7919 % 100000000, buildtime=1600000000 + i * 7919)
              for i in range(int(os.environ.get("VOK_TEST_ROWS", "0")))]
GROUPS = [Group("Workshop", True), Group("Attic", False)]


def hold(state):
    path = os.environ.get("VOK_TEST_HOLD", "")
    if not os.path.exists(path) or open(path).read() != state:
        return
    yumIOC.jobState(state, int(state != "transaction"))
    held = open(path + ".held", "w")
    try:
        while os.path.exists(path):
            if state != "transaction" and yumIOC.cancelled():
                raise RepoError("cancelled by the user")
            time.sleep(0.01)
    finally:
        held.close()
        os.remove(held.name)
    yumIOC.jobState("done", 0)


class Repos(dict):
    enabled = 1

    @property
    def repos(self):
        return {"base": self}

    def enableRepo(self, name):
        pass

    disableRepo = enableRepo


class YumIO:
    def __init__(self):
        self.repos = Repos()
        self.conf = types.SimpleNamespace(yumvar={"basearch": "x86_64"})

    def lock(self):
        return True

    unlock = setupTs = setupTsGroup = collectDone = flush = lock
    collectFileLists = collectOtherData = lock

    def setupRepos(self):
        hold("metadata")

    def collectUpdates(self):
        return UPDATES

    def collectAll(self):
        return types.SimpleNamespace(installed=INSTALLED, available=AVAILABLE)

    def collectGroupInfo(self):
        return types.SimpleNamespace(visible_groups=GROUPS)

    def isBetterThan(self, first, second):
        return first.arch == "x86_64"

    def getBiArch(self, arch):
        return "x86_64" if arch == "noarch" else arch

    def usesPresto(self):
        return False

    hasMultiProgress = usesPresto

    def apply(self, installs, updates, removes):
        hold("transaction")
        return (0, "")
