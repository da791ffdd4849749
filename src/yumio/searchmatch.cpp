// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "searchmatch.h"

#include "expression.h"
#include "formats.h"

#include <QThread>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <thread>
#include <tuple>

namespace {

// The texts of a record, one after the other.
class Texts
{
public:
    Texts(const char *start, const char *end) : m_at(start), m_end(end) {}
    bool atEnd() const { return m_at >= m_end; }
    const char *next()
    {
        if (atEnd())
            return "";
        return std::exchange(m_at, m_at + std::strlen(m_at) + 1);
    }

private:
    const char *m_at;
    const char *m_end;
};

class Matcher
{
public:
    explicit Matcher(const QString &pattern) : m_expression(pattern) {}
    bool matches(const SearchSubject &subject, const char *start, const char *end);

private:
    bool next(Texts &texts, int count);
    const char *changeLog(Texts &texts);

    const Expression m_expression;
    QByteArray m_changes;
};

bool Matcher::next(Texts &texts, int count)
{
    bool found = false;
    while (count-- > 0)
        found = found || m_expression.matches(texts.next());
    return found;
}

const char *Matcher::changeLog(Texts &texts)
{
    m_changes.resize(0);
    while (!texts.atEnd()) {
        if (!m_changes.isEmpty())
            m_changes += "\n\n";
        m_changes += "* " + dateText(std::strtoll(texts.next(), nullptr, 10)) + ' ';
        m_changes += texts.next();
        m_changes += '\n';
        m_changes += texts.next();
    }
    return m_changes.constData();
}

// The fields in the order in which a search asks for them one by one.
bool Matcher::matches(const SearchSubject &subject, const char *start, const char *end)
{
    const Package::Entry &entry = *subject.entry;
    for (const QString *text :
         {&entry.name, &entry.verRel, &entry.repo, &entry.arch, &entry.sizeText, &entry.summary}) {
        if (m_expression.matches(*text))
            return true;
    }
    Texts texts(start, end);
    if (next(texts, 3) || m_expression.matches(entry.buildTimeText)) // description, group, vendor
        return true;
    const char *installed = texts.next();
    if (m_expression.matches(*installed ? timeText(std::strtoll(installed, nullptr, 10)).constData()
                                        : ""))
        return true;
    if (next(texts, 10)) // package file to obsoletes
        return true;
    const char *files = texts.next();
    if (subject.hasFiles && m_expression.matches(files))
        return true;
    return subject.hasChanges && m_expression.matches(changeLog(texts));
}

} // namespace

QSet<const SearchTexts *> matchSubjects(const QString &pattern, std::vector<SearchSubject> subjects,
                                        QList<bool> &found, const std::atomic<bool> &cancelled,
                                        const std::function<void(qsizetype)> &report)
{
    // A unit of work is what lies in one block.
    const auto block = [](const SearchSubject &subject) {
        return std::tuple(subject.texts, subject.place.block);
    };
    std::sort(subjects.begin(), subjects.end(),
              [&](const auto &a, const auto &b) { return block(a) < block(b); });
    std::vector<size_t> starts;
    for (size_t i = 0; i < subjects.size(); ++i) {
        if (i == 0 || block(subjects[i]) != block(subjects[i - 1]))
            starts.push_back(i);
    }
    starts.push_back(subjects.size());

    bool *const verdicts = found.data();
    std::atomic<size_t> nextUnit = 0;
    std::atomic<qsizetype> done = 0;
    QSet<const SearchTexts *> damaged;
    std::mutex damagedMutex;
    const auto work = [&](const std::function<void(qsizetype)> &told) {
        Matcher matcher(pattern);
        for (size_t unit; !cancelled && (unit = nextUnit++) + 1 < starts.size();) {
            const SearchSubject &first = subjects[starts[unit]];
            const QByteArray text = first.texts->block(first.place.block);
            for (size_t i = starts[unit]; i < starts[unit + 1] && !cancelled; ++i) {
                const auto &[entry, texts, place, number, hasFiles, hasChanges] = subjects[i];
                const qsizetype end = qsizetype(place.offset) + place.size;
                if (place.size == 0 || end > text.size() || text[end - 1] != '\0') {
                    const std::lock_guard guard(damagedMutex);
                    damaged.insert(texts);
                    break;
                }
                verdicts[number] = matcher.matches(subjects[i], text.constData() + place.offset,
                                                   text.constData() + end);
            }
            done += qsizetype(starts[unit + 1] - starts[unit]);
            if (told)
                told(done);
        }
    };
    {
        std::vector<std::jthread> helpers;
        for (int i = 1; i < QThread::idealThreadCount() && size_t(i) + 1 < starts.size(); ++i)
            try {
                helpers.emplace_back([&work] { work(nullptr); });
            } catch (const std::system_error &) { // no more threads: the others do it all
                break;
            }
        work(report);
    }
    return damaged;
}
