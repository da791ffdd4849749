// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Measures the window on a large root, against the budgets: its start, and what is done to all rows.
// Medians of five. tools/bench-table builds and runs it.

#include "mainwindow/mainwindow.h"
#include "mainwindow/marks.h"
#include "packagetable/sortfilterproxymodel.h"
#include "packagetable/view.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <unistd.h>

namespace {

using Work = std::function<void()>;

void settle()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

// Milliseconds of `work`, what it leaves to be painted included. Before each of five turns comes
// `prepare`.
double measure(const Work &work, const Work &prepare = {})
{
    QList<double> times;
    for (int turn = 0; turn < 5; ++turn) {
        if (prepare)
            prepare();
        settle();
        QElapsedTimer timer;
        timer.start();
        work();
        settle();
        times += double(timer.nsecsElapsed()) / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times[2];
}

void tell(const char *what, double ms, double budget)
{
    std::printf("%-40s %8.1f ms  of %5.0f  %s\n", what, ms, budget, ms <= budget ? "" : "OVER");
    std::fflush(stdout);
}

double secondsSinceStart()
{
    QFile stat(QStringLiteral("/proc/self/stat"));
    if (!stat.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = stat.readAll();
    const double ticks = text.mid(text.lastIndexOf(')') + 2).split(' ').at(19).toDouble();
    timespec now = {};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9 - ticks / double(sysconf(_SC_CLK_TCK));
}

int peakKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6).trimmed().split(' ').first().toInt();
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace PackageTable;
    QApplication application(argc, argv);
    MainWindow window;
    window.setStateFilter(StateFilter::All);
    window.setGroups(true);
    window.show();
    auto *view = window.findChild<View *>();
    auto *proxy = window.findChild<SortFilterProxyModel *>();
    auto *edit = window.findChild<QLineEdit *>();
    while (!view->isEnabled() || !view->isVisible())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    settle();
    std::printf("start %.3f s, peak %d KiB, %d rows\n", secondsSinceStart(), peakKiB(),
                proxy->rowCount());
    std::fflush(stdout);
    if (application.arguments().contains(QStringLiteral("start")))
        _exit(0);

    const auto filter = [&](const char *pattern) {
        edit->setText(QLatin1String(pattern));
        window.filtersearch();
    };
    const auto all = [&] { filter(".*"); };
    tell("an expression, all rows remain", measure([&] { filter("[a-z]"); }, all), 250);
    tell("an expression, few rows remain", measure([&] { filter("zephyr-z"); }, all), 100);
    tell("an expression, no row remains", measure([&] { filter("nothinghere"); }, all), 100);
    all();
    double slowest = 0;
    for (int column = 0; column < ColumnCount; ++column) {
        slowest =
            std::max(slowest, measure([&] { view->sortByColumn(column, Qt::DescendingOrder); },
                                      [&] {
                                          view->sortByColumn(NameColumn + (column == NameColumn),
                                                             Qt::AscendingOrder);
                                      }));
    }
    tell("a sort, the slowest column's", slowest, 200);
    tell("sizing all columns", measure([&] { view->sizeColumnsToContents(); }), 300);

    const YumIO &engine = *window.findChild<YumIO *>();
    const auto clear = [&] { window.clearActions(); };
    tell("marking the listed updates", measure([&] { window.setUpdateListed(); }, clear), 100);
    QList<Package::State> states;
    for (Package::Entry *entry : engine) {
        states += entry->state;
        entry->state = Package::State::Updatable;
    }
    tell("marking all rows as updates", measure([&] { window.setUpdateListed(); }, clear), 100);
    const auto marked = [&] {
        return std::count_if(engine.begin(), engine.end(), [](const Package::Entry *entry) {
            return entry->action == Package::Action::Update;
        });
    };
    if (window.setUpdateListed(); marked() != engine.count())
        qFatal("not every row was marked");
    if (clear(); marked() != 0)
        qFatal("not every mark was cleared");
    const auto mark = [&] {
        for (Package::Entry *entry : engine)
            entry->action = Package::Action::Update;
    };
    view->selectAll();
    tell("marking all rows by their selection", measure([&] { window.setSelected(); }, clear), 100);
    tell("clearing the marks of all rows", measure(clear, mark), 100);
    mark();
    Marks marks;
    tell("taking the marks of all rows", measure([&] { marks.take(engine); }, [&] { marks = {}; }),
         100);
    for (int i = 0; i < engine.count(); ++i)
        engine[i]->state = states[i];
    clear();

    view->setFocus();
    view->setCurrentIndex(proxy->index(0, NameColumn));
    tell("one page down, key to painted", measure([&] {
             QKeyEvent press(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
             QApplication::sendEvent(view, &press);
         }),
         16);
    tell("selecting all rows", measure([&] { view->selectAll(); }, [&] { view->clearSelection(); }),
         100);
    tell("the same with all rows selected", measure([&] {
             view->verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
         }),
         16);
    tell("keeping place and selection of all rows", measure([&] { view->goTo(view->place()); }),
         250);
    std::printf("peak %d KiB\n", peakKiB());
    std::fflush(stdout);
    _exit(0); // the window's own end is not measured
}
