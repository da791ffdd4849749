// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// Whether neither the environment nor an option names a display or another way of showing windows.
// The toolkit would end the process then, before any option is read.
bool isDisplayMissing(int argc, char **argv);
