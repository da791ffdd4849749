// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/mainwindow.h"

#include "app/harmless.h"
#include "app/sysroot.h"
#include "log/logwindow.h"
#include "mainwindow/countline.h"
#include "mainwindow/job.h"
#include "mainwindow/keptreport.h"
#include "mainwindow/machinewatch.h"
#include "mainwindow/nextstep.h"
#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "packagetable/view.h"
#include "repo/yumconfio.h"
#include "widgets/hmenu.h"
#include "widgets/messagebox.h"
#include "widgets/onscreen.h"
#include "widgets/plaintexts.h"
#include "yumio/yumio.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int namesInLine = 5;

} // namespace

MainWindow::MainWindow() : m_yumIO(new YumIO)
{
    setWindowTitle(tr("VOK"));
    setObjectName(QStringLiteral("mainWindow"));
    m_yumIO->setParent(this);
    new PlainTexts(this);
    createMenuBar();
    createCentralWidget();
    m_yumIO->setup(this, m_totalBar, m_itemBar);
    m_yumIO->setReportKeeper(
        {KeptReport::add, [](const QString &text) { KeptReport::remove(text); }});
    m_watch = new MachineWatch([this] { return m_yumIO->installedChanged(); }, this);
    connect(m_watch, &MachineWatch::raised, this, &MainWindow::lookAround);
    m_geometryKept = recallGeometry();
}

MainWindow::~MainWindow()
{
    finish();
    delete m_yumConfIO;
}

void MainWindow::setMode(PackageTable::Mode mode)
{
    m_modeCombo->setCurrentIndex(int(mode));
}

void MainWindow::setRegexp(const char *regexp)
{
    m_regexpEdit->setText(QString::fromLocal8Bit(regexp));
}

void MainWindow::setStateFilter(PackageTable::StateFilter stateFilter)
{
    m_stateCombo->setCurrentIndex(int(stateFilter));
}

void MainWindow::setDups(bool dups)
{
    m_dupsCheck->setChecked(dups);
}

void MainWindow::setGroups(bool groups)
{
    m_groupsCheck->setChecked(groups);
}

void MainWindow::addRepoRequest(const YumRepoEnabled &request)
{
    m_repoRequests.append(request);
}

void MainWindow::setVisible(bool visible)
{
    QMainWindow::setVisible(visible);
    if (visible && !m_initializeScheduled) {
        m_initializeScheduled = true;
        keepOnScreen(this); // which may be another than the one on which its place was kept
        QTimer::singleShot(0, this, &MainWindow::initialize);
    }
}

QSize MainWindow::sizeHint() const
{
    return QMainWindow::sizeHint().expandedTo({768, 0});
}

void MainWindow::initialize()
{
    if (start() && m_startInEditor)
        editRepositories(true);
}

// A job of its own, since the editor may want to start some. False when the program ends.
bool MainWindow::start()
{
    const Job job(this);
    if (!job)
        return false;
    m_watch->take();
    m_yumConfIO = new YumConfIO(m_repoRequests, m_reposUsed);
    connect(m_yumConfIO, &YumConfIO::changed, this, &MainWindow::yumConfIOChanged);
    m_model->setYumConfIO(m_yumConfIO);
    if (m_showLogAtStart)
        displayLog();
    if (!m_yumIO->initialize()) {
        m_quitAsked = true;
        m_exitCode = 1;
        return false;
    }
    m_engineReady = true;
    noteSession();
    showKeptReport();
    if (m_startInEditor)
        showPlaceholder(true);
    else
        collectFirst();
    m_initialized = !m_quitAsked;
    return m_initialized;
}

void MainWindow::collectFirst()
{
    if (checkCredentials())
        recollect();
    else if (!m_quitAsked)
        collect();
}

// With the table of the first collection, however that came.
void MainWindow::showMainArea()
{
    m_waiting->hide();
    m_mainArea->show();
    m_focusBeforeJob = m_view;
    sizeColumns();
    anyFilterChanged();
    m_countLine->countMarks();
    showReplacements();
}

// For the first rows, which may come later than the table.
void MainWindow::sizeColumns()
{
    m_columnsSized = m_yumIO->count() > 0;
    if (m_geometryKept)
        m_view->sizeColumnsToContents();
    else
        m_view->resizeColumnsToContents();
}

void MainWindow::collect(Refresh why)
{
    const bool first = m_mainArea->isHidden();
    if (first) {
        showPlaceholder(false);
        m_proxy->setFilterRegExp(m_regexpEdit->text());
    }
    gather(why);
    showFailed(true);
    if (m_quitAsked)
        return;
    showLeftOut();
    if (first)
        showMainArea();
    else if (!m_columnsSized)
        sizeColumns();
}

