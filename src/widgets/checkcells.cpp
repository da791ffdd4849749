// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/checkcells.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHeaderView>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTableView>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

constexpr char propertyName[] = "checkableCells";
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
constexpr QAccessible::Role checkableRole = QAccessible::Cell;
#else
// This toolkit's bridge passes on of no widget that it can be checked; only its role tells.
constexpr QAccessible::Role checkableRole = QAccessible::CheckBox;
#endif

QString textOf(const QVariant &wanted, const QVariant &otherwise)
{
    const QString text = wanted.toString();
    return text.isEmpty() ? otherwise.toString() : text;
}

template <typename Value> auto each(const QModelIndexList &indexes, const Value &value)
{
    QList<decltype(value(indexes.first()))> values;
    for (const QModelIndex &index : indexes)
        values.append(value(index));
    return values;
}

// What cells and headers have in common: they have no children and nothing to be edited.
class Part : public QAccessibleInterface
{
public:
    explicit Part(QTableView *view) : m_view(view) {}

    bool isValid() const override { return m_view && m_view->model(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}

    // In the table; -1 for its headers.
    virtual int row() const = 0;
    virtual int column() const = 0;

protected:
    QPointer<QTableView> m_view;
};

// The head of a column or of a row, or the corner between them.
class HeaderCell final : public Part
{
public:
    HeaderCell(QTableView *view, int row, int column) : Part(view), m_row(row), m_column(column) {}

    int row() const override { return m_row; }
    int column() const override { return m_column; }

    bool isValid() const override
    {
        return Part::isValid() && m_row < m_view->model()->rowCount() &&
               m_column < m_view->model()->columnCount();
    }
    QAccessible::Role role() const override
    {
        if (isCorner())
            return QAccessible::Pane;
        return m_row < 0 ? QAccessible::ColumnHeader : QAccessible::RowHeader;
    }
    QString text(QAccessible::Text kind) const override
    {
        if (!isValid() || isCorner())
            return {};
        if (kind == QAccessible::Name)
            return textOf(data(Qt::AccessibleTextRole), data(Qt::DisplayRole));
        if (kind == QAccessible::Description)
            return textOf(data(Qt::AccessibleDescriptionRole), data(Qt::ToolTipRole));
        return {};
    }
    QRect rect() const override
    {
        if (!isValid() || isCorner() || header()->isHidden())
            return {};
        const int start = header()->sectionViewportPosition(section());
        const int size = header()->sectionSize(section());
        QRect rect = header()->viewport()->rect();
        if (m_row < 0)
            rect = QRect(start, rect.top(), size, rect.height());
        else
            rect = QRect(rect.left(), start, rect.width(), size);
        return rect.translated(header()->viewport()->mapToGlobal(QPoint()));
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        state.invisible = !isValid() || header()->isHidden() || !m_view->isVisible();
        state.disabled = !isValid() || !header()->isEnabled();
        return state;
    }

private:
    bool isCorner() const { return m_row < 0 && m_column < 0; }
    int section() const { return m_row < 0 ? m_column : m_row; }
    QHeaderView *header() const
    {
        return m_row < 0 && m_column >= 0 ? m_view->horizontalHeader() : m_view->verticalHeader();
    }
    QVariant data(int role) const
    {
        return m_view->model()->headerData(section(), header()->orientation(), role);
    }

