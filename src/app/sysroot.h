// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The system that VOK works on: "/", or the directory that the environment variable VOKROOT names.
namespace SysRoot {

// The root directory without a trailing slash; empty for the running system. A value of VOKROOT
// that is not an absolute path counts as unset.
QString prefix();

// Where to open `path`, an absolute path inside the system. Only for opening: paths that are kept,
// written or shown stay as they are inside the system.
QString resolve(const QString &path);

} // namespace SysRoot
