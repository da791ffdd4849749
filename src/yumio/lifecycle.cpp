// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The engine's life: starting the script, running jobs on a worker, clearing, ending.

#include "python/pyref.h"

#include "app/memoryreserve.h"
#include "app/programname.h"
#include "app/share.h"
#include "capturers.h"
#include "guiquestions.h"
#include "threads.h"
#include "yumio.h"
#include "yumioc.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <QTimer>

#include <csignal>
#include <pthread.h>
#include <utility>

namespace {

constexpr int jobBytes = 64 << 20;
MemoryReserve reserve;

QString tooLittleMemory()
{
    return YumIO::
        tr("Less than %1 MiB of memory are left, which is too little for VOK and rpm. Quit other "
           "programs, or raise the limit, and try again.")
            .arg(jobBytes >> 20);
}

} // namespace

void YumIO::Blocker::block()
{
    m_mutex.lock();
    m_mutex.unlock();
}

YumIO::ThreadId::operator long() const
{
    return long(quint32(qHash(text, 0)) + quint32(act));
}

YumIO::YumIO() = default;

YumIO::~YumIO()
{
    if (isInitialized()) {
        const PyGILStateWrapper lock(true);
        py("import sys\nsys.stdout = sys.__stdout__\nsys.stderr = sys.__stderr__\n");
        if (m_script.locked && m_session.yumIO) {
            pyExceptStart();
            pyExceptExpect(m_script.exceptionTypes[LockError]);
            const PyRef result(pyMethodCall(m_session.yumIO, "unlock", "()"));
            if (pyExceptMatches(result.get(), m_script.exceptionTypes[LockError]))
                pythonExceptionV(tr("Unable to release yum lock"));
            pyExceptClear();
        }
        releaseEntries(true);
        Py_CLEAR(m_former.yumIO);
        Py_CLEAR(m_session.yumIO);
        Py_CLEAR(m_script.yumIOClass);
        YumIOC::initialize(nullptr);
        PyErr_Clear();
    }
    delete m_dialogs;
}

void YumIO::setup(QWidget *parent, HProgressBar *totalBar, HProgressBar *itemBar)
{
    m_surface = {parent, totalBar, itemBar};
    m_dialogs = new YumIODialogs(parent);
}

YumIO::Surface YumIO::exchangeSurface(const Surface &surface)
{
    return std::exchange(m_surface, surface);
}

// Reports what kept the session from starting. The interpreter's reason is in the log.
bool YumIO::failInitialize(const QString &message)
{
    if (PyErr_Occurred()) {
        handleException();
        PyErr_Clear();
    }
    error(message);
    return false;
}

// As failInitialize, for what is missing on this computer, which its user can mend.
bool YumIO::failMissing(const QString &message, const QString &reason)
{
    log(Log::Kind::Error, 0, reason);
    walkback();
    PyErr_Clear();
    const QString needs =
        tr("VOK needs its share directory, which is %1 (the environment variable VOKSHARE can name "
           "another one), and the Python modules dnf and rpm of this system.");
    const QString share = QFileInfo(Share::absolute(QStringLiteral("python"))).path();
    error(QStringList{message, reason, needs.arg(share)}.join(QStringLiteral("\n\n")));
    return false;
}

bool YumIO::initialize()
{
    if (!Python::initialize())
        return false;
    const PyGILStateWrapper lock(true);
    if (m_session.yumIO)
        return true;
    if (!YumIOC::initialize(this))
        return failInitialize(tr("Internal error: cannot create python module yumIOC"));
    const PyRef argv(Py_BuildValue("[ss]", programName().toUtf8().constData(), "info"));
    PySys_SetObject("argv", argv.get());
    // Until the script has its own way: why it could not start belongs in the log, and, since the
    // program ends then, on the terminal.
    py("import sys, types, yumIOC\n"
       "def _write(text):\n"
       "    yumIOC.stderrWrite(text)\n"
       "    if sys.__stderr__: sys.__stderr__.write(text)\n"
       "sys.stderr = types.SimpleNamespace(write=_write, flush=lambda: None)\n");

    if (!runScript() || !createYumIO())
        return false;
    return lookUpExceptionTypes();
}

