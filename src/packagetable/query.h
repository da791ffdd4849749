// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packagetable/packagetable.h"

#include <QString>

namespace PackageTable {

// What is asked of every row: an expression, and what it is compared with.
struct Query
{
    Query() = default;
    Query(Mode mode, const QString &pattern);
    bool operator==(const Query &other) const = default;

    bool isEmpty() const { return pattern.isEmpty(); }
    // Whether file lists and change logs are among what it is compared with.
    bool readsExtraData() const { return mode == Mode::Search && !isEmpty(); }

    Mode mode = Mode::Filter;
    QString pattern; // without what adds nothing to it; empty when every text matches
};

} // namespace PackageTable
