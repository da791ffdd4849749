// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/progress.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <limits>

namespace {

qint64 now;

qint64 fakeClock()
{
    return now;
}

} // namespace

// The arithmetic and the throttling, seen on the bars. Time passes only where a test lets it.
class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        now = 1000;
        m_total = new HProgressBar;
        m_item = new HProgressBar;
        m_object = new Progress::Object(m_total, m_item, fakeClock);
    }

    void cleanup()
    {
        delete m_object;
        delete m_total;
        delete m_item;
    }

    void itemsShareTheTotal()
    {
        m_object->startTotal(QStringLiteral("All"), 100);
        m_object->startItem(QStringLiteral("One"), 30, 10);
        QCOMPARE(values(), QList<int>({0, 100, 0, 10}));
        setItem(5);
        QCOMPARE(values(), QList<int>({15, 100, 5, 10}));
        setItem(99);
        QCOMPARE(values(), QList<int>({30, 100, 10, 10}));
        m_object->startItem(QStringLiteral("Two"), 20, 3);
        QCOMPARE(values(), QList<int>({30, 100, 0, 3}));
        setItem(1);
        QCOMPARE(values(), QList<int>({36, 100, 1, 3}));
        QCOMPARE(m_item->text(), QStringLiteral("Two (33%)"));

        // An item without steps counts as complete.
        m_object->startItem(QStringLiteral("Three"), 10, 0);
        setItem(0);
        QCOMPARE(m_total->value(), 60);
    }

    void valuesAreThrottled()
    {
        m_object->startTotal(QStringLiteral("All"), 100);
        m_object->startItem(QStringLiteral("One"), 100, 100);
        QSignalSpy sent(m_object, &Progress::Object::setItemValueSig);
        now += 9;
        m_object->setItemValue(10);
        QCOMPARE(sent.size(), 0);
        now += 1;
        m_object->setItemValue(20);
        now += 2;
        m_object->setItemValue(30);
        m_object->setItemValue(100);
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent.at(0).at(1).value<Steps>(), Steps(20));
        m_object->startItem(QStringLiteral("Two"), 0, 1);
        QCOMPARE(m_total->value(), 100);
    }

    void actsShareTheirSteps()
    {
        m_object->startTotal(QStringLiteral("All"), 100);
        m_object->startItem(QStringLiteral("Preparing"), 10, 1);
        m_object->setupItemActs(90, 4);
        startAct(1, 10, 32);
        startAct(2, 32, 55);
        m_object->changeItemActs(9);
        QCOMPARE(m_total->value(), 30);
        startAct(3, 30, 40);
        startAct(50, 40, 100);
        m_object->endItemActs();
        QCOMPARE(m_total->value(), 100);

        // Without a count every act gets all.
        m_object->startTotal(QStringLiteral("Again"), 200);
        m_object->setupItemActs(60, 0);
        startAct(1, 100, 100);
        m_object->changeItemActs(0);
        QCOMPARE(m_total->value(), 160);
    }

    void threadsAddUp()
    {
        m_object->startTotal(QStringLiteral("All"), 1000);
        m_object->setupItemActs(1000, 2);
        m_object->setupItemActsThreads(QStringLiteral("Downloads"), 1000, 2, 2, 2000);
        m_object->startItemActThread(QStringLiteral("a.rpm"), 0, 1000);
        m_object->startItemActThread(QStringLiteral("b.rpm"), 1, 1000);
        QCOMPARE(m_item->text(), QStringLiteral("Downloads (0%)"));
        setThread(0, 500);
        setThread(1, 300);
        QCOMPARE(values(), QList<int>({200, 1000, 800, 2000}));
        now += 10;
        m_object->retryItemActThread(0);
        QCOMPARE(values(), QList<int>({75, 1000, 300, 2000}));
        setThread(0, 200);
        QCOMPARE(m_item->value(), 500);

        // A download that outgrows what was announced, and starts again, does not run below zero.
        setThread(0, 9000);
        QCOMPARE(m_item->value(), 2000);
        now += 10;
        m_object->retryItemActThread(0);
        QCOMPARE(m_item->value(), 0);

        // A number that the downloads do not have changes nothing.
        now += 10;
        m_object->setItemActsThreadValue(2, 700);
        m_object->retryItemActThread(7);
        QCOMPARE(m_item->value(), 0);
    }

    void largeNumbers()
    {
        const Steps huge = std::numeric_limits<Steps>::max();
        m_object->startTotal(QStringLiteral("All"), huge);
        m_object->startItem(QStringLiteral("One"), huge, huge);
        int last = 0;
        for (int eighth = 1; eighth <= 8; ++eighth) {
            setItem(huge / 8 * eighth);
            QVERIFY(m_item->value() > last);
            last = m_item->value();
            QCOMPARE(m_total->value(), last);
            QVERIFY(qAbs(double(last) / m_item->maximum() - eighth / 8.0) < 1e-6);
        }
    }

    void resetDisables()
    {
        m_object->startTotal(QStringLiteral("All"), 100);
        m_object->startItem(QStringLiteral("One"), 30, 10);
        m_object->startTotal(QStringLiteral("Again"), 100);
        QVERIFY(m_total->isEnabled() && !m_item->isEnabled());
        m_object->reset();
        QVERIFY(!m_total->isEnabled());
        QCOMPARE(values(), QList<int>({-1, 1, -1, 1}));
        QCOMPARE(m_total->text(), QString());
    }

    void workerThread()
    {
        QThread *gui = QThread::currentThread();
        Progress::Object *slot = nullptr;
        QScopedPointer<QThread> worker(QThread::create([&] {
            Progress::User user(slot, m_total, m_item);
            slot->startTotal(QStringLiteral("All"), 100);
            slot->startItem(QStringLiteral("One"), 50, 10);
            slot->setTotalValue(100);
        }));
        connect(m_total, &QProgressBar::valueChanged, this,
                [gui] { QCOMPARE(QThread::currentThread(), gui); });
        worker->start();
        QVERIFY(worker->wait());
        QCOMPARE(slot, nullptr);
        QCOMPARE(m_item->text(), QString()); // nothing touched the bars yet
        QCoreApplication::sendPostedEvents();
        QCOMPARE(m_total->value(), 100);
        QCOMPARE(m_item->text(), QStringLiteral("One (0%)"));
    }

private:
    QList<int> values() const
    {
        return {m_total->value(), m_total->maximum(), m_item->value(), m_item->maximum()};
    }

    void setItem(Steps value)
    {
        now += 10;
        m_object->setItemValue(value);
    }

    void setThread(unsigned int thread, Steps value)
    {
        now += 10;
        m_object->setItemActsThreadValue(thread, value);
    }

    // Runs an act and checks where on the total it begins and ends.
    void startAct(Steps act, int begin, int end)
    {
        m_object->startItemAct(QStringLiteral("Act"), 10, act);
        QCOMPARE(m_total->value(), begin);
        setItem(10);
        QCOMPARE(m_total->value(), end);
    }

    HProgressBar *m_total = nullptr;
    HProgressBar *m_item = nullptr;
    Progress::Object *m_object = nullptr;
};

QTEST_MAIN(TestProgress)
#include "test_progress.moc"
