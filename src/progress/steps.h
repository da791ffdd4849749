// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

namespace Progress {

// A count of units of work.
using Steps = quint64;

} // namespace Progress

using Progress::Steps;
