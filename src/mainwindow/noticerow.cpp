// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/noticerow.h"

#include "app/harmless.h"
#include "widgets/announce.h"
#include "widgets/helidedlabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>

NoticeRow::NoticeRow(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    createPlace(Rights, QStringLiteral("rightsNotice"));
    createPlace(Outdated, QStringLiteral("outdatedNotice"));
    createPlace(LeftOut, QStringLiteral("leftOutNotice"));
    createPlace(Replacements, QStringLiteral("replacementsNotice"));
    layout->addStretch();
}

void NoticeRow::createPlace(Notice which, const QString &name)
{
    Place &place = m_places[which];
    place.widget = new QWidget(this);
    auto *icon = new QLabel(place.widget);
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(fontMetrics().height()));
    place.label = new HElidedLabel(place.widget);
    place.label->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    place.label->setObjectName(name);
    place.button = new QToolButton(place.widget);
    place.button->setObjectName(name + QStringLiteral("Button"));
    place.button->setFocusPolicy(Qt::StrongFocus);
    connect(place.button, &QToolButton::clicked, this, [this, which] {
        const std::function<void()> slot = m_places[which].slot; // which may take itself away
        slot();
    });
    auto *layout = new QHBoxLayout(place.widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(icon);
    layout->addWidget(place.label);
    layout->addWidget(place.button);
    place.widget->hide();
    this->layout()->addWidget(place.widget);
}

void NoticeRow::setNotice(Notice which, const QString &text, const QString &toolTip,
                          const QString &buttonText, const std::function<void()> &slot)
{
    Place &place = m_places[which];
    const QString shown = harmlessLine(text);
    const bool isNews = !has(which) || place.label->text() != shown;
    place.label->setText(shown);
    const QString tip = harmlessTip(toolTip);
    place.label->setToolTip(tip);
    place.label->setAccessibleDescription(tip);
    place.button->setText(buttonText);
    place.button->setToolTip(tip);
    place.button->setAccessibleDescription(shown);
    place.button->setVisible(!buttonText.isEmpty());
    place.slot = slot;
    if (isNews)
        announce(window(), shown);
    place.widget->show();
}

void NoticeRow::clear(Notice which)
{
    m_places[which].widget->hide();
}

QSize NoticeRow::withHeight(const QSize &size) const
{
    const QToolButton *button = m_places[Rights].button;
    QStyleOptionToolButton option;
    option.initFrom(button);
    option.toolButtonStyle = Qt::ToolButtonTextOnly;
    const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, QStringLiteral("X"));
    const QSize whole = style()->sizeFromContents(QStyle::CT_ToolButton, &option, text, button);
    return QSize(size.width(), whole.height());
}

QSize NoticeRow::sizeHint() const
{
    return withHeight(QWidget::sizeHint());
}

QSize NoticeRow::minimumSizeHint() const
{
    return withHeight(QWidget::minimumSizeHint());
}
