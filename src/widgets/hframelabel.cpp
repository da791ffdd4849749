#include "hframelabel.h"

#include <QPainter>

HFrameLabel::HFrameLabel(QWidget *parent) : HFrameLabel(QString(), parent) {}

HFrameLabel::HFrameLabel(const QString &text, QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(2);
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setText(text);
}

void HFrameLabel::paintEvent(QPaintEvent *event)
{
    if (text().isEmpty())
        return;
    QPainter(this).fillRect(rect(), palette().brush(backgroundRole()));
    QLabel::paintEvent(event);
}
