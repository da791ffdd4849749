// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/helidedlabel.h"
#include "yumio/yumio.h"

#include <QPointer>
#include <QTimer>

namespace PackageTable {
class View;
}

// Says how many rows of the package table are listed, selected and marked, and what the marked ones
// weigh. Changes are counted together, when the event loop runs again.
class CountLine : public HElidedLabel
{
    Q_OBJECT

public:
    CountLine(const PackageTable::View *view, const YumIO *yumIO, QWidget *parent);

public Q_SLOTS:
    // To be called when actions of rows have changed.
    void countMarks();

private:
    void count();
    QString marksText() const;

    const PackageTable::View *m_view;
    QPointer<const YumIO> m_yumIO;
    QTimer m_soon;
    bool m_marksChanged = true;
    QString m_marks; // what is said of them
};
