// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/htextedit.h"

#include <QPointer>
#include <QRegularExpression>

class PasswdRealTextEdit;

// A text edit for a list of URLs that may carry passwords: what PasswdLineEdit is for one. Every
// match of `mask` in the text has its captures masked.
class PasswdTextEdit : public HTextEdit
{
    Q_OBJECT

public:
    PasswdTextEdit(const QRegularExpression &mask, QWidget *parent);
    PasswdTextEdit(const QRegularExpression &mask, int rows, int columns, QWidget *parent);
    ~PasswdTextEdit() override;

    void setRealPlainText(const QString &text);
    QString realPlainText() const;

public Q_SLOTS:
    // These hide the base class's, which would change the copy.
    void cut();
    void undo();
    void redo();
    void clear();

Q_SIGNALS:
    void realTextChanged();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;
    // What is seen of a text, of the same length and with its lines.
    virtual QString masked(const QString &real) const;
    QTextDocument *realDocument() const;
    // Whether the change of the real text that is being made brings back what was there before: an
    // undo, or a paste of what was copied from a masked field.
    bool isRestoring() const { return m_restoring; }

private Q_SLOTS:
    void textChanged();

private:
    void construct();
    void showMasked();
    void carryToReal();
    void carryToVisible();
    void visibleEdited();
    void insertReal(const QString &text);
    void placeReal();

    QRegularExpression m_mask;
    QPointer<PasswdRealTextEdit> m_real;
    bool m_restoring = false;
    bool m_carrying = false; // what happens to this editor is our own doing
};
