// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

// A count of bytes with a unit, of at most three digits or two with a fraction: "999b", "1.0Kb".
QString bytesFormat(quint64 bytes);

// As timeFormat and dateFormat, on any thread.
QByteArray timeText(qint64 time);
QByteArray dateText(qint64 time);

// A time in seconds since the epoch as local time: "Wed Jun 30 21:49:08 1993". The text stands in a
// static buffer until the next call.
const char *timeFormat(qint64 time);

// The same without the time of day, in a buffer of its own: "Wed Jun 30 1993".
const char *dateFormat(qint64 time);
