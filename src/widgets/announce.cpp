// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "announce.h"

#include "app/harmless.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void announce(QWidget *window, const QString &text)
{
    QAccessibleAnnouncementEvent event(window, text);
    QAccessible::updateAccessibility(&event);
}

#else

namespace {

// Readers speak a notification when it comes to be seen; this one is told to be.
class Notification : public QWidget
{
    Q_OBJECT

public:
    explicit Notification(QWidget *window) : QWidget(window)
    {
        setObjectName(QStringLiteral("notification"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(1, 1);
        show();
    }
};

class NotificationInterface : public QAccessibleWidget
{
public:
    explicit NotificationInterface(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Notification)
    {
    }
};

QAccessibleInterface *notification(const QString &, QObject *object)
{
    auto *widget = qobject_cast<Notification *>(object);
    return widget ? new NotificationInterface(widget) : nullptr;
}

} // namespace

void announce(QWidget *window, const QString &text)
{
    if (!QAccessible::isActive())
        return;
    auto *shown = window->findChild<Notification *>(QString(), Qt::FindDirectChildrenOnly);
    if (!shown) {
        QAccessible::installFactory(notification); // once, however often it is given
        shown = new Notification(window);
    }
    shown->setAccessibleName(harmlessLine(text));
    QAccessibleEvent event(shown, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

#include "announce.moc"

#endif
