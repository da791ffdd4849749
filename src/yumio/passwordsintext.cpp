#include "passwordsintext.h"

#include "kivvet/kivvet.h"

#include <QRegularExpression>

namespace {

QRegularExpression kivvetCredentials()
{
    // In a message a URL may end with its credentials or be followed by anything, so the demand for
    // a word behind them, which serves the editing of URLs, is dropped.
    QString pattern = Repo::Kivvet::urlsRegExp().pattern();
    const QString behind = QStringLiteral("[\\s]*\\b");
    if (pattern.endsWith(behind))
        pattern.chop(behind.size());
    return QRegularExpression(pattern);
}

void maskCaptures(QString &text, const QRegularExpression &expression)
{
    auto matches = expression.globalMatch(text);
    QString masked = text;
    while (matches.hasNext()) {
        const auto match = matches.next();
        for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
            const auto length = match.capturedLength(i);
            if (length > 0)
                masked.replace(match.capturedStart(i), length, QString(length, QLatin1Char('*')));
        }
    }
    text = masked;
}

} // namespace

QString maskPasswords(const QString &text)
{
    static const QRegularExpression kivvet = kivvetCredentials();
    static const QRegularExpression userInfo(QStringLiteral("://[^/\\s:@]*:([^/\\s]*)@"));

    // Most texts hold no URL; an output of many megabytes must not pay for the few that do.
    if (!text.contains(QLatin1Char('/')))
        return text;
    QString masked = text;
    if (masked.contains(QLatin1String("/kivvet?")) || masked.contains(QLatin1String("/rhel/")))
        maskCaptures(masked, kivvet);
    if (masked.contains(QLatin1String("://")))
        maskCaptures(masked, userInfo);
    return masked;
}
