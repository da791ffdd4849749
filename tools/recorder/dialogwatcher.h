// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QJsonArray>
#include <QObject>
#include <QPointer>

class QWidget;

// Notes each modal dialog that comes up and answers it: by the first rule whose title fits, else by
// its default button.
class DialogWatcher : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Rules {"title", "button" (its text; empty leaves the dialog open), "times" (default:
    // always)}.
    void setRules(const QJsonArray &rules) { m_rules = rules; }
    // The dialogs since the last call: {"title", "text", "buttons", "class"}.
    QJsonArray takeDialogs();
    bool isOpen() const;
    // Whether a dialog came up since takeDialogs().
    bool hasNews() const { return !m_dialogs.isEmpty(); }
    // To be called again and again.
    void look();
    // Presses the button of that text in the open dialog; false when there is none.
    static bool press(const QString &text);

private:
    QString chooseButton(const QString &title, bool &hold);

    QPointer<QWidget> m_known;
    QJsonArray m_rules;
    QJsonArray m_dialogs;
};
