// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "yumconfio.h"

#include "rootpath.h"
#include "widgets/messagebox.h"
#include "yumio/passwordsintext.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <sys/stat.h>

namespace {

bool exists(const QString &path)
{
    struct stat status;
    return RootPath::status(path, status);
}

} // namespace

YumConfIO::YumConfIO(const QList<YumRepoEnabled> &requests, QHash<QString, bool> &used)
    : repoEnabled(requests), reposUsed(used)
{
}

QString YumConfIO::fileName()
{
    const QString first = QStringLiteral("/etc/yum/yum.conf");
    if (exists(first))
        return first;
    const QString second = QStringLiteral("/etc/yum.conf");
    const QString dnf = QStringLiteral("/etc/dnf/dnf.conf");
    return !exists(second) && exists(dnf) ? dnf : second;
}

bool YumConfIO::isOption(const QString &line, const QString &option, QString &value)
{
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };

    const auto delimiter =
        std::find_if(line.cbegin(), line.cend(), [](QChar c) { return c == u':' || c == u'='; });
    if (delimiter == line.cend())
        return false;
    auto end = delimiter;
    while (end != line.cbegin() && isBlank(*(end - 1)))
        --end;
    if (QStringView(line.cbegin(), end) != option)
        return false;
    value =
        QStringView(std::find_if_not(delimiter + 1, line.cend(), isBlank), line.cend()).toString();
    return true;
}

bool YumConfIO::filePositionLessThan(const Repo::Entry &a, const Repo::Entry &b)
{
    return a.file != b.file ? a.file < b.file : a.position < b.position;
}

QStringList YumConfIO::repoFiles(const QString &directory)
{
    QStringList files;
    DIR *dir = opendir(RootPath::locate(directory).constData());
    if (!dir)
        return files;
    while (const dirent *item = readdir(dir)) {
        const QByteArray name(item->d_name);
        if (name.endsWith(".repo"))
            files += directory + QLatin1Char('/') + RootPath::toText(name);
    }
    closedir(dir);
    return files;
}

bool YumConfIO::carriesPassword(const Repo::Entry &entry)
{
    return hasOptionPasswords(entry.baseurl) || hasOptionPasswords(entry.mirrorlist) ||
           hasOptionPasswords(entry.otherOptions);
}

QStringList YumConfIO::maskedPasswords(const Repo::Entry &entry, const Repo::Entry &before,
                                       QChar mask)
{
    const auto masked = [mask](const Repo::Entry &one) {
        QStringList found = optionPasswords(one.baseurl) + optionPasswords(one.mirrorlist) +
                            optionPasswords(one.otherOptions);
        found.removeIf([mask](const QString &text) { return !isOnlyMask(text, mask); });
        return found;
    };
    QStringList found = masked(entry);
    if (!found.isEmpty()) {
        for (const QString &old : masked(before))
            found.removeOne(old);
    }
    return found;
}

bool YumConfIO::losesReaders(const QString &path) const
{
    struct stat status;
    return !m_files.value(path).secret && RootPath::status(path, status) &&
           S_ISREG(status.st_mode) && (status.st_mode & S_IROTH);
}

void YumConfIO::error(const QString &message, const QString &more) const
{
    const int code = errno;
    if (m_fault) {
        *m_fault = message;
        return;
    }
    const QString text = tr("%1; errno = %2 (%3).")
                             .arg(maskPasswords(RootPath::shown(message)), QString::number(code),
                                  QString::fromLocal8Bit(strerror(code)));
    showMessageBox(QMessageBox::Critical, m_parent, tr("VOK Repository Editor Error"),
                   more.isEmpty() ? text : text + QStringLiteral("\n\n") + RootPath::shown(more));
}
