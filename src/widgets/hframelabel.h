// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/helidedlabel.h"

// A status text in a frame, over the palette's Base colour. Without a text nothing is drawn, but the
// place is kept.
class HFrameLabel : public HElidedLabel
{
    Q_OBJECT

public:
    explicit HFrameLabel(QWidget *parent = nullptr);
    explicit HFrameLabel(const QString &text, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