// Runs YumIO.py and takes what the engine needs from it.
bool YumIO::runScript()
{
    const PyRef rpm(PyImport_ImportModule("rpm"));
    if (!rpm)
        return failMissing(tr("Internal error: cannot find python rpm module"), exceptionText());
    m_script.rpmDict = PyModule_GetDict(rpm.get()); // kept alive by sys.modules
    if (!m_script.rpmDict)
        return failInitialize(tr("Internal error: cannot find python rpm dict"));
    setEnablePythonSIGINTHandler(false);

    const QString refusal = Share::refusal();
    if (!refusal.isEmpty())
        return failInitialize(refusal);
    QFile file(Share::absolute(QStringLiteral("python/YumIO.py")));
    if (!file.open(QIODevice::ReadOnly)) {
        return failMissing(tr("Internal error: unable to open YumIO.py"),
                           QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
    }
    const QByteArray source = file.readAll();
    file.close();
    PyObject *main = PyModule_GetDict(PyImport_AddModule("__main__"));
    const PyRef code(Py_CompileString(source.constData(), "YumIO.py", Py_file_input));
    const PyRef done(code ? PyEval_EvalCode(code.get(), main, main) : nullptr);
    if (!done) {
        const QString message = tr("Internal error: unable to execute YumIO.py");
        return PyErr_ExceptionMatches(PyExc_ImportError) ? failMissing(message, exceptionText())
                                                         : failInitialize(message);
    }

    Py_CLEAR(m_script.yumIOClass);
    m_script.yumIOClass = PyRef::share(PyDict_GetItemString(main, "YumIO")).release();
    if (!m_script.yumIOClass)
        return failInitialize(tr("Internal error: cannot find python YumIO"));
    return true;
}

// Makes a fresh script object; reports a failure.
bool YumIO::createYumIO()
{
    pyExceptStart();
    pyExceptExpect(PyExc_SystemExit);
    PyObject *object = PyObject_CallNoArgs(m_script.yumIOClass);
    const bool refused = pyExceptMatches(object, PyExc_SystemExit);
    if (refused)
        pythonExceptionV(tr("Unable to initialize"));
    else if (!object)
        failInitialize(tr("Internal error: cannot create python yumIO"));
    pyExceptClear();
    Py_XSETREF(m_session.yumIO, object);
    if (object) {
        readSources();
        readRights();
    }
    return object != nullptr;
}

bool YumIO::lookUpExceptionTypes()
{
    static constexpr struct
    {
        const char *name;
        bool optional;
    } types[ExceptionTypeCount] = {
        {"bdb.BdbQuit", false},
        {"yum.Errors.YumBaseError", false},
        {"yum.Errors.RepoError", false},
        {"sqlite3.OperationalError", true},
        {"yum.Errors.LockError", false},
        {"yum.Errors.GroupsError", false},
        {"yum.Errors.NoMoreMirrorsRepoError", true},
    };
    for (int i = 0; i < ExceptionTypeCount; ++i)
        m_script.exceptionTypes[i] = pyLookup(types[i].name, types[i].optional);
    return true;
}

// False when no thread could be started.
bool YumIO::execWorkThread(QEventLoop &loop, QThread &thread, Failures failures)
{
    m_keepsFailures = failures == Failures::Kept;
    m_cancelled = false;
    m_blocker.prepare();
    const Uninterrupted::Server server([this] { abandon(); },
                                       [&] { return serveWithoutDisplay(thread); });
    const PyThreadStateWrapper unlocked;
    thread.start(QThread::HighPriority);
    if (!thread.isRunning()) { // it waits for the blocker otherwise
        m_blocker.release();
        m_keepsFailures = false;
        error(tr("Unable to start a thread: no memory is left, or too many processes are "
                 "running."));
        return false;
    }

    sigset_t blocked, previous;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGCHLD);
    pthread_sigmask(SIG_BLOCK, &blocked, &previous);

    QTimer::singleShot(0, this, &YumIO::blockerRelease);
    loop.exec();
    // An application that was told to quit ends every loop at once, but the job's questions still
    // need one.
    while (!thread.wait(20))
        loop.processEvents(QEventLoop::AllEvents);
    loop.processEvents(QEventLoop::ExcludeUserInputEvents);
    {
        const PyGILStateWrapper lock(true);
        setEnablePythonSIGINTHandler(false);
    }
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    m_keepsFailures = false;
    Q_EMIT jobState(QStringLiteral("done"), false);
    return true;
}

// The display is gone. Any thread.
void YumIO::abandon()
{
    m_unattended = true;
    YumIODialogs::declineAll();
}

// One step of what the worker needs of the GUI thread once there is no display any more. True when the worker has
// ended.
bool YumIO::serveWithoutDisplay(QThread &thread)
{
    m_log.blockSignals(true); // the log window would paint
    YumIOCapturersMinion::serveAll();
    return thread.wait(20);
}

void YumIO::blockerRelease()
{
    m_blocker.release();
}

