// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace Engine {

// What the next confirmation will say: the script's lines, or the transaction's listing.
struct Confirmation
{
    QString text;
    bool listingShown = false;
};

} // namespace Engine
