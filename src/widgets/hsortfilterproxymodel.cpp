// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/hsortfilterproxymodel.h"

#include "widgets/habstracttablemodel.h"

#include <QDateTime>

#include <compare>

namespace {

template <typename T> std::partial_ordering compareAs(const QVariant &left, const QVariant &right)
{
    const T a = left.value<T>();
    const T b = right.value<T>();
    if (a < b)
        return std::partial_ordering::less;
    return a == b ? std::partial_ordering::equivalent : std::partial_ordering::greater;
}

std::partial_ordering compareTyped(const QVariant &left, const QVariant &right)
{
    switch (left.typeId()) {
    case QMetaType::Int:
        return compareAs<int>(left, right);
    case QMetaType::UInt:
        return compareAs<uint>(left, right);
    case QMetaType::LongLong:
        return compareAs<qlonglong>(left, right);
    case QMetaType::ULongLong:
        return compareAs<qulonglong>(left, right);
    case QMetaType::Float:
    case QMetaType::Double:
        return compareAs<double>(left, right);
    case QMetaType::QChar:
        return compareAs<QChar>(left, right);
    case QMetaType::QDate:
        return compareAs<QDate>(left, right);
    case QMetaType::QTime:
        return compareAs<QTime>(left, right);
    case QMetaType::QDateTime:
        return compareAs<QDateTime>(left, right);
    default:
        return compareAs<QString>(left, right);
    }
}

} // namespace

HSortFilterProxyModel::HSortFilterProxyModel(int secondarySortColumn, QObject *parent)
    : QSortFilterProxyModel(parent), m_secondarySortColumn(secondarySortColumn)
{
    // A row must not move or vanish under the pointer because its action was changed.
    setDynamicSortFilter(false);
}

void HSortFilterProxyModel::setSourceModel(HAbstractTableModel *model)
{
    QSortFilterProxyModel::setSourceModel(model);
    m_sourceTableModel = model;
}

void HSortFilterProxyModel::setFilterRegExp(const QString &pattern)
{
    setFilterRegExp(QRegularExpression(pattern));
}

void HSortFilterProxyModel::setFilterRegExp(const QRegularExpression &expression)
{
    m_filterRegExp = expression;
    rebuild();
}

void HSortFilterProxyModel::filterChanged()
{
    rebuild();
}

void HSortFilterProxyModel::clear()
{
    rebuild();
}

// The base's own ways of changing a filter tell the views of every block of rows that comes or
// goes, which takes minutes with many thousands of them. A reset costs one pass, and the mapping
// that is built after it is sorted by the current column and order.
void HSortFilterProxyModel::rebuild()
{
    if (m_sourceTableModel)
        m_sourceTableModel->forceSortColumnRediscovery();
    else
        invalidate();
}

QModelIndex HSortFilterProxyModel::createSecondarySortIndex(const QModelIndex &index) const
{
    return index.model() ? index.model()->index(index.row(), m_secondarySortColumn) : QModelIndex();
}

bool HSortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_filterRegExp.pattern().isEmpty())
        return true;
    const int key = filterKeyColumn();
    const int first = key < 0 ? 0 : key;
    const int last = key < 0 ? sourceModel()->columnCount(sourceParent) - 1 : key;
    for (int column = first; column <= last; ++column) {
        const QModelIndex index = sourceModel()->index(sourceRow, column, sourceParent);
        if (index.data(filterRole()).toString().contains(m_filterRegExp))
            return true;
    }
    return false;
}

bool HSortFilterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const auto order = compareTyped(left.data(), right.data());
    if (order == std::partial_ordering::less)
        return true;
    if (order == std::partial_ordering::equivalent && left.column() != m_secondarySortColumn) {
        const QModelIndex leftName = createSecondarySortIndex(left);
        const QModelIndex rightName = createSecondarySortIndex(right);
        // A table without the secondary column has nothing to break the tie with.
        return leftName.isValid() && rightName.isValid() && lessThan(leftName, rightName);
    }
    return false;
}
