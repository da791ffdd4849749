// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Measures searches of a large root: how long each takes until its result is painted, how long the
// event loop is silent meanwhile, and what memory it takes. tools/bench-search builds and runs it.

#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "packagetable/view.h"
#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>

namespace {

int anonymousMiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("RssAnon:") + 8).trimmed().split(' ').first().toInt() / 1024;
}

// Notes the longest time between two turns of the event loop.
class Pulse : public QObject
{
public:
    Pulse()
    {
        m_timer.start();
        m_ticks.callOnTimeout(this, [this] { longest = std::max(longest, m_timer.restart()); });
        m_ticks.start(5);
    }
    void clear()
    {
        longest = 0;
        m_timer.restart();
    }
    qint64 longest = 0; // milliseconds

private:
    QTimer m_ticks;
    QElapsedTimer m_timer;
};

} // namespace

int main(int argc, char *argv[])
{
    using namespace PackageTable;
    QApplication application(argc, argv);
    QMainWindow window;
    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    HProgressBar totalBar, itemBar;
    YumIO engine;
    engine.setup(&window, &totalBar, &itemBar);
    Model model(&engine, nullptr);
    SortFilterProxyModel proxy(StateFilter::All, true, true, &engine, nullptr);
    proxy.setSourceModel(&model);
    View view(&model, &proxy, central);
    layout->addWidget(&view);
    window.setCentralWidget(central);
    window.resize(1200, 800);
    window.show();
    if (!engine.initialize() || !engine.collect({}))
        return 1;
    model.reset();
    QApplication::processEvents();
    const int before = anonymousMiB();
    std::printf("%d rows, RssAnon %d MiB\n", proxy.rowCount(), before);
    proxy.setFilterRegExp(QString());

    Pulse pulse;
    bool first = true;
    for (const QString &pattern : QCoreApplication::arguments().mid(1)) {
        QElapsedTimer timer;
        timer.start();
        pulse.clear();
        if (first) {
            engine.collectFileLists();
            engine.collectOtherData();
            std::printf("loaded: %lld ms, RssAnon +%d MiB\n", timer.elapsed(),
                        anonymousMiB() - before);
            proxy.setMode(Mode::Search);
        }
        proxy.setFilterRegExp(pattern);
        const qint64 silent = pulse.longest;
        QElapsedTimer paint;
        paint.start();
        const int found = proxy.rowCount();
        view.viewport()->repaint();
        std::printf("%-28s %6lld ms, silent for %lld ms, painted in %lld ms, %d rows, RssAnon +%d "
                    "MiB\n",
                    qPrintable(pattern), timer.elapsed(), silent, paint.elapsed(), found,
                    anonymousMiB() - before);
        std::fflush(stdout);
        first = false;
    }
    proxy.setSourceModel(nullptr);
    engine.clear();
    return 0;
}
