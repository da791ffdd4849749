// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QHBoxLayout;
class QPushButton;

// Base of the program's dialogs. A dialog that opens while its parent window is minimised brings
// that window back, so that it is found.
class HDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    // Whether something was changed through this dialog that its opener must react to when it
    // hides. Only ever set and cleared by derived dialogs and by the opener.
    bool changed() const { return m_changed; }
    void setChanged(bool changed) { m_changed = changed; }

protected:
    // A new button at the end of a row, which Return presses only where it is made the default.
    QPushButton *addButton(QHBoxLayout *row, const char *name, const QString &text,
                           const QString &toolTip);

    void showEvent(QShowEvent *event) override;

private:
    bool m_changed = false;
};
