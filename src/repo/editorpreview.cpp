// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editorpreview.h"

#include "app/colors.h"
#include "app/fonts.h"
#include "app/harmless.h"
#include "linediff.h"
#include "rootpath.h"
#include "widgets/htextedit.h"
#include "yumio/passwordsintext.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>

namespace RepoEditor {

namespace {

constexpr qsizetype contextLines = 3; // around a change
constexpr int rows = 24;
constexpr int columns = 80;

QStringList linesOf(QString text)
{
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

bool isNearChange(const QList<DiffLine> &lines, qsizetype at)
{
    const auto from = lines.cbegin() + std::max<qsizetype>(0, at - contextLines);
    const auto to = lines.cbegin() + std::min(lines.size(), at + contextLines + 1);
    return std::any_of(from, to, [](const DiffLine &line) { return line.kind != DiffLine::Same; });
}

} // namespace

PreviewDialog::PreviewDialog(const YumConfIO::Preview &preview, QWidget *parent)
    : HDialog(parent), m_text(new HTextEdit(rows, columns, this))
{
    setObjectName(QStringLiteral("repoPreview"));
    setWindowTitle(tr("VOK Repository Configuration Changes"));
    m_text->setObjectName(QStringLiteral("changes"));
    m_text->setAccessibleName(tr("Changes"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setFont(Fonts::makeFixed(font()));
    m_text->setLineWrapMode(QTextEdit::NoWrap);
    m_cursor = QTextCursor(m_text->document());

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(buttons);

    if (!preview.refusals.isEmpty())
        put(tr("Nothing can be written:"), Heading);
    for (const QString &refusal : preview.refusals)
        put(refusal, Bad);
    for (const QString &note : preview.notes)
        put(note, Bad);
    if (preview.changes.isEmpty())
        put(tr("No file would be another one."), Plain);
    for (const YumConfIO::FileChange &change : preview.changes)
        putChange(change);
    m_text->moveCursor(QTextCursor::Start);
}

void PreviewDialog::put(const QString &line, Style style)
{
    const QColor background = palette().color(QPalette::Base);
    QTextCharFormat format;
    if (style == Heading)
        format.setFontWeight(QFont::Bold);
    else if (style != Plain)
        format.setForeground(
            Colors::readable(style == Good ? Colors::ok() : Colors::error(), background));
    if (!m_cursor.atStart())
        m_cursor.insertBlock();
    m_cursor.insertText(harmlessPage(line), format);
}

void PreviewDialog::putChange(const YumConfIO::FileChange &change)
{
    const QString path = RootPath::shown(change.path);
    if (!m_cursor.atStart())
        put(QString(), Plain);
    put(change.removed   ? tr("%1 is removed").arg(path)
        : change.existed ? tr("%1 is changed").arg(path)
                         : tr("%1 is new").arg(path),
        Heading);

    if (!change.copy.isEmpty())
        put(tr("Its present content is kept in %1.").arg(RootPath::shown(change.copy)), Plain);

    const QStringList before = linesOf(change.before), after = linesOf(change.after);
    const QStringList oldShown = linesOf(maskOptionPasswords(change.before));
    const QStringList newShown = linesOf(maskOptionPasswords(change.after));
    const QList<DiffLine> lines = diffLines(before, after);
    QSet<QString> removed;
    bool skipping = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const DiffLine &line = lines[i];
        switch (line.kind) {
        case DiffLine::Same:
            if (isNearChange(lines, i))
                put(QStringLiteral("  ") + oldShown.value(line.before), Plain);
            else if (!skipping)
                put(QStringLiteral("  ..."), Plain);
            skipping = !isNearChange(lines, i);
            continue;
        case DiffLine::Removed:
            removed.insert(oldShown.value(line.before));
            put(QStringLiteral("- ") + oldShown.value(line.before), Bad);
            break;
        case DiffLine::Added: {
            const QString text = newShown.value(line.after);
            const bool onlyPassword = removed.contains(text) && text != after.value(line.after);
            put(QStringLiteral("+ ") +
                    (onlyPassword ? tr("%1  (another password)").arg(text) : text),
                Good);
            break;
        }
        }
        skipping = false;
    }
}

} // namespace RepoEditor
