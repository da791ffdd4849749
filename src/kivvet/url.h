// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace URL {

// What stands between "://" and the next slash, with any port and user information as written; empty
// when the first colon begins no "://".
QString getHost(const QString &url);

} // namespace URL
