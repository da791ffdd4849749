// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plaintexts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

PlainTexts::PlainTexts(QObject *parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

// Qt polishes a label before it lays out its text, the label of a tip before it has one.
bool PlainTexts::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Polish) {
        auto *label = qobject_cast<QLabel *>(object);
        if (label && label->textFormat() == Qt::AutoText)
            label->setTextFormat(Qt::PlainText);
    }
    return QObject::eventFilter(object, event);
}
