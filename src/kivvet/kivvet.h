// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRegularExpression>
#include <QString>

namespace Repo {

struct Entry;

// Credentials that the kivvet authentication method writes into repository URLs, in a query form
// ".../kivvet?NAMEKEY=NAME&PASSWORDKEY=PASSWORD&path=..." or a path form
// ".../rhel/NAMEKEY=NAME/PASSWORDKEY=PASSWORD/...", each of the four percent-encoded.
namespace Kivvet {

// Finds the first credentials in a URL or a list of URLs and decodes them. False, with the four
// strings untouched, when there are none.
bool getAuth(const QString &url, QString &nameKey, QString &name, QString &passwordKey,
             QString &password);
// The same for a repository: its base URLs first, then its mirror list.
bool getAuth(const Entry &entry, QString &nameKey, QString &name, QString &passwordKey,
             QString &password);

// The text with the credentials of every recognised URL in it replaced.
QString replaceAuth(const QString &text, const QString &nameKey, const QString &name,
                    const QString &passwordKey, const QString &password);
// The same, keeping the keys that the URL has.
QString replaceAuth(const QString &url, const QString &name, const QString &password);
// The same, keeping the keys and the user name that the URL has.
QString replaceAuth(const QString &url, const QString &password);

// For a field with one URL: matches its whole text, the password in capture 1 or 2.
QRegularExpression oneUrlRegExp();
// For a text with several URLs: each match is one URL's credentials, the password in capture 1
// or 2.
QRegularExpression urlsRegExp();
// For any text: the same with whatever follows the credentials, and in messages of the library that
// downloads, which puts the path of a file before the query.
QRegularExpression credentialsRegExp();

} // namespace Kivvet

} // namespace Repo
