// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether another program changed what the rows tell.

#include "python/pyref.h"

#include "yumio.h"

// Without an answer nothing is known to be watched.
void YumIO::readSources()
{
    m_session.sources = {};
    if (!PyObject_HasAttrString(m_session.yumIO, "sources"))
        return;
    const PyRef result(pyMethodCall(m_session.yumIO, "sources", "()"));
    PyObject *database, *files;
    if (!result || !PyTuple_Check(result.get()) ||
        !PyArg_ParseTuple(result.get(), "OO", &database, &files)) {
        PyErr_Clear();
        return;
    }
    m_session.sources.database = pyString(database);
    const PyRef iterator(PyObject_GetIter(files));
    while (const PyRef file = PyRef(iterator ? PyIter_Next(iterator.get()) : nullptr)) {
        PyObject *path, *pattern;
        if (!PyArg_ParseTuple(file.get(), "OO", &path, &pattern))
            break;
        m_session.sources.files.append({pyString(path), pyString(pattern)});
    }
    PyErr_Clear();
}

void YumIO::readRights()
{
    m_script.missing = {};
    if (!PyObject_HasAttrString(m_session.yumIO, "missingRights"))
        return;
    const PyRef result(pyMethodCall(m_session.yumIO, "missingRights", "()"));
    PyObject *packages, *configuration, *cache;
    if (result && PyTuple_Check(result.get()) &&
        PyArg_ParseTuple(result.get(), "OOO", &packages, &configuration, &cache))
        m_script.missing = {pyString(packages), pyString(configuration), pyString(cache)};
    PyErr_Clear();
}

bool YumIO::installedChanged()
{
    if (!m_session.yumIO || m_session.spent)
        return false;
    const PyGILStateWrapper lock(true);
    if (!PyObject_HasAttrString(m_session.yumIO, "installedChanged"))
        return false;
    const PyRef result(pyMethodCall(m_session.yumIO, "installedChanged", "()"));
    return result.get() == Py_True;
}

bool YumIO::nameChanges()
{
    const PyGILStateWrapper lock(true);
    return findOutdated();
}

bool YumIO::outdated(QStringList *changes) const
{
    if (changes)
        *changes = m_session.changes;
    return !m_session.changes.isEmpty();
}

// Whether the apply whose exception is pending failed after another program had changed the packages.
// The question about that takes the place of a report.
bool YumIO::failedOutdated()
{
    if (!PyErr_Occurred() || isCancellation())
        return false;
    const QString text = exceptionText();
    const int mark = m_reports.logMark;
    PyObject *type, *value, *traceback;
    PyErr_Fetch(&type, &value, &traceback);
    const bool changed = findOutdated() && !m_session.changes.isEmpty();
    PyErr_Restore(type, value, traceback);
    m_reports.logMark = mark;
    if (changed)
        log(Log::Kind::Error, 0, text);
    return changed;
}

// Asks the script, where it can tell, what became of the installed packages since they were read.
// False when the rows are still true; true also after a failure, which was reported.
bool YumIO::findOutdated()
{
    m_session.changes.clear();
    if (!PyObject_HasAttrString(m_session.yumIO, "outdated"))
        return false;
    bool reported = false;
    const PyRef result(bracketed("outdated", tr("apply changes"), reported));
    PyObject *lists[3];
    if (!result || !PyTuple_Check(result.get()) ||
        !PyArg_ParseTuple(result.get(), "OOO", &lists[0], &lists[1], &lists[2])) {
        PyErr_Clear();
        if (result)
            fail(tr("Internal error: execution of yumIO.%1 failed").arg(QLatin1String("outdated")));
        return true;
    }
    const QString texts[] = {tr("Installed: %1"), tr("Removed: %1"), tr("Changed: %1")};
    for (int i = 0; i < 3; ++i) {
        for (const QString &name : textsOf(lists[i]))
            m_session.changes.append(texts[i].arg(name));
    }
    if (m_session.changes.isEmpty())
        return false;
    log(Log::Kind::Warning, 0,
        tr("Not applying: another program changed the installed packages:\n%1")
            .arg(m_session.changes.join(u'\n')));
    return true;
}
