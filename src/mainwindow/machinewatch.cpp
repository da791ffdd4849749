// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/machinewatch.h"

#include "repo/rootpath.h"
#include "repo/wholefile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int pauseMs = 500;
// Links, too, that lead somewhere in the system's root only.
constexpr auto anyFile = QDir::Files | QDir::Hidden | QDir::System;

// Without an instance of its own the watcher would look at the files every second.
bool hasEvents()
{
    const int fd = inotify_init1(IN_CLOEXEC);
    if (fd >= 0)
        close(fd);
    return fd >= 0;
}

// Files that a reader changes, too: locks, and what processes share to work on the database.
bool isForReaders(const QString &name)
{
    return name.endsWith(QLatin1String("-shm")) || name.endsWith(QLatin1String(".lock")) ||
           name.startsWith(QLatin1String("__db."));
}

QStringList pathsOf(const Engine::Sources::File &file)
{
    if (file.pattern.isEmpty())
        return {file.path};
    QStringList paths;
    const QDir directory(QFile::decodeName(RootPath::locate(file.path)));
    for (const QString &name : directory.entryList({file.pattern}, anyFile))
        paths.append(file.path + u'/' + name);
    return paths;
}

QStringList databaseFiles(const QString &database)
{
    QStringList paths;
    const QDir directory(QFile::decodeName(RootPath::locate(database)));
    for (const QString &name : directory.entryList(anyFile)) {
        if (!isForReaders(name))
            paths.append(directory.filePath(name));
    }
    return paths;
}

// The path, or the directory nearest to it that exists.
QString nearest(QString path)
{
    while (!QFileInfo::exists(path) && path.size() > 1)
        path = QFileInfo(path).path();
    return path;
}

} // namespace

MachineWatch::MachineWatch(const std::function<bool()> &installedChanged, QObject *parent)
    : QObject(parent), m_ask(installedChanged)
{
    for (const char *path : {"/etc/yum/yum.conf", "/etc/yum.conf"})
        m_sources.files.append({QLatin1String(path), QString()});
    for (const char *path : {"/etc/yum.repos.d", "/etc/yum/repos.d"})
        m_sources.files.append({QLatin1String(path), QStringLiteral("*.repo")});
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMs);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        watch(); // files that were replaced are others now
        Q_EMIT raised();
    });
    if (!hasEvents())
        return;
    m_watcher = std::make_unique<QFileSystemWatcher>();
    // Not started again by each event, or a long transaction would be noticed at its end only.
    const auto pause = [this] {
        if (!m_pause.isActive())
            m_pause.start();
    };
    connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, pause);
    connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, pause);
}

void MachineWatch::setSources(const Engine::Sources &sources)
{
    if (sources.files.isEmpty())
        return;
    QList<Engine::Sources::File> fresh;
    for (const Engine::Sources::File &file : sources.files) {
        if (!m_sources.files.contains(file))
            fresh.append(file);
    }
    m_sources = sources;
    m_taken.insert(read(fresh));
    watch();
}

MachineWatch::Contents MachineWatch::read(const QList<Engine::Sources::File> &files)
{
    Contents contents;
    for (const Engine::Sources::File &file : files) {
        for (const QString &path : pathsOf(file)) {
            QByteArray bytes;
            if (WholeFile::read(RootPath::locate(path), bytes))
                contents.insert(path, QCryptographicHash::hash(bytes, QCryptographicHash::Sha256));
        }
    }
    return contents;
}

void MachineWatch::take()
{
    m_taken = read(m_sources.files);
}

void MachineWatch::keep()
{
    m_kept = m_taken;
    m_databaseState.clear(); // to be asked once
}

void MachineWatch::look()
{
    m_changedFiles = differences(m_kept, read(m_sources.files));
    // Noted before it is asked, so that what changes meanwhile is asked about again. To ask changes
    // nothing of it, or each answer would raise the question anew.
    const QByteArray state = databaseState();
    if (state != std::exchange(m_databaseState, state))
        m_installedChanged = m_ask();
}

QStringList MachineWatch::differences(const Contents &one, const Contents &other)
{
    QSet<QString> paths;
    for (const auto &[contents, against] : {std::pair(one, other), std::pair(other, one)}) {
        for (auto it = contents.cbegin(); it != contents.cend(); ++it) {
            if (against.value(it.key()) != it.value())
                paths.insert(it.key());
        }
    }
    QStringList sorted(paths.cbegin(), paths.cend());
    sorted.sort();
    return sorted;
}

// Something that is another one whenever the database was written to. Reading makes and touches empty
// files.
QByteArray MachineWatch::databaseState() const
{
    if (m_sources.database.isEmpty())
        return {};
    QByteArray state(1, '\n');
    for (const QString &path : databaseFiles(m_sources.database)) {
        struct stat status;
        if (stat(QFile::encodeName(path).constData(), &status) != 0 || status.st_size == 0)
            continue;
        for (const auto number : {qint64(status.st_ino), qint64(status.st_size),
                                  qint64(status.st_mtim.tv_sec), qint64(status.st_mtim.tv_nsec)})
            state += QByteArray::number(number) + ' ';
        state += QFile::encodeName(path) + '\n';
    }
    return state;
}

// Directories tell what comes, goes and is renamed, files what is written to them.
void MachineWatch::watch()
{
    if (!m_watcher)
        return;
    QStringList wanted;
    const auto want = [&](const QString &path) {
        wanted.append(QFile::decodeName(RootPath::locate(path)));
        return wanted.last();
    };
    for (const Engine::Sources::File &file : m_sources.files) {
        const QString path = want(file.path);
        wanted.append(nearest(file.pattern.isEmpty() ? QFileInfo(path).path() : path));
        for (const QString &one : pathsOf(file))
            want(one);
    }
    if (!m_sources.database.isEmpty()) {
        wanted.append(nearest(want(m_sources.database)));
        wanted += databaseFiles(m_sources.database);
    }
    QHash<QString, ino_t> inodes;
    for (const QString &path : std::as_const(wanted)) {
        struct stat status;
        if (stat(QFile::encodeName(path).constData(), &status) == 0)
            inodes.insert(path, status.st_ino);
    }
    // What was renamed is still watched under its former name.
    for (const QString &path : m_watcher->files() + m_watcher->directories()) {
        const auto known = m_inodes.constFind(path);
        const auto now = inodes.constFind(path);
        if (known == m_inodes.cend() || now == inodes.cend() || *known != *now)
            m_watcher->removePath(path);
    }
    const QStringList watched = m_watcher->files() + m_watcher->directories();
    for (auto it = inodes.cbegin(); it != inodes.cend(); ++it) {
        if (!watched.contains(it.key()))
            m_watcher->addPath(it.key()); // as far as the system allows it
    }
    m_inodes = inodes;
}
