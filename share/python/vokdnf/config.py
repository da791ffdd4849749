# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The configuration: yum's or DNF's main file and the repository files, read into DNF's objects."""

import glob
import os

import dnf.conf
import dnf.conf.read
import dnf.const
import dnf.exceptions
import dnf.repo
import dnf.rpm
import dnf.yum.misc
import libdnf.conf
import libdnf.error

from . import database, language, report, root
from .translation import tr

MAIN_FILES = ("/etc/yum/yum.conf", "/etc/yum.conf", "/etc/dnf/dnf.conf")
REPO_DIRECTORIES = ("/etc/yum.repos.d", "/etc/yum/repos.d")
CACHE_DIRECTORY = "/var/cache/yum"
LOG_DIRECTORY = "/var/log"
# Without these the system cannot mend itself; a protected_packages option takes their place.
FOUNDATIONS = ("dnf", "filesystem", "glibc", "rpm", "setup", "systemd", "yum")
_OPENED_BY_LIBDNF = ("/etc/dnf/modules.d", "/etc/dnf/modules.defaults.d")
# What reading a repository raises; the last is the binding's word for text that is not UTF-8.
READING_ERRORS = (dnf.exceptions.Error, libdnf.error.Error, RuntimeError, TypeError)
_SET_BY_FILE = dnf.conf.PRIO_MAINCONFIG
# Where DNF keeps an ordinary user's cache and locks. Its own answer is a new directory in /var/tmp.
dnf.yum.misc.getCacheDir = root.user_cache


def main_file():
    """The main file's path inside the system, None when there is none. OSError."""
    return next((path for path in MAIN_FILES if os.path.exists(root.resolve(path))), None)


def read_main():
    """The main section as DNF's configuration object. Raises SystemExit with the cause when there
    is no usable main file, or the rpm database cannot be read."""
    try:
        return _read_main()
    except OSError as error:
        raise SystemExit(tr("%s cannot be read: %s") % (error.filename, error.strerror)) from error


def _read_main():
    path = main_file()
    if path is None:
        text = tr("There is no main configuration file; none of these exists: %s. "
                  "One that holds nothing but the line [main] will do.") % ", ".join(MAIN_FILES)
        if not root.prefix():
            text += "\n" + tr("If this system does not use rpm, start VOK with the directory of another system: "
                              "sudo VOKROOT=/mnt/image vok")
        raise SystemExit(text)
    opened = root.resolve(path)
    conf = dnf.conf.Conf()
    conf.installroot = root.prefix() or "/"
    conf.config_file_path = opened
    try:
        os.close(root.open_file(path, os.O_RDONLY))
        with language.english():
            conf.read(opened, _SET_BY_FILE)
    except OSError as error:
        raise SystemExit(tr("Unable to read the main configuration file %s: %s")
                         % (path, error.strerror)) from error
    except READING_ERRORS as error:
        raise SystemExit(tr("The main configuration file %s is malformed: %s")
                         % (path, reason(error, opened))) from error
    _settings(conf)
    database.check(conf)
    _substitutions(conf, opened)
    _directories(conf)
    _refuse_links(conf)
    return conf


def _settings(conf):
    if conf._get_priority("plugins") < _SET_BY_FILE:
        conf.plugins = False
    if conf._get_priority("deltarpm") < _SET_BY_FILE:
        conf.deltarpm = False
    conf.clean_requirements_on_remove = False
    # Waiting for DNF's locks, questions and answers are VOK's own.
    conf.exit_on_lock = True
    conf.assumeyes = conf.assumeno = False
    conf.comment = "Done with VOK"
    if root.prefix():
        # What the system in that directory says is data: no code of its own runs here.
        conf.pluginpath = [dnf.const.PLUGINPATH]
        conf.pluginconfpath = [root.resolve(path) for path in conf.pluginconfpath]
        conf.destdir = ""
    place_inside(conf)
    if conf._get_priority("protected_packages") < _SET_BY_FILE:
        conf.protected_packages = sorted(set(FOUNDATIONS).union(_protected_by_files()))


def _protected_by_files():
    for directory in ("/etc/dnf/protected.d", "/etc/yum/protected.d"):
        for path in sorted(glob.glob(glob.escape(root.resolve(directory)) + "/*.conf")):
            path = root.shown(path)
            try:
                for line in root.read(path).split("\n"):
                    yield from line.partition("#")[0].replace(",", " ").split()
            except OSError as error:
                report.errorlog(1, tr("%s cannot be read: %s") % (path, error.strerror))


def _substitutions(conf, opened):
    variables = conf.substitutions
    for directory in conf.varsdir:
        _read_variables(variables, directory)
    if "releasever" not in variables:
        version = _release_of(conf, opened)
        if version:
            variables["releasever"] = version


def _read_variables(variables, directory):
    """As DNF's update_from_etc, which in some versions ends at a file that is not UTF-8; here it is left out."""
    try:
        names = os.listdir(root.resolve(directory))
    except OSError:
        return
    for name in names:
        path = os.path.join(directory, name)
        try:
            name.encode()
            with open(root.open_file(path, os.O_RDONLY), "rb") as lines:
                variables[name] = lines.readline().rstrip(b"\r\n").decode()
        except OSError:
            continue
        except (UnicodeError, dnf.exceptions.Error) as error:
            _left_out(tr("The variable file %s is left out: %s"), root.resolve(path), error)


