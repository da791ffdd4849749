# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Whether a repository that is being edited can be reached. Nothing is written to any file or cache."""

import contextlib
import ctypes
import io
import logging
import os
import re
import xml.etree.ElementTree

import dnf.conf.read
import libdnf.error
import libdnf.repo

from . import certificates, config, language, library, report
from .translation import tr

_REPOMD = "repodata/repomd.xml"
_LARGEST = 16 << 20  # bytes of an answer that are kept
_MOST_MIRRORS = 8    # of a list that are tried
_ANSWER = re.compile(r"(?:Status code: |Curl error \()(\d+)")
_STATUS_CODES = {401: "password", 403: "password", 404: "missing", 407: "proxy", 410: "missing"}
_CURL_CODES = {5: "proxy", 6: "host", 7: "refused", 9: "password", 28: "timeout", 37: "missing",
               51: "certificate", 60: "certificate", 67: "password", 77: "certificate", 78: "missing",
               83: "certificate", 90: "certificate", 91: "certificate"}
_DUMMY = "file:///"  # where nothing is looked for


def option_names(conf):
    """What a repository's section may set, as a sorted list of names."""
    repo = dnf.repo.Repo("any", conf)
    return sorted({bind.first for bind in repo._config.optBinds()} | {"arch"})


def run(conf, text):
    """Fetches repomd.xml as a collection would from the repository of which `text` (bytes) is the section
    in a file. Yields an int, the number of steps; then tuples (kind, url, detail) of texts: for each step
    "trying", followed by answers of that step:
        good         repository metadata is there
        password, host, refused, timeout, certificate, missing, proxy
                     why it is not; the detail is the library's own reason
        nolist       the same as missing, of a list of mirrors
        nothing      something is there that is no repository metadata; as with good, a collection
                     would look no further
        empty        a list of mirrors names none
        other        any other reason
        definition   DNF does not take the section, or one option of it; no url
    A step of a list of mirrors tries these until something is there."""
    repo, complaints = _read(conf, text)
    bases, listed = [], None
    if repo is not None:
        bases = list(repo.baseurl or ())
        listed = repo.metalink or repo.mirrorlist
    yield len(bases) + (1 if listed else 0)
    yield from (("definition", "", complaint) for complaint in complaints)
    for base in bases:
        yield "trying", report.told(base), ""
        if report.cancelled():
            return
        yield _base(conf, text, base)
    if listed:
        yield "trying", report.told(listed), ""
        # Of a mirrorlist libdnf goes by the address.
        yield from _mirrors(conf, text, listed, bool(repo.metalink) or "metalink" in listed)


def _mirrors(conf, text, listed, is_metalink):
    if report.cancelled():
        return
    failure, content = _fetch(_repo_at(conf, text, _DUMMY), listed if "://" in listed else "file://" + listed)
    if failure:
        yield "nolist" if failure[0] == "missing" else failure[0], report.told(listed), failure[1]
        return
    mirrors = _listed(content, is_metalink)
    if not mirrors:
        yield "empty", report.told(listed), ""
    for mirror in mirrors[:_MOST_MIRRORS]:
        if report.cancelled():
            return
        answer = _base(conf, text, mirror)
        yield answer
        if answer[0] in ("good", "nothing"):
            return


def _listed(content, is_metalink):
    """The base URLs of a list of mirrors, which is lines or a metalink."""
    if content.lstrip().startswith(b"<"):
        if not is_metalink:
            return []
        try:
            tree = xml.etree.ElementTree.parse(io.BytesIO(content))
        except xml.etree.ElementTree.ParseError:
            return []
        urls = [(element.text or "").strip() for element in tree.iter()
                if element.tag.rpartition("}")[2] == "url"]
        return [url[:-len(_REPOMD)] for url in urls if url.endswith(_REPOMD)]
    lines = (line.strip() for line in content.decode("utf-8", "replace").splitlines())
    return [line for line in lines if "://" in line and not line.startswith("#")]


