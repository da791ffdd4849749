// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QString>

namespace Engine {

// One download.
struct Meter
{
    QString text;
    unsigned int thread = 0;
    quint64 max = 1; // bytes, 1 while the size is unknown
    quint64 read = 0;
    bool sized = false;
    bool started = false;
    bool rebuild = false; // no download, but the rebuilding of packages from deltas
    bool single = false;  // has the item bar for itself
    bool retrying = false;
};

// Downloads of one act: as many of them as it has threads are seen on the bars.
struct Meters
{
    QHash<QString, Meter> byId;
    unsigned int threads = 0;
};

// Metadata, during a collection.
struct MetadataDownloads
{
    Meters meters = {{}, 1};
    quint32 act = 0;
};

// Packages, during an apply.
struct PackageDownloads
{
    Meters meters;
    bool parallel = false; // told as one round of several
    unsigned int nextThread = 0;
    unsigned int left = 0;          // of the round
    bool deltaRebuildShown = false; // the rebuilding has its item on the bar
};

} // namespace Engine
