// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QTableView;

// Has screen readers find the cells of a view that have a check state as checkable ones whose action
// toggles it through the model; the toolkit's own cells only tell that they are checked, and their
// action selects. To be called in the constructor of the view.
void makeCellsCheckable(QTableView *view);
