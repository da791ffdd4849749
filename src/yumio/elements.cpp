// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The running rpm transaction, element by element.

#include "python/pyref.h"

#include "progress/progress.h"
#include "weights.h"
#include "yumio.h"

namespace {

// Bits of rpm's own callback kinds.
enum RpmCallback : long {
    InstProgress = 1,
    InstStart = 2,
    InstOpenFile = 4,
    InstCloseFile = 8,
    TransProgress = 16,
    TransStart = 32,
    TransStop = 64,
    UninstProgress = 128,
    UninstStart = 256,
    UninstStop = 512
};

// The library's element states.
enum ElementAction : long {
    UpdateElement = 10,
    InstallElement = 20,
    TrueInstallElement = 30,
    EraseElement = 40,
    ObsoletedElement = 50,
    ObsoletingElement = 60,
    AvailableElement = 70,
    UpdatedElement = 90
};

Steps steps(long long value)
{
    return value > 0 ? Steps(value) : 0;
}

} // namespace

// What the downloads have left of their units, and those of a rebuilding that there was none of.
void YumIO::endDownloads()
{
    m_progress->endItemActs();
    if (m_packages.deltaRebuildShown || !usesPresto())
        return;
    m_packages.deltaRebuildShown = true;
    m_progress->startItem(tr("Finishing RPM rebuild from deltas"), deltaRebuildUnits(), true);
    m_progress->setItemValue(1);
    m_progress->setupItemActs(0, 0);
}

PyObject *YumIO::tsInitCallback(PyObject *, PyObject *args)
{
    long phase;
    if (!PyArg_ParseTuple(args, "l", &phase))
        return nullptr;
    m_apply.actPosition = 0;
    if (!m_progress)
        Py_RETURN_NONE;
    const Steps start = Steps(m_apply.transactionWeight / 20);
    holdReports();
    endDownloads();
    if (phase != 0) {
        m_progress->startItem(tr("Preparing to Run Transaction"), 1000, true);
        m_progress->setupItemActs(8000, Steps(m_apply.transactionWeight) + start);
        Py_RETURN_NONE;
    }
    if (hasTransTest()) {
        m_progress->startItem(tr("Preparing to Test Transaction"), 1000, true);
        m_progress->setupItemActs(1000, start);
    }
    Py_RETURN_NONE;
}

PyObject *YumIO::tsCallback(PyObject *, PyObject *args)
{
    long what;
    long long amount, total;
    PyObject *key, *data;
    if (!PyArg_ParseTuple(args, "lLLOO", &what, &amount, &total, &key, &data))
        return nullptr;
    if (!m_progress)
        Py_RETURN_NONE;
    if (what & TransStart) {
        m_apply.actPosition += Steps(m_apply.transactionWeight / 20);
        m_progress->startItemAct(tr("Transaction Test"), steps(total), m_apply.actPosition);
    }
    if (what & TransProgress)
        m_progress->setItemValue(steps(amount));
    if (what & TransStop)
        m_progress->setItemValue(steps(total));
    if (what & InstStart)
        startInstall(key, steps(total));
    if (what & InstProgress)
        m_progress->setItemValue(steps(amount));
    if (what & UninstStart) {
        startErase(pyString(key), true, steps(total),
                   tr("Internal error: YumIO::tsCallback UNINST of %1 not expected"),
                   tr("Internal error: YumIO::tsCallback UNINST of %1 too many times"));
    }
    if (what & UninstProgress)
        m_progress->setItemValue(steps(amount));
    if (what & UninstStop)
        m_progress->setItemValue(steps(total));
    constexpr long known = InstOpenFile | InstCloseFile | TransStart | TransProgress | TransStop |
                           InstStart | InstProgress | UninstStart | UninstProgress | UninstStop;
    if (!(what & known)) {
        warning(tr("Internal error: YumIO::tsCallback what=%1 not understood; ignoring").arg(what));
    }
    Py_RETURN_NONE;
}

// `key` is the (header, path) pair that the transaction was built with.
void YumIO::startInstall(PyObject *key, Steps total)
{
    const PyRef header(PySequence_GetItem(key, 0));
    const auto field = [&](const char *name) {
        const PyRef value(header ? PyMapping_GetItemString(header.get(), name) : nullptr);
        PyErr_Clear();
        return value ? pyString(value.get()) : QString();
    };
    PyErr_Clear();
    const QString name = field("name"), arch = field("arch");
    Package::Entry *entry = m_store.byKey.value(EntryKey(false, name, getBiArch(arch)));
    if (!entry) {
        error(tr("Internal error: Unable to find package for install/update of %1.%2")
                  .arg(name, arch));
        return;
    }
    startInstallElement(entry, Weights::install(entry->size),
                        entry->applyAction == Package::Action::Update, total);
}

