// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/uninterrupted.h"
#include "apply.h"
#include "downloads.h"
#include "errors.h"
#include "listing.h"
#include "log/log.h"
#include "output.h"
#include "package.h"
#include "python/python.h"
#include "search.h"
#include "session.h"
#include "store.h"

#include <QMutex>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <atomic>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class Expression;
class HProgressBar;
class QEventLoop;
class QThread;
class QWidget;
class YumIODialogs;
struct RepoAnswer;
struct RepoTest;
struct SearchSubject;
struct TransactionLists;

namespace Progress {
class Object;
}

// The package engine: owns the interpreter session, the log and the table of entries; collects
// packages and groups, answers detail queries and runs transactions through the script.
//
// Operations are called on the GUI thread; those named ...Real and the callbacks run on the one
// worker thread, with the interpreter lock held. While a job runs the GUI thread needs the
// interpreter for nothing. Failures are reported to the user by the engine itself, once; the
// callers learn them as false, null or an empty text.
class YumIO : public QObject, private Python
{
    Q_OBJECT

public:
    // The gate that keeps a worker from running before the GUI thread's event loop does.
    class Blocker
    {
    public:
        void prepare() { m_mutex.lock(); }
        void release() { m_mutex.unlock(); }
        void block();

    private:
        QMutex m_mutex;
    };

    using EntryKey = Engine::EntryKey;

    // Kinds of repository activity, six for each repository.
    enum class RepoAct {
        MirrorList = 0,
        RepoMd = 1,
        Primary = 2,
        FileLists = 3,
        Other = 4,
        Groups = 5
    };

    // Key of one download's progress.
    struct ThreadId
    {
        QString text;
        RepoAct act;
        operator long() const;
    };

    // Where jobs show themselves: the parent of every dialog, and the bars of their progress.
    struct Surface
    {
        QWidget *parent = nullptr;
        HProgressBar *totalBar = nullptr;
        HProgressBar *itemBar = nullptr;
    };

    YumIO();
    ~YumIO() override;

    // `parent` is the parent of every dialog; the bars show the progress of jobs. Call once, before
    // initialize.
    void setup(QWidget *parent, HProgressBar *totalBar, HProgressBar *itemBar);
    // Where reports of transactions are kept until somebody has read them. Without it they are only shown.
    void setReportKeeper(const Engine::ReportKeeper &keeper) { m_keeper = keeper; }
    // Nobody reads what is shown from now on: reports stay with the keeper, and so does the outcome of a
    // transaction that succeeds.
    void leaveReportsUnread() { m_unattended = true; }
    // Lends another surface to the jobs that follow; returns the former, to be given back.
    Surface exchangeSurface(const Surface &surface);
    // Starts the interpreter and the script. May be called again after a failure.
    bool initialize();

