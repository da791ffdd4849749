// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What of the table's looks and place outlives its rows: the place in it, and its columns.

#include "packagetable/view.h"

#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>

#include <algorithm>

namespace PackageTable {

namespace {

const QString orderKey = QStringLiteral("order");
const QString hiddenKey = QStringLiteral("hidden");

YumIO::EntryKey keyOf(const Package::Entry &entry)
{
    return {entry.kind == Package::Kind::Group, entry.name, entry.biArch};
}

} // namespace

const Package::Entry *View::entryAt(int proxyRow) const
{
    const QModelIndex cell = m_proxy->mapToSource(m_proxy->index(proxyRow, NameColumn));
    return cell.isValid() ? cell.data(Qt::UserRole).value<Package::Entry *>() : nullptr;
}

Place View::place() const
{
    Place place;
    if (const Package::Entry *entry = entryAt(currentIndex().row()))
        place.current = keyOf(*entry);
    place.currentColumn = currentIndex().column();
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            place.selected.insert(keyOf(*entryAt(row)));
    }
    if (const Package::Entry *entry = entryAt(rowAt(0)))
        place.top = keyOf(*entry);
    return place;
}

void View::goTo(const Place &place)
{
    if (!place.current && !place.top && place.selected.isEmpty())
        return;
    QItemSelection selected;
    QModelIndex current, top;
    for (int row = 0, count = m_proxy->rowCount(); row < count; ++row) {
        const YumIO::EntryKey key = keyOf(*entryAt(row));
        if (place.current == key)
            current = m_proxy->index(row, place.currentColumn);
        if (place.top == key)
            top = m_proxy->index(row, NameColumn);
        if (place.selected.contains(key))
            selected.select(m_proxy->index(row, 0), m_proxy->index(row, ColumnCount - 1));
    }
    if (current.isValid())
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selected, QItemSelectionModel::ClearAndSelect);
    if (top.isValid())
        scrollTo(top, PositionAtTop);
    else if (current.isValid())
        scrollTo(current);
}

void View::keyboardSearch(const QString &search)
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && current.column() != NameColumn)
        selectionModel()->setCurrentIndex(current.siblingAtColumn(NameColumn),
                                          QItemSelectionModel::NoUpdate);
    HTableView::keyboardSearch(search);
}

// One line for each row, its shown columns in their order, with tabs between them.
void View::copySelection() const
{
    QList<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    if (rows.isEmpty() && currentIndex().isValid())
        rows.append(currentIndex().row());
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const int row : std::as_const(rows)) {
        QStringList cells;
        for (int place = 0; place < ColumnCount; ++place) {
            const int column = horizontalHeader()->logicalIndex(place);
            if (!isColumnHidden(column))
                cells.append(m_proxy->index(row, column).data(Qt::AccessibleTextRole).toString());
        }
        lines.append(cells.join(u'\t'));
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

QVariantMap View::columns() const
{
    QVariantList order, hidden;
    for (int place = 0; place < ColumnCount; ++place)
        order.append(horizontalHeader()->logicalIndex(place));
    for (int column = 0; column < ColumnCount; ++column) {
        if (isColumnHidden(column))
            hidden.append(column);
    }
    return {{orderKey, order}, {hiddenKey, hidden}};
}

void View::setColumns(const QVariantMap &columns)
{
    const QVariantList order = columns.value(orderKey).toList();
    const QVariantList hidden = columns.value(hiddenKey).toList();
    for (int place = 0; place < int(order.size()); ++place) {
        const int from = horizontalHeader()->visualIndex(order[place].toInt());
        if (from >= 0 && place < ColumnCount)
            horizontalHeader()->moveSection(from, place);
    }
    for (const QVariant &column : hidden)
        setColumnHidden(column.toInt(), true);
}

// One always stays.
void View::setColumnHidden(int column, bool hidden)
{
    const int shown = ColumnCount - horizontalHeader()->hiddenSectionCount();
    if (column < 0 || column >= ColumnCount || (hidden && shown == 1))
        return;
    HTableView::setColumnHidden(column, hidden);
    // A column that was hidden when the others were sized has no width.
    if (!hidden && columnWidth(column) == 0)
        resizeColumnToContents(column);
}

void View::showAllColumns()
{
    for (int column = 0; column < ColumnCount; ++column) {
        setColumnHidden(column, false);
        horizontalHeader()->moveSection(horizontalHeader()->visualIndex(column), column);
    }
}

void View::showColumnMenu(const QPoint &pos)
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("columnMenu"));
    const int shown = ColumnCount - horizontalHeader()->hiddenSectionCount();
    for (int column = 0; column < ColumnCount; ++column) {
        QAction *action = menu.addAction(m_model->headerData(column, Qt::Horizontal).toString());
        action->setCheckable(true);
        action->setChecked(!isColumnHidden(column));
        action->setEnabled(isColumnHidden(column) || shown > 1);
        connect(action, &QAction::triggered, this,
                [this, column](bool checked) { setColumnHidden(column, !checked); });
    }
    menu.addSeparator();
    QAction *all =
        menu.addAction(tr("Show &All Columns in Their Order"), this, &View::showAllColumns);
    all->setObjectName(QStringLiteral("showAllColumnsAction"));
    menu.exec(horizontalHeader()->mapToGlobal(pos));
}

} // namespace PackageTable
