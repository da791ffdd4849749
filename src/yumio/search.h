// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "package.h"
#include "searchtexts.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <map>
#include <memory>

// One search: an extended POSIX expression, the rows to look at, and for each whether any of its
// fields holds the expression.
struct SearchRequest
{
    QString pattern;
    QList<const Package::Entry *> entries;
    QList<bool> found;
};

namespace Engine {

// What searches have read since the last collection.
struct Search
{
    // By repository; those of installed packages under the empty name.
    std::map<QString, std::unique_ptr<SearchTexts>> texts;
    QSet<QString> damaged; // repositories whose file in the cache is not to be read
};

} // namespace Engine

// Where in the cache the texts of a repository may be kept, and as what.
struct SearchCache
{
    QString path;
    QByteArray identity;
};
using SearchCaches = QHash<QString, SearchCache>;
