// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "defaultstyle.h"

#include <QApplication>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>

#include <cstring>

namespace {

// The toolkit takes its options with one dash and with two.
bool isStyleOption(const char *argument)
{
    if (strncmp(argument, "--", 2) == 0)
        ++argument;
    return strncmp(argument, "-style=", 7) == 0 || strcmp(argument, "-style") == 0;
}

bool isStyleInSettings()
{
    QSettings settings(QSettings::UserScope, QStringLiteral("Trolltech"));
    settings.beginGroup(QStringLiteral("Qt"));
    return settings.contains(QStringLiteral("style"));
}

} // namespace

DefaultStyle::DefaultStyle(int argc, const char **argv)
{
    for (int i = 1; i < argc && !m_chosen; ++i)
        m_chosen = isStyleOption(argv[i]);
    if (!m_chosen)
        m_chosen = isStyleInSettings();
}

void DefaultStyle::set(QApplication &app, const QString &styleName)
{
    if (m_chosen)
        return;
    QStyle *style = QStyleFactory::create(styleName);
    if (!style)
        style = QStyleFactory::create(QStringLiteral("fusion"));
    if (!style)
        return;
    app.setStyle(style);
    app.setPalette(style->standardPalette());
}
