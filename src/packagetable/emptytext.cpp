// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/emptytext.h"

#include "packagetable/sortfilterproxymodel.h"

#include <QCoreApplication>

namespace PackageTable {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PackageTable::Texts)
};

} // namespace

QString stateFilterName(StateFilter filter)
{
    switch (filter) {
    case StateFilter::Updatable:
        return Texts::tr("View Updatable");
    case StateFilter::Installable:
        return Texts::tr("View Installable");
    case StateFilter::Removable:
        return Texts::tr("View Removable");
    case StateFilter::All:
        break;
    }
    return Texts::tr("View All");
}

QString emptyText(const SortFilterProxyModel &proxy)
{
    switch (proxy.hidesMost()) {
    case Hides::State:
        return Texts::tr("No packages are listed.\n\"%1\" hides most of them.")
            .arg(stateFilterName(proxy.stateFilter()));
    case Hides::Duplicates:
        return Texts::tr("No packages are listed.\nMost of them are hidden because \"Include "
                         "Duplicates\" is not checked.");
    case Hides::Groups:
        return Texts::tr("No packages are listed.\nMost of them are hidden because \"Include "
                         "Groups\" is not checked.");
    case Hides::Expression:
        return Texts::tr("No packages are listed.\nThe regular expression \"%1\" hides most of "
                         "them.")
            .arg(proxy.query().pattern);
    case Hides::Search:
        return Texts::tr("No packages are listed.\nThe search has not been run to its end.");
    case Hides::Nothing:
        break;
    }
    return Texts::tr("There are no packages.");
}

} // namespace PackageTable
