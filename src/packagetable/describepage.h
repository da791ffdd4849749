// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStackedWidget>

class QPlainTextEdit;
class QPushButton;

namespace PackageTable::Describe {

// One page of the description: its content, or a text that says why there is none yet, with a button
// to try again where trying can help.
class Page : public QStackedWidget
{
    Q_OBJECT

public:
    Page(QWidget *content, QWidget *parent);

    void showContent();
    void showMessage(const QString &text, bool canRetry);
    // Whether the content stands for the present package.
    bool isFilled() const { return m_filled; }
    void setFilled(bool filled) { m_filled = filled; }

Q_SIGNALS:
    void retryAsked();

private:
    QWidget *m_content;
    QWidget *m_message;
    QPlainTextEdit *m_text;
    QPushButton *m_retry;
    bool m_filled = false;
};

} // namespace PackageTable::Describe