void MainWindow::gather(Refresh why)
{
    QHash<QString, bool> used = m_reposUsed;
    for (const QString &id : leftOut())
        used.insert(id, true);
    const bool collected =
        m_yumIO->collect(used, leftOut(), [this](const auto &failed, QStringList &without) {
            return settleFailed(failed, without);
        });
    noteCollected(collected);
    giveMarksBack(why);
    if (!collected)
        note(m_yumIO->count() > 0
                 ? tr("The packages were not collected again; the table is as before.")
                 : tr("The packages were not collected. Refresh tries again."));
    // Who may only look cannot use DNF's records, which is no news each time.
    else if (m_yumIO->missingRights().packages.isEmpty() &&
             !m_yumIO->logList().errors(m_logBefore).isEmpty())
        note(tr("Not everything could be read. The log (Ctrl+L) tells what is missing."));
    m_view->setMissing(nextStep(m_yumIO->collected()));
    if (collected && nothingIsInstalled(*m_yumIO))
        note(SysRoot::prefix().isEmpty()
                 ? tr("Nothing is installed through rpm here. To work on another system: sudo "
                      "VOKROOT=/mnt/image vok")
                 : tr("Nothing is installed: the rpm database is empty. "
                      "View Installable lists what can "
                      "be installed."));

    // A search that is installed waits for its data, and is a job of its own. No row is listed
    // before it has ended.
    const bool searches = m_proxy->query().readsExtraData() && m_yumIO->count() > 0;
    if (searches)
        m_proxy->wait();
    m_model->reset();
    if (!searches || m_quitAsked)
        return;
    m_cancelAsked = false; // that was the collection
    if (loadExtraData(m_proxy->query()))
        m_proxy->judge();
    if (m_cancelAsked || m_proxy->wasCancelled())
        note(tr("The search was cancelled. The table lists nothing until it has been run."));
    else
        noteUnseen();
}

QString MainWindow::firstOf(const QStringList &names)
{
    QStringList first = names.mid(0, namesInLine);
    if (first.size() < names.size())
        first.append(tr("%1 more").arg(names.size() - first.size()));
    return first.join(QStringLiteral(", "));
}

// What was marked and is done now has no mark any more, which needs no words.
void MainWindow::giveMarksBack(Refresh why)
{
    const Marks::Told told = m_marks.giveBack(*m_yumIO);
    const auto tell = [this](const QString &text, const QStringList &names) {
        if (names.isEmpty())
            return;
        m_yumIO->log(Log::Kind::Warning, 0, text.arg(names.join(QStringLiteral(", "))));
        note(text.arg(firstOf(names)));
    };
    if (why == Refresh::Asked)
        tell(tr("No longer possible, and not marked any more: %1."), told.lost);
    tell(tr("Marked now in another version: %1."), told.changed);
}

void MainWindow::recollect(Refresh why)
{
    if (m_quitAsked)
        return;
    m_marks.take(*m_yumIO);
    const PackageTable::Place place = m_view->place();
    m_watch->take();
    m_logBefore = m_yumIO->logList().count();
    m_yumIO->renew();
    noteSession();
    m_model->reset();
    if (!m_quitAsked)
        collect(why);
    m_view->goTo(place);
    warnUnlistedActions();
    stateChanged(-1);
}

