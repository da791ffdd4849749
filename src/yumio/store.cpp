// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store.h"

#include <utility>

Engine::EntryKey::EntryKey(bool isGroup_, QString name_, QString arch_)
    : isGroup(isGroup_), name(std::move(name_)), arch(std::move(arch_))
{
}

size_t Engine::qHash(const EntryKey &key, size_t)
{
    return (quint32(::qHash(key.name, 0)) << 1) + (quint32(::qHash(key.arch, 0)) << 2) +
           quint32(key.isGroup);
}
