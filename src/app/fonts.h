// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QFont>

// Variants of a font.
class Fonts
{
    Q_DECLARE_TR_FUNCTIONS(Fonts)

public:
    static QFont makeBold(const QFont &font);
    // Bold and half as large again.
    static QFont makeHeader(const QFont &font);
    // Fixed pitch, in the first of the usual families that the system has.
    static QFont makeFixed(const QFont &font);
};
