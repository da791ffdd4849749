// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Percent encoding as the credentials in repository URLs use it: 24 characters with a meaning in
// URLs are written as "%" and two lowercase hexadecimal digits, all others stay as they are.

// The digit for 0 to 15, "?" for anything else.
QChar toHex(int value);
// The value of a hexadecimal digit of either case, -1 for anything else.
int fromHex(QChar digit);

QString httpProtect(const QString &text);
// The inverse of httpProtect. What was decoded once is not decoded again.
QString httpUnprotect(const QString &text);
