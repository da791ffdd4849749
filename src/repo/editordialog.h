// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "repoentry.h"
#include "widgets/hdialog.h"
#include "yumio/jobrunner.h"

#include <QHash>

class HFrameLabel;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class YumConfIO;
class YumIO;

namespace RepoEditor {

class ConfigDialog;
class Model;
class SortFilterProxyModel;
class View;

// Edits the list of all repositories. Changes stay in the reader's list until Apply or OK writes
// them. Which repositories this session uses is changed at once, and written nowhere; Cancel and
// Reset All restore what it was at the last Apply.
class Dialog : public HDialog
{
    Q_OBJECT

public:
    // Neither is owned; the engine may have no rows yet.
    Dialog(YumIO *yumIO, YumConfIO *yumConfIO, QWidget *parent);
    ~Dialog() override;

    // With changed() set, OK emits reposChanged() even when nothing was changed.
    int exec() override;
    void setVisible(bool visible) override;
    // For what the form asks the engine; it asks nothing without one.
    void setJobRunner(JobRunner runner);
    // Opens the form of a repository, once the dialog is shown.
    void edit(const QString &id);
    // Closes now, writing, asking and telling nothing.
    void drop();

Q_SIGNALS:
    // Something was written, or is used in this session that was not, or the other way round.
    void reposChanged();

public Q_SLOTS:
    void currentChanged(int current, int previous);
    void useChanged();
    void configChanged();
    void browse();
    void edit();
    void edit(const QModelIndex &index);
    void add();
    void copy();
    void remove();
    void reset();
    void resetAll();
    void cancel();
    bool apply();
    void ok();
    void preview();
    // Escape and the window's X: as cancel(), but not by accident.
    void reject() override;

private:
    template <typename Slot>
    QPushButton *addButton(QHBoxLayout *row, const char *name, const QString &text,
                           const QString &toolTip, Slot slot);
    QHBoxLayout *createFilter();
    QHBoxLayout *createUpperRow();
    QHBoxLayout *createLowerRow();
    void recallGeometry();
    bool start();
    void releaseFocus(const QList<QPushButton *> &buttons);
    // Of what would be written.
    bool isUnapplied() const { return m_entryHasChanged || m_configHasChanged; }
    // Since it was last applied.
    bool hasSessionChanged() const;
    bool writeFiles();
    void addEntry(Repo::Entry entry);
    bool hasEmptyId() const;
    QString getDuplicateId() const;
    void updateStatusLabel();
    void explainEmpty(const QString &filter);
    static QString unappliedText(int removed);
    void setEntryToOldId(const QString &id);
    void setEntryHasChanged(bool flag);
    void setConfigHasChanged(bool flag);
    void updateButtons();

    YumIO *m_yumIO;
    YumConfIO *m_yumConfIO;
    Model *m_model;
    SortFilterProxyModel *m_proxy;
    View *m_view;
    QLineEdit *m_filter = nullptr;
    QPushButton *m_browseButton = nullptr;
    QPushButton *m_editButton = nullptr;
    QPushButton *m_addButton = nullptr;
    QPushButton *m_copyButton = nullptr;
    QPushButton *m_removeButton = nullptr;
    QPushButton *m_previewButton = nullptr;
    QPushButton *m_resetAllButton = nullptr;
    QPushButton *m_applyButton = nullptr;
    QPushButton *m_okButton = nullptr;
    HFrameLabel *m_status = nullptr;
    ConfigDialog *m_configDialog;

    QHash<QString, bool> m_usedBefore; // when the dialog was shown, or at the last Apply
    bool m_entryHasChanged = false;
    bool m_configHasChanged = false;
    bool m_applied = false;
    int m_removed = 0; // repositories, since the last Apply or Reset All
    QString m_editWhenShown;
    bool m_hasGeometry = false;
    bool m_started = false;
    bool m_dropped = false;
};

} // namespace RepoEditor
