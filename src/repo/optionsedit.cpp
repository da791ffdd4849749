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

constexpr int edited = 1; // state of a line of the real text

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

// A line in front of which another is begun is not edited by that.
void OptionsEdit::noteEdit(int position, int, int added)
{
    if (m_filling)
        return;
    for (QTextBlock line = realDocument()->findBlock(position);
         line.isValid() && (line.position() <= position || line.position() < position + added);
         line = line.next())
        line.setUserState(edited);
}

QString OptionsEdit::masked(const QString &real) const
{
    const QChar mask =
        QChar(char16_t(style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, this)));
    QStringList lines = real.split(u'\n');
    int position = 0;
    for (QString &line : lines) {
        const int length = int(line.size());
        if (realDocument()->findBlock(position).userState() != edited)
            line = maskOptionPasswords(line, mask);
        position += length + 1;
    }
    return lines.join(u'\n');
}

// The editor's own: what it copies is what is seen.
void OptionsEdit::contextMenuEvent(QContextMenuEvent *event)
{
    HTextEdit::contextMenuEvent(event);
}

} // namespace RepoEditor
