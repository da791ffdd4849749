// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/describe.h"

#include "app/fonts.h"
#include "packagetable/describepage.h"
#include "packagetable/fieldstext.h"
#include "packagetable/filetree.h"
#include "packagetable/icons.h"
#include "repo/repobrowse.h"
#include "repo/yumconfio.h"
#include "widgets/longtext.h"
#include "widgets/messagebox.h"
#include "yumio/jobprogress.h"
#include "yumio/passwordsintext.h"
#include "yumio/yumio.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace PackageTable::Describe {

using Package::Entry;
using Package::Kind;
using Package::State;

namespace {

constexpr int filterDelayMs = 150;
const QString geometryKey = QStringLiteral("describe/geometry");

QSettings settings()
{
    return QSettings(QStringLiteral("VOK"), QStringLiteral("vok"));
}

QLabel *newLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    return label;
}

QPushButton *newButton(const char *name, const QString &text, const QString &toolTip,
                       QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

} // namespace

Dialog::Dialog(QWidget *parent)
    : HDialog(parent), m_runJob([](const std::function<void()> &work) {
          work();
          return true;
      })
{
    setObjectName(QStringLiteral("describeDialog"));
    setSizeGripEnabled(true);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->setAccessibleName(tr("Pages"));

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(createHead());
    layout->addWidget(m_tabs, 1);
    createPages();
    m_progress = new JobProgress(QStringLiteral("describe"), tr("Ca&ncel"),
                                 tr("Stops loading; the dialog stays open"), this);
    layout->addWidget(m_progress);
    layout->addLayout(createButtons());
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        m_wantedPage = m_tabs->currentWidget();
        openPage();
    });
    const auto onKeys = [this](const QKeySequence &keys, const std::function<void()> &act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    // The texts keep these keys from the tabs.
    onKeys(Qt::CTRL | Qt::Key_PageDown, [this] { turnPages(1); });
    onKeys(Qt::CTRL | Qt::Key_PageUp, [this] { turnPages(-1); });
    // The tabs themselves would go to pages that are hidden.
    onKeys(Qt::CTRL | Qt::Key_Tab, [this] { turnPages(1); });
    onKeys(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, [this] { turnPages(-1); });
    // A button's own shortcut would take the place of its letter.
    onKeys(Qt::ALT | Qt::Key_Up, [this] { m_previousButton->click(); });
    onKeys(Qt::ALT | Qt::Key_Down, [this] { m_nextButton->click(); });

    const QFontMetrics metrics(font());
    resize(QSize(std::max(metrics.averageCharWidth() * 112, m_tabs->sizeHint().width()),
                 metrics.height() * 34)
               .boundedTo(screen()->availableSize() * 9 / 10));
    restoreGeometry(settings().value(geometryKey).toByteArray());
}

Dialog::~Dialog() = default;

QLayout *Dialog::createHead()
{
    m_icon = new QLabel(this);
    m_icon->setObjectName(QStringLiteral("kindIcon"));
    m_name = newLabel("nameLabel", this);
    m_name->setFont(Fonts::makeHeader(m_name->font()));
    m_facts = newLabel("factsLabel", this);
    auto *row = new QHBoxLayout;
    row->addWidget(m_icon);
    row->addWidget(m_name, 1);
    auto *head = new QVBoxLayout;
    head->addLayout(row);
    head->addWidget(m_facts);
    return head;
}

LongText *Dialog::newText(const char *name, const QString &accessibleName)
{
    auto *text = new LongText(this);
    text->setObjectName(QLatin1String(name));
    text->setAccessibleName(accessibleName);
    return text;
}

void Dialog::createPages()
{
    const auto add = [this](const QString &title, QWidget *content, Data data,
                            void (Dialog::*fill)()) {
        auto *page = new Page(content, this);
        page->setObjectName(content->objectName() + QStringLiteral("Page"));
        m_infos.push_back({page, data, fill});
        m_tabs->addTab(page, title);
        connect(page, &Page::retryAsked, this, &Dialog::openPage);
    };
    m_description = newText("description", tr("Description"));
    m_update = newText("update", tr("What the update changes"));
    m_details = new FieldsText(this);
    m_details->setObjectName(QStringLiteral("details"));
    m_details->setAccessibleName(tr("Details"));
    QWidget *members = createMembers();
    m_relations = newText("relations", tr("Dependencies"));
    QWidget *files = createFiles();
    m_changes = newText("changes", tr("Change log"));
    m_requiredBy = newText("requiredBy", tr("What requires it"));
    add(tr("&Description"), m_description, Data::None, &Dialog::fillDescription);
    add(tr("&Update"), m_update, Data::Other, &Dialog::fillUpdate);
    add(tr("&Members"), members, Data::None, &Dialog::fillMembers);
    add(tr("De&tails"), m_details, Data::None, &Dialog::fillDetails);
    add(tr("Dep&endencies"), m_relations, Data::None, &Dialog::fillRelations);
    add(tr("&Files"), files, Data::FileLists, &Dialog::fillFiles);
    add(tr("Change &Log"), m_changes, Data::Other, &Dialog::fillChanges);
    add(tr("&Required By"), m_requiredBy, Data::None, &Dialog::fillRequiredBy);
}

