// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "application.h"
#include "commandline.h"
#include "defaultstyle.h"
#include "display.h"
#include "translations.h"

#include "app/coredumps.h"
#include "app/programname.h"
#include "app/share.h"
#include "app/terminator.h"
#include "mainwindow/mainwindow.h"
#include "widgets/messagebox.h"

#include <QIcon>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

QIcon programIcon()
{
    QIcon icon(Share::absolute(QStringLiteral("pixmaps/vok.icon.png")));
    for (const int size : {16, 24, 32, 48, 64, 256})
        icon.addFile(Share::absolute(QStringLiteral("pixmaps/vok.icon-%1.png").arg(size)));
    return icon;
}

// A descriptor of these that the caller closed would be taken by the next file or pipe that is opened, and a
// transaction redirects them.
void openMissingDescriptors()
{
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(fd, F_GETFD) == -1 && errno == EBADF)
            (void) !open("/dev/null",
                         fd == STDIN_FILENO ? O_RDONLY : O_WRONLY); // gets the lowest number
    }
}

} // namespace

int main(int argc, char **argv)
{
    openMissingDescriptors();
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
