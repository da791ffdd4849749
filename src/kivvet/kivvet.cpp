// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "kivvet.h"

#include "percent.h"
#include "repo/repoentry.h"

#include <QStringList>

#include <array>
#include <optional>

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

// Name key, name, password key, password; those without a value stay as they are.
using Values = std::array<std::optional<QString>, 4>;

// The value as a URL holds it, `old` where that says the same. White space would end the credentials.
QString encoded(const std::optional<QString> &value, const QString &old)
{
    if (!value || httpUnprotect(old) == *value)
        return old;
    QString result;
    for (const QChar c : httpProtect(*value)) {
        if (c.isSpace() && c.unicode() < 256) {
            result += u'%';
            result += toHex(c.unicode() >> 4);
            result += toHex(c.unicode() & 0xf);
        } else {
            result += c;
        }
    }
    return result;
}

// `only`, where given, are the values that are replaced.
QString replaced(const QString &text, const Values &values, const QStringList &only = {})
{
    static const QRegularExpression credentials(
        QStringLiteral("(?|(/kivvet\\?)([^&\\s=]*)(=)([^&\\s]*)(&)([^&\\s=]*)(=)([^&\\s]*)(&path=)|"
                       "(/rhel/)([^/\\s=]*)(=)([^/\\s]*)(/)([^/\\s=]*)(=)([^/\\s]*)(/))"),
        options);
    QString result;
    qsizetype from = 0;
    auto matches = credentials.globalMatch(text);
    while (matches.hasNext()) {
        const auto match = matches.next();
        result.append(QStringView(text).mid(from, match.capturedStart() - from));
        for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
            const QString part = match.captured(i);
            const int at = i / 2 - 1; // every second part is a value
            const bool stays = i % 2 || (!only.isEmpty() && httpUnprotect(part) != only.at(at));
            result += stays ? part : encoded(values[size_t(at)], part);
        }
        from = match.capturedEnd();
    }
    return result.append(QStringView(text).mid(from));
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
    return replaced(text, {nameKey, name, passwordKey, password});
}

QString Repo::Kivvet::replaceAuth(const QString &text, const QString &name, const QString &password)
{
    return replaced(text, {std::nullopt, name, std::nullopt, password});
}

QString Repo::Kivvet::replaceAuth(const QString &text, const QString &password)
{
    return replaced(text, {std::nullopt, std::nullopt, std::nullopt, password});
}

QString Repo::Kivvet::changeAuth(const QString &text, const Auth &before, const Auth &now)
{
    return replaced(text, {std::nullopt, now.name, std::nullopt, now.password},
                    {QString(), before.name, QString(), before.password});
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
        QStringLiteral("/kivvet(?:/[^?\\s]{0,4096})?\\?[^&\\s=]*=[^&\\s]*&[^&\\s=]*=([^&\\s]*)|"
                       "/rhel/[^/\\s=]*=[^/\\s]*/[^/\\s=]*=([^/\\s]*)"),
        options);
}
