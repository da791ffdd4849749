// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What happens on the machine around the window: whether the table is still true, and what makes it
// so again.

#include "mainwindow/machinewatch.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/noticerow.h"

#include "repo/rootpath.h"
#include "repo/yumconfio.h"
#include "widgets/explaindisabled.h"
#include "widgets/messagebox.h"
#include "yumio/yumio.h"

#include <QPushButton>

#include <algorithm>

// Before anything is collected with a new session of the engine: what it rests on, and what this user may
// not do.
void MainWindow::noteSession()
{
    m_watch->setSources(m_yumIO->sources());
    const Engine::MissingRights &missing = m_yumIO->missingRights();
    m_yumConfIO->setLookOnly(missing.configuration);
    yumConfIOChanged(); // which cache is cleaned
    explainDisabled(m_applyButton, missing.packages);
    if (missing.packages.isEmpty())
        m_notices->clear(NoticeRow::Rights);
    else
        m_notices->setNotice(NoticeRow::Rights, tr("For looking only: packages cannot be changed."),
                             missing.packages);
}

// After the cleaning of a cache.
void MainWindow::noteCleaned(bool whole)
{
    if (!whole)
        note(tr("Not everything was cleaned. The log (Ctrl+L) tells what is left."));
    const QString own = m_yumIO->missingRights().ownCache;
    if (!own.isEmpty())
        note(tr("Only your own cache in %1 was cleaned: the system's in %2 cannot be written.")
                 .arg(own, m_yumConfIO->cachedir));
}

// Between jobs only: what a job changes is collected by it, and it has the interpreter.
void MainWindow::lookAround()
{
    if (m_busy || m_dialogRuns || m_finished || m_mainArea->isHidden())
        return;
    m_watch->look();
    if (!m_watch->isOutdated()) {
        m_notices->clear(NoticeRow::Outdated);
        return;
    }
    const QStringList files = changedFiles();
    const QString text = files.isEmpty() ? tr("The installed packages have changed.")
                         : m_watch->hasInstalledChanged()
                             ? tr("Installed packages and configuration have changed.")
                             : tr("The configuration has changed.");
    QString tip = tr("Another program did that since the packages were collected. What is marked "
                     "stays marked in a refresh where that is still possible.");
    if (!files.isEmpty())
        tip += QStringLiteral("\n\n") + files.join(u'\n');
    m_notices->setNotice(NoticeRow::Outdated, text, tip, tr("Refresh"), [this] { refresh(); });
}

QStringList MainWindow::changedFiles() const
{
    QStringList files;
    for (const QString &path : m_watch->changedFiles())
        files.append(tr("Changed: %1").arg(RootPath::shown(path)));
    return files;
}

// Before an apply that would start from a table that is not true any more, or when one did not begin
// for that reason.
bool MainWindow::askToRefresh()
{
    QStringList changes;
    const bool packages = m_yumIO->outdated(&changes);
    const QStringList files = changedFiles();
    if (m_quitAsked || (!packages && files.isEmpty()))
        return false;
    const QString what = packages ? tr("Another program has changed the installed packages since "
                                       "they were collected. Nothing was applied.")
                                  : tr("The configuration has changed since the packages were "
                                       "collected. Nothing was applied.");
    const QString text =
        tr("%1\n\nRefresh the table? What is marked stays marked where that is still "
           "possible.\n\n%2")
            .arg(what, (changes + files).join(u'\n'));
    return showMessageBox(QMessageBox::Warning, this, tr("VOK Yum Warning"), text, tr("Refresh"),
                          tr("Cancel"), QString(), 0, 1) == 0;
}

// What the table rests on now, when a collection has ended.
void MainWindow::noteCollected(bool collected)
{
    findReplacements();
    if (!collected && m_yumIO->count() > 0)
        return; // it is the former one
    m_watch->keep();
    m_enabledThen = enabledInFiles();
}

QHash<QString, bool> MainWindow::enabledInFiles() const
{
    QHash<QString, bool> enabled;
    for (const Repo::Entry &entry : std::as_const(m_yumConfIO->repos))
        enabled.insert(entry.id, entry.enabled == Qt::PartiallyChecked
                                     ? m_yumConfIO->mainEnabled
                                     : entry.enabled == Qt::Checked);
    return enabled;
}

// Reads the configuration where another program has changed it. A repository that was switched on or
// off by that is so in this session, too, unless the command line says otherwise.
void MainWindow::readFilesAgain()
{
    m_watch->look();
    if (m_watch->changedFiles().isEmpty() || !m_yumConfIO->read(this))
        return;
    const QHash<QString, bool> enabled = enabledInFiles();
    for (auto it = enabled.cbegin(); it != enabled.cend(); ++it) {
        const auto then = m_enabledThen.constFind(it.key());
        const bool requested =
            std::any_of(m_repoRequests.cbegin(), m_repoRequests.cend(),
                        [&](const YumRepoEnabled &request) { return request.matches(it.key()); });
        if (then != m_enabledThen.cend() && *then != it.value() && !requested)
            m_reposUsed.insert(it.key(), it.value());
    }
    checkCredentials();
}
