// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editordialog.h"

#include "configdialog.h"
#include "editormenu.h"
#include "editormodel.h"
#include "editorpreview.h"
#include "editorproxy.h"
#include "editorview.h"
#include "repobrowse.h"
#include "widgets/hframelabel.h"
#include "widgets/messagebox.h"
#include "yumconfio.h"
#include "yumio/yumio.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSettings>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace RepoEditor {

namespace {

constexpr int statusLines = 3;
const QString geometryKey = QStringLiteral("repoEditor/geometry");

QSettings settings()
{
    return QSettings(QStringLiteral("VOK"), QStringLiteral("vok"));
}

int intReverseCompare(const void *first, const void *second)
{
    return *static_cast<const int *>(second) - *static_cast<const int *>(first);
}

} // namespace

Dialog::Dialog(YumIO *yumIO, YumConfIO *yumConfIO, QWidget *parent)
    : HDialog(parent), m_yumIO(yumIO), m_yumConfIO(yumConfIO),
      m_model(new Model(yumIO, yumConfIO, this)), m_proxy(new SortFilterProxyModel(m_model, this)),
      m_view(new View(m_model, m_proxy, this)), m_configDialog(new ConfigDialog(yumConfIO, this))
{
    setObjectName(QStringLiteral("repoEditor"));
    setWindowTitle(tr("VOK Repository Configuration Editor"));
    m_view->setObjectName(QStringLiteral("repoView"));
    m_model->setViewFont(font());

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(createFilter());
    layout->addWidget(m_view);
    layout->addLayout(createUpperRow());
    layout->addLayout(createLowerRow());
    m_view->setFocus();

    connect(m_model, &Model::useChanged, this, &Dialog::useChanged);
    connect(m_model, &Model::configChanged, this, &Dialog::configChanged);
    connect(m_view, qOverload<int, int>(&View::currentChanged), this, &Dialog::currentChanged);
    connect(m_view, &View::activated, this, qOverload<const QModelIndex &>(&Dialog::edit));
    connect(m_view->getContextMenu(), qOverload<const QModelIndex &>(&ContextMenu::edit), this,
            qOverload<const QModelIndex &>(&Dialog::edit));
    connect(m_view, &View::addAsked, this, &Dialog::add);
    connect(m_view, &View::removeAsked, this, &Dialog::remove);
    recallGeometry();
}

Dialog::~Dialog() = default;

void Dialog::recallGeometry()
{
    m_hasGeometry = restoreGeometry(settings().value(geometryKey).toByteArray());
}

QHBoxLayout *Dialog::createFilter()
{
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(tr("&Filter:"), this);
    m_filter = new QLineEdit(this);
    m_filter->setObjectName(QStringLiteral("filter"));
    m_filter->setAccessibleName(tr("Filter"));
    m_filter->setPlaceholderText(tr("Identifier, name or URL"));
    m_filter->setToolTip(
        tr("Shows only the repositories whose identifier, name or URLs contain this text"));
    m_filter->setClearButtonEnabled(true);
    label->setBuddy(m_filter);
    row->addWidget(label);
    row->addWidget(m_filter);
    connect(m_filter, &QLineEdit::textChanged, m_proxy, &SortFilterProxyModel::setFilterText);
    connect(m_filter, &QLineEdit::textChanged, this, &Dialog::explainEmpty);
    explainEmpty(QString());
    // Return here is not meant for the default button.
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down})
        connect(new QShortcut(key, m_filter, nullptr, nullptr, Qt::WidgetShortcut),
                &QShortcut::activated, m_view,
                [this] { m_view->setFocus(Qt::ShortcutFocusReason); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_filter, [this] {
        m_filter->setFocus(Qt::ShortcutFocusReason);
        m_filter->selectAll();
    });
    return row;
}

void Dialog::explainEmpty(const QString &filter)
{
    m_view->setEmptyText(
        filter.isEmpty()
            ? tr("There are no repositories.\nAdd makes the first one.")
            : tr("No repository has \"%1\" in its identifier, name or URLs.").arg(filter));
}

