// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QApplication;

// Chooses the widget style unless the user chose one: on the command line, or in the Qt settings.
class DefaultStyle
{
public:
    // To be constructed before the application object, which consumes Qt's own options.
    DefaultStyle(int argc, const char **argv);

    // Sets the style and its standard palette. Where there is no style of that name, the toolkit's
    // own "fusion" takes its place.
    void set(QApplication &app, const QString &styleName);

private:
    bool m_chosen = false;
};
