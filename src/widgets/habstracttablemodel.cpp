#include "widgets/habstracttablemodel.h"

#include <QScopedValueRollback>

void HAbstractTableModel::forceSortColumnRediscovery()
{
    const QScopedValueRollback<bool> rediscovering(m_rediscovering, true);
    beginResetModel();
    endResetModel();
}
