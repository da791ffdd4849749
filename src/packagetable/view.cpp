// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/view.h"

#include "packagetable/emptytext.h"
#include "packagetable/menus.h"
#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "widgets/hheaderview.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

namespace PackageTable {

View::View(Model *model, SortFilterProxyModel *proxy, QWidget *parent)
    : HTableView(QStyleOptionViewItem::Left, 10, std::numeric_limits<int>::max(), parent),
      m_model(model), m_proxy(proxy)
{
    setModel(proxy);
    setShowGrid(false);
    setGridStyle(Qt::NoPen);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setTabKeyNavigation(false); // Tab leaves the table

    verticalHeader()->hide();
    auto *header = new HHeaderView(this);
    setHorizontalHeader(header);
    header->setSortIndicatorShown(true); // which setting the header has taken away
    header->setAccessibleDescription(
        tr("Left and Right choose a column, Return sorts by it, Ctrl+Left and Ctrl+Right move it, "
           "Plus and Minus change its width. The menu key shows and hides columns."));
    setTabOrder(header, this);

    sortByColumn(KindColumn, Qt::AscendingOrder);
    m_proxy->setFilterKeyColumn(KindColumn);

    connect(header, &QWidget::customContextMenuRequested, this, &View::showColumnMenu);
    connect(header, &QHeaderView::sectionClicked, this, &View::handleHorizontalHeaderClicked);
    connect(header, &HHeaderView::chosen, this, [this](int column) {
        scrollTo(m_proxy->index(std::max(rowAt(0), 0), column)); // sideways
    });
    connect(this, &QAbstractItemView::clicked, this, &View::handleActivated);
    connect(this, &QWidget::customContextMenuRequested, this,
            &View::handleCustomContextMenuRequested);
    connect(m_model, &Model::describing, this, &View::tellDescribeSteps);
    connect(m_model, &Model::describeStepAsked, this, &View::describeStep);
    tellEmpty();
}

void View::handleHorizontalHeaderClicked(int column)
{
    HTableView::sortByColumn(column);
    m_proxy->setFilterKeyColumn(column);
}

void View::handleActivated(const QModelIndex &index)
{
    if (actsOnClick(index))
        toggleAction(index);
}

bool View::actsOnClick(const QModelIndex &index) const
{
    return index.column() == ActionColumn;
}

void View::toggleAction(const QModelIndex &index)
{
    const QModelIndex source = m_proxy->mapToSource(index);
    m_model->toggleAction(source);
    Q_EMIT stateChanged(source.row());
}

void View::describe()
{
    const QModelIndex source = m_proxy->mapToSource(currentIndex());
    m_model->describe(source, this);
}

// The steps of the description are those of the table as it is sorted and filtered.
void View::describeStep(int rows)
{
    const QModelIndex next = currentIndex().siblingAtRow(currentIndex().row() + rows);
    if (!next.isValid())
        return;
    // Several selected rows are a choice that reading does not undo.
    if (selectedRows().size() > 1)
        selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
    else
        setCurrentIndex(next);
    m_model->describeNext(m_proxy->mapToSource(next));
    tellDescribeSteps();
}

void View::tellDescribeSteps()
{
    const int row = currentIndex().row();
    m_model->setDescribeSteps(row > 0, currentIndex().isValid() && row + 1 < m_proxy->rowCount());
}

void View::handleCustomContextMenuRequested(const QPoint &pos)
{
    showContextMenu(indexAt(pos), viewport()->mapToGlobal(pos));
}

void View::showContextMenu(const QModelIndex &index, const QPoint &globalPos)
{
    const QModelIndex source = m_proxy->mapToSource(index);
    if (source.isValid() && source.column() == ActionColumn) {
        if (!m_actionContextMenu)
            m_actionContextMenu = new ActionContextMenu(m_model, this);
        const int row = source.row();
        m_actionContextMenu->exec(source, globalPos);
        Q_EMIT stateChanged(row);
    } else {
        if (!m_otherContextMenu)
            m_otherContextMenu = new OtherContextMenu(m_model, this);
        m_otherContextMenu->exec(source, globalPos);
    }
}

bool View::event(QEvent *event)
{
    // The menu key opens the menu at the current cell, wherever the pointer is.
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard &&
        currentIndex().isValid()) {
        scrollTo(currentIndex());
        showContextMenu(currentIndex(),
                        viewport()->mapToGlobal(visualRect(currentIndex()).center()));
        return true;
    }
    return HTableView::event(event);
}

void View::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier &&
        currentIndex().isValid())
        toggleAction(currentIndex());
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        describe();
    else if (event->matches(QKeySequence::Copy))
        copySelection();
    else
        HTableView::keyPressEvent(event);
}

void View::sizeColumnsToContents()
{
    const QScopedValueRollback<bool> measureAll(m_measureAll, true);
    HTableView::sizeColumnsToContents();
}

void View::resizeColumnsToContents()
{
    const QScopedValueRollback<bool> measureAll(m_measureAll, true);
    HTableView::resizeColumnsToContents();
}

const QAbstractItemModel *View::measuredModel() const
{
    return m_measureAll ? static_cast<const QAbstractItemModel *>(m_model) : model();
}

QModelIndex View::source(const QModelIndex &index) const
{
    return m_proxy->mapToSource(index);
}

void View::reset()
{
    HTableView::reset();
    tellEmpty();
}

// An empty table says why, also to who cannot see it.
void View::tellEmpty()
{
    QString text;
    if (m_proxy->rowCount() == 0)
        text = m_model->rowCount() == 0 && !m_missing.isEmpty() ? m_missing : emptyText(*m_proxy);
    setEmptyText(text);
    setAccessibleDescription(text.isEmpty() ? tr("Space changes the action of the current package.")
                                            : text);
}

void View::changeEvent(QEvent *event)
{
    HTableView::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        m_model->setEnabled(isEnabled());
}

} // namespace PackageTable
