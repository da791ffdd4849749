// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Gathers the rows: updates first, then installed and available packages, then groups.

#include "python/pyref.h"

#include "capturers.h"
#include "formats.h"
#include "guiquestions.h"
#include "progress/progress.h"
#include "yumio.h"

namespace {

constexpr Steps totalUnits = 24000;
constexpr Steps preparingUnits = 100;
constexpr Steps readingUnits = 900;
constexpr Steps repositoryUnits = 14000;
constexpr Steps packageUnits = 4000; // of each of the two package items
constexpr Steps actsPerRepo = 6;

} // namespace

bool YumIO::collectReal(const QHash<QString, bool> &reposUsed, const QStringList &leftOut)
{
    m_blocker.block();
    const Progress::User progressUser(m_progress, m_surface.totalBar, m_surface.itemBar);
    const YumIODialogsUser dialogsUser(m_dialogs, m_surface.parent);
    log(Log::Kind::Action, 0, tr("Initialization"));
    const PyGILStateWrapper lock(true);
    m_confirmation = {};

    m_progress->startTotal(tr("Initializing: Total Progress"), totalUnits);
    m_progress->startItem(tr("Preparing"), preparingUnits, 1);
    m_collected = Engine::Collected::Failed;
    const bool collected = m_session.yumIO && takeLock() && readRepositories(reposUsed, leftOut) &&
                           collectPackages() && collectAllGroups();
    if (collected) {
        collectReplacements();
        m_collected = Engine::Collected::All;
        m_progress->setTotalValue(totalUnits);
    } else if (m_cancelled) {
        m_collected = Engine::Collected::Cancelled;
    }
    m_progress->reset();
    return collected;
}

bool YumIO::takeLock()
{
    if (m_script.locked)
        return true;
    pyExceptStart();
    pyExceptExpect(m_script.exceptionTypes[LockError]);
    const PyRef result(pyMethodCall(m_session.yumIO, "lock", "()"));
    const bool refused = pyExceptMatches(result.get(), m_script.exceptionTypes[LockError]);
    if (refused)
        pythonExceptionV(tr("Unable to obtain yum lock"));
    pyExceptClear();
    if (!result)
        return false;
    m_script.locked = true;
    reportInterrupted();
    return true;
}

bool YumIO::readRepositories(const QHash<QString, bool> &reposUsed, const QStringList &leftOut)
{
    const PyRef repos(PyObject_GetAttrString(m_session.yumIO, "repos"));
    const PyRef dict(repos ? PyObject_GetAttrString(repos.get(), "repos") : nullptr);
    if (!dict) {
        PyErr_Clear();
        return fail(tr("Internal error: yumIO.repos.repos not evaluable"));
    }
    if (!PyDict_Check(dict.get()))
        return fail(tr("Internal error: yumIO.repos.repos not a dictionary"));
    useRepos(repos.get(), reposUsed);
    m_session.enabledRepos = collectRepos(dict.get());
    m_metadata = {};
    if (m_session.enabledRepos.isEmpty() && !usesRpm()) {
        m_collected = Engine::Collected::NotRpm;
        return fail(notRpmText());
    }
    if (PyDict_Size(dict.get()) == 0) {
        m_collected = Engine::Collected::NoRepositories;
        return fail(
            tr("No repositories are configured.\nUnder the Repositories menu, Edit Configuration "
               "can be used to configure repositories."));
    }
    if (m_session.enabledRepos.isEmpty()) {
        m_collected = Engine::Collected::NoneEnabled;
        return fail(
            tr("No repositories are enabled.\nUnder the Repositories menu, Edit Configuration "
               "can be used to configure repositories."));
    }

    if (!leftOut.isEmpty()) {
        QHash<QString, bool> unused;
        for (const QString &id : leftOut)
            unused.insert(id, false);
        useRepos(repos.get(), unused);
        m_session.enabledRepos = collectRepos(dict.get());
    }

    m_progress->startItem(tr("Reading repositories"), readingUnits, 1);
    m_progress->setupItemActs(repositoryUnits, actsPerRepo * Steps(m_session.enabledRepos.size()));
    pyExceptStart();
    pyExceptExpect(m_script.exceptionTypes[RepoError]);
    pyExceptExpect(m_script.exceptionTypes[BdbQuit]);
    const PyRef result(pyMethodCall(m_session.yumIO, "setupRepos", "()"));
    if (pyExceptMatches(result.get(), m_script.exceptionTypes[RepoError]) ||
        pyExceptMatches(result.get(), m_script.exceptionTypes[BdbQuit]))
        pythonExceptionV(tr("Unable to initialize"));
    pyExceptClear();
    if (!result) {
        m_collected = Engine::Collected::RepositoriesFailed;
        return false;
    }
    m_progress->endItemActs();
    m_session.basearch = getYumVar(QStringLiteral("basearch"));
    return true;
}

