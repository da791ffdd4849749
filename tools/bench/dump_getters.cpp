// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Writes what the engine tells of every package, for tools/getters to compare: one JSON object a line.

#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cstdio>

namespace {

using Getter = QString (YumIO::*)(const Package::Entry &);

constexpr struct
{
    const char *name;
    Getter getter;
    bool isSearched = true;
} getters[] = {
    {"description", &YumIO::getDescription},
    {"group", &YumIO::getGroup},
    {"vendor", &YumIO::getVendor},
    {"buildhost", &YumIO::getBuildHost, false},
    {"sourcerpm", &YumIO::getSourceRpm},
    {"license", &YumIO::getLicense},
    {"packager", &YumIO::getPackager},
    {"url", &YumIO::getUrl},
    {"location", &YumIO::getBinaryRpm},
    {"installtime", &YumIO::getInstallTime},
    {"prefixes", &YumIO::getRelocations},
    {"provides", &YumIO::getProvides},
    {"requires", &YumIO::getRequires},
    {"conflicts", &YumIO::getConflicts},
    {"obsoletes", &YumIO::getObsoletes},
    {"files", &YumIO::getFiles},
    {"changelog", &YumIO::getChangeLog},
    {"requiredby", &YumIO::getRequiredBy, false},
    {"replaced", &YumIO::getReplaced, false},
};

// An expression for a field that is this text. Of a long text the beginning and the end, because the
// C library takes its time to compile them.
QStringList expressionsFor(const QString &text)
{
    constexpr int most = 2000;
    static const QRegularExpression special(QStringLiteral("([][{}()*+?.^$|\\\\])"));
    const auto plain = [](QString part) { return part.replace(special, QStringLiteral("\\\\1")); };
    if (text.size() <= most)
        return {u'^' + plain(text) + u'$'};
    return {u'^' + plain(text.left(most)), plain(text.right(most)) + u'$'};
}

// How many texts of the package a search, which reads them in bulk, does not find as the getters give
// them; each is told.
int unlikeSearched(YumIO &engine, const Package::Entry &entry)
{
    int unlike = 0;
    for (const auto &[name, getter, isSearched] : getters) {
        for (const QString &expression :
             isSearched ? expressionsFor((engine.*getter)(entry)) : QStringList()) {
            const auto found = engine.search(expression, {&entry});
            if (found && found->at(0))
                continue;
            std::fprintf(stderr, "%s, %s: a search does not find %s\n", qPrintable(entry.name),
                         name, qPrintable(expression.left(200)));
            ++unlike;
        }
    }
    return unlike;
}

QJsonObject told(YumIO &engine, const Package::Entry &entry)
{
    QJsonObject object;
    const auto add = [&object](const char *name, const QJsonValue &value) {
        object.insert(QLatin1String(name), value);
    };
    add("name", entry.name);
    add("evr", entry.verRel);
    add("arch", entry.arch);
    add("installed", entry.state == Package::State::Installed);
    add("summary", entry.summary);
    add("buildtime", entry.buildTimeText);
    add("size", qint64(entry.size));
    add("installsize", qint64(engine.getInstalledSize(entry)));
    for (const auto &[name, getter, isSearched] : getters)
        add(name, (engine.*getter)(entry));
    return object;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    HProgressBar totalBar, itemBar;
    YumIO engine;
    engine.setup(&window, &totalBar, &itemBar);
    if (!engine.initialize() || !engine.collect({}))
        return 1;
    if (!engine.collectFileLists() || !engine.collectOtherData())
        return 1;
    int unlike = 0;
    for (const Package::Entry *row : engine) {
        for (const Package::Entry *entry = row; entry; entry = entry->next) {
            if (entry->kind != Package::Kind::Group)
                std::puts(
                    QJsonDocument(told(engine, *entry)).toJson(QJsonDocument::Compact).constData());
            if (entry->kind != Package::Kind::Group)
                unlike += unlikeSearched(engine, *entry);
        }
    }
    engine.clear();
    return unlike ? 1 : 0;
}