    // Jobs: each runs on a worker thread while a local event loop serves the GUI thread.
    //
    // `leftOut` are repositories to do without, whatever `reposUsed` says; they still count as enabled.
    // When repositories fail `settle` is called between two attempts, and may add to `leftOut`: true
    // for another attempt. Without it the engine reports the failure.
    using Settle = std::function<bool(const Engine::FailedRepos &failed, QStringList &leftOut)>;
    bool collect(const QHash<QString, bool> &reposUsed, QStringList leftOut = {},
                 const Settle &settle = {});
    // How far the last collection came.
    Engine::Collected collected() const { return m_collected; }
    // The repositories that failed, each once, in the collection or apply and the loads with
    // Failures::Kept since the last call; of a collection that succeeded, those that refused user name
    // and password. The engine shows no box of these: that is the caller's.
    Engine::FailedRepos takeFailedRepos() { return std::exchange(m_failed, {}); }
    enum class Failures { Shown, Kept };
    bool collectFileLists(Failures failures = Failures::Shown);
    bool collectOtherData(Failures failures = Failures::Shown);
    bool apply();
    // After an apply that returned false: true when it ended before anything was asked because
    // another program had changed the installed packages since they were collected. `changes` gets
    // a line for each package. The marks are as they were; a collection makes the rows true again.
    bool outdated(QStringList *changes = nullptr) const;
    // For what watches the machine, to be asked between jobs: what the next collection rests on,
    // whether packages came or went since the last one, in a few milliseconds, and the same with
    // the changes named, for outdated().
    const Engine::Sources &sources() const { return m_session.sources; }
    // As when the last session was made.
    const Engine::MissingRights &missingRights() const { return m_script.missing; }
    bool installedChanged();
    bool nameChanges();
    // Looks for an extended POSIX expression in every field of rows, of available packages in the
    // file lists and change logs only as far as they were loaded: for each row whether any field
    // holds it. Nothing when the search was cancelled.
    std::optional<QList<bool>> search(const QString &pattern,
                                      const QList<const Package::Entry *> &entries);
    // Tries to reach the repository whose section of a configuration file this is, with the options
    // of the session's main section, and writes to no file. Nothing when the test was cancelled.
    std::optional<QList<RepoAnswer>> testRepository(const QString &section);
    // Of the last collection: packages that are no updates, and that an upgrade would install.
    const QList<Engine::Replacement> &replacements() const { return m_session.replacements; }
    void clearEntries();
    void clear();
    // As clear, but rows that are still true stay at hand, unseen: a collection that is cancelled
    // or fails before it has packages of its own gives them back with their session.
    void renew();
    // Empties the store at exit without touching the interpreter.
    void clearEntriesBeforeQuit();

    // The published rows. Empty while a clear or a collection runs.
    QList<Package::Entry *>::const_iterator begin() const;
    QList<Package::Entry *>::const_iterator end() const;
    Package::Entry *operator[](int row) const;
    int count() const;

    // Texts of an entry; empty when there is nothing. The first block needs no interpreter.
    QString getName(const Package::Entry &) const;
    QString getVerRel(const Package::Entry &) const;
    QString getRepo(const Package::Entry &) const;
    QString getArch(const Package::Entry &) const;
    QString getSize(const Package::Entry &) const;
    QString getSummary(const Package::Entry &) const;
    QString getBuildTime(const Package::Entry &) const;
    static QString getState(Package::State);
    static QString getKind(Package::Kind);
    // What to tell where VOK runs on a system that does not use rpm.
    static QString notRpmText();
    QString getState(const Package::Entry &) const;
    QString getKind(const Package::Entry &) const;

    QString getDescription(const Package::Entry &);
    QString getGroup(const Package::Entry &);
    QString getVendor(const Package::Entry &);
    QString getBuildHost(const Package::Entry &);
    QString getInstallTime(const Package::Entry &);
    QString getBinaryRpm(const Package::Entry &);
    QString getSourceRpm(const Package::Entry &);
    QString getLicense(const Package::Entry &);
    QString getPackager(const Package::Entry &);
    QString getUrl(const Package::Entry &);
    QString getRelocations(const Package::Entry &);
    QString getProvides(const Package::Entry &);
    QString getRequires(const Package::Entry &);
    QString getConflicts(const Package::Entry &);
    QString getObsoletes(const Package::Entry &);
    QString getFiles(const Package::Entry &);
    QString getChangeLog(const Package::Entry &);
    QString getRequiredGroups(const Package::Entry &);
    QString getDefaultMetaPkgs(const Package::Entry &);
    QString getOptionalMetaPkgs(const Package::Entry &);
    QString getMandatoryPkgs(const Package::Entry &);
    QString getDefaultPkgs(const Package::Entry &);
    QString getOptionalPkgs(const Package::Entry &);
    QString getConditionalPkgs(const Package::Entry &);
    // What each conditional member of a group depends on, by the member's name.
    QHash<QString, QString> getConditions(const Package::Entry &entry);
    QString getGroupDescription(const Package::Entry &);
    // Bytes that the package's files take, or will take; 0 when that is not known.
    quint64 getInstalledSize(const Package::Entry &);
    // Installed packages, a line each: those that require the package, and those that it replaces.
    QString getRequiredBy(const Package::Entry &);
    QString getReplaced(const Package::Entry &);
    QString getYumVar(const QString &name);
    // The row of a package by its name, of the base architecture where it can be; null for none.
    const Package::Entry *packageNamed(const QString &name);
    bool hasFileLists() const { return m_session.fileLists; }
    bool hasOtherData() const { return m_session.otherData; }

