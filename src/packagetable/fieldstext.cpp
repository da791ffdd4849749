// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/fieldstext.h"

#include "app/harmless.h"
#include "widgets/saverow.h"

#include <QFontMetrics>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextOption>

#include <algorithm>

namespace PackageTable {

namespace {

// Characters of a value: all of this text is laid out at once.
constexpr qsizetype longestValue = 20'000;

} // namespace

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
    QString separator, whole, shown;
    for (const auto &[title, value] : fields) {
        QString lines = harmlessPage(value).left(longestValue);
        whole += title + u'\t' + value + u'\n';
        shown += title + u'\t' + lines + u'\n';
        lines.replace(u'\n', QChar::LineSeparator);
        cursor.insertText(separator + title + u'\t' + lines);
        separator = u'\n';
    }
    moveCursor(QTextCursor::Start);
    setViewportMargins(0, 0, 0, SaveRow::update(m_saveRow, this, whole, shown));
}

void FieldsText::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    if (m_saveRow)
        m_saveRow->place();
}

} // namespace PackageTable
