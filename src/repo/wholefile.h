// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <sys/types.h>

// Changes to configuration files of which nobody ever sees a half: paths are free of links, and
// each operation returns false with errno set, the file being as it was.
namespace WholeFile {

// Writes `content` beside `path` and renames it over it once it is on the disk, with the mode,
// owner, access list, extended attributes and security label of the file that was there, without
// the rights in `taken`; a new file gets `newMode`. The file that was there is kept once, as with
// keep().
bool replace(const QByteArray &path, const QByteArray &content, mode_t newMode, mode_t taken = 0);

// Removes a file or a link. The content of a file is kept once, as with keep().
bool remove(const QByteArray &path);

// Sees to it that the content of `path` from before the first change stays beside it, under the
// same rights, with the suffix ".vok-orig".
bool keep(const QByteArray &path);
// The path of the copy that keep() would make; empty when there is one already, or nothing to copy.
QByteArray missingCopy(const QByteArray &path);

// Reads a regular file whole. Never waits: anything else is ENOTSUP or EISDIR.
bool read(const QByteArray &path, QByteArray &content);

} // namespace WholeFile
