// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace PackageTable {

// How the expression is applied; the index of the main window's selector.
enum class Mode { Filter = 0, Search = 1 };

// Which packages are listed; the index of the main window's selector.
enum class StateFilter { Updatable = 0, Installable = 1, Removable = 2, All = 3 };

// What keeps a row from being listed: the first of these that rejects it.
enum class Hides { State, Duplicates, Groups, Expression, Search, Nothing };

// The columns of the table.
enum Column {
    ActionColumn = 0,
    StateColumn = 1,
    KindColumn = 2,
    NameColumn = 3,
    VersionColumn = 4,
    RepositoryColumn = 5,
    ArchitectureColumn = 6,
    SizeColumn = 7,
    BuildTimeColumn = 8,
    ColumnCount = 9
};

} // namespace PackageTable
