// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packagetable/model.h"
#include "widgets/hmenu.h"

#include <QPersistentModelIndex>

namespace PackageTable {

class View;

// Sets the action of the selected packages, or of the one it was opened at.
class ActionContextMenu : public HMenu
{
    Q_OBJECT

public:
    ActionContextMenu(Model *model, View *view);

    // Runs modally; `index` is the package model's.
    void exec(const QModelIndex &index, const QPoint &globalPos);

private Q_SLOTS:
    void handleUpdateAction();
    void handleInstallAction();
    void handleRemoveAction();
    void handleNoneAction();

private:
    void handleAction(Package::Action action);
    QAction *m_updateAction;
    QAction *m_installAction;
    QAction *m_removeAction;
    QAction *m_noneAction;
    Model *m_model;
    View *m_view;
    QPersistentModelIndex m_index;
};

// What can be asked about the package it was opened at.
class OtherContextMenu : public HMenu
{
    Q_OBJECT

public:
    OtherContextMenu(Model *model, QWidget *parent);

    // Runs modally; `index` is the package model's, and may be invalid.
    void exec(const QModelIndex &index, const QPoint &globalPos);

private Q_SLOTS:
    void handleDescribeAction();
    void handleBrowseAction();

private:
    QAction *m_describeAction;
    QAction *m_browseAction;
    Model *m_model;
    QPersistentModelIndex m_index;
};

} // namespace PackageTable
