// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/hitemdelegate.h"

#include "app/colors.h"

#include <QPainter>

namespace {

constexpr int bandAlpha = 70; // of 255, of the highlight's colour

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

// The colours that models give are made for a light background; what is disabled need not be read.
void makeReadable(QStyleOptionViewItem &option)
{
    const QPalette::ColorGroup group = groupOf(option);
    if (group == QPalette::Disabled)
        return;
    const bool selected = option.state & QStyle::State_Selected;
    const bool alternate = option.features & QStyleOptionViewItem::Alternate;
    const QColor background = option.palette.color(group, selected    ? QPalette::Highlight
                                                          : alternate ? QPalette::AlternateBase
                                                                      : QPalette::Base);
    if (!selected && Colors::isPale(background))
        return;
    const QPalette::ColorRole role = selected ? QPalette::HighlightedText : QPalette::Text;
    const QColor given = option.palette.color(group, role);
    if (const QColor shade = Colors::readable(given, background); shade != given)
        option.palette.setColor(group, role, shade);
}

} // namespace

void HItemDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option,
                                const QRect &rect, const QString &text) const
{
    if (text.isEmpty())
        return; // a selected cell without a text would get a stray patch of colour
    QStyleOptionViewItem unwrapped(option);
    unwrapped.features &= ~QStyleOptionViewItem::WrapText;
    makeReadable(unwrapped);
    QItemDelegate::drawDisplay(painter, unwrapped, rect, text);
}

void HItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if ((option.state & QStyle::State_Selected) && !option.showDecorationSelected) {
        QColor band = option.palette.color(groupOf(option), QPalette::Highlight);
        band.setAlpha(bandAlpha);
        painter->fillRect(option.rect, band);
    }
    QItemDelegate::paint(painter, option, index);
}

// The toolkit's own frame is around a text, so that a cell without one has none.
void HItemDelegate::drawFocus(QPainter *painter, const QStyleOptionViewItem &option,
                              const QRect &) const
{
    if (!(option.state & QStyle::State_HasFocus))
        return;
    painter->save();
    painter->setPen(option.palette.color(groupOf(option), QPalette::WindowText));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter->restore();
}
