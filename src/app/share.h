// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The share directory: icons, helper programs, the script.
namespace Share {

// The path of a file of the share directory, which is the value of the environment variable
// VOKSHARE where that is set, even to nothing. Whether the file exists is not looked at.
QString absolute(const QString &relative);

} // namespace Share
