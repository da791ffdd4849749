// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "translations.h"

#include "app/share.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

QString directory()
{
    return Share::absolute(QStringLiteral("translations"));
}

// The user's languages by the variables that every program goes by, the most wanted first. A session
// that speaks C has none.
QStringList languages()
{
    const QString chosen = qEnvironmentVariable("VOKLANGUAGE");
    if (!chosen.isEmpty())
        return {chosen};
    QString locale;
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.isEmpty())
            locale = qEnvironmentVariable(name);
    }
    if (locale.isEmpty() || locale == QLatin1String("C") || locale == QLatin1String("POSIX"))
        return {};
    const QStringList wanted = qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts);
    return wanted.isEmpty() ? QStringList{locale.section(u'.', 0, 0).section(u'@', 0, 0)} : wanted;
}

// A catalogue serves all countries of its language unless one has its own.
bool loadFirst(QTranslator &translator)
{
    for (const QString &language : languages()) {
        if (translator.load(QStringLiteral("vok_") + language, directory()))
            return true;
    }
    return false;
}

} // namespace

void installTranslations(QCoreApplication &app)
{
    // The texts in the code are English but for the plural forms. What is installed later is asked
    // first.
    auto *plurals = new QTranslator(&app);
    if (plurals->load(QStringLiteral("vok_en"), directory()))
        app.installTranslator(plurals);

    auto *own = new QTranslator(&app);
    if (!loadFirst(*own))
        return;
    app.installTranslator(own);

    // The toolkit follows the program, so that no window speaks two languages.
    auto *toolkit = new QTranslator(&app);
    if (toolkit->load(QLocale(own->language()), QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        app.installTranslator(toolkit);
}
