// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "jobrunner.h"

#include <QString>
#include <QWidget>

class HProgressBar;
class QPushButton;
class YumIO;

// The progress of a job that a dialog starts, with a control to cancel it. Seen only while one runs.
class JobProgress : public QWidget
{
    Q_OBJECT

public:
    // The bars and the control are named `name` and "TotalBar", "ItemBar" and "CancelButton".
    JobProgress(const QString &name, const QString &cancelText, const QString &cancelTip,
                QWidget *parent);

    struct Outcome
    {
        bool ran = false; // false when another job was running
        QString said;     // what boxes would have said of it
    };
    // Runs the work as a job that shows itself here and whose reports are only logged. The window of
    // this widget is the parent of what it asks. The button that started it, if any, is disabled
    // meanwhile; the focus goes from it to the cancel control and back.
    Outcome run(YumIO *yumIO, const JobRunner &runner, const std::function<void()> &work,
                QPushButton *starter = nullptr);
    // Asks the job to end; nothing when none runs.
    void cancel();

Q_SIGNALS:
    // The running job has been asked to end.
    void cancelAsked();

private:
    YumIO *m_yumIO = nullptr; // whose job runs
    bool m_hadFocus = false;  // the cancel control, when it was used
    HProgressBar *m_totalBar;
    HProgressBar *m_itemBar;
    QPushButton *m_cancelButton;
};
