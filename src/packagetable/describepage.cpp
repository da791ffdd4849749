#include "packagetable/describepage.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace PackageTable::Describe {

Page::Page(QWidget *content, QWidget *parent)
    : QStackedWidget(parent), m_message(new QWidget(this)), m_text(new QLabel(m_message)),
      m_retry(new QPushButton(tr("&Load"), m_message))
{
    m_text->setObjectName(QStringLiteral("pageMessage"));
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_retry->setObjectName(QStringLiteral("pageLoadButton"));
    m_retry->setAutoDefault(false);
    connect(m_retry, &QPushButton::clicked, this, &Page::retryAsked);

    auto *layout = new QVBoxLayout(m_message);
    layout->addStretch();
    layout->addWidget(m_text);
    layout->addWidget(m_retry, 0, Qt::AlignHCenter);
    layout->addStretch();
    addWidget(content);
    addWidget(m_message);
}

void Page::showContent()
{
    setCurrentIndex(0);
}

void Page::showMessage(const QString &text, bool canRetry)
{
    m_text->setText(text);
    m_retry->setVisible(canRetry);
    setCurrentWidget(m_message);
}

} // namespace PackageTable::Describe
