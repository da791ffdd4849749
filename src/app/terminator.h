// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

// Turns SIGTERM and SIGHUP into the signal terminated(), on the GUI thread and from the event loop,
// so that the program ends as when the user quits. One at a time.
class Terminator : public QObject
{
    Q_OBJECT

public:
    Terminator();
    ~Terminator() override;

    // While one lives, the other signals that would end the process are treated in the same way. Faults and
    // SIGABRT are left out, and so are SIGTSTP, SIGTTIN and SIGTTOU: a terminal's job is stopped and continued as
    // a whole, scriptlets included, which loses nothing. One at a time, on any thread.
    class Hold
    {
    public:
        Hold();
        Hold(const Hold &) = delete;
        Hold &operator=(const Hold &) = delete;
        ~Hold();
    };

Q_SIGNALS:
    void terminated();

private:
    void read();

    int m_pipe[2] = {-1, -1};
};
