// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "onscreen.h"

#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int followMs = 1000;

void bringOntoScreen(QWidget *window)
{
    if (window->isMaximized() || window->isFullScreen())
        return;
    const QRect available = window->screen()->availableGeometry();
    const QSize margins = window->frameGeometry().size() - window->size();
    const QSize size = window->size().boundedTo(available.size() - margins);
    if (size != window->size())
        window->resize(size);
    const QRect frame(window->frameGeometry().topLeft(), size + margins);
    const int x =
        std::max(available.left(), std::min(frame.x(), available.right() + 1 - frame.width()));
    const int y =
        std::max(available.top(), std::min(frame.y(), available.bottom() + 1 - frame.height()));
    if (frame.topLeft() != QPoint(x, y))
        window->move(x, y);
}

// The frame's margins are told later than its place, so that is looked at from the event loop.
class Follower : public QObject
{
public:
    explicit Follower(QWidget *window) : QObject(window), m_window(window)
    {
        window->installEventFilter(this);
        m_soon.setSingleShot(true);
        m_soon.callOnTimeout(this, [this] { bringOntoScreen(m_window); });
        m_soon.start(0);
        QTimer::singleShot(followMs, this, [this] {
            bringOntoScreen(m_window);
            deleteLater();
        });
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            m_soon.start(0);
        return false;
    }

private:
    QWidget *const m_window;
    QTimer m_soon;
};

} // namespace

void keepOnScreen(QWidget *window)
{
    if (!window->isVisible())
        return;
    bringOntoScreen(window);
    new Follower(window);
}
