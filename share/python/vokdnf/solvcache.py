# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""DNF's cache files. What file belongs to which metadata is told by the mark that libdnf puts at the head
of each: a digest of the repository's index, and the versions that wrote it. File lists are read of them
with libsolv's own binding, where it is there: the library's way takes a time that grows with the square
of the number of directories."""

import os
import struct

try:
    import solv
except ImportError:
    solv = None

_HEAD = struct.Struct(">4s9I")  # magic, version, six counts (the fourth of packages), flags, length of mark
_USER_DATA = 16                 # the flag that says that there is a mark


def head(path):
    """(number of packages, mark) of a cache file; (0, b"") when it is not there or has no mark."""
    try:
        with open(path, "rb") as stream:
            data = stream.read(4096)
        magic, _, _, _, _, count, _, _, flags, length = _HEAD.unpack_from(data)
    except (OSError, struct.error):
        return 0, b""
    mark = data[_HEAD.size:_HEAD.size + length]
    return (count, mark) if magic == b"SOLV" and flags & _USER_DATA and len(mark) == length else (0, b"")


class Cached:
    """What the cache has of one loaded repository: `mark`, which changes with the metadata, b"" when
    unknown; the path of the file lists; the path for what VOK keeps of it."""

    def __init__(self, directory, repo_id):
        stem = os.path.join(directory, repo_id)
        _, self.mark = head(stem + ".solv")
        self.file_lists = stem + "-filenames.solvx"
        self.search = stem + "-vok.search"


class FileLists:
    """The file lists of a repository by the place of the package in it."""

    @classmethod
    def open(cls, cached, count):
        """None when they are not those of the metadata that were loaded, or cannot be read here."""
        if solv is None or not cached.mark or head(cached.file_lists) != (count, cached.mark):
            return None
        try:
            return cls(cached.file_lists, count)
        except OSError:
            return None

    def __init__(self, path, count):
        self._pool = solv.Pool()
        repo = self._pool.add_repo("")
        self._first = repo.add_solvable().id
        for _ in range(count - 1):
            repo.add_solvable()
        stream = solv.xfopen(path)
        if not stream or not repo.add_solv(
                stream, solv.Repo.REPO_EXTEND_SOLVABLES | solv.Repo.REPO_LOCALPOOL):
            raise OSError(path)
        self._directories = {}

    def of(self, place):
        found, known = [], self._directories
        for match in self._pool.id2solvable(self._first + place).Dataiterator(solv.SOLVABLE_FILELIST):
            directory = match.id
            path = known.get(directory)
            if path is None:
                path = known[directory] = match.idstr.rstrip("/") + "/"
            found.append(path + match.str)
        return found
