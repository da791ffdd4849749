#include "rootpath.h"

#include "app/sysroot.h"

#include <QFile>
#include <QList>

#include <cerrno>
#include <climits>
#include <unistd.h>

namespace {

constexpr int linkLimit = 40; // the kernel's own

QByteArray walk(const QString &path, bool followLast)
{
    const QByteArray root = QFile::encodeName(SysRoot::prefix());
    QByteArray done = root;
    QList<QByteArray> ahead = QFile::encodeName(path).split('/');
    int links = 0;

    while (!ahead.isEmpty()) {
        const QByteArray part = ahead.takeFirst();
        if (part.isEmpty() || part == ".")
            continue;
        if (part == "..") {
            if (done.size() > root.size())
                done.truncate(done.lastIndexOf('/'));
            continue;
        }
        const QByteArray candidate = done + '/' + part;
        char link[PATH_MAX];
        ssize_t length = -1;
        if (followLast || !ahead.isEmpty())
            length = readlink(candidate.constData(), link, sizeof link);
        if (length < 0) {
            done = candidate;
            continue;
        }
        if (++links > linkLimit) {
            errno = ELOOP;
            return {};
        }
        const QByteArray leadsTo(link, length);
        if (leadsTo.startsWith('/'))
            done = root;
        ahead = leadsTo.split('/') + ahead;
    }
    return done.isEmpty() ? QByteArray("/") : done;
}

} // namespace

QByteArray RootPath::locate(const QString &path)
{
    return SysRoot::prefix().isEmpty() ? QFile::encodeName(path) : walk(path, true);
}

bool RootPath::status(const QString &path, struct stat &status)
{
    const QByteArray located = locate(path);
    return !located.isEmpty() && stat(located.constData(), &status) == 0;
}

QByteArray RootPath::target(const QString &path)
{
    return walk(path, true);
}

QByteArray RootPath::entry(const QString &path)
{
    return walk(path, false);
}
