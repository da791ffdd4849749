// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/fieldstext.h"

#include <QFontMetrics>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextOption>

#include <algorithm>

namespace PackageTable {

FieldsText::FieldsText(QWidget *parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void FieldsText::setFields(const QList<Field> &fields)
{
    const QFontMetrics metrics(font());
    int column = 0;
    for (const auto &[title, value] : fields)
        column = std::max(column, metrics.horizontalAdvance(title));
    column += 2 * metrics.averageCharWidth();

    // A tab behind the title, and all lines of a value as far to the right as the first.
    QTextBlockFormat format;
    format.setLeftMargin(column);
    format.setTextIndent(-column);
    format.setTabPositions({QTextOption::Tab(column, QTextOption::LeftTab)});
    clear();
    QTextCursor cursor(document());
    cursor.setBlockFormat(format);
    QString separator;
    for (const auto &[title, value] : fields) {
        QString lines = value;
        lines.replace(u'\n', QChar::LineSeparator);
        cursor.insertText(separator + title + u'\t' + lines);
        separator = u'\n';
    }
    moveCursor(QTextCursor::Start);
}

} // namespace PackageTable
