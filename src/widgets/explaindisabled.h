// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QWidget;

// Tells in the tip of a control why it cannot be used; with an empty reason again what it is for.
void explainDisabled(QWidget *control, const QString &reason);
