// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hscrollarea.h"

#include <QFocusFrame>
#include <QScreen>
#include <QScrollBar>

HScrollArea::HScrollArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
}

void HScrollArea::takeFocusToScroll()
{
    m_focusFrame = new QFocusFrame(this);
    setFocusPolicy(Qt::NoFocus);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int from, int to) {
        setFocusPolicy(to > from ? Qt::StrongFocus : Qt::NoFocus);
    });
}

void HScrollArea::focusInEvent(QFocusEvent *event)
{
    QScrollArea::focusInEvent(event);
    if (m_focusFrame)
        m_focusFrame->setWidget(this);
}

void HScrollArea::focusOutEvent(QFocusEvent *event)
{
    QScrollArea::focusOutEvent(event);
    if (m_focusFrame)
        m_focusFrame->setWidget(nullptr);
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
