// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What quitting would lose, and the question about it.

#include "mainwindow/mainwindow.h"

#include "repo/authdialog.h"
#include "widgets/messagebox.h"
#include "yumio/yumio.h"

#include <QApplication>

#include <algorithm>

// Rows that are marked, those of a collection that is under way included. What an apply has done is
// still marked until the rows are collected again, but is not lost.
qsizetype MainWindow::marked() const
{
    if (m_rpmBegan && m_busy)
        return 0;
    return m_marks.count() +
           std::count_if(m_yumIO->begin(), m_yumIO->end(), [](const Package::Entry *entry) {
               return entry->action != Package::Action::None;
           });
}

bool MainWindow::waitsForAnAnswer() const
{
    return m_dialogRuns || QApplication::activeModalWidget() || findChild<RepoAuth::Dialog *>();
}

// True when the user is asked, by whom the program then ends or not. Nobody is asked whom VOK asks
// something else already, nor while rpm is at work, which quitting does not break off.
bool MainWindow::askBeforeQuit()
{
    if (m_finished || m_quitAsked)
        return false;
    if (m_quitQuestion) {
        m_quitQuestion->raise();
        m_quitQuestion->activateWindow();
        return true;
    }
    if (m_inTransaction || waitsForAnAnswer())
        return false;
    const bool downloads = m_downloads && m_canCancel;
    const auto count = int(marked());
    QStringList lost;
    if (downloads)
        lost += tr("Packages are being downloaded.");
    if (count > 0)
        lost += tr("%Ln package(s) are marked and not applied.", nullptr, count);
    if (lost.isEmpty())
        return false;
    m_quitQuestion =
        openMessageBox(QMessageBox::Question, this, tr("VOK Quit"), lost.join(QStringLiteral("\n")),
                       downloads ? tr("&Break Off and Quit") : tr("&Quit Without Applying"),
                       tr("&Keep Open"), 1, 1, [this](int answer) {
                           if (answer == 0)
                               leave();
                       });
    return true;
}
