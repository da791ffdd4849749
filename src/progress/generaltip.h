// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QBasicTimer>
#include <QFrame>
#include <QPointer>

// A tool tip whose contents are built when it is shown. At most one exists; it hides itself as a
// tool tip does and then deletes itself. GUI thread only.
class GeneralTip : public QFrame
{
    Q_OBJECT

public:
    // Fills the tip with widgets.
    using Setup = void (*)(GeneralTip *tip, void *data);

    // `screen` is any widget on the screen to use. With autoHide the tip hides after ten seconds.
    GeneralTip(QWidget *screen, bool autoHide);

    // Shows a new tip near `globalPos`, inside the screen. `widget` is the one the tip is about.
    static void showTip(const QPoint &globalPos, Setup setup, void *data, QWidget *widget,
                        bool autoHide);
    // The tip that exists now, or null.
    static GeneralTip *current() { return it; }

    void hideTip();

protected:
    void enterEvent(QEnterEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static QPointer<GeneralTip> it;

    QBasicTimer m_hideTimer;
    QBasicTimer m_deletionTimer;
};
