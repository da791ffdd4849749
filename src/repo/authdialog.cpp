// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "authdialog.h"

#include "app/fonts.h"
#include "app/harmless.h"
#include "entrycheck.h"
#include "kivvet/kivvet.h"
#include "repoentry.h"
#include "widgets/explaindisabled.h"
#include "widgets/hscrollarea.h"
#include "widgets/hseparator.h"
#include "widgets/hwraplabel.h"
#include "widgets/messagebox.h"
#include "yumio/passwordsintext.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

namespace RepoAuth {

namespace {

constexpr int wideness = 40; // in letters
constexpr int urlsRow = 2;
constexpr int firstAnswer = 3; // of the buttons

// A key of a URL may hold what a label would take for the mark of a shortcut.
void showKey(QLabel *label, const QString &key, const QString &fallback)
{
    label->setText(key.isEmpty() ? fallback : harmlessLabel(key));
}

// Screen readers tell an empty label by the text of the label beside it.
void showValue(QLabel *label, const QString &text)
{
    label->setText(text);
    label->setAccessibleName(text.isEmpty() ? Dialog::tr("none") : QString());
}

} // namespace

Dialog::Dialog(QWidget *parent) : HDialog(parent)
{
    setObjectName(QStringLiteral("authDialog"));
    setWindowTitle(tr("VOK Authentication"));
    m_heading = new QLabel(tr("Some configured repositories require authentication"), this);
    m_heading->setFont(Fonts::makeHeader(m_heading->font()));
    m_heading->setWordWrap(true);
    m_warning = new QLabel(this);
    m_warning->setObjectName(QStringLiteral("warningLabel"));
    m_warning->setTextFormat(Qt::PlainText);
    m_warning->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(new HSeparator(this));
    layout->addLayout(createFields(), 1);
    layout->addWidget(m_warning);
    createButtons();
}

QLayout *Dialog::createFields()
{
    auto *grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    const auto add = [&](int row, const char *name, const QString &title) {
        auto *value = new HWrapLabel(this);
        value->setObjectName(QLatin1String(name));
        value->installEventFilter(this);
        auto *label = new QLabel(title, this);
        label->setBuddy(value);
        grid->addWidget(label, row, 0, Qt::AlignTop);
        if (row != urlsRow) {
            grid->addWidget(value, row, 1);
            return value;
        }
        // Of these there may be many.
        m_urls = new HScrollArea(this);
        m_urls->setFrameShape(QFrame::NoFrame);
        m_urls->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_urls->takeFocusToScroll();
        m_urls->setAccessibleName(title);
        m_urls->setMinimumHeight(fontMetrics().height());
        m_urls->setWidget(value);
        grid->addWidget(m_urls, row, 1);
        return value;
    };
    m_id = add(0, "idLabel", tr("Identifier"));
    m_repoName = add(1, "repoNameLabel", tr("Name"));
    m_baseurl = add(urlsRow, "baseurlLabel", tr("URLs"));
    m_mirrorlist = add(3, "mirrorlistLabel", tr("Mirror list URL"));
    grid->addWidget(new HSeparator(this), 4, 0, 1, 2);
    m_name = addEdit(grid, 5, "nameEdit", m_nameLabel,
                     tr("Authentication name for a repository using the kivvet authentication "
                        "method"));
    m_password = addEdit(grid, 6, "passwordEdit", m_passwordLabel,
                         tr("Authentication password for a repository using the kivvet "
                            "authentication method"));
    m_password->setEchoMode(QLineEdit::Password);
    showKey(m_nameLabel, QString(), tr("Name"));
    showKey(m_passwordLabel, QString(), tr("Password"));
    grid->setRowStretch(7, 1);
    return grid;
}

QLineEdit *Dialog::addEdit(QGridLayout *grid, int row, const char *name, QLabel *&label,
                           const QString &toolTip)
{
    label = new QLabel(this);
    auto *edit = new QLineEdit(this);
    label->setObjectName(QLatin1String(name) + QLatin1String("Label"));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(edit);
    edit->setObjectName(QLatin1String(name));
    edit->setToolTip(toolTip);
    connect(edit, &QLineEdit::textEdited, this, &Dialog::authChanged);
    grid->addWidget(label, row, 0);
    grid->addWidget(edit, row, 1);
    return edit;
}

void Dialog::createButtons()
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    const auto add = [&](const char *name, const QString &text, void (Dialog::*slot)()) {
        auto *button = new QPushButton(text, this);
        button->setObjectName(QLatin1String(name));
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
        m_buttons.append(button);
    };
    add("quitButton", tr("Quit"), &Dialog::handleQuit);
    add("disableButton", tr("Disable for Session"), &Dialog::handleDisable);
    add("skipAllButton", tr("Skip All"), &Dialog::handleSkipAll);
    add("applyAllButton", tr("Apply to All"), &Dialog::handleApplyAll);
    add("applyHostButton", tr("Apply to All with this Host"), &Dialog::handleApplyHost);
    add("okButton", tr("OK"), &Dialog::handleOK);
    m_buttons.constLast()->setDefault(true);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void Dialog::setLookOnly(const QString &reason)
{
    m_lookOnly = reason;
    for (QLineEdit *edit : {m_name, m_password}) {
        edit->setEnabled(reason.isEmpty());
        explainDisabled(edit, reason);
    }
    for (QPushButton *button : m_buttons.mid(firstAnswer))
        explainDisabled(button, reason);
}

int Dialog::exec(Repo::Entry *entry, const QString &warning)
{
    QString name, password;
    m_entry = entry;
    QString nameKey, passwordKey;
    Repo::Kivvet::getAuth(*entry, nameKey, name, passwordKey, password);
    showValue(m_id, harmless(entry->id));
    showValue(m_repoName, harmless(entry->name));
    showKey(m_nameLabel, nameKey, tr("Name"));
    showKey(m_passwordLabel, passwordKey, tr("Password"));
    m_name->setText(name);
    m_password->setText(password);
    authChanged(QString());
    m_warning->setText(warning);
    m_warning->setVisible(!warning.isEmpty());
    m_password->setAccessibleDescription(warning);
    setAccessibleDescription(
        QStringLiteral("%1: %2\n%3").arg(m_heading->text(), m_id->text(), warning));
    setButtonsEnabled(true);
    // Where nothing can be answered the keyboard is at what ends the questions, not the program.
    if (m_lookOnly.isEmpty())
        m_name->setFocus();
    else
        m_buttons[firstAnswer - 1]->setFocus();
    if (isHidden())
        resize(sizeHint()); // by itself it would take two thirds of the screen at most
    show();
    setResult(Quit); // unless something is answered before the program ends the loop
    m_loop.exec();
    m_entry = nullptr;
    return result();
}

// What the labels show is no source of URLs: other passwords in them are masked too.
void Dialog::authChanged(const QString &)
{
    if (!m_entry)
        return;
    const QChar mask(
        style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, m_password));
    const auto shown = [&](const QString &urls) {
        return Repo::Kivvet::replaceAuth(maskPasswords(harmless(urls)), m_name->text(),
                                         QString(m_password->text().size(), mask));
    };
    showValue(m_baseurl, shown(m_entry->baseurl));
    showValue(m_mirrorlist, shown(m_entry->mirrorlist));
    if (isVisible()) { // else they have no width yet
        for (HWrapLabel *label : {m_id, m_repoName, m_baseurl, m_mirrorlist})
            fit(label);
    }
}

