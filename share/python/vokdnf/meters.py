# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Download progress: DNF's and librepo's callbacks become the download callbacks of yumIOC.

Both families, collectGrab... (metadata) and applyGrab... (packages), carry the same objects:

GrabMeterStart(meter_id, filename, url, basename, size, text)
    meter_id  str, the key of one download; unique among the open meters of its family
    filename  str, where the file is written; for packages it ends in ".rpm"; "<delta rebuild>" for
              the rebuilding of packages from deltas; "" for a repository's metadata
    url       str, where it comes from as far as known, else ""
    basename  str, the file's name for showing: "repomd" for a repository's metadata
    size      int bytes, or None while unknown
    text      str: the repository id for metadata, the package as name-epoch:version-release.arch
              (the epoch only when not 0) for packages, "" for "<delta rebuild>"
    Called again for an open meter when the size becomes known or grows; it is then the same
    download and what was read stays.
GrabMeterUpdate(meter_id, bytes_read)   int, bytes of this download so far; never falls, except to 0
                                        after a Failure, when the next mirror is tried
GrabMeterEnd(meter_id, bytes_read)      the download is complete (also one found in the cache)
GrabMeterFailure(meter_id, message)     str; a mirror failed. The download is retried elsewhere when
                                        Updates follow; it has failed for good when the meter is
                                        removed (packages) or setupRepos raises (metadata)

GrabMultiMeterStart(number_of_files, total_bytes)   once before the packages of one transaction; once
                                        more when packages have to be downloaded whole because the
                                        delta rebuild failed
GrabMultiMeterNew(meter_id)             str, before the meter's Start. Open at once: at most
                                        yumIO.conf.maxParallelDownloads (3 unless configured)
GrabMultiMeterRemove(meter_id)          str, after its End or last Failure
GrabMultiMeterEnd()                     all are done, failed or cancelled

Metadata: repositories load one after the other, each a New/Start/Update.../End/Remove of its own
between one collectGrabMultiMeterStart(number_of_repositories, 0) and ...MultiMeterEnd(). A
repository whose cache is fresh opens no meter.

collectProgress(current, total, text)   int, int, str: metadata is read into the package sack;
                                        `text` is the repository id, `current` of `total` repositories
                                        are done. The text is "<installed>" for the rpm database.

Every callback runs on the job's thread. The progress objects ask yumIOC.cancelled() and stop their
download when it says so; `cancelled` tells afterwards that they did.
"""

import os

import dnf.callback
import dnf.drpm
import dnf.repo
import libdnf.repo

from . import report, root
from .translation import tr

DELTA_REBUILD = "<delta rebuild>"


class RepositoryCallbacks(libdnf.repo.RepoCB):
    """librepo's reports about the metadata of one repository. DNF's own class of this purpose cannot
    stop a download."""

    def __init__(self, repo):
        super().__init__()
        self._repo = repo
        self._open = False
        self._over = False  # the metadata is loaded; what comes later is a key or a package
        self.cancelled = False
        self.failures = []  # texts of mirrors that failed, in order
        self._before = self._done = self._size = 0
        self._told = -1  # the last amount that was reported

    def start(self, what):
        self._before = self._done = self._size = 0
        self._told = -1

    def end(self):
        pass

    def progress(self, totalToDownload, downloaded):
        try:
            return self._progress(int(totalToDownload), int(downloaded))
        except Exception:  # an exception must not pass through librepo
            return 0

    def _progress(self, total, done):
        if self.cancelled or report.cancelled():
            self.cancelled = True
            return 1
        if self._over or not total and not done:
            return 0
        if done < self._done:  # the next file of the repository begins
            self._before += self._done
        self._done = done
        self._meter(self._before + total if total else None)
        if self._told != self._before + done:
            self._told = self._before + done
            report.yumIOC.collectGrabMeterUpdate(self._repo.id, self._told)
        return 0

    def _meter(self, size):
        if self._open and (size or 0) <= self._size:
            return
        repo_id = report.clean(self._repo.id)
        if not self._open:
            self._open = True
            report.yumIOC.collectGrabMultiMeterNew(repo_id)
        self._size = size or 0
        report.yumIOC.collectGrabMeterStart(repo_id, "", report.clean(_address(self._repo)),
                                            "repomd", size, repo_id)

    def fastestMirror(self, stage, data):
        if stage == libdnf.repo.RepoCB.FastestMirrorStage_DETECTION:
            report.log(3, tr("Looking for the fastest of %s mirrors of %s") % (data, self._repo.id))

    def handleMirrorFailure(self, msg, url, metadata):
        try:
            if self.cancelled or self._over:
                return 0
            text = report.clean(msg if url in msg else "%s (%s)" % (msg, url))
            if text not in self.failures:
                self.failures.append(text)
            self._meter(None)
            self._before = self._done = 0
            self._told = -1
            report.yumIOC.collectGrabMeterFailure(self._repo.id, text)
        except Exception:
            pass
        return 0

    def repokeyImport(self, id, userid, fingerprint, url, timestamp):
        try:
            return self._repo._key_import._confirm(id, userid, fingerprint, url, timestamp)
        except Exception:
            return False

    def finish(self):
        """Closes the repository's meter."""
        self._over = True
        if self._open:
            report.yumIOC.collectGrabMeterEnd(self._repo.id, self._before + self._done)
            report.yumIOC.collectGrabMultiMeterRemove(self._repo.id)
            self._open = False


