// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "heartbeat.h"

#include <QJsonObject>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <execinfo.h>
#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

namespace {

constexpr int interval = 5;
constexpr double noticed = 15; // shorter gaps are not kept
constexpr qint64 stackAfter = 40;

constexpr int deepest = 60;
void *frames[deepest];
std::atomic<int> frameCount = 0;

void takeStack(int)
{
    frameCount = backtrace(frames, deepest);
}

double milliseconds(clockid_t clock)
{
    timespec time;
    clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

} // namespace

Heartbeat::Heartbeat(QObject *parent)
    : QObject(parent), m_schedstat(open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC))
{
    m_clock.start();
    m_last = read();
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Heartbeat::tick);
    m_timer.start(interval);
}

Heartbeat::~Heartbeat()
{
    m_ended = true;
    if (m_watcher.joinable())
        m_watcher.join();
    close(m_schedstat);
}

void Heartbeat::enableStacks()
{
    if (m_watcher.joinable())
        return;
    void *first[1];
    backtrace(first, 1); // loads what it needs before a signal handler does
    struct sigaction action = {};
    action.sa_handler = takeStack;
    action.sa_flags = SA_RESTART;
    sigaction(SIGUSR2, &action, nullptr);
    m_watcher = std::thread([this, gui = pthread_self()] {
        qint64 seen = -1;
        while (!m_ended) {
            std::this_thread::sleep_for(std::chrono::milliseconds(interval));
            const qint64 tick = m_lastTick;
            if (tick == seen || m_clock.elapsed() - tick < stackAfter)
                continue;
            seen = tick;
            pthread_kill(gui, SIGUSR2);
        }
    });
}

Heartbeat::Reading Heartbeat::read() const
{
    char text[80] = {};
    unsigned long long ran = 0, queued = 0;
    if (pread(m_schedstat, text, sizeof text - 1, 0) > 0)
        std::sscanf(text, "%llu %llu", &ran, &queued);
    return {milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_THREAD_CPUTIME_ID),
            double(queued) / 1e6};
}

void Heartbeat::setActivity(const QString &activity)
{
    if (activity == m_activity)
        return;
    // What the thread does for itself once a worker has ended is another stretch.
    if (activity == QStringLiteral("done"))
        note();
    m_activity = activity;
    if (activity == QStringLiteral("done"))
        m_activityBefore = activity;
}

void Heartbeat::tick()
{
    note();
    Q_EMIT beat();
}

void Heartbeat::note()
{
    const Reading now = read();
    const double wall = now.time - m_last.time - interval;
    const int count = frameCount.exchange(0);
    if (wall > noticed && !m_activityBefore.isEmpty()) {
        Gap gap;
        gap.at = double(m_clock.elapsed());
        gap.wall = wall;
        gap.cpu = now.cpu - m_last.cpu;
        gap.queued = now.queued - m_last.queued;
        gap.activity = m_activityBefore;
        if (count > 0) {
            char **names = backtrace_symbols(frames, count);
            for (int i = 0; names && i < count; ++i)
                gap.stack.append(QString::fromLocal8Bit(names[i]));
            free(names);
        }
        m_gaps.append(gap);
    }
    m_last = now;
    m_activityBefore = m_activity;
    m_lastTick = m_clock.elapsed();
}

QJsonArray Heartbeat::gaps() const
{
    QList<Gap> sorted = m_gaps;
    const auto own = [](const Gap &gap) { return std::max(gap.wall - gap.queued, 0.0); };
    std::sort(sorted.begin(), sorted.end(),
              [&](const Gap &a, const Gap &b) { return own(a) > own(b); });
    QJsonArray result;
    for (const Gap &gap : std::as_const(sorted)) {
        QJsonObject object{
            {QStringLiteral("at"), gap.at},         {QStringLiteral("wall"), gap.wall},
            {QStringLiteral("own"), own(gap)},      {QStringLiteral("cpu"), gap.cpu},
            {QStringLiteral("queued"), gap.queued}, {QStringLiteral("activity"), gap.activity}};
        if (!gap.stack.isEmpty())
            object.insert(QStringLiteral("stack"), QJsonArray::fromStringList(gap.stack));
        result.append(object);
    }
    return result;
}
