// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/scrollabledialogs.h"

class QComboBox;
class QHBoxLayout;

// Tells which repositories failed, and asks what to do about them. exec() gives one of the answers;
// Escape and closing are Close.
class RepoFailureDialog : public ScrollableDialog
{
    Q_OBJECT

public:
    enum Answer { Close = 0, Edit = 1, LeaveOut = 2, TryAgain = 4 };

    // `text` is plain text of any origin, `repos` the identifiers; Edit and Close are always offered, the
    // other answers when they are in `choices`.
    RepoFailureDialog(const QString &text, const QStringList &repos, int choices, QWidget *parent);

    // Which of them to edit.
    QString repo() const;
    QSize sizeHint() const override;

private:
    QPushButton *addAnswer(const QString &text, const char *name, Answer answer);
    void createChoice();

    const QStringList m_repos;
    QHBoxLayout *m_choiceRow = nullptr;
    QComboBox *m_choice = nullptr; // null for one repository
};
