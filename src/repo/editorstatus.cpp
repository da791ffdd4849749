// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the editor says of its state, and which buttons can be used in it.

#include "editordialog.h"

#include "app/colors.h"
#include "app/harmless.h"
#include "editorview.h"
#include "widgets/explaindisabled.h"
#include "widgets/hframelabel.h"
#include "yumconfio.h"

#include <QPushButton>

#include <algorithm>
#include <utility>

namespace RepoEditor {

// Before buttons are disabled: the focus goes to the table, not on to the button behind.
void Dialog::releaseFocus(const QList<QPushButton *> &buttons)
{
    if (std::any_of(buttons.begin(), buttons.end(),
                    [](const QPushButton *button) { return button->hasFocus(); }))
        m_view->setFocus();
}

bool Dialog::hasSessionChanged() const
{
    return m_yumConfIO->reposUsed != m_usedBefore;
}

void Dialog::updateButtons()
{
    const QString lookOnly = m_yumConfIO->lookOnly();
    const QString reason =
        !lookOnly.isEmpty() || m_yumConfIO->unreadable().isEmpty()
            ? lookOnly
            : tr("Nothing can be written, because these files cannot be read:\n%1")
                  .arg(m_yumConfIO->unreadable().join(u'\n'));
    const bool canApply = reason.isEmpty();
    m_addButton->setEnabled(lookOnly.isEmpty());
    for (QPushButton *button : {m_addButton, m_copyButton, m_removeButton})
        explainDisabled(button, lookOnly);
    const bool session = hasSessionChanged();
    const bool canUse = canApply || !isUnapplied(); // what writes nothing
    if (!isUnapplied())
        releaseFocus({m_previewButton});
    if (!isUnapplied() && !session)
        releaseFocus({m_resetAllButton, m_applyButton});
    m_resetAllButton->setEnabled(isUnapplied() || session);
    m_previewButton->setEnabled(isUnapplied());
    m_applyButton->setEnabled(canUse && (isUnapplied() || session));
    m_okButton->setEnabled(canUse);
    const auto toolTip = [&](const QPushButton *button, const QString &all,
                             const QString &ofSession) {
        return harmlessTip(canApply ? all : button->isEnabled() ? ofSession : reason);
    };
    m_applyButton->setToolTip(
        toolTip(m_applyButton,
                tr("Apply changes to all repository configurations, but do not close the window"),
                tr("Apply the changes to this session, but do not close the window")));
    m_okButton->setToolTip(toolTip(
        m_okButton, tr("Apply changes to all repository configurations, and close the window"),
        tr("Apply the changes to this session, and close the window")));
    if (!isUnapplied())
        m_removed = 0;
    updateStatusLabel();
}

bool Dialog::hasEmptyId() const
{
    const auto &repos = std::as_const(m_yumConfIO->repos);
    return std::any_of(repos.begin(), repos.end(),
                       [](const Repo::Entry &entry) { return entry.id.isEmpty(); });
}

// The first identifier that a later repository has too.
QString Dialog::getDuplicateId() const
{
    const auto &repos = std::as_const(m_yumConfIO->repos);
    QHash<QString, int> count;
    for (const Repo::Entry &entry : repos)
        ++count[entry.id];
    const auto found = std::find_if(repos.begin(), repos.end(), [&](const Repo::Entry &entry) {
        return count.value(entry.id) > 1;
    });
    return found == repos.end() ? QString() : found->id;
}

QString Dialog::unappliedText(int removed)
{
    const QString text = tr("Unapplied Configuration Changes");
    return removed > 0 ? tr("%1: %n removed", nullptr, removed).arg(text) : text;
}

void Dialog::updateStatusLabel()
{
    QString text;
    if (hasEmptyId()) {
        m_status->setPalette(Colors::makeError(m_status->palette()));
        text = tr("A repository has no Identifier");
    } else if (const QString id = getDuplicateId(); !id.isEmpty()) {
        m_status->setPalette(Colors::makeError(m_status->palette()));
        text = tr("Two or more repositories have the Identifier, %1").arg(id);
    } else if (isUnapplied()) {
        m_status->setPalette(Colors::makeOK(m_status->palette()));
        text = unappliedText(m_removed);
    } else if (hasSessionChanged()) {
        m_status->setPalette(Colors::makeOK(m_status->palette()));
        text = tr("Unapplied Session Changes");
    } else if (!m_yumConfIO->lookOnly().isEmpty()) {
        m_status->setPalette(Colors::makeWarning(m_status->palette()));
        text = tr("Read-only: the configuration cannot be changed");
    } else if (!m_yumConfIO->unreadable().isEmpty()) {
        m_status->setPalette(Colors::makeWarning(m_status->palette()));
        text = tr("Some files cannot be read, so nothing can be written");
    }
    m_status->setText(harmlessLine(text));
}

} // namespace RepoEditor
