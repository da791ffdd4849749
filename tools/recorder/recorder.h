// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "dialogwatcher.h"
#include "heartbeat.h"
#include "recording.h"

#include <QFile>
#include <QJsonObject>
#include <QMutex>
#include <QStringList>

class MainWindow;
class YumIO;

// Drives the main window by commands, lines of JSON on standard input, and answers each by a line
// of JSON. The windows are touched as a user does it: by their buttons; packages are marked through
// the table's model. Commands, by "do":
//
//   wait                       until no job runs and no dialog is open
//   until state [percent]      until the job is in that state and the item bar that far
//   dialog                     until a dialog is open
//   next                       until a new dialog is open or, as for wait, all is over
//   press button               a button or action, by object name; or the open dialog's, by its text
//   mark names action          rows of those names, or name.architecture; action as Package::Action
//   toggle rows                clicks the action cells of listed rows: [[index, how often]...]
//   choose box index           an entry of a combo box or a page of the open dialog, by object name
//   filter expression          enters an expression and presses Return
//   describe name              opens the description of the listed row of that name
//   answer rules               see DialogWatcher
//   cancelAt state             presses Cancel when the job is in that state and it can be pressed
//   rows                       {name: [state, version, repository, action]} of all rows, as numbers
//   table                      all rows by their index: [kind, state, name, version, architecture,
//                              repository, action, [[version, architecture] of those behind it]]
//   log [from]                 [kind, level, text] of all log entries from that index on
//   recording, gaps            see Recording and Heartbeat
//   forget                     empties the recording, which grows with every job
//   stacks                     from now on gaps have stacks
//   tip, showLog level         shows the item bar's tip, the log window
//   picture path [of]          a picture of the window, or of the open "dialog", "tip" or "log"
//
// Every answer holds "dialogs" and "states", what came since the last one, "rows" (their number)
// and "placeholder" (whether the first collection's placeholder is shown).
class Recorder : public QObject
{
    Q_OBJECT

public:
    // Writes answers to the descriptor, which it owns.
    Recorder(MainWindow *window, int answers);

private:
    void readCommands();
    void obey(const QJsonObject &command);
    void beat();
    bool isOver(const QJsonObject &command) const;
    void answer(QJsonObject result = QJsonObject());
    void jobState(const QString &state, bool canCancel);

    bool press(const QString &button);
    bool mark(const QJsonObject &command);
    bool toggle(const QJsonArray &rows);
    bool choose(const QJsonObject &command) const;
    void filter(const QString &expression);
    bool describe(const QString &name);
    QJsonObject rows() const;
    QJsonArray table() const;
    QJsonArray log(int from) const;
    void showTip();
    void showLog(int level);
    bool picture(const QJsonObject &command) const;

    MainWindow *m_window;
    YumIO *m_engine;
    Heartbeat m_heartbeat;
    Recording m_recording;
    DialogWatcher m_dialogs;
    QFile m_answers;
    QByteArray m_input;
    QJsonObject m_waiting; // the command that is not over yet
    QStringList m_states;  // since the last answer
    QString m_state;
    QString m_cancelAt;
    bool m_started = false; // the first job has begun
    bool m_busy = false;
};
