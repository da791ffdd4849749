// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include <functional>

namespace Engine {

// Keeps the reports of transactions in the system until they are read, also if the program is killed. Both functions
// are called on any thread. Adding a text twice keeps it once.
struct ReportKeeper
{
    std::function<void(const QString &text)> add, remove;
};

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
