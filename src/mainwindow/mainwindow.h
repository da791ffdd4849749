// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "mainwindow/marks.h"
#include "packagetable/packagetable.h"
#include "repo/yumrepoenabled.h"

#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QPointer>
#include <QStringList>

#include <functional>

class CountLine;
class HElidedLabel;
class HFrameLabel;
class HMenu;
class HProgressBar;
class MachineWatch;
class NoticeRow;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QMessageBox;
class QPushButton;
class YumConfIO;

namespace Engine {
struct FailedRepos;
}

namespace Log {
class Window;
}

namespace RepoEditor {
class Dialog;
}

namespace PackageTable {
class Model;
class SortFilterProxyModel;
class View;
struct Query;
} // namespace PackageTable

// The program's only top-level window: owns the engine, the repository configuration and the
// package table, and starts every job from one of its slots. One job runs at a time; while it runs
// the controls are disabled and the slots do nothing.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    // Settings of the command line, to be made before the window is shown.
    void setMode(PackageTable::Mode mode);
    void setRegexp(const char *regexp);
    void setStateFilter(PackageTable::StateFilter stateFilter);
    void setDups(bool dups);
    void setGroups(bool groups);
    void setStartInEditor(bool startInEditor) { m_startInEditor = startInEditor; }
    void setShowLogAtStart(bool showLogAtStart) { m_showLogAtStart = showLogAtStart; }
    void addRepoRequest(const YumRepoEnabled &request);

    // Showing the window starts the engine and the first collection from the event loop.
    void setVisible(bool visible) override;
    QSize sizeHint() const override;
    using QMainWindow::resize;

public Q_SLOTS:
    // Ends the program, unless the user wants to keep what that would lose; while a job runs, as soon
    // as it has stopped. A job that can be cancelled is. What an rpm transaction has to report is
    // shown before.
    void quit();
    // As quit, with nobody there to answer or to read: the next start shows the report.
    void terminate();
    void displayLog();
    void cleanHeaders();
    void cleanPackages();
    void cleanXmlMetadata();
    void cleanPickledCache();
    void cleanSqliteCache();
    void cleanAll();
    void refresh();
    void resize();
    void setSelected();
    void setUpdateListed();
    void clearActions();
    void apply();
    // Opens the repository editor; `initial` says that the packages have not been collected yet, so
    // that its OK collects them even when nothing was changed.
    void editRepositories(bool initial = false);
    // After a change: asks for credentials that are missing, and collects again.
    void reposChanged();
    void cancel();
    void manualHtml();
    void manualPdf();
    void about();
    void yumConfIOChanged();
    void collectedExtraData();
    void filtersearch();
    void modeChanged(int mode);
    void stateFilterChanged(int stateFilter);
    void dupsFilterChanged(int state);
    void groupsFilterChanged(int state);
    void currentChanged(int currentRow, int previousRow);
    void stateChanged(int row);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void initialize();
    void jobState(const QString &state, bool canCancel);
    // A modal dialog that may start jobs begins or ends.
    void dialogRuns(bool runs);

