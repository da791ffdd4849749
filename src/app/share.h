// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <sys/types.h>

// The share directory: icons, helper programs, the script.
namespace Share {

// The path of a file of the share directory, which is the value of the environment variable
// VOKSHARE where that is set, even to nothing. Whether the file exists is not looked at.
QString absolute(const QString &relative);

// Why this process must not load anything from the share directory, for the user; empty if it may.
// For root it must be out of the reach of others, except inside a user namespace, where root is an
// ordinary user.
QString refusal();

// The same for root and a given absolute path of the directory, of a program that belongs to
// `programOwner`: what VOK uses of it, and the directories above that, must belong to root or to
// that user, and nobody else may write to it. Sticky directories and the owner's primary group are
// excepted.
QString refusal(const QByteArray &directory, uid_t programOwner);

} // namespace Share
