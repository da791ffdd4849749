// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRegularExpression>
#include <QSortFilterProxyModel>

class HAbstractTableModel;

// Sorts by the typed value of a column, breaks ties by a fixed secondary column, and filters and
// sorts afresh after every change of its filter. A change of a row alone never moves the row.
class HSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    HSortFilterProxyModel(int secondarySortColumn, QObject *parent);

    // The model is not owned; null for none.
    virtual void setSourceModel(HAbstractTableModel *model);
    HAbstractTableModel *sourceTableModel() const { return m_sourceTableModel; }

    // The expression that filterAcceptsRow looks for in the filter key column.
    const QRegularExpression &filterRegExp() const { return m_filterRegExp; }
    virtual void setFilterRegExp(const QString &pattern);
    virtual void setFilterRegExp(const QRegularExpression &expression);

    // To be called when what filterAcceptsRow answers may have changed.
    void filterChanged();
    // Forgets the mapping of the rows.
    virtual void clear();

protected:
    QModelIndex createSecondarySortIndex(const QModelIndex &index) const;
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    using QSortFilterProxyModel::setSourceModel;
    void rebuild();

    int m_secondarySortColumn;
    HAbstractTableModel *m_sourceTableModel = nullptr;
    QRegularExpression m_filterRegExp;
};
