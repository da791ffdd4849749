// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/hheaderview.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int widthStep = 10; // pixels

} // namespace

HHeaderView::HHeaderView(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
    setSectionsClickable(true);
    setHighlightSections(false);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setFocusPolicy(Qt::TabFocus);
    // A column that is being hidden shrinks first.
    connect(this, &QHeaderView::sectionResized, this, &HHeaderView::leaveHidden,
            Qt::QueuedConnection);
}

void HHeaderView::leaveHidden()
{
    if (!isSectionHidden(m_column))
        return;
    const int after = shownBeside(visualIndex(m_column), 1);
    choose(logicalIndex(after >= 0 ? after : shownBeside(visualIndex(m_column), -1)));
}

// The nearest shown place from `place` on, in steps of 1 or -1; -1 when there is none.
int HHeaderView::shownBeside(int place, int step) const
{
    while (place >= 0 && place < count() && isSectionHidden(logicalIndex(place)))
        place += step;
    return place < count() ? place : -1;
}

// What the user hears of it is the header's name.
void HHeaderView::choose(int column)
{
    if (column < 0)
        return;
    m_column = column;
    setAccessibleName(model()->headerData(column, Qt::Horizontal).toString());
    if (hasFocus())
        Q_EMIT chosen(column);
    viewport()->update();
}

void HHeaderView::moveBy(int step)
{
    const int from = visualIndex(m_column);
    const int to = shownBeside(from + step, step);
    if (to >= 0)
        moveSection(from, to);
    choose(m_column);
}

void HHeaderView::sortByChosen()
{
    const bool descend =
        sortIndicatorSection() == m_column && sortIndicatorOrder() == Qt::AscendingOrder;
    setSortIndicator(m_column, descend ? Qt::DescendingOrder : Qt::AscendingOrder);
    Q_EMIT sectionClicked(m_column);
}

void HHeaderView::keyPressEvent(QKeyEvent *event)
{
    const int place = visualIndex(m_column);
    const bool moves = event->modifiers() & Qt::ControlModifier;
    const auto goTo = [this](int wanted) { choose(wanted < 0 ? -1 : logicalIndex(wanted)); };
    const auto widen = [this](int pixels) {
        resizeSection(m_column, std::max(minimumSectionSize(), sectionSize(m_column) + pixels));
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return moves ? moveBy(-1) : goTo(shownBeside(place - 1, -1));
    case Qt::Key_Right:
        return moves ? moveBy(1) : goTo(shownBeside(place + 1, 1));
    case Qt::Key_Home:
        return goTo(shownBeside(0, 1));
    case Qt::Key_End:
        return goTo(shownBeside(count() - 1, -1));
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return sortByChosen();
    case Qt::Key_Plus:
        return widen(widthStep);
    case Qt::Key_Minus:
        return widen(-widthStep);
    case Qt::Key_Down:
        return parentWidget()->setFocus(Qt::OtherFocusReason);
    default:
        event->ignore();
    }
}

bool HHeaderView::event(QEvent *event)
{
    // Where the pointer is does not matter to who presses a key.
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard) {
        Q_EMIT customContextMenuRequested({sectionViewportPosition(m_column), height()});
        return true;
    }
    return QHeaderView::event(event);
}

void HHeaderView::focusInEvent(QFocusEvent *event)
{
    QHeaderView::focusInEvent(event);
    choose(m_column);
}

void HHeaderView::focusOutEvent(QFocusEvent *event)
{
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}

void HHeaderView::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, column);
    painter->restore(); // styles leave everything clipped
    if (!hasFocus() || column != m_column)
        return;
    painter->save();
    painter->setPen(palette().color(QPalette::WindowText));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(1, 1, -2, -2));
    painter->restore();
}
