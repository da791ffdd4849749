// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/htableview.h"

#include "widgets/cellmeter.h"
#include "widgets/hitemdelegate.h"
#include "widgets/onscreen.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <utility>

HTableView::HTableView(QStyleOptionViewItem::Position decorationPosition, int minRows, int maxRows,
                       QWidget *parent)
    : QTableView(parent), m_decorationPosition(decorationPosition), m_minRows(minRows),
      m_maxRows(maxRows)
{
    setItemDelegate(new HItemDelegate(this));
    setWordWrap(false);
}

void HTableView::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTableView::initViewItemOption(option);
    option->decorationPosition = m_decorationPosition;
    option->showDecorationSelected = false;
}

void HTableView::sortByColumn(int column)
{
    if (!model())
        return;
    const QHeaderView *header = horizontalHeader();
    const bool sorted = header->sortIndicatorSection() == column;
    sortByColumn(column, sorted ? header->sortIndicatorOrder() : Qt::AscendingOrder);
}

void HTableView::sortByColumn(int column, Qt::SortOrder order)
{
    horizontalHeader()->setSortIndicator(column, order);
    if (model())
        model()->sort(column, order);
}

int HTableView::frameOnlyAroundContentsPixels() const
{
    if (!style()->styleHint(QStyle::SH_ScrollView_FrameOnlyAroundContents, nullptr, this))
        return 0;
    return 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
}

// Positions are taken as they are when nothing is scrolled, so that scrolling changes no hint.
QSize HTableView::sizeHint() const
{
    if (m_minRows != m_maxRows) {
        const int rows = model() ? model()->rowCount() : 0;
        m_minRows = m_maxRows = std::clamp(rows, m_minRows, m_maxRows);
    }
    const QHeaderView *columns = horizontalHeader();
    const QHeaderView *rows = verticalHeader();

    int width = 2 * frameWidth() + frameOnlyAroundContentsPixels() +
                verticalScrollBar()->sizeHint().width() + columns->length();
    if (!rows->isHidden())
        width += rows->sizeHint().width();

    const bool anyRow = model() && model()->rowCount() > 0;
    const int rowHeight = anyRow ? rows->sectionSize(0) : rows->defaultSectionSize();
    int height = 2 * frameWidth() + rowHeight * m_minRows;
    if (!columns->isHidden())
        height += columns->sizeHint().height();
    return {width, height};
}

int HTableView::sizeHintForColumn(int column) const
{
    const QAbstractItemModel *measured = measuredModel();
    if (!measured)
        return -1;
    ensurePolished();
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QAbstractItemDelegate *delegate = itemDelegateForColumn(column);
    CellMeter meter(delegate ? *delegate : *itemDelegate(), option);
    int width = 0;
    for (int row = 0, count = measured->rowCount(); row < count; ++row)
        width = meter.widest(measured->index(row, column), width);
    return width + (showGrid() ? 1 : 0);
}

void HTableView::sizeColumnsToContents()
{
    QTableView::resizeColumnsToContents();
}

void HTableView::resizeColumnsToContents()
{
    sizeColumnsToContents();
    for (QWidget *widget = this; widget; widget = widget->parentWidget())
        widget->updateGeometry();

    QWidget *top = window();
    if (top->isMaximized() || top->isFullScreen())
        return;
    const QRect whole = screen()->geometry();
    const QSize limit(whole.width() * 9 / 10, whole.height() * 9 / 10);
    top->resize(top->sizeHint().boundedTo(limit).expandedTo(top->size()));
    keepOnScreen(top);
}

// A reset drops the current row without telling.
void HTableView::reset()
{
    QTableView::reset();
    tellCurrent(currentIndex());
}

void HTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    tellCurrent(current);
}

void HTableView::tellCurrent(const QModelIndex &current)
{
    const int row = source(current).row();
    const int previous = std::exchange(m_currentRow, row);
    if (row != previous)
        Q_EMIT currentChanged(row, previous);
}

QModelIndexList HTableView::selectedRows() const
{
    QModelIndexList rows = selectedProxyRows();
    for (QModelIndex &row : rows)
        row = source(row);
    return rows;
}

QModelIndexList HTableView::selectedProxyRows() const
{
    QModelIndexList rows;
    if (!selectionModel())
        return rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex index = model()->index(row, range.left(), range.parent());
            if (model()->flags(index) & Qt::ItemIsSelectable)
                rows.append(index);
        }
    }
    return rows;
}

void HTableView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void HTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_emptyText.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect(), int(Qt::AlignCenter) | Qt::TextWordWrap, m_emptyText);
}

// Qt emits clicked() for a release after a press, but not for the second release of a double click.
void HTableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!actsOnClick(indexAt(event->position().toPoint())))
        return QTableView::mouseDoubleClickEvent(event);
    QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->scenePosition(),
                      event->globalPosition(), event->button(), event->buttons(),
                      event->modifiers(), event->pointingDevice());
    mousePressEvent(&press);
}

QItemSelectionModel::SelectionFlags HTableView::selectionCommand(const QModelIndex &index,
                                                                 const QEvent *event) const
{
    if (event && event->type() == QEvent::KeyPress && selectionBehavior() == SelectRows) {
        const auto *press = static_cast<const QKeyEvent *>(event);
        const bool along = press->key() == Qt::Key_Left || press->key() == Qt::Key_Right ||
                           press->key() == Qt::Key_Home || press->key() == Qt::Key_End;
        if (along && !(press->modifiers() & ~Qt::KeypadModifier) &&
            index.row() == currentIndex().row())
            return QItemSelectionModel::NoUpdate;
    }
    return QTableView::selectionCommand(index, event);
}
