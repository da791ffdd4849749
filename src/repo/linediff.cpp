// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "linediff.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

constexpr int mostEdits = 2000;

using Lines = QStringList::const_iterator;
using Kinds = std::vector<DiffLine::Kind>;

// The way back through the furthest points on each diagonal, whose states before each edit these are.
Kinds stepsBack(const std::vector<std::vector<int>> &states, int x, int y)
{
    Kinds steps;
    for (int edits = int(states.size()) - 1; edits >= 0; --edits) {
        const std::vector<int> &furthest = states[size_t(edits)];
        const auto at = [&](int diagonal) { return furthest[size_t(diagonal + edits + 1)]; };
        const int diagonal = x - y;
        const bool down =
            diagonal == -edits || (diagonal != edits && at(diagonal - 1) < at(diagonal + 1));
        const int fromX = edits == 0 ? 0 : down ? at(diagonal + 1) : at(diagonal - 1);
        const int fromY = edits == 0 ? 0 : fromX - (down ? diagonal + 1 : diagonal - 1);
        const int editedX = edits > 0 && !down ? fromX + 1 : fromX;
        steps.insert(steps.end(), size_t(x - editedX), DiffLine::Same);
        if (edits > 0)
            steps.push_back(down ? DiffLine::Added : DiffLine::Removed);
        x = fromX;
        y = fromY;
    }
    std::reverse(steps.begin(), steps.end());
    return steps;
}

// Myers's algorithm: the fewest lines removed and added. All of them when these are too many.
Kinds shortest(Lines before, int rows, Lines after, int columns)
{
    const int most = std::min(rows + columns, mostEdits);
    std::vector<int> furthest(size_t(2 * most + 3)); // the row, by diagonal
    std::vector<std::vector<int>> states;
    const auto at = [&](int diagonal) -> int & { return furthest[size_t(diagonal + most + 1)]; };
    for (int edits = 0; edits <= most; ++edits) {
        states.emplace_back(&at(-edits - 1), &at(edits + 1) + 1);
        for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
            const bool down =
                diagonal == -edits || (diagonal != edits && at(diagonal - 1) < at(diagonal + 1));
            int x = down ? at(diagonal + 1) : at(diagonal - 1) + 1;
            int y = x - diagonal;
            while (x < rows && y < columns && before[x] == after[y]) {
                ++x;
                ++y;
            }
            at(diagonal) = x;
            if (x >= rows && y >= columns)
                return stepsBack(states, x, y);
        }
    }
    Kinds all(size_t(rows), DiffLine::Removed);
    all.insert(all.end(), size_t(columns), DiffLine::Added);
    return all;
}

} // namespace

QList<DiffLine> diffLines(const QStringList &before, const QStringList &after)
{
    const auto [oldHead, newHead] =
        std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend());
    const auto [oldTail, newTail] =
        std::mismatch(before.crbegin(), std::make_reverse_iterator(oldHead), after.crbegin(),
                      std::make_reverse_iterator(newHead));
    Kinds kinds(size_t(oldHead - before.cbegin()), DiffLine::Same);
    const Kinds middle =
        shortest(oldHead, int(oldTail.base() - oldHead), newHead, int(newTail.base() - newHead));
    kinds.insert(kinds.end(), middle.begin(), middle.end());
    kinds.insert(kinds.end(), size_t(oldTail - before.crbegin()), DiffLine::Same);

    QList<DiffLine> lines;
    qsizetype i = 0, j = 0;
    for (const DiffLine::Kind kind : kinds) {
        lines.append({kind, i, j});
        i += kind != DiffLine::Added;
        j += kind != DiffLine::Removed;
    }
    return lines;
}
