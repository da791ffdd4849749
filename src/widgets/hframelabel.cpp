// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hframelabel.h"

#include <QPaintEvent>
#include <QPainter>

HFrameLabel::HFrameLabel(QWidget *parent) : HFrameLabel(QString(), parent) {}

HFrameLabel::HFrameLabel(const QString &text, QWidget *parent) : HElidedLabel(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(2);
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setText(text);
}

void HFrameLabel::paintEvent(QPaintEvent *event)
{
    // The toolkit repaints the inside of the frame when the text changes.
    if (event->rect() != rect())
        update();
    if (text().isEmpty())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), palette().brush(backgroundRole()));
    drawFrame(&painter);
    painter.end();
    HElidedLabel::paintEvent(event);
}
