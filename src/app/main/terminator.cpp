// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminator.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

int writeEnd = -1;

void handle(int)
{
    const int error = errno;
    (void) !write(writeEnd, "", 1);
    errno = error;
}

void setHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGHUP, &action, nullptr);
}

} // namespace

// Without a pipe the signals keep their default action.
Terminator::Terminator()
{
    if (pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) == -1)
        return;
    auto *notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Terminator::read);
    writeEnd = m_pipe[1];
    setHandler(handle);
}

Terminator::~Terminator()
{
    if (writeEnd == -1)
        return;
    setHandler(SIG_DFL);
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
