#include "hseparator.h"

HSeparator::HSeparator(QWidget *parent) : HSeparator(Qt::Horizontal, parent) {}

HSeparator::HSeparator(Qt::Orientation orientation, QWidget *parent) : QFrame(parent)
{
    setFrameShape(orientation == Qt::Horizontal ? QFrame::HLine : QFrame::VLine);
    setFrameShadow(QFrame::Sunken);
}
