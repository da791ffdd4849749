# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""One session with DNF: configuration, repositories, package sack. A session runs one transaction."""

import contextlib
import os
import weakref

import dnf
import dnf.exceptions
import hawkey
import libdnf.conf

from yum import Errors

from . import certificates, checked, config, credentials, database, errors, keys, library, locks, meters, plugins
from . import report, root, solvcache
from .translation import tr

_SOURCES = ["src", "nosrc"]
_MODULES = "/etc/dnf/modules.d"  # which module streams are enabled


class Base(dnf.Base):
    """DNF's base, telling which repository it reads. `apart` holds what was read later and apart from it,
    by kind; see otherdata."""

    def __init__(self, conf):
        super().__init__(conf)
        self._reading = 0
        self._read = []  # the repositories in the sack
        self._plugins = plugins.Plugins()
        self.apart = {}
        self.excluded = None  # query: what is installed and excluded
        self.cookie = ""      # of the rpm database that the sack was filled from
        self._failed = []  # texts of the repositories that could not be read into the sack

    def _add_repo_to_sack(self, repo):
        """DNF's own, with progress. hawkey reads one repository in one call, which nothing can stop."""
        errors.check_cancelled()
        enabled = sum(1 for _ in self.repos.iter_enabled())
        report.yumIOC.collectProgress(self._reading, enabled, report.clean(repo.id))
        try:
            super()._add_repo_to_sack(repo)
        except dnf.exceptions.RepoError as error:
            if repo.skip_if_unavailable:
                raise
            cause = error.__context__  # DNF only logs it
            self._failed.append(_failure(repo, report.told(error),
                                         [report.told(cause)] if isinstance(cause, hawkey.Exception) else []))
            report.repository_failed(repo.id, self._failed[-1])
            repo._repo.expire()
        else:
            self._read.append(repo.id)
        self._reading += 1
        report.yumIOC.collectProgress(self._reading, enabled, report.clean(repo.id))
        errors.check_cancelled()

    def _setup_excludes_includes(self, only_main=False):
        # The first that looks at packages once all are there.
        for repo in self.repos.iter_enabled():
            checked.leave_out(self.sack, repo)
        super()._setup_excludes_includes(only_main)

    def fill_sack(self, load_system_repo=True, load_available_repos=True):
        """DNF's own. What is installed is then there for every query and for the solver, whatever the
        configuration and plugins exclude: excludes rule what can be installed. Source packages are for
        none of them. All repositories are tried; NoMoreMirrorsRepoError then names all that failed."""
        self._failed = []
        sack = super().fill_sack(load_system_repo, load_available_repos)
        if self._failed:
            raise Errors.NoMoreMirrorsRepoError("\n".join(self._failed))
        everything = sack.query(flags=hawkey.IGNORE_EXCLUDES)
        installed = everything.installed().apply()
        self.excluded = installed.difference(sack.query().installed())
        if installed:
            sack.remove_excludes(installed)
            sack.remove_module_excludes(installed)
            sack.set_use_includes(False, hawkey.SYSTEM_REPO_NAME)
        sources = everything.filter(arch=_SOURCES)
        if sources:
            sack.add_excludes(sources)
        return sack

    @contextlib.contextmanager
    def installed_alone(self):
        """Inside the block the sack holds the installed packages alone, as it does for `dnf remove`. Excluding
        the others would not be the same: the solver still compares the installed architectures with theirs.
        A goal is filled, run, and asked for its problems on one side of the block's border: libsolv's jobs
        point into an index that is built anew at each border."""
        for name in self._read:
            self.sack.disable_repo(name)
        try:
            yield
        finally:
            for name in self._read:
                self.sack.enable_repo(name)

    def installed_changed(self):
        """Whether packages came or went since the sack was filled; False before that. A few milliseconds."""
        if self.sack is None:
            return False
        current = database.cookie(self.conf)
        if current == self.cookie:
            return False
        if not current or database.numbers(self.conf) != database.numbers_read_by(self.sack):
            return True
        self.cookie = current
        return False

    def _run_rpm_check(self):
        """DNF's own. DNF calls it inside its lock of the rpm database, before anything is done."""
        if self.installed_changed():
            raise Errors.YumBaseError(tr("Another program has changed the installed packages."))
        return super()._run_rpm_check()

    def free(self):
        """Closes the base and frees its packages and repositories; none of them can be read afterwards. Without it
        they stay in memory for good: hawkey's sack refers to the base, and libdnf's repository to its callbacks,
        where Python's garbage collector does not see it."""
        repos = list(self.repos.values())
        self.close()
        for repo in repos:
            library.untie(repo)
        self.excluded = None
        self.reset(sack=True, repos=True)
        self._goal = None