def _address(repo):
    if repo.baseurl:
        return root.shown(repo.baseurl[0])
    return repo.metalink or repo.mirrorlist or ""


class _TargetCallbacks(dnf.repo.PackageTargetCallbacks):
    def progress(self, totalToDownload, downloaded):
        self.package_pload._progress_cb(None, totalToDownload, downloaded)
        return 1 if self.package_pload.progress.cancelled else 0


class PackagePayload(dnf.repo.RPMPayload):
    """A package's download that can be stopped."""

    def __init__(self, pkg, progress):
        super().__init__(pkg, progress)
        self.callbacks = _TargetCallbacks(self)


class PackageProgress(dnf.callback.DownloadProgress):
    """DNF's reports about the packages of a transaction. `cancelled`, `failures` (texts) and
    `refusals` (texts by repository) tell afterwards what went wrong."""

    def __init__(self):
        self.cancelled = False
        self.failures = []
        self.refusals = {}
        self._meters = {}   # payload: [meter id, size, bytes so far]
        self._started = False
        self._rebuilding = False

    def start(self, total_files, total_size, total_drpms=0):
        self.finish()
        self._started = True
        report.yumIOC.applyGrabMultiMeterStart(int(total_files), int(total_size))

    def progress(self, payload, done):
        if not self.cancelled and report.cancelled():
            self.cancelled = True
        meter = self._meter(payload)
        if meter[2] != done:
            meter[2] = int(done)
            report.yumIOC.applyGrabMeterUpdate(meter[0], meter[2])
        return 1 if self.cancelled else 0

    def end(self, payload, status, msg):
        if status == dnf.callback.STATUS_DRPM:
            report.log(3, tr("%s is rebuilt from a delta") % payload.pkg)
            return
        meter = self._meter(payload)
        if status in (dnf.callback.STATUS_MIRROR, dnf.callback.STATUS_FAILED):
            text = report.clean(msg or tr("download failed"))
            if not self.cancelled:
                self.failures.append("%s: %s" % (meter[0], text))
                self.refusals.setdefault(payload.pkg.repo, []).append(text)
                report.yumIOC.applyGrabMeterFailure(meter[0], text)
            if status == dnf.callback.STATUS_MIRROR:
                meter[2] = 0
                return
        else:
            report.yumIOC.applyGrabMeterEnd(meter[0], meter[1] or meter[2])
        del self._meters[payload]
        report.yumIOC.applyGrabMultiMeterRemove(meter[0])
        if status is None and isinstance(payload, dnf.drpm.DeltaPayload):
            self._rebuild()

    def _rebuild(self):
        """Shows that DNF rebuilds packages from deltas; it does so until all downloads ended."""
        if self._rebuilding:
            return
        self._rebuilding = True
        report.yumIOC.applyGrabMultiMeterNew(DELTA_REBUILD)
        report.yumIOC.applyGrabMeterStart(DELTA_REBUILD, DELTA_REBUILD, "", DELTA_REBUILD, None, "")

    def _meter(self, payload):
        meter = self._meters.get(payload)
        if meter is None:
            meter_id, start = _describe(payload)
            meter = self._meters[payload] = [meter_id, start[4], 0]
            report.yumIOC.applyGrabMultiMeterNew(meter_id)
            report.yumIOC.applyGrabMeterStart(*start)
        return meter

    def finish(self):
        """Closes what is open; called at the end whatever happened."""
        if self._rebuilding:
            report.yumIOC.applyGrabMeterEnd(DELTA_REBUILD, 0)
            report.yumIOC.applyGrabMultiMeterRemove(DELTA_REBUILD)
            self._rebuilding = False
        if self._started:
            for meter in self._meters.values():
                report.yumIOC.applyGrabMultiMeterRemove(meter[0])
            self._meters.clear()
            self._started = False
            report.yumIOC.applyGrabMultiMeterEnd()


def _describe(payload):
    """The key of a payload's meter and the arguments of its Start."""
    pkg = payload.pkg
    delta = isinstance(payload, dnf.drpm.DeltaPayload)
    base = report.clean(os.path.basename(str(payload)))
    path = os.path.join(pkg.pkgdir, base) if delta else pkg.localPkg()
    url = pkg.remote_location() or ""
    return base, (base, report.clean(root.shown(path)), report.clean(url), base,
                  int(payload.download_size), report.clean(pkg))

