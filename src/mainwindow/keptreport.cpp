// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/keptreport.h"

#include "repo/rootpath.h"
#include "repo/wholefile.h"

#include <QFile>
#include <QSaveFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString directory = QStringLiteral("/var/lib/vok");
const QString file = directory + QStringLiteral("/report.txt");

void write(const QString &text)
{
    mkdir(RootPath::locate(directory).constData(), 0755);
    QSaveFile kept(QFile::decodeName(RootPath::locate(file)));
    if (!kept.open(QIODevice::WriteOnly) ||
        !kept.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return;
    kept.write(text.toUtf8());
    kept.commit();
}

} // namespace

QString KeptReport::text()
{
    QByteArray bytes;
    return WholeFile::read(RootPath::locate(file), bytes) ? QString::fromUtf8(bytes) : QString();
}

void KeptReport::add(const QString &text)
{
    const QString before = KeptReport::text();
    if (!before.contains(text))
        write(before.isEmpty() ? text : before + u'\n' + text);
}

void KeptReport::remove(const QString &text)
{
    const QString rest = KeptReport::text().remove(text).trimmed();
    if (rest.isEmpty())
        remove();
    else
        write(rest);
}

void KeptReport::remove()
{
    unlink(RootPath::locate(file).constData());
}
