// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "harmless.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr qsizetype longestPage = 1'000'000;
constexpr qsizetype longestRow = 10'000; // of a page
constexpr qsizetype longestLine = 1000;
constexpr qsizetype tipColumns = 100;
constexpr qsizetype tipRows = 20;

const QString ellipsis = QStringLiteral("\u2026");

// Left-to-right, right-to-left and Arabic letter mark, which texts in such scripts hold for good reasons.
bool isMark(QChar c)
{
    return c == QChar(0x061c) || c == QChar(0x200e) || c == QChar(0x200f);
}

bool isHarmful(QChar c)
{
    const ushort u = c.unicode();
    if (u < 0x20)
        return u != '\t' && u != '\n';
    return (u >= 0x7f && u < 0xa0) || isMark(c) || (u >= 0x202a && u <= 0x202e) ||
           (u >= 0x2066 && u <= 0x2069) || u == QChar::ParagraphSeparator ||
           u == QChar::LineSeparator || (u >= 0xfdd0 && u <= 0xfdef) ||
           u == QChar::ObjectReplacementCharacter || u >= 0xfffe;
}

// The place of the next character to replace, the end if there is none.
qsizetype nextHarmful(const QString &text, qsizetype i)
{
    for (; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || isHarmful(c))
            break;
    }
    return i;
}

QString cut(const QString &text, qsizetype most)
{
    if (text.size() <= most)
        return text;
    return text.left(text.at(most - 1).isHighSurrogate() ? most - 1 : most) + ellipsis;
}

} // namespace

QString harmless(const QString &text)
{
    qsizetype i = nextHarmful(text, 0);
    if (i == text.size())
        return text;
    QString result = text;
    result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    result.removeIf(isMark);
    for (i = nextHarmful(result, 0); i < result.size(); i = nextHarmful(result, i + 1))
        result[i] = QChar::ReplacementCharacter;
    return result;
}

QString harmlessPage(const QString &text)
{
    const QString whole = harmless(cut(text, longestPage));
    QString result;
    qsizetype start = 0, copied = 0; // of the row, of what is in the result
    while (start < whole.size()) {
        qsizetype end = whole.indexOf(u'\n', start);
        if (end < 0)
            end = whole.size();
        if (end - start > longestRow) {
            result += QStringView(whole).sliced(copied, start - copied);
            result += cut(whole.sliced(start, end - start), longestRow);
            copied = end;
        }
        start = end + 1;
    }
    return copied == 0 ? whole : result.append(QStringView(whole).sliced(copied));
}

QString harmlessLine(const QString &text)
{
    const bool isLine =
        text.size() <= longestLine &&
        std::none_of(text.cbegin(), text.cend(), [](QChar c) { return c == u'\n' || c == u'\t'; });
    return harmless(isLine ? text : cut(text.left(2 * longestLine).simplified(), longestLine));
}

QString harmlessTip(const QString &text)
{
    const QString whole = harmless(cut(text, tipColumns * tipRows));
    QStringList rows;
    for (QStringView line : QStringView(whole).split(u'\n')) {
        while (line.size() > tipColumns) {
            const qsizetype blank = line.first(tipColumns).lastIndexOf(u' ');
            qsizetype end = blank > 0 ? blank : tipColumns;
            if (blank <= 0 && line.at(end - 1).isHighSurrogate())
                --end;
            rows.append(line.first(end).toString());
            line = line.sliced(blank > 0 ? end + 1 : end);
        }
        rows.append(line.toString());
    }
    if (rows.size() > tipRows)
        rows = rows.first(tipRows) << ellipsis;
    return rows.join(u'\n');
}

QString harmlessLabel(const QString &text)
{
    return harmlessLine(text).replace(u'&', QStringLiteral("&&"));
}