bool YumIO::usesRpm()
{
    if (!PyObject_HasAttrString(m_session.yumIO, "usesRpm"))
        return true;
    const PyRef result(pyMethodCall(m_session.yumIO, "usesRpm", "()"));
    if (!result)
        handleException();
    return !result || PyObject_IsTrue(result.get());
}

QString YumIO::notRpmText()
{
    return tr("This system does not use rpm: no package is installed through it.\nTo work on "
              "another system, such as a mounted image or a chroot, start VOK with the directory "
              "of that system in the variable VOKROOT:\nsudo VOKROOT=/mnt/image vok");
}

bool YumIO::useRepos(PyObject *repos, const QHash<QString, bool> &reposUsed)
{
    const PyRef dict(PyObject_GetAttrString(repos, "repos"));
    if (!dict) {
        PyErr_Clear();
        return false;
    }
    for (auto it = reposUsed.cbegin(); it != reposUsed.cend(); ++it) {
        const QByteArray id = it.key().toUtf8();
        if (!PyDict_GetItemString(dict.get(), id.constData()))
            continue;
        pyExceptStart();
        pyExceptExpect(m_script.exceptionTypes[RepoError]);
        const PyRef result(
            pyMethodCall(repos, it.value() ? "enableRepo" : "disableRepo", "(s)", id.constData()));
        if (pyExceptMatches(result.get(), m_script.exceptionTypes[RepoError])) {
            warning(tr("unable to setup repository %1:\n%2").arg(it.key(), exceptionText()));
        }
        pyExceptClear();
    }
    return true;
}

QStringList YumIO::collectRepos(PyObject *reposDict)
{
    QStringList enabled;
    PyObject *id, *repo;
    for (Py_ssize_t position = 0; PyDict_Next(reposDict, &position, &id, &repo);) {
        const PyRef flag(PyObject_GetAttrString(repo, "enabled"));
        if (flag && PyLong_Check(flag.get()) && PyLong_AsLong(flag.get()) != 0)
            enabled.append(pyString(id));
        PyErr_Clear();
    }
    return enabled;
}

// Calls a script method whose communication failures are reported as "Unable to `what`". Null with
// `reported` set after such a report.
PyObject *YumIO::bracketed(const char *method, const QString &what, bool &reported)
{
    pyExceptStart();
    commExceptSetup();
    PyObject *result = pyMethodCall(m_session.yumIO, method, "()");
    reported = commExceptRaised(result, what);
    pyExceptClear();
    return result;
}

PyObject *YumIO::bracketedOrError(const char *method, const QString &what)
{
    bool reported = false;
    PyObject *result = bracketed(method, what, reported);
    if (!result && !reported)
        fail(tr("Internal error: execution of yumIO.%1 failed").arg(QLatin1String(method)));
    return result;
}

bool YumIO::collectPackages()
{
    m_progress->startItem(tr("Collecting updatable packages"), packageUnits, packageUnits);
    bool reported = false;
    const PyRef ready(bracketed("setupTs", tr("setup transaction"), reported));
    if (!ready)
        return false;
    dropFormer();
    if (PyObject_HasAttrString(m_session.yumIO, "collectRows"))
        return collectRows();
    {
        const YumIOCapturersUser capture(m_capture.capturers, this);
        const PyRef updates(bracketedOrError("collectUpdates", tr("collect updatable packages")));
        if (!updates || !collectSet(m_store.byKey, updates.get(), Package::State::Updatable))
            return false;
    }

    m_progress->startItem(tr("Collecting installed and available packages"), packageUnits,
                          packageUnits);
    const PyRef all(bracketedOrError("collectAll", tr("collect installed and available packages")));
    return all && collectField(m_store.byKey, all.get(), "installed", Package::State::Installed) &&
           collectField(m_store.byKey, all.get(), "available", Package::State::Installable);
}

