#pragma once

#include <QMessageBox>

// Shows a modal message box with up to three buttons and returns the number of the one pressed.
// Empty texts give no button; three empty texts give one OK button, number 0. `defaultButton` is
// pressed by Return, `escapeButton` by Escape and by closing the box; -1 for none of the given
// ones, and then Escape means the last button, or the only one. The text is plain text.
int showMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                   const QString &text, const QString &button0 = QString(),
                   const QString &button1 = QString(), const QString &button2 = QString(),
                   int defaultButton = 0, int escapeButton = -1);
