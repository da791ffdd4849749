// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The reader and writer of the configuration files: whatever a file holds, reading and writing it
// ends, and what was written once is read and written again without a byte changed.

#include "repo/yumconfio.h"
#include "widgets/messagebox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

// In place of the boxes: every question is answered by its first button, "Yes".
int showMessageBox(QMessageBox::Icon, QWidget *, const QString &, const QString &, const QString &,
                   const QString &, const QString &, int, int)
{
    return 0;
}

namespace {

const QString mainPath = QStringLiteral("/etc/yum.conf");
const QString repoPath = QStringLiteral("/etc/yum.repos.d/x.repo");

QTemporaryDir &root()
{
    static QTemporaryDir dir(QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                                 ? QStringLiteral("/dev/shm/vok-fuzz-XXXXXX")
                                 : QString());
    return dir;
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(root().path() + path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        abort();
}

QByteArray get(const QString &path)
{
    QFile file(root().path() + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    qputenv("VOKROOT", root().path().toLocal8Bit());
    QDir(root().path()).mkpath(QStringLiteral("etc/yum.repos.d"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), qsizetype(size));
    const bool isMain = input.startsWith("[main]");
    put(mainPath, isMain ? input : QByteArray("[main]\n"));
    put(repoPath, isMain ? QByteArray("[x]\nenabled=0\n") : input);

    const QList<YumRepoEnabled> requests = {{false, QStringLiteral("a*")}};
    QHash<QString, bool> used;
    YumConfIO io(requests, used);
    if (!io.read(nullptr))
        return 0;
    if (!io.write(nullptr))
        abort();
    const qsizetype count = io.repos.size();
    const QByteArray main = get(mainPath), repo = get(repoPath);
    if (!io.read(nullptr) || io.repos.size() != count || !io.write(nullptr))
        abort();
    if (get(mainPath) != main || get(repoPath) != repo)
        abort();
    return 0;
}
