// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "scripted.h"

#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"

// The table's models over scripted packages.
class TableCase : public Scripted
{
public:
    bool start()
    {
        if (!Scripted::start("table.py") || !engine.collect({}))
            return false;
        model = std::make_unique<PackageTable::Model>(&engine, nullptr);
        proxy = std::make_unique<PackageTable::SortFilterProxyModel>(PackageTable::StateFilter::All,
                                                                     true, true, &engine, nullptr);
        proxy->setSourceModel(model.get());
        return true;
    }

    // The model's cell of the first package or group of that name.
    QModelIndex index(const QString &name, int column = PackageTable::NameColumn) const
    {
        for (int i = 0; i < engine.count(); ++i) {
            if (engine[i]->name == name)
                return model->index(i, column);
        }
        return {};
    }
    Package::Entry *entry(const QString &name) const { return engine[index(name).row()]; }

    // The names that the proxy lists, in its order.
    QString listed() const
    {
        QStringList names;
        for (int i = 0; i < proxy->rowCount(); ++i)
            names.append(proxy->index(i, PackageTable::NameColumn).data().toString());
        return names.join(u' ');
    }

    std::unique_ptr<PackageTable::Model> model;
    std::unique_ptr<PackageTable::SortFilterProxyModel> proxy;
};
