// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobprogress.h"

#include "progress/hprogressbar.h"
#include "yumio.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

JobProgress::JobProgress(const QString &name, const QString &cancelText, const QString &cancelTip,
                         QWidget *parent)
    : QWidget(parent), m_totalBar(new HProgressBar(this)), m_itemBar(new HProgressBar(this)),
      m_cancelButton(new QPushButton(cancelText, this))
{
    m_totalBar->setObjectName(name + QStringLiteral("TotalBar"));
    m_totalBar->setTitle(tr("Total progress"));
    m_itemBar->setObjectName(name + QStringLiteral("ItemBar"));
    m_itemBar->setTitle(tr("Progress of the current step"));
    m_cancelButton->setObjectName(name + QStringLiteral("CancelButton"));
    m_cancelButton->setToolTip(cancelTip);
    m_cancelButton->setAutoDefault(false);
    connect(m_cancelButton, &QPushButton::clicked, this, &JobProgress::cancel);

    auto *bars = new QVBoxLayout;
    for (HProgressBar *bar : {m_totalBar, m_itemBar}) {
        // What is told beside the percentage may be of any length.
        bar->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        bars->addWidget(bar);
    }
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(bars, 1);
    row->addWidget(m_cancelButton);
    hide();
}

JobProgress::Outcome JobProgress::run(YumIO *yumIO, const JobRunner &runner,
                                      const std::function<void()> &work, QPushButton *starter)
{
    Outcome outcome;
    m_yumIO = yumIO;
    m_hadFocus = false;
    m_cancelButton->setEnabled(true);
    show();
    if (starter) {
        if (starter->hasFocus())
            m_cancelButton->setFocus();
        starter->setEnabled(false);
    }
    const YumIO::Surface surface = yumIO->exchangeSurface({window(), m_totalBar, m_itemBar});
    outcome.ran = runner([&] { outcome.said = yumIO->withoutBoxes(work); });
    yumIO->exchangeSurface(surface);
    m_yumIO = nullptr;
    if (starter) {
        starter->setEnabled(true);
        if (m_hadFocus || m_cancelButton->hasFocus())
            starter->setFocus();
    }
    hide();
    return outcome;
}

void JobProgress::cancel()
{
    if (!m_yumIO)
        return;
    m_yumIO->cancel();
    m_hadFocus = m_hadFocus || m_cancelButton->hasFocus();
    m_cancelButton->setEnabled(false);
    Q_EMIT cancelAsked();
}
