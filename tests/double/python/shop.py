# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Packages and groups for transactions that the test cases write.

Loading the metadata, `apply` and the clean methods run the Python source in the file named by
VOK_TEST_STEP with the names of this scenario and `installs`, `updates` and `removes`; what it stores
in `result` is returned."""


class P(Package):
    def __init__(self, name, version, arch="x86_64", size=0, local=False, group="Tools"):
        super().__init__(name, version, arch, size=size, fields={"group": group})
        self.pkgtup = (name, arch, "0", version, "1")
        self.local = local

    def printVer(self):
        return self.version + "-1"

    def localPkg(self):
        return os.environ["VOKSHARE"] if self.local else "/nonexistent/%s.rpm" % self.name

    localHdr = localPkg


class Member:
    """A member of a resolved transaction."""

    def __init__(self, po, by=None):
        self.po, self.repoid, self.pkgtup = po, po.repoid, po.pkgtup
        self.relatedto = [(po.pkgtup, "depends")] + ([(by.pkgtup, "obsoletedby")] if by else [])


class TsInfo:
    updated = installed = removed = obsoleted = depupdated = depinstalled = depremoved = ()

    def makelists(self):
        return None


installed = [P("alpha", "1", size=5000), P("gamma", "1", size=40000), P("old", "1", size=20000),
             P("kernel", "1", size=100000), P("kernel", "2", size=200000), P("echo", "1")]
updates = [P("alpha", "2", size=20000), P("kernel", "3", size=300000), P("old", "2", size=1)]
available = [P("beta", "1", size=50000), P("delta", "1", "noarch", size=3413, local=True),
             P("zeta", "1"), P("eta", "1"), P("suite", "1", group="Suite")]
groups = [Group("Tools", False, mandatory=["alpha", "beta"], default=["gamma"], optional=["delta"],
                conditional={"zeta": "beta", "eta": "absent"}),
          Group("More", True, mandatory=["alpha", "gamma", "beta"])]
PACKAGES = updates + available + installed
INSTALLED, GROUPS = installed, groups
io.tsInfo = TsInfo()
io.noted = []
io.changes = [], [], []  # what another program did


def package(name):
    return [po for po in PACKAGES if po.name == name][0]


def probe():
    yumIOC.keyQuestion("probe", "", "", "")


def step(io, **names):
    return run("VOK_TEST_STEP", dict(io.scenario, result=None, **names))["result"]


def apply(io, installs, updates, removes):
    return step(io, installs=installs, updates=updates, removes=removes)


def outdated(io):
    return io.changes


def pkgTree(io, name):
    """The name, or what the step's first line says behind "# pkgTree"."""
    with open(os.environ["VOK_TEST_STEP"], encoding="utf-8") as file:
        line = file.readline()
    return eval(line[9:]) if line.startswith("# pkgTree") else [name]


def noteGroups(io, groups):
    io.noted = [(group.name, action) for group, action in groups]


def applyFailCleanup(io):
    yumIOC.log(0, "cleaned up")


def usesPresto(io):
    return False


setupRepos = step
cleanHeaders = lambda io: step(io, method="cleanHeaders")  # noqa: E731
cleanPackages = lambda io: step(io, method="cleanPackages")  # noqa: E731
cleanMetadata = lambda io: step(io, method="cleanMetadata")  # noqa: E731
cleanSqlite = lambda io: step(io, method="cleanSqlite")  # noqa: E731
