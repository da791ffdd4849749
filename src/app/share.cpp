// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "share.h"

#include "app/version.h"

QString Share::absolute(const QString &relative)
{
    const QString dir = qEnvironmentVariable("VOKSHARE", QStringLiteral(VOK_SHARE));
    return QStringLiteral("%1/%2").arg(dir, relative);
}
