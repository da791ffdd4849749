// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMenu>

// A menu that shows the tool tips of its items.
class HMenu : public QMenu
{
    Q_OBJECT

public:
    explicit HMenu(QWidget *parent = nullptr);
    explicit HMenu(const QString &title, QWidget *parent = nullptr);
};
