// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The name that the program was started by, without its directory. Set once, at start-up.
QString programName();
void setProgramName(const char *argv0);
