// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "terminator.h"

#include <functional>

// While one lives, neither a signal nor the end of the display ends the process. Qt's xcb plug-in calls exit when
// the X server is gone, its Wayland plug-in calls _exit; the program replaces both by functions that call leave().
// One at a time, on a worker thread.
class Uninterrupted
{
public:
    Uninterrupted();
    Uninterrupted(const Uninterrupted &) = delete;
    Uninterrupted &operator=(const Uninterrupted &) = delete;
    ~Uninterrupted();

    // What a worker needs once there is no display any more. Exists while the worker runs; GUI thread.
    //
    // `abandon` is called first, on any thread: nobody answers questions any more. `serve` is called on the GUI thread,
    // which serves no events then, again and again until it returns true, when the worker has ended; it must not touch
    // the display.
    class Server
    {
    public:
        Server(std::function<void()> abandon, std::function<bool()> serve);
        Server(const Server &) = delete;
        Server &operator=(const Server &) = delete;
        ~Server();
    };

    // How a process may end: with the exit handlers, or at once because other threads are still running.
    enum class Leave { Orderly, AtOnce };
    // To be called before the process ends. Returns when no uninterrupted work is under way; none can begin any
    // more.
    static Leave leave();

private:
    Terminator::Hold m_signals;
};
