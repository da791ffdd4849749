// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSortFilterProxyModel>

namespace RepoEditor {

class Model;

// Sorts identifiers and names in natural order, and shows the repositories in whose identifier, name
// or URLs a text is found. Screen readers learn here that marks are checkable; see the view for why
// nothing is painted for it.
class SortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    SortFilterProxyModel(Model *model, QObject *parent);

    // Plain text, in any case; empty for all repositories.
    void setFilterText(const QString &text);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    Model *m_model;
    QString m_filterText;
};

} // namespace RepoEditor
