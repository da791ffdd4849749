// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/htextedit.h"

#include <QLineEdit>
#include <QMimeData>

// The hidden editors of the masked fields. They hold the true text, are never shown and never
// painted, and give nothing to the clipboard.

class PasswdRealLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    void setVisible(bool) override { QLineEdit::setVisible(false); }
    void keyPressEvent(QKeyEvent *event) override { QLineEdit::keyPressEvent(event); }
    void keyReleaseEvent(QKeyEvent *event) override { QLineEdit::keyReleaseEvent(event); }
    void inputMethodEvent(QInputMethodEvent *event) override { QLineEdit::inputMethodEvent(event); }
    // As QLineEdit pastes: one step of its own to undo.
    void insertApart(const QString &text)
    {
        endStep();
        insert(text);
        endStep();
    }

protected:
    void paintEvent(QPaintEvent *) override {}

private:
    // A cursor that moves ends a step, a selection that is replaced begins one.
    void endStep()
    {
        const int cursor = cursorPosition();
        if (hasSelectedText())
            return;
        setCursorPosition(cursor > 0 ? cursor - 1 : 1);
        setCursorPosition(cursor);
    }
};

class PasswdRealTextEdit : public HTextEdit
{
    Q_OBJECT

public:
    using HTextEdit::HTextEdit;
    using HTextEdit::setViewportMargins;

    void setVisible(bool) override { HTextEdit::setVisible(false); }
    void keyPressEvent(QKeyEvent *event) override { HTextEdit::keyPressEvent(event); }
    void keyReleaseEvent(QKeyEvent *event) override { HTextEdit::keyReleaseEvent(event); }
    void inputMethodEvent(QInputMethodEvent *event) override { HTextEdit::inputMethodEvent(event); }

protected:
    void paintEvent(QPaintEvent *) override {}
    QMimeData *createMimeDataFromSelection() const override { return new QMimeData; }
};
