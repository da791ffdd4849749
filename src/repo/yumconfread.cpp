// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "yumconfio.h"

#include "rootpath.h"
#include "yumio/passwordsintext.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

// A repository file that a link leads to the null device is a usual way to switch it off.
bool isNullDevice(const struct stat &status)
{
    return S_ISCHR(status.st_mode) && status.st_rdev == makedev(1, 3);
}

constexpr char byteOrderMark[] = "\xef\xbb\xbf";

QString decode(const QByteArray &line, bool latin1)
{
    if (latin1)
        return QString::fromLatin1(line);
    // Only a file can begin with a byte order mark, not a line.
    if (line.startsWith(byteOrderMark)) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        return decoder(line);
    }
    return QString::fromUtf8(line);
}

Qt::CheckState onOff(const QString &value)
{
    return value == QLatin1String("0") ? Qt::Unchecked : Qt::Checked;
}

} // namespace

YumConfIO::OpenResult YumConfIO::openForReading(const QString &path, const QByteArray &located,
                                                const QString &failure, File &file)
{
    // A pipe without a writer must not be waited for.
    const int fd = open(located.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0 && errno == EACCES) {
        m_unreadable.append(RootPath::shown(path));
        return LeftOut;
    }
    struct stat status;
    if (fd >= 0 && fstat(fd, &status) == 0) {
        // Reading a directory reports itself.
        if (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode) || isNullDevice(status)) {
            file.reset(fdopen(fd, "r"));
            if (file)
                return Opened;
        } else {
            errno = ENOTSUP;
        }
    }
    error(failure.arg(path));
    if (fd >= 0)
        close(fd);
    return Failed;
}

YumConfIO::FileState YumConfIO::stateOf(const QByteArray &bytes)
{
    FileState state;
    state.digest = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
    state.latin1 = !bytes.isValidUtf8();
    state.bom = !state.latin1 && bytes.startsWith(byteOrderMark);
    return state;
}

// Looks at the whole file before its lines are read: what it is encoded in shows nowhere else.
YumConfIO::FileState YumConfIO::examine(FILE *file)
{
    QByteArray bytes, block(65536, Qt::Uninitialized);
    off_t offset = 0;
    for (;;) {
        const ssize_t got = pread(fileno(file), block.data(), size_t(block.size()), offset);
        if (got <= 0)
            break; // a failure happens again, and is reported, when the lines are read
        bytes.append(block.constData(), got);
        offset += got;
    }
    const FileState state = stateOf(bytes);
    if (state.bom)
        fseek(file, 3, SEEK_SET);
    return state;
}

bool YumConfIO::read(QWidget *parent)
{
    m_parent = parent;
    m_mainText.clear();
    m_pendingLines.clear();
    m_files.clear();
    m_unreadable.clear();
    m_asRead.clear();
    cachedir = QStringLiteral("/var/cache/yum");
    reposdirs = {QStringLiteral("/etc/yum.repos.d"), QStringLiteral("/etc/yum/repos.d")};
    mainEnabled = true;
    mainGpgcheck = false;
    repos.clear();

    if (!readMainFile())
        return false;
    for (const QString &directory : std::as_const(reposdirs)) {
        if (!readReposDir(directory))
            return false;
    }
    m_asRead = repos;
    Q_EMIT changed();
    return true;
}

bool YumConfIO::readMainFile()
{
    const QString main = fileName();
    File file(nullptr, fclose);
    const OpenResult opened = openForReading(main, RootPath::locate(main),
                                             tr("Unable to read yum configuration file %1"), file);
    if (opened != Opened)
        return opened == LeftOut;
    const FileState state = examine(file.get());
    m_latin1 = state.latin1;
    if (!readConfFile(file.get()))
        return false;
    noteRead(main, state, 0);
    return true;
}

bool YumConfIO::readReposDir(const QString &directory)
{
    const QByteArray real = RootPath::locate(directory);
    const QStringList files = repoFiles(directory);
    return std::all_of(files.cbegin(), files.cend(), [&](const QString &path) {
        const QString name = path.sliced(directory.size());
        return readReposFile(path, real + RootPath::toBytes(name));
    });
}

