// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

// Moves a window that reaches over the edge of its screen back onto it, and shrinks one that is
// larger than the screen. Where a window manager places the window later, which it tells as late,
// that is followed for a moment.
void keepOnScreen(QWidget *window);
