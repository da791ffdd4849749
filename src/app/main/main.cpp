// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "application.h"
#include "commandline.h"
#include "defaultstyle.h"
#include "display.h"
#include "terminator.h"
#include "translations.h"

#include "app/coredumps.h"
#include "app/programname.h"
#include "app/share.h"
#include "mainwindow/mainwindow.h"
#include "widgets/messagebox.h"

#include <QIcon>

#include <cstdio>

namespace {

QIcon programIcon()
{
    QIcon icon(Share::absolute(QStringLiteral("pixmaps/vok.icon.png")));
    for (const int size : {16, 24, 32, 48, 64, 256})
        icon.addFile(Share::absolute(QStringLiteral("pixmaps/vok.icon-%1.png").arg(size)));
    return icon;
}

} // namespace

int main(int argc, char **argv)
{
    CoreDumps::forbid();
    const bool displayMissing = isDisplayMissing(argc, argv);
    if (displayMissing)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    DefaultStyle style(argc, const_cast<const char **>(argv));
    Application app(argc, argv);
    const QString refusal = Share::refusal();
    if (!refusal.isEmpty()) {
        fprintf(stderr, "%s\n", qPrintable(refusal));
        if (!displayMissing)
            showMessageBox(QMessageBox::Critical, nullptr, QStringLiteral("VOK"), refusal);
        return 1;
    }
    installTranslations(app);
    style.set(app, QStringLiteral("plastique"));
    app.mendPalette();
    app.setWindowIcon(programIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("vok"));
    setProgramName(argv[0]);

    MainWindow window;
    applyCommandLine(argc, argv, window);
    if (displayMissing) {
        fprintf(stderr, "%s: there is no display to show a window on\n", qPrintable(programName()));
        return 1;
    }

    Terminator terminator;
    QObject::connect(&terminator, &Terminator::terminated, &window, &MainWindow::terminate);
    QObject::connect(&app, &Application::quitAsked, &window, &MainWindow::terminate);
    window.show();
    return app.exec();
}
