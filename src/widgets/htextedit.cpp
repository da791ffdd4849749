// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "htextedit.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>

HTextEdit::HTextEdit(QWidget *parent) : QTextEdit(parent) {}

HTextEdit::HTextEdit(int rows, int columns, QWidget *parent)
    : QTextEdit(parent), m_rows(rows), m_columns(columns)
{
}

QSize HTextEdit::sizeHint() const
{
    QSize hint = QTextEdit::sizeHint();
    const int around = 2 * (frameWidth() + int(document()->documentMargin()));
    if (m_columns > 0) {
        hint.setWidth(m_columns * fontMetrics().averageCharWidth() + around +
                      verticalScrollBar()->sizeHint().width());
    }
    if (m_rows > 0)
        hint.setHeight(m_rows * fontMetrics().lineSpacing() + around);
    return hint;
}

void HTextEdit::appendCompact(const QString &html)
{
    // Set on the first block once it holds a paragraph, which may be an empty one.
    constexpr int used = 0;
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    if (document()->isEmpty() && cursor.block().userState() != used) {
        cursor.setBlockFormat(QTextBlockFormat());
        cursor.setBlockCharFormat(QTextCharFormat());
        cursor.setCharFormat(QTextCharFormat());
        cursor.block().setUserState(used);
    } else {
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    }
    const int start = cursor.position();
    cursor.insertHtml(QStringLiteral("<body style=\"white-space: pre\">") + html);
    cursor.setPosition(start, QTextCursor::KeepAnchor);
    QTextBlockFormat compact;
    compact.setTopMargin(0);
    compact.setBottomMargin(0);
    cursor.mergeBlockFormat(compact);
    cursor.endEditBlock();
}

QMimeData *HTextEdit::createMimeDataFromSelection() const
{
    auto *data = new QMimeData;
    data->setText(textCursor().selection().toPlainText());
    return data;
}
