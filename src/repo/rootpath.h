// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

// Where paths inside the system root lie for the C library.
//
// File names are bytes. As text, a byte that is no UTF-8 is a low surrogate by itself (U+DC80 to
// U+DCFF), which no other text holds, so that each name has a text of its own.
namespace RootPath {

QString toText(const QByteArray &name);
QByteArray toBytes(const QString &text);
// For reading by people: what is no UTF-8 is marked as such.
QString shown(QString text);

// What to open for reading `path`. Links are followed inside the root: one to "/etc/x" leads to
// the root's own /etc/x. Empty with errno set when links lead nowhere near an end.
QByteArray locate(const QString &path);

// stat() of what `path` leads to.
bool status(const QString &path, struct stat &status);

// The file itself that `path` leads to, with no link in it any more; it need not exist.
QByteArray target(const QString &path);

// The directory entry of `path`: links are followed up to the last component, which may be one.
QByteArray entry(const QString &path);

} // namespace RootPath
