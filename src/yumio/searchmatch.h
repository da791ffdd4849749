// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "package.h"
#include "searchtexts.h"

#include <QList>
#include <QSet>
#include <QString>

#include <atomic>
#include <functional>
#include <vector>

// A row whose texts have been read, as far as they were loaded.
struct SearchSubject
{
    const Package::Entry *entry;
    const SearchTexts *texts;
    SearchTexts::Place place;
    qsizetype number; // of the verdict
    bool hasFiles;
    bool hasChanges;
};

// Looks for an extended POSIX expression in the fields of the subjects, on all processors, and puts
// the verdicts into `found`. Reports from the calling thread how many are done. Ends early once
// `cancelled` is set. The result are the texts that turned out damaged; their verdicts are missing.
QSet<const SearchTexts *> matchSubjects(const QString &pattern, std::vector<SearchSubject> subjects,
                                        QList<bool> &found, const std::atomic<bool> &cancelled,
                                        const std::function<void(qsizetype)> &report);
