// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QStringView;

// Whether `left` comes before `right` when runs of digits count as numbers: "a2" before "a10".
// Everything else goes by code unit; leading zeros do not count.
bool naturalLessThan(QStringView left, QStringView right);
