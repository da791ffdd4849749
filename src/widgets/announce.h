// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QWidget;

// Has screen readers speak a text that shows, if at all, where the focus is not. For what a window
// has to tell now and then.
void announce(QWidget *window, const QString &text);