def _release_of(conf, opened):
    """The release: of the package that the distroverpkg option names, else as DNF finds it, else
    what the system calls itself."""
    parser = libdnf.conf.ConfigParser()
    try:
        parser.read(opened)
        wanted = parser.getValue("main", "distroverpkg")
    except Exception:  # the option is not there; libdnf's binding raises no narrower class
        wanted = None
    if wanted and report.clean(wanted) == wanted:
        reader = dnf.rpm.transaction.initReadOnlyTransaction(root=conf.installroot)
        for header in reader.dbMatch("name", wanted):
            return report.clean(header["version"])
    version = dnf.rpm.detect_releasever(conf.installroot)
    if version:
        return version
    try:
        for line in root.read("/etc/os-release").split("\n"):
            key, _, value = line.strip().partition("=")
            if key == "VERSION_ID":
                return value.strip("\"'")
    except OSError:
        pass
    return None


def _directories(conf):
    if conf._get_priority("cachedir") < _SET_BY_FILE:
        conf.cachedir = CACHE_DIRECTORY
    if conf._get_priority("logdir") < _SET_BY_FILE:
        conf.logdir = LOG_DIRECTORY
    for option in ("cachedir", "logdir", "persistdir"):
        path = libdnf.conf.ConfigParser.substitute(getattr(conf, option), conf.substitutions)
        setattr(conf, option, root.resolve(path))
    conf.own_cache = not root.writable(conf.cachedir)
    if conf.own_cache:
        conf.cachedir = root.user_cache()
    if not root.writable(conf.logdir):
        conf.logdir = root.user_cache()
    conf._set_value("system_cachedir", conf.cachedir)
    for path in (conf.cachedir, conf.logdir):
        try:
            os.makedirs(path, exist_ok=True)
        except OSError as error:
            raise SystemExit(tr("Unable to make the directory %s: %s")
                             % (root.shown(path), error.strerror)) from error
    if conf._get_priority("reposdir") < _SET_BY_FILE:
        conf.reposdir = list(REPO_DIRECTORIES)
    conf.reposdir = [root.resolve(path) for path in conf.reposdir]


def _refuse_links(conf):
    logs = glob.glob(glob.escape(conf.logdir) + "/hawkey.log*")
    for path in (conf.cachedir, conf.persistdir, *logs):
        if path != root.shown(path):
            root.refuse_links(root.shown(path))
    for path in _OPENED_BY_LIBDNF:
        root.refuse_links(path)


def read_repositories(conf, repositories):
    """Fills DNF's dictionary from the main file and the repository directories. A file that cannot be
    used is reported with the reason and left out; the others are used."""
    reader = dnf.conf.read.RepoReader(conf, None)
    files = [conf.config_file_path]
    for directory in conf.reposdir:
        files += sorted(glob.glob(glob.escape(directory) + "/*.repo"))
    for path in files:
        try:
            with open(root.open_file(root.shown(path), os.O_RDONLY), "rb") as stream, language.english():
                name = root.resolve(root.shown(path))
                if report.clean(name) != name:  # the parser takes no name that is not UTF-8
                    name = "/proc/self/fd/%d" % stream.fileno()
                for repo in reader._get_repos(name):
                    repo.repofile = report.clean(path)
                    place_inside(repo)
                    if root.prefix():
                        repo.basecachedir = conf.cachedir
                    repositories.add(repo)
        except OSError as error:
            if not os.path.isdir(path):
                _left_out(tr("The repository file %s is left out: %s"), path, error.strerror)
        except READING_ERRORS as error:
            _left_out(tr("The repository file %s is left out: %s"), path, error)


def _left_out(text, path, cause):
    report.errorlog(0, text % (root.shown(path), reason(cause, path)))


def reason(error, path=None):
    """The parser's own words, without the sentence that DNF puts around them; of text that is not UTF-8 its line
    in the file."""
    if isinstance(error, (TypeError, UnicodeError)):
        number = path and line_not_utf8(path)
        return tr("line %d is not UTF-8") % number if number else tr("a value is not UTF-8")
    words = getattr(error, "__context__", None)
    return report.clean(words if isinstance(words, RuntimeError) else error).rsplit(" failed: ", 1)[-1]


def line_not_utf8(path):
    """The number of the first such line of a file, comments aside; 0 without one or without the file."""
    number = 0
    try:
        with open(root.open_file(root.shown(path), os.O_RDONLY), "rb") as lines:
            for number, line in enumerate(lines, 1):
                if not line.startswith((b"#", b";")):
                    line.decode()
    except UnicodeDecodeError:
        return number
    except OSError:
        pass
    return 0


def place_inside(options):
    """Makes the files that a repository, or the main section, names those of the system."""
    if not root.prefix():
        return
    for option in ("gpgkey", "baseurl"):
        values = list(getattr(options, option, None) or ())
        placed = [_placed(value, option) if value.startswith("file://") else value for value in values]
        if placed != values:
            setattr(options, option, placed)
    for option in ("sslcacert", "sslclientcert", "sslclientkey", "proxy_sslcacert", "proxy_sslclientcert",
                   "proxy_sslclientkey", "mirrorlist", "metalink"):
        value = getattr(options, option, None)
        if value and root.inside(value) != value:
            setattr(options, option, root.inside(value))


def _placed(address, option):
    """Packages may come from a directory beside the system, as from a medium."""
    inside = root.inside(address)
    bare = inside[len("file://"):]
    return address if option == "baseurl" and not os.path.exists(bare) else inside
