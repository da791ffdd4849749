// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>

#include <memory>

class QProgressDialog;
class QWidget;

// Shows the progress of writing many files on the GUI thread, once that takes longer than half a
// second. Events are served from then on; all other windows are blocked, and a write that has begun
// cannot be cancelled.
class WriteProgress
{
public:
    // `count`: of files. The parent may be null, and must outlive this object.
    WriteProgress(QWidget *parent, int count);
    ~WriteProgress();

    // So many files are done.
    void setDone(int done);
    // Takes the dialog away, for a message that follows.
    void end();

private:
    QWidget *m_parent;
    int m_count;
    QElapsedTimer m_since;
    std::unique_ptr<QProgressDialog> m_dialog;
};
