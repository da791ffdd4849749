// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "yumrepoenabled.h"

namespace {

QRegularExpression fromWildcard(QString wildcard)
{
    // The conversion takes "/" for a path separator, which neither "*" nor "?" matches and which
    // breaks a bracket class. So the pattern's own slashes sit out the conversion as a character
    // that no identifier holds, and what remains of slashes afterwards is the conversion's.
    const QChar stand(0xfdd0);
    wildcard.replace(u'/', stand);
    QString pattern = QRegularExpression::fromWildcard(wildcard, Qt::CaseSensitive).pattern();
    pattern.replace(QLatin1String("[^/]"), QLatin1String("."));
    pattern.replace(stand, u'/');
    return QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

YumRepoEnabled::YumRepoEnabled(bool enable, const QString &wildcard)
    : enabled(enable), pattern(fromWildcard(wildcard))
{
}
