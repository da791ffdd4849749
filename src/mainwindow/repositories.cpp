// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The repositories: their editor, what they need to be told before they can be used, and what
// follows when they change.

#include "mainwindow/job.h"
#include "mainwindow/mainwindow.h"

#include "kivvet/kivvet.h"
#include "repo/authchecker.h"
#include "repo/editordialog.h"
#include "repo/yumconfio.h"
#include "yumio/yumio.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

// Asks for what is missing. True when an answer changed the configuration, of which the engine has
// then to be told.
bool MainWindow::checkCredentials()
{
    if (m_quitAsked)
        return false;
    const RepoAuth::Checker checker(this, m_yumConfIO);
    noteUnreadable();
    m_quitAsked = m_quitAsked || checker.quit;
    m_skipped = checker.skipped;
    m_refusedSkipped.clear();
    return checker.changed;
}

void MainWindow::noteUnreadable()
{
    const QStringList unreadable = m_yumConfIO->unreadable();
    if (unreadable.isEmpty() || unreadable == m_unreadable)
        return;
    m_unreadable = unreadable;
    const QString text =
        tr("Left out for lack of the right to read: %1").arg(unreadable.join(QStringLiteral(", ")));
    m_yumIO->log(Log::Kind::Warning, 0, text);
    note(text);
}

// Whether a repository has room for a user name and a password in its URLs, and neither stands there:
// the question for them was skipped.
bool MainWindow::lacksCredentials(const QString &id) const
{
    const auto &repos = std::as_const(m_yumConfIO->repos);
    return std::any_of(repos.begin(), repos.end(), [&](const Repo::Entry &entry) {
        QString nameKey, name, passwordKey, password;
        return entry.id == id &&
               Repo::Kivvet::getAuth(entry, nameKey, name, passwordKey, password) &&
               name.isEmpty() && password.isEmpty();
    });
}

// The editor lives as long as the window; what it shows is read anew each time.
RepoEditor::Dialog *MainWindow::repoEditor()
{
    if (!m_repoEditor) {
        m_repoEditor = new RepoEditor::Dialog(m_yumIO, m_yumConfIO, this);
        m_repoEditor->setJobRunner(
            [this](const std::function<void()> &work) { return runJob(work); });
        connect(m_repoEditor, &RepoEditor::Dialog::reposChanged, this, &MainWindow::reposChanged);
    }
    return m_repoEditor;
}

void MainWindow::editRepositories(bool initial)
{
    if (m_busy || m_dialogRuns)
        return;
    RepoEditor::Dialog *editor = repoEditor();
    editor->setChanged(initial);
    editor->edit(std::exchange(m_repoToEdit, QString())); // when it is shown
    dialogRuns(true);
    editor->exec();
    dialogRuns(false);
    if (m_readButton->isVisible())
        m_readButton->setFocus();
    if (std::exchange(m_reposChanged, false))
        reposChanged();
}

// The editor tells it while it closes; what follows is a job, which waits until it has closed.
void MainWindow::reposChanged()
{
    if (m_dialogRuns) {
        m_reposChanged = true;
        return;
    }
    const Job job(this);
    if (!job)
        return;
    checkCredentials();
    // The editor may have removed some that are left out. Of files that cannot be read, none is known.
    if (m_yumConfIO->unreadable().isEmpty()) {
        const auto &repos = std::as_const(m_yumConfIO->repos);
        m_leftOut.removeIf([&](const QString &id) {
            return std::none_of(repos.begin(), repos.end(),
                                [&](const Repo::Entry &entry) { return entry.id == id; });
        });
    }
    recollect();
}

// In place of the table before there is one: that it is being filled, or a button that does it.
void MainWindow::showPlaceholder(bool withButton)
{
    m_placeholder->setText(withButton ? tr("The packages have not been read yet.")
                                      : tr("Reading the packages..."));
    m_readButton->setVisible(withButton);
}
