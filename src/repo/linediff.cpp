#include "linediff.h"

#include <algorithm>
#include <vector>

namespace {

constexpr qsizetype mostCells = 4'000'000;

} // namespace

QList<DiffLine> diffLines(const QStringList &before, const QStringList &after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype head = 0, tail = 0;
    while (head < shorter && before[head] == after[head])
        ++head;
    while (tail < shorter - head &&
           before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;

    // The longest common subsequence of the tails of what is left, by where these begin.
    const qsizetype rows = before.size() - head - tail, columns = after.size() - head - tail;
    const bool exact = (rows + 1) * (columns + 1) <= mostCells;
    std::vector<int> lengths(exact ? size_t((rows + 1) * (columns + 1)) : 0);
    const auto length = [&](qsizetype i, qsizetype j) -> int & {
        return lengths[size_t(i * (columns + 1) + j)];
    };
    for (qsizetype i = exact ? rows - 1 : -1; i >= 0; --i) {
        for (qsizetype j = columns - 1; j >= 0; --j)
            length(i, j) = before[head + i] == after[head + j]
                               ? length(i + 1, j + 1) + 1
                               : std::max(length(i + 1, j), length(i, j + 1));
    }

    QList<DiffLine> lines;
    qsizetype i = 0, j = 0;
    const auto add = [&](DiffLine::Kind kind) {
        lines.append({kind, i, j});
        i += kind != DiffLine::Added;
        j += kind != DiffLine::Removed;
    };
    while (i < before.size() || j < after.size()) {
        const qsizetype row = i - head, column = j - head;
        const bool atHead = i < head, atTail = row >= rows && column >= columns;
        const bool same =
            exact && row >= 0 && row < rows && column < columns && before[i] == after[j];
        if (atHead || atTail || same)
            add(DiffLine::Same);
        else if (row < rows && (!exact || column >= columns ||
                                length(row + 1, column) >= length(row, column + 1)))
            add(DiffLine::Removed);
        else
            add(DiffLine::Added);
    }
    return lines;
}
