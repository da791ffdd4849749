#include "colors.h"

namespace {

QPalette withBase(QPalette palette, const QColor &color)
{
    palette.setColor(QPalette::Active, QPalette::Base, color);
    palette.setColor(QPalette::Inactive, QPalette::Base, color);
    return palette;
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
