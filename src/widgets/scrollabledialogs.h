// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "hdialog.h"

class QDialogButtonBox;
class LongText;
class QPushButton;

// A dialog that shows a plain text of any length: as large as the text needs, within the screen,
// resizable and scrollable. The text can be selected and copied with mouse and keyboard.
class ScrollableDialog : public HDialog
{
    Q_OBJECT

public:
    QSize sizeHint() const override;

protected:
    ScrollableDialog(const QString &text, QWidget *parent);

    void setDefaultButton(QPushButton *button);

    LongText *m_text;
    QDialogButtonBox *m_buttons;
};

// Asks a question about a long text. exec() gives 1 for the yes button, also by Return, and 0 for
// the no button, Escape and closing.
class ScrollableConfirmDialog : public ScrollableDialog
{
    Q_OBJECT

public:
    ScrollableConfirmDialog(const QString &text, const QString &yesText, const QString &noText,
                            QWidget *parent = nullptr);
};

// Shows a long text; its OK button, Return, Escape and closing end it.
class ScrollableErrorDialog : public ScrollableDialog
{
    Q_OBJECT

public:
    explicit ScrollableErrorDialog(const QString &text, QWidget *parent = nullptr);
};
