// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

class QWidget;

namespace Helper {

// Starts the program `name` of the share directory with `arguments`, detached and as the invoking
// user. False when it says, asked by "--check" before, that it can do nothing with them; then
// `reason` tells why. The arguments must hold no password: other users see them.
bool start(QWidget *parent, const QString &name, const QStringList &arguments, QString &reason);

} // namespace Helper
