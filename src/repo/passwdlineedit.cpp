// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "passwdlineedit.h"

#include "app/fonts.h"
#include "maskedfield.h"
#include "passwdreal.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyle>

#include <limits>

namespace {

int anchorOf(const QLineEdit &edit)
{
    if (!edit.hasSelectedText())
        return edit.cursorPosition();
    return edit.cursorPosition() == edit.selectionStart() ? edit.selectionEnd()
                                                          : edit.selectionStart();
}

void place(QLineEdit &edit, int anchor, int cursor)
{
    if (anchor == cursor)
        edit.setCursorPosition(cursor); // drops a selection
    else
        edit.setSelection(anchor, cursor - anchor);
}

} // namespace

PasswdLineEdit::PasswdLineEdit(const QRegularExpression &mask, QWidget *parent)
    : QLineEdit(parent), m_mask(mask), m_real(new PasswdRealLineEdit(parent))
{
    MaskedField::hideFromAccessibility();
    setFont(Fonts::makeFixed(font()));
    setAcceptDrops(false);
    setInputMethodHints(inputMethodHints() | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    setMaxLength(std::numeric_limits<int>::max());

    m_real->setMaxLength(maxLength());
    m_real->setAcceptDrops(false);
    m_real->setFocusPolicy(Qt::NoFocus);
    m_real->setFont(font());
    m_real->setGeometry(geometry());
    m_real->hide();
    connect(m_real, &QLineEdit::textChanged, this, &PasswdLineEdit::textChanged);

    connect(this, &QLineEdit::cursorPositionChanged, this, &PasswdLineEdit::carryToReal);
    connect(this, &QLineEdit::selectionChanged, this, &PasswdLineEdit::carryToReal);
    connect(this, &QLineEdit::textChanged, this, &PasswdLineEdit::visibleEdited);
}

PasswdLineEdit::~PasswdLineEdit()
{
    disconnect(this, nullptr, this, nullptr);
    delete m_real;
}

void PasswdLineEdit::setRealText(const QString &text)
{
    m_real->setText(text);
    carryToVisible(); // the same text again moves the cursor all the same
}

QString PasswdLineEdit::realText() const
{
    return m_real->text();
}

QString PasswdLineEdit::masked(const QString &real) const
{
    const int character = style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, this);
    return MaskedField::maskAll(real, m_mask, QChar(char16_t(character)));
}

void PasswdLineEdit::textChanged(const QString &real)
{
    showMasked();
    carryToVisible();
    Q_EMIT realTextChanged(real);
}

void PasswdLineEdit::showMasked()
{
    const QScopedValueRollback guard(m_carrying, true);
    const QString shown = masked(m_real->text());
    if (shown != text())
        setText(shown);
}

void PasswdLineEdit::carryToVisible()
{
    const QScopedValueRollback guard(m_carrying, true);
    const int anchor = anchorOf(*m_real), cursor = m_real->cursorPosition();
    if (anchor != anchorOf(*this) || cursor != cursorPosition())
        place(*this, anchor, cursor);
}

void PasswdLineEdit::carryToReal()
{
    if (m_carrying || text().size() != m_real->text().size())
        return;
    const QString real = m_real->text();
    place(*m_real, int(MaskedField::wholeCharacter(real, anchorOf(*this))),
          int(MaskedField::wholeCharacter(real, cursorPosition())));
    carryToVisible();
}

// Something else than a key changed the copy: assistive technology, or a call of the base class.
void PasswdLineEdit::visibleEdited(const QString &visible)
{
    if (m_carrying)
        return;
    const auto edit = MaskedField::difference(masked(m_real->text()), visible, cursorPosition());
    m_real->setSelection(int(edit.position), int(edit.removed));
    if (edit.removed == 0)
        m_real->setCursorPosition(int(edit.position));
    insertReal(edit.inserted);
}

// In place of what is selected. The copy follows even if the real text is as it was.
void PasswdLineEdit::insertReal(const QString &text)
{
    m_real->insertApart(text);
    showMasked();
    carryToVisible();
}

