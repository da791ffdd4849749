#pragma once

#include <QString>

namespace URL {

// What stands between "://" and the next slash, with any port and user information as written; empty
// when the first colon begins no "://".
QString getHost(const QString &url);

} // namespace URL
