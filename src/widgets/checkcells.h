#pragma once

class QTableView;

// Has screen readers find the cells of a view that have a check state as checkable ones whose action
// toggles it through the model; the toolkit's own cells only tell that they are checked, and their
// action selects. To be called in the constructor of the view.
void makeCellsCheckable(QTableView *view);
