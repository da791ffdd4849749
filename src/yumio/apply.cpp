// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// One transaction: from the rows' actions to the script's "apply" and back.

#include "python/pyref.h"

#include "capturers.h"
#include "guiquestions.h"
#include "progress/progress.h"
#include "yumio.h"

#include <QFile>
#include <QScopeGuard>

namespace {

bool append(PyObject *list, PyObject *item)
{
    const bool appended = item && PyList_Append(list, item) == 0;
    if (!appended)
        PyErr_Clear();
    return appended;
}

// The installed versions behind a row: all of its chain, save the row itself when it is an update.
Package::Entry *firstInstalled(Package::Entry *entry)
{
    return entry->state == Package::State::Updatable ? entry->next : entry;
}

} // namespace

bool YumIO::applyReal()
{
    m_blocker.block();
    const auto over = qScopeGuard([this] { m_uninterrupted.reset(); });
    Progress::User progressUser(m_progress, m_surface.totalBar, m_surface.itemBar);
    YumIODialogsUser dialogsUser(m_dialogs, m_surface.parent);
    log(Log::Kind::Action, 0, tr("Applying"));

    PyGILStateWrapper lock(true);
    m_progress->startTotal(tr("Checking Dependencies: Total Progress"), 10000);
    m_progress->startItem(tr("Preparing"), 100, true);
    m_confirmation = {};
    m_apply = {};
    m_packages = {};
    // Asked now, because an answer fetched in the middle of the transaction would disturb the
    // expected exceptions.
    usesPresto();
    hasMultiProgress();
    const PyRef installs(PyList_New(0)), updates(PyList_New(0)), removes(PyList_New(0));
    for (Package::Entry *entry : std::as_const(m_store.entries)) {
        entry->applyAction = entry->action;
        entry->markedBy = entry;
        for (Package::Entry *old = entry->next; old; old = old->next)
            old->started = false;
    }
    if (findOutdated() || !applyGroups() ||
        !applyLists(installs.get(), updates.get(), removes.get())) {
        m_progress->reset();
        return false;
    }
    m_apply.passActs = m_apply.resolutionActs = m_apply.opCount;
    m_progress->setupItemActs(9900, m_apply.resolutionActs + 10 * m_apply.downloadCount);

    if (!reapChildren()) {
        m_progress->reset();
        return false;
    }
    callApply(installs.get(), updates.get(), removes.get());
    PyObject *flushed = pyMethodCall(m_session.yumIO, "flush", "()");
    Py_XDECREF(flushed);
    m_progress->reset();
    return m_apply.applied;
}

// The script's part, with the process's output in the log for its length.
void YumIO::callApply(PyObject *installs, PyObject *updates, PyObject *removes)
{
    YumIOCapturersUser capturersUser(m_capture.capturers, this);
    sigchldDisable();
    noteGroups();
    pyExceptStart();
    commExceptSetup();
    const PyRef result(
        pyMethodCall(m_session.yumIO, "apply", "(O,O,O)", installs, updates, removes));
    const bool raised =
        (!result && failedOutdated()) || commExceptRaised(result.get(), tr("apply changes"));
    pyExceptClear();
    showHeldReports();
    if (!m_apply.isComplete) {
        restBars();
        showKept(tr("VOK Transaction Report"), m_apply.outcome);
    }
    keepOutcome();
    if (raised || !result) {
        m_apply.applied = false;
        PyObject *cleaned = pyMethodCall(m_session.yumIO, "applyFailCleanup", "()");
        Py_XDECREF(cleaned);
    }
    sigchldRestore();
}

