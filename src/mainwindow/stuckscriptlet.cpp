// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/stuckscriptlet.h"

#include "app/harmless.h"
#include "widgets/messagebox.h"
#include "yumio/yumio.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Whether a process is a child of this one that started then, in clock ticks since boot.
bool isOurs(pid_t pid, quint64 start)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray stat = file.readAll();
    // The second field, the name in brackets, may hold blanks and brackets.
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    constexpr qsizetype parentField = 1, startField = 19;
    return fields.size() > startField && fields[parentField].toInt() == getpid() &&
           fields[startField].toULongLong() == start;
}

// The error, 0 for none. The descriptor keeps the signal from another process that gets the same id meanwhile.
int terminate(pid_t pid, quint64 start)
{
    const int process = int(syscall(SYS_pidfd_open, pid, 0));
    if (process == -1)
        return errno;
    int cause = ESRCH;
    if (isOurs(pid, start))
        cause = syscall(SYS_pidfd_send_signal, process, SIGTERM, nullptr, 0) == 0 ? 0 : errno;
    close(process);
    return cause;
}

} // namespace

StuckScriptlet::StuckScriptlet(YumIO *engine, QWidget *window)
    : QObject(window), m_engine(engine), m_window(window)
{
    connect(engine, &YumIO::stuckScriptlet, this, &StuckScriptlet::report);
}

void StuckScriptlet::report(const QString &package, qint64 pid, quint64 start,
                            const QString &command)
{
    if (package.isEmpty()) {
        if (m_box)
            m_box->reject();
        return;
    }
    if (m_box)
        return;
    const QString text =
        tr("A scriptlet of the package %1 has been running for a long time, and rpm waits for "
           "it.\n\n"
           "Process %2: %3\n\n"
           "VOK can send SIGTERM to this process, and to no other. rpm then reports that the "
           "scriptlet failed, and what the scriptlet was to do may be done in part; if it runs "
           "before the installation or removal, the package is not installed or removed. Other "
           "processes that the scriptlet started are not ended.\n\n"
           "If it may still be working, keep waiting.")
            .arg(harmless(package))
            .arg(pid)
            .arg(harmless(command));
    m_box = openMessageBox(
        QMessageBox::Warning, m_window, tr("VOK Scriptlet"), text, tr("&Keep Waiting"),
        tr("&End the Scriptlet"), 0, 0,
        [this, pid, start](int answer) {
            if (answer == 1)
                end(pid_t(pid), start);
        },
        Qt::NonModal);
}

void StuckScriptlet::end(pid_t pid, quint64 start)
{
    const int cause = terminate(pid, start);
    if (cause == ESRCH) // it has ended by itself
        return;
    if (cause == 0) {
        m_engine->log(Log::Kind::Action, 0, tr("Sent SIGTERM to process %1").arg(pid));
        return;
    }
    openMessageBox(
        QMessageBox::Critical, m_window, tr("VOK Scriptlet"),
        tr("Process %1 cannot be ended: errno = %2 (%3)")
            .arg(pid)
            .arg(cause)
            .arg(QString::fromLocal8Bit(std::strerror(cause))),
        QString(), QString(), 0, 0, [](int) {}, Qt::NonModal);
}
