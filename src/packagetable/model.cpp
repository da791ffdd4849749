// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/model.h"

#include "app/colors.h"
#include "app/harmless.h"
#include "packagetable/describe.h"
#include "packagetable/icons.h"
#include "repo/repobrowse.h"
#include "yumio/yumio.h"

#include <QStringList>

namespace PackageTable {

using Package::Action;
using Package::Entry;
using Package::Kind;
using Package::State;

namespace {

// The first link of an update is the installed version that it replaces, which does not count as
// another version.
bool hasOtherVersions(const Entry &entry)
{
    if (entry.state == State::Updatable)
        return entry.next && entry.next->next;
    return entry.next;
}

Action nextAction(State state, Action action)
{
    switch (state) {
    case State::Updatable:
        if (action == Action::None)
            return Action::Update;
        return action == Action::Update ? Action::Remove : Action::None;
    case State::Installable:
        return action == Action::None ? Action::Install : Action::None;
    case State::Installed:
        return action == Action::None ? Action::Remove : Action::None;
    }
    return Action::None;
}

} // namespace

Model::Model(YumIO *yumIO, QObject *parent)
    : HAbstractTableModel(parent), m_yumIO(yumIO), m_outOfDateIcon(shareIcon("out-of-date")),
      m_upToDateIcon(shareIcon("up-to-date")), m_noneIcon(shareIcon("noneBox")),
      m_updateIcon(shareIcon("updateBox")), m_installIcon(shareIcon("installBox")),
      m_removeIcon(shareIcon("removeBox")), m_suiteIcon(shareIcon("suite")),
      m_groupIcon(shareIcon("group")), m_packageIcon(shareIcon("package")),
      m_updatableColour(Colors::error()), m_updatableDisabledColour(Colors::errorDisabled()),
      m_installableColour(Colors::minor()), m_installableDisabledColour(Colors::minorDisabled())
{
    qRegisterMetaType<Package::Entry *>("Package::Entry*");
}

int Model::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_yumIO->count();
}

int Model::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Entry *Model::entryAt(const QModelIndex &index) const
{
    if (!index.isValid() || index.row() >= m_yumIO->count() || index.column() >= ColumnCount)
        return nullptr;
    return (*m_yumIO)[index.row()];
}

QVariant Model::data(const QModelIndex &index, int role) const
{
    const Entry *entry = entryAt(index);
    if (!entry)
        return {};
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return column < NameColumn ? QVariant() : text(*entry, column);
    case Qt::DecorationRole:
        return icon(*entry, column);
    case Qt::ToolTipRole:
        return toolTip(*entry, column);
    case Qt::ForegroundRole:
        return colour(*entry, column);
    case Qt::UserRole:
        return userValue(*entry, column);
    case Qt::AccessibleTextRole:
        return accessibleText(*entry, column);
    default:
        return {};
    }
}

QString Model::text(const Entry &entry, int column)
{
    switch (column) {
    case NameColumn:
        return harmlessLine(entry.name);
    case VersionColumn:
        return hasOtherVersions(entry) ? harmlessLine(entry.verRel) + QStringLiteral(" *")
                                       : harmlessLine(entry.verRel);
    case RepositoryColumn:
        return harmlessLine(entry.repo);
    case ArchitectureColumn:
        return harmlessLine(entry.arch);
    case SizeColumn:
        return entry.sizeText;
    case BuildTimeColumn:
        return entry.buildTimeText;
    default:
        return {};
    }
}

QVariant Model::icon(const Entry &entry, int column) const
{
    switch (column) {
    case ActionColumn:
        switch (entry.action) {
        case Action::Update:
            return m_updateIcon;
        case Action::Install:
            return m_installIcon;
        case Action::Remove:
            return m_removeIcon;
        case Action::None:
            return m_noneIcon;
        }
        break;
    case StateColumn:
        if (entry.state != State::Installable)
            return entry.state == State::Updatable ? m_outOfDateIcon : m_upToDateIcon;
        break;
    case KindColumn:
        switch (entry.kind) {
        case Kind::Suite:
            return m_suiteIcon;
        case Kind::Group:
            return m_groupIcon;
        case Kind::Package:
            return m_packageIcon;
        }
        break;
    default:
        break;
    }
    return {};
}

QVariant Model::toolTip(const Entry &entry, int column) const
{
    switch (column) {
    case ActionColumn:
        switch (entry.action) {
        case Action::Update:
            return tr("Update package");
        case Action::Install:
            return tr("Install package");
        case Action::Remove:
            return tr("Remove package");
        case Action::None:
            return {};
        }
        break;
    case StateColumn:
        switch (entry.state) {
        case State::Updatable:
            return tr("Package is available to update an out-of-date version");
        case State::Installable:
            return tr("Package is available for installation");
        case State::Installed:
            return tr("Package is installed and up-to-date");
        }
        break;
    case KindColumn:
        switch (entry.kind) {
        case Kind::Suite:
            return tr("Suite of packages");
        case Kind::Group:
            return tr("Group of packages");
        case Kind::Package:
            return tr("Ordinary package");
        }
        break;
    case VersionColumn: {
        QString history;
        for (const Entry *version = &entry; version; version = version->next) {
            const bool installed = version->state == State::Installed;
            history +=
                (installed ? tr("Installed: %1\n") : tr("Available: %1\n")).arg(version->verRel);
        }
        return harmlessTip(history.trimmed());
    }
    default:
        break;
    }
    return {};
}

