// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "repoentry.h"
#include "widgets/hdialog.h"
#include "yumio/jobrunner.h"

#include <optional>

class HFrameLabel;
class HScrollArea;
class HWrapLabel;
class QHBoxLayout;
class QPushButton;
class YumConfIO;
class YumIO;

namespace RepoEditor {

class Config;
class TestRow;

// Edits one repository definition in place, once the user confirms.
class ConfigDialog : public HDialog
{
    Q_OBJECT

public:
    ConfigDialog(YumConfIO *yumConfIO, QWidget *parent);
    ~ConfigDialog() override;

    // The entry must live while the dialog is shown. exec() is 1 when it was changed.
    void setEntry(Repo::Entry *entry);
    // For the test of a repository, the variables in URLs and the names of options; without an
    // engine that is running there are none of these.
    void setEngine(YumIO *yumIO, JobRunner runner);
    // Closes now, changing and asking nothing.
    void drop();

    void setVisible(bool visible) override;
    void done(int result) override;
    void reject() override;

public Q_SLOTS:
    void changed();
    void reset();
    void cancel();
    void ok();

private:
    QWidget *createForm();
    QHBoxLayout *createButtons();
    void askEngine();
    void test();
    QString identifierProblem() const;
    void showFileNotice();
    void updateStatusLabel();
    void setHasChanged(bool flag);

    YumConfIO *m_yumConfIO;
    YumIO *m_yumIO = nullptr;
    bool m_knowsOptions = false;
    Repo::Entry *m_entry = nullptr;
    bool m_hasChanged = false;
    std::optional<int> m_closeAsked; // while a test ran, with this result
    Config *m_form = nullptr;
    HScrollArea *m_area = nullptr;
    TestRow *m_test = nullptr;
    HWrapLabel *m_fileNotice = nullptr;
    HFrameLabel *m_status = nullptr;
    QPushButton *m_resetButton = nullptr;
    QPushButton *m_okButton = nullptr;
};

} // namespace RepoEditor
