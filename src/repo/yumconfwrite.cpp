// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "yumconfio.h"

#include "app/sysroot.h"
#include "rootpath.h"
#include "wholefile.h"
#include "widgets/messagebox.h"
#include "writeprogress.h"
#include "yumio/passwordsintext.h"

#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>

namespace {

constexpr char mark[] = "\xef\xbb\xbf"; // the byte order mark

bool fitsLatin1(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 256; });
}

bool fitsLatin1(const Repo::Entry &entry)
{
    return fitsLatin1(entry.id) && fitsLatin1(entry.name) && fitsLatin1(entry.baseurl) &&
           fitsLatin1(entry.mirrorlist) && fitsLatin1(entry.otherOptions);
}

QString listed(const QString &heading, const QStringList &paths)
{
    return paths.isEmpty() ? QString() : heading + QLatin1Char('\n') + paths.join(u'\n');
}

// The copy that the write would make of a file, as a path inside the root.
QString copyOf(const QByteArray &file)
{
    return RootPath::toText(WholeFile::missingCopy(file)).mid(SysRoot::prefix().size());
}

} // namespace

YumConfIO::Plan YumConfIO::makePlan()
{
    Plan plan;
    plan.list = repos;
    plan.notes = checkErrors(plan.list);
    plan.drops = !plan.notes.isEmpty();
    cleanupWrite(plan.list);
    plan.notes += warnings(plan.list);

    plan.contents = sortedContents(plan.list);
    for (const FileContent &content : std::as_const(plan.contents))
        plan.used.insert(content.path);
    const QString main = fileName();
    if (!plan.used.contains(main))
        plan.contents.append({main, {}});
    for (FileContent &content : plan.contents) {
        render(content);
        plan.refusals += refusals(content);
    }
    return plan;
}

YumConfIO::Preview YumConfIO::preview()
{
    const Plan plan = makePlan();
    Preview preview{plan.refusals, plan.notes, {}};
    const QStringList changed = changedOnDisk(plan);
    if (!changed.isEmpty())
        preview.notes += changedOnDiskNote(changed);
    for (const FileContent &content : plan.contents) {
        if (content.state.secret && losesReaders(content.path))
            preview.notes += tr("%1 gets its first password, and other users of this computer can "
                                "no longer read it.")
                                 .arg(RootPath::shown(content.path));
        if (content.isChange())
            preview.changes.append({content.path, content.existed, false, toText(content.before),
                                    toText(content.bytes), copyOf(RootPath::target(content.path))});
    }
    for (const QString &path : unusedFiles(plan.used, nullptr)) {
        QByteArray bytes;
        const QByteArray removed = RootPath::entry(path);
        WholeFile::read(RootPath::target(path), bytes);
        preview.changes.append({path, true, true, toText(bytes), QString(), copyOf(removed)});
    }
    return preview;
}

bool YumConfIO::write(QWidget *parent)
{
    m_parent = parent;
    if (!m_unreadable.isEmpty()) {
        errno = EACCES;
        error(tr("Nothing is written, because what these files hold is not known:\n%1\n")
                  .arg(m_unreadable.join(u'\n')));
        return false;
    }
    const Plan plan = makePlan();
    if (!plan.refusals.isEmpty()) {
        showMessageBox(QMessageBox::Critical, m_parent, tr("VOK Repository Editor Error"),
                       tr("Nothing is written, because it would not be read as it is meant:\n\n%1")
                           .arg(plan.refusals.join(u'\n')));
        return false;
    }
    if (!plan.notes.isEmpty() && !ask(plan.notes.join(u'\n') + tr("  Proceed?"), plan.drops))
        return false;
    const QStringList changed = changedOnDisk(plan);
    if (!changed.isEmpty() && !ask(changedOnDiskNote(changed) + tr("  Proceed?"), true))
        return false;

    if (!writeContents(plan.contents))
        return false;
    removeUnusedFiles(plan.used);
    repos = m_asRead = plan.list;
    return true;
}

// False when it failed, which is shown with what is another file by then and what is not.
bool YumConfIO::writeContents(const QList<FileContent> &contents)
{
    WriteProgress progress(m_parent, int(contents.size()));
    for (qsizetype at = 0; at < contents.size(); ++at) {
        if (writeFile(contents.at(at))) {
            progress.setDone(int(at + 1));
            continue;
        }
        const int code = errno;
        progress.end();
        QStringList written, unwritten;
        for (qsizetype i = 0; i < contents.size(); ++i) {
            const FileContent &content = contents.at(i);
            if (content.isChange())
                (i < at ? written : unwritten) += content.path;
        }
        const QString more =
            QStringList{listed(tr("Written before that:"), written),
                        listed(tr("Not written, and still to be applied:"), unwritten)}
                .join(QStringLiteral("\n\n"));
        errno = code;
        error(tr("Unable to write repository configuration file %1").arg(contents.at(at).path),
              more.trimmed());
        return false;
    }
    return true;
}

