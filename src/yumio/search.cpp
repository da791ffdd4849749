// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Which rows hold an expression in any of their fields.

#include "python/pyref.h"

#include "expression.h"
#include "guiquestions.h"
#include "progress/progress.h"
#include "search.h"
#include "searchmatch.h"
#include "threads.h"
#include "yumio.h"

#include <QEventLoop>

#include <algorithm>
#include <malloc.h>
#include <utility>

namespace {

constexpr Steps readingShare = 3; // of the total bar, where matching has one

bool isInstalled(const Package::Entry &entry)
{
    return entry.state == Package::State::Installed;
}

// Installed packages have no repository of their own.
QString source(const Package::Entry &entry)
{
    return isInstalled(entry) ? QString() : entry.repo;
}

QByteArray keyOf(const Package::Entry &entry)
{
    return (entry.name + u'\t' + entry.verRel + u'\t' + entry.arch).toUtf8();
}

} // namespace

std::optional<QList<bool>> YumIO::search(const QString &pattern,
                                         const QList<const Package::Entry *> &entries)
{
    SearchRequest request{pattern, entries, QList<bool>(entries.size(), false)};
    if (entries.isEmpty())
        return request.found;
    QEventLoop loop;
    SearchThread thread(this, loop, request);
    execWorkThread(loop, thread);
    if (!thread.result())
        return std::nullopt;
    return request.found;
}

// The texts of many packages are read in bulk where the script offers that, and kept; matching them
// needs no interpreter. All else is asked of it one by one.
bool YumIO::searchReal(SearchRequest &request)
{
    m_blocker.block();
    const Progress::User progressUser(m_progress, m_surface.totalBar, m_surface.itemBar);
    const YumIODialogsUser dialogsUser(m_dialogs, m_surface.parent);
    log(Log::Kind::Action, 0, tr("Searching"));
    PyGILStateWrapper lock(true);
    Q_EMIT jobState(QStringLiteral("search"), true);

    QList<qsizetype> inBulk, singly;
    const bool offered = m_session.yumIO && PyObject_HasAttrString(m_session.yumIO, "searchTexts");
    for (qsizetype i = 0; i < request.entries.size(); ++i) {
        const bool isGroup = request.entries[i]->kind == Package::Kind::Group;
        (offered && !isGroup ? inBulk : singly).append(i);
    }
    const Steps count = Steps(request.entries.size());
    m_progress->startTotal(tr("Searching: Total Progress"), count * (readingShare + 1));
    if (!searchInBulk(request, inBulk, lock) && !m_cancelled)
        singly += inBulk;
    searchSingly(request, singly);
    ::malloc_trim(0); // of what passed through, much; else the holes stay with the process
    m_progress->reset();
    if (m_cancelled)
        log(Log::Kind::Warning, 0, tr("The search was cancelled."));
    return !m_cancelled;
}

// False when the script failed, or the search was cancelled.
bool YumIO::searchInBulk(SearchRequest &request, const QList<qsizetype> &numbers,
                         PyGILStateWrapper &lock)
{
    // A second time without the files that turned out damaged.
    for (int attempt = 0; attempt < 2 && !numbers.isEmpty(); ++attempt) {
        // With data missing, what is read of available packages is good for this search alone.
        Engine::Search passing;
        std::vector<SearchSubject> subjects;
        if (!readSearchTexts(request, numbers, passing, subjects))
            return false;
        m_progress->startItem(tr("Searching packages"), Steps(numbers.size()),
                              Steps(numbers.size()));
        lock.release();
        const auto damaged =
            matchSubjects(request.pattern, std::move(subjects), request.found, m_cancelled,
                          [this](qsizetype done) { m_progress->setItemValue(Steps(done)); });
        lock.ensure();
        if (damaged.isEmpty())
            return !m_cancelled;
        for (auto it = m_search.texts.begin(); it != m_search.texts.end();) {
            const bool isDamaged = damaged.contains(it->second.get());
            if (isDamaged)
                m_search.damaged.insert(it->first);
            it = isDamaged ? m_search.texts.erase(it) : std::next(it);
        }
    }
    return numbers.isEmpty();
}