def load(dnf_base):
    """Loads the metadata of the enabled repositories of a base, one by one. All are tried; RepoError then names
    all that failed and that the configuration does not allow to leave out."""
    enabled = list(dnf_base.repos.iter_enabled())
    failed = []
    report.yumIOC.collectGrabMultiMeterStart(len(enabled), 0)
    try:
        for repo in enabled:
            errors.check_cancelled(Errors.CancelledRepoError)
            failed += _load(dnf_base, repo)
    finally:
        report.yumIOC.collectGrabMultiMeterEnd()
    if failed:
        raise Errors.RepoError("\n".join(failed))


def _load(dnf_base, repo):
    """Loads one. The result is empty, or a text that says why it failed."""
    callbacks = meters.RepositoryCallbacks(repo)
    repo._repo.setCallbacks(callbacks)
    repo._callbacks = callbacks
    callbacks.this.disown()  # the repository owns it now
    key_import = keys.RepositoryKeyImport(repo)
    repo._set_key_import(key_import)
    try:
        repo.load()
        checked.check(dnf_base, repo)
    except dnf.exceptions.RepoError as error:
        if callbacks.cancelled or report.cancelled():
            raise Errors.CancelledRepoError() from error
        reason = key_import.reason(error)
        text = _failure(repo, reason or report.told(error), [] if reason else [
            certificates.explain(failure, repo) for failure in callbacks.failures
            or [root.shown(address) for address in repo.baseurl]])
        refused = credentials.refused(repo, text)
        if not repo.skip_if_unavailable:
            report.repository_failed(repo.id, text, refused)
            return [text]
        if refused:
            report.repository_failed(repo.id, text, refused)
        report.errorlog(0, tr("%s\nThe repository is left out.") % text)
        repo.disable()
    finally:
        callbacks.finish()
    return []


def _failure(repo, reason, details=()):
    lines = [tr("Repository %s: %s") % (repo.id, reason), *("  " + detail for detail in details)]
    return report.clean("\n".join(lines) + full_cache(repo.basecachedir))


def full_cache(path):
    """A line that says so when the file system of the cache directory is full, else ""."""
    try:
        status = os.statvfs(path)
    except OSError:
        return ""
    if status.f_bavail * status.f_frsize >= 4096 * 16:
        return ""
    return "\n" + tr("There is no room left in the cache directory %s.") % root.shown(path)


