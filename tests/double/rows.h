// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTest>

#include <type_traits>

// The columns of a test's table: columns<QString, int>("text", "length");
template <typename> using ColumnName = const char *;

template <typename... Types> void columns(ColumnName<Types>... names)
{
    (QTest::addColumn<Types>(names), ...);
}

// A row of it, in which plain texts (UTF-8) stand for strings, and numbers with names for numbers:
// row("empty", "", 0);
inline QString cell(const char *text)
{
    return QString::fromUtf8(text);
}

template <typename Value> auto cell(const Value &value)
{
    if constexpr (std::is_enum_v<Value> && std::is_convertible_v<Value, int>)
        return int(value);
    else
        return value;
}

template <typename... Values> void row(const char *name, const Values &...values)
{
    QTestData &data = QTest::newRow(name);
    (void(data << cell(values)), ...);
}
