#include "execute.h"

#include "invoker.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <cerrno>
#include <csignal>
#include <cstring>
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
        QMessageBox::critical(parent, ExecuteTexts::tr("Help"),
                              ExecuteTexts::tr("fork() failed; errno = %1 (%2)")
                                  .arg(error)
                                  .arg(QString::fromLocal8Bit(strerror(error))),
                              QMessageBox::Ok);
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
