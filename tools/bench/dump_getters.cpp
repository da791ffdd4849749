// Writes what the engine tells of every package, for tools/getters to compare: one JSON object a line.

#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

QJsonObject told(YumIO &engine, const Package::Entry &entry)
{
    using Getter = QString (YumIO::*)(const Package::Entry &);
    static constexpr struct
    {
        const char *name;
        Getter getter;
    } getters[] = {
        {"description", &YumIO::getDescription}, {"group", &YumIO::getGroup},
        {"vendor", &YumIO::getVendor},           {"buildhost", &YumIO::getBuildHost},
        {"sourcerpm", &YumIO::getSourceRpm},     {"license", &YumIO::getLicense},
        {"packager", &YumIO::getPackager},       {"url", &YumIO::getUrl},
        {"location", &YumIO::getBinaryRpm},      {"installtime", &YumIO::getInstallTime},
        {"prefixes", &YumIO::getRelocations},    {"provides", &YumIO::getProvides},
        {"requires", &YumIO::getRequires},       {"conflicts", &YumIO::getConflicts},
        {"obsoletes", &YumIO::getObsoletes},     {"files", &YumIO::getFiles},
        {"changelog", &YumIO::getChangeLog},     {"requiredby", &YumIO::getRequiredBy},
        {"replaced", &YumIO::getReplaced},
    };
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
    for (const auto &[name, getter] : getters)
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
    for (const Package::Entry *row : engine) {
        for (const Package::Entry *entry = row; entry; entry = entry->next) {
            if (entry->kind != Package::Kind::Group)
                std::puts(
                    QJsonDocument(told(engine, *entry)).toJson(QJsonDocument::Compact).constData());
        }
    }
    engine.clear();
    return 0;
}
