// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/pyref.h"

#include "guiquestions.h"
#include "progress/progress.h"
#include "yumio.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/wait.h>
#include <utility>

void YumIO::error(const QString &text)
{
    log(Log::Kind::Error, 0, text);
    if (!isHeld(text, true) && m_dialogs)
        m_dialogs->critical(tr("VOK Yum Error"), text, QString(), QString(), QString(), 0, -1);
}

void YumIO::warning(const QString &text)
{
    log(Log::Kind::Warning, 0, text);
    if (!isHeld(text, false) && m_dialogs)
        m_dialogs->warning(tr("VOK Yum Warning"), text, QString(), QString(), QString(), 0, -1);
}

void YumIO::error(const char *message)
{
    error(QCoreApplication::translate("Python", message));
}

void YumIO::warning(const char *message)
{
    warning(QString::fromUtf8(message));
}

// The report of what ends a job: its bars rest before the user is told. False, for returning.
bool YumIO::fail(const QString &text)
{
    restBars();
    error(text);
    return false;
}

void YumIO::restBars()
{
    if (m_progress)
        m_progress->reset();
}

// From here on reports are only logged, and kept.
void YumIO::holdReports()
{
    m_reports.held = true;
}

QString YumIO::withoutBoxes(const std::function<void()> &work)
{
    holdReports();
    work();
    return std::exchange(m_reports, {}).texts.join(QLatin1String("\n\n"));
}

// Shows what was kept, in order, and no longer keeps what comes.
void YumIO::showHeldReports()
{
    const Engine::Reports held = m_reports;
    m_reports = {};
    m_reports.logMark = held.logMark;
    if (held.texts.isEmpty())
        return;
    restBars();
    showKept(held.haveError ? tr("VOK Yum Error") : tr("VOK Yum Warning"),
             held.texts.join(QLatin1String("\n\n")));
}

bool YumIO::isHeld(const QString &text, bool isError)
{
    if (!m_reports.held)
        return false;
    if (!m_reports.texts.contains(text)) // an event may repeat what was said of its element
        m_reports.texts.append(text);
    m_reports.haveError |= isError;
    return true;
}

void YumIO::pyExceptExpect(PyObject *type)
{
    m_reports.logMark = int(m_log.count());
    Python::pyExceptExpect(type);
}

void YumIO::pyExceptClear()
{
    m_reports.logMark = -1;
    Python::pyExceptClear();
}

void YumIO::commExceptSetup()
{
    pyExceptExpect(m_script.exceptionTypes[BdbQuit]);
    pyExceptExpect(m_script.exceptionTypes[YumBaseError]);
    pyExceptExpect(m_script.exceptionTypes[RepoError]);
    pyExceptExpect(PyExc_IOError);
    pyExceptExpect(PyExc_KeyboardInterrupt);
    pyExceptExpect(PyExc_AssertionError);
    if (m_script.exceptionTypes[SqliteOperationalError])
        pyExceptExpect(m_script.exceptionTypes[SqliteOperationalError]);
    if (m_script.exceptionTypes[NoMoreMirrorsRepoError])
        pyExceptExpect(m_script.exceptionTypes[NoMoreMirrorsRepoError]);
}

// The pending exception's text; it stays pending.
QString YumIO::exceptionText()
{
    const PyRef value(pyExceptValuef());
    return value ? pyStringX(value.get()) : QString();
}

// Prints the pending exception with its traceback to the interpreter's standard error, which ends
// in the log, and clears it.
void YumIO::walkback()
{
    PyObject *type, *value, *traceback;
    PyErr_Fetch(&type, &value, &traceback);
    PyErr_NormalizeException(&type, &value, &traceback);
    if (type)
        PyErr_Display(type, value, traceback);
    Py_XDECREF(type);
    Py_XDECREF(value);
    Py_XDECREF(traceback);
}

// True when the pending exception says that the user cancelled, which the user knows: a line in the
// log is enough.
bool YumIO::isCancellation() const
{
    PyObject *const type = m_cancelled ? PyErr_Occurred() : nullptr;
    if (!type || !PyType_Check(type))
        return false;
    PyObject *const bases = reinterpret_cast<PyTypeObject *>(type)->tp_mro;
    for (Py_ssize_t i = 0; bases && i < PyTuple_GET_SIZE(bases); ++i) {
        auto *const base = reinterpret_cast<PyTypeObject *>(PyTuple_GET_ITEM(bases, i));
        if (std::strcmp(base->tp_name, "CancelledError") == 0)
            return true;
    }
    return false;
}

// True when the pending exception is about repositories that the job's caller shows; the report is
// then logged and kept for it.
bool YumIO::isKept(const QString &report)
{
    const QString text = exceptionText();
    const auto &repos = std::as_const(m_failed.repos);
    if (!m_keepsFailures || std::none_of(repos.begin(), repos.end(), [&](const auto &repo) {
            return text.contains(repo.text);
        }))
        return false;
    restBars();
    m_failed.report = report;
    log(Log::Kind::Error, 0, report);
    return true;
}

