// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

namespace Engine {

// What the user is to be told of failures.
struct Reports
{
    int logMark = -1; // where the lines of a report begin that is being gathered; -1 for none
    // While rpm works nothing waits for an answer: the texts that are to be shown when it has ended,
    // and whether one of them is an error.
    bool held = false;
    QStringList texts;
    bool haveError = false;
};

} // namespace Engine
