#include "htextedit.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

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
    append(html);
    QTextCursor cursor(document()->lastBlock());
    QTextBlockFormat format = cursor.blockFormat();
    format.setTopMargin(0);
    format.setBottomMargin(0);
    cursor.setBlockFormat(format);
}
