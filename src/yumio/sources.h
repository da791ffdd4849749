// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>

namespace Engine {

// What a collection rests on beside metadata. Paths are those inside the system; not all need exist.
struct Sources
{
    // A file, or with a pattern those files of a directory whose names match it.
    struct File
    {
        QString path;
        QString pattern;
        bool operator==(const File &other) const = default;
    };

    QString database; // the directory of rpm's database; empty when it is not known
    QList<File> files;
};

// A package that replaces installed ones of other names, as the library's own upgrade would have it.
struct Replacement
{
    QString name;
    QString family; // of its architecture
    QString package;
    QString replaced;
};

// What this process may not do, and why, in words; each is empty where nothing is missing.
struct MissingRights
{
    QString packages;      // to change what is installed
    QString configuration; // to change the configuration files
    QString ownCache;      // the user's directory for caches where the system's cannot be written
};

} // namespace Engine
