// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "yumio/yumio.h"

#include <QHash>
#include <QStringList>

// Carries what the user has marked over a refresh of the engine's rows: a mark goes to the row of the
// same kind, name and family where that row's state allows its action.
class Marks
{
public:
    // Texts for the user, sorted.
    struct Told
    {
        QStringList lost;    // names of what can no longer be done
        QStringList changed; // "name OLD -> NEW" where it is done with another version now
    };

    // Before the rows go.
    void take(const YumIO &yumIO);
    // When there are rows again; without any the marks wait for the next time.
    Told giveBack(const YumIO &yumIO);
    // Of the marks that wait.
    qsizetype count() const { return m_marks.size(); }
    void clear() { m_marks.clear(); }

private:
    struct Mark
    {
        Package::Kind kind;
        Package::Action action;
        QString version;
    };

    QHash<YumIO::EntryKey, Mark> m_marks;
};
