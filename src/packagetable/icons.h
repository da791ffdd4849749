// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/share.h"
#include "yumio/package.h"

#include <QIcon>

namespace PackageTable {

// An icon of the share directory by its name.
inline QIcon shareIcon(const char *name)
{
    return QIcon(Share::absolute(QStringLiteral("icons/%1.png").arg(QLatin1String(name))));
}

// The one that stands for a kind.
inline const char *kindIconName(Package::Kind kind)
{
    switch (kind) {
    case Package::Kind::Suite:
        return "suite";
    case Package::Kind::Group:
        return "group";
    case Package::Kind::Package:
        break;
    }
    return "package";
}

} // namespace PackageTable
