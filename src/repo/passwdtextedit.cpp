// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "passwdtextedit.h"

#include "app/fonts.h"
#include "maskedfield.h"
#include "passwdreal.h"

#include <QContextMenuEvent>
#include <QEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

namespace {

// The document's own plain text turns a no-break space into a blank.
QString plainText(const QTextEdit &edit)
{
    QString text = edit.document()->toRawText();
    for (QChar &c : text) {
        switch (c.unicode()) {
        case 0xfdd0:
        case 0xfdd1:
        case QChar::ParagraphSeparator:
        case QChar::LineSeparator:
            c = u'\n';
            break;
        default:
            break;
        }
    }
    return text;
}

bool breaksLine(const QKeyEvent *event)
{
    return event->matches(QKeySequence::InsertParagraphSeparator) ||
           event->matches(QKeySequence::InsertLineSeparator) || event->key() == Qt::Key_Tab;
}

void place(QTextEdit &edit, int anchor, int position)
{
    QTextCursor cursor = edit.textCursor();
    if (cursor.anchor() == anchor && cursor.position() == position)
        return; // keeps the column that moving up and down remembers
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
}

} // namespace

PasswdTextEdit::PasswdTextEdit(const QRegularExpression &mask, QWidget *parent)
    : HTextEdit(parent), m_mask(mask), m_real(new PasswdRealTextEdit(parent))
{
    construct();
}

PasswdTextEdit::PasswdTextEdit(const QRegularExpression &mask, int rows, int columns,
                               QWidget *parent)
    : HTextEdit(rows, columns, parent), m_mask(mask),
      m_real(new PasswdRealTextEdit(rows, columns, parent))
{
    construct();
}

void PasswdTextEdit::construct()
{
    MaskedField::hideFromAccessibility();
    setFont(Fonts::makeFixed(font()));
    setCurrentFont(font());
    setWordWrapMode(QTextOption::WrapAnywhere);
    setAcceptDrops(false);
    setAcceptRichText(false);
    setUndoRedoEnabled(false); // the real editor does it
    setInputMethodHints(inputMethodHints() | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);

    m_real->setWordWrapMode(QTextOption::WrapAnywhere);
    m_real->setAcceptDrops(false);
    m_real->setAcceptRichText(false);
    m_real->setFocusPolicy(Qt::NoFocus);
    m_real->setFont(font());
    m_real->setCurrentFont(font());
    placeReal();
    m_real->hide();
    connect(m_real, &QTextEdit::textChanged, this, &PasswdTextEdit::textChanged);

    connect(this, &QTextEdit::cursorPositionChanged, this, &PasswdTextEdit::carryToReal);
    connect(this, &QTextEdit::selectionChanged, this, &PasswdTextEdit::carryToReal);
    connect(this, &QTextEdit::textChanged, this, &PasswdTextEdit::visibleEdited);
}

PasswdTextEdit::~PasswdTextEdit()
{
    disconnect(this, nullptr, this, nullptr);
    delete m_real;
}

void PasswdTextEdit::setRealPlainText(const QString &text)
{
    m_real->setPlainText(text);
    carryToVisible();
}

QString PasswdTextEdit::realPlainText() const
{
    return plainText(*m_real);
}

QTextDocument *PasswdTextEdit::realDocument() const
{
    return m_real->document();
}

QString PasswdTextEdit::masked(const QString &real) const
{
    const int character = style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, this);
    return MaskedField::maskAll(real, m_mask, QChar(char16_t(character)));
}

void PasswdTextEdit::textChanged()
{
    showMasked();
    carryToVisible();
    Q_EMIT realTextChanged();
}

// Only what differs is changed, so that the view stays where it is.
void PasswdTextEdit::showMasked()
{
    const QScopedValueRollback guard(m_carrying, true);
    const QString shown = masked(realPlainText());
    const auto edit =
        MaskedField::difference(plainText(*this), shown, m_real->textCursor().position());
    if (edit.removed == 0 && edit.inserted.isEmpty())
        return;
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.setPosition(int(edit.position));
    cursor.setPosition(int(edit.position + edit.removed), QTextCursor::KeepAnchor);
    cursor.insertText(edit.inserted, currentCharFormat());
    cursor.endEditBlock();
}

void PasswdTextEdit::carryToVisible()
{
    const QScopedValueRollback guard(m_carrying, true);
    const QTextCursor cursor = m_real->textCursor();
    place(*this, cursor.anchor(), cursor.position());
}

void PasswdTextEdit::carryToReal()
{
    if (m_carrying || document()->characterCount() != m_real->document()->characterCount())
        return;
    const QString real = realPlainText();
    const QTextCursor cursor = textCursor();
    place(*m_real, int(MaskedField::wholeCharacter(real, cursor.anchor())),
          int(MaskedField::wholeCharacter(real, cursor.position())));
    carryToVisible();
}

