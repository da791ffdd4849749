// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hscrollarea.h"

#include <QScreen>
#include <QScrollBar>

HScrollArea::HScrollArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
}

QSize HScrollArea::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    const int frame = 2 * frameWidth();
    const QSize whole = widget()
                            ->sizeHint()
                            .expandedTo(widget()->minimumSizeHint())
                            .expandedTo(widget()->minimumSize()) +
                        QSize(frame + verticalScrollBar()->sizeHint().width(), frame);
    return whole.boundedTo(screen()->availableSize() * 8 / 10);
}

QSize HScrollArea::minimumSizeHint() const
{
    QSize minimum = QScrollArea::minimumSizeHint();
    if (widget() && horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff) {
        minimum.setWidth(widget()->minimumSizeHint().width() + 2 * frameWidth() +
                         verticalScrollBar()->sizeHint().width());
    }
    return minimum;
}
