// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// exit and _exit of this program. The libraries call these too, because the dynamic linker looks up a symbol in the
// program first.

#include "app/uninterrupted.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

const pid_t process = getpid();
using Exit = void (*)(int);
const auto orderly = reinterpret_cast<Exit>(dlsym(RTLD_NEXT, "exit"));
// Not a system call: sanitizers have their own.
const auto atOnce = reinterpret_cast<Exit>(dlsym(RTLD_NEXT, "_exit"));

[[noreturn]] void end(Exit how, int status)
{
    if (how)
        how(status);
    for (;;)
        syscall(SYS_exit_group, status);
}

// A child may share this process's memory until it calls exec. The exit handlers are not its affair.
bool isChild()
{
    return getpid() != process;
}

} // namespace

extern "C" {

[[noreturn, gnu::visibility("default")]] void exit(int status) noexcept
{
    if (isChild())
        fflush(nullptr);
    else if (Uninterrupted::leave() == Uninterrupted::Leave::Orderly)
        end(orderly, status);
    end(atOnce, status);
}

[[noreturn, gnu::visibility("default")]] void _exit(int status)
{
    if (!isChild())
        Uninterrupted::leave();
    end(atOnce, status);
}

[[noreturn, gnu::visibility("default")]] void _Exit(int status) noexcept
{
    _exit(status);
}
}
