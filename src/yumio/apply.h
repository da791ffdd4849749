// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "package.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace Engine {

// A package that comes or goes, as the listing has weighed it.
struct Element
{
    QString name;
    qint64 weight = 0;
    bool completesUpdate = false; // it goes because a newer version has come
};

// The apply in progress: where it stands on the bars, in acts of resolution, then of the download,
// then of the transaction's elements. Bytes of large transactions exceed 32 bits.
struct Apply
{
    bool applied = false;   // the user confirmed
    QString outcome;        // what became of the elements
    bool isComplete = true; // nothing in the outcome needs to be shown
    quint64 actPosition = 0;
    // Resolution.
    quint32 opCount = 0;
    quint32 downloadCount = 0;
    quint32 passActs = 0;
    quint32 resolutionActs = 0;
    // What the listing has weighed.
    qint64 bytesTotal = 0;
    qint64 bytesToDownload = 0;
    qint64 downloadBudget = 0;
    qint64 transactionWeight = 0;
    QSet<const Package::Entry *> arriving; // rows that get a package
    // By package tuple: name, architecture, epoch, version, release.
    QHash<QStringList, Element> coming;
    QHash<QStringList, Element> going;
    // The transaction.
    bool eventsStarted = false;
    qint64 lastElement = 0;
};

// Units of the second total, that of download, test and run.
constexpr qint64 runDownloadUnits = 24000;
constexpr qint64 deltaRebuildUnits = 2000;
constexpr qint64 transTestUnits = 2000;
constexpr qint64 runUnits = 9100;

} // namespace Engine
