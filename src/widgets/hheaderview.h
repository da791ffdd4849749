// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHeaderView>

// A table's header, which the keyboard reaches too: Left, Right, Home and End choose a column,
// Return and Space sort by it as a click does, Ctrl+Left and Ctrl+Right move it, Plus and Minus
// change its width, the menu key asks for the context menu, and Down goes to the rows.
class HHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    explicit HHeaderView(QWidget *parent);

Q_SIGNALS:
    void chosen(int column);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;

private:
    void choose(int column);
    void leaveHidden();
    int shownBeside(int place, int step) const;
    void moveBy(int step);
    void sortByChosen();

    int m_column = 0;
};
