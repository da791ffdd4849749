// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "progress/generaltip.h"
#include "progress/progress.h"

#include <QApplication>
#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using Progress::ThreadsState;
using Progress::ThreadState;

namespace {

void setupLabel(GeneralTip *tip, void *text)
{
    auto *layout = new QGridLayout(tip);
    layout->addWidget(new QLabel(*static_cast<QString *>(text)), 0, 0);
}

ThreadsState downloads(const QList<ThreadState> &states)
{
    ThreadsState result(static_cast<unsigned int>(states.size()));
    for (unsigned int i = 0; i < result.count(); ++i)
        result[i] = states[i];
    return result;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u'|');
}

// The labels of a tip in reading order.
QStringList texts(const GeneralTip *tip)
{
    QStringList result;
    const auto *grid = static_cast<const QGridLayout *>(tip->layout());
    for (int row = 0; row < grid->rowCount(); ++row) {
        for (int column = 0; column < 2; ++column) {
            if (const QLayoutItem *item = grid->itemAtPosition(row, column))
                result.append(static_cast<QLabel *>(item->widget())->text());
        }
    }
    return result;
}

} // namespace

class TestBars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bar = new HProgressBar;
        m_bar->setAttribute(Qt::WA_AlwaysShowToolTips);
        m_bar->resize(300, 30);
        m_bar->show();
    }

    void cleanup()
    {
        delete m_bar;
        QVERIFY(!GeneralTip::current()); // a tip goes with the window that it is about
    }

    void barText()
    {
        m_bar->setRange(0, 100);
        QCOMPARE(m_bar->text(), QString());
        m_bar->setActivity(QStringLiteral("Reading"));
        QCOMPARE(m_bar->text(), QStringLiteral("Reading"));
        m_bar->setValue(40);
        QCOMPARE(m_bar->text(), QStringLiteral("Reading (40%)"));
        m_bar->reset();
        QCOMPARE(m_bar->text(), QString());
        m_bar->setValue(40);
        QCOMPARE(m_bar->text(), QStringLiteral("40%"));
    }

    void tipRows_data()
    {
        columns<QList<ThreadState>, QStringList>("states", "rows");
        const ThreadState idle;
        const ThreadState retrying{QStringLiteral("a"), 0, 10, 1};
        const ThreadState running{QStringLiteral("<b>"), 250, 1000, 2};
        const ThreadState unknown{QStringLiteral("c"), 250, 1, 2};
        const ThreadState finished{QStringLiteral("d"), 5, 5, 3};
        row("each", QList<ThreadState>{idle, retrying, running, unknown, finished, idle},
            words("a|Retrying|<b>|250 / 1000 (25%)|c|In Progress|d|Complete|"
                  "2 downloads|Not Started Yet"));
        row("25 finished, 3 running",
            QList<ThreadState>(3, running) + QList<ThreadState>(25, finished),
            words("25 downloads|Complete|<b>|250 / 1000 (25%)|<b>|250 / 1000 (25%)|"
                  "<b>|250 / 1000 (25%)"));
    }

    void tipRows()
    {
        QFETCH(QList<ThreadState>, states);
        QFETCH(QStringList, rows);
        Progress::Minion minion(nullptr, m_bar);
        minion.updateThreadsState(downloads(states));
        Q_EMIT m_bar->toolTip(QPoint(1, 1));
        QVERIFY(GeneralTip::current());
        QCOMPARE(texts(GeneralTip::current()), rows);

        minion.updateThreadsState(ThreadsState());
        delete GeneralTip::current();
        Q_EMIT m_bar->toolTip(QPoint(1, 1));
        QVERIFY(!GeneralTip::current());
    }

    void tipHides()
    {
        const auto hides = [this](QEvent *event) {
            QString text = QStringLiteral("Tip");
            const QPointer<GeneralTip> before = GeneralTip::current();
            GeneralTip::showTip(QPoint(10, 10), setupLabel, &text, m_bar, true);
            if (before)
                return false; // two at a time
            // To an object without handlers of its own: the tip listens to the whole application.
            QObject receiver;
            QApplication::sendEvent(&receiver, event);
            return !GeneralTip::current()->isVisible();
        };
        QKeyEvent shift(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
        QEvent move(QEvent::Move);
        QVERIFY(!hides(&shift) && !hides(&held) && !hides(&move));
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QEvent wheel(QEvent::Wheel);
        QEvent otherWindow(QEvent::WindowDeactivate);
        QVERIFY(hides(&letter) && hides(&wheel) && hides(&otherWindow));
        QTRY_VERIFY(!GeneralTip::current());
    }

    void tipStaysOnScreen()
    {
        const QRect screen = m_bar->screen()->geometry();
        QString text = QStringLiteral("A tip of some width\nand height");
        for (const QPoint &corner :
             {screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()}) {
            GeneralTip::showTip(corner, setupLabel, &text, m_bar, true);
            const QRect tip = GeneralTip::current()->geometry();
            QVERIFY2(screen.contains(tip), QTest::toString(tip));
            QVERIFY2(!tip.contains(corner), QTest::toString(tip));
        }
    }

private:
    HProgressBar *m_bar = nullptr;
};

QTEST_MAIN(TestBars)
#include "test_bars.moc"
