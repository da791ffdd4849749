// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>

// Base of the table models that HSortFilterProxyModel sorts.
class HAbstractTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // Resets the model although its rows are the same, so that a proxy filters and sorts afresh.
    void forceSortColumnRediscovery();
    // True inside such a reset: what is known about the rows stays true.
    bool isRediscovering() const { return m_rediscovering; }

private:
    bool m_rediscovering = false;
};
