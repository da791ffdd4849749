// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "yumio/yumio.h"

// What to do when a collection has left the table without a row: what is so, and on the next line
// what helps. Empty after one that came to its end.
QString nextStep(Engine::Collected collected);

// Whether there are packages, but none of them is installed.
bool nothingIsInstalled(const YumIO &yumIO);