    int m_row;
    int m_column;
};

class Cell final : public Part,
                   public QAccessibleTableCellInterface,
                   public QAccessibleActionInterface
{
public:
    Cell(QTableView *view, const QModelIndex &index)
        : Part(view), m_index(index), m_toldCheck(index.data(Qt::CheckStateRole))
    {
    }

    int row() const override { return m_index.row(); }
    int column() const override { return m_index.column(); }
    // Whether the check state is another than when this was asked last.
    bool isCheckNew()
    {
        const QVariant check = m_index.data(Qt::CheckStateRole);
        return std::exchange(m_toldCheck, check) != check;
    }

    bool isValid() const override { return Part::isValid() && m_index.isValid(); }
    QAccessible::Role role() const override
    {
        return isCheckable() ? checkableRole : QAccessible::Cell;
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return textOf(m_index.data(Qt::AccessibleTextRole), m_index.data());
        if (kind == QAccessible::Description)
            return m_index.data(Qt::AccessibleDescriptionRole).toString();
        return {};
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        return m_view->visualRect(m_index).translated(m_view->viewport()->mapToGlobal(QPoint()));
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const Qt::ItemFlags flags = m_index.flags();
        const QRect place = m_view->visualRect(m_index);
        state.invisible = !m_view->isVisible() || !place.intersects(m_view->viewport()->rect());
        state.disabled = !m_view->isEnabled() || !(flags & Qt::ItemIsEnabled);
        state.focusable = state.selectable = bool(flags & Qt::ItemIsSelectable);
        state.focused = m_view->hasFocus() && m_view->currentIndex() == m_index;
        state.selected = isSelected();
        state.checkable = isCheckable();
        state.checked = isCheckable() && isChecked();
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface *>(this);
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        return nullptr;
    }

    bool isSelected() const override
    {
        return isValid() && m_view->selectionModel()->isSelected(m_index);
    }
    QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        if (!isValid())
            return {};
        return {parent()->child(column() + 1)};
    }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return column(); }
    int rowIndex() const override { return row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override { return {toggleAction()}; }
    void doAction(const QString &name) override
    {
        if (name != toggleAction() || !isValid() || !m_view->isEnabled())
            return;
        if (isCheckable())
            m_view->model()->setData(m_index, isChecked() ? Qt::Unchecked : Qt::Checked,
                                     Qt::CheckStateRole);
        else if (isSelected())
            parent()->tableInterface()->unselectRow(row());
        else
            parent()->tableInterface()->selectRow(row());
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    bool isCheckable() const { return m_index.flags() & Qt::ItemIsUserCheckable; }
    bool isChecked() const { return m_index.data(Qt::CheckStateRole).toInt() == Qt::Checked; }

    QPersistentModelIndex m_index;
    QVariant m_toldCheck;
};

// In the toolkit's events a child is a number: row by row, headers counted also where they are hidden.
class Table : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit Table(QTableView *view) : QAccessibleWidget(view, QAccessible::Table) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override { return (rowCount() + 1) * (columnCount() + 1); }
    QAccessibleInterface *child(int number) const override
    {
        if (number < 0 || number >= childCount())
            return nullptr;
        const int row = number / (columnCount() + 1) - 1, column = number % (columnCount() + 1) - 1;
        if (row >= 0 && column >= 0)
            return cellAt(row, column);
        return header(row, column);
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const auto *part = dynamic_cast<const Part *>(child);
        if (!part || !part->isValid() || part->parent() != this)
            return -1;
        return (part->row() + 1) * (columnCount() + 1) + part->column() + 1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        return cell(view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y))));
    }
    QAccessibleInterface *focusChild() const override { return cell(view()->currentIndex()); }

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override
    {
        return cell(index(row, column));
    }
    int columnCount() const override
    {
        return view()->model() ? view()->model()->columnCount() : 0;
    }
    int rowCount() const override { return view()->model() ? view()->model()->rowCount() : 0; }
    QString columnDescription(int column) const override
    {
        return header(-1, column)->text(QAccessible::Name);
    }
    QString rowDescription(int row) const override
    {
        return header(row, -1)->text(QAccessible::Name);
    }

    QList<QAccessibleInterface *> selectedCells() const override
    {
        return each(selection()->selectedIndexes(), [this](auto &index) { return cell(index); });
    }
    QList<int> selectedColumns() const override
    {
        return each(selection()->selectedColumns(), [](auto &index) { return index.column(); });
    }
    QList<int> selectedRows() const override
    {
        return each(selection()->selectedRows(), [](auto &index) { return index.row(); });
    }
    int selectedCellCount() const override { return int(selection()->selectedIndexes().size()); }
    int selectedColumnCount() const override { return int(selectedColumns().size()); }
    int selectedRowCount() const override { return int(selectedRows().size()); }
    bool isColumnSelected(int column) const override
    {
        return selection()->isColumnSelected(column, {});
    }
    bool isRowSelected(int row) const override { return selection()->isRowSelected(row, {}); }
    bool selectRow(int row) override { return selectRow(row, QItemSelectionModel::Select); }
    bool unselectRow(int row) override { return selectRow(row, QItemSelectionModel::Deselect); }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }

    void modelChange(QAccessibleTableModelChangeEvent *event) override
    {
        if (event->modelChangeType() == QAccessibleTableModelChangeEvent::DataChanged)
            return tellChecks(*event);
        m_cells.removeIf([](const Cells::iterator &cell) {
            if (!cell.key().isValid())
                QAccessible::deleteAccessibleInterface(cell.value());
            return !cell.key().isValid();
        });
    }