// Sees to it that the texts of the packages are at hand: from former searches, from the cache, else
// from the script.
bool YumIO::readSearchTexts(const SearchRequest &request, const QList<qsizetype> &numbers,
                            Engine::Search &passing, std::vector<SearchSubject> &subjects)
{
    const SearchCaches caches = searchCaches();
    const auto keptTexts = [&](const QString &repo) -> SearchTexts & {
        auto &texts = m_search.texts[repo];
        if (!texts) {
            texts = std::make_unique<SearchTexts>();
            const auto cache = caches.constFind(repo);
            if (cache != caches.cend() && !m_search.damaged.contains(repo))
                texts->open(cache->path, cache->identity);
        }
        return *texts;
    };
    QList<qsizetype> missing;
    for (const qsizetype number : numbers) {
        const Package::Entry &entry = *request.entries[number];
        if (!keptTexts(source(entry)).find(keyOf(entry)))
            missing.append(number);
    }

    const bool complete = m_session.fileLists && m_session.otherData;
    const auto textsFor = [&](const Package::Entry &entry) -> SearchTexts & {
        if (complete || isInstalled(entry))
            return keptTexts(source(entry));
        auto &texts = passing.texts[source(entry)];
        if (!texts)
            texts = std::make_unique<SearchTexts>();
        return *texts;
    };
    if (!missing.isEmpty()) {
        const bool read = askSearchTexts(request, missing, textsFor);
        QSet<QString> changed;
        for (const qsizetype number : std::as_const(missing)) {
            const Package::Entry &entry = *request.entries[number];
            textsFor(entry).finish();
            changed.insert(source(entry));
        }
        if (!read)
            return false;
        for (const QString &repo : std::as_const(changed)) {
            const auto cache = caches.constFind(repo);
            if (complete && cache != caches.cend() &&
                !m_search.texts[repo]->save(cache->path, cache->identity))
                log(Log::Kind::Warning, 3, tr("%1 cannot be written.").arg(cache->path));
        }
    }

    for (const qsizetype number : numbers) {
        const Package::Entry &entry = *request.entries[number];
        const SearchTexts *texts = &keptTexts(source(entry));
        const SearchTexts::Place *place = texts->find(keyOf(entry));
        const bool kept = place;
        if (!kept) {
            texts = &textsFor(entry);
            place = texts->find(keyOf(entry));
        }
        subjects.push_back({&entry, texts, *place, number, kept || m_session.fileLists,
                            kept || m_session.otherData});
    }
    return true;
}

// Reads what is missing with one call of the script.
bool YumIO::askSearchTexts(const SearchRequest &request, const QList<qsizetype> &missing,
                           const std::function<SearchTexts &(const Package::Entry &)> &textsFor)
{
    const Steps count = Steps(missing.size());
    m_progress->startItem(tr("Reading packages"), count * readingShare, count);
    const PyRef packages(PyList_New(missing.size()));
    for (qsizetype i = 0; i < missing.size(); ++i) {
        PyObject *const po = request.entries[missing[i]]->po;
        Py_INCREF(po);
        PyList_SET_ITEM(packages.get(), i, po);
    }
    const PyRef result(pyMethodCall(m_session.yumIO, "searchTexts", "(O,i,i)", packages.get(),
                                    int(m_session.fileLists), int(m_session.otherData)));
    const PyRef iterator(result ? PyObject_GetIter(result.get()) : nullptr);
    for (qsizetype i = 0; iterator && i < missing.size() && !m_cancelled; ++i) {
        const PyRef record(PyIter_Next(iterator.get()));
        Py_ssize_t place;
        PyObject *texts;
        if (!record || !PyArg_ParseTuple(record.get(), "nS", &place, &texts) || place < 0 ||
            place >= missing.size())
            break;
        const Package::Entry &entry = *request.entries[missing[place]];
        // The record ends with a zero byte, which stands behind every bytes object.
        textsFor(entry).add(keyOf(entry), QByteArray::fromRawData(PyBytes_AsString(texts),
                                                                  PyBytes_Size(texts) + 1));
        m_progress->setItemValue(Steps(i) + 1);
        if (i + 1 == missing.size())
            return true;
    }
    if (!m_cancelled && PyErr_Occurred())
        handleException();
    PyErr_Clear();
    return false;
}

