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

Q_SIGNALS:
    void terminated();

private:
    void read();

    int m_pipe[2] = {-1, -1};
};
