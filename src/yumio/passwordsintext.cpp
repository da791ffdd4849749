// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "passwordsintext.h"

#include "kivvet/kivvet.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

// A password in a text; the end is behind it.
struct Span
{
    qsizetype start;
    qsizetype end;
};

constexpr auto anyCase = QRegularExpression::CaseInsensitiveOption;
const QString optionName = QStringLiteral("[\\w.-]*(?:password|passwd|passphrase)");

void addMatches(QList<Span> &spans, const QString &text, const QRegularExpression &expression)
{
    auto matches = expression.globalMatch(text);
    while (matches.hasNext()) {
        const auto match = matches.next();
        const int last = match.lastCapturedIndex();
        spans.append({match.capturedStart(last), match.capturedEnd(last)});
    }
}

// Behind the colon of "host:8080/".
bool isPort(QStringView text)
{
    qsizetype digits = 0;
    while (digits < text.size() && text[digits] >= u'0' && text[digits] <= u'9')
        ++digits;
    return digits > 0 && digits <= 5 &&
           (digits == text.size() || QStringView(u"/?#\"')]>,;").contains(text[digits]));
}

// Where the password of "user:password@" begins in a word whose last "@" is at `end`; -1 when there is
// none. `others` end the name of a user; it may be a mail address.
qsizetype afterUser(QStringView word, qsizetype from, qsizetype end, QStringView others)
{
    while (from < end && word[from] != u':' && word[from] != u'/' && !others.contains(word[from]))
        ++from;
    return from < end && word[from] == u':' && !isPort(word.mid(from + 1)) ? from + 1 : -1;
}

// `strict`: the user information ends where a client ends it, before the first slash, if it ends there
// at all. Otherwise it is as long as it may have been meant.
void addUserInfo(QList<Span> &spans, QStringView word, qsizetype offset, bool strict)
{
    const qsizetype at = word.lastIndexOf(u'@');
    const QStringView scheme = u"://";
    for (qsizetype i = word.indexOf(scheme); i >= 0 && i < at; i = word.indexOf(scheme, i + 3)) {
        const qsizetype start = afterUser(word, i + 3, at, u"?#[");
        if (start < 0)
            continue;
        const auto isEnd = [](QChar c) { return c == u'/' || c == u'?' || c == u'#'; };
        const auto slash = std::find_if(word.begin() + start, word.end(), isEnd);
        const qsizetype first = word.left(slash - word.begin()).lastIndexOf(u'@');
        spans.append({offset + start, offset + (strict && first >= start ? first : at)});
        return;
    }
    if (at < 0 || word.contains(scheme))
        return;

    const QStringView around = u"\"'<>(){}[]=,;";
    qsizetype user = 0;
    for (qsizetype i = 0; i < at && word[i] != u':'; ++i) {
        if (around.contains(word[i]))
            user = i + 1;
    }
    const qsizetype start = afterUser(word, user, at, around);
    const QChar host = at + 1 < word.size() ? word[at + 1] : QChar();
    // Neither "::" of a programming language nor a mail address.
    if (start > user + 1 && word[start] != u':' && word.mid(user, start - 1 - user) != u"mailto" &&
        (host.isLetterOrNumber() || host == u'[' || host == u'$'))
        spans.append({offset + start, offset + at});
}

void addAllUserInfo(QList<Span> &spans, const QString &text, bool strict)
{
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    for (auto from = text.cbegin(); from != text.cend();) {
        from = std::find_if_not(from, text.cend(), isSpace);
        const auto end = std::find_if(from, text.cend(), isSpace);
        addUserInfo(spans, QStringView(from, end), from - text.cbegin(), strict);
        from = end;
    }
}