template <typename Slot>
QPushButton *Dialog::addButton(QHBoxLayout *row, const char *name, const QString &text,
                               const QString &toolTip, Slot slot)
{
    QPushButton *button = HDialog::addButton(row, name, text, toolTip);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

QHBoxLayout *Dialog::createUpperRow()
{
    auto *row = new QHBoxLayout;
    m_browseButton = addButton(row, "browseButton", tr("&Browse Repository"),
                               tr("Browse the first URL specified for the selected repository "
                                  "using an external web browser"),
                               &Dialog::browse);
    row->addStretch();
    m_editButton =
        addButton(row, "editButton", tr("&Edit"), tr("Edit the selected repository configuration"),
                  qOverload<>(&Dialog::edit));
    m_addButton = addButton(row, "addButton", tr("A&dd"),
                            tr("Create a new repository configuration from scratch"), &Dialog::add);
    m_copyButton =
        addButton(row, "copyButton", tr("Co&py"),
                  tr("Create a new repository configuration based on the selected repository"),
                  &Dialog::copy);
    m_removeButton = addButton(row, "removeButton", tr("Re&move"),
                               tr("Remove the selected repository configuration"), &Dialog::remove);
    return row;
}

QHBoxLayout *Dialog::createLowerRow()
{
    auto *row = new QHBoxLayout;
    m_status = new HFrameLabel(this);
    m_status->setObjectName(QStringLiteral("status"));
    // Room for the usual texts; a long identifier in another takes more lines and must not widen
    // the window.
    m_status->setMaximumLines(statusLines);
    m_status->setText(unappliedText(99));
    m_status->setMinimumWidth(m_status->sizeHint().width());
    m_status->clear();
    row->addWidget(m_status);
    row->addStretch();
    m_previewButton = addButton(row, "previewButton", tr("Pre&view"),
                                tr("Show what Apply would change in which file"), &Dialog::preview);
    m_resetAllButton = addButton(row, "resetAllButton", tr("&Reset All"),
                                 tr("Undo changes to all repository configurations since the last "
                                    "Apply or opening of the dialog"),
                                 &Dialog::resetAll);
    addButton(row, "cancelButton", tr("&Cancel"),
              tr("Undo changes to all repository configurations since the last Apply or opening of "
                 "the dialog, and close the window"),
              &Dialog::cancel);
    m_applyButton = addButton(row, "applyButton", tr("&Apply"), QString(), &Dialog::apply);
    m_okButton = addButton(row, "okButton", tr("&OK"), QString(), &Dialog::ok);
    m_okButton->setDefault(true);
    return row;
}

int Dialog::exec()
{
    // A dialog that is not shown would never end its loop.
    m_started = start();
    return m_started ? HDialog::exec() : int(Rejected);
}

// Reads the configuration; false when it cannot be edited.
bool Dialog::start()
{
    m_dropped = false;
    const bool read = m_yumConfIO->read(this);
    m_usedBefore = m_yumConfIO->reposUsed;
    m_model->reset();
    if (!read)
        return false;
    m_filter->clear();
    m_view->setFocus(); // not the button that closed it the last time
    m_view->horizontalHeader()->setSortIndicator(NameColumn, Qt::DescendingOrder);
    m_view->HTableView::sortByColumn(IdColumn);
    if (std::exchange(m_hasGeometry, true))
        m_view->sizeColumnsToContents();
    else
        m_view->resizeColumnsToContents();
    m_applied = false;
    setConfigHasChanged(false);
    setEntryHasChanged(false);
    currentChanged(-1, -1);
    return true;
}

void Dialog::setVisible(bool visible)
{
    if (visible == isVisible()) {
        HDialog::setVisible(visible);
        return;
    }
    if (visible) {
        if (!std::exchange(m_started, false) && !start())
            return;
        HDialog::setVisible(true);
        if (!m_editWhenShown.isEmpty())
            QTimer::singleShot(0, this,
                               [this] { edit(std::exchange(m_editWhenShown, QString())); });
        return;
    }
    settings().setValue(geometryKey, saveGeometry());
    HDialog::setVisible(false);
    if (!m_dropped && (m_applied || hasSessionChanged() || changed()))
        Q_EMIT reposChanged();
}

void Dialog::setJobRunner(JobRunner runner)
{
    m_configDialog->setEngine(m_yumIO, std::move(runner));
}

void Dialog::drop()
{
    m_dropped = true;
    if (m_configDialog->isVisible())
        m_configDialog->drop();
    done(Rejected);
}

void Dialog::currentChanged(int current, int)
{
    if (current == -1)
        releaseFocus({m_browseButton, m_editButton, m_copyButton, m_removeButton});
    for (QPushButton *button : {m_browseButton, m_editButton})
        button->setEnabled(current != -1);
    for (QPushButton *button : {m_copyButton, m_removeButton})
        button->setEnabled(current != -1 && m_yumConfIO->lookOnly().isEmpty());
    updateStatusLabel();
}

void Dialog::useChanged()
{
    updateButtons();
}

void Dialog::configChanged()
{
    setConfigHasChanged(true);
}

void Dialog::setEntryHasChanged(bool flag)
{
    m_entryHasChanged = flag;
    updateButtons();
}

void Dialog::setConfigHasChanged(bool flag)
{
    m_configHasChanged = flag;
    updateButtons();
}

void Dialog::browse()
{
    const int row = m_view->currentRow();
    if (row != -1)
        RepoBrowse::browse(this, m_model->entry(row), m_yumIO);
}

void Dialog::edit()
{
    edit(m_model->createIndex(m_view->currentRow()));
}

void Dialog::edit(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const int row = index.row();
    m_configDialog->setEntry(&m_yumConfIO->repos[row]);
    if (m_configDialog->exec() != Accepted)
        return;
    m_model->dataChanged(row);
    setConfigHasChanged(true);
}

void Dialog::edit(const QString &id)
{
    if (!isVisible()) {
        m_editWhenShown = id;
        return;
    }
    m_filter->clear();
    setEntryToOldId(id);
    edit();
}

void Dialog::add()
{
    addEntry(Repo::Entry());
}

void Dialog::copy()
{
    const int row = m_view->currentRow();
    if (row != -1)
        addEntry(m_model->entry(row));
}

void Dialog::addEntry(Repo::Entry entry)
{
    if (!m_yumConfIO->lookOnly().isEmpty())
        return;
    m_configDialog->setEntry(&entry);
    if (m_configDialog->exec() != Accepted)
        return;
    m_view->setCurrentIndex({});
    const int row = m_model->addRow(entry);
    if (!m_proxy->mapFromSource(m_model->createIndex(row)).isValid())
        m_filter->clear();
    m_view->setCurrentRow(row);
    m_model->dataChanged(row);
    setConfigHasChanged(true);
}

void Dialog::remove()
{
    if (!m_yumConfIO->lookOnly().isEmpty())
        return;
    QList<int> rows;
    for (const QModelIndex &index : m_view->selectedRows())
        rows.append(index.row());
    if (rows.isEmpty() && m_view->currentRow() != -1)
        rows.append(m_view->currentRow());
    if (rows.isEmpty())
        return;
    m_view->setCurrentIndex({});
    qsort(rows.data(), size_t(rows.size()), sizeof(int), intReverseCompare);
    for (const int row : std::as_const(rows))
        m_model->removeRow(row);
    m_removed += int(rows.size());
    setConfigHasChanged(true);
}

void Dialog::reset() {}

void Dialog::resetAll()
{
    const int row = m_view->currentRow();
    const QString id = row == -1 ? QString() : m_model->entry(row).id;
    m_yumConfIO->reposUsed = m_usedBefore;
    m_yumConfIO->read(this);
    m_usedBefore = m_yumConfIO->reposUsed; // with what is new in the files
    m_model->reset();
    if (row != -1)
        setEntryToOldId(id);
    setConfigHasChanged(false);
    setEntryHasChanged(false);
}

void Dialog::cancel()
{
    resetAll();
    setChanged(false);
    done(Rejected);
}

void Dialog::reject()
{
    if ((!isUnapplied() && !hasSessionChanged()) ||
        showMessageBox(QMessageBox::Question, this, windowTitle(),
                       isUnapplied()
                           ? tr("Discard the changes to the repository configurations?")
                           : tr("Discard the changes to which repositories this session uses?"),
                       tr("&Discard"), tr("&Keep Editing"), QString(), 1, 1) == 0)
        cancel();
}

bool Dialog::apply()
{
    if (isUnapplied() && !writeFiles())
        return false;
    m_usedBefore = m_yumConfIO->reposUsed;
    setConfigHasChanged(false);
    setEntryHasChanged(false);
    m_applied = true;
    return true;
}

bool Dialog::writeFiles()
{
    const bool hadCurrent = m_view->currentRow() != -1;
    if (!m_yumConfIO->write(this))
        return false;
    m_model->reset();
    if (hadCurrent)
        setEntryToOldId(QString());
    return true;
}

// Changes of the session alone hold already, and write nothing.
void Dialog::ok()
{
    if (!isUnapplied() || apply())
        accept();
}

void Dialog::preview()
{
    PreviewDialog(m_yumConfIO->preview(), this).exec();
}

void Dialog::setEntryToOldId(const QString &id)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_model->entry(row).id == id)
            m_view->setCurrentRow(row);
    }
}

} // namespace RepoEditor
