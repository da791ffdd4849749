// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recording.h"

#include "heartbeat.h"
#include "progress/hprogressbar.h"

#include <QPushButton>

Recording::Recording(QWidget *window, Heartbeat *heartbeat, QObject *parent)
    : QObject(parent), m_heartbeat(heartbeat),
      m_totalBar(window->findChild<HProgressBar *>(QStringLiteral("totalBar"))),
      m_itemBar(window->findChild<HProgressBar *>(QStringLiteral("itemBar"))),
      m_cancelButton(window->findChild<QPushButton *>(QStringLiteral("cancelButton")))
{
    for (HProgressBar *bar : {m_totalBar, m_itemBar})
        connect(bar, &QProgressBar::valueChanged, this, &Recording::look);
    connect(heartbeat, &Heartbeat::beat, this, &Recording::look);
}

void Recording::addState(const QString &state, bool canCancel)
{
    look();
    m_lines.append(QJsonArray{m_heartbeat->now(), QStringLiteral("state"), state, canCancel});
}

void Recording::look()
{
    lookAt(m_totalBar, QStringLiteral("total"), m_total);
    lookAt(m_itemBar, QStringLiteral("item"), m_item);
    if (m_cancelButton->isEnabled() != m_cancel) {
        m_cancel = !m_cancel;
        m_lines.append(QJsonArray{m_heartbeat->now(), QStringLiteral("cancel"), m_cancel});
    }
}

void Recording::lookAt(const HProgressBar *bar, const QString &name, Shown &last)
{
    const Shown shown{bar->value(), bar->maximum(), bar->text(), bar->isEnabled()};
    if (shown == last)
        return;
    last = shown;
    m_lines.append(QJsonArray{m_heartbeat->now(), name, shown.value, shown.maximum, shown.text,
                              shown.enabled});
}
