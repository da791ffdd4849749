// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "hprogressbar.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QPointer>
#include <QString>

class GeneralTip;

// Progress of a long operation on two bars: the total and the current item. The working thread
// tells an Object how far it is; the Object does the arithmetic and sends numbers to a Minion on
// the GUI thread, which sets the bars.
namespace Progress {

// One of several parallel downloads.
struct ThreadState
{
    enum State : quint32 { Idle = 0, Retrying = 1, Running = 2, Finished = 3 };

    QString activity;
    Steps value = 0;
    Steps max = 1;
    quint32 state = Idle;
};

// All parallel downloads, by value, so that a copy can cross threads.
class ThreadsState
{
public:
    ThreadsState() = default;
    explicit ThreadsState(unsigned int count) : m_threads(count) {}

    unsigned int count() const { return static_cast<unsigned int>(m_threads.size()); }
    ThreadState &operator[](unsigned int thread) { return m_threads[thread]; }
    const ThreadState &operator[](unsigned int thread) const { return m_threads[thread]; }

private:
    QList<ThreadState> m_threads;
};

// Sets the bars and shows the tip of the item bar. Lives on the GUI thread; the bars must outlive
// it or go before it, which it notices.
class Minion : public QObject
{
    Q_OBJECT

public:
    Minion(HProgressBar *totalBar, HProgressBar *itemBar);

    const ThreadsState &threads() const { return m_threads; }
    // Fills a tip with the state of each download; `minion` is a Minion.
    static void setupTip(GeneralTip *tip, void *minion);

public Q_SLOTS:
    void startTotal(const QString &activity, Steps max);
    void startItem(const QString &activity, Steps total, Steps itemMax);
    void changeItemActivity(const QString &activity);
    void changeItemActs(Steps total);
    void setItemValue(Steps total, Steps item);
    void endItemActs(Steps total);
    void setTotalValue(Steps total);
    void updateThreadsState(const ThreadsState &threads);
    void reset();
    void itemProgressToolTip(const QPoint &pos);

private:
    static QString runningText(const ThreadState &thread);

    QPointer<HProgressBar> m_totalBar;
    QPointer<HProgressBar> m_itemBar;
    ThreadsState m_threads;
};

// The reporter. Used by one thread at a time, the one it was created on. Values are sent at most
// about every 10 milliseconds.
class Object : public QObject
{
    Q_OBJECT

public:
    // A monotonic time in milliseconds.
    using Clock = qint64 (*)();

    // Without a clock the real one.
    Object(HProgressBar *totalBar, HProgressBar *itemBar, Clock clock = nullptr);
    ~Object() override;

    // A new operation of `max` steps, and its items: each moves the total by `totalSteps` while its
    // own bar runs through `itemSteps`.
    void startTotal(const QString &activity, Steps max);
    void startItem(const QString &activity, Steps totalSteps, Steps itemSteps);
    void changeItemActivity(const QString &activity);
    void setItemValue(Steps value);
    void setTotalValue(Steps value);

    // `count` acts share `steps` of the total. Act numbers count from 1: the number that will be
    // done when the act is.
    void setupItemActs(Steps steps, Steps count);
    void changeItemActs(Steps count);
    void startItemAct(const QString &activity, Steps itemSteps, Steps act);
    void endItemActs();

    // Parallel downloads within an act; the item bar shows their sum.
    void setupItemActsThreads(const QString &activity, Steps steps, Steps act, unsigned int threads,
                              Steps itemSteps);
    void startItemActThread(const QString &activity, unsigned int thread, Steps max);
    void setItemActsThreadValue(unsigned int thread, Steps value);
    void retryItemActThread(unsigned int thread);
    void endItemActThread(unsigned int thread);
    void endItemActsThreads();

    void reset();

Q_SIGNALS:
    void startTotalSig(const QString &activity, Steps max);
    void startItemSig(const QString &activity, Steps total, Steps itemMax);
    void changeItemActivitySig(const QString &activity);
    void changeItemActsSig(Steps total);
    void setItemValueSig(Steps total, Steps item);
    void endItemActsSig(Steps total);
    void setTotalValueSig(Steps total);
    void updateThreadsStateSig(const ThreadsState &threads);
    void resetSig();

private:
    bool isQuietTimeOver();
    void updateGui();
    Steps actsPosition(Steps acts) const;
    Steps actsSpan(Steps act) const;
    Steps withoutThread(unsigned int thread) const;

    Minion *m_minion;
    bool m_onGuiThread;
    Clock m_clock;
    qint64 m_throttleStart; // of the last item start or value sent
    qint64 m_guiStart;      // of the last look at the event queue
    Steps m_totalValue = 0;
    Steps m_totalMax = 1;
    Steps m_itemBase = 0; // where on the total bar the item began
    Steps m_itemEnd = 0;  // where on the total bar the item will end
    Steps m_itemValue = 0;
    Steps m_itemMax = 1;
    Steps m_actsSteps = 0; // what the acts share of the total
    Steps m_actsEnd = 0;   // where on the total bar the last act will end
    Steps m_actsCount = 0;
    Steps m_actsDone = 0; // before the current one
    Steps m_threadsSteps = 0;
    Steps m_threadsActs = 0;
    ThreadsState m_threads;
};

// Keeps an Object in `slot` for the length of an operation.
class User
{
public:
    User(Object *&slot, HProgressBar *totalBar, HProgressBar *itemBar);
    User(const User &) = delete;
    User &operator=(const User &) = delete;
    ~User();

private:
    Object *&m_slot;
};

} // namespace Progress

Q_DECLARE_METATYPE(Progress::ThreadsState)
