// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What screen readers are told of a job while it runs; whoever sees the window reads it off the bars.

#include "mainwindow/mainwindow.h"

#include "progress/hprogressbar.h"
#include "widgets/announce.h"

namespace {

QString stateText(const QString &state)
{
    static constexpr struct
    {
        const char *state;
        const char *text;
    } texts[] = {
        {"lock", QT_TRANSLATE_NOOP("MainWindow", "Waiting for another program")},
        {"metadata", QT_TRANSLATE_NOOP("MainWindow", "Reading repositories and packages")},
        {"resolve", QT_TRANSLATE_NOOP("MainWindow", "Resolving dependencies")},
        {"download", QT_TRANSLATE_NOOP("MainWindow", "Downloading packages")},
        {"transaction", QT_TRANSLATE_NOOP("MainWindow", "Changing the installed packages")},
        {"search", QT_TRANSLATE_NOOP("MainWindow", "Searching")},
        {"test", QT_TRANSLATE_NOOP("MainWindow", "Testing the repository")},
    };
    for (const auto &known : texts) {
        if (state == QLatin1String(known.state))
            return MainWindow::tr(known.text);
    }
    return QString();
}

} // namespace

// Between its steps a job is done several times. The bar is then described as nothing, and nothing is
// announced before the job ends.
void MainWindow::speakState(const QString &state)
{
    const QString text = m_busy ? stateText(state) : tr("Ready");
    m_totalBar->setAccessibleDescription(text);
    if (text.isEmpty() || text == m_spokenState)
        return;
    m_spokenState = text;
    announce(this, text);
}
