// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <regex.h>

// An extended POSIX expression of the C library. Its matcher locks itself, so threads that match at
// the same time have one each.
class Expression
{
public:
    // An empty pattern is found everywhere.
    explicit Expression(const QString &pattern);
    Expression(const Expression &) = delete;
    Expression &operator=(const Expression &) = delete;
    ~Expression();

    // True when the expression is found in the UTF-8 text, and when it does not compile.
    bool matches(const char *text) const;
    bool matches(const QString &text) const { return matches(text.toUtf8().constData()); }

private:
    bool m_compiled;
    bool m_hasAscii = false;
    regex_t m_regex;
    regex_t m_ascii; // finds the same in texts of ASCII characters, several times faster
};
