#pragma once

#include <QTextEdit>

// A text area that can ask for room for a number of rows and columns of its font, and that appends
// paragraphs without gaps.
class HTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit HTextEdit(QWidget *parent = nullptr);
    HTextEdit(int rows, int columns, QWidget *parent = nullptr);

    QSize sizeHint() const override;

    // Adds rich text as a new paragraph with no margin above and below. The view stays where it is,
    // unless it stood at the end: then it follows.
    void appendCompact(const QString &html);

private:
    int m_rows = 0;
    int m_columns = 0;
};
