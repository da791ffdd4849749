// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "longtext.h"

#include "app/harmless.h"
#include "saverow.h"

LongText::LongText(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
}

void LongText::setText(const QString &text)
{
    const QString shown = harmlessPage(text);
    setPlainText(shown);
    setViewportMargins(0, 0, 0, SaveRow::update(m_saveRow, this, text, shown));
}

void LongText::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    if (m_saveRow)
        m_saveRow->place();
}
