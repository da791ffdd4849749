#include "expression.h"

#include <QByteArray>

#include <cstring>

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

// The C library looks for a match from every place of a text in turn, and from each may read on to
// the end: a text of n characters costs n * n steps where a wildcard is in the expression. Behind
// "^.*" the same is found in one pass. Not where a number refers to a group, nor where a closing
// parenthesis has no opening one and stands for itself, and not for plain texts, which are found
// faster as they are.
bool gainsByAnchor(const char *pattern)
{
    int depth = 0;
    bool wild = false;
    for (const char *at = pattern; *at; ++at) {
        switch (*at) {
        case '\\':
            ++at;
            if (!*at || std::strchr("123456789", *at))
                return false;
            break;
        case '[':
            at = behindBracket(at);
            if (!at)
                return false;
            --at;
            wild = true;
            break;
        case '(':
            ++depth;
            break;
        case ')':
            if (--depth < 0)
                return false;
            break;
        case '^': // behind other characters it would also match at the start of a line
            return false;
        case '.':
        case '*':
        case '+':
        case '{':
            wild = true;
            break;
        default:
            break;
        }
    }
    return wild && depth == 0;
}

} // namespace

Expression::Expression(const QString &pattern)
{
    const QByteArray text = pattern.toUtf8();
    m_compiled = regcomp(&m_regex, text.constData(), flags) == 0;
    if (!m_compiled || !gainsByAnchor(text.constData()))
        return;
    regex_t anchored;
    if (regcomp(&anchored, ("^.*(" + text + ')').constData(), flags) != 0)
        return;
    regfree(&m_regex);
    m_regex = anchored;
}

Expression::~Expression()
{
    if (m_compiled)
        regfree(&m_regex);
}

bool Expression::matches(const char *text) const
{
    return !m_compiled || regexec(&m_regex, text, 0, nullptr, 0) == 0;
}
