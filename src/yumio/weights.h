// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <algorithm>

// What an element of a transaction counts on the progress bars, by its package's size in bytes.
// Even an empty package takes rpm its time.
namespace Weights {

constexpr qint64 least = 10240;

constexpr qint64 install(qint64 size)
{
    return std::max(size * 3, least);
}

constexpr qint64 removal(qint64 size)
{
    return std::max(size, least);
}

// Erasure of the old version at the end of an update.
constexpr qint64 completion(qint64 size)
{
    return std::max(size / 5, least);
}

} // namespace Weights
