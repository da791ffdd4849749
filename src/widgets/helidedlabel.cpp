// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "helidedlabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {

constexpr int fewestColumns = 8;

} // namespace

HElidedLabel::HElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize HElidedLabel::minimumSizeHint() const
{
    const QSize most = QLabel::minimumSizeHint();
    return {qMin(most.width(), fewestColumns * fontMetrics().averageCharWidth()), most.height()};
}

QRect HElidedLabel::room() const
{
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

QString HElidedLabel::elided() const
{
    return fontMetrics().elidedText(text().simplified(), Qt::ElideRight, room().width());
}

bool HElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QStringList parts;
    if (elided() != text())
        parts += text();
    if (!toolTip().isEmpty())
        parts += toolTip();
    const QString tip = parts.join(QStringLiteral("\n\n"));
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       tip.isEmpty() ? tip : Qt::convertFromPlainText(tip, Qt::WhiteSpaceNormal),
                       this);
    return true;
}

void HElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, room(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())) |
                              Qt::TextSingleLine,
                          palette(), isEnabled(), elided(), foregroundRole());
}
