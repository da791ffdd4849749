// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editorview.h"

#include "editormenu.h"
#include "editormodel.h"
#include "widgets/checkcells.h"
#include "widgets/hheaderview.h"
#include "widgets/hitemdelegate.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace RepoEditor {

namespace {

constexpr int minRows = 8;
constexpr int maxRows = 24;

// Paints what the model has. The proxy has a check state besides, for screen readers, which would
// put the toolkit's own box beside the mark.
class Delegate : public HItemDelegate
{
public:
    Delegate(QSortFilterProxyModel *proxy, QObject *parent) : HItemDelegate(parent), m_proxy(proxy)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        HItemDelegate::paint(painter, option, m_proxy->mapToSource(index));
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return HItemDelegate::sizeHint(option, m_proxy->mapToSource(index));
    }

protected:
    bool editorEvent(QEvent *, QAbstractItemModel *, const QStyleOptionViewItem &,
                     const QModelIndex &) override
    {
        return false; // the view toggles
    }

private:
    QSortFilterProxyModel *m_proxy;
};

} // namespace

View::View(Model *model, QSortFilterProxyModel *proxy, QWidget *parent)
    : HTableView(QStyleOptionViewItem::Left, minRows, maxRows, parent), m_model(model),
      m_proxy(proxy)
{
    makeCellsCheckable(this);
    setModel(proxy);
    setItemDelegate(new Delegate(proxy, this));
    setShowGrid(false);
    setGridStyle(Qt::NoPen);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setTabKeyNavigation(false); // Tab leaves the table

    verticalHeader()->hide();
    auto *header = new HHeaderView(this);
    setHorizontalHeader(header);
    header->setContextMenuPolicy(Qt::NoContextMenu);
    header->setSortIndicatorShown(true); // which setting the header has taken away
    header->setStretchLastSection(true);
    header->setAccessibleDescription(
        tr("Left and Right choose a column, Return sorts by it, Ctrl+Left and Ctrl+Right move it, "
           "Plus and Minus change its width."));
    setAccessibleName(tr("Repositories"));
    setAccessibleDescription(tr("Space toggles the check mark of the current cell, Return edits "
                                "the repository, Delete removes, Insert adds."));
    setTabOrder(header, this);

    connect(header, &QHeaderView::sectionClicked, this, &View::handleHorizontalHeaderClicked);
    connect(this, &QAbstractItemView::clicked, this, &View::handleClicked);
    connect(this, &QWidget::customContextMenuRequested, this,
            &View::handleCustomContextMenuRequested);
    connect(this, &QAbstractItemView::doubleClicked, this, &View::handleActivated);
    // Screen readers select without making current; so does a click that takes the current row out.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &View::followSelection,
            Qt::QueuedConnection);
    sizeColumnsToContents();
}

void View::followSelection()
{
    const QModelIndexList rows = selectedProxyRows();
    if (rows.size() == 1 && rows.first().row() != currentIndex().row())
        selectionModel()->setCurrentIndex(
            rows.first().siblingAtColumn(std::max(currentIndex().column(), 0)),
            QItemSelectionModel::NoUpdate);
}

int View::currentRow() const
{
    return m_proxy->mapToSource(currentIndex()).row();
}

void View::setCurrentRow(int row)
{
    setCurrentIndex(m_proxy->mapFromSource(m_model->createIndex(row)));
}

QModelIndex View::source(const QModelIndex &index) const
{
    return m_proxy->mapToSource(index);
}

ContextMenu *View::getContextMenu()
{
    if (!m_contextMenu)
        m_contextMenu = new ContextMenu(m_model, this);
    return m_contextMenu;
}

void View::handleHorizontalHeaderClicked(int column)
{
    HTableView::sortByColumn(column);
    m_proxy->setFilterKeyColumn(column);
}

void View::handleClicked(const QModelIndex &index)
{
    // With these the click chooses rows.
    if (actsOnClick(index) &&
        !(QGuiApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier)))
        toggle(index);
}

bool View::actsOnClick(const QModelIndex &index) const
{
    return index.isValid() && index.column() <= PermColumn;
}

void View::toggle(const QModelIndex &index)
{
    const bool marked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_proxy->setData(index, marked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

// All selected repositories get the state that the current one gets.
void View::toggleSelected()
{
    const QModelIndex current = currentIndex();
    toggle(current);
    const bool marked = m_model->isMarked(m_proxy->mapToSource(current));
    for (const QModelIndex &row : selectedProxyRows()) {
        const QModelIndex cell = row.siblingAtColumn(current.column());
        if (m_model->isMarked(m_proxy->mapToSource(cell)) != marked)
            toggle(cell);
    }
}

void View::handleCustomContextMenuRequested(const QPoint &pos)
{
    const QModelIndex source = m_proxy->mapToSource(indexAt(pos));
    if (!actsOnClick(source))
        getContextMenu()->exec(source, viewport()->mapToGlobal(pos));
}

void View::handleActivated(const QModelIndex &index)
{
    Q_EMIT activated(m_proxy->mapToSource(index));
}

bool View::event(QEvent *event)
{
    // The menu key opens the menu at the current cell, wherever the pointer is.
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard &&
        currentIndex().isValid()) {
        scrollTo(currentIndex());
        getContextMenu()->exec(m_proxy->mapToSource(currentIndex()),
                               viewport()->mapToGlobal(visualRect(currentIndex()).center()));
        return true;
    }
    return HTableView::event(event);
}

void View::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex current = currentIndex();
    switch (event->modifiers() & ~Qt::KeypadModifier ? 0 : event->key()) {
    case Qt::Key_Space:
        if (actsOnClick(current))
            return toggleSelected();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current.isValid())
            return handleActivated(current);
        break;
    case Qt::Key_Delete:
        Q_EMIT removeAsked();
        return;
    case Qt::Key_Insert:
        Q_EMIT addAsked();
        return;
    }
    HTableView::keyPressEvent(event);
}

void View::keyboardSearch(const QString &search)
{
    const QModelIndex before = currentIndex();
    const auto goTo = [this](const QModelIndex &index) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    };
    // The row after the current one is looked at first.
    const QModelIndex start = before.isValid() ? before.siblingAtColumn(IdColumn)
                                               : m_proxy->index(m_proxy->rowCount() - 1, IdColumn);
    goTo(start);
    HTableView::keyboardSearch(search);
    if (before.isValid())
        goTo(currentIndex().siblingAtColumn(before.column()));
    else if (currentIndex() == start && !selectionModel()->isSelected(start))
        goTo({}); // nothing was found
}

// Where the window gives the focus, at its start or when it is active again, no row gets current by
// itself, so that no button acts on a row that nobody has chosen.
void View::focusInEvent(QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    const bool byUser = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                        reason == Qt::ShortcutFocusReason;
    // A dialog pretends a Tab to what has its focus while it comes up.
    if ((byUser && hasFocus()) || currentIndex().isValid())
        return HTableView::focusInEvent(event);
    QAbstractScrollArea::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    viewport()->update();
}

} // namespace RepoEditor
