// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "findbar.h"

#include "app/colors.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QTextEdit>

Log::FindBar::FindBar(QTextEdit *area, QWidget *parent)
    : QWidget(parent), m_area(area), m_edit(new QLineEdit(this))
{
    setObjectName(QStringLiteral("findBar"));
    m_edit->setObjectName(QStringLiteral("findEdit"));
    m_edit->setClearButtonEnabled(true);
    auto *label = new QLabel(tr("Find:"), this);
    label->setBuddy(m_edit);
    auto *next = new QPushButton(tr("&Next"), this);
    auto *previous = new QPushButton(tr("&Previous"), this);
    next->setObjectName(QStringLiteral("nextButton"));
    previous->setObjectName(QStringLiteral("previousButton"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_edit, 1);
    layout->addWidget(next);
    layout->addWidget(previous);
    connect(m_edit, &QLineEdit::textChanged, this, &FindBar::findTyped);
    connect(next, &QPushButton::clicked, this, &FindBar::findNext);
    connect(previous, &QPushButton::clicked, this, &FindBar::findPrevious);
}

void Log::FindBar::open()
{
    const QString selected = m_area->textCursor().selectedText();
    show();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        m_edit->setText(selected);
    m_edit->selectAll();
    m_edit->setFocus();
}

void Log::FindBar::close()
{
    hide();
    m_area->setFocus();
}

void Log::FindBar::findNext()
{
    if (isVisible())
        find(false);
    else
        open();
}

void Log::FindBar::findPrevious()
{
    if (isVisible())
        find(true);
    else
        open();
}

void Log::FindBar::textGrew(int from)
{
    if (!isVisible() || m_found)
        return;
    QTextCursor start(m_area->document());
    start.setPosition(from);
    const QTextCursor match = m_area->document()->find(m_edit->text(), start);
    if (match.isNull())
        return;
    m_area->setTextCursor(match);
    showFound(true);
}

// A longer text may still be found where the shorter one was.
void Log::FindBar::findTyped()
{
    QTextCursor cursor = m_area->textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_area->setTextCursor(cursor);
    find(false);
}

void Log::FindBar::find(bool backwards)
{
    if (m_edit->text().isEmpty()) {
        showFound(true);
        return;
    }
    const QTextDocument::FindFlags flags =
        backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    const QTextDocument *document = m_area->document();
    QTextCursor match = document->find(m_edit->text(), m_area->textCursor(), flags);
    if (match.isNull()) {
        QTextCursor end(m_area->document());
        end.movePosition(backwards ? QTextCursor::End : QTextCursor::Start);
        match = document->find(m_edit->text(), end, flags);
    }
    if (!match.isNull())
        m_area->setTextCursor(match);
    showFound(!match.isNull());
}

void Log::FindBar::showFound(bool found)
{
    m_found = found;
    m_edit->setPalette(found ? QPalette() : Colors::makeError(m_edit->palette()));
}

void Log::FindBar::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        find(event->modifiers() & Qt::ShiftModifier);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
