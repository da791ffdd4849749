// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "envra.h"

bool Envra::parse(const QString &text)
{
    const qsizetype dot = text.lastIndexOf(u'.');
    if (dot < 1)
        return false;
    const qsizetype dash = text.lastIndexOf(u'-', dot - 1);
    if (dash < 1)
        return false;
    const qsizetype firstDash = text.lastIndexOf(u'-', dash - 1);
    if (firstDash < 1)
        return false;
    const qsizetype colon = text.lastIndexOf(u':', firstDash - 1);

    epoch = colon < 0 ? QString() : text.left(colon);
    name = text.mid(colon + 1, firstDash - colon - 1);
    version = text.mid(firstDash + 1, dash - firstDash - 1);
    release = text.mid(dash + 1, dot - dash - 1);
    arch = text.mid(dot + 1);
    return true;
}
