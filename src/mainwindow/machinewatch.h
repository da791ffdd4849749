// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "yumio/sources.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

#include <sys/types.h>

// Whether the machine is still as it was when the table was collected: the installed packages, and the
// configuration files. What happens to files and directories only raises the question; look() answers
// it. Where the system gives no events, nothing raises it.
class MachineWatch : public QObject
{
    Q_OBJECT

public:
    // `installedChanged` says whether packages came or went since the collection; it is called by
    // look() alone, and only after something was written to the database.
    MachineWatch(const std::function<bool()> &installedChanged, QObject *parent);

    // What is watched from now on; without files as before.
    void setSources(const Engine::Sources &sources);

    // Before the files are read for a collection: notes what they hold now.
    void take();
    // What take() noted, and the installed packages of now, are what the table rests on.
    void keep();

    void look();
    // The answer of the last look(). Of the files, those that came, went or hold something else.
    bool hasInstalledChanged() const { return m_installedChanged; }
    const QStringList &changedFiles() const { return m_changedFiles; }
    bool isOutdated() const { return m_installedChanged || !m_changedFiles.isEmpty(); }

Q_SIGNALS:
    // Something happened, some time ago: look() is worth while.
    void raised();

private:
    // Files that hold something, with their digests.
    using Contents = QMap<QString, QByteArray>;

    static Contents read(const QList<Engine::Sources::File> &files);
    static QStringList differences(const Contents &one, const Contents &other);
    QByteArray databaseState() const;
    void watch();

    std::function<bool()> m_ask;
    Engine::Sources m_sources;
    std::unique_ptr<QFileSystemWatcher> m_watcher; // null where the system has none left
    QHash<QString, ino_t> m_inodes;                // of what is watched
    QTimer m_pause;
    Contents m_taken, m_kept;
    QByteArray m_databaseState; // when it was asked last
    bool m_installedChanged = false;
    QStringList m_changedFiles;
};
