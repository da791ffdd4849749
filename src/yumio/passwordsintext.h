// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The text with every password in a URL of it replaced by the same number of asterisks: credentials
// that Repo::Kivvet recognises, and the "user:password@" of any URL. Any thread.
QString maskPasswords(const QString &text, QChar mask = u'*');

// The same for lines of a configuration file, where the values of password and proxy_password are
// passwords too.
QString maskOptionPasswords(const QString &lines, QChar mask = u'*');
bool hasOptionPasswords(const QString &lines);

// The text with those passwords taken out; of "user:password@" the user stays.
QString withoutPasswords(const QString &text);