bool YumIO::commExceptRaised(PyObject *result, const QString &what)
{
    if (!result && isCancellation()) {
        log(Log::Kind::Warning, 0, exceptionText());
        return true;
    }
    const auto raised = [&](PyObject *type) { return type && pyExceptMatches(result, type); };
    // The job ends with it, and its bars rest before the user is told.
    if (!result)
        restBars();

    if (raised(PyExc_IOError)) {
        const QString value = exceptionText();
        walkback();
        error(tr("Unable to %1: I/O Error: %2\n\nEmitting a walkback to the Log window.")
                  .arg(what, value));
    } else if (raised(PyExc_KeyboardInterrupt)) {
        walkback();
        error(tr("Unable to %1: KeyboardInterrupt\n\n"
                 "This usually means VOK was sent signal SIGINT, SIGTERM, or similar.\n\n"
                 "But urlgrabber also can raise this error for several situations where it is "
                 "just guessing.\n"
                 "So, emitting a walkback to the Log window.")
                  .arg(what));
    } else if (raised(PyExc_AssertionError)) {
        walkback();
        error(tr("Internal error: python assertion failed\n"
                 "When reporting this issue, please include the contents of the\n"
                 "Log window, which should contain a walkback."));
    } else if (raised(m_script.exceptionTypes[NoMoreMirrorsRepoError])) {
        const QString text = tr("Unable to %1: metadata unavailable from all repo mirrors:\n%2")
                                 .arg(what, exceptionText());
        if (!isKept(text))
            error(text);
    } else if (raised(m_script.exceptionTypes[RepoError]) ||
               raised(m_script.exceptionTypes[SqliteOperationalError])) {
        if (exceptionText().contains(QLatin1String("database is locked"))) {
            pythonException(
                tr("Unable to %1: a repository's sqlite database was locked unexpectedly\n"
                   "On some distributions, PackageKit has been known to cause this.")
                    .arg(what));
        } else {
            exceptionError();
        }
    } else if (raised(m_script.exceptionTypes[BdbQuit]) ||
               raised(m_script.exceptionTypes[YumBaseError])) {
        pythonExceptionV(tr("Unable to %1").arg(what));
    } else {
        return false;
    }
    return true;
}

// Reports the pending exception of a call that no expectations were declared for: what the script
// refuses as "Unable to `what`", anything else as an internal error.
void YumIO::reportPending(const QString &what)
{
    pyExceptStart();
    commExceptSetup();
    handleException();
    if (PyErr_Occurred())
        commExceptRaised(nullptr, what);
    pyExceptClear();
}

void YumIO::pythonException(const QString &text)
{
    restBars();
    qsizetype start = m_reports.logMark;
    if (start == -1)
        start = m_log.count();
    log(Log::Kind::Error, 0, text);
    const QString lines = m_log.errors(start).join(QLatin1Char('\n')); // of the failed calls too
    if (!isHeld(lines, true) && m_dialogs)
        m_dialogs->scrollable(tr("VOK Yum Error"), lines);
}

void YumIO::pythonExceptionV(const QString &text)
{
    if (isCancellation()) {
        log(Log::Kind::Warning, 0, exceptionText());
        return;
    }
    if (isKept(exceptionText() + QLatin1Char('\n') + text))
        return;
    // Both lines belong to the report, so the mark is set before the first when there is none.
    const int outerMark = m_reports.logMark;
    if (m_reports.logMark == -1)
        m_reports.logMark = int(m_log.count());
    log(Log::Kind::Error, 0, exceptionText());
    pythonException(text);
    m_reports.logMark = outerMark;
}

bool YumIO::reapChildren()
{
    for (;;) {
        const pid_t pid = ::waitpid(-1, nullptr, WNOHANG);
        if (pid == 0 || (pid == -1 && errno == ECHILD))
            return true;
        if (pid == -1) {
            const int cause = errno;
            return fail(tr("Unable to reap children; errno=%1 (%2)")
                            .arg(cause)
                            .arg(QString::fromLocal8Bit(std::strerror(cause))));
        }
        log(Log::Kind::Warning, 0, tr("Reaped zombie child %1").arg(pid));
    }
}

void YumIO::sigchldDisable()
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    sigemptyset(&action.sa_mask);
    if (::sigaction(SIGCHLD, &action, &m_capture.savedSigchld) == -1) {
        const int cause = errno;
        error(tr("Unable to disable SIGCHLD signal handler; errno=%1 (%2)")
                  .arg(cause)
                  .arg(QString::fromLocal8Bit(std::strerror(cause))));
    }
}

void YumIO::sigchldRestore()
{
    if (::sigaction(SIGCHLD, &m_capture.savedSigchld, nullptr) == -1) {
        const int cause = errno;
        error(tr("Unable to restore SIGCHLD signal handler; errno=%1 (%2)")
                  .arg(cause)
                  .arg(QString::fromLocal8Bit(std::strerror(cause))));
    }
}
