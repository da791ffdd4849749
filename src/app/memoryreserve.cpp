// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/memoryreserve.h"

#include <sys/mman.h>

namespace {

constexpr std::size_t reserveBytes = 16 << 20;

void *map(std::size_t bytes)
{
    void *memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : memory;
}

} // namespace

bool MemoryReserve::leavesRoomFor(std::size_t bytes)
{
    keep();
    void *probe = m_reserve ? map(bytes) : nullptr;
    if (!probe) {
        release();
        return false;
    }
    munmap(probe, bytes);
    return true;
}

void MemoryReserve::keep()
{
    if (!m_reserve)
        m_reserve = map(reserveBytes);
}

void MemoryReserve::release()
{
    if (m_reserve)
        munmap(m_reserve, reserveBytes);
    m_reserve = nullptr;
}
