// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/hdialog.h"

#include <QEventLoop>

class HScrollArea;
class HWrapLabel;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Repo {
struct Entry;
}

namespace RepoAuth {

// Asks for the user name and the password that the URLs of a repository lack. It is not modal; each
// question waits in an event loop of its own. The program's busy cursor is lifted while the dialog
// is on the screen.
class Dialog : public HDialog
{
    Q_OBJECT

public:
    // What exec() gives. Escape and closing the window are SkipAll.
    enum Answer { SkipAll = 0, OK = 1, ApplyAll = 2, ApplyHost = 3, Disable = 4, Quit = 5 };

    explicit Dialog(QWidget *parent);

    // Nothing can be answered, for a reason that is shown; an empty one takes that back.
    void setLookOnly(const QString &reason);
    // Waits for an answer. With OK, ApplyAll and ApplyHost what was typed stands in the entry's
    // URLs. Quit also when the program ended the wait. `warning` is shown below the fields. The
    // dialog stays on the screen for the next question.
    int exec(Repo::Entry *entry, const QString &warning = QString());

    void done(int result) override;
    void setVisible(bool visible) override;
    QSize sizeHint() const override;

public Q_SLOTS:
    void handleQuit();
    void handleDisable();
    void handleSkipAll();
    void handleApplyAll();
    void handleApplyHost();
    void handleOK();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void authChanged(const QString &text);
    void setUrls();

private:
    using HDialog::exec;

    QLayout *createFields();
    QLineEdit *addEdit(QGridLayout *grid, int row, const char *name, QLabel *&label,
                       const QString &toolTip);
    void createButtons();
    void setButtonsEnabled(bool enabled);
    void answer(Answer answer);
    void fit(HWrapLabel *label);

    HWrapLabel *m_id = nullptr;
    HWrapLabel *m_repoName = nullptr;
    HScrollArea *m_urls = nullptr;
    HWrapLabel *m_baseurl = nullptr;
    HWrapLabel *m_mirrorlist = nullptr;
    QLabel *m_nameLabel = nullptr;
    QLineEdit *m_name = nullptr;
    QLabel *m_passwordLabel = nullptr;
    QLineEdit *m_password = nullptr;
    QLabel *m_heading = nullptr;
    QLabel *m_warning = nullptr;
    QList<QPushButton *> m_buttons;
    QString m_lookOnly;
    Repo::Entry *m_entry = nullptr; // null while nothing is asked
    QEventLoop m_loop;
};

} // namespace RepoAuth