QWidget *Dialog::createFiles()
{
    auto *widget = new QWidget(this);
    widget->setObjectName(QStringLiteral("files"));
    m_fileFilter = new QLineEdit(widget);
    m_fileFilter->setObjectName(QStringLiteral("fileFilter"));
    m_fileFilter->setPlaceholderText(tr("Show the paths that hold this text"));
    m_fileFilter->setAccessibleName(tr("Text in the path"));
    m_fileFilter->setClearButtonEnabled(true);
    m_fileCount = newLabel("fileCount", widget);
    m_fileCount->setWordWrap(false);
    m_files = new FileTreeModel(this);
    m_fileTree = new QTreeView(widget);
    m_fileTree->setObjectName(QStringLiteral("fileTree"));
    m_fileTree->setAccessibleName(tr("Files"));
    m_fileTree->setHeaderHidden(true);
    m_fileTree->setUniformRowHeights(true);
    m_fileTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_fileTree->setModel(m_files);
    // As wide as what is seen of it, so that a long path can be scrolled to.
    m_fileTree->header()->setStretchLastSection(false);
    m_fileTree->header()->setResizeContentsPrecision(0);
    m_fileTree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    widget->setFocusProxy(m_fileFilter);
    connect(
        new QShortcut(QKeySequence::Find, widget, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
        &QShortcut::activated, m_fileFilter, qOverload<>(&QWidget::setFocus));

    auto *copy = new QAction(tr("&Copy Paths"), m_fileTree);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &Dialog::copyFiles);
    m_fileTree->addAction(copy);
    m_fileTree->setContextMenuPolicy(Qt::ActionsContextMenu);

    // One search for a word that is typed, not one for each letter.
    auto *delay = new QTimer(this);
    delay->setSingleShot(true);
    delay->setInterval(filterDelayMs);
    connect(m_fileFilter, &QLineEdit::textChanged, delay, qOverload<>(&QTimer::start));
    connect(delay, &QTimer::timeout, this, &Dialog::filterFiles);

    auto *row = new QHBoxLayout;
    row->addWidget(m_fileFilter, 1);
    row->addWidget(m_fileCount);
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_fileTree, 1);
    return widget;
}

QWidget *Dialog::createMembers()
{
    m_members = new QTreeWidget(this);
    m_members->setObjectName(QStringLiteral("members"));
    m_members->setAccessibleName(tr("Members"));
    m_members->setHeaderLabels({tr("Package"), tr("State"), tr("Version"), tr("Summary")});
    m_members->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_members->setUniformRowHeights(true);
    auto *copy = new QAction(tr("&Copy"), m_members);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &Dialog::copyMembers);
    m_members->addAction(copy);
    m_members->setContextMenuPolicy(Qt::ActionsContextMenu);
    return m_members;
}

