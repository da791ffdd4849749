// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the script asks for: whether to wait for a lock, to trust a key, to stop; and how far a job is.

#include <Python.h>

#include "guiquestions.h"
#include "progress/progress.h"
#include "yumio.h"

PyObject *YumIO::cancelled(PyObject *, PyObject *)
{
    return PyLong_FromLong(m_cancelled ? 1 : 0);
}

PyObject *YumIO::jobState(PyObject *, PyObject *args)
{
    const char *state;
    long canCancel;
    if (!PyArg_ParseTuple(args, "sl", &state, &canCancel))
        return nullptr;
    if (qstrcmp(state, "transaction") == 0 && !m_uninterrupted)
        m_uninterrupted = std::make_unique<Uninterrupted>(); // until the apply is over
    Q_EMIT jobState(QString::fromUtf8(state), canCancel != 0);
    Py_RETURN_NONE;
}

PyObject *YumIO::lockWait(PyObject *, PyObject *args)
{
    long pid;
    const char *command;
    if (!PyArg_ParseTuple(args, "ls", &pid, &command))
        return nullptr;
    if (m_cancelled || !m_dialogs)
        return PyLong_FromLong(0);
    const QString holder = tr("%1 (process %2)").arg(QString::fromUtf8(command)).arg(pid);
    const int button =
        m_dialogs->warning(tr("VOK Package Lock"),
                           tr("Another program is working on the packages of this system:\n%1\n\n"
                              "Wait for it to finish, or give up?")
                               .arg(holder),
                           tr("Wait"), tr("Give Up"), QString(), 0, 1);
    const bool wait = button == 0 && !m_cancelled;
    // Giving up needs no report: the question has told all there is.
    if (!wait) // a cancel of the GUI thread that comes just now must stay
        m_cancelled = true;
    else if (m_progress)
        m_progress->changeItemActivity(tr("Waiting for process %1").arg(pid));
    log(Log::Kind::Warning, 0,
        wait ? tr("Waiting for %1").arg(holder) : tr("Not waiting for %1").arg(holder));
    return PyLong_FromLong(wait ? 1 : 0);
}

PyObject *YumIO::repositoryFailed(PyObject *, PyObject *args)
{
    const char *id, *text;
    long refused;
    if (!PyArg_ParseTuple(args, "ssl", &id, &text, &refused))
        return nullptr;
    if (!m_keepsFailures)
        Py_RETURN_NONE;
    const QString repo = QString::fromUtf8(id);
    m_failed.repos.removeIf([&](const Engine::FailedRepo &failed) { return failed.id == repo; });
    m_failed.repos.append({repo, QString::fromUtf8(text), refused != 0});
    Py_RETURN_NONE;
}

// Called by a thread of the script, beside the worker: nothing is waited for.
PyObject *YumIO::scriptletStuck(PyObject *, PyObject *args)
{
    const char *package, *command;
    long long pid;
    unsigned long long start;
    if (!PyArg_ParseTuple(args, "sLKs", &package, &pid, &start, &command))
        return nullptr;
    Q_EMIT stuckScriptlet(QString::fromUtf8(package), pid, start, QString::fromUtf8(command));
    Py_RETURN_NONE;
}

PyObject *YumIO::keyQuestion(PyObject *, PyObject *args)
{
    const char *id, *user, *fingerprint, *source;
    if (!PyArg_ParseTuple(args, "ssss", &id, &user, &fingerprint, &source))
        return nullptr;
    const QString key = QString::fromUtf8(id);
    const QString text = tr("Something is signed with a key that this system does not know.\n\n"
                            "Key: %1\nOwner: %2\nFingerprint: %3\nSource: %4\n\n"
                            "Import the key, and trust what is signed with it?")
                             .arg(key, QString::fromUtf8(user), QString::fromUtf8(fingerprint),
                                  QString::fromUtf8(source));
    const bool yes = m_dialogs && m_dialogs->warning(tr("VOK Key Import"), text, tr("Yes"),
                                                     tr("No"), QString(), 1, 1) == 0;
    log(Log::Kind::Action, 0,
        yes ? tr("Importing key %1").arg(key) : tr("Not importing key %1").arg(key));
    return PyLong_FromLong(yes ? 1 : 0);
}
