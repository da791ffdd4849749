// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTextEdit>

// A text area that can ask for room for a number of rows and columns of its font, and that appends
// paragraphs without gaps. What is copied from it is plain text.
class HTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit HTextEdit(QWidget *parent = nullptr);
    HTextEdit(int rows, int columns, QWidget *parent = nullptr);

    QSize sizeHint() const override;

    // Adds rich text as a new paragraph with no margin above and below, blanks and line breaks as
    // they stand in it. The view does not move.
    void appendCompact(const QString &html);

protected:
    QMimeData *createMimeDataFromSelection() const override;

private:
    int m_rows = 0;
    int m_columns = 0;
};
