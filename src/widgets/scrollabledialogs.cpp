// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scrollabledialogs.h"

#include "longtext.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

namespace {

constexpr int tabColumns = 8;
constexpr int fewestColumns = 40;
constexpr int fewestRows = 3;

// Readers speak the text when the dialog opens; the rest is read in it.
constexpr qsizetype mostSpoken = 2000;

// Stands for the width of a line that is not worth measuring: it will be wrapped anyway.
constexpr qsizetype longLine = 2000;

int widthOf(const QPlainTextEdit *edit, const QString &line)
{
    const QFontMetrics metrics = edit->fontMetrics();
    if (line.size() > longLine)
        return int(qMin<qsizetype>(line.size(), 1 << 20)) * metrics.averageCharWidth();
    return metrics.size(Qt::TextExpandTabs, line, int(edit->tabStopDistance())).width();
}

// The rows that the text takes in a column of that width, counted up to `most`. Words do not fill a
// row that is wrapped.
int rowsOf(const QPlainTextEdit *edit, int column, int most)
{
    int rows = 0;
    for (QTextBlock block = edit->document()->begin(); block.isValid() && rows < most;
         block = block.next()) {
        const qint64 width = widthOf(edit, block.text());
        rows += width <= column ? 1 : int(width * 11 / 10 / column) + 1;
    }
    return rows;
}

// The size at which the whole text shows, as far as `most` allows.
QSize textSize(const QPlainTextEdit *edit, QSize most)
{
    const QFontMetrics metrics = edit->fontMetrics();
    const int around = 2 * (edit->frameWidth() + int(edit->document()->documentMargin()));
    const int beside = around + edit->verticalScrollBar()->sizeHint().width();
    const int widest = qMax(most.width() - beside, 1);
    int width = qMin(fewestColumns * metrics.averageCharWidth(), widest);
    for (QTextBlock block = edit->document()->begin(); block.isValid() && width < widest;
         block = block.next())
        width = qMin(qMax(width, widthOf(edit, block.text())), widest);
    const int rows = rowsOf(edit, width, most.height() / metrics.lineSpacing() + 1);
    // Half a row more, or a text that just fits has a scroll bar.
    const int height = (2 * qMax(rows, fewestRows) + 1) * metrics.lineSpacing() / 2 + around;
    return QSize(width + beside, height).boundedTo(most);
}

} // namespace

ScrollableDialog::ScrollableDialog(const QString &text, QWidget *parent)
    : HDialog(parent), m_text(new LongText(this)), m_buttons(new QDialogButtonBox(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_buttons);
    setSizeGripEnabled(true);
    m_buttons->setObjectName(QStringLiteral("buttons"));
    m_text->setObjectName(QStringLiteral("text"));
    m_text->setAccessibleName(tr("Message"));
    m_text->setTabStopDistance(tabColumns * m_text->fontMetrics().averageCharWidth());
    m_text->setText(text);
    setAccessibleDescription(m_text->toPlainText().left(mostSpoken));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ScrollableDialog::setDefaultButton(QPushButton *button)
{
    button->setDefault(true);
    button->setFocus();
    // By itself a window takes two thirds of the screen at most.
    resize(sizeHint());
}

QSize ScrollableDialog::sizeHint() const
{
    const QSize available = screen()->availableSize();
    const QSize most(available.width() * 9 / 10, available.height() * 9 / 10);
    const QMargins margins = layout()->contentsMargins();
    const QSize rest(margins.left() + margins.right(), margins.top() + margins.bottom() +
                                                           layout()->spacing() +
                                                           m_buttons->sizeHint().height());
    return textSize(m_text, most - rest).expandedTo(QSize(m_buttons->sizeHint().width(), 0)) + rest;
}

ScrollableConfirmDialog::ScrollableConfirmDialog(const QString &text, const QString &yesText,
                                                 const QString &noText, QWidget *parent)
    : ScrollableDialog(text, parent)
{
    setObjectName(QStringLiteral("scrollableConfirmDialog"));
    QPushButton *yes = m_buttons->addButton(yesText, QDialogButtonBox::AcceptRole);
    QPushButton *no = m_buttons->addButton(noText, QDialogButtonBox::RejectRole);
    yes->setObjectName(QStringLiteral("yesButton"));
    no->setObjectName(QStringLiteral("noButton"));
    setDefaultButton(yes);
}

ScrollableErrorDialog::ScrollableErrorDialog(const QString &text, QWidget *parent)
    : ScrollableDialog(text, parent)
{
    setObjectName(QStringLiteral("scrollableErrorDialog"));
    QPushButton *ok = m_buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("okButton"));
    ok->setIcon(QIcon()); // as on the confirmation's buttons
    setDefaultButton(ok);
}
