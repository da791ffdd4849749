// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "repo/yumconfio.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <filesystem>

// A system root with configuration files, and a reader on it.
class ConfigRoot
{
public:
    ConfigRoot() : io(requests, used)
    {
        qputenv("VOKROOT", dir.path().toLocal8Bit());
        put(mainFile(), "[main]\ngpgcheck=1\n");
        QDir(dir.path()).mkpath(QStringLiteral("etc/yum.repos.d"));
    }
    ~ConfigRoot()
    {
        qunsetenv("VOKROOT");
        std::error_code ignored; // names that are no text are beyond QTemporaryDir
        std::filesystem::remove_all(dir.path().toStdString(), ignored);
    }

    static QString mainFile() { return QStringLiteral("/etc/yum.conf"); }
    static QString repo(const QString &name)
    {
        return QStringLiteral("/etc/yum.repos.d/%1.repo").arg(name);
    }
    QString real(const QString &path) const { return dir.path() + path; }

    void put(const QString &path, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(real(path)).path());
        QFile file(real(path));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    }
    QByteArray get(const QString &path) const
    {
        QFile file(real(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    bool has(const QString &path) const
    {
        return QFileInfo(real(path)).isSymLink() || QFileInfo::exists(real(path));
    }
    // The repository of that identifier; it must be there.
    Repo::Entry &entry(const QString &id)
    {
        for (Repo::Entry &each : io.repos) {
            if (each.id == id)
                return each;
        }
        qFatal("no repository %s", qPrintable(id));
    }

    QTemporaryDir dir;
    QList<YumRepoEnabled> requests;
    QHash<QString, bool> used;
    YumConfIO io;
};

// Presses a button of each message box that comes up, the last one of all further ones, and keeps
// what the boxes said.
class Answer : public QTimer
{
public:
    explicit Answer(const QList<int> &buttons) : m_buttons(buttons)
    {
        callOnTimeout([this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            said += box->detailedText().isEmpty() ? box->text() : box->detailedText();
            auto *named = box->findChild<QAbstractButton *>(
                QStringLiteral("button%1").arg(m_buttons.first()));
            if (m_buttons.size() > 1)
                m_buttons.removeFirst();
            named ? named->click() : box->buttons().constFirst()->click();
        });
        start(1);
    }
    explicit Answer(int button) : Answer(QList<int>{button}) {}

    QStringList said;

private:
    QList<int> m_buttons;
};