void YumIO::startInstallElement(Package::Entry *entry, qint64 weight, bool isUpdate, Steps total)
{
    const QString text =
        isUpdate ? tr("Updating %1").arg(entry->name) : tr("Installing %1").arg(entry->name);
    m_apply.actPosition += Steps(weight);
    entry->started = true;
    log(Log::Kind::Normal, 1, text);
    m_progress->startItemAct(text, total, m_apply.actPosition);
}

// Where an erasure is reported by name alone, each one takes the next version of the name that rpm
// has not begun. `unexpected` and `tooMany` are the warnings for a name that nothing was to be
// erased of and for one too many.
void YumIO::startErase(const QString &name, bool mayBeUpdate, Steps total,
                       const QString &unexpected, const QString &tooMany)
{
    Package::Entry *row = mayBeUpdate ? findPackage(name, &YumIO::hasNotStartedUpdate) : nullptr;
    const bool isUpdate = row;
    // Of two architectures the one that is through gives way to the other.
    if (!row)
        row = findPackage(name, &YumIO::hasInstalledToRemove);
    if (!row)
        row = findPackage(name, &YumIO::hasNotStartedRemove);
    if (!row) {
        warning(unexpected.arg(name));
        row = findPackage(name);
    }
    if (!row)
        return;
    Package::Entry *entry = row->state == Package::State::Updatable ? row->next : row;
    while (entry && entry->started)
        entry = entry->next;
    if (!entry) {
        warning(tooMany.arg(name));
        entry = row;
    }
    entry->started = true;
    const qint64 weight =
        isUpdate ? Weights::completion(entry->size) : Weights::removal(entry->size);
    startEraseElement({name, weight, isUpdate}, total);
}

void YumIO::startEraseElement(const Engine::Element &element, Steps total)
{
    m_apply.actPosition += Steps(element.weight);
    m_progress->startItemAct(element.completesUpdate
                                 ? tr("Completing update for: %1").arg(element.name)
                                 : tr("Removing %1").arg(element.name),
                             total, m_apply.actPosition);
}

// A text is a package's name, which may carry the package tuple too.
void YumIO::eraseEvent(PyObject *package, bool mayBeUpdate, Steps total)
{
    const auto listed = m_apply.going.constFind(tupleOf(package));
    if (listed != m_apply.going.cend()) {
        startEraseElement(*listed, total);
        return;
    }
    startErase(pyString(package), mayBeUpdate, total,
               tr("Internal error: YumIO::tsCallback REMOVE/COMPLETE of %1 not expected"),
               tr("Internal error: YumIO::tsCallback UNINST of %1 too many times"));
}

PyObject *YumIO::tsEvent(PyObject *, PyObject *args)
{
    PyObject *package;
    long action;
    long long elementDone, elementTotal;
    long element, elements;
    if (!PyArg_ParseTuple(args, "OlLLll", &package, &action, &elementDone, &elementTotal, &element,
                          &elements))
        return nullptr;
    if (!m_progress)
        Py_RETURN_NONE;
    if (!m_apply.eventsStarted) {
        m_apply.actPosition += Steps(m_apply.transactionWeight / 20);
        m_apply.eventsStarted = true;
    }
    const bool isNew = element != m_apply.lastElement;
    switch (action) {
    case UpdateElement:
    case ObsoletingElement:
    case InstallElement:
    case TrueInstallElement: {
        const bool isUpdate = action == UpdateElement || action == ObsoletingElement;
        if (isNew && installEvent(package, isUpdate, steps(elementTotal)))
            m_apply.lastElement = element;
        m_progress->setItemValue(steps(elementDone));
        break;
    }
    case EraseElement:
    case ObsoletedElement:
    case UpdatedElement:
        if (isNew) {
            eraseEvent(package, action != EraseElement, steps(elementTotal));
            m_apply.lastElement = element;
        }
        m_progress->setItemValue(steps(elementDone));
        break;
    case AvailableElement:
        break;
    default:
        warning(
            tr("Internal error: YumIO::tsEvent action=%1 not understood; ignoring").arg(action));
    }
    Py_RETURN_NONE;
}

// False when no row is known for the package, so that its next event looks again.
bool YumIO::installEvent(PyObject *package, bool isUpdate, Steps total)
{
    const auto field = [&](const char *name) {
        const PyRef value(PyObject_GetAttrString(package, name));
        PyErr_Clear();
        return value ? pyString(value.get()) : QString();
    };
    const QString name = field("name"), arch = field("arch");
    Package::Entry *entry = m_store.byKey.value(EntryKey(false, name, getBiArch(arch)));
    if (!entry) {
        error(tr("Internal error: Unable to find package for %1 of %2.%3")
                  .arg(isUpdate ? tr("update") : tr("install"), name, arch));
        return false;
    }
    const auto listed = m_apply.coming.constFind(tupleOf(package));
    startInstallElement(
        entry, listed != m_apply.coming.cend() ? listed->weight : Weights::install(entry->size),
        isUpdate, total);
    return true;
}
