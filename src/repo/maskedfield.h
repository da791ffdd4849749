// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QInputMethodEvent>
#include <QRegularExpression>
#include <QString>

class QKeyEvent;
class QMimeData;

// What the two masked fields share. Each shows a copy of the text of a real editor that nobody
// sees, and this is about the copy. Lengths never change, so a position is the same in both.
namespace MaskedField {

// The text with every non-empty capture of every match replaced by mask characters.
QString maskAll(const QString &text, const QRegularExpression &expression, QChar mask);

// How one text became another by one edit after which the cursor stood at `cursor`.
struct Edit
{
    qsizetype position;
    qsizetype removed;
    QString inserted;
};
Edit difference(const QString &before, const QString &after, qsizetype cursor);

// The position, or the next one when it lies between the two halves of one character.
qsizetype wholeCharacter(const QString &text, qsizetype position);

// Whether the key types or deletes something, so that nothing is selected afterwards. A key that
// leaves a selection would make what the real editor has selected the primary selection.
bool editsText(const QKeyEvent *event);

// What an input method says about a text that is being composed, for the copy.
QList<QInputMethodEvent::Attribute>
withoutSelection(const QList<QInputMethodEvent::Attribute> &attributes);

// For the clipboard: others get what is shown, and pasted() what is real. The caller owns it.
QMimeData *copied(const QString &shown, const QString &real);
// The text to paste. `restored`, where given, says whether it comes from copied(). Nothing of what
// another program put into the clipboard since then is restored, even if it is what was shown.
QString pasted(const QMimeData *source, bool *restored = nullptr);

// Keeps the real editors, which are children of a window like any other widget, from telling
// assistive technology what they hold.
void hideFromAccessibility();

} // namespace MaskedField
