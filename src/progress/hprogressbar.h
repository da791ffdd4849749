#pragma once

#include "steps.h"

#include <QProgressBar>

// A progress bar that shows an activity beside the percentage, counts in 64 bits, and announces a
// request for a tool tip instead of showing a fixed one.
class HProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit HProgressBar(QWidget *parent = nullptr);

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
    QString m_activity;
    int m_shift = 0;
};
