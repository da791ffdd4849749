// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "entrycheck.h"

#include "yumio/passwordsintext.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace {

class EntryCheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(EntryCheck)
};

constexpr qsizetype mostHints = 10;
constexpr qsizetype longestShown = 40;

QString shownCharacter(const QString &character)
{
    const char32_t code = character.toUcs4().constFirst();
    if (code == U' ')
        return EntryCheckTexts::tr("a blank");
    if (code == U'\n' || code == U'\r')
        return EntryCheckTexts::tr("a line break");
    if (QChar::isPrint(code) && !QChar::isSpace(code))
        return EntryCheckTexts::tr("the character %1").arg(character);
    return EntryCheckTexts::tr("the character U+%1")
        .arg(QString::number(uint(code), 16).toUpper().rightJustified(4, u'0'));
}

// How many letters must be changed, left out, put in or exchanged with their neighbour.
int distance(const QString &one, const QString &two)
{
    const size_t width = size_t(two.size()) + 1;
    std::vector<int> before(width), last(width), current(width);
    std::iota(last.begin(), last.end(), 0);
    for (qsizetype i = 1; i <= one.size(); ++i) {
        current[0] = int(i);
        for (qsizetype j = 1; j <= two.size(); ++j) {
            const size_t at = size_t(j);
            const bool same = one[i - 1] == two[j - 1];
            current[at] = std::min({last[at] + 1, current[at - 1] + 1, last[at - 1] + !same});
            if (i > 1 && j > 1 && one[i - 1] == two[j - 2] && one[i - 2] == two[j - 1])
                current[at] = std::min(current[at], before[at - 2] + 1);
        }
        before = std::exchange(last, current);
    }
    return last.back();
}

QString mostSimilar(const QString &name, const QStringList &known)
{
    QString best;
    int least = std::max(1, int(name.size()) / 3) + 1;
    for (const QString &option : known) {
        const int letters = distance(name.toLower(), option);
        if (letters < least) {
            least = letters;
            best = option;
        }
    }
    return best;
}

} // namespace

QString EntryCheck::identifierWarning(const QString &id)
{
    static const QRegularExpression variable(QStringLiteral("\\$(?:\\w+|\\{\\w+\\})"));
    static const QRegularExpression refused(QStringLiteral("[^-A-Za-z0-9_.:]"));
    if (id == QLatin1String("main"))
        return EntryCheckTexts::tr("DNF takes no repository named main");
    const auto match = refused.match(QString(id).remove(variable));
    if (!match.hasMatch())
        return QString();
    return EntryCheckTexts::tr("DNF takes no Identifier with %1")
        .arg(shownCharacter(match.captured()));
}

QString EntryCheck::twinWarning(const QString &id, const QStringList &others)
{
    for (const QString &other : others) {
        if (other != id && other.compare(id, Qt::CaseInsensitive) == 0)
            return EntryCheckTexts::tr("The Identifier %1 differs in case only")
                .arg(other.left(longestShown));
    }
    return QString();
}

QString EntryCheck::maskAsPassword()
{
    return EntryCheckTexts::tr("The password consists of mask characters only.  It was copied from "
                               "a field that hides it.  Type the password itself.");
}

QStringList EntryCheck::optionHints(const QString &otherOptions, const QStringList &known)
{
    QStringList hints;
    for (const QString &line : otherOptions.split(u'\n')) {
        // Comments, and lines that go on with the one above them.
        if (line.trimmed().isEmpty() || line.startsWith(u'#') || line.startsWith(u';') ||
            line.at(0).isSpace())
            continue;
        const qsizetype end = line.indexOf(u'=');
        const QString name = line.left(end).trimmed();
        if (known.contains(name) && end >= 0)
            continue;
        if (hints.size() == mostHints)
            break;
        if (end < 0) {
            hints +=
                EntryCheckTexts::tr("DNF leaves out the whole file for a line without \"=\": %1")
                    .arg(maskOptionPasswords(line).left(longestShown));
        } else if (!known.isEmpty()) {
            const QString similar = mostSimilar(name, known);
            const QString hint = EntryCheckTexts::tr("DNF does not know the option %1.")
                                     .arg(name.left(longestShown));
            hints += similar.isEmpty() ? hint
                                       : EntryCheckTexts::tr("%1  Is %2 meant?").arg(hint, similar);
        }
    }
    return hints;
}
