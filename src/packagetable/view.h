// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/htableview.h"
#include "yumio/yumio.h"

#include <QSet>
#include <QVariantMap>

#include <optional>

namespace PackageTable {

class ActionContextMenu;
class Model;
class OtherContextMenu;
class SortFilterProxyModel;

// What is current, selected and on top in the table, by what the rows stand for.
struct Place
{
    std::optional<YumIO::EntryKey> current;
    int currentColumn = 0;
    QSet<YumIO::EntryKey> selected;
    std::optional<YumIO::EntryKey> top;
};

// The package table on the main window. Rows in its signals and in selectedRows() are the package
// model's, not the proxy's.
class View : public HTableView
{
    Q_OBJECT

public:
    View(Model *model, SortFilterProxyModel *proxy, QWidget *parent);

    void reset() override;
    // Looks through the names, whatever the current column.
    void keyboardSearch(const QString &search) override;

    // Taken before the rows are collected anew and given back when they are there.
    Place place() const;
    void goTo(const Place &place);

    // The columns' order and which are hidden, to be kept for the next start.
    QVariantMap columns() const;
    void setColumns(const QVariantMap &columns);

    // What stands in the place of rows when there is none at all, listed or not; empty when that is
    // nothing out of the ordinary. Takes effect with the model's next reset.
    void setMissing(const QString &missing) { m_missing = missing; }

Q_SIGNALS:
    // The action of the row may have changed; -1 for any row.
    void stateChanged(int row);

public Q_SLOTS:
    // Both measure every package, listed or not.
    void sizeColumnsToContents();
    void resizeColumnsToContents();
    // Describes the current row.
    void describe();
    void handleHorizontalHeaderClicked(int column);
    void handleActivated(const QModelIndex &index);
    void handleCustomContextMenuRequested(const QPoint &pos);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    const QAbstractItemModel *measuredModel() const override;
    QModelIndex source(const QModelIndex &index) const override;
    bool actsOnClick(const QModelIndex &index) const override;

private:
    void showColumnMenu(const QPoint &pos);
    void setColumnHidden(int column, bool hidden);
    void showAllColumns();
    void copySelection() const;
    const Package::Entry *entryAt(int proxyRow) const;
    void tellEmpty();
    void describeStep(int rows);
    void tellDescribeSteps();
    void toggleAction(const QModelIndex &index);
    void showContextMenu(const QModelIndex &index, const QPoint &globalPos);

    Model *m_model;
    SortFilterProxyModel *m_proxy;
    ActionContextMenu *m_actionContextMenu = nullptr;
    OtherContextMenu *m_otherContextMenu = nullptr;
    bool m_measureAll = false;
    QString m_missing;
};

} // namespace PackageTable
