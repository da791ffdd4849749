// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "url.h"

QString URL::getHost(const QString &url)
{
    const qsizetype colon = url.indexOf(u':');
    if (colon < 0 || QStringView(url).mid(colon + 1, 2) != QLatin1String("//"))
        return QString();
    const qsizetype start = colon + 3;
    const qsizetype end = url.indexOf(u'/', start);
    return url.mid(start, end < 0 ? -1 : end - start);
}
