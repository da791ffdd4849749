// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Log {

// What an entry is, and with it its colour. A number above the last counts as Error.
enum class Kind { Normal = 0, Ok = 1, Warning = 2, Error = 3, Action = 4 };

// One message: plain text, possibly of several lines. Level 0 is the most important; an entry is
// shown when its level is at most the detail level that the user chose, 0 to 10.
struct Entry
{
    Entry(Kind kind, unsigned int level, QString text);

    Kind kind;
    unsigned int level;
    QString text;
};

// All messages in order of arrival. It only grows, so an index stays valid. Any thread appends,
// holding the mutex, and then calls emitAppended() without it.
class EntryList : public QObject
{
    Q_OBJECT

public:
    QMutex &mutex() { return m_mutex; }
    // Only with the mutex held.
    QList<Entry> &entries() { return m_entries; }

    qsizetype count();
    // The texts of the important errors from that index on, the oldest first.
    QStringList errors(qsizetype from);

    void emitAppended();

Q_SIGNALS:
    void appended();

private:
    QMutex m_mutex;
    QList<Entry> m_entries;
};

} // namespace Log