bool YumIO::collectField(EntryHash &hash, PyObject *all, const char *field, Package::State state)
{
    const PyRef set(PyObject_GetAttrString(all, field));
    if (!set) {
        PyErr_Clear();
        return fail(tr("Internal error: yumIO.collectAll.%1 not found").arg(QLatin1String(field)));
    }
    return collectSet(hash, set.get(), state);
}

bool YumIO::collectSet(EntryHash &hash, PyObject *iterable, Package::State state)
{
    const PyRef iterator(PyObject_GetIter(iterable));
    if (!iterator) {
        handleException();
        return false;
    }
    while (const PyRef po{PyIter_Next(iterator.get())}) {
        const PyRef name(PyObject_GetAttrString(po.get(), "name"));
        const PyRef arch(PyObject_GetAttrString(po.get(), "arch"));
        if (!name || !arch) {
            handleException();
            return false;
        }
        const QString nameText = pyString(name.get());
        const QString archText = pyString(arch.get());
        const QString family = getBiArch(archText);
        const auto create = [&](Package::Entry *&slot) { collectPkg(slot, state, po.get()); };
        foldPackage(hash, nameText, archText, family, state, po.get(), create);
    }
    if (PyErr_Occurred()) {
        handleException();
        return false;
    }
    return true;
}

// Puts a package into its row: a new row, the end of an installed chain, or nowhere when a better
// version of it already stands there. `create` makes the entry in the place that it is given.
void YumIO::foldPackage(EntryHash &hash, const QString &name, const QString &arch,
                        const QString &family, Package::State state, PyObject *po,
                        const std::function<void(Package::Entry *&)> &create)
{
    m_store.archFamilies.insert(family);
    Package::Entry *&slot = findSlot(hash, name, arch, family);
    if (slot) {
        if (state != Package::State::Installed)
            return;
        Package::Entry *last = slot;
        while (last->next)
            last = last->next;
        create(last->next);
        return;
    }
    create(slot);
    Package::Entry *&best = m_store.best[name];
    if (!best) {
        best = slot;
        return;
    }
    const PyRef oldIsBetter(pyMethodCall(m_session.yumIO, "isBetterThan", "(O,O)", best->po, po));
    if (oldIsBetter.get() == Py_True) {
        slot->duplicate = true;
    } else {
        best->duplicate = true;
        best = slot;
    }
}

Package::Entry *&YumIO::findSlot(EntryHash &hash, const QString &name, const QString &arch,
                                 const QString &family)
{
    const EntryKey key(false, name, family);
    const auto found = hash.find(key);
    if (found != hash.end())
        return *found;
    // A package that was noarch and is now for an architecture; never the other way round.
    const QString noarch = QStringLiteral("noarch");
    if (arch != noarch && family != noarch) {
        const auto general = hash.find(EntryKey(false, name, noarch));
        if (general != hash.end())
            return *general;
    }
    return hash[key];
}

Package::Entry *&YumIO::findUpdateablePackage(const QString &name, const QString &arch)
{
    return findSlot(m_store.byKey, name, arch, getBiArch(arch));
}

bool YumIO::collectPkg(Package::Entry *&slot, Package::State state, PyObject *po)
{
    auto *entry = new Package::Entry;
    entry->state = state;
    entry->kind = getPkgKind(po);
    const PyRef name(PyObject_GetAttrString(po, "name"));
    const PyRef arch(PyObject_GetAttrString(po, "arch"));
    entry->name = pyString(name.get());
    entry->verRel = pyStringDec(pyMethodCall(po, "printVer", "()"));
    entry->repo = simpleString(po, "repoid");
    entry->arch = pyString(arch.get());
    entry->biArch = getBiArch(entry->arch);
    entry->size = qint64(sizeOf(po));
    entry->sizeText = bytesFormat(quint64(entry->size));
    entry->summary = simpleString(po, "summary");
    entry->buildTime = buildTimeOf(po);
    entry->buildTimeText = QString::fromLocal8Bit(timeFormat(entry->buildTime));
    entry->po = PyRef::share(po).release();
    slot = entry;
    return true;
}