def _base(conf, text, base):
    failure, content = _fetch(_repo_at(conf, text, base), _REPOMD)
    if failure:
        return failure[0], report.told(base), failure[1]
    try:
        root = next(xml.etree.ElementTree.iterparse(io.BytesIO(content), ["start"]))[1]
        good = root.tag.rpartition("}")[2] == "repomd"
    except (xml.etree.ElementTree.ParseError, StopIteration):
        good = False
    return ("good" if good else "nothing"), report.told(base), ""


class _Complaints(logging.Handler):
    """What DNF says of a section that it reads."""

    def __init__(self, path):
        super().__init__(logging.WARNING)
        self._path = path
        self.errors, self.warnings = [], []

    def emit(self, record):
        text = report.clean(record.getMessage()).replace(" in %s" % self._path, "")
        (self.errors if record.levelno >= logging.ERROR else self.warnings).append(text)


def _read(conf, text):
    """The repository as DNF makes it of its section, None when it does not; and what it complains of."""
    descriptor = os.memfd_create("repository")
    logger = logging.getLogger("dnf")
    path = "/proc/self/fd/%d" % descriptor
    complaints = _Complaints(path)
    handlers, logger.handlers = logger.handlers, [complaints]
    try:
        os.write(descriptor, text)
        with language.english():
            repos = list(dnf.conf.read.RepoReader(conf, None)._get_repos(path))
    except config.READING_ERRORS as error:
        return None, [config.reason(error)]
    finally:
        logger.handlers = handlers
        os.close(descriptor)
    if not repos:
        return None, complaints.errors + complaints.warnings or [tr("DNF finds no repository in it.")]
    for repo in repos:
        library.untie(repo)  # no metadata is loaded
    config.place_inside(repos[0])
    return repos[0], complaints.errors


def _repo_at(conf, text, base):
    """The repository with all its options, at one place alone."""
    repo = _read(conf, text)[0]
    repo.baseurl = [base]
    repo.mirrorlist = repo.metalink = ""
    return repo


class _Callbacks(libdnf.repo.PackageTargetCB):
    def __init__(self):
        super().__init__()
        self.failure = None

    def progress(self, total, done):
        return 1 if report.cancelled() or done > _LARGEST else 0

    def mirrorFailure(self, message, url):
        self.failure = report.clean(message)
        return 1  # the answer is there; another attempt would only take its time


def _fetch(repo, path):
    """A pair of what went wrong, as (kind, reason), else None, and of the bytes. `path` is looked for at
    the repository's place, unless it is a URL. The download is librepo's, with a file in memory for its
    target."""
    descriptor = os.memfd_create("answer")
    callbacks = _Callbacks()
    try:
        with language.english(), _quiet():
            target = libdnf.repo.PackageTarget(
                repo._repo, path, "/proc/self/fd/%d" % descriptor,
                libdnf.repo.PackageTarget.ChecksumType_UNKNOWN, "", 0, None, False, 0, 0, callbacks)
            libdnf.repo.PackageTarget.downloadPackages(libdnf.repo.VectorPPackageTarget([target]), False)
        reason = target.getErr()
        if reason is None:
            size = os.fstat(descriptor).st_size
            return None, os.pread(descriptor, size, 0)
        reason = callbacks.failure or report.clean(reason)
    except (libdnf.error.Error, RuntimeError) as error:
        reason = report.clean(error)
    finally:
        os.close(descriptor)
    return (_kind(reason, repo), report.told(certificates.explain(reason, repo))), b""


def _kind(reason, repo):
    found = _ANSWER.match(reason)
    if not found:
        return "other"
    codes = _STATUS_CODES if reason.startswith("Status") else _CURL_CODES
    kind = codes.get(int(found.group(1)), "other")
    return "proxy" if kind == "refused" and repo.proxy else kind


@contextlib.contextmanager
def _quiet():
    """Keeps librepo's warnings from the terminal: that it could not remove the file in memory."""
    glib = ctypes.CDLL("libglib-2.0.so.0")
    handler = ctypes.CFUNCTYPE(None, ctypes.c_char_p, ctypes.c_int, ctypes.c_char_p,
                               ctypes.c_void_p)(lambda *_: None)
    number = glib.g_log_set_handler(b"librepo", 1 << 4, handler, None)
    try:
        yield
    finally:
        glib.g_log_remove_handler(b"librepo", number)
