// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hwraplabel.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere;
constexpr int fewestColumns = 16;
constexpr int wantedColumns = 80;

} // namespace

HWrapLabel::HWrapLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize HWrapLabel::sizeIn(int width) const
{
    const QRect room(0, 0, qMax(width, 1), QWIDGETSIZE_MAX);
    return fontMetrics()
        .boundingRect(room, flags, text())
        .size()
        .expandedTo({0, fontMetrics().height()});
}

int HWrapLabel::heightForWidth(int width) const
{
    return sizeIn(width).height();
}

QSize HWrapLabel::sizeHint() const
{
    return sizeIn(wantedColumns * fontMetrics().averageCharWidth());
}

QSize HWrapLabel::minimumSizeHint() const
{
    return QSize(fewestColumns * fontMetrics().averageCharWidth(), fontMetrics().height());
}

void HWrapLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), text(),
                          foregroundRole());
}
