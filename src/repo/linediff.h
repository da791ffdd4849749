// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QStringList>

// One line of the difference of two texts.
struct DiffLine
{
    enum Kind { Same, Removed, Added };
    Kind kind;
    qsizetype before; // its number in the old text; where it would stand for an added one
    qsizetype after;  // the same in the new text
};

// What leads from one list of lines to the other, with all lines of both in order. Shortest, unless
// the lists differ in thousands of lines: then what differs is removed whole and added whole.
QList<DiffLine> diffLines(const QStringList &before, const QStringList &after);
