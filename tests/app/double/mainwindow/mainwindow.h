// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packagetable/packagetable.h"
#include "repo/yumrepoenabled.h"

#include <QStringList>

// In the place of the program's window: writes down what the command line does to it.
class MainWindow
{
public:
    void setMode(PackageTable::Mode mode) { note("mode", QString::number(int(mode))); }
    void setRegexp(const char *regexp) { note("regexp", QString::fromLocal8Bit(regexp)); }
    void setStateFilter(PackageTable::StateFilter state)
    {
        note("state", QString::number(int(state)));
    }
    void setDups(bool dups) { note("dups", QString::number(dups)); }
    void setGroups(bool groups) { note("groups", QString::number(groups)); }
    void setStartInEditor(bool start) { note("editor", QString::number(start)); }
    void setShowLogAtStart(bool show) { note("log", QString::number(show)); }
    void addRepoRequest(const YumRepoEnabled &request)
    {
        note(request.enabled ? "enable" : "disable", request.pattern.pattern());
    }

    QStringList calls;

private:
    void note(const char *name, const QString &value)
    {
        calls.append(QLatin1String(name) + u' ' + value);
    }
};
