#pragma once

#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

// An engine over the packages of double/, and the table's models over it. The interpreter exists
// once in a process, so a test program has one of these.
class TableCase
{
public:
    // A share directory with the real icons and the scripted packages.
    static bool share(const QTemporaryDir &dir)
    {
        qputenv("VOKSHARE", dir.path().toUtf8());
        return QFile::link(QStringLiteral(TABLE_DOUBLE "/python"),
                           dir.filePath(QStringLiteral("python"))) &&
               QFile::link(QStringLiteral(TABLE_ICONS), dir.filePath(QStringLiteral("icons")));
    }

    bool start()
    {
        if (!share(m_share))
            return false;
        engine.setup(&m_window, &m_totalBar, &m_itemBar);
        if (!engine.initialize() || !engine.collect({}))
            return false;
        model = std::make_unique<PackageTable::Model>(&engine, nullptr);
        proxy = std::make_unique<PackageTable::SortFilterProxyModel>(PackageTable::StateFilter::All,
                                                                     true, true, &engine, nullptr);
        proxy->setSourceModel(model.get());
        return true;
    }

    // Of a package of this name; the architecture only where it matters.
    int row(const QString &name, const QString &arch = QString())
    {
        for (int i = 0; i < engine.count(); ++i) {
            if (engine[i]->name == name && (arch.isEmpty() || engine[i]->arch == arch))
                return i;
        }
        return -1;
    }
    Package::Entry *entry(const QString &name) { return engine[row(name)]; }

    // The names that the proxy lists, in its order.
    QStringList listed() const
    {
        QStringList names;
        for (int i = 0; i < proxy->rowCount(); ++i)
            names.append(proxy->index(i, PackageTable::NameColumn).data().toString());
        return names;
    }

private:
    QTemporaryDir m_share;
    QWidget m_window;
    HProgressBar m_totalBar;
    HProgressBar m_itemBar;

public:
    YumIO engine;
    std::unique_ptr<PackageTable::Model> model;
    std::unique_ptr<PackageTable::SortFilterProxyModel> proxy;
};
