// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

// Passwords in texts that are shown, logged, written or passed to another program. All of these can
// be called on any thread.

// The text with every password in it replaced by the same number of asterisks: credentials that
// Repo::Kivvet recognises, complete or not; "user:password@" with and without a scheme; parameters of
// a query and options named like a password, whose value ends with the line. Where it is not certain
// how long a password is, more is masked rather than less.
QString maskPasswords(const QString &text, QChar mask = u'*');

// The same for lines of a configuration file, where an option may also be written with a colon, be a
// comment, lack the sign, and go on in lines that are indented. Line feeds stay.
QString maskOptionPasswords(const QString &lines, QChar mask = u'*');
// Whether there are any outside of comments.
bool hasOptionPasswords(const QString &lines);
// The passwords that maskOptionPasswords() would mask.
QStringList optionPasswords(const QString &lines);

// Whether a password is made of mask characters alone, as one is that was copied from what is shown.
// `mask` is the style's. Asterisks are a password like any other.
bool isOnlyMask(const QString &password, QChar mask = QChar(0x25cf));

// A URL with those passwords taken out; of "user:password@" the user stays.
QString withoutPasswords(const QString &url);
