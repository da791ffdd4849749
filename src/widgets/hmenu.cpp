// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hmenu.h"

HMenu::HMenu(QWidget *parent) : HMenu(QString(), parent) {}

HMenu::HMenu(const QString &title, QWidget *parent) : QMenu(title, parent)
{
    setToolTipsVisible(true);
}