private:
    class Job;

    // layout.cpp
    void createMenuBar();
    void createCacheMenu();
    void createHelpMenu();
    void createCentralWidget();
    void createStatusLine();
    void createPlaceholder(QWidget *parent);
    void createTable();
    void createMainArea();
    QLayout *createFilterRow();
    QLayout *createButtonRow();
    QLayout *createBarsRow();
    void connectMainArea();
    void warnConfigure();

    // manuals.cpp
    void showManual(const QString &helper, const QStringList &arguments, const QString &file);

    // filters.cpp
    bool isSearchMode() const;
    void changeFilter(const PackageTable::Query &query, const std::function<void()> &change);
    void showFilters();
    void noteUnseen();
    bool lacksExtraData(const PackageTable::Query &query) const;
    bool loadExtraData(const PackageTable::Query &query);
    void anyFilterChanged();
    void warnUnlistedActions();
    void showMode();

    // quit.cpp
    void leave();
    void finish();
    void askToQuit();
    void decline();
    void showKeptReport();
    bool recallGeometry();
    void tell(const QString &text);

    // spokenstates.cpp
    void speakState(const QString &state);

    // quitquestion.cpp
    qsizetype marked() const;
    bool waitsForAnAnswer() const;
    bool askBeforeQuit();

    void note(const QString &text) { m_notes.append(text); }
    // repositories.cpp
    bool checkCredentials();
    void noteUnreadable();
    bool lacksCredentials(const QString &id) const;
    RepoEditor::Dialog *repoEditor();
    void showPlaceholder(bool withButton);

    // failedrepos.cpp
    QString textOf(const Engine::FailedRepos &failed) const;
    bool withoutSkipped(Engine::FailedRepos &failed);
    int askAbout(const Engine::FailedRepos &failed, int choices);
    bool settleFailed(const Engine::FailedRepos &failed, QStringList &leftOut);
    void showFailed(bool wasCollection = false);
    QStringList leftOut() const;
    void showLeftOut();
    void useLeftOut();
    // replacements.cpp
    void findReplacements();
    QList<int> unmarkedReplacements() const;
    void showReplacements();
    void markReplacements();

    // around.cpp
    void noteSession();
    void noteCleaned(bool whole);
    void lookAround();
    QStringList changedFiles() const;
    bool askToRefresh();
    void noteCollected(bool collected);
    void readFilesAgain();
    QHash<QString, bool> enabledInFiles() const;

    bool start();
    void setReady(bool ready);
    bool runJob(const std::function<void()> &work);
    enum class Refresh { Asked, AfterApply };
    void collectFirst();
    void collect(Refresh why = Refresh::Asked);
    void gather(Refresh why);
    void recollect(Refresh why = Refresh::Asked);
    void giveMarksBack(Refresh why);
    static QString firstOf(const QStringList &names); // as many as a line has room for
    void cleanAndCollect(bool (YumIO::*operation)());
    void showMainArea();
    void sizeColumns();

    QList<YumRepoEnabled> m_repoRequests;
    QHash<QString, bool> m_reposUsed;
    YumIO *m_yumIO = nullptr;
    YumConfIO *m_yumConfIO = nullptr;
    MachineWatch *m_watch = nullptr;
    bool m_startInEditor = false;
    bool m_showLogAtStart = false;
    bool m_initializeScheduled = false;
    bool m_geometryKept = false; // the user has chosen the window's size
    bool m_columnsSized = false; // for rows
    bool m_engineReady = false;
    bool m_initialized = false;
    bool m_busy = false;        // a job runs
    bool m_busyCursor = false;  // the busy cursor is set
    bool m_canCancel = false;   // the running job can be cancelled now
    bool m_cancelAsked = false; // the running job shall be cancelled
    QPointer<QWidget> m_focusBeforeJob;
    bool m_inTransaction = false; // rpm is at work
    QString m_spokenState;        // what was announced last
    bool m_rpmBegan = false;      // in the running job
    bool m_downloads = false;     // packages are being downloaded
    QPointer<QMessageBox> m_quitQuestion;
    bool m_quitAsked = false;    // quit when the job has ended
    bool m_unattended = false;   // nobody is there to read
    bool m_finished = false;     // the engine is gone
    bool m_dialogRuns = false;   // a dialog that uses the engine is open
    bool m_reposChanged = false; // the editor, which is closing, has changed something
    QString m_repoToEdit;        // whose form is to be opened when the job has ended
    int m_exitCode = 0;
    Marks m_marks;                      // between two collections
    qsizetype m_logBefore = 0;          // how long the log was when the last one began
    QMap<int, QString> m_replacements;  // rows, with words about them
    QHash<QString, bool> m_enabledThen; // the repositories when the packages were collected
    QStringList m_unreadable;           // configuration files that were named
    QStringList m_skipped;              // repositories whose credentials the user skipped
    QStringList m_refusedSkipped;       // of these, left out because they cannot do without
    QStringList m_leftOut;              // repositories left out for the session because they failed
    QStringList m_notes;                // what the line shall say when the job has ended
    bool m_closeRefused = false;        // the user was told once that a transaction runs

    HMenu *m_programMenu = nullptr;
    QAction *m_quitAction = nullptr;
    HMenu *m_repositoriesMenu = nullptr;
    QAction *m_editConfigurationAction = nullptr;
    HMenu *m_cacheMenu = nullptr;
    QAction *m_cleanHeadersAction = nullptr;
    QAction *m_cleanPackagesAction = nullptr;
    QAction *m_cleanXmlMetadataAction = nullptr;
    QAction *m_cleanPickledCacheAction = nullptr;
    QAction *m_cleanSqliteCacheAction = nullptr;
    QAction *m_cleanAllAction = nullptr;

    QWidget *m_waiting = nullptr; // in place of the main area
    QLabel *m_placeholder = nullptr;
    QPushButton *m_readButton = nullptr;
    QWidget *m_mainArea = nullptr;
    QComboBox *m_modeCombo = nullptr;
    QLineEdit *m_regexpEdit = nullptr;
    QPushButton *m_filterSearchButton = nullptr;
    QComboBox *m_stateCombo = nullptr;
    QCheckBox *m_groupsCheck = nullptr;
    QCheckBox *m_dupsCheck = nullptr;
    NoticeRow *m_notices = nullptr;
    PackageTable::Model *m_model = nullptr;
    PackageTable::SortFilterProxyModel *m_proxy = nullptr;
    PackageTable::View *m_view = nullptr;
    QPushButton *m_describeButton = nullptr;
    QPushButton *m_resizeButton = nullptr;
    QPushButton *m_refreshButton = nullptr;
    QPushButton *m_setSelectedButton = nullptr;
    QPushButton *m_setUpdateListedButton = nullptr;
    QPushButton *m_clearActionsButton = nullptr;
    HFrameLabel *m_unlistedLabel = nullptr;
    QPushButton *m_applyButton = nullptr;
    HProgressBar *m_totalBar = nullptr;
    HProgressBar *m_itemBar = nullptr;
    QPushButton *m_cancelButton = nullptr;
    HElidedLabel *m_message = nullptr;
    CountLine *m_countLine = nullptr;
    RepoEditor::Dialog *m_repoEditor = nullptr;
    Log::Window *m_logWindow = nullptr;
};
