// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFrame>

// A line between groups of widgets.
class HSeparator : public QFrame
{
    Q_OBJECT

public:
    explicit HSeparator(QWidget *parent = nullptr);
    explicit HSeparator(Qt::Orientation orientation, QWidget *parent = nullptr);
};
