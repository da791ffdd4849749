// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packagetable/packagetable.h"
#include "widgets/habstracttablemodel.h"
#include "yumio/jobrunner.h"
#include "yumio/package.h"

#include <QColor>
#include <QIcon>

class QWidget;
class YumConfIO;
class YumIO;

namespace PackageTable {

namespace Describe {
class Dialog;
}

// The engine's entries as a table, one row for each in the engine's order, and the one place where
// the user's choice of action is written into an entry. Owns no package data: the owner calls
// reset() whenever the engine's rows have changed.
class Model : public HAbstractTableModel
{
    Q_OBJECT

public:
    Model(YumIO *yumIO, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    // What the display role shows of an entry; empty in the icon columns.
    static QString text(const Package::Entry &entry, int column);
    // What the user role gives of an entry in the columns that are sorted by number, converted to
    // 32 bits as a variant converts it.
    static int sortNumber(const Package::Entry &entry, int column);
    static bool isNumberColumn(int column);

    void setYumConfIO(YumConfIO *yumConfIO) { m_yumConfIO = yumConfIO; }

    // The row must be valid.
    Package::State getState(int row) const;
    void setAction(const QModelIndex &index, Package::Action action);
    // Advances the action to the next that fits the entry's state, and from the last to none.
    void toggleAction(const QModelIndex &index);
    void reset();
    // Runs the description of a row, modally; `parent` is that of the dialog, which is made once.
    void describe(const QModelIndex &index, QWidget *parent);
    // Shows another row in the description that is open.
    void describeNext(const QModelIndex &index);
    // Whether the description can step to a row before and after its own.
    void setDescribeSteps(bool previous, bool next);
    // Shows the repository of a row in the web browser.
    void browse(const QModelIndex &index, QWidget *parent);
    // How the description runs the jobs that load what it shows.
    void setJobRunner(JobRunner runner) { m_runJob = std::move(runner); }
    // Chooses the colours of an enabled or a disabled view.
    void setEnabled(bool enabled) { m_enabled = enabled; }

Q_SIGNALS:
    // Before and after the description runs.
    void describing(bool runs);
    // The description wants the row that many below its own, as the view shows them.
    void describeStepAsked(int rows);

public Q_SLOTS:
    // Install or Update for each row, as it fits; installed rows stay as they are.
    void setSelected(const QModelIndexList &indices);
    void clearActions();

private:
    Package::Entry *entryAt(const QModelIndex &index) const;
    QVariant icon(const Package::Entry &entry, int column) const;
    QVariant toolTip(const Package::Entry &entry, int column) const;
    QVariant accessibleText(const Package::Entry &entry, int column) const;
    QVariant colour(const Package::Entry &entry, int column) const;
    static QVariant userValue(const Package::Entry &entry, int column);
    void write(int row, Package::Action action);

    YumIO *m_yumIO;
    YumConfIO *m_yumConfIO = nullptr;
    Describe::Dialog *m_describeDialog = nullptr;
    JobRunner m_runJob;
    bool m_enabled = true;
    QIcon m_outOfDateIcon;
    QIcon m_upToDateIcon;
    QIcon m_noneIcon;
    QIcon m_updateIcon;
    QIcon m_installIcon;
    QIcon m_removeIcon;
    QIcon m_suiteIcon;
    QIcon m_groupIcon;
    QIcon m_packageIcon;
    QColor m_updatableColour;
    QColor m_updatableDisabledColour;
    QColor m_installedColour;
    QColor m_installedDisabledColour;
    QColor m_installableColour;
    QColor m_installableDisabledColour;
};

} // namespace PackageTable
