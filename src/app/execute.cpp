// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "execute.h"

#include "coredumps.h"
#include "invoker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

// Between fork and execv only async-signal-safe calls are allowed: other threads may have held any
// lock when the process was copied. So all that needs memory is prepared before.

namespace {

class ExecuteTexts
{
    Q_DECLARE_TR_FUNCTIONS(Execute)
};

// Writes one line to standard error without stdio.
class Line
{
public:
    Line &operator<<(const char *text)
    {
        while (*text && m_size < sizeof m_buffer)
            m_buffer[m_size++] = *text++;
        return *this;
    }
    Line &operator<<(unsigned int number)
    {
        char digits[12];
        char *digit = digits + sizeof digits;
        *--digit = '\0';
        do {
            *--digit = char('0' + number % 10);
            number /= 10;
        } while (number);
        return *this << digit;
    }
    ~Line() { (void) !write(STDERR_FILENO, m_buffer, m_size); }

private:
    char m_buffer[1024];
    size_t m_size = 0;
};

[[noreturn]] void fail(const char *what, const char *path, const char *rest)
{
    const int error = errno;
    Line() << what << path << rest << static_cast<unsigned int>(error) << " ("
           << strerrordesc_np(error) << ")\n";
    _exit(1);
}

// The launched program gets the signals as a shell would give them, whatever a job blocks now.
void resetSignals()
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
        sigaction(signal, &action, nullptr);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void run(char **argv, const Invoker &invoker)
{
    resetSignals();
    CoreDumps::allow();
    close_range(STDERR_FILENO + 1, ~0U, 0);
    if (!invoker.become())
        fail("unable to become the invoking user for \"", argv[0], "\"; errno = ");
    execv(argv[0], argv);
    fail("execv(\"", argv[0], "\", ...) failed; errno = ");
}

} // namespace

void Execute::execute(QWidget *parent, char **argv)
{
    const Invoker invoker;
    const pid_t child = fork();
    if (child == -1) {
        const int error = errno;
        QMessageBox box(QMessageBox::Critical, ExecuteTexts::tr("Help"),
                        ExecuteTexts::tr("fork() failed; errno = %1 (%2)")
                            .arg(error)
                            .arg(QString::fromLocal8Bit(strerror(error))),
                        QMessageBox::Ok, parent);
        box.button(QMessageBox::Ok)->setIcon(QIcon()); // like the buttons of all boxes
        box.exec();
        return;
    }
    if (child == 0) {
        const pid_t grandchild = fork();
        if (grandchild == -1)
            fail("second fork() failed", "", "; errno = ");
        if (grandchild == 0)
            run(argv, invoker);
        _exit(0);
    }
    int status;
    while (waitpid(child, &status, 0) == -1 && errno == EINTR) {
    }
}

namespace {

constexpr int askMs = 5000;
constexpr qsizetype askBytes = 4096;

// Reads until the last writer is gone; false when that takes too long.
bool readAll(int descriptor, QByteArray &text)
{
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        pollfd ready = {descriptor, POLLIN, 0};
        const int left = askMs - int(clock.elapsed());
        const int polled = left > 0 ? poll(&ready, 1, left) : 0;
        if (polled == -1 && errno == EINTR)
            continue;
        if (polled <= 0)
            return false;
        char buffer[1024];
        const ssize_t size = read(descriptor, buffer, sizeof buffer);
        if (size <= 0)
            return size == 0;
        text.append(buffer, std::min<qsizetype>(size, askBytes - text.size()));
    }
}

} // namespace

bool Execute::ask(char **argv, QString &said)
{
    const Invoker invoker;
    int ends[2];
    const auto failed = [&said](const char *call) {
        const int error = errno;
        said = ExecuteTexts::tr("%1() failed; errno = %2 (%3)")
                   .arg(QLatin1String(call))
                   .arg(error)
                   .arg(QString::fromLocal8Bit(strerror(error)));
        return false;
    };
    if (pipe2(ends, O_CLOEXEC) == -1)
        return failed("pipe");
    const pid_t child = fork();
    if (child == -1) {
        close(ends[0]);
        close(ends[1]);
        return failed("fork");
    }
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        dup2(ends[1], STDERR_FILENO);
        run(argv, invoker);
    }
    close(ends[1]);
    QByteArray text;
    const bool ended = readAll(ends[0], text);
    close(ends[0]);
    if (!ended)
        kill(child, SIGKILL);
    int status = 0;
    pid_t waited;
    while ((waited = waitpid(child, &status, 0)) == -1 && errno == EINTR) {
    }
    said = ended ? QString::fromLocal8Bit(text).trimmed()
                 : ExecuteTexts::tr("%1 does not answer.").arg(QString::fromLocal8Bit(argv[0]));
    return ended && waited == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
