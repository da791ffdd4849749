// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Failures of a write, produced for real: the process killed at every system call of it, a full
// file system, a read-only one. Run by itself with arguments it is the process to which that
// happens.

#include "configroot.h"
#include "rows.h"

#include <QProcess>
#include <QTest>

#include <csignal>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString suffix = u".vok-orig"_s;

QHash<QString, QByteArray> oldFiles()
{
    return {{ConfigRoot::mainFile(), "[main]\n# old\n\n[inmain]\nx=1\n"},
            {ConfigRoot::repo(u"a"_s), "# lost\n[a]\nname=old\n"},
            {ConfigRoot::repo(u"b"_s), "[b]\nname=old\n[moving]\nname=old\n"},
            {ConfigRoot::repo(u"gone"_s), "[gone]\n"}};
}

QHash<QString, QByteArray> newFiles()
{
    return {{ConfigRoot::mainFile(), "[main]\n# old\n\n[inmain]\nname=new\nx=1\n"},
            {ConfigRoot::repo(u"a"_s), "[a]\nname=new\n"},
            {ConfigRoot::repo(u"b"_s), "[b]\nname=new\n"},
            {ConfigRoot::repo(u"c"_s), "[moving]\nname=new\n"}};
}

void putOld(const ConfigRoot &root)
{
    QDir(root.real(u"/etc"_s)).removeRecursively();
    const auto files = oldFiles();
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        root.put(file.key(), file.value());
    chmod(root.real(root.repo(u"a"_s)).toLocal8Bit(), 0640);
}

bool edit(YumConfIO &io)
{
    if (!io.read(nullptr))
        return false;
    io.repos.removeIf([](const Repo::Entry &entry) { return entry.id == u"gone"_s; });
    for (Repo::Entry &entry : io.repos) {
        entry.name = u"new"_s;
        if (entry.id == u"moving"_s)
            entry.file = ConfigRoot::repo(u"c"_s);
    }
    return true;
}

QStringList repoFiles(const ConfigRoot &root)
{
    return QDir(root.real(u"/etc/yum.repos.d"_s)).entryList({u"*.repo"_s}, QDir::Files);
}

bool holds(const ConfigRoot &root, const QHash<QString, QByteArray> &files)
{
    return std::all_of(files.keyBegin(), files.keyEnd(),
                       [&](const QString &path) { return root.get(path) == files[path]; });
}

// What is wrong with the files of a write that was interrupted; empty when nothing is.
QString broken(const ConfigRoot &root)
{
    const auto before = oldFiles(), after = newFiles();
    QByteArray everything;
    for (const QString &path : QStringList(before.keys() + after.keys())) {
        const QByteArray now = root.get(path), kept = root.get(path + suffix);
        const bool there = root.has(path), keptThere = root.has(path + suffix);
        everything += now;
        if (there && now != before.value(path, "\1") && now != after.value(path, "\1"))
            return path + u" is neither old nor new"_s;
        if (before.contains(path) && (!there || now != before[path]) && kept != before[path])
            return path + u" is not kept"_s;
        if (keptThere && !before.contains(path))
            return path + u" is kept, but is new"_s;
    }
    if (!everything.contains("[moving]"))
        return u"a repository is in no file"_s;
    struct stat status;
    for (const QString &path : {root.repo(u"a"_s), root.repo(u"a"_s) + suffix}) {
        if (stat(root.real(path).toLocal8Bit(), &status) == 0 && (status.st_mode & 0777) != 0640)
            return path + u" has other rights"_s;
    }
    for (const QString &name : repoFiles(root)) {
        const QString path = u"/etc/yum.repos.d/"_s + name;
        if (!before.contains(path) && !after.contains(path))
            return path + u" is left over"_s;
    }
    return QString();
}

