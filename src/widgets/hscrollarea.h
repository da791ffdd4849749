// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QScrollArea>

// A scroll area whose widget takes the width there is, and that wants to be as large as its widget,
// bars included, within the screen. Without a horizontal bar it is never narrower than its widget.
class HScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit HScrollArea(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};
