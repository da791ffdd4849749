// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configdialog.h"

#include "app/colors.h"
#include "app/harmless.h"
#include "configform.h"
#include "entrycheck.h"
#include "rootpath.h"
#include "testrow.h"
#include "widgets/explaindisabled.h"
#include "widgets/hframelabel.h"
#include "widgets/hscrollarea.h"
#include "widgets/hwraplabel.h"
#include "widgets/messagebox.h"
#include "widgets/onscreen.h"
#include "yumconfio.h"
#include "yumio/yumio.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QVBoxLayout>

#include <utility>

namespace RepoEditor {

namespace {

const QString geometryKey = QStringLiteral("repoForm/geometry");

QSettings settings()
{
    return QSettings(QStringLiteral("VOK"), QStringLiteral("vok"));
}

} // namespace

ConfigDialog::ConfigDialog(YumConfIO *yumConfIO, QWidget *parent)
    : HDialog(parent), m_yumConfIO(yumConfIO)
{
    setObjectName(QStringLiteral("repoForm"));
    setWindowTitle(tr("VOK Repository Configuration"));
    setSizeGripEnabled(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(createForm(), 1);
    m_fileNotice = new HWrapLabel(this);
    m_fileNotice->setObjectName(QStringLiteral("fileNotice"));
    layout->addWidget(m_fileNotice);
    m_test = new TestRow(this);
    layout->addWidget(m_test);
    layout->addLayout(createButtons());
    connect(m_test, &TestRow::testAsked, this, &ConfigDialog::test);
    connect(m_form, &Config::changed, this, &ConfigDialog::changed);
}

ConfigDialog::~ConfigDialog() = default;

QWidget *ConfigDialog::createForm()
{
    m_area = new HScrollArea(this);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *widget = new QWidget;
    m_form = new Config(new QGridLayout(widget));
    m_area->setWidget(widget);
    // A field may get the focus by its letter or by a click on what is seen of it.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && m_area->widget()->isAncestorOf(now))
            m_area->ensureWidgetVisible(now);
    });
    return m_area;
}

QHBoxLayout *ConfigDialog::createButtons()
{
    auto *row = new QHBoxLayout;
    m_status = new HFrameLabel(this);
    m_status->setObjectName(QStringLiteral("status"));
    row->addWidget(m_status);
    row->addStretch();
    const auto add = [&](const char *name, const QString &text, const QString &toolTip,
                         void (ConfigDialog::*slot)()) {
        QPushButton *button = addButton(row, name, text, toolTip);
        connect(button, &QPushButton::clicked, this, slot);
        return button;
    };
    m_resetButton = add("resetButton", tr("&Reset"),
                        tr("Undo changes to this repository configuration"), &ConfigDialog::reset);
    add("cancelButton", tr("&Cancel"),
        tr("Undo changes to this repository configuration and close the window"),
        &ConfigDialog::cancel);
    m_okButton = add("okButton", tr("&OK"),
                     tr("Apply changes to all repository configurations, and close the window"),
                     &ConfigDialog::ok);
    m_okButton->setDefault(true);
    return row;
}

void ConfigDialog::setEngine(YumIO *yumIO, JobRunner runner)
{
    m_yumIO = yumIO;
    m_test->setEngine(yumIO, std::move(runner));
    // While a test runs the interpreter is not to be had.
    m_form->setExpander([this](const QString &text) {
        return m_yumIO && !m_test->isTesting() ? m_yumIO->expandVariables(text) : text;
    });
}

void ConfigDialog::setEntry(Repo::Entry *entry)
{
    m_entry = entry;
    m_form->setEntry(*entry);
    updateStatusLabel();
}

void ConfigDialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        m_form->setDefaults(m_yumConfIO->mainEnabled, m_yumConfIO->mainGpgcheck);
        askEngine();
        m_okButton->setEnabled(m_yumConfIO->lookOnly().isEmpty());
        explainDisabled(m_okButton, m_yumConfIO->lookOnly());
        setHasChanged(false);
        m_area->ensureVisible(0, 0);
        m_form->setFocus();
        // By which the groups of the form tell their sizes.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        if (!restoreGeometry(settings().value(geometryKey).toByteArray()))
            resize(sizeHint().boundedTo(screen()->availableSize() * 9 / 10));
        HDialog::setVisible(true);
        keepOnScreen(this);
        return;
    }
    HDialog::setVisible(visible);
}

