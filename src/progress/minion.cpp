// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The bars, set on the GUI thread as the reporter says.

#include "progress.h"

Progress::Minion::Minion(HProgressBar *totalBar, HProgressBar *itemBar)
    : m_totalBar(totalBar), m_itemBar(itemBar)
{
    if (m_itemBar)
        connect(m_itemBar, &HProgressBar::toolTip, this, &Minion::itemProgressToolTip);
}

void Progress::Minion::startTotal(const QString &activity, Steps max)
{
    if (m_totalBar) {
        m_totalBar->setActivity(activity);
        m_totalBar->setMaximumSteps(max);
        m_totalBar->setValueSteps(0);
        m_totalBar->setEnabled(true);
    }
    if (m_itemBar) {
        m_itemBar->reset();
        m_itemBar->setEnabled(false);
    }
}

void Progress::Minion::startItem(const QString &activity, Steps total, Steps itemMax)
{
    setTotalValue(total);
    if (!m_itemBar)
        return;
    m_itemBar->setActivity(activity);
    m_itemBar->setMaximumSteps(itemMax);
    m_itemBar->setValueSteps(0);
    m_itemBar->setEnabled(true);
}

void Progress::Minion::changeItemActivity(const QString &activity)
{
    if (m_itemBar)
        m_itemBar->setActivity(activity);
}

void Progress::Minion::changeItemActs(Steps total)
{
    setTotalValue(total);
}

void Progress::Minion::setItemValue(Steps total, Steps item)
{
    setTotalValue(total);
    if (m_itemBar)
        m_itemBar->setValueSteps(item);
}

void Progress::Minion::endItemActs(Steps total)
{
    setTotalValue(total);
}

void Progress::Minion::setTotalValue(Steps total)
{
    if (m_totalBar)
        m_totalBar->setValueSteps(total);
}

void Progress::Minion::updateThreadsState(const ThreadsState &threads)
{
    m_threads = threads;
}

void Progress::Minion::reset()
{
    for (HProgressBar *bar : {m_totalBar.data(), m_itemBar.data()}) {
        if (!bar)
            continue;
        bar->setMinimum(0);
        bar->setMaximumSteps(1);
        bar->reset();
        bar->setEnabled(false);
    }
}
