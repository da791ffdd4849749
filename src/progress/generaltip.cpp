// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "generaltip.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <QTimerEvent>
#include <QToolTip>

namespace {

constexpr int hideMs = 10000;
constexpr int deletionMs = 250;
// From the hot spot of the pointer, so that the tip does not open under it.
constexpr QPoint belowPointer(2, 20);
constexpr int abovePointer = 4;

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Meta ||
           key == Qt::Key_Alt;
}

} // namespace

QPointer<GeneralTip> GeneralTip::it;

GeneralTip::GeneralTip(QWidget *screen, bool autoHide)
    : QFrame(screen, Qt::ToolTip | Qt::FramelessWindowHint)
{
    delete it;
    it = this;
    setObjectName(QStringLiteral("generalTip"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setWindowOpacity(style()->styleHint(QStyle::SH_ToolTipLabel_Opacity, nullptr, this) / 255.0);
    qApp->installEventFilter(this);
    if (autoHide)
        m_hideTimer.start(hideMs, this);
}

void GeneralTip::showTip(const QPoint &globalPos, Setup setup, void *data, QWidget *widget,
                         bool autoHide)
{
    QScreen *screen = widget->screen()->virtualSiblingAt(globalPos);
    if (!screen)
        screen = widget->screen();
    auto *tip = new GeneralTip(widget->window(), autoHide);
    tip->setScreen(screen);
    setup(tip, data);
    tip->ensurePolished();
    tip->adjustSize();

    const QRect area = screen->geometry();
    QPoint pos = globalPos + belowPointer;
    if (pos.x() + tip->width() > area.right())
        pos.setX(area.right() - tip->width());
    if (pos.y() + tip->height() > area.bottom())
        pos.setY(globalPos.y() - abovePointer - tip->height());
    tip->move(qMax(pos.x(), area.left()), qMax(pos.y(), area.top()));
    tip->show();
}

void GeneralTip::hideTip()
{
    hide();
    m_hideTimer.stop();
    if (!m_deletionTimer.isActive())
        m_deletionTimer.start(deletionMs, this);
}

void GeneralTip::enterEvent(QEnterEvent *)
{
    hideTip();
}

void GeneralTip::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_hideTimer.timerId()) {
        hideTip();
    } else if (event->timerId() == m_deletionTimer.timerId()) {
        m_deletionTimer.stop();
        deleteLater();
    } else {
        QFrame::timerEvent(event);
    }
}

bool GeneralTip::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (!isModifier(key->key()) && key->modifiers() == Qt::NoModifier)
            hideTip();
        break;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Leave:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::Wheel:
        hideTip();
        break;
    default:
        break;
    }
    return false;
}
