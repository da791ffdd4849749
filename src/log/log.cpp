// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "log.h"

#include <utility>

Log::Entry::Entry(Kind kind, unsigned int level, QString text)
    : kind(kind), level(level), text(std::move(text))
{
}

qsizetype Log::EntryList::count()
{
    const QMutexLocker lock(&m_mutex);
    return m_entries.size();
}

QStringList Log::EntryList::errors(qsizetype from)
{
    QStringList texts;
    const QMutexLocker lock(&m_mutex);
    for (; from < m_entries.size(); ++from) {
        const Entry &entry = m_entries.at(from);
        if (entry.kind == Kind::Error && entry.level < 3)
            texts.append(entry.text);
    }
    return texts;
}

void Log::EntryList::emitAppended()
{
    Q_EMIT appended();
}
