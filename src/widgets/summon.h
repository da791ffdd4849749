// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

// Brings a dialog that is about to be shown before the user: restores its parent's window when that
// is minimised, raises and activates the dialog, and marks it for attention where the desktop keeps
// the focus elsewhere.
void summon(QWidget *dialog);