protected:
    ~Table() override
    {
        for (const QAccessible::Id id : std::as_const(m_cells))
            QAccessible::deleteAccessibleInterface(id);
        for (const QAccessible::Id id : std::as_const(m_headers))
            QAccessible::deleteAccessibleInterface(id);
    }

    QTableView *view() const { return static_cast<QTableView *>(object()); }

private:
    using Cells = QHash<QPersistentModelIndex, QAccessible::Id>;

    QItemSelectionModel *selection() const { return view()->selectionModel(); }
    QModelIndex index(int row, int column) const
    {
        return view()->model() ? view()->model()->index(row, column) : QModelIndex();
    }
    // Each part is made when it is first asked for, and stays the same for who has asked.
    template <typename Make>
    static QAccessibleInterface *known(QAccessible::Id &id, const Make &make)
    {
        if (!id)
            id = QAccessible::registerAccessibleInterface(make());
        return QAccessible::accessibleInterface(id);
    }
    QAccessibleInterface *cell(const QModelIndex &index) const
    {
        if (!index.isValid())
            return nullptr;
        return known(m_cells[index], [&] { return new Cell(view(), index); });
    }
    QAccessibleInterface *header(int row, int column) const
    {
        return known(m_headers[{row, column}], [&] { return new HeaderCell(view(), row, column); });
    }
    bool selectRow(int row, QItemSelectionModel::SelectionFlags how)
    {
        if (!index(row, 0).isValid() || view()->selectionMode() == QAbstractItemView::NoSelection)
            return false;
        if (view()->selectionMode() == QAbstractItemView::SingleSelection)
            how |= QItemSelectionModel::Clear;
        selection()->select(index(row, 0), how | QItemSelectionModel::Rows);
        return true;
    }

    // Tells the check states that are others now, of the cells that somebody has asked for.
    void tellChecks(const QAccessibleTableModelChangeEvent &changed)
    {
        const auto isIn = [](int number, int first, int last) {
            return number >= first && number <= last;
        };
        const Cells cells = m_cells;
        for (auto it = cells.begin(); it != cells.end(); ++it) {
            if (!isIn(it.key().row(), changed.firstRow(), changed.lastRow()) ||
                !isIn(it.key().column(), changed.firstColumn(), changed.lastColumn()))
                continue;
            auto *cell = static_cast<Cell *>(QAccessible::accessibleInterface(it.value()));
            if (!cell || !cell->isCheckNew())
                continue;
            QAccessible::State state;
            state.checked = true;
            QAccessibleStateChangeEvent event(cell, state);
            QAccessible::updateAccessibility(&event);
        }
    }

    mutable Cells m_cells;
    mutable QHash<std::pair<int, int>, QAccessible::Id> m_headers;
};

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
class SelectableTable final : public Table, public QAccessibleSelectionInterface
{
public:
    using Table::Table;

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::SelectionInterface)
            return static_cast<QAccessibleSelectionInterface *>(this);
        return Table::interface_cast(type);
    }
    int selectedItemCount() const override { return selectedCellCount(); }
    QList<QAccessibleInterface *> selectedItems() const override { return selectedCells(); }
    bool select(QAccessibleInterface *child) override { return selectRow(rowOf(child)); }
    bool unselect(QAccessibleInterface *child) override { return unselectRow(rowOf(child)); }
    bool selectAll() override { return view()->selectAll(), true; }
    bool clear() override { return view()->clearSelection(), true; }

private:
    int rowOf(const QAccessibleInterface *child) const
    {
        return indexOfChild(child) < 0 ? -1 : dynamic_cast<const Part *>(child)->row();
    }
};
#else
using SelectableTable = Table;
#endif

QAccessibleInterface *makeTable(const QString &, QObject *object)
{
    auto *view = qobject_cast<QTableView *>(object);
    return view && view->property(propertyName).toBool() ? new SelectableTable(view) : nullptr;
}

} // namespace

void makeCellsCheckable(QTableView *view)
{
    static const bool installed = (QAccessible::installFactory(makeTable), true);
    view->setProperty(propertyName, installed);
}
