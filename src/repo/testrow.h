// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "yumio/jobrunner.h"

#include <QList>
#include <QWidget>

class HTextEdit;
class JobProgress;
class QPalette;
class QPushButton;
class YumIO;
struct RepoAnswer;

namespace RepoEditor {

// A button that tests whether a repository can be reached, with progress and a cancel control, and
// what the test found.
class TestRow : public QWidget
{
    Q_OBJECT

public:
    explicit TestRow(QWidget *parent);

    void setEngine(YumIO *yumIO, JobRunner runner);
    // Runs the test as a job; returns when it ended. `section` is what a configuration file would
    // hold of the repository.
    void test(const QString &section);
    bool isTesting() const { return m_testing; }
    void cancel();
    // What was tested is not what is edited any more.
    void outdate();
    void clear();

Q_SIGNALS:
    void testAsked();

private:
    void showAnswers(const QList<RepoAnswer> &answers, bool hasPassword);
    void showResult(const QString &text, const QPalette &palette);
    static QString textOf(const RepoAnswer &answer, bool hasPassword);

    YumIO *m_yumIO = nullptr;
    JobRunner m_runJob;
    bool m_testing = false;
    bool m_outdated = false;
    QPushButton *m_button = nullptr;
    HTextEdit *m_result = nullptr;
    JobProgress *m_progress = nullptr;
};

} // namespace RepoEditor
