// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

class QMessageBox;
class QWidget;
class YumIO;

// Offers to end a scriptlet that keeps rpm waiting, in a box beside the running job. GUI thread.
class StuckScriptlet : public QObject
{
    Q_OBJECT

public:
    StuckScriptlet(YumIO *engine, QWidget *window);

private:
    // Shows the box unless it is open. Without a package: the scriptlet has ended, and the box closes.
    void report(const QString &package, qint64 pid, quint64 start, const QString &command);
    void end(pid_t pid, quint64 start);

    YumIO *m_engine;
    QWidget *m_window;
    QPointer<QMessageBox> m_box;
};