bool YumIO::collect(const QHash<QString, bool> &reposUsed, QStringList leftOut,
                    const Settle &settle)
{
    m_session.fileLists = false;
    m_session.otherData = false;
    m_search = {};
    bool collected = false;
    bool again = reserve.leavesRoomFor(jobBytes);
    if (!again)
        error(tooLittleMemory());
    while (again) {
        m_failed = {};
        QEventLoop loop;
        CollectThread thread(this, loop, reposUsed, leftOut);
        execWorkThread(loop, thread, settle ? Failures::Kept : Failures::Shown);
        collected = thread.result();
        again = !collected && !m_cancelled && !m_failed.report.isEmpty() &&
                settle(takeFailedRepos(), leftOut) && makeSession();
    }
    if (collected)
        publishEntries();
    else if (m_former.yumIO)
        takeFormerBack();
    m_clearing = false;
    Q_EMIT collectedExtraData();
    return collected;
}

bool YumIO::apply()
{
    if (!reserve.leavesRoomFor(jobBytes))
        return fail(tooLittleMemory());
    QEventLoop loop;
    ApplyThread thread(this, loop);
    execWorkThread(loop, thread, Failures::Kept);
    keepOutcome();
    m_session.spent = m_session.spent || thread.result();
    return thread.result();
}

void YumIO::clearEntries()
{
    m_clearing = true;
    QEventLoop loop;
    ClearEntriesThread thread(this, loop);
    if (!execWorkThread(loop, thread))
        dropSession();
    m_clearing = false;
}

void YumIO::clearEntriesReal()
{
    m_blocker.block();
    dropSession();
}

void YumIO::dropSession()
{
    const PyGILStateWrapper lock(true);
    releaseEntries(true);
    Py_CLEAR(m_former.yumIO); // which frees the packages
    Py_CLEAR(m_session.yumIO);
}

void YumIO::releaseEntries(bool withInterpreter)
{
    publishEntries(); // or those that a failed collection gathered would belong to nobody
    for (Package::Entry *head : std::as_const(m_store.entries)) {
        for (Package::Entry *entry = head; entry; entry = entry->next) {
            if (withInterpreter)
                Py_XDECREF(entry->po);
            entry->po = nullptr;
        }
    }
    m_store = {};
}

// Gives the collected rows to the table in one step, on the GUI thread.
void YumIO::publishEntries()
{
    m_store.entries.clear();
    m_store.entries.reserve(m_store.byKey.size());
    for (Package::Entry *entry : std::as_const(m_store.byKey))
        m_store.entries.append(entry);
}

void YumIO::clear()
{
    flush();
    clearEntries();
    const PyGILStateWrapper lock(true);
    m_former = m_session = {};
    if (m_script.yumIOClass)
        createYumIO();
}

// For another attempt, in the place of the session that failed.
bool YumIO::makeSession()
{
    const PyGILStateWrapper lock(true);
    Py_CLEAR(m_session.yumIO);
    m_session = {};
    return createYumIO();
}

void YumIO::renew()
{
    if (m_session.spent || m_former.yumIO || m_store.entries.isEmpty()) {
        clear();
        return;
    }
    flush();
    m_clearing = true;
    const PyGILStateWrapper lock(true);
    m_former = std::exchange(m_session, {});
    if (m_script.yumIOClass)
        createYumIO();
}

void YumIO::flush()
{
    const PyGILStateWrapper lock(true);
    if (m_session.yumIO)
        const PyRef result(pyMethodCall(m_session.yumIO, "flush", "()"));
}

// On the worker: rows of a new session take the place of the hidden ones.
void YumIO::dropFormer()
{
    if (!m_former.yumIO)
        return;
    releaseEntries(true);
    Py_CLEAR(m_former.yumIO);
    m_former = {};
}

void YumIO::takeFormerBack()
{
    const PyGILStateWrapper lock(true);
    PyErr_Clear();
    Py_CLEAR(m_session.yumIO);
    m_session = std::exchange(m_former, {});
}

void YumIO::clearEntriesBeforeQuit()
{
    m_clearing = true;
    releaseEntries(false);
}

QList<Package::Entry *>::const_iterator YumIO::begin() const
{
    return m_clearing ? m_noEntries.cbegin() : m_store.entries.cbegin();
}

QList<Package::Entry *>::const_iterator YumIO::end() const
{
    return m_clearing ? m_noEntries.cend() : m_store.entries.cend();
}

Package::Entry *YumIO::operator[](int row) const
{
    return m_clearing ? m_noEntries[row] : m_store.entries[row];
}

int YumIO::count() const
{
    return m_clearing ? 0 : int(m_store.entries.size());
}
