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
    const QSize whole = widget()->sizeHint() + QSize(frame, frame) +
                        QSize(verticalScrollBar()->sizeHint().width(), 0);
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
