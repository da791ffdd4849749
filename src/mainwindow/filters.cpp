// What the table lists: the mode, the expression and the other filters, and what they leave out.

#include "mainwindow/job.h"
#include "mainwindow/mainwindow.h"

#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "widgets/hframelabel.h"
#include "yumio/yumio.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <optional>

bool MainWindow::isSearchMode() const
{
    return m_modeCombo->currentIndex() == int(PackageTable::Mode::Search);
}

// A search asks the engine for every package, which takes its time; a filter does not.
void MainWindow::changeFilter(const std::function<void()> &change)
{
    if (m_busy && isSearchMode())
        return;
    {
        std::optional<Job> job;
        if (isSearchMode())
            job.emplace(this);
        change();
        noteUnseen();
    }
    anyFilterChanged();
}

bool MainWindow::lacksExtraData(const PackageTable::Query &query) const
{
    return m_engineReady && query.readsExtraData() &&
           !(m_yumIO->hasFileLists() && m_yumIO->hasOtherData());
}

// Sees to it that a query finds what it reads. False when nothing shall be asked any more, because
// the program ends.
bool MainWindow::loadExtraData(const PackageTable::Query &query)
{
    if (!lacksExtraData(query))
        return true;
    // Who cancels the first wants none of it, and what keeps it from loading keeps the other too.
    if (m_yumIO->collectFileLists() && !m_quitAsked)
        m_yumIO->collectOtherData();
    return !m_quitAsked;
}

void MainWindow::noteUnseen()
{
    if (lacksExtraData(m_proxy->query()))
        note(tr("Not all data were loaded: the search has not seen every file list and change "
                "log."));
}

void MainWindow::filtersearch()
{
    changeFilter([this] {
        const QString pattern = m_regexpEdit->text();
        if (loadExtraData({m_proxy->query().mode, pattern}))
            m_proxy->setFilterRegExp(pattern);
    });
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
    changeFilter([this, mode] {
        const PackageTable::Query query(PackageTable::Mode(mode), m_proxy->query().pattern);
        if (loadExtraData(query))
            m_proxy->setMode(query.mode);
    });
}

void MainWindow::stateFilterChanged(int stateFilter)
{
    changeFilter(
        [this, stateFilter] { m_proxy->setStateFilter(PackageTable::StateFilter(stateFilter)); });
}

void MainWindow::dupsFilterChanged(int state)
{
    changeFilter([this, state] { m_proxy->setDupsFilter(state != 0); });
}

void MainWindow::groupsFilterChanged(int state)
{
    changeFilter([this, state] { m_proxy->setGroupsFilter(state != 0); });
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
