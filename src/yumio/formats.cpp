// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "formats.h"

#include <QCoreApplication>

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <ctime>

namespace {

// ctime_r asks for 26; years beyond 9999 need more.
using TimeBuffer = std::array<char, 64>;

constexpr int yearPosition = 20;
constexpr int timeOfDayPosition = 11;

const char *format(qint64 time, TimeBuffer &buffer)
{
    const time_t value = time;
    if (!::ctime_r(&value, buffer.data()))
        buffer[0] = '\0';
    buffer[std::strcspn(buffer.data(), "\n")] = '\0';
    return buffer.data();
}

const char *formatDate(qint64 time, TimeBuffer &buffer)
{
    format(time, buffer);
    if (std::strlen(buffer.data()) > yearPosition) {
        std::memmove(buffer.data() + timeOfDayPosition, buffer.data() + yearPosition,
                     std::strlen(buffer.data() + yearPosition) + 1);
    }
    return buffer.data();
}

} // namespace

QString bytesFormat(quint64 bytes)
{
    static constexpr std::array units = {
        QT_TRANSLATE_NOOP("YumIO", "Kb"), QT_TRANSLATE_NOOP("YumIO", "Mb"),
        QT_TRANSLATE_NOOP("YumIO", "Gb"), QT_TRANSLATE_NOOP("YumIO", "Tb"),
        QT_TRANSLATE_NOOP("YumIO", "Pb"), QT_TRANSLATE_NOOP("YumIO", "Eb"),
    };
    const char *unit = QT_TRANSLATE_NOOP("YumIO", "b");
    double value = double(bytes);
    if (bytes > 999) {
        // A unit is left as soon as its number would need four digits.
        size_t power = 0;
        for (quint64 limit = 1000 * 1024; power + 1 < units.size() && bytes >= limit; ++power)
            limit *= 1024;
        value /= std::pow(1024.0, double(power + 1));
        unit = units[power];
    }
    const int decimals = value > 0 && value < 9.95 ? 1 : 0;
    // Exact, so that a tie goes to the even digit.
    std::array<char, 16> digits;
    const auto end =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed, decimals);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data()) +
           QCoreApplication::translate("YumIO", unit);
}

QByteArray timeText(qint64 time)
{
    TimeBuffer buffer;
    return format(time, buffer);
}

QByteArray dateText(qint64 time)
{
    TimeBuffer buffer;
    return formatDate(time, buffer);
}

const char *timeFormat(qint64 time)
{
    static TimeBuffer buffer;
    return format(time, buffer);
}

const char *dateFormat(qint64 time)
{
    static TimeBuffer buffer;
    return formatDate(time, buffer);
}
