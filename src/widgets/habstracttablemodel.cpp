// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/habstracttablemodel.h"

#include <QScopedValueRollback>

void HAbstractTableModel::forceSortColumnRediscovery()
{
    const QScopedValueRollback<bool> rediscovering(m_rediscovering, true);
    beginResetModel();
    endResetModel();
}
