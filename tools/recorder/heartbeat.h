// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QJsonArray>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <thread>

// Measures how long the event loop of its thread stands still. A timer beats every few
// milliseconds; a beat that comes late is a gap. Each gap is told with what the thread did in it:
// `cpu` it was computing, `queued` it wanted to but another process had the processor; the rest it
// slept or waited for a lock. With stacks a second thread looks at the first one's stack during a
// gap. Times are in milliseconds.
class Heartbeat : public QObject
{
    Q_OBJECT

public:
    explicit Heartbeat(QObject *parent);
    ~Heartbeat() override;

    void enableStacks();
    // Names what runs; empty while nothing does, then gaps do not count.
    void setActivity(const QString &activity);
    // Longest first: {"at", "wall", "own" (wall without queued), "cpu", "queued", "activity",
    // "stack"}.
    QJsonArray gaps() const;
    qint64 now() const { return m_clock.elapsed(); }

Q_SIGNALS:
    void beat();

private:
    struct Gap
    {
        double at = 0, wall = 0, cpu = 0, queued = 0;
        QString activity;
        QStringList stack;
    };
    struct Reading
    {
        double time, cpu, queued;
    };

    void tick();
    void note();
    Reading read() const;

    QTimer m_timer;
    QElapsedTimer m_clock;
    Reading m_last;
    QString m_activity;
    QString m_activityBefore; // at the last beat
    QList<Gap> m_gaps;
    int m_schedstat;
    std::thread m_watcher;
    std::atomic<bool> m_ended = false;
    std::atomic<qint64> m_lastTick = 0;
};
