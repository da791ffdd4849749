// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "yumconfio.h"

#include "entrycheck.h"
#include "rootpath.h"
#include "wholefile.h"
#include "yumio/passwordsintext.h"

#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace {

constexpr int shownFiles = 20;    // of the files that a question lists
constexpr int shownIdents = 1000; // of the identifiers that a question lists
constexpr int shownFaults = 10;   // of the identifiers and lines that one note lists

bool isDirectory(const QString &path)
{
    struct stat status;
    return RootPath::status(path, status) && S_ISDIR(status.st_mode);
}

QString joined(QStringList list, int most, const QString &separator)
{
    if (list.size() > most)
        list = list.mid(0, most) + QStringList(QStringLiteral("..."));
    return list.join(separator);
}

bool startsWithBlank(const QString &line)
{
    return line.startsWith(u' ') || line.startsWith(u'\t');
}

bool isSame(const Repo::Entry &a, const Repo::Entry &b)
{
    return a.id == b.id && a.name == b.name && a.baseurl == b.baseurl &&
           a.mirrorlist == b.mirrorlist && a.enabled == b.enabled && a.gpgcheck == b.gpgcheck &&
           a.otherOptions == b.otherOptions;
}

// Whether a line feed in the value would end it.
bool breaks(const QString &value)
{
    static const QRegularExpression brk(QStringLiteral("\n(?![ \t])"));
    return value.contains(brk);
}

} // namespace

// Takes out of the list what cannot be written, and says so.
QStringList YumConfIO::checkErrors(QList<Repo::Entry> &list)
{
    QStringList message;
    if (hasEmptyId(list))
        message += tr("A repository has no Identifier.  It will be removed.");
    const QString duplicates = getDuplicateId(list);
    if (!duplicates.isEmpty())
        message += tr("Two or more repositories have the same Identifier(s), %1.  Only one "
                      "repository will be applied for each Identifier.")
                       .arg(duplicates);
    if (message.isEmpty())
        return message;

    QSet<QString> seen;
    list.removeIf([&seen](const Repo::Entry &entry) {
        const bool drop = entry.id.isEmpty() || seen.contains(entry.id);
        seen.insert(entry.id);
        return drop;
    });
    return message;
}

bool YumConfIO::hasEmptyId(const QList<Repo::Entry> &list)
{
    return std::any_of(list.cbegin(), list.cend(),
                       [](const Repo::Entry &entry) { return entry.id.isEmpty(); });
}

// An identifier stands in the list once for each later repository that has it too.
QString YumConfIO::getDuplicateId(const QList<Repo::Entry> &list)
{
    QHash<QString, int> later;
    for (const Repo::Entry &entry : list)
        ++later[entry.id];
    QStringList duplicates;
    for (const Repo::Entry &entry : list) {
        for (int count = --later[entry.id]; count > 0; --count) {
            if (duplicates.size() == shownIdents)
                return duplicates.join(QLatin1String(", ")) + QLatin1String(", ...");
            duplicates += entry.id;
        }
    }
    return duplicates.join(QLatin1String(", "));
}

// What would come back from the disk as something else.
QStringList YumConfIO::refusals(const FileContent &content)
{
    const bool isMain = content.path == fileName();
    const QSet<QString> known = m_files.value(content.path).idents;
    QStringList reasons;
    for (const Repo::Entry &entry : content.entries) {
        if (entry.id == QLatin1String("main") && !known.contains(entry.id))
            reasons += tr("\"main\" names the section of the main options, never a repository.");
        if (!maskedPasswords(entry, asRead(entry)).isEmpty())
            reasons += tr("%1, in %2: the password consists of mask characters only.")
                           .arg(entry.id, RootPath::shown(content.path));
    }
    const ReadBack back = readBack(content.bytes, isMain);
    const bool same = back.fault.isEmpty() && (!isMain || back.mainText == m_mainText) &&
                      std::equal(back.repos.cbegin(), back.repos.cend(), content.entries.cbegin(),
                                 content.entries.cend(), isSame);
    if (same || !reasons.isEmpty())
        return reasons;
    for (const Repo::Entry &entry : content.entries) {
        const QString reason = refusal(entry, content.path);
        if (!reason.isEmpty())
            reasons += reason;
    }
    if (reasons.isEmpty())
        reasons += tr("%1: what it would hold cannot be told apart from other sections.")
                       .arg(RootPath::shown(content.path));
    return reasons;
}

// What the entry was when it was read; one whose identifier changed still has its place.
Repo::Entry YumConfIO::asRead(const Repo::Entry &entry) const
{
    const auto find = [this](const auto &isSameOne) {
        return std::find_if(m_asRead.cbegin(), m_asRead.cend(), isSameOne);
    };
    auto found = find([&](const Repo::Entry &one) { return one.id == entry.id; });
    if (found == m_asRead.cend())
        found = find([&](const Repo::Entry &one) {
            return one.file == entry.file && one.position == entry.position;
        });
    return found == m_asRead.cend() ? Repo::Entry() : *found;
}