QLayout *Dialog::createButtons()
{
    m_previousButton = newButton("previousButton", tr("&Previous"),
                                 tr("Describe the row above this one (Alt+Up)"), this);
    m_nextButton = newButton("nextButton", tr("Ne&xt"),
                             tr("Describe the row below this one (Alt+Down)"), this);
    m_urlButton = newButton("urlButton", tr("Open &Web Page"), QString(), this);
    m_browseButton = newButton("browseButton", tr("&Browse Repository"),
                               tr("Show the files of the repository in the web browser"), this);
    m_closeButton = newButton("closeButton", tr("&Close"), QString(), this);
    connect(m_urlButton, &QPushButton::clicked, this, &Dialog::openUrl);
    connect(m_browseButton, &QPushButton::clicked, this, &Dialog::browseRepository);
    connect(m_previousButton, &QPushButton::clicked, this, [this] { Q_EMIT stepAsked(-1); });
    connect(m_nextButton, &QPushButton::clicked, this, [this] { Q_EMIT stepAsked(1); });
    connect(m_closeButton, &QPushButton::clicked, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(m_previousButton);
    row->addWidget(m_nextButton);
    row->addStretch();
    row->addWidget(m_urlButton);
    row->addWidget(m_browseButton);
    row->addStretch();
    row->addWidget(m_closeButton);
    return row;
}

void Dialog::config(YumIO *yumIO, Entry *entry, YumConfIO *yumConfIO)
{
    m_yumIO = yumIO;
    m_yumConfIO = yumConfIO;
    m_entry = entry;
    m_closeAsked = false;
    fillHead();
    choosePages();
    openPage();
    m_tabs->currentWidget()->setFocus();
}

// What is loaded for a page is loaded where the user can see it.
void Dialog::showEvent(QShowEvent *event)
{
    HDialog::showEvent(event);
    QMetaObject::invokeMethod(this, &Dialog::openPage, Qt::QueuedConnection);
}

void Dialog::setSteps(bool previous, bool next)
{
    m_hasPrevious = previous;
    m_hasNext = next;
    updateButtons();
}

// The pages that fit the row; the one that the user opened is open again where there is one.
void Dialog::choosePages()
{
    const QSignalBlocker blocker(m_tabs);
    QWidget *open = m_infos.front().page;
    for (PageInfo &info : m_infos) {
        info.page->setFilled(false);
        m_tabs->setTabVisible(m_tabs->indexOf(info.page), hasPage(info));
        if (info.page == m_wantedPage && hasPage(info))
            open = info.page;
    }
    m_tabs->setCurrentWidget(open);
    // The bar keeps the room of a tab that goes until another makes it lay them out.
    m_tabs->setTabText(0, m_tabs->tabText(0));
}

void Dialog::turnPages(int pages)
{
    const int count = m_tabs->count();
    int index = m_tabs->currentIndex();
    do {
        index = (index + pages + count) % count;
    } while (!m_tabs->isTabVisible(index));
    m_tabs->setCurrentIndex(index);
}

bool Dialog::hasPage(const PageInfo &info) const
{
    if (info.fill == &Dialog::fillMembers)
        return isGroup();
    if (info.fill == &Dialog::fillDescription || info.fill == &Dialog::fillDetails)
        return true;
    if (info.fill == &Dialog::fillUpdate)
        return !isGroup() && m_entry->state == State::Updatable;
    if (info.fill == &Dialog::fillRequiredBy)
        return !isGroup() && m_entry->state != State::Installable;
    return !isGroup();
}

void Dialog::openPage()
{
    if (!m_entry)
        return;
    for (PageInfo &info : m_infos) {
        if (info.page == m_tabs->currentWidget() && !info.page->isFilled())
            fillPage(info);
    }
}

// While data load, the interpreter is not to be had.
void Dialog::fillPage(PageInfo &info)
{
    if (m_loading) {
        info.page->showMessage(tr("Other data are being loaded; this page follows."), false);
        return;
    }
    if (!isLoaded(info.data) && (!isVisible() || !load(info)))
        return;
    info.page->setFilled(true);
    (this->*info.fill)();
    info.page->showContent();
}

bool Dialog::isLoaded(Data data) const
{
    if (readsHeader())
        return true;
    return data == Data::None ||
           (data == Data::FileLists ? m_yumIO->hasFileLists() : m_yumIO->hasOtherData());
}

// False, with the reason on the page, when there is nothing to show.
bool Dialog::load(PageInfo &info)
{
    const bool files = info.data == Data::FileLists;
    info.page->showMessage(files ? tr("Loading the file lists of the repositories...")
                                 : tr("Loading the change logs of the repositories..."),
                           false);
    const auto tellCancel = connect(m_progress, &JobProgress::cancelAsked, info.page, [&info] {
        info.page->showMessage(
            tr("Cancelling. The repository that is being read is read to its end "
               "first; that cannot be interrupted."),
            false);
    });
    setLoading(true);
    bool loaded = false;
    auto [ran, said] = m_progress->run(m_yumIO, m_runJob, [&] {
        loaded = files ? m_yumIO->collectFileLists() : m_yumIO->collectOtherData();
    });
    setLoading(false);
    disconnect(tellCancel);
    if (m_closeAsked) {
        done(QDialog::Rejected);
        return false;
    }
    // The user may have gone to another page meanwhile.
    if (m_tabs->currentWidget() != info.page)
        QMetaObject::invokeMethod(this, &Dialog::openPage, Qt::QueuedConnection);
    if (loaded) {
        if (!said.isEmpty())
            showMessageBox(QMessageBox::Warning, this, tr("VOK Yum Warning"), said);
        return true;
    }
    if (!ran)
        said = tr("Another operation is running.");
    else if (m_yumIO->wasCancelled())
        said = tr("Loading was cancelled.");
    info.page->showMessage((files ? tr("The file lists are not loaded.\n\n%1")
                                  : tr("The change logs are not loaded.\n\n%1"))
                               .arg(shown(said)),
                           true);
    return false;
}

void Dialog::setLoading(bool loading)
{
    m_loading = loading;
    updateButtons();
}

void Dialog::updateButtons()
{
    m_previousButton->setEnabled(m_hasPrevious && !m_loading);
    m_nextButton->setEnabled(m_hasNext && !m_loading);
    m_browseButton->setEnabled(!m_loading && isFromRepository());
    m_urlButton->setEnabled(!m_loading && !m_url.isEmpty());
}

// A job that loads ends first.
void Dialog::done(int result)
{
    settings().setValue(geometryKey, saveGeometry());
    if (m_loading) {
        m_closeAsked = true;
        m_closeButton->setEnabled(false);
        m_progress->cancel();
        return;
    }
    m_closeButton->setEnabled(true);
    m_entry = nullptr; // whose life is the caller's again
    HDialog::done(result);
}

} // namespace PackageTable::Describe
