// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "optionsedit.h"

#include "yumio/passwordsintext.h"

#include <QScopedValueRollback>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>

namespace RepoEditor {

namespace {

// States of a line of the real text.
constexpr int untouched = -1;
constexpr int edited = 1;

} // namespace

OptionsEdit::OptionsEdit(int rows, int columns, QWidget *parent)
    : PasswdTextEdit(QRegularExpression(), rows, columns, parent)
{
    connect(realDocument(), &QTextDocument::contentsChange, this, &OptionsEdit::noteEdit);
}

void OptionsEdit::setRealPlainText(const QString &text)
{
    const QScopedValueRollback guard(m_filling, true);
    PasswdTextEdit::setRealPlainText(text);
}

// A line in front of which another is begun is not edited by that. What comes back is hidden again.
void OptionsEdit::noteEdit(int position, int, int added)
{
    if (m_filling)
        return;
    for (QTextBlock line = realDocument()->findBlock(position);
         line.isValid() && (line.position() <= position || line.position() < position + added);
         line = line.next())
        line.setUserState(isRestoring() ? untouched : edited);
}

QString OptionsEdit::masked(const QString &real) const
{
    const QChar mask =
        QChar(char16_t(style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, this)));
    const QStringList lines = real.split(u'\n');
    QStringList shown =
        maskOptionPasswords(real, mask).split(u'\n'); // one may go on in the next line
    int position = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (realDocument()->findBlock(position).userState() == edited)
            shown[i] = lines.at(i);
        position += int(lines.at(i).size()) + 1;
    }
    return shown.join(u'\n');
}

// The editor's own: what it copies is what is seen.
void OptionsEdit::contextMenuEvent(QContextMenuEvent *event)
{
    HTextEdit::contextMenuEvent(event);
}

} // namespace RepoEditor
