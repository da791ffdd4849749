// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "package.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace Engine {

// Key of an entry: packages by name and architecture family, groups by name alone.
struct EntryKey
{
    EntryKey(bool isGroup, QString name, QString arch);
    bool operator==(const EntryKey &other) const = default;
    bool isGroup;
    QString name;
    QString arch;
};

size_t qHash(const EntryKey &key, size_t seed = 0);

using EntryHash = QHash<EntryKey, Package::Entry *>;

// The rows and what finds them. Every entry's reference to its object must have been released when
// the store goes.
struct Store
{
    Package::EntryList entries;            // published; owns them
    EntryHash byKey;                       // all rows, those not yet published too
    QHash<QString, Package::Entry *> best; // by name, among the architectures
    QSet<QString> archFamilies;
    QSet<QString> texts; // that many rows share
};

} // namespace Engine
