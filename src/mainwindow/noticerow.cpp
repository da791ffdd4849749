#include "mainwindow/noticerow.h"

#include "app/harmless.h"
#include "widgets/announce.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>

namespace {

constexpr int iconGap = 4;
constexpr int fewestColumns = 12;

} // namespace

NoticeLabel::NoticeLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
}

// Of the icon, which is as high as the text.
int NoticeLabel::iconSpace() const
{
    return fontMetrics().height() + iconGap;
}

QSize NoticeLabel::sizeHint() const
{
    return QSize(iconSpace() + fontMetrics().horizontalAdvance(text()) + 1, fontMetrics().height());
}

QSize NoticeLabel::minimumSizeHint() const
{
    const QSize least(iconSpace() + fewestColumns * fontMetrics().averageCharWidth(),
                      fontMetrics().height());
    return least.boundedTo(sizeHint());
}

void NoticeLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Qt::LayoutDirection direction = layoutDirection();
    const QIcon icon = style()->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, this);
    const int size = fontMetrics().height();
    const QRect iconRect(0, (height() - size) / 2, size, size);
    icon.paint(&painter, QStyle::visualRect(direction, rect(), iconRect), Qt::AlignCenter,
               isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QRect textRect = rect().adjusted(iconSpace(), 0, 0, 0);
    style()->drawItemText(&painter, QStyle::visualRect(direction, rect(), textRect),
                          int(QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter)),
                          palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, textRect.width()),
                          foregroundRole());
}

NoticeRow::NoticeRow(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    createPlace(Rights, QStringLiteral("rightsNotice"));
    createPlace(Outdated, QStringLiteral("outdatedNotice"));
    createPlace(Replacements, QStringLiteral("replacementsNotice"));
    layout->addStretch();
}

void NoticeRow::createPlace(Notice which, const QString &name)
{
    Place &place = m_places[which];
    place.widget = new QWidget(this);
    place.label = new NoticeLabel(place.widget);
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
    layout->addWidget(place.label);
    layout->addWidget(place.button);
    place.widget->hide();
    this->layout()->addWidget(place.widget);
}

void NoticeRow::setNotice(Notice which, const QString &text, const QString &toolTip,
                          const QString &buttonText, const std::function<void()> &slot)
{
    Place &place = m_places[which];
    const QString shown = harmless(text);
    const bool isNews = !has(which) || place.label->text() != shown;
    place.label->setText(shown);
    QString tip = toolTip.isEmpty() ? shown : shown + QStringLiteral("\n\n") + harmless(toolTip);
    if (Qt::mightBeRichText(tip))
        tip = Qt::convertFromPlainText(tip);
    place.label->setToolTip(tip);
    place.label->setAccessibleDescription(harmless(toolTip));
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
