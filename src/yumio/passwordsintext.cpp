// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "passwordsintext.h"

#include "kivvet/kivvet.h"

#include <QRegularExpression>

namespace {

const QRegularExpression &userInfo()
{
    static const QRegularExpression expression(QStringLiteral("://[^/\\s:@]*(:)([^/\\s]*)@"));
    return expression;
}

const QRegularExpression &passwordOptions()
{
    static const QRegularExpression expression(
        QStringLiteral("^(?:proxy_)?password[ \\t]*[:=][ \\t]*(\\S.*)$"),
        QRegularExpression::MultilineOption);
    return expression;
}

enum class Passwords { Masked, Removed };

// Treats the last capture of every match, which is a password; a colon captured before it goes with
// it.
QString treated(const QString &text, const QRegularExpression &expression, Passwords what,
                QChar mask)
{
    QString result;
    qsizetype from = 0;
    auto matches = expression.globalMatch(text);
    while (matches.hasNext()) {
        const auto match = matches.next();
        const int last = match.lastCapturedIndex();
        const qsizetype start = match.capturedStart(last), length = match.capturedLength(last);
        const bool hasColon = match.captured(1) == QLatin1String(":");
        const qsizetype kept = start - (what == Passwords::Removed && hasColon);
        result.append(QStringView(text).mid(from, kept - from));
        if (what == Passwords::Masked)
            result.append(QString(length, mask));
        from = start + length;
    }
    return result.append(QStringView(text).mid(from));
}

QString treated(const QString &text, Passwords what, QChar mask = QChar())
{
    static const QRegularExpression kivvet = Repo::Kivvet::credentialsRegExp();
    // Most texts hold no URL; an output of many megabytes must not pay for the few that do.
    if (!text.contains(u'/'))
        return text;
    QString result = text;
    if (result.contains(QLatin1String("/kivvet")) || result.contains(QLatin1String("/rhel/")))
        result = treated(result, kivvet, what, mask);
    if (result.contains(QLatin1String("://")))
        result = treated(result, userInfo(), what, mask);
    return result;
}

} // namespace

QString maskPasswords(const QString &text, QChar mask)
{
    return treated(text, Passwords::Masked, mask);
}

QString maskOptionPasswords(const QString &lines, QChar mask)
{
    return treated(maskPasswords(lines, mask), passwordOptions(), Passwords::Masked, mask);
}

bool hasOptionPasswords(const QString &lines)
{
    return maskOptionPasswords(lines, QChar(QChar::Null)) != lines;
}

QString withoutPasswords(const QString &text)
{
    return treated(text, Passwords::Removed);
}
