// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The resolved transaction as the user sees it: its listing, the confirmation and the outcome.

#include "python/pyref.h"

#include "formats.h"
#include "guiquestions.h"
#include "progress/progress.h"
#include "pyattributes.h"
#include "transactionlists.h"
#include "yumio.h"

#include <algorithm>
#include <utility>

namespace {

// The first package that stands in `relation` in a list of (package tuple, relation).
PyRef findRelation(PyObject *relatedTo, const char *relation)
{
    const PyRef iterator(PyObject_GetIter(relatedTo));
    while (iterator) {
        const PyRef pair(PyIter_Next(iterator.get()));
        if (!pair)
            break;
        const PyRef kind(PySequence_GetItem(pair.get(), 1));
        if (kind && PyUnicode_Check(kind.get()) &&
            PyUnicode_CompareWithASCIIString(kind.get(), relation) == 0)
            return PyRef(PySequence_GetItem(pair.get(), 0));
    }
    PyErr_Clear();
    return PyRef();
}

} // namespace

PyObject *YumIO::userconfirm(PyObject *, PyObject *)
{
    if (m_progress) {
        m_progress->endItemActs();
        m_progress->reset();
    }
    m_apply.actPosition = 0;
    const bool isFinal = m_confirmation.listingShown;
    bool yes = false;
    const bool asks = m_dialogs && !m_cancelled;
    if (asks && isFinal)
        yes = m_dialogs->confirm(tr("Apply"), m_confirmation.text, tr("OK"), tr("Cancel")) == 1;
    else if (asks)
        yes = m_dialogs->confirm(tr("Query"), m_confirmation.text, tr("Yes"), tr("No")) == 1;

    if (isFinal) {
        log(Log::Kind::Action, 0, yes ? tr("Applying: OK") : tr("Not Applying: Canceled"));
        m_apply.applied = yes;
        if (yes)
            startRunTotal();
    } else {
        log(Log::Kind::Action, 0, yes ? tr("Confirmation: Yes") : tr("Confirmation: No"));
    }
    m_confirmation = {};
    return PyLong_FromLong(yes ? 1 : 0);
}

// Adds a line that holds the size of the packages that a callback was given.
PyObject *YumIO::addSizeLine(const QString &line, PyObject *args)
{
    PyObject *packages;
    if (!PyArg_ParseTuple(args, "O", &packages))
        return nullptr;
    const PyRef iterator(PyObject_GetIter(packages));
    if (!iterator)
        return nullptr;
    quint64 bytes = 0;
    while (const PyRef package = PyRef(PyIter_Next(iterator.get())))
        bytes += sizeOf(package.get());
    if (PyErr_Occurred())
        return nullptr;
    m_confirmation.text += line.arg(bytesFormat(bytes));
    Py_RETURN_NONE;
}

PyObject *YumIO::reportDownloadSize(PyObject *, PyObject *args)
{
    return addSizeLine(tr("Total download size: %1\n"), args);
}

PyObject *YumIO::reportLocalSize(PyObject *, PyObject *args)
{
    return addSizeLine(tr("Taken from directories of this machine: %1\n"), args);
}

PyObject *YumIO::listingNote(PyObject *, PyObject *args)
{
    const char *note;
    if (!PyArg_ParseTuple(args, "s", &note))
        return nullptr;
    m_confirmation.text += QString::fromUtf8(note) + QLatin1Char('\n');
    Py_RETURN_NONE;
}

PyObject *YumIO::confirmRemovals(PyObject *, PyObject *args)
{
    PyObject *owner;
    if (!PyArg_ParseTuple(args, "O", &owner))
        return nullptr;
    TransactionLists lists;
    const QString pending = std::exchange(m_confirmation.text, QString());
    const bool listed =
        makeLists(owner, lists) && displayTransactionPkgs(tr("Remove"), lists.depremoved);
    const QString removals = std::exchange(m_confirmation.text, pending);
    if (!listed)
        return failedCallback("the removals cannot be listed");
    const QString text =
        tr("Not all that rpm would do is in the listing. It would also remove what "
           "cannot stand beside the new packages:\n%1\nGo on?")
            .arg(removals);
    const bool yes = m_dialogs && m_dialogs->warning(tr("Apply"), text, tr("Yes"), tr("No"),
                                                     QString(), 1, 1) == 0;
    log(Log::Kind::Action, 0, yes ? tr("Confirmation: Yes") : tr("Confirmation: No"));
    if (yes)
        noteTransactionPkgs(Package::Action::Remove, lists.depremoved);
    else // the question has told all there is
        m_cancelled = true;
    return PyLong_FromLong(yes ? 1 : 0);
}