// What the reader would do to white space.
void YumConfIO::normalise(Repo::Entry &entry)
{
    static const QRegularExpression blanks(QStringLiteral("^[ \t]+"));
    entry.name.remove(blanks);
    entry.mirrorlist.remove(blanks);
    entry.baseurl.remove(blanks);
    cleanupRead(entry);

    const QStringList lines = entry.otherOptions.split(u'\n');
    QString &options = entry.otherOptions;
    options.clear();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString &line = lines.at(i);
        const QString next = lines.value(i + 1);
        // An empty line that is continued is more than an empty line, and one of blanks continues
        // the one above, if there is one.
        const bool continued = next.startsWith(u' ') || next.startsWith(u'\t');
        const bool drop = options.isEmpty() ? line.trimmed().isEmpty() : line.isEmpty();
        if (!drop || (line.isEmpty() && continued && !next.trimmed().isEmpty()))
            options += line + QLatin1Char('\n');
    }
}

QString YumConfIO::fileOf(const Repo::Entry &entry) const
{
    QList<Repo::Entry> list{entry};
    cleanupWrite(list);
    return list.constFirst().file;
}

void YumConfIO::cleanupWrite(QList<Repo::Entry> &list) const
{
    // A file that is named in two ways is written once.
    QHash<QByteArray, QString> names;
    QStringList known = m_files.keys();
    known.sort();
    for (const QString &path : std::as_const(known)) {
        QString &name = names[RootPath::target(path)];
        name = name.isEmpty() ? path : name;
    }
    QHash<QString, QString> oneName;
    for (Repo::Entry &entry : list) {
        normalise(entry);
        if (!m_files.contains(entry.file))
            entry.file = entry.file.trimmed();
        if (entry.file.isEmpty())
            entry.file = QString(entry.id).replace(u'/', u'_') + QLatin1String(".repo");
        if (!entry.file.startsWith(u'/') && !reposdirs.isEmpty())
            entry.file = reposdirs.first() + QLatin1Char('/') + entry.file;
        QString &path = oneName[entry.file];
        if (path.isEmpty()) {
            QString &name = names[RootPath::target(entry.file)];
            name = name.isEmpty() ? entry.file : name;
            path = name;
        }
        entry.file = path;
    }
}

// The repositories by file, files and repositories in the order in which they are written.
QList<YumConfIO::FileContent> YumConfIO::sortedContents(QList<Repo::Entry> sorted) const
{
    std::stable_sort(sorted.begin(), sorted.end(), filePositionLessThan);
    QList<FileContent> contents;
    for (const Repo::Entry &entry : std::as_const(sorted)) {
        if (contents.isEmpty() || contents.last().path != entry.file)
            contents.append({entry.file, {}});
        contents.last().entries.append(entry);
    }

    // A repository that moves from one file to another is in both for a moment, rather than in
    // neither: the files that get one come first.
    QHash<QString, QString> home;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        for (const QString &id : file->idents)
            home.insert(id, file.key());
    }
    std::stable_partition(contents.begin(), contents.end(), [&](const FileContent &content) {
        return std::any_of(content.entries.cbegin(), content.entries.cend(),
                           [&](const Repo::Entry &entry) {
                               return home.value(entry.id, content.path) != content.path;
                           });
    });
    return contents;
}

// The file's bytes, as the reader will decode them.
void YumConfIO::render(FileContent &content)
{
    const bool isMain = content.path == fileName();
    const FileState known = m_files.value(content.path);
    // What no longer fits makes the file a UTF-8 one, and so does what would be taken for one.
    const bool fits = (!isMain || fitsLatin1(m_mainText)) &&
                      std::all_of(content.entries.cbegin(), content.entries.cend(),
                                  [](const Repo::Entry &entry) { return fitsLatin1(entry); });
    const bool latin1 = known.latin1 && fits;
    content.bytes = bytesOf(content, latin1, known.bom);
    if (latin1 && content.bytes.isValidUtf8())
        content.bytes = bytesOf(content, false, known.bom);
    content.state = stateOf(content.bytes);
    for (const Repo::Entry &entry : std::as_const(content.entries))
        content.state.idents.insert(entry.id);

    content.state.secret =
        (isMain && hasOptionPasswords(m_mainText)) ||
        std::any_of(content.entries.cbegin(), content.entries.cend(),
                    [](const Repo::Entry &entry) { return carriesPassword(entry); });
    content.existed = WholeFile::read(RootPath::target(content.path), content.before);
}