// The whole collection of packages from one call of the script, for speed. The rows are those that
// the single calls would give. They come in two parts, updates and all others, each announced by the
// number of its rows.
bool YumIO::collectRows()
{
    QString what = tr("collect updatable packages");
    std::optional<YumIOCapturersUser> capture;
    capture.emplace(m_capture.capturers, this);
    const PyRef result(bracketedOrError("collectRows", what));
    if (!result)
        return false;
    const PyRef rows(PyObject_GetIter(result.get()));
    int parts = 0;
    Steps count = 0, done = 0;
    while (const PyRef row = PyRef(rows ? PyIter_Next(rows.get()) : nullptr)) {
        if (!PyLong_Check(row.get())) {
            m_progress->setItemValue(count ? done++ * packageUnits / count : 0);
            if (!collectRow(row.get()))
                break;
            continue;
        }
        count = PyLong_AsSize_t(row.get());
        done = 0;
        if (++parts == 1)
            continue;
        capture.reset();
        what = tr("collect installed and available packages");
        m_progress->startItem(tr("Collecting installed and available packages"), packageUnits,
                              packageUnits);
    }
    if (!PyErr_Occurred())
        return true;
    reportPending(what);
    return false;
}

// False with the interpreter's error set when it is no row.
bool YumIO::collectRow(PyObject *row)
{
    PyObject *po, *name, *verRel, *repo, *arch, *family, *summary;
    int state, isSuite;
    unsigned long long size;
    long long buildTime;
    if (!PyArg_ParseTuple(row, "OiOOOOOKOLp", &po, &state, &name, &verRel, &repo, &arch, &family,
                          &size, &summary, &buildTime, &isSuite))
        return false;
    const QString nameText = pyString(name);
    const QString archText = shared(pyString(arch));
    const QString familyText = shared(pyString(family));
    const auto create = [&](Package::Entry *&slot) {
        auto *entry = new Package::Entry;
        entry->state = static_cast<Package::State>(state);
        entry->kind = isSuite ? Package::Kind::Suite : Package::Kind::Package;
        entry->name = nameText;
        entry->verRel = pyString(verRel);
        entry->repo = shared(pyString(repo));
        entry->arch = archText;
        entry->biArch = familyText;
        entry->size = qint64(size);
        entry->sizeText = shared(bytesFormat(size));
        entry->summary = fieldText(pyString(summary));
        entry->buildTime = buildTime;
        entry->buildTimeText = QString::fromLocal8Bit(timeFormat(buildTime));
        entry->po = PyRef::share(po).release();
        slot = entry;
    };
    foldPackage(m_store.byKey, nameText, archText, familyText, static_cast<Package::State>(state),
                po, create);
    return true;
}

// The rows do without them, so whatever fails leaves the list short.
void YumIO::collectReplacements()
{
    m_session.replacements.clear();
    if (!PyObject_HasAttrString(m_session.yumIO, "replacements"))
        return;
    const PyRef result(bracketedOrError("replacements", tr("find replacements")));
    const PyRef iterator(result ? PyObject_GetIter(result.get()) : nullptr);
    while (const PyRef item = PyRef(iterator ? PyIter_Next(iterator.get()) : nullptr)) {
        PyObject *name, *family, *package, *replaced;
        if (!PyArg_ParseTuple(item.get(), "OOOO", &name, &family, &package, &replaced))
            break;
        m_session.replacements.append(
            {pyString(name), pyString(family), pyString(package), pyString(replaced)});
    }
    PyErr_Clear();
}

// Few distinct texts, which all rows share.
QString YumIO::shared(const QString &text)
{
    return *m_store.texts.insert(text);
}

QString YumIO::getBiArch(const QString &arch)
{
    return pyStringDec(
        pyMethodCall(m_session.yumIO, "getBiArch", "(s)", arch.toUtf8().constData()));
}

Package::Entry *YumIO::findPackage(const QString &name)
{
    return findPackage(name, nullptr);
}

Package::Entry *YumIO::findPackage(const QString &name, EntryPredicate predicate)
{
    const auto candidate = [&](const QString &family) -> Package::Entry * {
        Package::Entry *entry = m_store.byKey.value(EntryKey(false, name, family));
        return entry && (!predicate || (this->*predicate)(entry)) ? entry : nullptr;
    };
    const QString base = getBiArch(m_session.basearch);
    if (Package::Entry *entry = candidate(base))
        return entry;
    for (const QString &family : std::as_const(m_store.archFamilies)) {
        if (family == m_session.basearch)
            continue;
        if (Package::Entry *entry = candidate(family))
            return entry;
    }
    return nullptr;
}
