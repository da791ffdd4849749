// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "mainwindow/mainwindow.h"

// Brackets a long operation: the controls are disabled while it lives. Empty when another operation
// is running already; then nothing may be started. When it ends the window becomes usable again, or
// ends the program if that was asked for meanwhile.
class MainWindow::Job
{
public:
    explicit Job(MainWindow *window);
    Job(const Job &) = delete;
    Job &operator=(const Job &) = delete;
    ~Job();

    explicit operator bool() const { return m_window; }

private:
    MainWindow *m_window;
};