QByteArray YumConfIO::bytesOf(const FileContent &content, bool latin1, bool bom)
{
    m_latin1 = latin1;
    char *buffer = nullptr;
    size_t size = 0;
    FILE *file = open_memstream(&buffer, &size);
    if (!file)
        qFatal("no memory");
    if (bom)
        fputs(mark, file);
    if (content.path == fileName())
        put(file, m_mainText);
    for (qsizetype i = 0; i < content.entries.size(); ++i) {
        if (i > 0)
            fputc('\n', file);
        writeRepo(file, content.entries.at(i));
    }
    fclose(file);
    const QByteArray bytes(buffer, qsizetype(size));
    free(buffer);
    return bytes;
}

// A file that has these bytes already is left alone, and gets no copy.
bool YumConfIO::writeFile(const FileContent &content)
{
    const QByteArray target = RootPath::target(content.path);
    QByteArray present; // which may be newer than what the plan saw
    if (WholeFile::read(target, present) && present == content.bytes) {
        m_files.insert(content.path, content.state);
        return true;
    }
    const bool secret = content.state.secret;
    const mode_t taken = secret && !m_files.value(content.path).secret ? S_IRWXO : 0;
    // A directory that is read may not be there before it holds something.
    const QString directory = content.path.section(u'/', 0, -2);
    if (!target.isEmpty() && reposdirs.contains(directory))
        mkdir(RootPath::target(directory).constData(), 0755);
    if (target.isEmpty() || !WholeFile::replace(target, content.bytes, secret ? 0600 : 0644, taken))
        return false;
    m_files.insert(content.path, content.state);
    return true;
}

void YumConfIO::put(FILE *file, const QString &text) const
{
    const QByteArray bytes = m_latin1 ? text.toLatin1() : text.toUtf8();
    fwrite(bytes.constData(), 1, size_t(bytes.size()), file);
}

bool YumConfIO::writeRepo(FILE *file, const Repo::Entry &entry) const
{
    put(file, sectionText(entry));
    return true;
}

QString YumConfIO::sectionText(const Repo::Entry &entry)
{
    QString text = QLatin1Char('[') + entry.id + QLatin1String("]\n");
    const auto option = [&text](QLatin1String name, const QString &value) {
        if (!value.isEmpty())
            text += name + value + QLatin1Char('\n');
    };
    const auto onOff = [](Qt::CheckState state) {
        if (state == Qt::PartiallyChecked)
            return QString();
        return state == Qt::Checked ? QStringLiteral("1") : QStringLiteral("0");
    };

    option(QLatin1String("name="), entry.name);
    QString urls = entry.baseurl;
    option(QLatin1String("baseurl="), urls.replace(u'\n', QLatin1String("\n        ")));
    option(QLatin1String("mirrorlist="), entry.mirrorlist);
    option(QLatin1String("enabled="), onOff(entry.enabled));
    option(QLatin1String("gpgcheck="), onOff(entry.gpgcheck));
    return text + entry.otherOptions;
}

// The repository files that hold no repository any more. Where one cannot be looked at, none, which
// is shown when `failed` is given.
QStringList YumConfIO::unusedFiles(const QSet<QString> &usedFiles, bool *failed) const
{
    // Two names may lead to one directory, and then to a file that was just written.
    QSet<QByteArray> written;
    for (const QString &file : usedFiles)
        written.insert(RootPath::entry(file));

    QStringList unused;
    for (const QString &directory : reposdirs) {
        for (const QString &path : repoFiles(directory)) {
            struct stat status;
            if (!RootPath::status(path, status)) {
                if (failed) {
                    error(tr("Unable to stat repository configuration file %1").arg(path));
                    *failed = true;
                }
                return {};
            }
            if (!S_ISDIR(status.st_mode) && !usedFiles.contains(path) &&
                !written.contains(RootPath::entry(path)))
                unused += path;
        }
    }
    return unused;
}

bool YumConfIO::removeUnusedFiles(const QSet<QString> &usedFiles)
{
    bool failed = false;
    QStringList unused = unusedFiles(usedFiles, &failed);
    const auto count = int(unused.size());
    WriteProgress progress(m_parent, count);
    while (!unused.isEmpty()) {
        const QString path = unused.first();
        if (!WholeFile::remove(RootPath::entry(path))) {
            const int code = errno;
            progress.end();
            errno = code;
            error(
                tr("Unable to unlink repository configuration file %1").arg(path),
                listed(tr("Everything was written, but these files are not removed, and what they "
                          "hold is still configured:"),
                       unused));
            return false;
        }
        m_files.remove(path);
        unused.removeFirst();
        progress.setDone(count - int(unused.size()));
    }
    return !failed;
}

bool YumConfIO::ask(const QString &question, bool loses)
{
    return showMessageBox(loses ? QMessageBox::Critical : QMessageBox::Warning, m_parent,
                          tr("Repository Editor"), question, tr("Yes"), tr("No"), QString(), 1,
                          1) == 0;
}
