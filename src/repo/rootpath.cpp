// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rootpath.h"

#include "app/sysroot.h"

#include <QFile>
#include <QList>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <unistd.h>

namespace {

constexpr int linkLimit = 40; // the kernel's own
constexpr char16_t escaped = 0xdc00;

// The length of the UTF-8 sequence at the head of the bytes, 0 when there is none.
qsizetype sequenceLength(QByteArrayView bytes)
{
    for (qsizetype length = 1; length <= std::min<qsizetype>(4, bytes.size()); ++length) {
        if (bytes.first(length).isValidUtf8())
            return length;
    }
    return 0;
}

bool isEscape(QStringView text, qsizetype i)
{
    return (text[i].unicode() & 0xff80) == (escaped | 0x80) &&
           (i == 0 || !text[i - 1].isHighSurrogate());
}

QByteArray walk(const QString &path, bool followLast)
{
    const QByteArray root = QFile::encodeName(SysRoot::prefix());
    QByteArray done = root;
    QList<QByteArray> ahead = RootPath::toBytes(path).split('/');
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

QString RootPath::toText(const QByteArray &name)
{
    QString text;
    for (QByteArrayView rest = name; !rest.isEmpty();) {
        const qsizetype length = sequenceLength(rest);
        if (length > 0)
            text += QString::fromUtf8(rest.first(length));
        else
            text += QChar(char16_t(escaped | uchar(rest.front())));
        rest = rest.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

QByteArray RootPath::toBytes(const QString &text)
{
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isEscape(text, i))
            continue;
        bytes += QStringView(text).sliced(start, i - start).toUtf8();
        bytes += char(text[i].unicode() & 0xff);
        start = i + 1;
    }
    return bytes + QStringView(text).sliced(start).toUtf8();
}

QString RootPath::shown(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isEscape(text, i))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

QByteArray RootPath::locate(const QString &path)
{
    return SysRoot::prefix().isEmpty() ? toBytes(path) : walk(path, true);
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
