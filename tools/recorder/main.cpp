// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorder.h"

#include "app/programname.h"
#include "mainwindow/mainwindow.h"

#include <QApplication>
#include <QStyleFactory>

#include <fcntl.h>
#include <unistd.h>

// Shows the main window on the system of VOKROOT and drives it; see Recorder.
int main(int argc, char **argv)
{
    // Answers go past what a transaction redirects.
    const int answers = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 10);
    QApplication app(argc, argv);
    app.setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    setProgramName("vok");
    MainWindow window;
    window.resize(1100, 700);
    const Recorder recorder(&window, answers);
    window.show();
    return app.exec();
}