void ConfigDialog::askEngine()
{
    m_closeAsked.reset();
    m_test->clear();
    if (!m_knowsOptions && m_yumIO) {
        const QStringList options = m_yumIO->repositoryOptions();
        m_form->setKnownOptions(options);
        m_knowsOptions = !options.isEmpty();
    }
    m_form->showExpanded();
}

void ConfigDialog::test()
{
    m_test->test(YumConfIO::sectionText(m_form->toEntry()));
    m_form->showExpanded();
    setEnabled(true);
    if (m_closeAsked)
        done(*std::exchange(m_closeAsked, std::nullopt));
}

// Why the library would leave out the repository; empty when it would not.
QString ConfigDialog::identifierProblem() const
{
    const QString id = m_form->toEntry().id;
    const QString warning = EntryCheck::identifierWarning(id);
    if (!warning.isEmpty())
        return warning;
    QStringList others;
    for (const Repo::Entry &entry : std::as_const(m_yumConfIO->repos)) {
        if (&entry != m_entry)
            others += entry.id;
    }
    return EntryCheck::twinWarning(id, others);
}

void ConfigDialog::showFileNotice()
{
    const Repo::Entry entry = m_form->toEntry();
    const QString file = m_yumConfIO->fileOf(entry);
    const bool loses = YumConfIO::carriesPassword(entry) && m_yumConfIO->losesReaders(file);
    m_fileNotice->setText(
        tr("Other users can read %1 now.  They cannot any more once it holds this password.")
            .arg(harmless(RootPath::shown(file))));
    m_fileNotice->setVisible(loses);
}

void ConfigDialog::updateStatusLabel()
{
    m_form->showHints();
    showFileNotice();
    if (m_form->setStatus(m_yumConfIO, m_status))
        return;
    const QString problem = identifierProblem();
    if (!problem.isEmpty())
        m_status->setPalette(Colors::makeWarning(m_status->palette()));
    m_status->setText(harmlessLine(problem));
}

void ConfigDialog::setHasChanged(bool flag)
{
    m_hasChanged = flag;
    m_resetButton->setEnabled(flag);
    updateStatusLabel();
}

void ConfigDialog::changed()
{
    m_test->outdate();
    setHasChanged(true);
}

void ConfigDialog::reset()
{
    m_test->outdate();
    m_form->setEntry(*m_entry);
    setHasChanged(false);
}

void ConfigDialog::cancel()
{
    done(QDialog::Rejected);
}

// Escape or the window's X: they are hit by accident where the button is not.
void ConfigDialog::reject()
{
    if (m_closeAsked)
        return;
    // What was typed to be tried out by somebody who may only look is lost in any case.
    if (m_hasChanged && m_okButton->isEnabled() &&
        showMessageBox(QMessageBox::Question, this, windowTitle(),
                       tr("Discard the changes to this repository configuration?"), tr("&Discard"),
                       tr("&Keep Editing"), QString(), 1, 1) != 0)
        return;
    cancel();
}

void ConfigDialog::ok()
{
    if (!m_hasChanged) {
        done(QDialog::Rejected);
        return;
    }
    if (m_form->hasMaskAsPassword()) {
        showMessageBox(QMessageBox::Critical, this, windowTitle(), EntryCheck::maskAsPassword());
        return;
    }
    const Repo::Entry entry = m_form->toEntry();
    m_yumConfIO->reposUsed.insert(entry.id, entry.enabled == Qt::PartiallyChecked
                                                ? m_yumConfIO->mainEnabled
                                                : entry.enabled == Qt::Checked);
    *m_entry = entry;
    accept();
}

void ConfigDialog::drop()
{
    done(QDialog::Rejected);
}

// A test that runs ends first.
void ConfigDialog::done(int result)
{
    if (m_test->isTesting()) {
        m_closeAsked = result;
        setEnabled(false);
        m_test->cancel();
        return;
    }
    settings().setValue(geometryKey, saveGeometry());
    HDialog::done(result);
}

} // namespace RepoEditor
