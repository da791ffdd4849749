// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/menus.h"

#include "packagetable/icons.h"
#include "packagetable/view.h"

namespace PackageTable {

using Package::Action;

ActionContextMenu::ActionContextMenu(Model *model, View *view)
    : HMenu(view), m_updateAction(addAction(shareIcon("update"), tr("&Update"))),
      m_installAction(addAction(shareIcon("install"), tr("&Install"))),
      m_removeAction(addAction(shareIcon("remove"), tr("&Remove"))),
      m_noneAction(addAction(QIcon(), tr("&No Action"))), m_model(model), m_view(view)
{
    setObjectName(QStringLiteral("actionContextMenu"));
    m_updateAction->setObjectName(QStringLiteral("updateAction"));
    m_installAction->setObjectName(QStringLiteral("installAction"));
    m_removeAction->setObjectName(QStringLiteral("removeAction"));
    m_noneAction->setObjectName(QStringLiteral("noneAction"));
    connect(m_updateAction, &QAction::triggered, this, &ActionContextMenu::handleUpdateAction);
    connect(m_installAction, &QAction::triggered, this, &ActionContextMenu::handleInstallAction);
    connect(m_removeAction, &QAction::triggered, this, &ActionContextMenu::handleRemoveAction);
    connect(m_noneAction, &QAction::triggered, this, &ActionContextMenu::handleNoneAction);
}

void ActionContextMenu::exec(const QModelIndex &index, const QPoint &globalPos)
{
    m_index = index;
    QModelIndexList rows = m_view->selectedRows();
    if (rows.isEmpty())
        rows.append(index);
    const auto anyFits = [&](Action action) {
        return std::any_of(rows.cbegin(), rows.cend(), [&](const QModelIndex &row) {
            return Package::allows(m_model->getState(row.row()), action);
        });
    };
    m_updateAction->setEnabled(anyFits(Action::Update));
    m_installAction->setEnabled(anyFits(Action::Install));
    m_removeAction->setEnabled(anyFits(Action::Remove));
    QMenu::exec(globalPos);
}

void ActionContextMenu::handleAction(Action action)
{
    const QModelIndexList rows = m_view->selectedRows();
    if (rows.isEmpty())
        m_model->setAction(m_index, action);
    for (const QModelIndex &row : rows) {
        if (Package::allows(m_model->getState(row.row()), action))
            m_model->setAction(row, action);
    }
}

void ActionContextMenu::handleUpdateAction()
{
    handleAction(Action::Update);
}

void ActionContextMenu::handleInstallAction()
{
    handleAction(Action::Install);
}

void ActionContextMenu::handleRemoveAction()
{
    handleAction(Action::Remove);
}

void ActionContextMenu::handleNoneAction()
{
    handleAction(Action::None);
}

OtherContextMenu::OtherContextMenu(Model *model, QWidget *parent)
    : HMenu(parent), m_describeAction(addAction(tr("&Describe"))),
      m_browseAction(addAction(tr("Browse Repository"))), m_model(model)
{
    setObjectName(QStringLiteral("otherContextMenu"));
    m_describeAction->setObjectName(QStringLiteral("describeAction"));
    m_browseAction->setObjectName(QStringLiteral("browseAction"));
    connect(m_describeAction, &QAction::triggered, this, &OtherContextMenu::handleDescribeAction);
    connect(m_browseAction, &QAction::triggered, this, &OtherContextMenu::handleBrowseAction);
}

void OtherContextMenu::exec(const QModelIndex &index, const QPoint &globalPos)
{
    m_index = index;
    m_browseAction->setVisible(index.column() == RepositoryColumn);
    QMenu::exec(globalPos);
}

void OtherContextMenu::handleDescribeAction()
{
    m_model->describe(m_index, parentWidget());
}

void OtherContextMenu::handleBrowseAction()
{
    m_model->browse(m_index, parentWidget());
}

} // namespace PackageTable
