// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QJsonArray>
#include <QObject>

class HProgressBar;
class Heartbeat;
class QPushButton;

// What the bars and the cancel button showed, and when: one line for each change.
class Recording : public QObject
{
    Q_OBJECT

public:
    Recording(QWidget *window, Heartbeat *heartbeat, QObject *parent);

    void addState(const QString &state, bool canCancel);
    // [milliseconds, what, ...]: "total" or "item" with value, maximum, text and whether enabled;
    // "cancel" with whether enabled; "state" with the job's state and whether it can be cancelled.
    const QJsonArray &lines() const { return m_lines; }
    void forget() { m_lines = {}; }

private:
    struct Shown
    {
        int value = 0, maximum = 0;
        QString text;
        bool enabled = false;
        bool operator==(const Shown &) const = default;
    };

    void look();
    void lookAt(const HProgressBar *bar, const QString &name, Shown &last);

    Heartbeat *m_heartbeat;
    HProgressBar *m_totalBar;
    HProgressBar *m_itemBar;
    QPushButton *m_cancelButton;
    Shown m_total, m_item;
    bool m_cancel = false;
    QJsonArray m_lines;
};
