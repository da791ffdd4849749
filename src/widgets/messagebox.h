// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMessageBox>

#include <functional>

// Shows a modal message box with up to three buttons and returns the number of the one pressed.
// Empty texts give no button; three empty texts give one OK button, number 0. `defaultButton` is
// pressed by Return, `escapeButton` by Escape and by closing the box; -1 for none, so that a choice
// must be made where there is one. The text is plain text of any length; a long one is shown in
// part, with the whole at hand. The result is `escapeButton` when the program ended the box.
int showMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                   const QString &text, const QString &button0 = QString(),
                   const QString &button1 = QString(), const QString &button2 = QString(),
                   int defaultButton = 0, int escapeButton = -1);

// The same beside the work of the program, which goes on: returns at once, and calls `answered` with
// the number when the box has closed, unless the parent has gone. The box deletes itself. With
// Qt::NonModal the parent can be used meanwhile.
QMessageBox *openMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                            const QString &text, const QString &button0, const QString &button1,
                            int defaultButton, int escapeButton,
                            const std::function<void(int)> &answered,
                            Qt::WindowModality modality = Qt::WindowModal);
