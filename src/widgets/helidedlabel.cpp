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

QString HElidedLabel::elided() const
{
    return fontMetrics().elidedText(text().simplified(), Qt::ElideRight, contentsRect().width());
}

bool HElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || elided() == text())
        return QLabel::event(event);
    const QString whole =
        toolTip().isEmpty() ? text() : text() + QStringLiteral("\n\n") + toolTip();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       Qt::convertFromPlainText(whole, Qt::WhiteSpaceNormal), this);
    return true;
}

void HElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())) |
                              Qt::TextSingleLine,
                          palette(), isEnabled(), elided(), foregroundRole());
}
