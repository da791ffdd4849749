// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hseparator.h"

HSeparator::HSeparator(QWidget *parent) : HSeparator(Qt::Horizontal, parent) {}

HSeparator::HSeparator(Qt::Orientation orientation, QWidget *parent) : QFrame(parent)
{
    setFrameShape(orientation == Qt::Horizontal ? QFrame::HLine : QFrame::VLine);
    setFrameShadow(QFrame::Sunken);
}
