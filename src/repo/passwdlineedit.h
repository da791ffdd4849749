// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QClipboard>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>

class PasswdRealLineEdit;

// A line edit for a URL that may carry a password, or several. The user edits the text freely, and
// sees mask characters where a match of `mask` captures something.
//
// Typing and pasting change the text of a hidden real editor, of which this one shows a masked
// copy; cursor and selection are the same in both. Pointing, moving and selecting is done on what
// is seen, so nothing about the password shows in where a word ends. Copies, drags, input methods
// and assistive technology get the masked text; what was copied is real again where it is pasted into
// a masked field.
class PasswdLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    PasswdLineEdit(const QRegularExpression &mask, QWidget *parent);
    ~PasswdLineEdit() override;

    void setRealText(const QString &text);
    QString realText() const;

public Q_SLOTS:
    // These hide the base class's, which would change the copy.
    void cut();
    void copy();
    void paste();
    void undo();
    void redo();
    void clear();

Q_SIGNALS:
    void realTextChanged(const QString &text);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void textChanged(const QString &real);

private:
    QString masked(const QString &real) const;
    void showMasked();
    void carryToReal();
    void carryToVisible();
    void visibleEdited(const QString &visible);
    void insertReal(const QString &text);
    void giveCopy(QClipboard::Mode mode);
    void giveSelection();

    QRegularExpression m_mask;
    QPointer<PasswdRealLineEdit> m_real;
    bool m_carrying = false; // what happens to this editor is our own doing
};
