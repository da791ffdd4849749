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
