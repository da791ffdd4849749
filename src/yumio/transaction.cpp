// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the library reports while it resolves, and what the resolved transaction weighs on the bars.

#include "python/pyref.h"

#include "progress/progress.h"
#include "pyattributes.h"
#include "weights.h"
#include "yumio.h"

#include <QFile>

#include <algorithm>

namespace {

// The package of a member, null when it has none. Its row may have another version.
PyRef memberPackage(PyObject *member)
{
    const PyRef po = attribute(member, "po");
    return po.get() == Py_None ? PyRef() : po;
}

} // namespace

void YumIO::dsTsInfo(const char *text)
{
    const QString line = QString::fromUtf8(text);
    const auto unexpected = [&] { error(tr("Internal error: unexpected TSINFO: %1").arg(line)); };
    const auto report = [&](const QString &pkg, unsigned int ops, bool mayDownload) {
        dsTsNewPkg(pkg, dsTsFindPkg(pkg), ops, mayDownload);
    };
    constexpr QLatin1Char blank(' ');
    const QLatin1String updating("Updating "), obsoleting("Obsoleting "), marking("Marking ");
    const QLatin1String with(" with ");

    if (line.startsWith(updating) || line.startsWith(marking)) {
        const bool isUpdate = line.startsWith(updating) || line.contains(QLatin1String(" update "));
        const qsizetype begin = line.startsWith(updating) ? updating.size() : marking.size();
        const qsizetype end = line.indexOf(blank, begin);
        if (end == -1)
            return unexpected();
        report(line.mid(begin, end - begin), isUpdate ? 2 : 1, true);
    } else if (line.startsWith(obsoleting)) {
        const qsizetype begin = obsoleting.size();
        const qsizetype end = line.indexOf(blank, begin);
        const qsizetype link = end == -1 ? -1 : line.indexOf(with, end);
        const qsizetype secondBegin = link + with.size();
        const qsizetype secondEnd = link == -1 ? -1 : line.indexOf(blank, secondBegin);
        if (secondEnd == -1)
            return unexpected();
        report(line.mid(begin, end - begin), 1, false);
        report(line.mid(secondBegin, secondEnd - secondBegin), 1, true);
    }
}

Package::Entry *YumIO::dsTsFindPkg(const QString &pkg)
{
    Package::Entry *entry = nullptr;
    QString name, arch;
    if (yumVersion() <= 30208) {
        entry = findPackage(pkg);
    } else if (parseEnvra(pkg, name, arch)) {
        entry = m_store.byKey.value(EntryKey(false, name, getBiArch(arch)));
    } else {
        error(tr("Internal error: TSINFO mentions package %1 which does not appear to be a valid "
                 "envra; interpreting as package name")
                  .arg(pkg));
        entry = findPackage(pkg);
    }
    if (!entry)
        error(tr("Internal error: TSINFO mentions unknown package: %1").arg(pkg));
    return entry;
}

void YumIO::dsTsNewPkg(const QString &, Package::Entry *entry, unsigned int ops, bool mayDownload)
{
    if (!entry)
        return;
    if (entry->state == Package::State::Installed) {
        error(tr("Internal error: TSINFO mentions intent to install or upgrade package that "
                 "already seems up-to-date: %1")
                  .arg(entry->name));
        return;
    }
    m_apply.opCount += ops;
    if (mayDownload && !QFile::exists(getLocalHdr(entry->po)))
        ++m_apply.downloadCount;
    if (m_progress)
        m_progress->changeItemActs(m_apply.resolutionActs + 10 * m_apply.downloadCount);
}

PyObject *YumIO::dsTsCheck(PyObject *, PyObject *)
{
    m_apply.actPosition += m_apply.passActs;
    if (m_progress)
        m_progress->startItemAct(tr("Resolve Dependencies"), 1, m_apply.actPosition);
    Py_RETURN_NONE;
}

PyObject *YumIO::dsRestartLoop(PyObject *, PyObject *)
{
    m_apply.passActs = m_apply.opCount;
    m_apply.resolutionActs += m_apply.passActs;
    if (m_progress)
        m_progress->changeItemActs(m_apply.resolutionActs + 10 * m_apply.downloadCount);
    Py_RETURN_NONE;
}

// The version as rows show it, so that a member finds its own among several installed ones.
QString YumIO::memberVersion(PyObject *member)
{
    const QString epoch = attributeText(member, "epoch");
    const QString version =
        attributeText(member, "ver") + QLatin1Char('-') + attributeText(member, "rel");
    return epoch.isEmpty() || epoch == QLatin1String("0") ? version
                                                          : epoch + QLatin1Char(':') + version;
}

