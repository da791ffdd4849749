// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/htableview.h"

class QSortFilterProxyModel;

namespace RepoEditor {

class ContextMenu;
class Model;

// The table of the repository editor. Rows in its signals and in selectedRows() are the model's,
// not the proxy's.
class View : public HTableView
{
    Q_OBJECT

public:
    // Neither is owned.
    View(Model *model, QSortFilterProxyModel *proxy, QWidget *parent);

    // -1 for none.
    int currentRow() const;
    void setCurrentRow(int row);
    ContextMenu *getContextMenu();
    // Looks through the identifiers, whatever the current column.
    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    // A repository is to be edited; the index is the model's and may be invalid.
    void activated(const QModelIndex &index);
    void addAsked();
    void removeAsked();

public Q_SLOTS:
    void handleHorizontalHeaderClicked(int column);
    void handleClicked(const QModelIndex &index);
    void handleCustomContextMenuRequested(const QPoint &pos);
    void handleActivated(const QModelIndex &index);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    QModelIndex source(const QModelIndex &index) const override;
    bool actsOnClick(const QModelIndex &index) const override;

private:
    void followSelection();
    void toggle(const QModelIndex &index);
    void toggleSelected();

    Model *m_model;
    QSortFilterProxyModel *m_proxy;
    ContextMenu *m_contextMenu = nullptr;
};

} // namespace RepoEditor
