// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/repofailuredialog.h"

#include "app/harmless.h"
#include "yumio/passwordsintext.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

RepoFailureDialog::RepoFailureDialog(const QString &text, const QStringList &repos, int choices,
                                     QWidget *parent)
    : ScrollableDialog(harmless(maskPasswords(text)), parent), m_repos(repos)
{
    setObjectName(QStringLiteral("repoFailureDialog"));
    setWindowTitle(tr("VOK Yum Error"));
    QPushButton *first = nullptr;
    if (choices & LeaveOut) {
        first = addAnswer(tr("&Leave Out for This Session"), "leaveOutButton", LeaveOut);
        first->setToolTip(tr("Read the packages without these repositories until VOK ends"));
    }
    if (choices & TryAgain)
        addAnswer(tr("&Try Again"), "tryAgainButton", TryAgain);
    QPushButton *edit = addAnswer(tr("&Edit Repository"), "editButton", Edit);
    edit->setToolTip(tr("Close this message and open the form of the repository"));
    QPushButton *close = addAnswer(tr("&Close"), "closeButton", Close);
    if (m_repos.size() > 1)
        createChoice();
    setDefaultButton(first ? first : close);
}

QPushButton *RepoFailureDialog::addAnswer(const QString &text, const char *name, Answer answer)
{
    // None with the accepting role, which would end the dialog by itself.
    QPushButton *button = m_buttons->addButton(
        text, answer == Close ? QDialogButtonBox::RejectRole : QDialogButtonBox::ActionRole);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
    return button;
}

// Which one the Edit button means.
void RepoFailureDialog::createChoice()
{
    auto *label = new QLabel(tr("&Repository:"), this);
    m_choice = new QComboBox(this);
    m_choice->setObjectName(QStringLiteral("repoChoice"));
    // An identifier can be of any length.
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_choice->setMinimumContentsLength(20);
    for (const QString &id : m_repos)
        m_choice->addItem(harmless(id));
    label->setBuddy(m_choice);
    m_choiceRow = new QHBoxLayout;
    m_choiceRow->addWidget(label);
    m_choiceRow->addWidget(m_choice, 1);
    static_cast<QVBoxLayout *>(layout())->insertLayout(1, m_choiceRow);
}

QString RepoFailureDialog::repo() const
{
    return m_repos.value(m_choice ? m_choice->currentIndex() : 0);
}

QSize RepoFailureDialog::sizeHint() const
{
    const QSize size = ScrollableDialog::sizeHint();
    return m_choiceRow ? size + QSize(0, m_choiceRow->sizeHint().height() + layout()->spacing())
                       : size;
}
