// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "application.h"

#include "app/colors.h"

#include <QEvent>

bool Application::event(QEvent *event)
{
    if (event->type() == QEvent::Quit) {
        Q_EMIT quitAsked();
        return true;
    }
    if (event->type() == QEvent::ApplicationPaletteChange)
        mendPalette();
    return QApplication::event(event);
}

void Application::mendPalette()
{
    const QPalette readable = Colors::withReadableHints(palette());
    if (readable != palette())
        setPalette(readable);
}