// Shown whole; only of the URLs there may be more than the screen has room for, and they get no more
// than they need.
void Dialog::fit(HWrapLabel *label)
{
    const int height = label->heightForWidth(label->width());
    label->setMinimumHeight(height);
    if (label == m_baseurl)
        m_urls->setMaximumHeight(height);
}

bool Dialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        fit(static_cast<HWrapLabel *>(watched));
    return HDialog::eventFilter(watched, event);
}

void Dialog::setUrls()
{
    if (!m_entry)
        return;
    for (QString *urls : {&m_entry->baseurl, &m_entry->mirrorlist})
        *urls = Repo::Kivvet::replaceAuth(*urls, m_name->text(), m_password->text());
}

void Dialog::answer(Answer answer)
{
    if (answer == OK || answer == ApplyAll || answer == ApplyHost) {
        const int mask =
            style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, m_password);
        if (isOnlyMask(m_password->text(), QChar(char16_t(mask)))) {
            showMessageBox(QMessageBox::Critical, this, windowTitle(),
                           EntryCheck::maskAsPassword());
            return;
        }
        setUrls();
    }
    m_entry = nullptr;
    done(answer);
}

void Dialog::handleQuit()
{
    answer(Quit);
}

void Dialog::handleDisable()
{
    answer(Disable);
}

void Dialog::handleSkipAll()
{
    answer(SkipAll);
}

void Dialog::handleApplyAll()
{
    answer(ApplyAll);
}

void Dialog::handleApplyHost()
{
    answer(ApplyHost);
}

void Dialog::handleOK()
{
    answer(OK);
}

void Dialog::done(int result)
{
    m_entry = nullptr;
    setButtonsEnabled(false);
    setResult(result);
    m_loop.exit();
    Q_EMIT finished(result);
    if (result == OK)
        Q_EMIT accepted();
    else if (result == SkipAll)
        Q_EMIT rejected();
}

void Dialog::setButtonsEnabled(bool enabled)
{
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setEnabled(enabled && (i < firstAnswer || m_lookOnly.isEmpty()));
}

void Dialog::setVisible(bool visible)
{
    if (visible == isHidden()) {
        if (visible)
            QApplication::restoreOverrideCursor();
        else
            QApplication::setOverrideCursor(Qt::BusyCursor);
    }
    HDialog::setVisible(visible);
}

// A window that refuses to close would keep the session from ending.
void Dialog::closeEvent(QCloseEvent *event)
{
    reject();
    event->accept();
}

QSize Dialog::sizeHint() const
{
    const QSize natural = HDialog::sizeHint();
    return QSize(natural.width() + wideness * fontMetrics().horizontalAdvance(u'n'),
                 natural.height())
        .boundedTo(screen()->availableSize() * 9 / 10);
}

} // namespace RepoAuth
