// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "passwdtextedit.h"

namespace RepoEditor {

// The option lines of a repository. A password in one of them is masked until that line is edited.
class OptionsEdit : public PasswdTextEdit
{
    Q_OBJECT

public:
    OptionsEdit(int rows, int columns, QWidget *parent);

    void setRealPlainText(const QString &text);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    QString masked(const QString &real) const override;

private:
    void noteEdit(int position, int removed, int added);

    bool m_filling = false;
};

} // namespace RepoEditor
