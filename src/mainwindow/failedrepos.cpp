// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Repositories that fail: the question about them, and doing without them for the session.

#include "mainwindow/job.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/noticerow.h"
#include "mainwindow/repofailuredialog.h"

#include "repo/yumconfio.h"
#include "yumio/yumio.h"

QString MainWindow::textOf(const Engine::FailedRepos &failed) const
{
    QStringList parts;
    for (const Engine::FailedRepo &repo : failed.repos) {
        if (repo.refused)
            parts +=
                (lacksCredentials(repo.id) ? tr("Repository %1 needs a user name and a password.")
                                           : tr("Wrong user name or password for repository %1."))
                    .arg(repo.id);
    }
    // The configuration may allow a collection to go on without some.
    for (const Engine::FailedRepo &repo : failed.repos) {
        if (!failed.report.contains(repo.text))
            parts += repo.text + QLatin1Char('\n') + tr("The repository is left out.");
    }
    if (!failed.report.isEmpty())
        parts += failed.report;
    return parts.join(QStringLiteral("\n\n"));
}

// Takes those away that were refused what the user has declined to give: that needs no question. False
// when none is left to ask about.
bool MainWindow::withoutSkipped(Engine::FailedRepos &failed)
{
    failed.repos.removeIf([&](const Engine::FailedRepo &repo) {
        const bool skipped = repo.refused && m_skipped.contains(repo.id);
        if (skipped) {
            m_refusedSkipped.append(repo.id);
            failed.report.remove(repo.text + QLatin1Char('\n'));
        }
        return skipped;
    });
    return !failed.repos.isEmpty();
}

// The answer of RepoFailureDialog. The form that may be asked for opens when the job has ended.
int MainWindow::askAbout(const Engine::FailedRepos &failed, int choices)
{
    QStringList ids;
    for (const Engine::FailedRepo &repo : failed.repos)
        ids.append(repo.id);
    RepoFailureDialog dialog(textOf(failed), ids, choices, this);
    const int answer = dialog.exec();
    if (m_quitAsked)
        return RepoFailureDialog::Close;
    if (answer == RepoFailureDialog::Edit)
        m_repoToEdit = dialog.repo();
    if (answer == RepoFailureDialog::LeaveOut) {
        for (const QString &id : std::as_const(ids))
            m_reposUsed.insert(id, false);
        m_leftOut += ids;
        m_leftOut.removeDuplicates();
    }
    return answer;
}

// Between two attempts of a collection: true for another one.
bool MainWindow::settleFailed(const Engine::FailedRepos &failed, QStringList &without)
{
    if (m_quitAsked)
        return false;
    Engine::FailedRepos rest = failed;
    bool again = true;
    if (withoutSkipped(rest)) {
        const int answer =
            askAbout(rest, RepoFailureDialog::LeaveOut | RepoFailureDialog::TryAgain);
        again = answer == RepoFailureDialog::LeaveOut || answer == RepoFailureDialog::TryAgain;
    }
    without = leftOut();
    if (again) // what failed is told
        m_logBefore = m_yumIO->logList().count();
    return again;
}

// After a job that has ended; a collection did without those that failed.
void MainWindow::showFailed(bool wasCollection)
{
    Engine::FailedRepos failed = m_yumIO->takeFailedRepos();
    if (m_quitAsked || m_yumIO->wasCancelled() || failed.repos.isEmpty() ||
        (wasCollection && !withoutSkipped(failed)))
        return;
    askAbout(failed, wasCollection ? RepoFailureDialog::LeaveOut : RepoFailureDialog::Close);
}

// What a collection does without, although it is not switched off. The user may have used some again
// in the editor.
QStringList MainWindow::leftOut() const
{
    QStringList ids = m_refusedSkipped;
    for (const QString &id : m_leftOut) {
        if (!m_reposUsed.value(id) && !ids.contains(id))
            ids.append(id);
    }
    return ids;
}

void MainWindow::showLeftOut()
{
    const QStringList ids = leftOut();
    if (ids.isEmpty()) {
        m_notices->clear(NoticeRow::LeftOut);
        return;
    }
    m_notices->setNotice(NoticeRow::LeftOut, tr("Left out for this session: %1.").arg(firstOf(ids)),
                         tr("The packages of these repositories are missing from the table:") +
                             QLatin1Char('\n') + ids.join(QLatin1Char('\n')),
                         tr("Use Again"), [this] { useLeftOut(); });
}

void MainWindow::useLeftOut()
{
    if (m_busy || m_dialogRuns)
        return;
    for (const QString &id : leftOut())
        m_reposUsed.insert(id, true);
    m_leftOut.clear();
    reposChanged(); // which asks for the credentials again
}
