// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/query.h"

namespace PackageTable {

// In front of and behind an expression that may match anywhere, ".*" adds nothing but work.
Query::Query(Mode mode_, const QString &pattern_) : mode(mode_), pattern(pattern_)
{
    const QString anything = QStringLiteral(".*");
    while (pattern.startsWith(anything))
        pattern.remove(0, anything.size());
    while (pattern.endsWith(anything))
        pattern.chop(anything.size());
}

} // namespace PackageTable