void MainWindow::setReady(bool ready)
{
    for (QMenu *menu : {m_programMenu, m_repositoriesMenu, m_cacheMenu})
        menu->setEnabled(ready);
    for (QAction *action : {m_quitAction, m_editConfigurationAction, m_cleanHeadersAction,
                            m_cleanPackagesAction, m_cleanXmlMetadataAction, m_cleanAllAction})
        action->setEnabled(ready);
    // What the library can do is asked of the interpreter, so only when no job runs.
    m_cleanPickledCacheAction->setEnabled(ready && m_yumIO->hasPickledCache());
    m_cleanSqliteCacheAction->setEnabled(ready && m_yumIO->hasSqliteCache());

    QWidget *focus = focusWidget();
    if (!ready && focus && m_mainArea->isAncestorOf(focus))
        m_focusBeforeJob = focus;
    m_mainArea->setEnabled(ready);
    if (ready && m_focusBeforeJob) {
        // The button of a notice goes with it.
        (m_focusBeforeJob->isVisible() ? m_focusBeforeJob.data() : m_view)->setFocus();
        m_focusBeforeJob = nullptr;
    }

    if (ready == m_busyCursor) {
        m_busyCursor = !ready;
        if (ready)
            QApplication::restoreOverrideCursor();
        else
            QApplication::setOverrideCursor(Qt::BusyCursor);
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindow::yumConfIOChanged()
{
    const QString own = m_yumIO->missingRights().ownCache;
    const QString dir = harmlessLine(own.isEmpty() ? m_yumConfIO->cachedir : own);
    m_cleanHeadersAction->setToolTip(tr("Clean RPM package headers cached locally in %1").arg(dir));
    m_cleanPackagesAction->setToolTip(
        tr("Clean RPM packages cached locally in %1\n(useful for recovering disk space)").arg(dir));
    m_cleanXmlMetadataAction->setToolTip(
        tr("Clean XML metadata cached locally in %1\n(useful along with Clean Pickled Data for\n "
           "forcing download of new available package lists)")
            .arg(dir));
    m_cleanPickledCacheAction->setToolTip(
        tr("Clean pickled data cached locally in %1\n(useful along with Clean XML Metadata for\n "
           "forcing download of new available package lists)")
            .arg(dir));
    m_cleanSqliteCacheAction->setToolTip(
        tr("Clean sqlite data cached locally in %1\n(useful along with Clean XML Metadata for\n "
           "forcing download of new available package lists)")
            .arg(dir));
    m_cleanAllAction->setToolTip(tr("Clean all data cached locally in %1").arg(dir));
}

void MainWindow::displayLog()
{
    if (m_finished)
        return;
    if (!m_logWindow)
        m_logWindow = new Log::Window(m_yumIO->logList());
    m_logWindow->show();
    m_logWindow->raise();
    m_logWindow->activateWindow();
}

void MainWindow::cleanAndCollect(bool (YumIO::*operation)())
{
    const Job job(this);
    if (!job)
        return;
    noteCleaned((m_yumIO->*operation)());
    if (m_mainArea->isHidden())
        checkCredentials();
    recollect();
}

void MainWindow::cleanHeaders()
{
    cleanAndCollect(&YumIO::cleanHeaders);
}

// Downloaded packages do not decide what the table shows.
void MainWindow::cleanPackages()
{
    const Job job(this);
    if (!job)
        return;
    noteCleaned(m_yumIO->cleanPackages());
}

void MainWindow::cleanXmlMetadata()
{
    cleanAndCollect(&YumIO::cleanXmlMetadata);
}

void MainWindow::cleanPickledCache()
{
    cleanAndCollect(&YumIO::cleanPickledCache);
}

void MainWindow::cleanSqliteCache()
{
    cleanAndCollect(&YumIO::cleanSqliteCache);
}

void MainWindow::cleanAll()
{
    cleanAndCollect(&YumIO::cleanAll);
}

void MainWindow::refresh()
{
    const Job job(this);
    if (!job)
        return;
    readFilesAgain();
    recollect();
}

void MainWindow::resize()
{
    m_view->resizeColumnsToContents();
}

void MainWindow::setSelected()
{
    if (m_busy)
        return;
    m_model->setSelected(m_view->selectedRows());
    stateChanged(-1);
}

void MainWindow::setUpdateListed()
{
    if (m_busy)
        return;
    m_proxy->setUpdateListed();
    stateChanged(-1);
}

void MainWindow::clearActions()
{
    if (m_busy)
        return;
    m_marks.clear();
    m_model->clearActions();
    warnUnlistedActions();
    stateChanged(-1);
}

void MainWindow::apply()
{
    const Job job(this);
    if (!job || !m_yumIO->missingRights().packages.isEmpty())
        return;
    m_watch->look();
    if (m_watch->isOutdated()) {
        m_yumIO->nameChanges();
        if (askToRefresh()) {
            readFilesAgain();
            recollect();
        }
    } else if (m_yumIO->apply()) {
        checkCredentials();
        recollect(Refresh::AfterApply);
    } else {
        showFailed();
        if (askToRefresh())
            recollect();
    }
    warnUnlistedActions();
    stateChanged(-1);
}

void MainWindow::currentChanged(int currentRow, int)
{
    m_describeButton->setEnabled(currentRow != -1);
}

void MainWindow::stateChanged(int row)
{
    if (m_finished)
        return;
    const auto hasAction = [](const Package::Entry *entry) {
        return entry->action != Package::Action::None;
    };
    const bool known = row >= 0 && row < m_yumIO->count() && hasAction((*m_yumIO)[row]);
    m_applyButton->setEnabled(m_yumIO->missingRights().packages.isEmpty() &&
                              (known || std::any_of(m_yumIO->begin(), m_yumIO->end(), hasAction)));
    m_countLine->countMarks();
    showReplacements();
}
