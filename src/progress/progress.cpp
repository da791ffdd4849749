// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>

namespace {

// Between two values that are sent, and between two looks at the event queue.
constexpr qint64 quietMs = 9;

qint64 monotonicMs()
{
    static const QElapsedTimer clock = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    return clock.elapsed();
}

// a * b / c in whole steps, right also where the product needs more than 64 bits, as that of two
// sizes in bytes does.
Steps mulDiv(Steps a, Steps b, Steps c)
{
    __extension__ using Wide = unsigned __int128;
    return Steps(Wide(a) * b / c);
}

} // namespace

Progress::Object::Object(HProgressBar *totalBar, HProgressBar *itemBar, Clock clock)
    : m_minion(new Minion(totalBar, itemBar)),
      m_onGuiThread(QThread::currentThread() == QCoreApplication::instance()->thread()),
      m_clock(clock ? clock : monotonicMs), m_throttleStart(m_clock()), m_guiStart(m_throttleStart)
{
    qRegisterMetaType<Steps>("Steps");
    qRegisterMetaType<ThreadsState>("ThreadsState");
    m_minion->moveToThread(QCoreApplication::instance()->thread());
    connect(this, &Object::startTotalSig, m_minion, &Minion::startTotal);
    connect(this, &Object::startItemSig, m_minion, &Minion::startItem);
    connect(this, &Object::changeItemActivitySig, m_minion, &Minion::changeItemActivity);
    connect(this, &Object::changeItemActsSig, m_minion, &Minion::changeItemActs);
    connect(this, &Object::setItemValueSig, m_minion, &Minion::setItemValue);
    connect(this, &Object::endItemActsSig, m_minion, &Minion::endItemActs);
    connect(this, &Object::setTotalValueSig, m_minion, &Minion::setTotalValue);
    connect(this, &Object::updateThreadsStateSig, m_minion, &Minion::updateThreadsState);
    connect(this, &Object::resetSig, m_minion, &Minion::reset);
}

// The minion goes on the GUI thread, after what is on its way to it. That may be while this object
// is still going, and one that is half gone must not be asked about a connection.
Progress::Object::~Object()
{
    disconnect(m_minion);
    m_minion->deleteLater();
}

bool Progress::Object::isQuietTimeOver()
{
    const qint64 now = m_clock();
    if (now - m_throttleStart <= quietMs)
        return false;
    m_throttleStart = now;
    return true;
}

void Progress::Object::updateGui()
{
    if (!m_onGuiThread || m_clock() - m_guiStart <= quietMs)
        return;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_guiStart = m_clock();
}

void Progress::Object::startTotal(const QString &activity, Steps max)
{
    m_totalValue = 0;
    m_totalMax = max;
    if (m_onGuiThread)
        m_guiStart = m_clock();
    Q_EMIT startTotalSig(activity, max);
    updateGui();
}

void Progress::Object::startItem(const QString &activity, Steps totalSteps, Steps itemSteps)
{
    m_itemBase = m_totalValue = m_itemEnd;
    m_itemEnd = m_itemBase + totalSteps;
    m_itemValue = 0;
    m_itemMax = itemSteps;
    m_throttleStart = m_clock();
    Q_EMIT startItemSig(activity, m_totalValue, m_itemMax);
    updateGui();
}

void Progress::Object::changeItemActivity(const QString &activity)
{
    Q_EMIT changeItemActivitySig(activity);
    updateGui();
}

// The last value of an item gets no exception: when it comes too soon the bars catch up at the next
// item start or act end.
void Progress::Object::setItemValue(Steps value)
{
    m_itemValue = std::min(value, m_itemMax);
    const Steps span = m_itemEnd > m_itemBase ? m_itemEnd - m_itemBase : 0;
    m_totalValue = m_itemBase + (m_itemMax ? mulDiv(m_itemValue, span, m_itemMax) : span);
    if (isQuietTimeOver())
        Q_EMIT setItemValueSig(m_totalValue, m_itemValue);
}

void Progress::Object::setTotalValue(Steps value)
{
    value = std::min(value, m_totalMax);
    const bool completes = value == m_totalMax && m_totalValue != m_totalMax;
    if (!isQuietTimeOver() && !completes)
        return;
    m_throttleStart = m_clock();
    m_totalValue = value;
    Q_EMIT setTotalValueSig(m_totalValue);
    updateGui();
}