// Something else than a key changed the copy: a drag that took text away, assistive technology, or
// a call of the base class.
void PasswdTextEdit::visibleEdited()
{
    if (m_carrying)
        return;
    const QString before = masked(realPlainText()), after = plainText(*this);
    if (before == after)
        return; // a change of format
    const auto edit = MaskedField::difference(before, after, textCursor().position());
    place(*m_real, int(edit.position), int(edit.position + edit.removed));
    insertReal(edit.inserted);
}

// In place of what is selected. The copy follows even if the real text is as it was.
void PasswdTextEdit::insertReal(const QString &text)
{
    QTextCursor cursor = m_real->textCursor();
    cursor.beginEditBlock(); // one step to undo
    cursor.insertText(text);
    cursor.endEditBlock();
    showMasked();
    carryToVisible();
    ensureCursorVisible();
}

void PasswdTextEdit::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly() || !source->hasText())
        return;
    carryToReal();
    bool restored = false;
    const QString text = MaskedField::pasted(source, &restored);
    const QScopedValueRollback guard(m_restoring, restored);
    insertReal(text);
}

QMimeData *PasswdTextEdit::createMimeDataFromSelection() const
{
    const std::unique_ptr<const QMimeData> shown(HTextEdit::createMimeDataFromSelection());
    const QTextCursor cursor = textCursor();
    const qsizetype length = cursor.selectionEnd() - cursor.selectionStart();
    return MaskedField::copied(shown->text(), realPlainText().mid(cursor.selectionStart(), length));
}

void PasswdTextEdit::cut()
{
    if (isReadOnly() || !textCursor().hasSelection())
        return;
    copy();
    insertReal(QString());
}

void PasswdTextEdit::undo()
{
    const QScopedValueRollback guard(m_restoring, true);
    m_real->undo();
    carryToVisible();
}

void PasswdTextEdit::redo()
{
    const QScopedValueRollback guard(m_restoring, true);
    m_real->redo();
    carryToVisible();
}

void PasswdTextEdit::clear()
{
    m_real->clear();
}

bool PasswdTextEdit::event(QEvent *event)
{
    const bool result = HTextEdit::event(event);
    if (!m_real)
        return result;
    switch (event->type()) {
    case QEvent::Move:
        placeReal();
        break;
    case QEvent::FontChange: {
        // The text carries the font it was given.
        const QScopedValueRollback guard(m_carrying, true);
        QTextCursor all(document());
        all.select(QTextCursor::Document);
        QTextCharFormat format;
        format.setFont(font());
        all.mergeCharFormat(format);
        setCurrentFont(font());
        m_real->setFont(font());
        m_real->setCurrentFont(font());
        break;
    }
    case QEvent::ParentChange:
        m_real->setParent(parentWidget());
        break;
    case QEvent::StyleChange:
        showMasked(); // the mask character is the style's
        carryToVisible();
        break;
    default:
        break;
    }
    return result;
}

bool PasswdTextEdit::viewportEvent(QEvent *event)
{
    const bool result = HTextEdit::viewportEvent(event);
    if (event->type() == QEvent::Resize && m_real)
        placeReal();
    return result;
}

void PasswdTextEdit::keyPressEvent(QKeyEvent *event)
{
    if (isReadOnly()) {
        HTextEdit::keyPressEvent(event);
        return;
    }
    if (event->matches(QKeySequence::Cut)) {
        cut();
    } else if (event->matches(QKeySequence::Undo)) {
        undo();
    } else if (event->matches(QKeySequence::Redo)) {
        redo();
    } else if (MaskedField::editsText(event) || breaksLine(event) ||
               event->matches(QKeySequence::DeleteEndOfLine)) {
        m_real->keyPressEvent(event);
        carryToVisible();
        ensureCursorVisible();
        return;
    } else {
        HTextEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    ensureCursorVisible();
}

void PasswdTextEdit::keyReleaseEvent(QKeyEvent *event)
{
    HTextEdit::keyReleaseEvent(event);
    m_real->keyReleaseEvent(event);
}

void PasswdTextEdit::inputMethodEvent(QInputMethodEvent *event)
{
    if (isReadOnly()) {
        HTextEdit::inputMethodEvent(event);
        return;
    }
    {
        const QScopedValueRollback guard(m_carrying, true);
        QInputMethodEvent none;
        HTextEdit::inputMethodEvent(&none);
    }
    m_real->inputMethodEvent(event);
    carryToVisible();

    // What is being composed counts as typed already, so that it is masked inside a password.
    const int cursor = m_real->textCursor().position();
    const QString whole = realPlainText().insert(cursor, event->preeditString());
    QInputMethodEvent shown(masked(whole).mid(cursor, event->preeditString().size()),
                            MaskedField::withoutSelection(event->attributes()));
    const QScopedValueRollback guard(m_carrying, true);
    HTextEdit::inputMethodEvent(&shown);
}

void PasswdTextEdit::contextMenuEvent(QContextMenuEvent *) {}

void PasswdTextEdit::resizeEvent(QResizeEvent *event)
{
    HTextEdit::resizeEvent(event);
    placeReal();
}

void PasswdTextEdit::placeReal()
{
    m_real->setGeometry(geometry());
    m_real->setViewportMargins(0, 0, 0, 0);
}