// Writes in a process that is killed at the given system call, counted from the first of the
// write, before or after it ran. False when the write ended before.
bool writeAndKill(YumConfIO &io, int stops)
{
    const pid_t pid = fork();
    if (pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        _exit(io.write(nullptr) ? 0 : 1);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    for (int stop = 0; stop < stops && WIFSTOPPED(status); ++stop) {
        ptrace(PTRACE_SYSCALL, pid, nullptr, nullptr);
        waitpid(pid, &status, 0);
    }
    if (!WIFSTOPPED(status))
        return false;
    kill(pid, SIGKILL);
    waitpid(pid, &status, 0);
    return WIFSIGNALED(status);
}

// In a mount namespace of its own: writes to a file system on which it cannot end well.
int failToWrite(const QString &how)
{
    ConfigRoot root;
    const QByteArray directory = root.real(u"/etc/yum.repos.d"_s).toLocal8Bit();
    if (how == u"full"_s && mount("vok", directory, "tmpfs", 0, "size=256k") != 0)
        return 77;
    putOld(root);
    const QString filler = u"/etc/yum.repos.d/filler"_s;
    if (how == u"full"_s) {
        mount("vok", directory, "tmpfs", MS_REMOUNT, "size=256k");
        QFile file(root.real(filler));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return 2;
        while (file.write(QByteArray(512, 'x')) == 512) {
        }
    }
    if (!edit(root.io))
        return 3;
    if (how == u"readonly"_s &&
        (mount(directory, directory, nullptr, MS_BIND, nullptr) != 0 ||
         mount(nullptr, directory, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) != 0))
        return 77;

    const auto unchanged = [&root] {
        const QStringList names = QDir(root.real(u"/etc/yum.repos.d"_s)).entryList(QDir::Files);
        return holds(root, oldFiles()) && !root.has(root.mainFile() + suffix) &&
               names.filter(u".vok-"_s).isEmpty() && repoFiles(root).size() == 3;
    };
    Answer answer(0);
    const bool written = root.io.write(nullptr);
    const QString code = QString::number(how == u"full"_s ? ENOSPC : EROFS);
    const bool told = answer.said.size() == 1 &&
                      answer.said[0].startsWith(
                          u"Unable to write repository configuration file %1; errno = %2 ("_s.arg(
                              root.repo(u"c"_s), code));
    if (written || !told || !unchanged()) {
        qWarning() << written << answer.said << unchanged();
        return 4;
    }

    // Once there is room, what was edited is still at hand.
    if (how == u"full"_s)
        QFile::remove(root.real(filler));
    else
        umount2(directory, MNT_DETACH);
    const bool again = root.io.write(nullptr) && broken(root).isEmpty() && holds(root, newFiles());
    umount2(directory, MNT_DETACH);
    return again ? 0 : 5;
}

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedAtAnySystemCall()
    {
        ConfigRoot root;
        int stops = 0;
        for (;; ++stops) {
            putOld(root);
            QVERIFY(edit(root.io));
            const bool killed = writeAndKill(root.io, stops);
            const QString fault = broken(root);
            QVERIFY2(fault.isEmpty(), qPrintable(u"%1: %2"_s.arg(stops).arg(fault)));
            if (!killed)
                break;
            if (stops % 5 != 0)
                continue;
            // What the killed one left behind is no hindrance.
            Answer yes(0);
            QVERIFY(edit(root.io) && root.io.write(nullptr) && holds(root, newFiles()));
            for (const QString &name : QDir(root.real(u"/etc/yum.repos.d"_s)).entryList())
                QVERIFY2(!name.endsWith(u".vok-new"_s), qPrintable(name));
        }
        QVERIFY(stops > 100); // twice the calls that writing four files takes at least
        QVERIFY(holds(root, newFiles()));
    }

    void fileSystems_data()
    {
        QTest::addColumn<QString>("how");
        row("full", "full");
        row("read-only", "readonly");
    }

    void fileSystems()
    {
        QFETCH(QString, how);
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(u"unshare"_s,
                      {u"--map-root-user"_s, u"--mount"_s, QCoreApplication::applicationFilePath(),
                       u"--fail-to-write"_s, how});
        QVERIFY(process.waitForFinished(60000));
        const QByteArray output = process.readAll();
        if (process.exitCode() == 77 || output.contains("unshare failed"))
            QSKIP("no mount namespaces here");
        QVERIFY2(process.exitCode() == 0, output + QByteArray::number(process.exitCode()));
    }
};

int main(int argc, char **argv)
{
    // What is lost when a process is killed does not depend on the disk, and each sync of one takes
    // its time.
    if (QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    QApplication app(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--fail-to-write") == 0)
        return failToWrite(QString::fromLocal8Bit(argv[2]));
    TestFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_faults.moc"