QList<Span> urlPasswords(const QString &text, bool strict)
{
    static const QRegularExpression kivvet = Repo::Kivvet::credentialsRegExp();
    static const QRegularExpression parameter(
        QStringLiteral("[?&](?:pass|password|passwd|passphrase|pwd|pw|token|secret)=([^&\\s#]*)"),
        anyCase);
    QList<Span> spans;
    // Most texts hold none of it; an output of many megabytes must not pay for the few that do.
    if (text.contains(u'=') && text.contains(u'/')) {
        addMatches(spans, text, kivvet);
        addMatches(spans, text, parameter);
    }
    if (text.contains(u'@') && text.contains(u':'))
        addAllUserInfo(spans, text, strict);
    return spans;
}

QList<Span> passwords(const QString &text)
{
    // DNF puts the name of the file behind an option that it does not know.
    static const QRegularExpression option(
        QStringLiteral("(?<![^\\s\"'(\\[{,;=])") + optionName +
            QStringLiteral("[ \\t]*=[ \\t]*(\\S.*?)(?= in /\\S*(?:; .*)?$|$)"),
        anyCase | QRegularExpression::MultilineOption);
    QList<Span> spans = urlPasswords(text, false);
    if (text.contains(u'=') && text.contains(QLatin1String("pass"), Qt::CaseInsensitive))
        addMatches(spans, text, option);
    return spans;
}

QList<Span> passwordsOfOptions(const QString &lines)
{
    static const QRegularExpression option(
        QStringLiteral("^[ \\t]*(?:[#;][#; \\t]*)?") + optionName +
            QStringLiteral("[ \\t]*[:=][ \\t]*([^\\n]*(?:\\n[ \\t]+[^\\n]*)*)"),
        anyCase | QRegularExpression::MultilineOption);
    static const QRegularExpression incomplete(u'^' + optionName +
                                                   QStringLiteral("[ \\t]+(?![:=])(\\S.*)$"),
                                               anyCase | QRegularExpression::MultilineOption);
    QList<Span> spans = passwords(lines);
    if (lines.contains(QLatin1String("pass"), Qt::CaseInsensitive)) {
        addMatches(spans, lines, option);
        addMatches(spans, lines, incomplete);
    }
    return spans;
}

QString masked(QString text, const QList<Span> &spans, QChar mask)
{
    for (const Span &span : spans)
        std::replace_if(
            text.begin() + span.start, text.begin() + span.end, [](QChar c) { return c != u'\n'; },
            mask);
    return text;
}

} // namespace

QString maskPasswords(const QString &text, QChar mask)
{
    return masked(text, passwords(text), mask);
}

QString maskOptionPasswords(const QString &lines, QChar mask)
{
    return masked(lines, passwordsOfOptions(lines), mask);
}

QStringList optionPasswords(const QString &lines)
{
    QStringList found;
    for (const Span &span : passwordsOfOptions(lines)) {
        if (span.end > span.start)
            found += lines.mid(span.start, span.end - span.start);
    }
    return found;
}

bool hasOptionPasswords(const QString &lines)
{
    static const QRegularExpression comment(QStringLiteral("^[ \\t]*[#;].*$"),
                                            QRegularExpression::MultilineOption);
    return !optionPasswords(QString(lines).remove(comment)).isEmpty();
}

bool isOnlyMask(const QString &password, QChar mask)
{
    const QChar first = password.isEmpty() ? QChar() : password.front();
    return password.count(first) == password.size() &&
           (first == QChar(0x25cf) || (first == mask && mask != u'*'));
}

QString withoutPasswords(const QString &url)
{
    QList<Span> spans = urlPasswords(url, true);
    std::sort(spans.begin(), spans.end(), [](Span a, Span b) { return a.start < b.start; });
    QString result;
    qsizetype from = 0;
    for (const Span &span : std::as_const(spans)) {
        const qsizetype start = span.start - (url[span.start - 1] == u':');
        if (start > from)
            result.append(QStringView(url).mid(from, start - from));
        from = std::max(from, span.end);
    }
    return result.append(QStringView(url).mid(from));
}
