// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLineEdit;
class QTextEdit;

namespace Log {

// Finds text in a text area, forwards and backwards, in any case, going on at the other end. A text
// that does not occur is marked in the field. Return finds the next, Shift+Return the previous;
// Escape closes the bar.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    FindBar(QTextEdit *area, QWidget *parent);

public Q_SLOTS:
    // Shows the bar for typing, with what is selected in the area.
    void open();
    void close();
    void findNext();
    void findPrevious();
    // To be called when the area has more text, from a position on: what did not occur may now.
    void textGrew(int from);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void findTyped();
    void find(bool backwards);
    void showFound(bool found);

    QTextEdit *m_area;
    QLineEdit *m_edit;
    bool m_found = true;
};

} // namespace Log
