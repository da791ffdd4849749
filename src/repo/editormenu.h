// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/hmenu.h"

#include <QPersistentModelIndex>

namespace RepoEditor {

class Model;

// What can be done with the repository it was opened at.
class ContextMenu : public HMenu
{
    Q_OBJECT

public:
    ContextMenu(Model *model, QWidget *view);

    // Runs modally; `index` is the model's, and may be invalid.
    void exec(const QModelIndex &index, const QPoint &globalPos);

Q_SIGNALS:
    void edit(const QModelIndex &index);

private Q_SLOTS:
    void edit();
    void browse();

private:
    Model *m_model;
    QWidget *m_view;
    QPersistentModelIndex m_index;
};

} // namespace RepoEditor
