#include "widgets/hitemdelegate.h"

void HItemDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option,
                                const QRect &rect, const QString &text) const
{
    QStyleOptionViewItem unwrapped(option);
    unwrapped.features &= ~QStyleOptionViewItem::WrapText;
    QItemDelegate::drawDisplay(painter, unwrapped, rect, text);
}
