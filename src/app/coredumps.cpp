// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "coredumps.h"

#include <sys/prctl.h>
#include <sys/resource.h>

#ifndef VOK_SANITIZED // the leak check reads the memory from another process

namespace {

struct rlimit before;
bool forbidden = false;

} // namespace

// The limit does not stop a handler that /proc/sys/kernel/core_pattern pipes to, such as
// systemd-coredump; a process that is not dumpable has no core at all. For such a process the kernel
// gives the files in /proc/PID to root (to the namespace's root in a user namespace). It may still read
// its own /proc/self/fd, maps and status, and follow the links there, but for an ordinary user no longer
// open its own /proc/self/environ and mem, which nothing here does. The buses ask the socket for the
// peer's user and are not concerned; desktop portals, which look into /proc/PID/root, refuse an
// ordinary user's VOK, so that a setting of the desktop may be missed. A debugger needs root.
void CoreDumps::forbid()
{
    forbidden = getrlimit(RLIMIT_CORE, &before) == 0;
    const struct rlimit none = {0, before.rlim_max};
    if (forbidden)
        setrlimit(RLIMIT_CORE, &none);
    prctl(PR_SET_DUMPABLE, 0);
}

void CoreDumps::allow()
{
    if (forbidden)
        setrlimit(RLIMIT_CORE, &before);
}

#else

void CoreDumps::forbid() {}
void CoreDumps::allow() {}

#endif
