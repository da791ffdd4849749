// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packagetable/packagetable.h"

#include <QString>

namespace PackageTable {

class SortFilterProxyModel;

// The name of a state filter in the window's selector.
QString stateFilterName(StateFilter filter);

// Why nothing is listed, for the place of the rows that are not there: names the filter that hides
// most of them.
QString emptyText(const SortFilterProxyModel &proxy);

} // namespace PackageTable