bool YumIO::writeListing(const TransactionLists &lists)
{
    const auto isEmpty = [](PyObject *list) {
        const Py_ssize_t size = list ? PyObject_Size(list) : 0;
        if (size < 0)
            PyErr_Clear();
        return size == 0;
    };
    m_confirmation.text += tr("Transaction to be performed:\n");
    if (!displayTransactionPkgsRepo(tr("Install"), lists.installed) ||
        !displayTransactionPkgsRepo(tr("Update"), lists.updated) ||
        !displayTransactionPkgs(tr("Remove"), lists.removed) ||
        !displayTransactionPkgsFrom(tr("Downgrade"), lists.downgraded, true) ||
        !displayTransactionPkgsFrom(tr("Reinstall"), lists.reinstalled, true))
        return false;
    PyObject *const dependencies[] = {lists.depinstalled, lists.depupdated, lists.depremoved,
                                      lists.depdowngraded, lists.depreinstalled};
    if (!std::all_of(std::begin(dependencies), std::end(dependencies), isEmpty)) {
        m_confirmation.text += tr("Performing the following to resolve dependencies:\n");
        if (!displayTransactionPkgsRepo(tr("Install"), lists.depinstalled) ||
            !displayTransactionPkgsRepo(tr("Update"), lists.depupdated) ||
            !displayTransactionPkgs(tr("Remove"), lists.depremoved) ||
            !displayTransactionPkgsFrom(tr("Downgrade"), lists.depdowngraded, true) ||
            !displayTransactionPkgsFrom(tr("Reinstall"), lists.depreinstalled, true))
            return false;
    }
    if (!isEmpty(lists.obsoleted)) {
        m_confirmation.text += tr("Other Transactions:\n");
        return displayTransactionPkgsObs(tr("Obsoleting"), lists.obsoleted);
    }
    return true;
}

PyObject *YumIO::listTransaction(PyObject *, PyObject *args)
{
    PyObject *owner;
    if (!PyArg_ParseTuple(args, "O", &owner))
        return nullptr;
    m_confirmation = {QString(), true};
    TransactionLists lists;
    if (!makeLists(owner, lists) || !writeListing(lists))
        return failedCallback("the transaction cannot be listed");

    for (PyObject *list : {lists.downgraded, lists.reinstalled, lists.depdowngraded,
                           lists.depreinstalled, lists.installed})
        noteTransactionPkgs(Package::Action::Install, list);
    noteTransactionPkgs(Package::Action::Update, lists.updated);
    noteTransactionPkgs(Package::Action::Remove, lists.removed);
    noteTransactionPkgs(Package::Action::Install, lists.depinstalled);
    noteTransactionPkgs(Package::Action::Update, lists.depupdated);
    noteTransactionPkgs(Package::Action::Remove, lists.depremoved);
    noteTransactionPkgs(Package::Action::Remove, lists.obsoleted);
    Py_RETURN_NONE;
}

