// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "explaindisabled.h"

#include "app/harmless.h"

#include <QVariant>
#include <QWidget>

void explainDisabled(QWidget *control, const QString &reason)
{
    static const char usual[] = "usualToolTip";
    if (!control->property(usual).isValid())
        control->setProperty(usual, control->toolTip());
    control->setToolTip(reason.isEmpty() ? control->property(usual).toString()
                                         : harmlessTip(reason));
}