    // For the repository form, to be asked between jobs: whether the script tests repositories, the
    // options that one may set, empty when that is not known, and a text with the variables in it
    // replaced.
    bool canTestRepositories();
    QStringList repositoryOptions();
    QString expandVariables(const QString &text);

    // Library version and what it can do; the script probes are asked once and cached.
    QString yumVersionStr();
    long yumVersion();
    bool hasDistribGroups();
    bool hasTransTest();
    bool hasPickledCache();
    bool hasSqliteCache();
    bool usesSqlite();
    bool usesPresto();
    bool hasMultiProgress();

    // Cache cleaning; true on success.
    bool cleanHeaders();
    bool cleanPackages();
    bool cleanXmlMetadata();
    bool cleanPickledCache();
    bool cleanSqliteCache();
    bool cleanAll();

    Log::EntryList &logList() { return m_log; }
    void log(Log::Kind kind, unsigned int level, QString text);
    void write(const QString &text, Log::Kind kind, unsigned int level, QString &tail);
    void writeStdout(const QString &text);
    void writeStderr(const QString &text);
    // Logs the unfinished last lines of both streams as they stand.
    void flushTails();

    // Reports: logged, then shown in a box on the GUI thread.
    void error(const QString &text);
    void warning(const QString &text);
    // Does work whose reports are only logged: the result is what the boxes would have said. GUI thread;
    // the work may be a job.
    QString withoutBoxes(const std::function<void()> &work);

    // Asks the running job to stop where it honestly can. Any thread.
    void cancel() { m_cancelled = true; }
    // Whether that was asked of the present job or, between jobs, of the last.
    bool wasCancelled() const { return m_cancelled; }

    static bool parseEnvra(const QString &envra, QString &name, QString &epoch, QString &version,
                           QString &release, QString &arch);
    static bool parseEnvra(const QString &envra, QString &name, QString &arch);

public Q_SLOTS:
    void blockerRelease();

Q_SIGNALS:
    // File lists or other data were loaded, or forgotten by a collection.
    void collectedExtraData();
    // The running job's state ("lock", "metadata", "resolve", "download", "transaction",
    // "search", "test", "done") and whether it can be cancelled now.
    void jobState(const QString &state, bool canCancel);
    // A scriptlet of a package keeps rpm waiting: its process, when that started (in clock ticks since boot) and its
    // command. Without a package: it has ended.
    void stuckScriptlet(const QString &package, qint64 pid, quint64 start, const QString &command);

private:
    friend class YumIOC;
    friend class CollectThread;
    friend class ClearEntriesThread;
    friend class CollectFileListsThread;
    friend class CollectOtherDataThread;
    friend class ApplyThread;
    friend class RepoTestThread;
    friend class SearchThread;
    friend class YumIOCapturers;
    friend class YumIOCapturersMinion;
    friend class YumIODialogsUser;

    using EntryHash = Engine::EntryHash;
    using Meter = Engine::Meter;
    using Meters = Engine::Meters;
    using enum Engine::ExceptionType;
    using EntryPredicate = bool (YumIO::*)(Package::Entry *);

    // lifecycle.cpp
    void abandon();
    bool serveWithoutDisplay(QThread &thread);
    void keepOutcome();
    bool execWorkThread(QEventLoop &loop, QThread &thread, Failures failures = Failures::Shown);
    bool makeSession();
    void flush();
    void clearEntriesReal();
    void dropSession();
    void dropFormer();
    void takeFormerBack();
    void releaseEntries(bool withInterpreter);
    bool createYumIO();
    bool runScript();
    bool lookUpExceptionTypes();
    bool failInitialize(const QString &message);
    bool failMissing(const QString &message, const QString &reason);
    void publishEntries();
    bool probe(std::optional<bool> &answer, const char *method);

