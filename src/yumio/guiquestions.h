// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QEventLoop>
#include <QObject>
#include <QString>

#include <functional>

class QWidget;

// Shows the dialogs that a YumIODialogs asks for. Lives on the GUI thread.
class YumIODialogsMinion : public QObject
{
    Q_OBJECT

public:
    explicit YumIODialogsMinion(QWidget *parent);

public Q_SLOTS:
    void confirm(const QString &title, const QString &text, const QString &yesText,
                 const QString &noText);
    void warning(const QString &title, const QString &text, const QString &button0,
                 const QString &button1, const QString &button2, int defaultButton,
                 int escapeButton);
    void critical(const QString &title, const QString &text, const QString &button0,
                  const QString &button1, const QString &button2, int defaultButton,
                  int escapeButton);
    void scrollable(const QString &title, const QString &text);

Q_SIGNALS:
    void setResult(int result);

private:
    QWidget *m_parent;
};

// Shows modal dialogs for the thread that created it, usually a worker: every request returns only
// when the user has answered on the GUI thread. A request from another thread than the creator's
// goes through a channel of its own. Passwords in texts are masked.
class YumIODialogs : public QObject
{
    Q_OBJECT

public:
    explicit YumIODialogs(QWidget *parent);
    ~YumIODialogs() override;

    // 1 for the yes button, 0 else.
    int confirm(const QString &title, const QString &text, const QString &yesText,
                const QString &noText);
    // The number of the button pressed; three empty texts give one OK button.
    int warning(const QString &title, const QString &text, const QString &button0,
                const QString &button1, const QString &button2, int defaultButton,
                int escapeButton);
    int critical(const QString &title, const QString &text, const QString &button0,
                 const QString &button1, const QString &button2, int defaultButton,
                 int escapeButton);
    // False if it was declined.
    bool scrollable(const QString &title, const QString &text);

    // Nobody can answer any more: each dialog that is asked for, now or later, is answered as by Escape without being
    // shown. Any thread.
    static void declineAll();

public Q_SLOTS:
    void setResult(int result);

Q_SIGNALS:
    void confirmSig(const QString &title, const QString &text, const QString &yesText,
                    const QString &noText);
    void warningSig(const QString &title, const QString &text, const QString &button0,
                    const QString &button1, const QString &button2, int defaultButton,
                    int escapeButton);
    void criticalSig(const QString &title, const QString &text, const QString &button0,
                     const QString &button1, const QString &button2, int defaultButton,
                     int escapeButton);
    void scrollableSig(const QString &title, const QString &text);

private:
    bool isForeign() const;
    int waitForResult(int declined, const std::function<void()> &ask);
    void decline();

    QWidget *m_parent;
    YumIODialogsMinion *m_minion;
    QEventLoop m_loop;
    bool m_ready = false;
    int m_result = 0;
    int m_declined = 0; // the result when nobody answers
};

// Installs a channel of the calling thread in `slot` for as long as it lives; nests.
class YumIODialogsUser
{
public:
    YumIODialogsUser(YumIODialogs *&slot, QWidget *parent);
    YumIODialogsUser(const YumIODialogsUser &) = delete;
    YumIODialogsUser &operator=(const YumIODialogsUser &) = delete;
    ~YumIODialogsUser();

private:
    YumIODialogs *&m_slot;
    YumIODialogs *m_outer;
};
