// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "kivvet.h"

#include "percent.h"
#include "repo/repoentry.h"

namespace {

const QString queryStart = QStringLiteral("/kivvet?");
const QString pathStart = QStringLiteral("/rhel/");

// White space and word limits as Unicode has them, so that a URL which goes on in another script is
// recognised; a line feed in a one-line text must not keep it from matching as a whole.
constexpr auto options =
    QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::DotMatchesEverythingOption;

// Takes the four strings that follow position `from`, each up to its delimiter.
bool take(const QString &url, qsizetype from, const QString (&delimiters)[4], QString *(&parts)[4])
{
    QString found[4];
    for (int i = 0; i < 4; ++i) {
        const qsizetype end = url.indexOf(delimiters[i], from);
        if (end < 0)
            return false;
        found[i] = httpUnprotect(url.mid(from, end - from));
        from = end + delimiters[i].size();
    }
    for (int i = 0; i < 4; ++i)
        *parts[i] = found[i];
    return true;
}

} // namespace

bool Repo::Kivvet::getAuth(const QString &url, QString &nameKey, QString &name,
                           QString &passwordKey, QString &password)
{
    static const QString queryDelimiters[] = {QStringLiteral("="), QStringLiteral("&"),
                                              QStringLiteral("="), QStringLiteral("&path=")};
    static const QString pathDelimiters[] = {QStringLiteral("="), QStringLiteral("/"),
                                             QStringLiteral("="), QStringLiteral("/")};

    QString *parts[] = {&nameKey, &name, &passwordKey, &password};
    const qsizetype query = url.indexOf(queryStart);
    if (query >= 0)
        return take(url, query + queryStart.size(), queryDelimiters, parts);
    const qsizetype path = url.indexOf(pathStart);
    return path >= 0 && take(url, path + pathStart.size(), pathDelimiters, parts);
}

bool Repo::Kivvet::getAuth(const Entry &entry, QString &nameKey, QString &name,
                           QString &passwordKey, QString &password)
{
    return getAuth(entry.baseurl, nameKey, name, passwordKey, password) ||
           getAuth(entry.mirrorlist, nameKey, name, passwordKey, password);
}

QString Repo::Kivvet::replaceAuth(const QString &text, const QString &nameKey, const QString &name,
                                  const QString &passwordKey, const QString &password)
{
    static const QRegularExpression queryForm(
        QStringLiteral("/kivvet\\?[^&\\s]*=[^&\\s]*&[^&\\s]*=[^&\\s]*&path="), options);
    static const QRegularExpression pathForm(
        QStringLiteral("/rhel/[^/\\s]*=[^/\\s]*/[^/\\s]*=[^/\\s]*/"), options);

    const QString nameKeyPart = httpProtect(nameKey) + QLatin1Char('=') + httpProtect(name);
    const QString passwordPart =
        httpProtect(passwordKey) + QLatin1Char('=') + httpProtect(password);
    QString result = text;
    // The encoding leaves no backslash, so no value reads as a reference to a capture.
    result.replace(queryForm, queryStart + nameKeyPart + QLatin1Char('&') + passwordPart +
                                  QLatin1String("&path="));
    result.replace(pathForm,
                   pathStart + nameKeyPart + QLatin1Char('/') + passwordPart + QLatin1Char('/'));
    return result;
}

QString Repo::Kivvet::replaceAuth(const QString &url, const QString &name, const QString &password)
{
    QString nameKey, oldName, passwordKey, oldPassword;
    getAuth(url, nameKey, oldName, passwordKey, oldPassword);
    return replaceAuth(url, nameKey, name, passwordKey, password);
}

QString Repo::Kivvet::replaceAuth(const QString &url, const QString &password)
{
    QString nameKey, name, passwordKey, oldPassword;
    getAuth(url, nameKey, name, passwordKey, oldPassword);
    return replaceAuth(url, nameKey, name, passwordKey, password);
}

QRegularExpression Repo::Kivvet::oneUrlRegExp()
{
    return QRegularExpression(
        QStringLiteral("^.*(?:/kivvet\\?[^&\\s]*=[^&\\s]*&[^&\\s]*=([^&\\s]*)&path=|"
                       "/rhel/[^/\\s]*=[^/\\s]*/[^/\\s]*=([^/\\s]*)/).*$"),
        options);
}

QRegularExpression Repo::Kivvet::urlsRegExp()
{
    return QRegularExpression(
        QStringLiteral("(?:/kivvet\\?[^&\\s]*=[^&\\s]*&[^&\\s]*=([^&\\s]*)&path=|"
                       "/rhel/[^/\\s]*=[^/\\s]*/[^/\\s]*=([^/\\s]*)/)[\\s]*\\b"),
        options);
}

QRegularExpression Repo::Kivvet::credentialsRegExp()
{
    return QRegularExpression(
        QStringLiteral("/kivvet(?:/[^?\\s]*)?\\?[^&\\s]*=[^&\\s]*&[^&\\s]*=([^&\\s]*)&path=|"
                       "/rhel/[^/\\s]*=[^/\\s]*/[^/\\s]*=([^/\\s]*)/"),
        options);
}
