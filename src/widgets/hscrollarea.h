// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QScrollArea>

class QFocusFrame;

// A scroll area whose widget takes the width there is, and that wants to be as large as its widget,
// bars included, within the screen. Without a horizontal bar it is never narrower than its widget.
class HScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit HScrollArea(QWidget *parent = nullptr);

    // Where nothing inside takes the focus: Tab reaches the area itself while there is something to
    // scroll.
    void takeFocusToScroll();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QFocusFrame *m_focusFrame = nullptr;
};
