# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""DNF's cache files. What file belongs to which metadata is told by the mark that libdnf puts at the head
of each: a digest of the repository's index, and the versions that wrote it. libsolv's own binding, where
it is installed, reads file lists and the times of changes: hawkey takes a time for file lists that grows
with the square of the number of directories, and gives only the local day of a change."""

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
    unknown; `stem`, the beginning of the paths of its files; the path for what VOK keeps of it."""

    def __init__(self, directory, repo_id):
        self.stem = os.path.join(directory, repo_id)
        _, self.mark = head(self.stem + ".solv")
        self.search = self.stem + "-vok.search"


class _Extension:
    """One file of further data of a repository, read by the place of the package in it."""

    SUFFIX = None  # of the file

    @classmethod
    def open(cls, cached, count):
        """None when the file is not that of the metadata that were loaded, or cannot be read here."""
        path = cached.stem + cls.SUFFIX
        if solv is None or not count or not cached.mark or head(path) != (count, cached.mark):
            return None
        try:
            return cls(path, count)
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

    def _search(self, place, key):
        return self._pool.id2solvable(self._first + place).Dataiterator(key)


class ChangeTimes(_Extension):
    SUFFIX = "-other.solvx"

    def of(self, place):
        """Seconds since 1970 of each change, in the order of hawkey's change logs, which reverse the metadata's."""
        search = self._search(place, solv.SOLVABLE_CHANGELOG_TIME)
        search.prepend_keyname(solv.SOLVABLE_CHANGELOG)
        return [match.num for match in search][::-1]


class FileLists(_Extension):
    SUFFIX = "-filenames.solvx"

    def __init__(self, path, count):
        super().__init__(path, count)
        self._directories = {}

    def of(self, place):
        found, known = [], self._directories
        for match in self._search(place, solv.SOLVABLE_FILELIST):
            directory = match.id
            path = known.get(directory)
            if path is None:
                path = known[directory] = match.idstr.rstrip("/") + "/"
            found.append(path + match.str)
        return found