// `real` is where the file lies if it is no link.
bool YumConfIO::readReposFile(const QString &path, const QByteArray &real)
{
    struct stat status;
    const bool isLink = lstat(real.constData(), &status) != 0 || S_ISLNK(status.st_mode);
    if (isLink && !RootPath::status(path, status)) {
        if (errno == EACCES) {
            m_unreadable.append(RootPath::shown(path));
            return true;
        }
        error(tr("Unable to stat repository configuration file %1").arg(path));
        return false;
    }
    if (S_ISDIR(status.st_mode))
        return true;
    File file(nullptr, fclose);
    const OpenResult opened =
        openForReading(path, isLink ? RootPath::locate(path) : real,
                       tr("Unable to read repository configuration file %1"), file);
    if (opened != Opened)
        return opened == LeftOut;
    const FileState state = examine(file.get());
    const qsizetype before = repos.size();
    m_latin1 = state.latin1;
    m_pendingLines.clear();
    if (!readRepoFile(file.get(), path))
        return false;
    noteRead(path, state, before);
    return true;
}

// Only a file that was read to its end is known; any other is asked about before it is overwritten.
void YumConfIO::noteRead(const QString &path, FileState state, qsizetype firstRepo)
{
    state.secret = path == fileName() && hasOptionPasswords(m_mainText);
    for (qsizetype i = firstRepo; i < repos.size(); ++i) {
        state.idents.insert(repos.at(i).id);
        state.secret = state.secret || carriesPassword(repos.at(i));
    }
    m_files.insert(path, state);
}

QString YumConfIO::toText(const QByteArray &bytes)
{
    const FileState state = stateOf(bytes);
    return decode(state.bom ? bytes.sliced(3) : bytes, state.latin1);
}

YumConfIO::ReadBack YumConfIO::readBack(const QByteArray &bytes, bool isMain) const
{
    ReadBack result;
    const QList<YumRepoEnabled> requests;
    QHash<QString, bool> used;
    YumConfIO reader(requests, used);
    reader.m_fault = &result.fault;
    const FileState state = stateOf(bytes);
    reader.m_latin1 = state.latin1;
    QByteArray rest = state.bom ? bytes.sliced(3) : bytes;
    if (!rest.isEmpty()) {
        const File file(fmemopen(rest.data(), size_t(rest.size()), "r"), fclose);
        if (!file)
            result.fault = QString::fromLocal8Bit(strerror(errno));
        else if (isMain)
            reader.readConfFile(file.get());
        else
            reader.readRepoFile(file.get(), QString());
    }
    result.repos = reader.repos;
    result.mainText = reader.m_mainText;
    return result;
}

bool YumConfIO::readConfFile(FILE *file)
{
    const QString path = fileName();
    QString line;
    for (;;) {
        const int result = readLogicalLine(file, path, line);
        if (result == ReadError)
            return false;
        if (result == EndOfFile)
            break;
        if (line.startsWith(u'[') && line != QLatin1String("[main]")) {
            unreadLine(line);
            break;
        }
        readMainOption(line);
        m_mainText += line + QLatin1Char('\n');
    }
    return readRepoFile(file, path);
}

void YumConfIO::readMainOption(const QString &line)
{
    static const QRegularExpression separators(QStringLiteral("[, \t\n]"));

    QString value;
    if (isOption(line, QStringLiteral("cachedir"), value))
        cachedir = value;
    else if (isOption(line, QStringLiteral("reposdir"), value))
        reposdirs = (m_latin1 ? RootPath::toText(value.toLatin1()) : value)
                        .split(separators, Qt::SkipEmptyParts);
    else if (isOption(line, QStringLiteral("enabled"), value))
        mainEnabled = onOff(value) == Qt::Checked;
    else if (isOption(line, QStringLiteral("gpgcheck"), value))
        mainGpgcheck = onOff(value) == Qt::Checked;
}

