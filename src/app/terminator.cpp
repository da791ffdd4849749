// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminator.h"

#include <QSocketNotifier>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <unistd.h>

namespace {

constexpr int endingByTerminator[] = {SIGTERM, SIGHUP};
// Faults, and signals that do not end a process or that cannot be caught.
constexpr int leftAlone[] = {SIGKILL, SIGSTOP, SIGILL,  SIGTRAP, SIGABRT, SIGBUS, SIGFPE,  SIGSEGV,
                             SIGCHLD, SIGCONT, SIGTSTP, SIGTTIN, SIGTTOU, SIGURG, SIGWINCH};

std::atomic<int> writeEnd = -1;
std::atomic<pid_t> process;
sigset_t held;

void setAction(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

void handle(int signal)
{
    const int error = errno;
    if (getpid() == process) {
        (void) !write(writeEnd, "", 1);
    } else { // a child between fork and exec, or one that never calls exec
        setAction(signal, SIG_DFL);
        raise(signal);
    }
    errno = error;
}

bool hasDefaultAction(int signal)
{
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && !(action.sa_flags & SA_SIGINFO) &&
           action.sa_handler == SIG_DFL;
}

} // namespace

// Without a pipe the signals keep their default action. What the caller of the program ignores stays
// ignored, as nohup wants it.
Terminator::Terminator()
{
    if (pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) == -1)
        return;
    auto *notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Terminator::read);
    process = getpid();
    writeEnd = m_pipe[1];
    for (const int signal : endingByTerminator) {
        if (hasDefaultAction(signal))
            setAction(signal, handle);
    }
}

Terminator::~Terminator()
{
    if (writeEnd == -1)
        return;
    for (const int signal : endingByTerminator)
        setAction(signal, SIG_DFL);
    writeEnd = -1;
    close(m_pipe[0]);
    close(m_pipe[1]);
}

void Terminator::read()
{
    char bytes[64];
    while (::read(m_pipe[0], bytes, sizeof bytes) > 0) {
    }
    Q_EMIT terminated();
}

// A handler, not SIG_IGN and no mask: children inherit those.
Terminator::Hold::Hold()
{
    process = getpid();
    sigemptyset(&held);
    for (int signal = 1; signal <= SIGRTMAX; ++signal) {
        const bool isLibraryOwn = signal >= __SIGRTMIN && signal < SIGRTMIN;
        if (isLibraryOwn ||
            std::find(std::begin(leftAlone), std::end(leftAlone), signal) != std::end(leftAlone) ||
            !hasDefaultAction(signal))
            continue;
        sigaddset(&held, signal);
        setAction(signal, handle);
    }
}

Terminator::Hold::~Hold()
{
    for (int signal = 1; signal <= SIGRTMAX; ++signal) {
        if (sigismember(&held, signal) == 1)
            setAction(signal, SIG_DFL);
    }
}
