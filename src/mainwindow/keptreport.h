// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// A report that nobody was there to read, kept in the system it is about until the next start.
namespace KeptReport {

// Adds to what is kept, once. Any thread. Without the right to keep anything there nothing is.
void add(const QString &text);
// Empty when there is none, or none for this user.
QString text();
void remove();
// Removes one text that was added.
void remove(const QString &text);

} // namespace KeptReport