// The icon columns show no text, but a screen reader needs one.
QVariant Model::accessibleText(const Entry &entry, int column) const
{
    if (column == ActionColumn && entry.action == Action::None)
        return tr("No action");
    return column < NameColumn ? toolTip(entry, column) : text(entry, column);
}

QVariant Model::colour(const Entry &entry, int column) const
{
    if (column < KindColumn)
        return {};
    QColor colour;
    switch (entry.state) {
    case State::Updatable:
        colour = m_enabled ? m_updatableColour : m_updatableDisabledColour;
        break;
    case State::Installable:
        colour = m_enabled ? m_installableColour : m_installableDisabledColour;
        break;
    case State::Installed:
        colour = m_enabled ? m_installedColour : m_installedDisabledColour;
        break;
    }
    return colour.isValid() ? QVariant(colour) : QVariant();
}

QVariant Model::userValue(const Entry &entry, int column)
{
    if (column <= KindColumn)
        return sortNumber(entry, column);
    if (column == SizeColumn)
        return quint64(entry.size);
    if (column == BuildTimeColumn)
        return qint64(entry.buildTime);
    return QVariant::fromValue(const_cast<Entry *>(&entry));
}

bool Model::isNumberColumn(int column)
{
    return column <= KindColumn || column == SizeColumn || column == BuildTimeColumn;
}

int Model::sortNumber(const Entry &entry, int column)
{
    switch (column) {
    case ActionColumn:
        return int(entry.action);
    case StateColumn:
        return int(entry.state);
    case KindColumn:
        return int(entry.kind);
    // The order is that of the low 32 bits: two gigabytes come before one.
    case SizeColumn:
        return qint32(entry.size);
    case BuildTimeColumn:
        return qint32(entry.buildTime);
    default:
        return 0;
    }
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    static constexpr struct
    {
        const char *title;
        const char *tip;
    } columns[ColumnCount] = {
        {QT_TR_NOOP("Action"),
         QT_TR_NOOP("Action to be performed on the package, if any: Update, Install, Remove")},
        {QT_TR_NOOP("State"),
         QT_TR_NOOP("Indicates whether the package is Installed or not and, if installed, whether "
                    "it is Up-to-date or not")},
        {QT_TR_NOOP("Kind"), QT_TR_NOOP("Whether the package is an ordinary package, a suite of "
                                        "packages, or a group of packages")},
        {QT_TR_NOOP("Name"), QT_TR_NOOP("Name of the package")},
        {QT_TR_NOOP("Version"),
         QT_TR_NOOP("Version and release of the package as version-release;\nIf the Epoch is "
                    "non-zero, includes it as epoch:version-release")},
        {QT_TR_NOOP("Repository"),
         QT_TR_NOOP("Repository from which the most recent version of the package is available")},
        {QT_TR_NOOP("Architecture"),
         QT_TR_NOOP("Architecture for which the package is applicable, or \"noarch\" for "
                    "general-purpose packages")},
        {QT_TR_NOOP("Size"), QT_TR_NOOP("Size of the package")},
        {QT_TR_NOOP("Build Time"), QT_TR_NOOP("Date and time at which the package was created")},
    };
    if (role == Qt::DisplayRole)
        return tr(columns[section].title);
    if ((role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole))
        return tr(columns[section].tip);
    return {};
}

State Model::getState(int row) const
{
    return (*m_yumIO)[row]->state;
}

void Model::write(int row, Action action)
{
    (*m_yumIO)[row]->action = action;
    const QModelIndex cell = index(row, ActionColumn);
    Q_EMIT dataChanged(cell, cell);
}

void Model::setAction(const QModelIndex &index, Action action)
{
    if (entryAt(index))
        write(index.row(), action);
}

void Model::toggleAction(const QModelIndex &index)
{
    if (const Entry *entry = entryAt(index))
        write(index.row(), nextAction(entry->state, entry->action));
}

void Model::setSelected(const QModelIndexList &indices)
{
    for (const QModelIndex &index : indices) {
        const State state = getState(index.row());
        if (state == State::Installable)
            write(index.row(), Action::Install);
        else if (state == State::Updatable)
            write(index.row(), Action::Update);
    }
}

void Model::clearActions()
{
    for (int row = 0, count = m_yumIO->count(); row < count; ++row) {
        if ((*m_yumIO)[row]->action != Action::None)
            write(row, Action::None);
    }
}

void Model::reset()
{
    beginResetModel();
    endResetModel();
}

void Model::describe(const QModelIndex &index, QWidget *parent)
{
    Entry *entry = entryAt(index);
    if (!entry)
        return;
    if (!m_describeDialog) {
        m_describeDialog = new Describe::Dialog(parent->window());
        connect(m_describeDialog, &Describe::Dialog::stepAsked, this, &Model::describeStepAsked);
    }
    if (m_runJob)
        m_describeDialog->setJobRunner(m_runJob);
    Q_EMIT describing(true);
    m_describeDialog->config(m_yumIO, entry, m_yumConfIO);
    m_describeDialog->exec();
    Q_EMIT describing(false);
}

void Model::describeNext(const QModelIndex &index)
{
    if (Entry *entry = entryAt(index); entry && m_describeDialog)
        m_describeDialog->config(m_yumIO, entry, m_yumConfIO);
}

void Model::setDescribeSteps(bool previous, bool next)
{
    if (m_describeDialog)
        m_describeDialog->setSteps(previous, next);
}

void Model::browse(const QModelIndex &index, QWidget *parent)
{
    if (const Entry *entry = entryAt(index))
        RepoBrowse::browse(parent, entry->repo, m_yumIO, m_yumConfIO);
}

} // namespace PackageTable