    // collect.cpp
    bool collectReal(const QHash<QString, bool> &reposUsed, const QStringList &leftOut);
    bool takeLock();
    bool readRepositories(const QHash<QString, bool> &reposUsed, const QStringList &leftOut);
    PyObject *bracketed(const char *method, const QString &what, bool &reported);
    PyObject *bracketedOrError(const char *method, const QString &what);
    bool collectPackages();
    bool collectRows();
    bool collectRow(PyObject *row);
    void collectReplacements();
    QString shared(const QString &text);
    bool collectAllGroups();
    void foldPackage(EntryHash &hash, const QString &name, const QString &arch,
                     const QString &family, Package::State state, PyObject *po,
                     const std::function<void(Package::Entry *&)> &create);
    Package::Entry *&findSlot(EntryHash &hash, const QString &name, const QString &arch,
                              const QString &family);
    bool usesRpm();
    bool useRepos(PyObject *repos, const QHash<QString, bool> &reposUsed);
    QStringList collectRepos(PyObject *reposDict);
    bool collectField(EntryHash &hash, PyObject *all, const char *field, Package::State state);
    bool collectSet(EntryHash &hash, PyObject *iterable, Package::State state);
    bool collectPkg(Package::Entry *&slot, Package::State state, PyObject *po);
    bool collectGroups(EntryHash &hash, PyObject *groupInfo);
    bool collectGroup(Package::Entry *&slot, PyObject *group, const QString &name);
    Package::Entry *&findUpdateablePackage(const QString &name, const QString &arch);
    bool upToDateGroup(const Package::Entry *group);
    bool upToDateGroupGrps(const Package::Entry *group, const char *attribute);
    bool upToDateGroupPkgs(const Package::Entry *group, const char *oldAttribute,
                           const char *newAttribute);
    Package::Entry *findPackage(const QString &name);
    Package::Entry *findPackage(const QString &name, EntryPredicate predicate);
    QString getBiArch(const QString &arch);
    Package::Kind getPkgKind(PyObject *po);

    // details.cpp, groupdetails.cpp and convert.cpp
    bool collectExtraReal(const QString &heading, const QString &total, const char *method,
                          const QString &what);
    QString linesOf(const char *method, const Package::Entry &entry);
    QString packageString(const Package::Entry &entry, const char *key);
    QStringList installedRelations(PyObject *po, const QByteArray &tag);
    QStringList availableRelations(PyObject *po, const char *key);
    QString relationText(PyObject *relation);
    QStringList groupNames(const Package::Entry &entry, const char *oldAttribute,
                           const char *newAttribute);
    QStringList textsOf(PyObject *iterable);
    bool readSize(PyObject *obj, quint64 &size);
    bool collectFileListsReal();
    bool collectOtherDataReal();
    QString pyString(PyObject *obj);
    QString pyStringDec(PyObject *obj);
    QString pyStringX(PyObject *obj);
    QString pyStringXDec(PyObject *obj);
    qint64 pyTime(PyObject *obj);
    qint64 pyTimeDec(PyObject *obj);
    quint64 sizeOf(PyObject *po);
    qint64 buildTimeOf(PyObject *po);
    const char *pyDescribe(PyObject *obj);
    static QString makeSorted(QStringList &list);
    static QString makeSortedUniq(QStringList &list);
    QString simpleString(PyObject *po, const char *key);
    static QString fieldText(QString text);
    PyObject *getRpmHdrValue(PyObject *po, const char *tag);
    QString getRpmTime(PyObject *po, const char *tag);
    QString getRpmList(PyObject *po, const char *tag);
    QString getPrco(PyObject *po, const char *tag, const char *key);
    QString getGroupGrps(const Package::Entry &entry, const char *attribute);
    QString getGroupPkgs(const Package::Entry &entry, const char *oldAttribute,
                         const char *newAttribute);
    PyObject *getGroupItem_22(const Package::Entry &entry, const char *attribute);
    PyObject *getGroupItem_25(const Package::Entry &entry, const char *attribute);

