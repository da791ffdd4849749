// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "log/log.h"

#include <QString>

#include <csignal>

class YumIOCapturers;

namespace Engine {

// What stands between the process's output and the log. The tails, lines that have not ended yet,
// are guarded by the log's mutex.
struct Capture
{
    QString stdoutTail;
    QString stderrTail;
    Log::Kind stderrKind = Log::Kind::Error;
    unsigned int stderrLevel = 0;
    YumIOCapturers *capturers = nullptr; // set while a YumIOCapturersUser lives
    struct sigaction savedSigchld = {};
};

} // namespace Engine
