// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// A package designation of the form epoch:name-version-release.arch, split from the right.
struct Envra
{
    QString name;
    QString epoch; // empty when there is none
    QString version;
    QString release;
    QString arch;

    // False when the text has not that form.
    bool parse(const QString &text);
};