// Why the entry cannot be written; empty when it can by itself.
QString YumConfIO::refusal(const Repo::Entry &entry, const QString &path)
{
    const ReadBack back = readBack(bytesOf({QString(), {entry}}, false, false), false);
    if (back.fault.isEmpty() && back.repos.size() == 1 && isSame(back.repos.first(), entry))
        return QString();

    const QString id = QString(entry.id).replace(u'\n', u' ');
    const auto because = [&](const QString &reason) {
        return tr("%1, in %2: %3").arg(id, RootPath::shown(path), reason);
    };
    if (entry.id.contains(u'\n'))
        return because(tr("the identifier holds a line break."));
    if (breaks(entry.name))
        return because(tr("the name holds a line break."));
    if (breaks(entry.mirrorlist))
        return because(tr("the mirror list URL holds a line break."));
    bool first = true;
    for (const QString &line : entry.otherOptions.split(u'\n', Qt::SkipEmptyParts)) {
        const QString shown = maskOptionPasswords(line.trimmed());
        if (first && startsWithBlank(line))
            return because(tr("the other options begin with a blank, so that \"%1\" would "
                              "continue the line above.")
                               .arg(shown));
        first = false;
        if (line.startsWith(u'['))
            return because(
                tr("in the other options, \"%1\" would be the head of a section.").arg(shown));
        for (const char *option : {"name", "baseurl", "mirrorlist", "enabled", "gpgcheck"}) {
            QString value;
            if (isOption(line, QLatin1String(option), value))
                return because(tr("in the other options, \"%1\" sets an option that has a field "
                                  "of its own.")
                                   .arg(shown));
        }
    }
    return because(tr("it holds characters that cannot be written."));
}

// What DNF will make of what was edited here and may not be meant; what was there before is not
// complained of.
QStringList YumConfIO::warnings(const QList<Repo::Entry> &list) const
{
    QHash<QString, QString> before; // other options by identifier
    for (const Repo::Entry &entry : m_asRead)
        before.insert(entry.id, entry.otherOptions);

    QStringList badIds, twins, badLines;
    QHash<QString, QString> byCase;
    for (const Repo::Entry &entry : list) {
        const bool isNew = !before.contains(entry.id);
        const QString bad = isNew ? EntryCheck::identifierWarning(entry.id) : QString();
        if (!bad.isEmpty())
            badIds += tr("%1: %2.").arg(entry.id, bad);
        const QString folded = entry.id.toCaseFolded();
        const QString twin = byCase.value(folded, entry.id);
        byCase.insert(folded, entry.id);
        if (twin != entry.id && (isNew || !before.contains(twin)))
            twins += tr("%1 and %2").arg(twin, entry.id);

        if (!isNew && before.value(entry.id) == entry.otherOptions)
            continue;
        QStringList hints = EntryCheck::optionHints(entry.otherOptions, {});
        for (const QString &line : entry.otherOptions.split(u'\n')) {
            if (startsWithBlank(line) && line.trimmed().startsWith(u'['))
                hints += tr("DNF takes an indented line for the head of a section: %1")
                             .arg(maskOptionPasswords(line.trimmed()));
        }
        for (const QString &hint : std::as_const(hints))
            badLines += tr("%1: %2").arg(entry.id, hint);
    }
    QStringList notes;
    if (!badIds.isEmpty())
        notes += joined(badIds, shownFaults, QStringLiteral("\n"));
    if (!twins.isEmpty())
        notes += tr("These identifiers differ in case only: %1.")
                     .arg(joined(twins, shownFaults, QStringLiteral("; ")));
    if (!badLines.isEmpty())
        notes += joined(badLines, shownFaults, QStringLiteral("\n"));
    return notes;
}

// The files in which something would be lost that was not read: changed, come or gone meanwhile, or
// kept from being read by an earlier failure.
QStringList YumConfIO::changedOnDisk(const Plan &plan) const
{
    QStringList files, changedFiles;
    for (const FileContent &content : plan.contents)
        files += content.path;
    for (const QString &directory : reposdirs) {
        for (const QString &path : repoFiles(directory)) {
            if (!plan.used.contains(path) && !isDirectory(path))
                files += path;
        }
    }
    for (const QString &path : std::as_const(files)) {
        const auto known = m_files.constFind(path);
        QByteArray bytes;
        errno = 0;
        const bool there = WholeFile::read(RootPath::target(path), bytes);
        const bool gone = !there && errno == ENOENT;
        const bool wasRead = known != m_files.cend();
        if (there ? !wasRead || known->digest != stateOf(bytes).digest : gone && wasRead)
            changedFiles += path;
    }
    return changedFiles;
}

QString YumConfIO::changedOnDiskNote(const QStringList &files)
{
    return tr("These files are not as they were read; another program changed them, or they "
              "could not be read:\n\n%1\n\nWhat was changed there is lost when they are "
              "written or removed.")
        .arg(RootPath::shown(joined(files, shownFiles, QStringLiteral("\n"))));
}