// Where the acts up to the given one end, from the start of the series.
Steps Progress::Object::actsPosition(Steps acts) const
{
    return m_actsCount ? mulDiv(m_actsSteps, acts, m_actsCount) : m_actsSteps;
}

// From the end of the acts done to the end of the given one. For an act before those the difference
// wraps around, and the item's end with it, back to where that act ends.
Steps Progress::Object::actsSpan(Steps act) const
{
    return actsPosition(act) - actsPosition(m_actsDone);
}

// The item's value less what the thread gave to it. The item's value is limited to its maximum,
// which downloads of unknown size can outgrow, so it can be less than one thread's.
Steps Progress::Object::withoutThread(unsigned int thread) const
{
    return m_itemValue - std::min(m_itemValue, m_threads[thread].value);
}

void Progress::Object::setupItemActs(Steps steps, Steps count)
{
    m_actsSteps = steps;
    m_actsEnd = m_itemEnd + steps;
    m_actsCount = count;
    m_actsDone = 0;
}

void Progress::Object::changeItemActs(Steps count)
{
    m_actsCount = count;
    m_itemEnd = m_actsEnd - m_actsSteps + actsPosition(m_actsDone);
    m_totalValue = m_itemEnd;
    Q_EMIT changeItemActsSig(m_totalValue);
    updateGui();
}

void Progress::Object::startItemAct(const QString &activity, Steps itemSteps, Steps act)
{
    act = std::min(act, m_actsCount);
    startItem(activity, actsSpan(act), itemSteps);
    m_actsDone = act;
}

void Progress::Object::endItemActs()
{
    m_itemBase = m_itemEnd = m_totalValue = m_actsEnd;
    Q_EMIT endItemActsSig(m_totalValue);
    updateGui();
}

void Progress::Object::setupItemActsThreads(const QString &activity, Steps steps, Steps act,
                                            unsigned int threads, Steps itemSteps)
{
    m_threadsSteps = steps;
    m_threadsActs = m_actsCount;
    m_threads = ThreadsState(threads);
    Q_EMIT updateThreadsStateSig(m_threads);
    const Steps before = act ? act - 1 : 0;
    startItem(activity, actsSpan(before), itemSteps);
    m_actsDone = before;
}

void Progress::Object::startItemActThread(const QString &activity, unsigned int thread, Steps max)
{
    if (thread >= m_threads.count())
        return;
    ThreadState &state = m_threads[thread];
    state.activity = activity;
    state.value = 0;
    state.max = max;
    state.state = ThreadState::Running;
    if (m_threads.count() == 1)
        changeItemActivity(activity);
    Q_EMIT updateThreadsStateSig(m_threads);
}

void Progress::Object::setItemActsThreadValue(unsigned int thread, Steps value)
{
    if (thread >= m_threads.count())
        return;
    const Steps others = withoutThread(thread);
    m_threads[thread].value = value;
    Q_EMIT updateThreadsStateSig(m_threads);
    setItemValue(others + value);
}

void Progress::Object::retryItemActThread(unsigned int thread)
{
    if (thread >= m_threads.count())
        return;
    m_threads[thread].state = ThreadState::Retrying;
    setItemValue(withoutThread(thread));
    m_threads[thread].value = 0;
    Q_EMIT updateThreadsStateSig(m_threads);
}

void Progress::Object::endItemActThread(unsigned int thread)
{
    if (thread >= m_threads.count())
        return;
    m_threads[thread].state = ThreadState::Finished;
    Q_EMIT updateThreadsStateSig(m_threads);
}

void Progress::Object::endItemActsThreads()
{
    m_threads = ThreadsState();
    Q_EMIT updateThreadsStateSig(m_threads);
}

void Progress::Object::reset()
{
    m_totalMax = 1;
    m_itemBase = 0;
    m_itemEnd = 0;
    m_itemMax = 1;
    m_threads = ThreadsState();
    Q_EMIT updateThreadsStateSig(m_threads);
    Q_EMIT resetSig();
    updateGui();
}

Progress::User::User(Object *&slot, HProgressBar *totalBar, HProgressBar *itemBar) : m_slot(slot)
{
    m_slot = new Object(totalBar, itemBar);
}

Progress::User::~User()
{
    delete m_slot;
    m_slot = nullptr;
}
