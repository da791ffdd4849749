// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "expression.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <bitset>
#include <cstring>
#include <locale.h>

namespace {

constexpr int flags = REG_EXTENDED | REG_NOSUB;

// Behind a bracket expression that begins at `at`; null when it does not end.
const char *behindBracket(const char *at)
{
    ++at;
    if (*at == '^')
        ++at;
    if (*at == ']')
        ++at;
    for (; *at && *at != ']'; ++at) {
        if (at[0] == '[' && at[1] && std::strchr(".=:", at[1])) {
            const char end[] = {at[1], ']', '\0'};
            at = std::strstr(at + 2, end);
            if (!at)
                return nullptr;
            ++at;
        }
    }
    return *at ? at + 1 : nullptr;
}

// What can be told of an extended POSIX expression by reading it.
struct Traits
{
    bool plain = true;         // no wildcard
    bool anchorable = true;    // may stand behind "^.*"
    bool ascii = true;         // of ASCII characters alone
    QList<QByteArray> classes; // its bracket expressions
};

Traits traitsOf(const QByteArray &pattern)
{
    Traits traits;
    int depth = 0;
    traits.ascii = std::all_of(pattern.begin(), pattern.end(), [](char c) { return c > 0; });
    for (const char *at = pattern.constData(); *at; ++at) {
        switch (*at) {
        case '\\':
            ++at;
            if (!*at || std::strchr("123456789", *at)) // refers to a group
                traits.anchorable = false;
            if (!*at)
                return traits;
            break;
        case '[': {
            const char *const end = behindBracket(at);
            traits.plain = false;
            if (!end) {
                traits.anchorable = traits.ascii = false;
                return traits;
            }
            traits.classes.append(QByteArray(at, end - at));
            at = end - 1;
            break;
        }
        case '(':
            ++depth;
            break;
        case ')':
            if (--depth < 0) // stands for itself
                traits.anchorable = false;
            break;
        case '^': // behind other characters it would also match at the start of a line
            traits.anchorable = false;
            break;
        case '.':
        case '*':
        case '+':
        case '{':
            traits.plain = false;
            break;
        default:
            break;
        }
    }
    traits.anchorable = traits.anchorable && depth == 0;
    return traits;
}

// The C library looks for a match from every place of a text in turn, and from each may read on to
// the end: a text of n characters costs n * n steps where a wildcard is in the expression. Behind
// "^.*" the same is found in one pass. Plain texts are found faster as they are.
bool compile(regex_t &regex, const QByteArray &pattern, bool anchored)
{
    const QByteArray text = anchored ? "^.*(" + pattern + ')' : pattern;
    return regcomp(&regex, text.constData(), flags) == 0;
}

// The "C" locale for this thread.
class CLocale
{
public:
    CLocale() : m_locale(newlocale(LC_ALL_MASK, "C", nullptr)), m_former(uselocale(m_locale)) {}
    CLocale(const CLocale &) = delete;
    CLocale &operator=(const CLocale &) = delete;
    ~CLocale()
    {
        uselocale(m_former);
        if (m_locale)
            freelocale(m_locale);
    }

private:
    const locale_t m_locale;
    const locale_t m_former;
};

// The ASCII characters that are in a bracket expression; none when it does not compile.
std::bitset<128> membersOf(const QByteArray &bracket)
{
    std::bitset<128> members;
    regex_t regex;
    if (!compile(regex, bracket, false))
        return members;
    for (int i = 1; i < 128; ++i) {
        const char text[] = {char(i), '\0'};
        members[size_t(i)] = regexec(&regex, text, 0, nullptr, 0) == 0;
    }
    regfree(&regex);
    return members;
}

// Whether an expression finds in ASCII texts the same in the "C" locale as in this one. Only what
// stands in brackets could differ: by the order of characters, and by names of several of them.
bool sameInAscii(const Traits &traits)
{
    return traits.ascii &&
           std::all_of(traits.classes.begin(), traits.classes.end(), [](const QByteArray &bracket) {
               if (bracket.contains("[.") || bracket.contains("[="))
                   return false;
               const auto here = membersOf(bracket);
               const CLocale cLocale;
               return here == membersOf(bracket);
           });
}

bool isAscii(const char *text)
{
    constexpr quint64 high = 0x8080808080808080;
    size_t left = std::strlen(text);
    quint64 word;
    for (; left >= sizeof word; left -= sizeof word, text += sizeof word) {
        std::memcpy(&word, text, sizeof word);
        if (word & high)
            return false;
    }
    return std::all_of(text, text + left, [](char c) { return c >= 0; });
}

} // namespace

Expression::Expression(const QString &pattern)
{
    const QByteArray text = pattern.toUtf8();
    const Traits traits = traitsOf(text);
    const bool anchored = traits.anchorable && !traits.plain;
    m_compiled = compile(m_regex, text, false);
    regex_t quick;
    if (m_compiled && anchored && compile(quick, text, true)) {
        regfree(&m_regex);
        m_regex = quick;
    }
    if (m_compiled && sameInAscii(traits)) {
        const CLocale cLocale;
        m_hasAscii = compile(m_ascii, text, anchored);
    }
}

Expression::~Expression()
{
    if (m_compiled)
        regfree(&m_regex);
    if (m_hasAscii)
        regfree(&m_ascii);
}

bool Expression::matches(const char *text) const
{
    if (!m_compiled)
        return true;
    const regex_t &regex = m_hasAscii && isAscii(text) ? m_ascii : m_regex;
    return regexec(&regex, text, 0, nullptr, 0) == 0;
}
