# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Packages for the table and the window.

While the file named by VOK_TEST_HOLD exists, the reading of repositories, of file lists or of change logs,
a look at a description and a transaction wait in the state that it names ("metadata", "files", "otherdata",
"search", "transaction") until it goes, or until the user cancels where that is allowed; NAME.held exists
meanwhile. Where the file says "otherdata fails", that fails when it goes."""

import os
import time


class P(Package):
    changelog = ()
    files = ()

    def __init__(self, name, version, arch="x86_64", repo="base", size=0, group="Tools", **fields):
        super().__init__(name, version, arch, repo, size,
                         dict(fields, group=group, summary=name + " summary"))

    def returnSimple(self, key):
        if key == "description":
            hold("search")
        return self.fields.get(key, "")

    def returnPrco(self, kind):
        return [(self.name + "-" + kind, None, (None, None, None))]

    def returnFileEntries(self, kind):
        return list(self.files)

    def localPkg(self):
        return "/nonexistent"

    localHdr = localPkg

    def returnChangelog(self):
        return self.changelog


def Installed(name, version, size=0):
    po = P(name, version, repo="installed", size=size)
    po.hdr = Header(INSTALLTIME=86400)
    return po


installed = [Installed("alpha", "1-1", 100), Installed("kernel", "1-1"), Installed("kernel", "2-1"),
             Installed("echo", "1-1", 3 << 30), Installed("modules", "1-1"), Installed("modules", "2-1")]
updates = [P("alpha", "2:2-1", repo="updates", size=2000),
           P("kernel", "3-1", repo="updates", size=1 << 30)]
available = [P("beta", "1-1", repo="extras", size=500, buildtime=86400, description="needle in it", url="https://u:secret@h/"),
             P("pair", "1-1", size=10), P("pair", "2-1", arch="i686", size=20),
             P("Zulu", "1-1", arch="noarch", size=2 << 30), P("tools-suite", "1-1", group="Suite"),
             P("grüße", "1-1", repo="extras")]
available[0].files = ["/bin/b"]
groups = [Group("Workshop", True, optional=["alpha"]), Group("Attic", False, optional=["alpha"])]


def replacements(io):
    return [("beta", "x86_64", "beta-1-1.x86_64", "bravo-1-1.x86_64"), ("nowhere", "x86_64", "nowhere-1-1.x86_64", "")]


def sources(io):
    return "/var/lib/rpm", [("/etc/yum.conf", ""), ("/etc/yum.repos.d", "*.repo")]


def installedChanged(io):
    with open(os.environ["VOKROOT"] + "/var/lib/rpm/db") as database:
        return database.read() == "other"


def isBetterThan(io, first, second):
    return first.arch == "x86_64"


def hold(state):
    path = os.environ.get("VOK_TEST_HOLD", "")
    if not os.path.exists(path) or open(path).read().split()[0] != state:
        return
    fails = open(path).read() != state
    yumIOC.jobState(state, int(state != "transaction"))
    held = open(path + ".held", "w")
    try:
        while os.path.exists(path):
            if state != "transaction" and yumIOC.cancelled():
                if state == "search":
                    return
                raise RepoError("cancelled by the user")
            time.sleep(0.01)
    finally:
        held.close()
        os.remove(held.name)
    if fails:
        raise NoMoreMirrorsRepoError("no mirror")
    yumIOC.jobState("done", 0)


def setupRepos(io):
    hold("metadata")


def collectFileLists(io):
    hold("files")
    return True


def collectOtherData(io):
    hold("otherdata")
    return True


def apply(io, installs, updates, removes):
    hold("transaction")
    return (0, "")


def usesPresto(io):
    return False


hasMultiProgress = usesPresto
