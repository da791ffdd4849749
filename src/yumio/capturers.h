// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QSemaphore>

class QSocketNotifier;
class YumIO;

// Reads the two pipes of a capture into the engine's log. Lives on the GUI thread, which never
// waits for a writer: descriptors are non-blocking, and one notification reads a bounded amount.
class YumIOCapturersMinion : public QObject
{
    Q_OBJECT

public:
    // Takes over both read ends.
    YumIOCapturersMinion(YumIO *engine, int stdoutFd, int stderrFd);
    ~YumIOCapturersMinion() override;

    // Called on the capturing thread: begin reading; stop reading, with all that was written
    // before the call in the log when it returns.
    void activate();
    void deactivate();
    // What the event loop of the GUI thread does for the minions, once, without it. GUI thread.
    static void serveAll();

public Q_SLOTS:
    void initialize();
    void finalize();
    void readStdout();
    void readStderr();

private:
    struct Stream
    {
        int fd;
        void (YumIO::*write)(const QString &text);
        QSocketNotifier *notifier = nullptr;
        QByteArray begun = {}; // the bytes of a character that the next read completes
    };

    void read(Stream &stream, qsizetype limit);
    void drain(Stream &stream);

    QPointer<YumIO> m_engine;
    bool m_initialized = false;
    Stream m_stdout;
    Stream m_stderr;
    QSemaphore m_semaphore{1};
};

// Sends the process's descriptors 1 and 2 into the engine's log for as long as it lives. A process
// that keeps the write end open afterwards does not hold the end of the capture up.
class YumIOCapturers : public QObject
{
    Q_OBJECT

public:
    explicit YumIOCapturers(YumIO *engine);
    ~YumIOCapturers() override;

private:
    bool openPipes();
    void divertMessages();
    bool redirect();
    bool restore();

    YumIO *m_engine;
    int m_saved[2] = {-1, -1};
    int m_readEnds[2] = {-1, -1};
    int m_writeEnds[2] = {-1, -1};
    bool m_redirected[2] = {false, false};
    QtMessageHandler m_outerHandler = nullptr;
    bool m_diverting = false;
    YumIOCapturersMinion *m_minion = nullptr;
};

// Installs a capture in `slot` for as long as it lives; nests.
class YumIOCapturersUser
{
public:
    YumIOCapturersUser(YumIOCapturers *&slot, YumIO *engine);
    YumIOCapturersUser(const YumIOCapturersUser &) = delete;
    YumIOCapturersUser &operator=(const YumIOCapturersUser &) = delete;
    ~YumIOCapturersUser();

private:
    YumIOCapturers *&m_slot;
    YumIOCapturers *m_outer;
};
