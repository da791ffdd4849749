// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "helidedlabel.h"

#include "app/harmless.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

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

void HElidedLabel::setMaximumLines(int lines)
{
    m_maximumLines = lines;
    updateGeometry();
}

int HElidedLabel::heightForWidth(int width) const
{
    const int around = this->width() - room().width();
    const auto more = std::max<qsizetype>(linesIn(width - around).size() - 1, 0);
    return QLabel::minimumSizeHint().height() + int(more) * fontMetrics().lineSpacing();
}

QStringList HElidedLabel::linesIn(int width) const
{
    const QString whole = harmlessLine(text().simplified());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(whole, font());
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() == m_maximumLines - 1) {
            lines += fontMetrics().elidedText(whole.mid(line.textStart()), Qt::ElideRight, width);
            break;
        }
        lines += whole.mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
    return lines;
}

bool HElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QStringList parts;
    if (linesIn(room().width()).join(QString()) != text())
        parts += text();
    if (!toolTip().isEmpty())
        parts += toolTip();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       harmlessTip(parts.join(QStringLiteral("\n\n"))), this);
    return true;
}

void HElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, room(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
                          isEnabled(), linesIn(room().width()).join(u'\n'), foregroundRole());
}
