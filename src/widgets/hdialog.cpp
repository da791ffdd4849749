// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hdialog.h"

#include "summon.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShowEvent>

HDialog::HDialog(QWidget *parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

QPushButton *HDialog::addButton(QHBoxLayout *row, const char *name, const QString &text,
                                const QString &toolTip)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

void HDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        summon(this);
    QDialog::showEvent(event);
}