void PasswdLineEdit::giveCopy(QClipboard::Mode mode)
{
    const qsizetype length = selectedText().size();
    QGuiApplication::clipboard()->setMimeData(
        MaskedField::copied(selectedText(), m_real->text().mid(selectionStart(), length)), mode);
}

// QLineEdit made what is selected the primary selection.
void PasswdLineEdit::giveSelection()
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    if (hasSelectedText() && clipboard->supportsSelection() && clipboard->ownsSelection() &&
        clipboard->text(QClipboard::Selection) == selectedText())
        giveCopy(QClipboard::Selection);
}

void PasswdLineEdit::copy()
{
    if (hasSelectedText())
        giveCopy(QClipboard::Clipboard);
}

void PasswdLineEdit::cut()
{
    if (isReadOnly() || !hasSelectedText())
        return;
    copy();
    m_real->del();
    carryToVisible();
}

void PasswdLineEdit::paste()
{
    if (isReadOnly())
        return;
    const QString text = MaskedField::pasted(QGuiApplication::clipboard()->mimeData());
    if (!text.isEmpty() || hasSelectedText())
        insertReal(text);
}

void PasswdLineEdit::undo()
{
    if (isReadOnly())
        return;
    m_real->undo();
    carryToVisible();
}

void PasswdLineEdit::redo()
{
    if (isReadOnly())
        return;
    m_real->redo();
    carryToVisible();
}

void PasswdLineEdit::clear()
{
    m_real->clear();
    carryToVisible();
}

bool PasswdLineEdit::event(QEvent *event)
{
    const bool result = QLineEdit::event(event);
    if (!m_real)
        return result;
    switch (event->type()) {
    case QEvent::Move:
        m_real->setGeometry(geometry());
        break;
    case QEvent::FontChange:
        m_real->setFont(font());
        break;
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

void PasswdLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
        event->accept();
        return;
    }
    if (isReadOnly()) {
        QLineEdit::keyPressEvent(event);
        giveSelection();
        return;
    }
    if (event->matches(QKeySequence::Cut)) {
        cut();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (event->matches(QKeySequence::Undo)) {
        undo();
    } else if (event->matches(QKeySequence::Redo)) {
        redo();
    } else if (event->matches(QKeySequence::DeleteEndOfLine)) {
        setSelection(cursorPosition(), int(text().size()));
        cut();
    } else if (event->matches(QKeySequence::DeleteCompleteLine)) {
        selectAll();
        cut();
    } else if (MaskedField::editsText(event)) {
        m_real->keyPressEvent(event);
        carryToVisible();
        return;
    } else {
        QLineEdit::keyPressEvent(event);
        giveSelection();
        return;
    }
    event->accept();
}

void PasswdLineEdit::keyReleaseEvent(QKeyEvent *event)
{
    QLineEdit::keyReleaseEvent(event);
    m_real->keyReleaseEvent(event);
}

void PasswdLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    // The middle button pastes where it was pressed. The base class would paste into the copy.
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        giveSelection();
        return;
    }
    event->accept();
    if (isReadOnly())
        return;
    m_real->deselect();
    insertReal(MaskedField::pasted(clipboard->mimeData(QClipboard::Selection)));
}

void PasswdLineEdit::inputMethodEvent(QInputMethodEvent *event)
{
    if (isReadOnly()) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    {
        const QScopedValueRollback guard(m_carrying, true);
        QInputMethodEvent none;
        QLineEdit::inputMethodEvent(&none);
    }
    m_real->inputMethodEvent(event);
    carryToVisible();

    // What is being composed counts as typed already, so that it is masked inside a password.
    const int cursor = m_real->cursorPosition();
    const QString whole = m_real->text().insert(cursor, event->preeditString());
    QInputMethodEvent shown(masked(whole).mid(cursor, event->preeditString().size()),
                            MaskedField::withoutSelection(event->attributes()));
    const QScopedValueRollback guard(m_carrying, true);
    QLineEdit::inputMethodEvent(&shown);
}

void PasswdLineEdit::contextMenuEvent(QContextMenuEvent *) {}

void PasswdLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    m_real->setGeometry(geometry());
}
