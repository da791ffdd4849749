// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "colors.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

QPalette withBase(QPalette palette, const QColor &color)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = palette.color(group, QPalette::Text);
        palette.setColor(group, QPalette::Base, color);
        if (Colors::readable(text, color) != text)
            palette.setColor(group, QPalette::Text, Colors::isDark(color) ? Qt::white : Qt::black);
    }
    return palette;
}

constexpr double enoughContrast = 4.5;
constexpr double enoughForHints = 3;
constexpr double shadeStep = 0.02;
constexpr double paleLuminance = 0.85;

// Relative luminance, 0 to 1, as the accessibility guidelines for the web define it.
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &two)
{
    const double first = luminance(one), second = luminance(two);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

// A translucent colour as it looks on an opaque one.
QColor over(const QColor &color, const QColor &background)
{
    const float part = color.alphaF();
    const auto mix = [part](float one, float two) { return one * part + two * (1 - part); };
    return QColor::fromRgbF(mix(color.redF(), background.redF()),
                            mix(color.greenF(), background.greenF()),
                            mix(color.blueF(), background.blueF()));
}

QColor nearestReadable(const QColor &text, const QColor &background)
{
    float hue, saturation, lightness;
    text.getHslF(&hue, &saturation, &lightness);
    const double step = Colors::isDark(background) ? shadeStep : -shadeStep;
    QColor shade = text;
    for (double light = lightness; contrast(shade, background) < enoughContrast;) {
        light += step;
        if (light < 0 || light > 1)
            break;
        shade = QColor::fromHslF(hue, saturation, float(light));
    }
    return shade;
}

} // namespace

QColor Colors::action()
{
    return QColor(QStringLiteral("blue"));
}

QColor Colors::error()
{
    return QColor(QStringLiteral("red"));
}

QColor Colors::errorDisabled()
{
    return QColor(QStringLiteral("#ffa9b8"));
}

QColor Colors::warning()
{
    return QColor(QStringLiteral("darkorange"));
}

QColor Colors::minor()
{
    return QColor(QStringLiteral("#8b5a2b"));
}

QColor Colors::minorDisabled()
{
    return QColor(QStringLiteral("#ffbd94"));
}

QColor Colors::ok()
{
    return QColor(QStringLiteral("green"));
}

QColor Colors::requiredBg()
{
    return QColor(QStringLiteral("#fffacd"));
}

QColor Colors::errorBg()
{
    return QColor(QStringLiteral("#ff6060"));
}

QColor Colors::warningBg()
{
    return QColor(QStringLiteral("yellow"));
}

QColor Colors::okBg()
{
    return QColor(QStringLiteral("lightgreen"));
}

QPalette Colors::withReadableHints(QPalette palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor base = palette.color(group, QPalette::Base);
        const QColor hint = palette.color(group, QPalette::PlaceholderText);
        if (contrast(over(hint, base), base) < enoughForHints)
            palette.setColor(group, QPalette::PlaceholderText, readable(over(hint, base), base));
    }
    return palette;
}

QPalette Colors::makeRequired(const QPalette &palette)
{
    return withBase(palette, requiredBg());
}

QPalette Colors::makeError(const QPalette &palette)
{
    return withBase(palette, errorBg());
}

QPalette Colors::makeWarning(const QPalette &palette)
{
    return withBase(palette, warningBg());
}

QPalette Colors::makeOK(const QPalette &palette)
{
    return withBase(palette, okBg());
}

bool Colors::isDark(const QColor &background)
{
    // Black and white have the same contrast on it.
    return luminance(background) < 0.18;
}

bool Colors::isPale(const QColor &background)
{
    return luminance(background) >= paleLuminance;
}

// Asked for every cell at every paint, of few colours.
QColor Colors::readable(const QColor &text, const QColor &background)
{
    static QHash<std::pair<QRgb, QRgb>, QColor> known;
    QColor &shade = known[{text.rgba(), background.rgba()}];
    if (!shade.isValid())
        shade = nearestReadable(text, background);
    return shade;
}
