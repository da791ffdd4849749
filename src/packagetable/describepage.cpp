// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/describepage.h"

#include "app/harmless.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace PackageTable::Describe {

Page::Page(QWidget *content, QWidget *parent)
    : QStackedWidget(parent), m_content(content), m_message(new QWidget(this)),
      m_text(new QPlainTextEdit(m_message)), m_retry(new QPushButton(tr("L&oad"), m_message))
{
    m_text->setObjectName(QStringLiteral("pageMessage"));
    m_text->setAccessibleName(tr("Why this page is empty"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setTabChangesFocus(true);
    m_retry->setObjectName(QStringLiteral("pageLoadButton"));
    m_retry->setAutoDefault(false);
    connect(m_retry, &QPushButton::clicked, this, &Page::retryAsked);

    auto *layout = new QVBoxLayout(m_message);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_retry, 0, Qt::AlignLeft);
    addWidget(m_content);
    addWidget(m_message);
    setFocusProxy(m_content);
}

void Page::showContent()
{
    setFocusProxy(m_content);
    setCurrentWidget(m_content);
}

void Page::showMessage(const QString &text, bool canRetry)
{
    m_text->setPlainText(harmlessPage(text));
    m_retry->setVisible(canRetry);
    setFocusProxy(m_text);
    setCurrentWidget(m_message);
}

} // namespace PackageTable::Describe
