# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Metadata that would end the process. libdnf, libcomps and libsolv assert, throw past their bindings, or read
freed memory where a repository's files say something that they do not expect. So what is new is read first by a
child process, which also writes DNF's cache files. What came out is kept beside these."""

import ctypes
import gc
import glob
import hashlib
import json
import logging
import os
import re
import resource
import select
import signal
import tempfile
import time

import dnf
import dnf.comps
import dnf.exceptions
import dnf.sack
import dnf.yum.misc
import hawkey

from yum import Errors

from . import errors, groups, report
from .translation import tr

_CHECK = 1         # of the check: another one asks for a new check
_DEATH_SIGNAL = 1  # the option of prctl
_NAMED = 10        # packages in a message
_PAUSE = 0.2       # seconds between two looks at a cancel
_IDLE = 10.0       # seconds without processor time after which a child is replaced
_told = set()      # what was reported: (repository, digest)
_NAME = re.compile(r"[^\s\x00-\x1f\x7f]{1,500}")
# [epoch:]version-release as libsolv has it. An epoch is 31 bits in DNF's history.
_VERSION_TEXT = re.compile(r"(?:0*[1-9][0-9]{0,8}:)?[^\s:\x00-\x1f\x7f-]{1,500}-[^\s:\x00-\x1f\x7f-]{1,500}")
_ARCHITECTURE = re.compile(r"[^\s.:\x00-\x1f\x7f-]{1,50}")


class Unusable(dnf.exceptions.RepoError):
    """The metadata of a repository cannot be processed; the text says why."""


def check(base, repo):
    """Checks the metadata of a loaded repository if they are new, and reports, once, what is left out. Unusable, the
    repository being disabled; CancelledRepoError."""
    digest = _digest(repo)
    path = _path(repo)
    found = _kept(path, digest) or _run(base, repo)
    if not found.get("digest"):
        _keep(path, dict(found, digest=digest, version=_CHECK))
    if found["unusable"]:
        repo.disable()
        raise Unusable(tr("The metadata cannot be processed: %s") % report.clean(found["unusable"]))
    if found["groups"] == "unreadable":
        repo.enablegroups = False
    if (repo.id, digest) in _told:
        return
    _told.add((repo.id, digest))
    if found["packages"]:
        report.errorlog(0, tr("Repository %s: packages are left out because their name, version, release, "
                              "architecture or location is malformed: %s")
                        % (repo.id, report.clean(", ".join(found["packages"]))))
    if found["groups"]:
        report.errorlog(0, (tr("Repository %s: groups without an identifier are left out.")
                            if found["groups"] == "nameless" else
                            tr("Repository %s: the groups are left out because they cannot be read.")) % repo.id)


def leave_out(sack, repo):
    """Excludes the malformed packages of a repository that has been checked and read into the sack."""
    found = _kept(_path(repo), _digest(repo))
    if found and found["packages"]:
        sack.add_excludes(sack.query().filterm(pkg=_malformed(sack, repo.id)))


def _path(repo):
    return os.path.join(repo.basecachedir, repo.id + "-vok.check")


def _digest(repo):
    """What identifies the metadata: their index holds the checksums of all files."""
    try:
        with open(os.path.join(os.path.dirname(repo.get_metadata_path("primary")), "repomd.xml"), "rb") as index:
            return hashlib.sha256(index.read()).hexdigest()
    except OSError:
        return ""


def _kept(path, digest):
    try:
        with open(path, encoding="utf-8") as stream:
            found = json.load(stream)
        if digest and found["digest"] == digest and found["version"] == _CHECK:
            return {"digest": digest, "unusable": str(found["unusable"]), "groups": str(found["groups"]),
                    "packages": [str(name) for name in found["packages"]]}
    except (OSError, ValueError, KeyError, TypeError, RecursionError):
        pass
    return None


def _keep(path, found):
    try:
        descriptor, fresh = tempfile.mkstemp(dir=os.path.dirname(path), prefix=os.path.basename(path))
        with open(descriptor, "w", encoding="utf-8") as stream:
            json.dump(found, stream)
        os.chmod(fresh, 0o644)
        os.replace(fresh, path)
    except OSError:
        pass  # it is checked again


def _malformed(sack, repo_id):
    def sound(pkg):
        return _NAME.fullmatch(pkg.name or "") and _VERSION_TEXT.fullmatch(pkg.evr or "") \
            and _ARCHITECTURE.fullmatch(pkg.arch or "") and pkg.location

    packages = sack.query(flags=hawkey.IGNORE_EXCLUDES).filterm(reponame=repo_id)
    return [pkg for pkg in packages if not sound(pkg)]


