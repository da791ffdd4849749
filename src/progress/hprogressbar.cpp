// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hprogressbar.h"

#include "app/harmless.h"

#include <QAccessible>
#include <QHelpEvent>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int quietMs = 250;

} // namespace

HProgressBar::HProgressBar(QWidget *parent) : QProgressBar(parent)
{
    m_soon.setSingleShot(true);
    m_soon.callOnTimeout(this, &HProgressBar::showNow);
}

QString HProgressBar::text() const
{
    const QString base = QProgressBar::text();
    if (m_activity.isEmpty())
        return base;
    if (base.isEmpty())
        return m_activity;
    return tr("%1 (%2)").arg(m_activity, base);
}

void HProgressBar::setTitle(const QString &title)
{
    m_title = title;
    if (!title.isEmpty())
        setAccessibleName(m_activity.isEmpty() ? title : tr("%1: %2").arg(title, m_activity));
}

void HProgressBar::setActivity(const QString &activity)
{
    m_pending.activity = harmlessLine(activity);
    showSoon();
}

void HProgressBar::setMaximumSteps(Steps max)
{
    m_pending.max = max;
    showSoon();
}

void HProgressBar::setValueSteps(Steps value)
{
    m_pending.value = value;
    showSoon();
}

void HProgressBar::showSoon()
{
    if (!QAccessible::isActive())
        showNow();
    else if (!m_soon.isActive())
        m_soon.start(m_sinceShown.isValid() ? std::max(0, quietMs - int(m_sinceShown.elapsed()))
                                            : 0);
}

void HProgressBar::showNow()
{
    m_sinceShown.start();
    const Pending pending = std::exchange(m_pending, {});
    if (pending.activity && *pending.activity != m_activity) {
        m_activity = *pending.activity;
        setTitle(m_title);
        update();
    }
    if (pending.max) {
        m_shift = 0;
        while ((*pending.max >> m_shift) > Steps(std::numeric_limits<int>::max()))
            ++m_shift;
        setMaximum(int(*pending.max >> m_shift));
    }
    // A value beyond the maximum would be ignored by the base.
    if (pending.value)
        setValue(int(std::min(*pending.value >> m_shift, Steps(maximum()))));
}

void HProgressBar::reset()
{
    m_soon.stop();
    m_pending.activity = QString();
    showNow();
    QProgressBar::reset();
    update();
}

bool HProgressBar::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip &&
        (window()->testAttribute(Qt::WA_AlwaysShowToolTips) || isActiveWindow())) {
        Q_EMIT toolTip(static_cast<QHelpEvent *>(event)->pos());
        event->accept();
        return true;
    }
    return QProgressBar::event(event);
}