class Session:
    """What one YumIO object works with. `base` is DNF's; `spent` is set once a transaction ran. A new
    session closes the former once it has packages of its own; until then the former can be used."""

    _open = lambda: None  # a weak reference to the session that is open

    def __init__(self):
        former = Session._open()
        if former is not None and former.spent:
            former.close()
        self.conf = config.read_main()
        self.spent = False
        self._cached = {}
        self.base = Base(self.conf)
        with errors.translated():
            if self.conf.plugins:
                self.base._plugins.start(self.base)
                self.base.pre_configure_plugins()
            config.read_repositories(self.conf, self.base.repos)
            if self.conf.plugins:
                self.base.configure_plugins()

    def close(self):
        """Ends the session and closes what it has open. Package objects stay readable."""
        try:
            for apart in self.base.apart.values():
                apart.free()
            self.base.apart = {}
            self.base.close()
        except Exception as error:  # nobody waits for the result
            report.errorlog(3, tr("Closing the package session: %s") % report.clean(error))

    def free(self):
        """Closes the session and frees its memory. Package objects cannot be read any more."""
        self.close()
        self.base.free()

    def load_repositories(self):
        """Loads the metadata of the enabled repositories; see load."""
        report.job_state("metadata", True)
        load(self.base)

    def fill_sack(self):
        """Reads the installed packages and the loaded repositories."""
        report.job_state("metadata", True)
        self.base._reading = 0
        # Read before the packages are, so that no change goes unnoticed.
        self.base.cookie = database.cookie(self.conf)
        with errors.translated():
            locks.guarded("metadata", True, self.base.fill_sack)
        self._cached = {repo.id: solvcache.Cached(self.conf.cachedir, repo.id)
                        for repo in self.base.repos.iter_enabled()}
        errors.check_cancelled()
        former = Session._open()
        if former is not None and former is not self:
            former.close()
        Session._open = weakref.ref(self)

    def cached(self, repo_id):
        """What the cache has of a repository as it was when the packages were read."""
        return self._cached[repo_id]

    def search_caches(self):
        """{repository: (path, identity)} for what is kept of searchTexts."""
        return {name: (cached.search, cached.mark) for name, cached in self._cached.items()
                if cached.mark}

    def sources(self):
        """What the collection rests on beside metadata: the directory of the rpm database, and pairs of a
        file with "" or a directory with the pattern of its files' names. Paths are those of the system."""
        # Of these the first that exists counts.
        main = config.MAIN_FILES.index(root.shown(self.conf.config_file_path))
        files = [(path, "") for path in config.MAIN_FILES[:main + 1]]
        files += [(root.shown(path), "*.repo") for path in self.conf.reposdir]
        files += [(path, "*") for path in self.conf.varsdir]
        return database.directory(), [*files, (_MODULES, "*.module")]

    def installed_changed(self):
        """As Base.installed_changed."""
        return self.base.installed_changed()

    def outdated(self):
        """What differs between the rpm database and the packages that were read of it, as
        database.differences tells it."""
        current = database.cookie(self.conf)
        if current == self.base.cookie:
            return [], [], []
        with errors.translated():
            told = database.differences(database.read_by(self.sack), database.contents(self.conf))
        if not any(told):  # a key came or went
            self.base.cookie = current
        return told

    def expanded(self, text):
        """`text` with the variables in it replaced, as in the configuration."""
        return libdnf.conf.ConfigParser.substitute(text, self.conf.substitutions)

    @property
    def sack(self):
        if self.base.sack is None:
            raise Errors.YumBaseError(tr("The packages have not been read yet."))
        return self.base.sack

    @property
    def basearch(self):
        return self.conf.substitutions["basearch"]


class Repositories:
    """The attribute `repos` of yumIO. `repos` is DNF's dictionary from identifier to repository; a
    repository has `enabled`."""

    def __init__(self, session):
        self.repos = session.base.repos

    def _find(self, repo_id):
        try:
            return self.repos[repo_id]
        except KeyError:
            raise Errors.RepoError(tr("There is no repository %s.") % repo_id) from None

    def enableRepo(self, repo_id):
        with errors.translated(Errors.RepoError):
            self._find(repo_id).enable()

    def disableRepo(self, repo_id):
        with errors.translated(Errors.RepoError):
            self._find(repo_id).disable()


class Conf:
    """The attribute `conf` of yumIO. `yumvar` is a dictionary of the variables (texts)."""

    def __init__(self, session):
        self._conf = session.conf
        self.yumvar = {str(key): report.clean(value)
                       for key, value in session.conf.substitutions.items() if value is not None}
        self.yumvar.setdefault("releasever", "")

    @property
    def cachedir(self):
        return self._conf.cachedir

    @property
    def maxParallelDownloads(self):
        """How many packages are downloaded at once at most."""
        return int(self._conf.max_parallel_downloads)
