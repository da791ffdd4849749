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

// The text with the credentials of every recognised URL in it replaced. Of what says the same already
// the bytes are kept, however they are encoded.
QString replaceAuth(const QString &text, const QString &nameKey, const QString &name,
                    const QString &passwordKey, const QString &password);
// The same, keeping the keys of each URL.
QString replaceAuth(const QString &text, const QString &name, const QString &password);
// The same, keeping the keys and the user name of each URL.
QString replaceAuth(const QString &text, const QString &password);

struct Auth
{
    QString name;
    QString password;
};
// The text with `now` in place of `before` in every URL that has that name or that password. URLs of
// another account keep it.
QString changeAuth(const QString &text, const Auth &before, const Auth &now);

// For a field with one URL: matches its whole text, the password in capture 1 or 2.
QRegularExpression oneUrlRegExp();
// For a text with several URLs: each match is one URL's credentials, the password in capture 1
// or 2.
QRegularExpression urlsRegExp();
// For any text: the same with whatever follows the password, so that it is found while the URL is
// typed, and in messages of librepo, which puts the path of a file before the query.
QRegularExpression credentialsRegExp();

} // namespace Kivvet

} // namespace Repo
