#include "yumconfio.h"

#include "rootpath.h"
#include "wholefile.h"
#include "widgets/messagebox.h"
#include "yumio/passwordsintext.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>

namespace {

constexpr int shownFiles = 20;          // of the files that a question lists
constexpr int shownIdents = 1000;       // of the identifiers that a question lists
constexpr char mark[] = "\xef\xbb\xbf"; // the byte order mark

bool isDirectory(const QString &path)
{
    struct stat status;
    return RootPath::status(path, status) && S_ISDIR(status.st_mode);
}

bool fitsLatin1(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 256; });
}

bool fitsLatin1(const Repo::Entry &entry)
{
    return fitsLatin1(entry.id) && fitsLatin1(entry.name) && fitsLatin1(entry.baseurl) &&
           fitsLatin1(entry.mirrorlist) && fitsLatin1(entry.otherOptions);
}

QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

} // namespace

bool YumConfIO::write(QWidget *parent)
{
    m_parent = parent;
    if (!m_unreadable.isEmpty()) {
        errno = EACCES;
        error(tr("Nothing is written, because what these files hold is not known:\n%1\n")
                  .arg(m_unreadable.join(u'\n')));
        return false;
    }
    QList<Repo::Entry> list = repos;
    if (!checkErrors(list))
        return false;
    cleanupWrite(list);

    QList<FileContent> contents = sortedContents(list);
    QSet<QString> used;
    for (const FileContent &content : std::as_const(contents))
        used.insert(content.path);
    const QString main = fileName();
    if (!used.contains(main))
        contents.append({main, {}});
    if (!checkChangedOnDisk(contents, used))
        return false;
    repos = list;

    for (const FileContent &content : std::as_const(contents)) {
        if (!writeFile(content))
            return false;
    }
    removeUnusedFiles(used);
    return true;
}

void YumConfIO::cleanupWrite(QList<Repo::Entry> &list) const
{
    for (Repo::Entry &entry : list) {
        if (entry.file.isEmpty())
            entry.file = entry.id + QLatin1String(".repo");
        if (!entry.file.startsWith(u'/') && !reposdirs.isEmpty())
            entry.file = reposdirs.first() + QLatin1Char('/') + entry.file;
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

bool YumConfIO::writeFile(const FileContent &content)
{
    const bool isMain = content.path == fileName();
    FileState state = m_files.value(content.path);
    if (state.latin1) {
        // What no longer fits makes the file a UTF-8 one.
        state.latin1 = (!isMain || fitsLatin1(m_mainText)) &&
                       std::all_of(content.entries.cbegin(), content.entries.cend(),
                                   [](const Repo::Entry &entry) { return fitsLatin1(entry); });
    }
    m_latin1 = state.latin1;

    char *buffer = nullptr;
    size_t size = 0;
    FILE *file = open_memstream(&buffer, &size);
    bool complete = file != nullptr;
    if (file) {
        if (state.bom)
            fputs(mark, file);
        if (isMain)
            put(file, m_mainText);
        for (qsizetype i = 0; i < content.entries.size(); ++i) {
            if (i > 0)
                fputc('\n', file);
            writeRepo(file, content.entries.at(i));
        }
        complete = !ferror(file);
        complete = fclose(file) == 0 && complete;
    }
    const QByteArray bytes(buffer, complete ? qsizetype(size) : 0);
    free(buffer);

    const bool secret =
        (isMain && hasOptionPasswords(m_mainText)) ||
        std::any_of(content.entries.cbegin(), content.entries.cend(),
                    [](const Repo::Entry &entry) { return carriesPassword(entry); });
    const QByteArray target = RootPath::target(content.path);
    const mode_t taken = secret && !state.secret ? S_IRWXO : 0;
    if (!complete || target.isEmpty() ||
        !WholeFile::replace(target, bytes, secret ? 0600 : 0644, taken)) {
        error(tr("Unable to write repository configuration file %1").arg(content.path));
        return false;
    }
    state.digest = digestOf(bytes);
    state.secret = secret;
    state.idents.clear();
    for (const Repo::Entry &entry : content.entries)
        state.idents.insert(entry.id);
    m_files.insert(content.path, state);
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

bool YumConfIO::removeUnusedFiles(const QSet<QString> &usedFiles)
{
    // Two names may lead to one directory, and then to a file that was just written.
    QSet<QByteArray> written;
    for (const QString &file : usedFiles)
        written.insert(RootPath::entry(file));

    for (const QString &directory : std::as_const(reposdirs)) {
        for (const QString &path : repoFiles(directory)) {
            struct stat status;
            if (!RootPath::status(path, status)) {
                error(tr("Unable to stat repository configuration file %1").arg(path));
                return false;
            }
            const QByteArray entry = RootPath::entry(path);
            if (S_ISDIR(status.st_mode) || usedFiles.contains(path) || written.contains(entry))
                continue;
            if (!WholeFile::remove(entry)) {
                error(tr("Unable to unlink repository configuration file %1").arg(path));
                return false;
            }
            m_files.remove(path);
        }
    }
    return true;
}

// Asks before anything is lost that is on the disk and was not read: a file that was changed,
// appeared or vanished meanwhile, or that an earlier failure kept from being read.
bool YumConfIO::checkChangedOnDisk(const QList<FileContent> &contents, const QSet<QString> &used)
{
    QStringList files, changedFiles;
    for (const FileContent &content : contents)
        files += content.path;
    for (const QString &directory : std::as_const(reposdirs)) {
        for (const QString &path : repoFiles(directory)) {
            if (!used.contains(path) && !isDirectory(path))
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
        if (there ? !wasRead || known->digest != digestOf(bytes) : gone && wasRead)
            changedFiles += path;
    }
    if (changedFiles.isEmpty())
        return true;

    QString list = QStringList(changedFiles.mid(0, shownFiles)).join(u'\n');
    if (changedFiles.size() > shownFiles)
        list += QStringLiteral("\n...");
    return ask(tr("These files are not as they were read; another program changed them, or they "
                  "could not be read:\n\n%1\n\nWhat was changed there is lost when they are "
                  "written or removed.  Proceed?")
                   .arg(RootPath::shown(list)));
}

// Takes out of the list what cannot be written, when the user agrees.
bool YumConfIO::checkErrors(QList<Repo::Entry> &list)
{
    QString message;
    if (hasEmptyId(list))
        message = tr("A repository has no Identifier.  It will be removed.");
    const QString duplicates = getDuplicateId(list);
    if (!duplicates.isEmpty()) {
        if (!message.isEmpty())
            message += QLatin1Char('\n');
        message += tr("Two or more repositories have the same Identifier(s), %1.  Only one "
                      "repository will be applied for each Identifier.")
                       .arg(duplicates);
    }
    if (message.isEmpty())
        return true;
    if (!ask(message + tr("  Proceed?")))
        return false;

    QSet<QString> seen;
    list.removeIf([&seen](const Repo::Entry &entry) {
        const bool drop = entry.id.isEmpty() || seen.contains(entry.id);
        seen.insert(entry.id);
        return drop;
    });
    return true;
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

bool YumConfIO::ask(const QString &question)
{
    return showMessageBox(QMessageBox::Critical, m_parent, tr("Repository Editor"), question,
                          tr("Yes"), tr("No"), QString(), 1, 1) == 0;
}
