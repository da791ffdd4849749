// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFontMetricsF>
#include <QHash>
#include <QSet>
#include <QStyleOptionViewItem>

#include <array>

class QAbstractItemDelegate;

// Finds the width of the widest of many cells without laying out each: equal cells are measured
// once, and plain texts that cannot be wider than what was found before are not measured at all.
class CellMeter
{
public:
    CellMeter(const QAbstractItemDelegate &delegate, const QStyleOptionViewItem &option);

    // The width of the cell's size hint if it is greater than `found`, else `found`.
    int widest(const QModelIndex &index, int found);

private:
    static constexpr int FirstPlain = 0x20;
    static constexpr int PlainCount = 0x5f;

    int measure(const QModelIndex &index, int found) const;
    qreal upperBound(QStringView text);
    float advanceBefore(int character, int next);

    const QAbstractItemDelegate &m_delegate;
    const QStyleOptionViewItem &m_option;
    QFontMetricsF m_metrics;
    qreal m_margins;
    // What a character adds in front of another; negative: not measured yet.
    std::array<std::array<float, PlainCount + 1>, PlainCount> m_advances;
    QSet<QString> m_texts;
    QSet<std::pair<qint64, QString>> m_decorated;
};
