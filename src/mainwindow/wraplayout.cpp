// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/wraplayout.h"

#include <QSpacerItem>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

bool takesRoom(QLayoutItem *item)
{
    return !item->isEmpty() || item->spacerItem();
}

} // namespace

WrapLayout::~WrapLayout()
{
    qDeleteAll(m_items);
}

void WrapLayout::addStretch()
{
    addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

QLayoutItem *WrapLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int WrapLayout::lineWidth(const Line &line) const
{
    int width = line.isEmpty() ? 0 : -spacing();
    for (const QLayoutItem *item : line)
        width += item->sizeHint().width() + spacing();
    return width;
}

int WrapLayout::lineHeight(const Line &line)
{
    int height = 0;
    for (const QLayoutItem *item : line)
        height = std::max(height, item->sizeHint().height());
    return height;
}

QList<WrapLayout::Line> WrapLayout::lines(int width) const
{
    QList<Line> result(1);
    for (QLayoutItem *item : m_items) {
        if (!takesRoom(item))
            continue;
        Line &line = result.last();
        if (line.isEmpty() || lineWidth(line) + spacing() + item->sizeHint().width() <= width) {
            line.append(item);
            continue;
        }
        // What a stretch keeps at the end of its line is there in a further line too.
        const bool pushed = line.last()->spacerItem();
        Line next = pushed ? Line{line.takeLast()} : Line{};
        next.append(item);
        result.append(next);
    }
    return result;
}

QSize WrapLayout::sizeHint() const
{
    return {lineWidth(m_items), lineHeight(m_items)};
}

QSize WrapLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

int WrapLayout::heightForWidth(int width) const
{
    int height = -spacing();
    for (const Line &line : lines(width))
        height += lineHeight(line) + spacing();
    return height;
}

void WrapLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    int y = rect.top();
    for (const Line &line : lines(rect.width())) {
        const int height = lineHeight(line);
        placeLine(line, {rect.left(), y, rect.width(), height});
        y += height + spacing();
    }
}

void WrapLayout::placeLine(const Line &line, const QRect &rect) const
{
    const auto expands = [](const QLayoutItem *item) {
        return item->expandingDirections().testFlag(Qt::Horizontal);
    };
    int expanding = int(std::count_if(line.begin(), line.end(), expands));
    int spare = std::max(0, rect.width() - lineWidth(line));
    int x = rect.left();
    for (QLayoutItem *item : line) {
        int width = std::min(item->sizeHint().width(), rect.width());
        if (expands(item)) {
            const int share = spare / expanding--;
            width += share;
            spare -= share;
        }
        const int height = item->sizeHint().height();
        const QRect place(x, rect.top() + (rect.height() - height) / 2, width, height);
        item->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), rect, place));
        x += width + spacing();
    }
}
