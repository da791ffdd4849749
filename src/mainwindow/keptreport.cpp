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

} // namespace

QString KeptReport::text()
{
    QByteArray bytes;
    return WholeFile::read(RootPath::locate(file), bytes) ? QString::fromUtf8(bytes) : QString();
}

void KeptReport::add(const QString &text)
{
    const QString before = KeptReport::text();
    mkdir(RootPath::locate(directory).constData(), 0755);
    QSaveFile kept(QFile::decodeName(RootPath::locate(file)));
    if (!kept.open(QIODevice::WriteOnly) ||
        !kept.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return;
    kept.write((before.isEmpty() ? text : before + u'\n' + text).toUtf8());
    kept.commit();
}

void KeptReport::remove()
{
    unlink(RootPath::locate(file).constData());
}