    // search.cpp
    bool searchReal(SearchRequest &request);
    bool searchInBulk(SearchRequest &request, const QList<qsizetype> &numbers,
                      PyGILStateWrapper &lock);
    bool readSearchTexts(const SearchRequest &request, const QList<qsizetype> &numbers,
                         Engine::Search &passing, std::vector<SearchSubject> &subjects);
    bool askSearchTexts(const SearchRequest &request, const QList<qsizetype> &missing,
                        const std::function<SearchTexts &(const Package::Entry &)> &textsFor);
    SearchCaches searchCaches();
    void searchSingly(SearchRequest &request, const QList<qsizetype> &numbers);
    bool anyField(const Package::Entry &entry, const Expression &expression);

    // repotest.cpp
    bool testRepositoryReal(RepoTest &test);
    bool takeRepoAnswer(PyObject *item, RepoTest &test);

    // apply.cpp
    bool applyReal();
    void callApply(PyObject *installs, PyObject *updates, PyObject *removes);
    bool applyLists(PyObject *installs, PyObject *updates, PyObject *removes);
    bool appendUpdate(Package::Entry *entry, PyObject *updates);
    void countDownload(const Package::Entry *entry);
    void noteGroups();
    QString getLocalPkg(PyObject *po);
    QString getLocalHdr(PyObject *po);
    bool hasNotStartedUpdate(Package::Entry *entry);
    bool hasNotStartedRemove(Package::Entry *entry);
    // Of a row that could be updated instead, the row itself does not count.
    bool hasInstalledToRemove(Package::Entry *entry);

    // outdated.cpp
    bool findOutdated();
    bool failedOutdated();
    void readSources();
    void readRights();

    // elements.cpp
    void endDownloads();
    quint64 deltaRebuildUnits();
    void startInstall(PyObject *key, quint64 total);
    void startInstallElement(Package::Entry *entry, qint64 weight, bool isUpdate, quint64 total);
    void startEraseElement(const Engine::Element &element, quint64 total);
    void eraseEvent(PyObject *package, bool mayBeUpdate, quint64 total);
    void startErase(const QString &name, bool mayBeUpdate, quint64 total, const QString &unexpected,
                    const QString &tooMany);
    bool installEvent(PyObject *package, bool isUpdate, quint64 total);

    // downloads.cpp
    struct MeterStart;
    quint32 nextCollectAct(const QString &repo, bool isFirst);
    QString metadataText(const MeterStart &start, bool isFirst);
    QString packageText(const MeterStart &start);
    void startDeltaRebuild();
    void updateMeter(Meters &meters, PyObject *id, long long amount);
    void endMeter(Meters &meters, PyObject *id);
    void endMeterThread(const Meter &meter);
    void failMeter(Meters &meters, PyObject *id, PyObject *message);

    // groups.cpp
    enum MemberKind { Mandatory, Default, Optional, Conditional, ConditionalThatHolds };
    bool applyGroups();
    bool applyGrpUpdate(const Package::Entry *group);
    bool applyGrpInstall(const Package::Entry *group);
    bool applyGrpRemove(const Package::Entry *group);
    int applyGrpConflict(const Package::Entry *group, Package::Entry *package);
    void applyGrpLog(const Package::Entry *group, const Package::Entry *package);
    void applyGrpLogWas(const Package::Entry *group, const Package::Entry *package);
    void applyGrpLogNot(const Package::Entry *group, const Package::Entry *package,
                        Package::Action action, const QString &reason);
    bool requiredPkgs(const Package::Entry *group, QSet<QString> &names);
    bool allPkgs(const Package::Entry *group, QSet<QString> &names);
    bool pkgTree(const QString &name, QStringList &names);
    bool markNames(const Package::Entry *group, const QStringList &names,
                   const QSet<QString> *required);
    static QString actionName(Package::Action action);
    void markByGroup(const Package::Entry *group, Package::Entry *package, Package::Action action);
    bool conditionHolds(PyObject *conditional, const QString &member, const QStringList &others);
    bool groupMembers(const Package::Entry *group, std::initializer_list<MemberKind> kinds,
                      QStringList &names);
    bool groupTree(const QStringList &members, QStringList &names);
    bool scriptNames(const char *method, const QString &name, QStringList &names);
    bool appendNames(PyObject *iterable, const QString &what, QStringList &names);

