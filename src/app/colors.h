// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPalette>

// The colours of status texts and of field backgrounds.
class Colors
{
public:
    static QColor action();
    static QColor error();
    static QColor errorDisabled();
    static QColor warning();
    static QColor minor();
    static QColor minorDisabled();
    static QColor ok();
    static QColor requiredBg();
    static QColor errorBg();
    static QColor warningBg();
    static QColor okBg();

    // A text's colour on a background: itself where the contrast is 4.5 to 1 or more, else the nearest
    // shade of its hue that has it.
    static QColor readable(const QColor &text, const QColor &background);
    static bool isDark(const QColor &background);
    // As light as the backgrounds that the colours of status texts are made for.
    static bool isPale(const QColor &background);

    // With readable hints in empty fields, whose colour some desktops leave as it is on light fields.
    static QPalette withReadableHints(QPalette palette);

    // Copies with the background of fields coloured, and the text readable on it, for the active and
    // the inactive group.
    static QPalette makeRequired(const QPalette &palette);
    static QPalette makeError(const QPalette &palette);
    static QPalette makeWarning(const QPalette &palette);
    static QPalette makeOK(const QPalette &palette);
};
