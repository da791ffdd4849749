// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class MainWindow;

// Applies the options to the window, in the order given; of one kind the last counts. An option or
// argument that is not understood, and a request for help, end the program with status 1 after the
// usage text.
void applyCommandLine(int argc, char **argv, MainWindow &window);
