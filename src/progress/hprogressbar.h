// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "steps.h"

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>

#include <optional>

// A progress bar that shows an activity beside the percentage, counts in 64 bits, and announces a
// request for a tool tip instead of showing a fixed one. While a screen reader listens it shows what
// it is set to some times a second only, since all that it shows is told.
class HProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit HProgressBar(QWidget *parent = nullptr);

    // What it is the progress of, for screen readers, which are told the activity with it.
    void setTitle(const QString &title);
    QString text() const override;
    void setActivity(const QString &activity);

    // Maximum and value in steps; beyond the base's range both are shown scaled down.
    void setMaximumSteps(Steps max);
    void setValueSteps(Steps value);

public Q_SLOTS:
    // Forgets the activity too.
    void reset();

Q_SIGNALS:
    // A tool tip is asked for at this position of the bar.
    void toolTip(const QPoint &pos);

protected:
    bool event(QEvent *event) override;

private:
    // What was set and is not shown yet.
    struct Pending
    {
        std::optional<QString> activity;
        std::optional<Steps> max;
        std::optional<Steps> value;
    };

    void showSoon();
    void showNow();

    QString m_title;
    QString m_activity;
    int m_shift = 0;
    Pending m_pending;
    QTimer m_soon;
    QElapsedTimer m_sinceShown;
};
