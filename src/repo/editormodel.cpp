// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editormodel.h"

#include "app/harmless.h"
#include "app/share.h"
#include "repobrowse.h"
#include "yumconfio.h"
#include "yumio/yumio.h"

namespace RepoEditor {

Model::Model(YumIO *yumIO, YumConfIO *yumConfIO, QObject *parent)
    : HAbstractTableModel(parent), m_yumIO(yumIO), m_yumConfIO(yumConfIO),
      m_noneIcon(Share::absolute(QStringLiteral("icons/noneBox.png"))),
      m_checkIcon(Share::absolute(QStringLiteral("icons/checkBox.png")))
{
}

void Model::setViewFont(const QFont &font)
{
    m_viewFont = font;
    m_viewFont.setItalic(true);
}

int Model::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_yumConfIO->repos.size());
}

int Model::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

// An index may be older than the list.
bool Model::has(const QModelIndex &index) const
{
    return index.isValid() && index.row() < m_yumConfIO->repos.size() &&
           index.column() < ColumnCount;
}

const Repo::Entry &Model::entry(int row) const
{
    return m_yumConfIO->repos.at(row);
}

bool Model::isUsed(const QModelIndex &index) const
{
    return m_yumConfIO->reposUsed.value(entry(index.row()).id);
}

bool Model::isMarked(const QModelIndex &index) const
{
    if (index.column() == SessColumn)
        return isUsed(index);
    const Qt::CheckState enabled = entry(index.row()).enabled;
    return enabled == Qt::PartiallyChecked ? m_yumConfIO->mainEnabled : enabled == Qt::Checked;
}

QVariant Model::data(const QModelIndex &index, int role) const
{
    if (!has(index))
        return {};
    const Repo::Entry &entry = this->entry(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        if (column == IdColumn)
            return entry.id.isEmpty() ? tr("(new)") : harmlessLine(entry.id);
        return column == NameColumn ? QVariant(harmlessLine(entry.name)) : QVariant();
    case Qt::DecorationRole:
        if (column > PermColumn)
            return {};
        return isMarked(index) ? m_checkIcon : m_noneIcon;
    case Qt::ToolTipRole:
        return toolTip(index);
    case Qt::FontRole:
        return column == IdColumn && entry.id.isEmpty() ? QVariant(m_viewFont) : QVariant();
    case MarkRole:
        return column > PermColumn ? QVariant() : QVariant(int(isMarked(index)));
    default:
        return {};
    }
}

// Both columns tell of this session.
QVariant Model::toolTip(const QModelIndex &index) const
{
    const bool used = isUsed(index);
    QString text;
    if (index.column() == SessColumn)
        text = used ? tr("Repository is enabled for this session")
                    : tr("Repository is not enabled for this session");
    else if (index.column() == PermColumn)
        text = used ? tr("Repository is configured to be enabled")
                    : tr("Repository is not configured to be enabled");
    else
        return {};
    const QString lookOnly = m_yumConfIO->lookOnly();
    return harmlessTip(lookOnly.isEmpty() || index.column() == SessColumn
                           ? text
                           : text + QStringLiteral("\n\n") + lookOnly);
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const bool isText = role == Qt::DisplayRole;
    if (!isText && role != Qt::ToolTipRole)
        return {};
    switch (section) {
    case SessColumn:
        return isText ? tr("Sess")
                      : tr("Whether or not the repository is used during this session.\nIt "
                           "overrides the persistent Enabled flag in the repository "
                           "configuration.");
    case PermColumn:
        return isText ? tr("Perm")
                      : tr("Whether or not the repository is configured to be enabled by "
                           "default.\nIt can be overridden for a particular session.");
    case IdColumn:
        return isText ? tr("Identifier") : tr("Unique identifier for the repository");
    case NameColumn:
        return isText ? tr("Name") : tr("Description of the repository");
    default:
        return {};
    }
}

int Model::addRow(const Repo::Entry &entry)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_yumConfIO->repos.append(entry);
    endInsertRows();
    return row;
}

bool Model::removeRow(int row, const QModelIndex &parent)
{
    beginRemoveRows(parent, row, row);
    m_yumConfIO->repos.removeAt(row);
    endRemoveRows();
    return true;
}

void Model::reset()
{
    beginResetModel();
    endResetModel();
}

QModelIndex Model::createIndex(int row) const
{
    return HAbstractTableModel::createIndex(row, 0);
}

// It is written nowhere, so it needs no right to write.
void Model::toggleUse(const QModelIndex &index)
{
    if (!has(index))
        return;
    const QString id = entry(index.row()).id;
    bool &used = m_yumConfIO->reposUsed[id];
    used = !used;
    announceUse(id);
    Q_EMIT useChanged();
}

// An identifier may be repeated.
void Model::announceUse(const QString &id)
{
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex cell = index(row, SessColumn);
        if (entry(row).id == id)
            Q_EMIT dataChanged(cell, cell);
    }
}

void Model::toggleEnabled(const QModelIndex &index)
{
    if (!has(index) || !m_yumConfIO->lookOnly().isEmpty())
        return;
    const QModelIndex cell = index.siblingAtColumn(PermColumn);
    m_yumConfIO->repos[index.row()].enabled = isMarked(cell) ? Qt::Unchecked : Qt::Checked;
    Q_EMIT dataChanged(cell, cell);
    Q_EMIT configChanged();
}

// The engine's rows are what is asked for: before there are any, it knows none of the variables.
void Model::browse(const QModelIndex &index, QWidget *parent)
{
    if (has(index) && index.row() < m_yumIO->count())
        RepoBrowse::browse(parent, entry(index.row()), m_yumIO);
}

void Model::dataChanged(int row)
{
    Q_EMIT dataChanged(createIndex(row), index(row, ColumnCount - 1));
    announceUse(entry(row).id);
}

} // namespace RepoEditor