def _run(base, repo):
    """What the check of a repository in a child process finds, {"unusable", "groups", "packages"}. A fork of a process
    with several threads may inherit a lock that another thread held, which nobody releases: such a child is replaced."""
    return _attempt(base, repo, True) or _attempt(base, repo, True) or _attempt(base, repo, False)


def _attempt(base, repo, replaceable):
    """As _run; None if a replaceable child did nothing for a while."""
    reading, writing = os.pipe()
    said = os.memfd_create("vok-check", os.MFD_CLOEXEC)
    child = os.fork()
    if child == 0:
        _child(base, repo, writing, said)
    os.close(writing)
    answer, ended, stuck = b"", False, False
    used, since = "", time.monotonic()
    try:
        while not ended and not stuck:
            if select.select([reading], [], [], _PAUSE)[0]:
                data = os.read(reading, 1 << 16)
                answer, ended = answer + data, not data
            errors.check_cancelled(Errors.CancelledRepoError)
            before, used = used, _processor_time(child)
            if used != before:
                since = time.monotonic()
            stuck = replaceable and time.monotonic() - since > _IDLE
    except BaseException:
        os.kill(child, signal.SIGKILL)
        raise
    finally:
        os.close(reading)
        if stuck:
            os.kill(child, signal.SIGKILL)
        status = os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])
        last = report.clean(os.pread(said, 4096, 0)).strip().split("\n")[-1].replace("what():", "").strip()
        os.close(said)
    found = {"unusable": "", "groups": "", "packages": []}
    for line in answer.decode("utf-8", "replace").splitlines():
        found.update(json.loads(line))
    if status < 0:  # what it was about to write
        for path in glob.glob(glob.escape(os.path.join(repo.basecachedir, repo.id)) + "*.solv*.??????"):
            os.unlink(path)
    if stuck:
        return None
    stage = found.pop("stage", "packages")
    if stage == "groups":
        found["groups"] = "unreadable"
    elif stage != "done":
        found["unusable"] = last or (signal.strsignal(-status) if status < 0 else stage)
    return found


def _processor_time(pid):
    """The processor time that a process has used, as /proc has it, "" if that cannot be read."""
    try:
        with open("/proc/%d/stat" % pid, "rb") as stream:
            return " ".join(stream.read().decode("ascii", "replace").rpartition(")")[2].split()[11:13])
    except OSError:
        return ""


def _child(base, repo, writing, said):
    """The child process: it tells each stage before it begins. Nothing of the program may be called here."""
    status = 1
    try:
        ctypes.CDLL(None).prctl(_DEATH_SIGNAL, signal.SIGKILL)
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        gc.disable()
        logging.disable(logging.CRITICAL)
        os.dup2(said, 2)
        _stages(base, repo, lambda **found: os.write(writing, json.dumps(found).encode() + b"\n"))
        status = 0
    except BaseException as error:
        os.write(2, str(error).encode("utf-8", "replace"))
    finally:
        os._exit(status)


def _stages(base, repo, tell):
    tell(stage="packages")
    base._sack = dnf.sack._build_sack(base)
    try:
        dnf.Base._add_repo_to_sack(base, repo)
    except dnf.exceptions.RepoError:  # which the program meets too, and reports
        tell(stage="done")
        return
    malformed = _malformed(base._sack, repo.id)
    names = [" ".join(str(pkg)[:200].split()) for pkg in malformed[:_NAMED]]
    tell(packages=names + ["..."] if len(malformed) > _NAMED else names)
    tell(stage="modules")
    if malformed:
        base._sack.add_excludes(base._sack.query().filterm(pkg=malformed))
    base._setup_modular_excludes()
    tell(stage="groups")
    path = repo.enablegroups and repo._repo.getCompsFn()
    if path:
        with tempfile.NamedTemporaryFile() as plain:
            dnf.yum.misc.decompress(path, dest=plain.name)
            comps = dnf.comps.Comps()
            try:
                comps._add_from_xml_filename(plain.name)
            except dnf.exceptions.CompsError:  # as above
                pass
        if groups.nameless([groups.Group(group, False, set()) for group in comps.groups]):
            tell(groups="nameless")
        for environment in comps.environments:
            str((environment.id, environment.ui_name, environment.ui_description))
    tell(stage="done")
