// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editormenu.h"

#include "editormodel.h"

namespace RepoEditor {

ContextMenu::ContextMenu(Model *model, QWidget *view) : HMenu(view), m_model(model), m_view(view)
{
    setObjectName(QStringLiteral("repoContextMenu"));
    QAction *edit = addAction(tr("&Edit"));
    edit->setObjectName(QStringLiteral("editAction"));
    connect(edit, &QAction::triggered, this, qOverload<>(&ContextMenu::edit));
    QAction *browse = addAction(tr("&Browse Repository"));
    browse->setObjectName(QStringLiteral("browseAction"));
    connect(browse, &QAction::triggered, this, &ContextMenu::browse);
}

void ContextMenu::exec(const QModelIndex &index, const QPoint &globalPos)
{
    m_index = index;
    QMenu::exec(globalPos);
}

void ContextMenu::edit()
{
    Q_EMIT edit(QModelIndex(m_index));
}

void ContextMenu::browse()
{
    m_model->browse(m_index, m_view);
}

} // namespace RepoEditor