// A row that loses a package without getting another is removed, whatever it was marked for: an
// update was left out for the sake of a removal.
void YumIO::noteTransactionPkgs(Package::Action action, PyObject *list)
{
    forEachMember(list, [&](PyObject *member, PyObject *pkgtup) {
        const QStringList tuple = pkgtupItems(pkgtup);
        const QString name = tuple[0], arch = tuple[1];
        Package::Entry *entry = m_store.byKey.value(EntryKey(false, name, getBiArch(arch)));
        if (!entry) {
            error(tr("Internal error: Unable to find package for install/update/remove of %1.%2")
                      .arg(name, arch));
            return true;
        }
        if (action == Package::Action::Remove) {
            weighRemoval(entry, member, tuple);
        } else {
            m_apply.arriving.insert(entry);
            weighInstall(entry, action, member, tuple);
        }
        if (entry->applyAction == Package::Action::None ||
            (action == Package::Action::Remove && !m_apply.arriving.contains(entry)))
            entry->applyAction = action;
        return true;
    });
    PyErr_Clear();
}

// A package that several others replace is weighed once.
void YumIO::weigh(QHash<QStringList, Engine::Element> &elements, const QStringList &tuple,
                  const Engine::Element &element)
{
    if (elements.contains(tuple))
        return;
    elements.insert(tuple, element);
    m_apply.transactionWeight += element.weight;
}

void YumIO::weighInstall(Package::Entry *entry, Package::Action action, PyObject *member,
                         const QStringList &tuple)
{
    const PyRef po = memberPackage(member);
    const qint64 size = po ? qint64(sizeOf(po.get())) : entry->size;
    const qint64 bytes = downloadWeight(size);
    m_apply.bytesTotal += bytes;
    if (!QFile::exists(getLocalPkg(po ? po.get() : entry->po)))
        m_apply.bytesToDownload += bytes;
    weigh(m_apply.coming, tuple, {tuple[0], Weights::install(size)});

    if (action != Package::Action::Update)
        return;
    // The installed packages that it replaces may be those of other rows. A script that does not list
    // them means all versions of its own row.
    const PyRef replaces = attribute(member, "replaces");
    const PyRef iterator(replaces ? PyObject_GetIter(replaces.get()) : nullptr);
    while (const PyRef old = PyRef(iterator ? PyIter_Next(iterator.get()) : nullptr)) {
        const QStringList oldTuple = tupleOf(old.get());
        weigh(m_apply.going, oldTuple,
              {oldTuple.value(0), Weights::completion(qint64(sizeOf(old.get()))), true});
    }
    if (replaces)
        return;
    for (const Package::Entry *old = entry->next; old; old = old->next)
        m_apply.transactionWeight += Weights::completion(old->size);
}

void YumIO::weighRemoval(Package::Entry *entry, PyObject *member, const QStringList &tuple)
{
    const PyRef po = memberPackage(member);
    qint64 size = po ? qint64(sizeOf(po.get())) : 0;
    if (!po) {
        const QString version = memberVersion(member);
        const Package::Entry *installed =
            entry->state == Package::State::Updatable ? entry->next : entry;
        while (installed && installed->verRel != version)
            installed = installed->next;
        size = installed ? installed->size : 0;
    }
    // It goes because another version comes, which its erasure completes.
    const bool makesRoom =
        m_apply.arriving.contains(entry) && entry->applyAction != Package::Action::Remove;
    if (makesRoom)
        entry->applyAction = Package::Action::Update;
    weigh(m_apply.going, tuple,
          {tuple[0], makesRoom ? Weights::completion(size) : Weights::removal(size), makesRoom});
}

// Acts of the download stage: bytes where one bar adds up all files, else at least a share for
// each file however small.
qint64 YumIO::downloadWeight(qint64 size)
{
    return hasMultiProgress() ? size : std::max(size, Weights::least);
}

// What the rebuilding of packages from deltas has of the second total.
quint64 YumIO::deltaRebuildUnits()
{
    return usesPresto() ? Engine::deltaRebuildUnits : 0;
}

// The second total: download, test and run, in units that the listing has weighed.
void YumIO::startRunTotal()
{
    m_apply.downloadBudget =
        m_apply.bytesTotal ? Engine::runDownloadUnits * m_apply.bytesToDownload / m_apply.bytesTotal
                           : 0;
    if (!m_progress)
        return;
    m_progress->startTotal(tr("Running Transaction: Total Progress"),
                           Steps(m_apply.downloadBudget + qint64(deltaRebuildUnits()) +
                                 (hasTransTest() ? Engine::transTestUnits : 0) + Engine::runUnits));
    m_progress->startItem(tr("Preparing"), 100, true);
    m_progress->setupItemActs(Steps(m_apply.downloadBudget), Steps(m_apply.bytesToDownload));
}
