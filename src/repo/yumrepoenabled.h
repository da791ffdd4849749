// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRegularExpression>
#include <QString>

// One request of the command line to use or not to use the repositories whose identifier matches a
// wildcard pattern as a whole.
struct YumRepoEnabled
{
    // `wildcard` in the shell's syntax, case-sensitive; a slash is a character like any other.
    YumRepoEnabled(bool enable, const QString &wildcard);

    bool matches(const QString &id) const { return pattern.match(id).hasMatch(); }

    bool enabled;
    QRegularExpression pattern; // anchored at both ends
};