PyObject *YumIO::postTransactionOutput(PyObject *, PyObject *args)
{
    PyObject *owner;
    if (!PyArg_ParseTuple(args, "O", &owner))
        return nullptr;
    if (m_progress)
        m_progress->endItemActs();
    showHeldReports(); // rpm has ended
    TransactionLists lists;
    if (!makeLists(owner, lists))
        return failedCallback("the transaction cannot be listed");
    const qsizetype before = m_confirmation.text.size();
    const bool written =
        displayTransactionPkgs(tr("Removed"), lists.removed) &&
        displayTransactionPkgs(tr("Dependency Removed"), lists.depremoved) &&
        displayTransactionPkgs(tr("Installed"), lists.installed) &&
        displayTransactionPkgs(tr("Dependency Installed"), lists.depinstalled) &&
        displayTransactionPkgs(tr("Updated"), lists.updated) &&
        displayTransactionPkgs(tr("Dependency Updated"), lists.depupdated) &&
        displayTransactionPkgs(tr("Obsoleted"), lists.obsoleted) &&
        displayTransactionPkgsFrom(tr("Downgraded"), lists.downgraded, false) &&
        displayTransactionPkgsFrom(tr("Dependency Downgraded"), lists.depdowngraded, false) &&
        displayTransactionPkgsFrom(tr("Reinstalled"), lists.reinstalled, false) &&
        displayTransactionPkgsFrom(tr("Dependency Reinstalled"), lists.depreinstalled, false);
    QString outcome = m_confirmation.text.mid(before);
    if (outcome.endsWith(QLatin1Char('\n')))
        outcome.chop(1);
    if (!outcome.isEmpty())
        log(Log::Kind::Normal, 1, outcome);
    return written ? PyUnicode_FromString("") : failedCallback("the outcome cannot be listed");
}

// A null result needs an exception behind it, or the interpreter raises one of its own about that.
PyObject *YumIO::failedCallback(const char *reason)
{
    if (!PyErr_Occurred())
        PyErr_SetString(PyExc_RuntimeError, reason);
    return nullptr;
}

// The five texts of a package tuple: name, architecture, epoch, version, release.
QStringList YumIO::pkgtupItems(PyObject *pkgtup)
{
    QStringList items;
    for (Py_ssize_t i = 0; i < 5; ++i) {
        const PyRef item(PySequence_GetItem(pkgtup, i));
        if (!item)
            PyErr_Clear();
        items.append(item ? pyStringX(item.get()) : QString());
    }
    return items;
}

// The tuple that an object has as its "pkgtup"; empty when it has none.
QStringList YumIO::tupleOf(PyObject *package)
{
    const PyRef pkgtup = attribute(package, "pkgtup");
    return pkgtup ? pkgtupItems(pkgtup.get()) : QStringList();
}

// As "name epoch:version-release (arch)".
QString YumIO::pkgtupFormat(PyObject *pkgtup)
{
    const QStringList items = pkgtupItems(pkgtup);
    if (items[2] == QLatin1String("0"))
        return tr("%1 %3-%4 (%2)").arg(items[0], items[1], items[3], items[4]);
    return tr("%1 %3:%4-%5 (%2)").arg(items[0], items[1], items[2], items[3], items[4]);
}

QString YumIO::pkgtupRepoFormat(PyObject *pkgtup, const QString &repo)
{
    return pkgtupFormat(pkgtup) + tr(" [%1]").arg(repo);
}

// Calls `line` for each member with its package tuple; false when one lacks it or `line` fails. A null
// list is empty.
bool YumIO::forEachMember(PyObject *list,
                          const std::function<bool(PyObject *member, PyObject *pkgtup)> &line)
{
    if (!list)
        return true;
    const PyRef iterator(PyObject_GetIter(list));
    if (!iterator)
        return false;
    while (const PyRef member = PyRef(PyIter_Next(iterator.get()))) {
        const PyRef pkgtup = attribute(member.get(), "pkgtup");
        if (!pkgtup) {
            error(tr("Internal error: txmbr lacks pkgtup\n"));
            return false;
        }
        if (!line(member.get(), pkgtup.get()))
            return false;
    }
    return !PyErr_Occurred();
}

bool YumIO::displayTransactionPkgs(const QString &title, PyObject *list)
{
    return forEachMember(list, [&](PyObject *, PyObject *pkgtup) {
        m_confirmation.text += tr("\t%1: %2\n").arg(title, pkgtupFormat(pkgtup));
        return true;
    });
}

bool YumIO::displayTransactionPkgsRepo(const QString &title, PyObject *list)
{
    return forEachMember(list, [&](PyObject *member, PyObject *pkgtup) {
        const QString repo = attributeText(member, "repoid");
        m_confirmation.text += tr("\t%1: %2\n").arg(title, pkgtupRepoFormat(pkgtup, repo));
        return true;
    });
}