    // transaction.cpp: resolution reports, weighing
    void dsTsInfo(const char *text);
    Package::Entry *dsTsFindPkg(const QString &pkg);
    void dsTsNewPkg(const QString &pkg, Package::Entry *entry, unsigned int ops, bool mayDownload);
    QStringList pkgtupItems(PyObject *pkgtup);
    QStringList tupleOf(PyObject *package);
    QString pkgtupFormat(PyObject *pkgtup);
    QString pkgtupRepoFormat(PyObject *pkgtup, const QString &repo);
    PyObject *addSizeLine(const QString &line, PyObject *args);
    bool displayTransactionPkgs(const QString &title, PyObject *list);
    bool displayTransactionPkgsRepo(const QString &title, PyObject *list);
    bool displayTransactionPkgsObs(const QString &title, PyObject *list);
    bool displayTransactionPkgsFrom(const QString &title, PyObject *list, bool withRepo);
    void noteTransactionPkgs(Package::Action action, PyObject *list);
    bool makeLists(PyObject *owner, TransactionLists &lists);
    bool writeListing(const TransactionLists &lists);
    void startRunTotal();
    bool forEachMember(PyObject *list,
                       const std::function<bool(PyObject *member, PyObject *pkgtup)> &line);
    QString memberVersion(PyObject *member);
    void weigh(QHash<QStringList, Engine::Element> &elements, const QStringList &tuple,
               const Engine::Element &element);
    void weighInstall(Package::Entry *entry, Package::Action action, PyObject *member,
                      const QStringList &tuple);
    void weighRemoval(Package::Entry *entry, PyObject *member, const QStringList &tuple);
    qint64 downloadWeight(qint64 size);
    static PyObject *failedCallback(const char *reason);

    // errors.cpp
    void error(const char *message) override;
    void warning(const char *message) override;
    void pyExceptExpect(PyObject *type) override;
    void pyExceptClear() override;
    void exceptionExpected() override {}
    void commExceptSetup();
    bool commExceptRaised(PyObject *result, const QString &what);
    void reportPending(const QString &what);
    QString exceptionText();
    bool isCancellation() const;
    bool isKept(const QString &report);
    void walkback();
    void pythonException(const QString &text);
    void pythonExceptionV(const QString &text);
    bool fail(const QString &text);
    void restBars();
    void holdReports();
    void showHeldReports();
    bool isHeld(const QString &text, bool isError);
    bool reapChildren();
    void sigchldDisable();
    void sigchldRestore();

    // report.cpp
    void reportTest(const QStringList &lines);
    void keepReport(const QString &text);
    void showKept(const QString &title, const QString &text);
    // Shows once what the script knows of a transaction that was cut off before this run.
    void reportInterrupted();

    // output.cpp
    const char *scriptLine(PyObject *args, Log::Kind kind);

    // clean.cpp
    bool cleanOne(const QString &heading, const char *method);
    bool cleanCode(const char *method);

