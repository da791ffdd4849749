#include "scrollabledialogs.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

ScrollableDialog::ScrollableDialog(const QString &text, QWidget *parent)
    : HDialog(parent), m_text(new QPlainTextEdit(text, this)), m_buttons(new QDialogButtonBox(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_buttons);
    m_text->setReadOnly(true);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

ScrollableConfirmDialog::ScrollableConfirmDialog(const QString &text, const QString &yesText,
                                                 const QString &noText, QWidget *parent)
    : ScrollableDialog(text, parent)
{
    m_buttons->addButton(yesText, QDialogButtonBox::AcceptRole)->setDefault(true);
    m_buttons->addButton(noText, QDialogButtonBox::RejectRole);
}

ScrollableErrorDialog::ScrollableErrorDialog(const QString &text, QWidget *parent)
    : ScrollableDialog(text, parent)
{
    m_buttons->addButton(QDialogButtonBox::Close)->setDefault(true);
}