// The files of the cache in which texts may be kept, by repository.
SearchCaches YumIO::searchCaches()
{
    SearchCaches caches;
    if (!PyObject_HasAttrString(m_session.yumIO, "searchCaches"))
        return caches;
    const PyRef result(pyMethodCall(m_session.yumIO, "searchCaches", "()"));
    PyObject *repo, *cache;
    for (Py_ssize_t at = 0;
         result && PyDict_Check(result.get()) && PyDict_Next(result.get(), &at, &repo, &cache);) {
        PyObject *path, *identity;
        if (PyArg_ParseTuple(cache, "US", &path, &identity))
            caches.insert(pyString(repo), {pyString(path), QByteArray(PyBytes_AsString(identity),
                                                                      PyBytes_Size(identity))});
        PyErr_Clear();
    }
    return caches;
}

void YumIO::searchSingly(SearchRequest &request, const QList<qsizetype> &numbers)
{
    if (numbers.isEmpty())
        return;
    const Expression expression(request.pattern);
    m_progress->startItem(tr("Searching packages"), Steps(numbers.size()), Steps(numbers.size()));
    Steps done = 0;
    for (const qsizetype number : numbers) {
        if (m_cancelled)
            return;
        request.found[number] = anyField(*request.entries[number], expression);
        m_progress->setItemValue(++done);
    }
}

// The cheap fields come first, and a field is asked for only when none before it matched.
bool YumIO::anyField(const Package::Entry &entry, const Expression &expression)
{
    using Getter = QString (YumIO::*)(const Package::Entry &);
    using SimpleGetter = QString (YumIO::*)(const Package::Entry &) const;
    const auto found = [&](auto getter) { return expression.matches((this->*getter)(entry)); };
    const auto anySimple = [&](std::initializer_list<SimpleGetter> getters) {
        return std::any_of(getters.begin(), getters.end(), found);
    };
    const auto any = [&](std::initializer_list<Getter> getters) {
        return std::any_of(getters.begin(), getters.end(), found);
    };
    if (entry.kind == Package::Kind::Group) {
        return anySimple({&YumIO::getName}) ||
               any({&YumIO::getRequiredGroups, &YumIO::getDefaultMetaPkgs,
                    &YumIO::getOptionalMetaPkgs, &YumIO::getMandatoryPkgs, &YumIO::getDefaultPkgs,
                    &YumIO::getOptionalPkgs, &YumIO::getConditionalPkgs});
    }
    // Those of an installed package are in the rpm database. Those of the others may not have been
    // loaded; asking for them would load them.
    const bool known = isInstalled(entry);
    return anySimple({&YumIO::getName, &YumIO::getVerRel, &YumIO::getRepo, &YumIO::getArch,
                      &YumIO::getSize, &YumIO::getSummary}) ||
           any({&YumIO::getDescription, &YumIO::getGroup, &YumIO::getVendor}) ||
           anySimple({&YumIO::getBuildTime}) ||
           any({&YumIO::getInstallTime, &YumIO::getBinaryRpm, &YumIO::getSourceRpm,
                &YumIO::getLicense, &YumIO::getPackager, &YumIO::getUrl, &YumIO::getRelocations,
                &YumIO::getProvides, &YumIO::getRequires, &YumIO::getConflicts,
                &YumIO::getObsoletes}) ||
           ((known || m_session.fileLists) && any({&YumIO::getFiles})) ||
           ((known || m_session.otherData) && any({&YumIO::getChangeLog}));
}
