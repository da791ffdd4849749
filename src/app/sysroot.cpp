// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sysroot.h"

#include <QDir>

QString SysRoot::prefix()
{
    const QString root = qEnvironmentVariable("VOKROOT");
    if (!root.startsWith(u'/'))
        return QString();
    const QString clean = QDir::cleanPath(root);
    return clean == QStringLiteral("/") ? QString() : clean;
}

QString SysRoot::resolve(const QString &path)
{
    return prefix() + path;
}