bool YumIO::applyLists(PyObject *installs, PyObject *updates, PyObject *removes)
{
    for (Package::Entry *entry : std::as_const(m_store.entries)) {
        if (entry->kind == Package::Kind::Group)
            continue;
        switch (entry->applyAction) {
        case Package::Action::Update:
            if (!appendUpdate(entry, updates))
                return false;
            break;
        case Package::Action::Install:
            if (!append(installs, entry->po))
                error(tr("Unable to add package %1 to installs list").arg(entry->name));
            ++m_apply.opCount;
            countDownload(entry);
            break;
        case Package::Action::Remove:
            for (Package::Entry *old = firstInstalled(entry); old; old = old->next) {
                if (!append(removes, old->po))
                    error(tr("Unable to add package %1 to removes list").arg(entry->name));
                ++m_apply.opCount;
            }
            break;
        case Package::Action::None:
            break;
        }
    }
    return true;
}

// One pair of new and old for each installed version that the update replaces.
bool YumIO::appendUpdate(Package::Entry *entry, PyObject *updates)
{
    if (!entry->next) {
        return fail(tr("Internal error: Unable to find installed version for package update %1")
                        .arg(entry->name));
    }
    ++m_apply.opCount;
    for (Package::Entry *old = entry->next; old; old = old->next) {
        const PyRef pair(PyList_New(0));
        if (!append(pair.get(), entry->po)) {
            error(tr("Unable to add new package to pair for updated package %1").arg(entry->name));
        }
        if (!append(pair.get(), old->po)) {
            error(tr("Unable to add old package to pair for updated package %1").arg(entry->name));
        }
        if (!append(updates, pair.get()))
            error(tr("Unable to add package %1 to updates list").arg(entry->name));
        ++m_apply.opCount;
    }
    countDownload(entry);
    return true;
}

void YumIO::countDownload(const Package::Entry *entry)
{
    if (!QFile::exists(getLocalHdr(entry->po)))
        ++m_apply.downloadCount;
}

// The library keeps records of groups; they follow the transaction when the script knows which
// groups were marked, where it takes an interest.
void YumIO::noteGroups()
{
    if (!PyObject_HasAttrString(m_session.yumIO, "noteGroups"))
        return;
    const PyRef groups(PyList_New(0));
    for (const Package::Entry *entry : std::as_const(m_store.entries)) {
        if (entry->kind != Package::Kind::Group || entry->applyAction == Package::Action::None)
            continue;
        const PyRef item(Py_BuildValue("(Oi)", entry->po, int(entry->applyAction)));
        if (!append(groups.get(), item.get()))
            error(tr("Unable to add group %1 to groups list").arg(entry->name));
    }
    PyObject *result = pyMethodCall(m_session.yumIO, "noteGroups", "(O)", groups.get());
    Py_XDECREF(result);
}

QString YumIO::getLocalPkg(PyObject *po)
{
    PyObject *path = pyMethodCall(po, "localPkg", "()");
    return path ? pyStringDec(path) : QString();
}

QString YumIO::getLocalHdr(PyObject *po)
{
    PyObject *path = pyMethodCall(po, "localHdr", "()");
    return path ? pyStringDec(path) : QString();
}

Package::Kind YumIO::getPkgKind(PyObject *po)
{
    return simpleString(po, "group") == QLatin1String("Suite") ? Package::Kind::Suite
                                                               : Package::Kind::Package;
}

namespace {

bool anyNotStarted(const Package::Entry *entry)
{
    while (entry && entry->started)
        entry = entry->next;
    return entry;
}

} // namespace

bool YumIO::hasNotStartedUpdate(Package::Entry *entry)
{
    return entry->applyAction == Package::Action::Update && anyNotStarted(entry);
}

bool YumIO::hasNotStartedRemove(Package::Entry *entry)
{
    return entry->applyAction == Package::Action::Remove && anyNotStarted(entry);
}

bool YumIO::hasInstalledToRemove(Package::Entry *entry)
{
    return entry->applyAction == Package::Action::Remove && anyNotStarted(firstInstalled(entry));
}

PyObject *YumIO::gpgsigcheck(PyObject *, PyObject *)
{
    m_confirmation.text.clear();
    Py_RETURN_NONE;
}
