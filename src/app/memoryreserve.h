// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

// Address space that is kept back so that a message can still be shown when memory runs out. A job that runs out of it
// cannot be saved: GLib recurses without end where an allocation fails, libsolv and Qt abort.
class MemoryReserve
{
public:
    MemoryReserve() { keep(); }
    MemoryReserve(const MemoryReserve &) = delete;
    MemoryReserve &operator=(const MemoryReserve &) = delete;
    ~MemoryReserve() { release(); }

    // Whether a job may start: so many bytes can be allocated besides the reserve. Where not, the reserve is released
    // until a later call finds room again.
    bool leavesRoomFor(std::size_t bytes);

private:
    void keep();
    void release();

    void *m_reserve = nullptr;
};
