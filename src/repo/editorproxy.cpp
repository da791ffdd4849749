// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editorproxy.h"

#include "editormodel.h"
#include "naturalorder.h"
#include "yumio/passwordsintext.h"

namespace RepoEditor {

SortFilterProxyModel::SortFilterProxyModel(Model *model, QObject *parent)
    : QSortFilterProxyModel(parent), m_model(model)
{
    // A row must not move or vanish under the pointer because it was changed.
    setDynamicSortFilter(false);
    setSortRole(Model::MarkRole);
    setSourceModel(model);
}

void SortFilterProxyModel::setFilterText(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    beginFilterChange();
    m_filterText = text;
    endFilterChange();
#else
    m_filterText = text;
    invalidateFilter();
#endif
    // Without dynamic sorting the rows that come back would stand below the others.
    sort(sortColumn(), sortOrder());
}

QVariant SortFilterProxyModel::data(const QModelIndex &index, int role) const
{
    const bool isMark = index.isValid() && index.column() <= PermColumn;
    if (isMark && role == Qt::CheckStateRole)
        return m_model->isMarked(mapToSource(index)) ? Qt::Checked : Qt::Unchecked;
    if (isMark && role == Qt::AccessibleTextRole)
        return index.column() == SessColumn ? tr("Used in this session") : tr("Enabled");
    if (isMark && role == Qt::AccessibleDescriptionRole)
        return index.siblingAtColumn(IdColumn).data();
    return QSortFilterProxyModel::data(index, role);
}

bool SortFilterProxyModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() > PermColumn || role != Qt::CheckStateRole)
        return false;
    const QModelIndex source = mapToSource(index);
    if (m_model->isMarked(source) == (value.toInt() == Qt::Checked))
        return true;
    if (index.column() == SessColumn)
        m_model->toggleUse(source);
    else
        m_model->toggleEnabled(source);
    return true;
}

Qt::ItemFlags SortFilterProxyModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QSortFilterProxyModel::flags(index);
    return index.isValid() && index.column() <= PermColumn ? flags | Qt::ItemIsUserCheckable
                                                           : flags;
}

bool SortFilterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    if (left.column() <= PermColumn)
        return QSortFilterProxyModel::lessThan(left, right);
    const QVariant leftText = left.data(), rightText = right.data();
    if (leftText.typeId() != QMetaType::QString || rightText.typeId() != QMetaType::QString)
        return QSortFilterProxyModel::lessThan(left, right);
    return naturalLessThan(leftText.toString(), rightText.toString());
}

// What is hidden from the eye is not found by trying either.
bool SortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &) const
{
    const auto found = [this](const QString &text) {
        return text.contains(m_filterText, Qt::CaseInsensitive);
    };
    if (m_filterText.isEmpty())
        return true;
    const Repo::Entry &entry = m_model->entry(sourceRow);
    return found(entry.id) || found(entry.name) || found(maskPasswords(entry.baseurl)) ||
           found(maskPasswords(entry.mirrorlist));
}

} // namespace RepoEditor
