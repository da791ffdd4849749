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
    ~ConfigRoot() { qunsetenv("VOKROOT"); }

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

// Presses a button of each message box that comes up, and keeps what the boxes said.
class Answer : public QTimer
{
public:
    explicit Answer(int button) : m_button(button)
    {
        callOnTimeout([this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            said += box->detailedText().isEmpty() ? box->text() : box->detailedText();
            auto *named =
                box->findChild<QAbstractButton *>(QStringLiteral("button%1").arg(m_button));
            named ? named->click() : box->buttons().constFirst()->click();
        });
        start(1);
    }

    QStringList said;

private:
    int m_button;
};
