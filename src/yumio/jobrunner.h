// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

// Runs a job of the engine as the window runs its own; false when it cannot now, because another
// job runs.
using JobRunner = std::function<bool(const std::function<void()> &work)>;