bool YumIO::displayTransactionPkgsObs(const QString &title, PyObject *list)
{
    return forEachMember(list, [&](PyObject *member, PyObject *pkgtup) {
        const PyRef relatedTo = attribute(member, "relatedto");
        if (!relatedTo) {
            error(tr("Internal error: package has no relatedto\n"));
            return false;
        }
        const PyRef by = findRelation(relatedTo.get(), "obsoletedby");
        if (!by) {
            error(tr("Internal error: couldn't find obsoletedby package\n"));
            return false;
        }
        m_confirmation.text +=
            tr("\t%1: %2 with %3\n").arg(title, pkgtupFormat(pkgtup), pkgtupFormat(by.get()));
        return true;
    });
}

// With the installed package that the member replaces, unless it is the same version and architecture.
bool YumIO::displayTransactionPkgsFrom(const QString &title, PyObject *list, bool withRepo)
{
    return forEachMember(list, [&](PyObject *member, PyObject *pkgtup) {
        const PyRef replaces = attribute(member, "replaces");
        const PyRef old(replaces ? PySequence_GetItem(replaces.get(), 0) : nullptr);
        PyErr_Clear();
        const PyRef from = old ? attribute(old.get(), "pkgtup") : PyRef();
        const QString to = withRepo ? pkgtupRepoFormat(pkgtup, attributeText(member, "repoid"))
                                    : pkgtupFormat(pkgtup);
        const bool isSame = !from || pkgtupItems(from.get()) == pkgtupItems(pkgtup);
        m_confirmation.text +=
            isSame ? tr("\t%1: %2\n").arg(title, to)
                   : tr("\t%1: %2 to %3\n").arg(title, pkgtupFormat(from.get()), to);
        return true;
    });
}

bool YumIO::makeLists(PyObject *owner, TransactionLists &lists)
{
    lists.tsInfo = attribute(owner, "tsInfo");
    if (!lists.tsInfo) {
        error(tr("Internal error: yumIO.tsInfo not found\n"));
        return false;
    }
    lists.made = PyRef(pyMethodCall(lists.tsInfo.get(), "makelists", "()"));
    if (!lists.made)
        return false;

    PyObject **const outputs[] = {&lists.updated,   &lists.installed,  &lists.removed,
                                  &lists.obsoleted, &lists.depupdated, &lists.depinstalled,
                                  &lists.depremoved};
    if (yumVersion() < 20302) {
        if (!PyTuple_Check(lists.made.get())) {
            error(tr("Internal error: yumIO.makelists() did not return a tuple\n"));
            return false;
        }
        if (PyTuple_Size(lists.made.get()) != 7) {
            error(tr("Internal error: yumIO.makelists() returned tuple of incorrect size\n"));
            return false;
        }
        for (Py_ssize_t i = 0; i < 7; ++i)
            *outputs[i] = PyTuple_GET_ITEM(lists.made.get(), i);
        return true;
    }
    static const char *const names[] = {"updated",    "installed",    "removed",   "obsoleted",
                                        "depupdated", "depinstalled", "depremoved"};
    for (size_t i = 0; i < std::size(names); ++i) {
        lists.kept[i] = attribute(lists.tsInfo.get(), names[i]);
        if (!lists.kept[i]) {
            error(tr("Internal error: tsInfo.%1 not found").arg(QLatin1String(names[i])));
            return false;
        }
        *outputs[i] = lists.kept[i].get();
    }
    PyObject **const others[] = {&lists.downgraded, &lists.reinstalled, &lists.depdowngraded,
                                 &lists.depreinstalled};
    static const char *const otherNames[] = {"downgraded", "reinstalled", "depdowngraded",
                                             "depreinstalled"};
    for (size_t i = 0; i < std::size(otherNames); ++i) {
        PyRef &kept = lists.kept[std::size(names) + i];
        kept = attribute(lists.tsInfo.get(), otherNames[i]);
        *others[i] = kept.get();
    }
    return true;
}
