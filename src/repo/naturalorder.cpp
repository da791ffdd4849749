// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "naturalorder.h"

#include <QString>

namespace {

// Takes the longest head of `text` whose characters are digits, or are not.
QStringView takeRun(QStringView &text, bool digits)
{
    qsizetype length = 0;
    while (length < text.size() && text[length].isDigit() == digits)
        ++length;
    const QStringView run = text.first(length);
    text = text.sliced(length);
    return run;
}

// 0 for a run that is no number of 64 bits.
quint64 numberOf(QStringView digits)
{
    QString decimal;
    for (const QChar digit : digits)
        decimal += QChar(u'0' + digit.digitValue());
    return decimal.toULongLong();
}

} // namespace

bool naturalLessThan(QStringView left, QStringView right)
{
    do {
        const QStringView leftRun = takeRun(left, false), rightRun = takeRun(right, false);
        if (const int order = leftRun.compare(rightRun); order != 0)
            return order < 0;
        const quint64 leftNumber = numberOf(takeRun(left, true));
        const quint64 rightNumber = numberOf(takeRun(right, true));
        if (leftNumber != rightNumber)
            return leftNumber < rightNumber;
    } while (!left.isEmpty() || !right.isEmpty());
    return false;
}
