// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "repoentry.h"
#include "widgets/habstracttablemodel.h"

#include <QFont>
#include <QIcon>

class QWidget;
class YumConfIO;
class YumIO;

namespace RepoEditor {

enum Column { SessColumn, PermColumn, IdColumn, NameColumn, ColumnCount };

// The repositories of the configuration reader as rows, in its order, read and changed in place.
class Model : public HAbstractTableModel
{
    Q_OBJECT

public:
    // Whether a check mark is set, as an int of 0 or 1; of the first two columns.
    static constexpr int MarkRole = Qt::UserRole;

    // Neither is owned.
    Model(YumIO *yumIO, YumConfIO *yumConfIO, QObject *parent);

    // The font of the table; in italics it is that of a missing identifier.
    void setViewFont(const QFont &font);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    const Repo::Entry &entry(int row) const;
    // Appends the entry and returns its row.
    int addRow(const Repo::Entry &entry);
    bool removeRow(int row, const QModelIndex &parent = {});
    // To be called when the reader's list was replaced.
    void reset();
    QModelIndex createIndex(int row) const;

    bool isMarked(const QModelIndex &index) const;
    // Steps the check mark of whether the repository is used in this session, or is enabled.
    void toggleUse(const QModelIndex &index);
    void toggleEnabled(const QModelIndex &index);

    // Shows the repository in the web browser.
    void browse(const QModelIndex &index, QWidget *parent);

    using HAbstractTableModel::dataChanged;
    // Tells that the row is another now.
    void dataChanged(int row);

Q_SIGNALS:
    void useChanged();
    void configChanged();

private:
    bool has(const QModelIndex &index) const;
    QVariant toolTip(const QModelIndex &index) const;
    bool isUsed(const QModelIndex &index) const;
    void announceUse(const QString &id);

    YumIO *m_yumIO;
    YumConfIO *m_yumConfIO;
    QFont m_viewFont;
    QIcon m_noneIcon;
    QIcon m_checkIcon;
};

} // namespace RepoEditor
