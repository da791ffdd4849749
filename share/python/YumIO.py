# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The script that VOK runs in its interpreter: the class YumIO over DNF.

The program calls its methods; the script calls the program through the module yumIOC. Each method is
thin; the work is in the package vokdnf. Errors are those of yum.Errors, with the text for the user.
"""

import os
import sys

_HERE = "%s/python" % os.environ.get("VOKSHARE", "/usr/share/vok")
if _HERE not in sys.path:
    sys.path.insert(0, _HERE)

import bdb  # noqa: F401,E402  (the program looks its exception up)
import types  # noqa: E402

import cli  # noqa: F401,E402
import yum  # noqa: F401,E402
import yum.Errors  # noqa: F401,E402

from vokdnf import base, clean, collection, database, errors, groups, interrupted, locks  # noqa: E402
from vokdnf import otherdata, packages, relations, report, repotest, rights, root, searchtexts  # noqa: E402
from vokdnf import transaction, tsinfo  # noqa: E402

import dnf.drpm  # noqa: E402


def usesSqlite():
    """Whether the metadata cache is a database: True, DNF's solv files."""
    return True


class YumIO:
    """One session. Made without arguments; raises SystemExit with the cause when the configuration does
    not allow one. After a transaction the session is spent and the program makes another."""

    def __init__(self):
        report.attach()
        self._session = base.Session()
        self._architectures = collection.Architectures(self._session.basearch)
        self._collection = None
        self._noted = []
        self._interrupted = []
        self.repos = base.Repositories(self._session)
        self.conf = base.Conf(self._session)
        self.tsInfo = tsinfo.TsInfo()

    def __del__(self):
        if "_session" in self.__dict__:
            self._session.free()

    def lock(self):
        """Takes the lock; LockError names who holds it. Looks for a transaction that was interrupted."""
        locks.acquire(self._session.conf)
        self._interrupted = interrupted.check(self._session)

    def unlock(self):
        locks.release()

    def interrupted(self):
        """Lines about a transaction that was interrupted before this start; empty when none was."""
        return self._interrupted

    def forgetInterrupted(self):
        """The user has read what interrupted() says."""
        self._interrupted = []
        interrupted.clear()

    def setupRepos(self):
        """Loads the metadata of the enabled repositories. RepoError."""
        self._session.load_repositories()

    def setupTs(self):
        """Reads installed and available packages."""
        self._collection = None
        self._session.fill_sack()

    def _collected(self):
        if self._collection is None:
            with errors.translated():
                self._collection = collection.Collection(self._session.base, self._architectures)
                self._collection.report_replacements()
        return self._collection

    def collectUpdates(self):
        """List of package objects: the newest update of what is installed."""
        return list(map(packages.Package, self._collected().updates()))

    def collectAll(self):
        """An object with `installed` and `available`, lists of package objects, newest first."""
        found = self._collected()
        return types.SimpleNamespace(installed=list(map(packages.Package, found.installed())),
                                     available=found.available())

    def collectRows(self):
        """All packages in one call: yields tuples (po, state, name, verRel, repo, arch, biArch, size,
        summary, buildtime, isSuite); state 0 updatable, 1 installable, 2 installed; size in bytes and
        buildtime in seconds are ints, isSuite is a bool, the rest texts. The order is that of the single
        calls: first the number of updates and these, then the number of the others and these, installed and
        available; pairing and duplicates are left to the caller."""
        family, row = self._architectures.family, collection.row
        found = self._collected()
        wrap = found.package
        updates = found.updates()
        yield len(updates)
        yield from (row(wrap(pkg), collection.UPDATABLE, family) for pkg in updates)
        installed, available = found.installed(), found.available()
        yield len(installed) + len(available)
        yield from (row(wrap(pkg), collection.INSTALLED, family) for pkg in installed)
        yield from (row(po, collection.INSTALLABLE, family) for po in available)

    def isBetterThan(self, first, second):
        return self._architectures.is_better(first, second)

    def getBiArch(self, arch):
        return self._architectures.family(arch)

    def setupTsGroup(self):
        """Reads the group data; GroupsError "No Groups Available" without any."""
        groups.setup(self._session)

    def collectGroupInfo(self):
        """An object with `visible_groups`, a list of group objects."""
        with errors.translated():
            return groups.GroupInfo(self._session)

    def collectDone(self):
        report.job_state("done", False)

    def usesRpm(self):
        """Optional: whether this is an rpm system. Another root is one, whatever it holds."""
        return bool(root.prefix()) or database.has_packages(self._session.conf)

    def requiredBy(self, po):
        """Optional. The installed packages that require something of `po`, as a sorted list of texts."""
        return self._texts(relations.required_by(self._session.sack, po.pkg))

    def replaced(self, po):
        """Optional. The installed packages of other names that `po` replaces, as a sorted list of texts."""
        return self._texts(relations.replaced(self._session.sack, po.pkg))

    def replacements(self):
        """Optional: the available packages that DNF's upgrade of everything would install in the place of installed
        ones of other names, as a list of tuples (name, family, package, what it replaces) of texts. Before the
        packages are marked; the collection must have been read."""
        with errors.translated():
            return [(name, family, report.clean(pkg), ", ".join(self._texts(old)))
                    for name, family, pkg, old in self._collected().replacements()]

    @staticmethod
    def _texts(pkgs):
        return sorted(map(report.clean, pkgs))

    def collectFileLists(self):
        """Makes the file lists of available packages readable."""
        otherdata.load_file_lists(self._session)
        return True

    def collectOtherData(self):
        """Makes the change logs of available packages readable."""
        otherdata.load_change_logs(self._session)
        return True

    def searchTexts(self, pos, files, changes):
        """Optional: what a search reads of a sequence of package objects, read as the result is iterated;
        for each its place in the sequence and one bytes object, see vokdnf.searchtexts.read. `files` and
        `changes` say whether the file lists and change logs of available packages are loaded."""
        return searchtexts.read(self._session, pos, files, changes)

    def searchCaches(self):
        """Optional: {repository: (path of a file in the cache, identity)} of the repositories whose texts of
        searchTexts may be kept in that file as long as the identity (bytes) is the same."""
        return self._session.search_caches()

    def testRepo(self, text):
        """Optional: whether the repository whose section in a file `text` (bytes) is can be reached; see
        vokdnf.repotest.run for what the result yields. Writes nothing."""
        return repotest.run(self._session.conf, text)

    def repoOptions(self):
        """Optional: the names of the options that a repository's section may set, as a list."""
        return repotest.option_names(self._session.conf)

    def expanded(self, text):
        """Optional: `text` with the variables in it replaced by their values."""
        return report.clean(self._session.expanded(text))

    def requiredPkgs(self, name):
        """List of package names that marking the group member `name` stands for."""
        with errors.translated():
            return groups.member_names(self._session, name)

    def pkgTree(self, name):
        """The same list; see vokdnf.groups.member_names for why it holds no dependencies. It does not hold
        `name` itself when others replace that."""
        with errors.translated():
            return groups.member_names(self._session, name)

    def noteGroups(self, noted):
        """List of (group object, action 0 update, 1 install, 2 remove) for the next apply."""
        self._noted = [(group, int(action)) for group, action in noted]

    def sources(self):
        """Optional: what the table rests on, as a tuple of the directory of the rpm database and a list of pairs:
        a file and "", or a directory and the pattern of its files' names. Paths as the system calls them; not
        all need exist."""
        return self._session.sources()

    def missingRights(self):
        """Optional: what this process cannot do, and why, as texts for the user, each "" where nothing is missing:
        to change packages, and the configuration; and the user's own directory that caches are in."""
        return rights.missing(self._session.conf)

    def installedChanged(self):
        """Optional, to be asked between jobs: whether packages came or went since setupTs read them. A few
        milliseconds; outdated names them."""
        return self._session.installed_changed()

    def outdated(self):
        """Optional, to be asked before an apply is listed: what another program did to the installed packages
        since setupTs read them. A tuple (came, gone, changed) of lists of texts, all three empty when the
        packages are still true; that costs a few milliseconds, naming differences a second at most. What
        came and went stands as "name-[epoch:]version-release.arch", what changed as "name.arch OLD -> NEW"
        (a reinstalled package with the same version twice). The lists are sorted and may be long. An apply
        on packages that differ fails in rpm. YumBaseError when the database cannot be read."""
        return self._session.outdated()

    def apply(self, installs, updates, removes):
        """Runs one transaction: lists of package objects to install, of [new, installed] pairs, and of
        package objects to remove. The result is True when the transaction ran, else False."""
        noted, self._noted = self._noted, []
        self._collected()
        return transaction.Transaction(self, installs, updates, removes, noted).run()

    def applyFailCleanup(self):
        """After an apply that raised: forgets the marks, so that another can follow."""
        transaction.forget(self._session)
        report.job_state("done", False)

    def flush(self):
        """Drops what must not outlive an operation; a spent session is closed."""
        self._noted = []
        self.tsInfo = tsinfo.TsInfo()
        if self._session.spent:
            self._session.close()

    def usesPresto(self):
        """Whether packages may be rebuilt from deltas: configured, and possible on this system."""
        return bool(self._session.conf.deltarpm and self._session.conf.installroot == "/"
                    and os.access(dnf.drpm.APPLYDELTA, os.X_OK))

    def hasMultiProgress(self):
        return True

    def cleanHeaders(self):
        return self._clean("headers")

    def cleanPackages(self):
        return self._clean("packages")

    def cleanMetadata(self):
        return self._clean("metadata")

    def cleanPickles(self):
        return self._clean("pickles")

    def cleanSqlite(self):
        return self._clean("sqlite")

    def _clean(self, kind):
        return clean.clean(self._session.conf, kind)