bool YumConfIO::readRepoFile(FILE *file, const QString &path)
{
    Repo::Entry entry;
    entry.file = path;
    bool inSection = false, first = false;
    QString line;
    for (;;) {
        const int result = readLogicalLine(file, path, line);
        if (result == ReadError)
            return false;
        if (result == EndOfFile)
            break;
        if (!line.startsWith(u'[')) {
            readOption(line, inSection && first, entry);
            continue;
        }
        if (!line.endsWith(u']')) {
            errno = 0;
            error(
                tr("Malformed section name in line: %1").arg(line),
                tr("It stands in the file %1. The repositories can be edited here when it has been "
                   "corrected.")
                    .arg(path));
            return false;
        }
        if (inSection)
            finishSection(entry, first);
        const double position = entry.position + 1.0;
        entry = Repo::Entry();
        entry.id = line.mid(1, line.size() - 2);
        entry.file = path;
        entry.position = position;
        inSection = true;
        first = !reposUsed.contains(entry.id);
        if (first)
            reposUsed.insert(entry.id, mainEnabled);
    }
    if (inSection)
        finishSection(entry, first);
    return true;
}

void YumConfIO::readOption(const QString &line, bool first, Repo::Entry &entry)
{
    QString value;
    if (isOption(line, QStringLiteral("name"), value)) {
        entry.name = value;
    } else if (isOption(line, QStringLiteral("baseurl"), value)) {
        entry.baseurl = value;
    } else if (isOption(line, QStringLiteral("mirrorlist"), value)) {
        entry.mirrorlist = value;
    } else if (isOption(line, QStringLiteral("enabled"), value)) {
        entry.enabled = onOff(value);
        if (first)
            reposUsed.insert(entry.id, entry.enabled == Qt::Checked);
    } else if (isOption(line, QStringLiteral("gpgcheck"), value)) {
        entry.gpgcheck = onOff(value);
    } else if (!line.isEmpty()) {
        entry.otherOptions += line + QLatin1Char('\n');
    }
}

void YumConfIO::finishSection(Repo::Entry &entry, bool first)
{
    cleanupRead(entry);
    if (first)
        applyUsedOptions(entry);
    repos.append(entry);
}

void YumConfIO::cleanupRead(Repo::Entry &entry)
{
    static const QRegularExpression gap(QStringLiteral("[ \t\n]+"));
    entry.baseurl.replace(gap, QStringLiteral("\n"));
}

void YumConfIO::applyUsedOptions(const Repo::Entry &entry)
{
    for (const YumRepoEnabled &request : repoEnabled) {
        if (request.matches(entry.id))
            reposUsed.insert(entry.id, request.enabled);
    }
}

int YumConfIO::readLogicalLine(FILE *file, const QString &path, QString &line)
{
    if (m_pendingLines.isEmpty()) {
        const int result = readLine(file, path, line);
        if (result != LineRead)
            return result;
    } else {
        line = m_pendingLines.takeFirst();
        if (!m_pendingLines.isEmpty())
            return LineRead;
    }

    for (;;) {
        QString next;
        const int result = readLine(file, path, next);
        if (result == ReadError)
            return ReadError;
        if (result == EndOfFile)
            return LineRead;
        if (!next.startsWith(u' ') && !next.startsWith(u'\t')) {
            m_pendingLines.append(next);
            return LineRead;
        }
        line += QLatin1Char('\n') + next;
    }
}

int YumConfIO::readLine(FILE *file, const QString &path, QString &line)
{
    QByteArray bytes;
    errno = 0;
    int c;
    while ((c = getc_unlocked(file)) != EOF && c != '\n')
        bytes += char(c);
    line = decode(bytes, m_latin1);
    if (c == '\n')
        return LineRead;
    if (errno != 0) {
        error(tr("Error reading repository configuration file %1").arg(path));
        return ReadError;
    }
    return bytes.isEmpty() ? EndOfFile : LineRead;
}

void YumConfIO::unreadLine(const QString &line)
{
    m_pendingLines.prepend(line);
}
