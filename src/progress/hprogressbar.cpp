#include "hprogressbar.h"

#include <QHelpEvent>

#include <limits>

HProgressBar::HProgressBar(QWidget *parent) : QProgressBar(parent) {}

QString HProgressBar::text() const
{
    const QString base = QProgressBar::text();
    if (m_activity.isEmpty())
        return base;
    if (base.isEmpty())
        return m_activity;
    return tr("%1 (%2)").arg(m_activity, base);
}

void HProgressBar::setActivity(const QString &activity)
{
    if (activity == m_activity)
        return;
    m_activity = activity;
    update();
}

void HProgressBar::setMaximumSteps(Steps max)
{
    m_shift = 0;
    while ((max >> m_shift) > Steps(std::numeric_limits<int>::max()))
        ++m_shift;
    setMaximum(int(max >> m_shift));
}

void HProgressBar::setValueSteps(Steps value)
{
    value >>= m_shift;
    // A value beyond the maximum would be ignored by the base.
    setValue(value < Steps(maximum()) ? int(value) : maximum());
}

void HProgressBar::reset()
{
    m_activity.clear();
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
