// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fonts.h"

#include <QFontInfo>
#include <QStringList>

QFont Fonts::makeBold(const QFont &font)
{
    QFont bold(font);
    bold.setBold(true);
    return bold;
}

QFont Fonts::makeHeader(const QFont &font)
{
    QFont header(font);
    header.setBold(true);
    header.setFixedPitch(false);
    header.setStyleHint(QFont::AnyStyle, QFont::PreferMatch);
    if (font.pixelSize() > 0)
        header.setPixelSize(font.pixelSize() * 3 / 2);
    else if (font.pointSize() > 0)
        header.setPointSize(font.pointSize() * 3 / 2);
    return header;
}

QFont Fonts::makeFixed(const QFont &font)
{
    const QStringList families{tr("Bitstream Vera Sans Mono"), tr("DejaVu Sans Mono"),
                               tr("Monospace"), tr("Courier")};
    QFont fixed(font);
    fixed.setFixedPitch(true);
    for (const QString &family : families) {
        fixed.setFamily(family);
        if (QFontInfo(fixed).family() == family)
            break;
    }
    return fixed;
}
