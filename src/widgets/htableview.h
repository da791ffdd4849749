// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyleOptionViewItem>
#include <QTableView>

// A table that fits its columns to all of its rows and hints a size with room for a fixed number of
// rows and for all columns.
class HTableView : public QTableView
{
    Q_OBJECT

public:
    // The size hint makes room for at least `minRows` and at most `maxRows` rows.
    HTableView(QStyleOptionViewItem::Position decorationPosition, int minRows, int maxRows,
               QWidget *parent);

    QSize sizeHint() const override;
    // The width that the widest cell of all rows needs; -1 without a model.
    int sizeHintForColumn(int column) const override;
    void sizeColumnsToContents();
    // Also grows the window to show the columns, up to nine tenths of the screen.
    void resizeColumnsToContents();

    // Keeps the order when the column is the sorted one already, else sorts it ascending.
    void sortByColumn(int column);
    void sortByColumn(int column, Qt::SortOrder order);

    // One index for each selected row, of source().
    QModelIndexList selectedRows() const;
    void reset() override;

    // What is shown in the place of rows while there are none.
    void setEmptyText(const QString &text);

Q_SIGNALS:
    // Rows are those of source(); -1 is none.
    void currentChanged(int currentRow, int previousRow);

public Q_SLOTS:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

protected:
    // What an index of the model stands for where that is a proxy.
    virtual QModelIndex source(const QModelIndex &index) const { return index; }
    QModelIndexList selectedProxyRows() const;
    // Going along the row keeps the rows that are selected.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    // Whether a click on the cell acts at once. Each click of a double click then counts as a single
    // one, and doubleClicked() is not emitted.
    virtual bool actsOnClick(const QModelIndex &) const { return false; }
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void initViewItemOption(QStyleOptionViewItem *option) const override;
    // The model whose rows decide the widths.
    virtual const QAbstractItemModel *measuredModel() const { return model(); }

private:
    int frameOnlyAroundContentsPixels() const;
    void tellCurrent(const QModelIndex &current);

    QStyleOptionViewItem::Position m_decorationPosition;
    mutable int m_minRows;
    mutable int m_maxRows;
    int m_currentRow = -1; // of source()
    QString m_emptyText;
};
