// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the table lists: the mode, the expression and the other filters, and what they leave out.

#include "mainwindow/job.h"
#include "mainwindow/mainwindow.h"

#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "widgets/hframelabel.h"
#include "yumio/yumio.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <optional>

bool MainWindow::isSearchMode() const
{
    return m_modeCombo->currentIndex() == int(PackageTable::Mode::Search);
}

// A search asks the engine for every package, in a job; a filter does not. When it is cancelled, the
// control that started it goes back.
void MainWindow::changeFilter(const PackageTable::Query &query, const std::function<void()> &change)
{
    if (m_busy && isSearchMode())
        return;
    {
        std::optional<Job> job;
        if (isSearchMode())
            job.emplace(this);
        if (loadExtraData(query))
            change();
        if (m_cancelAsked || m_proxy->wasCancelled()) {
            showFilters();
            note(tr("The search was cancelled; the table is as before."));
        } else {
            noteUnseen();
        }
        showFailed();
    }
    anyFilterChanged();
}

// Makes the controls show what decides about the rows. What was typed stays.
void MainWindow::showFilters()
{
    const QSignalBlocker modeBlocker(m_modeCombo), stateBlocker(m_stateCombo);
    const QSignalBlocker dupsBlocker(m_dupsCheck), groupsBlocker(m_groupsCheck);
    m_modeCombo->setCurrentIndex(int(m_proxy->query().mode));
    m_stateCombo->setCurrentIndex(int(m_proxy->stateFilter()));
    m_dupsCheck->setChecked(m_proxy->dupsFilter());
    m_groupsCheck->setChecked(m_proxy->groupsFilter());
    showMode();
}

bool MainWindow::lacksExtraData(const PackageTable::Query &query) const
{
    return m_engineReady && query.readsExtraData() &&
           !(m_yumIO->hasFileLists() && m_yumIO->hasOtherData());
}

// Sees to it that a query finds what it reads, as far as that can be loaded. False when the user
// cancelled it, or the program ends.
bool MainWindow::loadExtraData(const PackageTable::Query &query)
{
    if (!lacksExtraData(query) || m_quitAsked)
        return !m_quitAsked;
    // What keeps the one from loading keeps the other too.
    if (m_yumIO->collectFileLists(YumIO::Failures::Kept) && !m_cancelAsked && !m_quitAsked)
        m_yumIO->collectOtherData(YumIO::Failures::Kept);
    return !m_cancelAsked && !m_quitAsked;
}

// Says what a search could not look into.
void MainWindow::noteUnseen()
{
    if (!lacksExtraData(m_proxy->query()))
        return;
    note(m_yumIO->hasFileLists()
             ? tr("The search has not seen the change logs of available packages: they were not "
                  "loaded.")
         : m_yumIO->hasOtherData()
             ? tr("The search has not seen the file lists of available packages: they were not "
                  "loaded.")
             : tr("The search has not seen the file lists and change logs of available packages: "
                  "they were not loaded."));
}

void MainWindow::filtersearch()
{
    const QString pattern = m_regexpEdit->text();
    changeFilter({m_proxy->query().mode, pattern},
                 [this, pattern] { m_proxy->setFilterRegExp(pattern); });
}

void MainWindow::showMode()
{
    if (isSearchMode()) {
        m_filterSearchButton->setText(tr("Search"));
        m_regexpEdit->setToolTip(tr("Regular expression to compare to all fields of a package"));
        m_filterSearchButton->setToolTip(
            tr("Perform the search for the regular expression specified to the left"));
    } else {
        m_filterSearchButton->setText(tr("Filter"));
        m_regexpEdit->setToolTip(
            tr("Regular expression filter matching textual fields visible in the table"));
        m_filterSearchButton->setToolTip(tr("Apply the filter specified to the left"));
    }
}

void MainWindow::modeChanged(int mode)
{
    showMode();
    const PackageTable::Query query(PackageTable::Mode(mode), m_proxy->query().pattern);
    changeFilter(query, [this, query] { m_proxy->setMode(query.mode); });
}

// The other controls load nothing: what they show rests on what the search has seen.
void MainWindow::stateFilterChanged(int stateFilter)
{
    changeFilter({}, [this, stateFilter] {
        m_proxy->setStateFilter(PackageTable::StateFilter(stateFilter));
    });
}

void MainWindow::dupsFilterChanged(int state)
{
    changeFilter({}, [this, state] { m_proxy->setDupsFilter(state != 0); });
}

void MainWindow::groupsFilterChanged(int state)
{
    changeFilter({}, [this, state] { m_proxy->setGroupsFilter(state != 0); });
}

void MainWindow::anyFilterChanged()
{
    warnUnlistedActions();
}

void MainWindow::collectedExtraData()
{
    const QString tip =
        tr("Specify the method for using a regular expression to select packages in the "
           "table:\n\tFilter uses the textual fields visible in the table, as if they were "
           "separated by spaces.\n\tSearch uses all fields in packages, including list of Files, "
           "Change Log, Requires, etc.,\n\tindependently.  It is considerably slower.");
    const bool loaded = m_yumIO->hasFileLists() && m_yumIO->hasOtherData();
    m_modeCombo->setToolTip(loaded ? tip : tr("%1 (Must load extra data.)").arg(tip));
}

void MainWindow::warnUnlistedActions()
{
    if (m_finished)
        return;
    for (int row = 0, count = m_yumIO->count(); row < count; ++row) {
        if ((*m_yumIO)[row]->action == Package::Action::None)
            continue;
        if (m_proxy->mapFromSource(m_model->index(row, 0)).isValid())
            continue;
        m_unlistedLabel->setText(tr("Unlisted Actions"));
        m_unlistedLabel->setToolTip(
            tr("Some packages have actions specified, but because of the current\nMode, Filter, "
               "Search, State, Duplicates, and Groups settings,\nthese packages are not listed "
               "currently.\nPressing Apply will cause these actions to occur nonetheless."));
        return;
    }
    m_unlistedLabel->clear();
    m_unlistedLabel->setToolTip(QString());
}
