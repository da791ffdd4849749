// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// Core dumps of this process, whose memory holds the passwords of repositories.
namespace CoreDumps {

// No core file, no helper of the kernel's that is given one, and no other process of the same user that
// reads the memory. Called before there are other threads. Builds with sanitizers leave it as it is.
void forbid();

// In a child process before it becomes another program: the limit that was there before.
// Async-signal-safe. The rest ends by itself with execv.
void allow();

} // namespace CoreDumps
