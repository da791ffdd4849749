// What the library reports while it resolves, and what the resolved transaction weighs on the bars.

#include "python/pyref.h"

#include "progress/progress.h"
#include "pyattributes.h"
#include "weights.h"
#include "yumio.h"

#include <QFile>

#include <algorithm>

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
        entry = m_byKey.value(EntryKey(false, name, getBiArch(arch)));
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
    m_opCount += ops;
    if (mayDownload && !QFile::exists(getLocalHdr(entry->po)))
        ++m_downloadCount;
    if (m_progress)
        m_progress->changeItemActs(m_resolutionActs + 10 * m_downloadCount);
}

PyObject *YumIO::dsTsCheck(PyObject *, PyObject *)
{
    m_actPosition += m_passActs;
    if (m_progress)
        m_progress->startItemAct(tr("Resolve Dependencies"), 1, m_actPosition);
    Py_RETURN_NONE;
}

PyObject *YumIO::dsRestartLoop(PyObject *, PyObject *)
{
    m_passActs = m_opCount;
    m_resolutionActs += m_passActs;
    if (m_progress)
        m_progress->changeItemActs(m_resolutionActs + 10 * m_downloadCount);
    Py_RETURN_NONE;
}

// The version as rows show it, so that a member finds its own among several installed ones.
QString YumIO::memberVersion(PyObject *member)
{
    const PyRef po = attribute(member, "po");
    if (po && po.get() != Py_None) {
        PyObject *text = pyMethodCall(po.get(), "printVer", "()");
        return text ? pyStringDec(text) : QString();
    }
    const QString epoch = attributeText(member, "epoch");
    const QString version =
        attributeText(member, "ver") + QLatin1Char('-') + attributeText(member, "rel");
    return epoch.isEmpty() || epoch == QLatin1String("0") ? version
                                                          : epoch + QLatin1Char(':') + version;
}

void YumIO::noteTransactionPkgs(Package::Action action, PyObject *list)
{
    forEachMember(list, [&](PyObject *member, PyObject *pkgtup) {
        const PyRef nameItem(PySequence_GetItem(pkgtup, 0)),
            archItem(PySequence_GetItem(pkgtup, 1));
        PyErr_Clear();
        const QString name = nameItem ? pyString(nameItem.get()) : QString();
        const QString arch = archItem ? pyString(archItem.get()) : QString();
        Package::Entry *entry = m_byKey.value(EntryKey(false, name, getBiArch(arch)));
        if (!entry) {
            error(tr("Internal error: Unable to find package for install/update/remove of %1.%2")
                      .arg(name, arch));
            return true;
        }
        if (action == Package::Action::Remove)
            weighRemoval(entry, memberVersion(member));
        else
            weighInstall(entry, action);
        if (entry->applyAction == Package::Action::None)
            entry->applyAction = action;
        return true;
    });
    PyErr_Clear();
}

void YumIO::weighInstall(const Package::Entry *entry, Package::Action action)
{
    const qint64 bytes = downloadWeight(entry);
    m_bytesTotal += bytes;
    if (!QFile::exists(getLocalPkg(entry->po)))
        m_bytesToDownload += bytes;
    m_transactionWeight += Weights::install(entry->size);
    if (action != Package::Action::Update)
        return;
    for (const Package::Entry *old = entry->next; old; old = old->next)
        m_transactionWeight += Weights::completion(old->size);
}

void YumIO::weighRemoval(const Package::Entry *entry, const QString &version)
{
    const Package::Entry *installed =
        entry->state == Package::State::Updatable ? entry->next : entry;
    while (installed && installed->verRel != version)
        installed = installed->next;
    m_transactionWeight += Weights::removal(installed ? installed->size : 0);
}

// Acts of the download stage: bytes where one bar adds up all files, else at least a share for
// each file however small.
qint64 YumIO::downloadWeight(const Package::Entry *entry)
{
    return hasMultiProgress() ? entry->size : std::max(entry->size, Weights::least);
}

// The second total: download, test and run, in units that the listing has weighed.
void YumIO::startRunTotal()
{
    m_downloadBudget = m_bytesTotal ? runDownloadUnits * m_bytesToDownload / m_bytesTotal : 0;
    if (!m_progress)
        return;
    m_progress->startTotal(tr("Running Transaction: Total Progress"),
                           Steps(m_downloadBudget + (usesPresto() ? deltaRebuildUnits : 0) +
                                 (hasTransTest() ? transTestUnits : 0) + runUnits));
    m_progress->startItem(tr("Preparing"), 100, true);
    m_progress->setupItemActs(Steps(m_downloadBudget), Steps(m_bytesToDownload));
}
