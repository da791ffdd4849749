#include "application.h"

#include <QEvent>

bool Application::event(QEvent *event)
{
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    Q_EMIT quitAsked();
    return true;
}
