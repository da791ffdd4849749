// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "summon.h"

#include <QApplication>
#include <QWidget>

void summon(QWidget *dialog)
{
    if (QWidget *parent = dialog->parentWidget()) {
        QWidget *window = parent->window();
        if (window->isMinimized())
            window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    }
    dialog->raise();
    dialog->activateWindow();
    QApplication::alert(dialog);
}