    // Callbacks of the module yumIOC; each gets the call's arguments and returns a new reference,
    // or null with the interpreter's error set.
    PyObject *stdoutWrite(PyObject *self, PyObject *args);
    PyObject *stderrWrite(PyObject *self, PyObject *args);
    PyObject *log(PyObject *self, PyObject *args);
    PyObject *errorlog(PyObject *self, PyObject *args);
    PyObject *collectProgress(PyObject *self, PyObject *args);
    PyObject *collectGrabMeterStart(PyObject *self, PyObject *args);
    PyObject *collectGrabMeterUpdate(PyObject *self, PyObject *args);
    PyObject *collectGrabMeterEnd(PyObject *self, PyObject *args);
    PyObject *collectGrabMeterFailure(PyObject *self, PyObject *args);
    PyObject *collectGrabMultiMeterStart(PyObject *self, PyObject *args);
    PyObject *collectGrabMultiMeterNew(PyObject *self, PyObject *args);
    PyObject *collectGrabMultiMeterRemove(PyObject *self, PyObject *args);
    PyObject *collectGrabMultiMeterEnd(PyObject *self, PyObject *args);
    PyObject *applyGrabMeterStart(PyObject *self, PyObject *args);
    PyObject *applyGrabMeterUpdate(PyObject *self, PyObject *args);
    PyObject *applyGrabMeterEnd(PyObject *self, PyObject *args);
    PyObject *applyGrabMeterFailure(PyObject *self, PyObject *args);
    PyObject *applyGrabMultiMeterStart(PyObject *self, PyObject *args);
    PyObject *applyGrabMultiMeterNew(PyObject *self, PyObject *args);
    PyObject *applyGrabMultiMeterRemove(PyObject *self, PyObject *args);
    PyObject *applyGrabMultiMeterEnd(PyObject *self, PyObject *args);
    PyObject *dsTsCheck(PyObject *self, PyObject *args);
    PyObject *dsRestartLoop(PyObject *self, PyObject *args);
    PyObject *userconfirm(PyObject *self, PyObject *args);
    PyObject *reportDownloadSize(PyObject *self, PyObject *args);
    PyObject *reportLocalSize(PyObject *self, PyObject *args);
    PyObject *listingNote(PyObject *self, PyObject *args);
    PyObject *listTransaction(PyObject *self, PyObject *args);
    PyObject *tsInitCallback(PyObject *self, PyObject *args);
    PyObject *tsCallback(PyObject *self, PyObject *args);
    PyObject *tsEvent(PyObject *self, PyObject *args);
    PyObject *postTransactionOutput(PyObject *self, PyObject *args);
    PyObject *gpgsigcheck(PyObject *self, PyObject *args);
    PyObject *cancelled(PyObject *self, PyObject *args);
    PyObject *jobState(PyObject *self, PyObject *args);
    PyObject *lockWait(PyObject *self, PyObject *args);
    PyObject *keyQuestion(PyObject *self, PyObject *args);
    PyObject *confirmRemovals(PyObject *self, PyObject *args);
    PyObject *repositoryFailed(PyObject *self, PyObject *args);
    PyObject *scriptletStuck(PyObject *self, PyObject *args);
    PyObject *transactionReport(PyObject *self, PyObject *args);

    Surface m_surface;

    // The running job's.
    YumIODialogs *m_dialogs = nullptr;
    Progress::Object *m_progress = nullptr; // set while a job's Progress::User lives
    Blocker m_blocker;
    std::atomic<bool> m_cancelled = false;
    std::atomic<bool> m_unattended = false;
    std::unique_ptr<Uninterrupted>
        m_uninterrupted; // from the beginning of rpm to the end of the apply
    Engine::ReportKeeper m_keeper;

    Log::EntryList m_log;
    Engine::Capture m_capture;
    Engine::Reports m_reports;

    Engine::Script m_script;
    Engine::Session m_session;
    Engine::Session m_former; // of the rows that are kept unseen while new ones are gathered
    Engine::Store m_store;
    Engine::Search m_search;
    Engine::FailedRepos m_failed;
    Engine::Collected m_collected = Engine::Collected::Failed;
    bool m_keepsFailures = false;         // the caller of the running job shows these
    std::atomic<bool> m_clearing = false; // no row is seen
    const Package::EntryList m_noEntries = {};

    Engine::MetadataDownloads m_metadata;
    Engine::Confirmation m_confirmation;
    Engine::Apply m_apply;
    Engine::PackageDownloads m_packages;
};
