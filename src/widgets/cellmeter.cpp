// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/cellmeter.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QIcon>
#include <QStyle>

#include <algorithm>

namespace {

// What hinting, rounding and ligatures may add to the sum of the characters.
constexpr qreal RelativeSlack = 1.02;
constexpr qreal AbsoluteSlack = 3;

} // namespace

CellMeter::CellMeter(const QAbstractItemDelegate &delegate, const QStyleOptionViewItem &option)
    : m_delegate(delegate), m_option(option), m_metrics(option.font)
{
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    m_margins = 2 * (style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1);
    for (auto &row : m_advances)
        row.fill(-1);
}

int CellMeter::widest(const QModelIndex &index, int found)
{
    const QVariant display = index.data(Qt::DisplayRole);
    const bool isText = display.typeId() == QMetaType::QString || !display.isValid();
    if (!isText || index.data(Qt::FontRole).isValid() || index.data(Qt::CheckStateRole).isValid() ||
        index.data(Qt::SizeHintRole).isValid())
        return measure(index, found);

    const QString text = display.toString();
    const QVariant decoration = index.data(Qt::DecorationRole);
    if (decoration.isValid()) {
        if (decoration.typeId() != QMetaType::QIcon)
            return measure(index, found);
        const std::pair key(decoration.value<QIcon>().cacheKey(), text);
        if (m_decorated.contains(key))
            return found;
        m_decorated.insert(key);
        return measure(index, found);
    }

    const qreal bound = upperBound(text);
    if (bound >= 0 && bound <= found)
        return found;
    if (bound < 0) {
        if (m_texts.contains(text))
            return found;
        m_texts.insert(text);
    }
    return measure(index, found);
}

int CellMeter::measure(const QModelIndex &index, int found) const
{
    return std::max(found, m_delegate.sizeHint(m_option, index).width());
}

// Negative when the text is not plain.
qreal CellMeter::upperBound(QStringView text)
{
    qreal sum = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int character = text[i].unicode() - FirstPlain;
        const int next = i + 1 < text.size() ? text[i + 1].unicode() - FirstPlain : PlainCount;
        if (character < 0 || character >= PlainCount || next < 0 || next > PlainCount ||
            (next == PlainCount && i + 1 < text.size()))
            return -1;
        sum += advanceBefore(character, next);
    }
    return sum * RelativeSlack + AbsoluteSlack + m_margins;
}

// `next` is PlainCount at the end of the text.
float CellMeter::advanceBefore(int character, int next)
{
    float &advance = m_advances[character][next];
    if (advance < 0) {
        QString pair{QChar(character + FirstPlain)};
        if (next < PlainCount)
            pair += QChar(next + FirstPlain);
        advance = float(m_metrics.horizontalAdvance(pair));
        if (next < PlainCount)
            advance -= float(m_metrics.horizontalAdvance(QChar(next + FirstPlain)));
        advance = std::max(advance, 0.0F);
    }
    return advance;
}
