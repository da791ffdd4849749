// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "percent.h"

QChar toHex(int value)
{
    if (value >= 0 && value <= 9)
        return QChar(u'0' + value);
    if (value >= 10 && value <= 15)
        return QChar(u'a' + value - 10);
    return QChar(u'?');
}

int fromHex(QChar digit)
{
    const char16_t c = digit.unicode();
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

QString httpProtect(const QString &text)
{
    static const QString reserved = QStringLiteral("$&+,/:;=?@ \"<>#%{}|\\^~[]");

    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (reserved.contains(c)) {
            result += QLatin1Char('%');
            result += toHex(c.unicode() >> 4);
            result += toHex(c.unicode() & 0xf);
        } else {
            result += c;
        }
    }
    return result;
}

QString httpUnprotect(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool room = text.at(i) == u'%' && i + 2 < text.size();
        const int high = room ? fromHex(text.at(i + 1)) : -1;
        const int low = room ? fromHex(text.at(i + 2)) : -1;
        if (high >= 0 && low >= 0) {
            result += QChar(high * 16 + low);
            i += 2;
        } else {
            result += text.at(i);
        }
    }
    return result;
}
