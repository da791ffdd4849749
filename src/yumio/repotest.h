// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>

// What a test of a repository met, in its order; passwords are masked.
struct RepoAnswer
{
    enum class Kind {
        Good,     // repository metadata
        Password, // 401, 403 or the like
        Host,     // an unknown one
        Refused,  // the connection was
        Timeout,
        Certificate, // it was not accepted
        Missing,     // 404 or the like
        NoList,      // the same, of a list of mirrors
        Proxy,       // it does not let through, or cannot be reached
        Nothing,     // something that is no repository metadata
        Empty,       // a list of mirrors that names none
        Other,
        Definition // the library does not take the definition, or one option of it
    };

    Kind kind = Kind::Other;
    QString url;    // empty for a definition
    QString detail; // the library's own reason
};

// One test: the repository's section as a configuration file would hold it.
struct RepoTest
{
    QString section;
    QList<RepoAnswer> answers;
};
