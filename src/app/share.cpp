// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "share.h"

#include "app/harmless.h"
#include "app/version.h"

#include <QCoreApplication>
#include <QFile>
#include <QList>

#include <algorithm>
#include <climits>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>

namespace {

class ShareTexts
{
    Q_DECLARE_TR_FUNCTIONS(Share)
};

constexpr int linkLimit = 40; // the kernel's own

QString userName(uid_t user)
{
    const passwd *entry = getpwuid(user);
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(user);
}

bool isInUserNamespace()
{
    QFile map(QStringLiteral("/proc/self/uid_map"));
    return map.open(QIODevice::ReadOnly) &&
           map.readLine().simplified() != "0 0 4294967295"; // the initial one
}

class Judge
{
public:
    explicit Judge(uid_t programOwner) : m_programOwner(programOwner) {}

    // Why a path is in the reach of others, on the whole way from the root directory on.
    QString way(const QByteArray &path)
    {
        QByteArray done;
        QList<QByteArray> ahead = path.split('/');
        while (!ahead.isEmpty()) {
            const QByteArray part = ahead.takeFirst();
            if (part == "..")
                done.truncate(std::max<qsizetype>(done.lastIndexOf('/'), 0));
            if (part == ".." || part == "." || (part.isEmpty() && !done.isEmpty()))
                continue;
            const QByteArray here = part.isEmpty() ? done : done + '/' + part;
            QByteArray leadsTo;
            const QString reason = one(here.isEmpty() ? QByteArray("/") : here, leadsTo);
            if (!reason.isEmpty())
                return reason;
            if (leadsTo.isEmpty()) {
                done = here;
                continue;
            }
            if (leadsTo.startsWith('/'))
                done.clear();
            ahead = leadsTo.split('/') + ahead;
        }
        return {};
    }

    // The same of all that is below a directory.
    QString below(const QByteArray &directory)
    {
        std::error_code error;
        std::filesystem::recursive_directory_iterator entry(directory.toStdString(), error), end;
        for (; !error && entry != end; entry.increment(error)) {
            const QByteArray path = QByteArray::fromStdString(entry->path().string());
            QByteArray leadsTo;
            QString reason = one(path, leadsTo);
            if (reason.isEmpty() && !leadsTo.isEmpty())
                reason = way(path);
            if (!reason.isEmpty())
                return reason;
        }
        return {};
    }

private:
    // What is not there is in nobody's reach where the directory is not.
    QString one(const QByteArray &path, QByteArray &leadsTo)
    {
        struct stat status;
        if (lstat(path.constData(), &status) != 0)
            return {};
        const QString name = harmlessLine(QFile::decodeName(path));
        const QString owner = userName(status.st_uid);
        if (status.st_uid != 0 && status.st_uid != m_programOwner) {
            return ShareTexts::
                tr("%1 belongs to %2. As root, VOK loads its scripts only from where nobody but "
                   "root, or the owner of the program, can change them. Change the owner, or "
                   "unset VOKSHARE.")
                    .arg(name, owner);
        }
        if (S_ISLNK(status.st_mode)) {
            char target[PATH_MAX];
            const ssize_t length = readlink(path.constData(), target, sizeof target);
            if (length > 0 && ++m_links <= linkLimit)
                leadsTo = QByteArray(target, length);
            return {};
        }
        if (!isWrittenByOthers(path, status))
            return {};
        return ShareTexts::tr(
                   "%1, which belongs to %2, can be changed by other users. As root, VOK loads its "
                   "scripts only from where nobody but root, or the owner of the program, can "
                   "change them. Take the right to write from the others (chmod go-w), or unset "
                   "VOKSHARE.")
            .arg(name, owner);
    }

    static bool isWrittenByOthers(const QByteArray &path, const struct stat &status)
    {
        if (S_ISDIR(status.st_mode) && status.st_mode & S_ISVTX)
            return false;
        if (status.st_mode & S_IWOTH)
            return true;
        if (!(status.st_mode & S_IWGRP))
            return false;
        // With an access list these bits are what the list may give to anybody.
        const passwd *owner = getpwuid(status.st_uid);
        return !owner || owner->pw_gid != status.st_gid ||
               lgetxattr(path.constData(), "system.posix_acl_access", nullptr, 0) > 0;
    }

    uid_t m_programOwner;
    int m_links = 0;
};

} // namespace

QString Share::absolute(const QString &relative)
{
    const QString dir = qEnvironmentVariable("VOKSHARE", QStringLiteral(VOK_SHARE));
    return QStringLiteral("%1/%2").arg(dir, relative);
}

QString Share::refusal()
{
    if (geteuid() != 0 || isInUserNamespace())
        return {};
    struct stat program;
    const uid_t owner = stat("/proc/self/exe", &program) == 0 ? program.st_uid : 0;
    QByteArray directory = QFile::encodeName(absolute(QString()));
    directory.chop(1);
    if (!directory.startsWith('/')) {
        char current[PATH_MAX];
        if (!getcwd(current, sizeof current))
            return {};
        directory.prepend(QByteArray(current) + '/');
    }
    return refusal(directory, owner);
}

QString Share::refusal(const QByteArray &directory, uid_t programOwner)
{
    Judge judge(programOwner);
    for (const char *part :
         {"python", "translations", "icons", "pixmaps", "webbrowser", "mimeviewer"}) {
        const QByteArray path = directory + '/' + part;
        QString reason = judge.way(path);
        if (reason.isEmpty())
            reason = judge.below(path);
        if (!reason.isEmpty())
            return reason;
    }
    return {};
}
