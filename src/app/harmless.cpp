// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "harmless.h"

namespace {

bool isHarmful(QChar c)
{
    const ushort u = c.unicode();
    if (u < 0x20)
        return u != '\t' && u != '\n';
    return (u >= 0x7f && u < 0xa0) || (u >= 0x202a && u <= 0x202e) ||
           (u >= 0x2066 && u <= 0x2069) || u == QChar::ParagraphSeparator ||
           u == QChar::LineSeparator || (u >= 0xfdd0 && u <= 0xfdef) ||
           u == QChar::ObjectReplacementCharacter || u >= 0xfffe;
}

} // namespace

QString harmless(const QString &text)
{
    QString result = text;
    result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (qsizetype i = 0; i < result.size(); ++i) {
        const QChar c = result.at(i);
        if (c.isHighSurrogate() && i + 1 < result.size() && result.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || isHarmful(c))
            result[i] = QChar::ReplacementCharacter;
    }
    return result;
}
