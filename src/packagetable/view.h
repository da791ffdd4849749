#pragma once

#include "widgets/htableview.h"

namespace PackageTable {

class ActionContextMenu;
class Model;
class OtherContextMenu;
class SortFilterProxyModel;

// The package table on the main window. Rows in its signals and in selectedRows() are the package
// model's, not the proxy's.
class View : public HTableView
{
    Q_OBJECT

public:
    View(Model *model, SortFilterProxyModel *proxy, QWidget *parent);

    QModelIndexList selectedRows() const override;
    void reset() override;

Q_SIGNALS:
    // Row -1 is none.
    void currentChanged(int currentRow, int previousRow);
    // The action of the row may have changed; -1 for any row.
    void stateChanged(int row);

public Q_SLOTS:
    // Both measure every package, listed or not.
    void sizeColumnsToContents();
    void resizeColumnsToContents();
    void handleHorizontalHeaderClicked(int column);
    void handleActivated(const QModelIndex &index);
    void handleCustomContextMenuRequested(const QPoint &pos);
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    const QAbstractItemModel *measuredModel() const override;

private:
    void tellCurrent(int row);
    void toggleAction(const QModelIndex &index);
    void showContextMenu(const QModelIndex &index, const QPoint &globalPos);

    Model *m_model;
    SortFilterProxyModel *m_proxy;
    ActionContextMenu *m_actionContextMenu = nullptr;
    OtherContextMenu *m_otherContextMenu = nullptr;
    int m_currentRow = -1; // the model's
    bool m_measureAll = false;
};

} // namespace PackageTable
