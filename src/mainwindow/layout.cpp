// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/mainwindow.h"

#include "mainwindow/countline.h"
#include "mainwindow/noticerow.h"
#include "mainwindow/stuckscriptlet.h"
#include "mainwindow/wraplayout.h"
#include "packagetable/emptytext.h"
#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "packagetable/view.h"
#include "progress/hprogressbar.h"
#include "widgets/helidedlabel.h"
#include "widgets/hframelabel.h"
#include "widgets/hmenu.h"
#include "yumio/yumio.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

void describeControl(QWidget *control, const char *name, const QString &toolTip,
                     const QString &accessibleName = QString())
{
    control->setObjectName(QLatin1String(name));
    control->setToolTip(toolTip);
    if (!accessibleName.isEmpty())
        control->setAccessibleName(accessibleName);
}

// A combo box tells its current text for its name; what it is for, a screen reader takes from a
// label of its own.
void labelForReaders(QWidget *control)
{
    auto *label = new QLabel(control->accessibleName(), control->parentWidget());
    label->setBuddy(control);
    label->hide();
}

} // namespace

void MainWindow::createMenuBar()
{
    const auto addMenu = [this](const char *name, const QString &title) {
        auto *menu = new HMenu(title, this);
        menu->setObjectName(QLatin1String(name));
        menuBar()->addMenu(menu);
        return menu;
    };

    m_programMenu = addMenu("programMenu", tr("&Program"));
    m_quitAction = m_programMenu->addAction(tr("&Quit"), this, &MainWindow::quit);
    m_quitAction->setObjectName(QStringLiteral("quitAction"));
    m_quitAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));

    HMenu *windowsMenu = addMenu("windowsMenu", tr("&Windows"));
    QAction *logAction = windowsMenu->addAction(tr("&Log"), this, &MainWindow::displayLog);
    logAction->setObjectName(QStringLiteral("logAction"));
    logAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));

    m_repositoriesMenu = addMenu("repositoriesMenu", tr("&Repositories"));
    m_editConfigurationAction = m_repositoriesMenu->addAction(tr("&Edit Configuration"), this,
                                                              [this] { editRepositories(); });
    m_editConfigurationAction->setObjectName(QStringLiteral("editConfigurationAction"));
    m_editConfigurationAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));

    m_cacheMenu = addMenu("cacheMenu", tr("&Cache"));
    createCacheMenu();
    createHelpMenu();
}

void MainWindow::createCacheMenu()
{
    const auto add = [this](const char *name, const QString &text, void (MainWindow::*slot)()) {
        QAction *action = m_cacheMenu->addAction(text, this, slot);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    m_cleanHeadersAction =
        add("cleanHeadersAction", tr("Clean Headers"), &MainWindow::cleanHeaders);
    m_cleanPackagesAction =
        add("cleanPackagesAction", tr("Clean Packages"), &MainWindow::cleanPackages);
    m_cleanXmlMetadataAction =
        add("cleanXmlMetadataAction", tr("Clean XML Metadata"), &MainWindow::cleanXmlMetadata);
    m_cleanPickledCacheAction =
        add("cleanPickledCacheAction", tr("Clean Pickled Data"), &MainWindow::cleanPickledCache);
    m_cleanSqliteCacheAction =
        add("cleanSqliteCacheAction", tr("Clean Sqlite Data"), &MainWindow::cleanSqliteCache);
    m_cacheMenu->addSeparator();
    m_cleanAllAction = add("cleanAllAction", tr("Clean All"), &MainWindow::cleanAll);
}

void MainWindow::createHelpMenu()
{
    auto *menu = new HMenu(tr("&Help"), this);
    menu->setObjectName(QStringLiteral("helpMenu"));
    menuBar()->addMenu(menu);
    QAction *html = menu->addAction(tr("Manual (html)"), this, &MainWindow::manualHtml);
    html->setObjectName(QStringLiteral("manualHtmlAction"));
    html->setShortcut(QKeySequence(Qt::Key_F1));
    menu->addAction(tr("Manual (PDF)"), this, &MainWindow::manualPdf)
        ->setObjectName(QStringLiteral("manualPdfAction"));
    menu->addSeparator();
    menu->addAction(tr("&About"), this, &MainWindow::about)
        ->setObjectName(QStringLiteral("aboutAction"));
}

void MainWindow::createCentralWidget()
{
    auto *central = new QWidget(this);
    central->setObjectName(QStringLiteral("centralWidget"));
    createPlaceholder(central);
    createTable();
    m_mainArea = new QWidget(central);
    m_mainArea->setObjectName(QStringLiteral("mainArea"));
    createMainArea();
    m_mainArea->hide();

    auto *layout = new QVBoxLayout(central);
    layout->addWidget(m_waiting, 1);
    layout->addWidget(m_mainArea, 1);
    layout->addLayout(createBarsRow());
    setCentralWidget(central);
    createStatusLine();
}

// Its messages are in a label of their own: those of the bar itself go when a menu is looked at.
void MainWindow::createStatusLine()
{
    m_message = new HElidedLabel(this);
    m_message->setObjectName(QStringLiteral("message"));
    // However long, it does not widen the window.
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_countLine = new CountLine(m_view, m_yumIO, this);
    QMargins beside = centralWidget()->layout()->contentsMargins();
    beside.setTop(0);
    beside.setBottom(0);
    for (HElidedLabel *label : {m_message, static_cast<HElidedLabel *>(m_countLine)})
        label->setContentsMargins(beside);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(m_message, 1);
    statusBar()->addPermanentWidget(m_countLine);
}

void MainWindow::createPlaceholder(QWidget *parent)
{
    m_waiting = new QWidget(parent);
    m_waiting->setMinimumHeight(12 * fontMetrics().height());
    m_placeholder = new QLabel(m_waiting);
    m_placeholder->setObjectName(QStringLiteral("placeholder"));
    m_placeholder->setAlignment(Qt::AlignCenter);
    m_placeholder->setWordWrap(true);
    m_placeholder->setForegroundRole(QPalette::PlaceholderText);
    m_readButton = new QPushButton(tr("R&ead the Packages"), m_waiting);
    describeControl(m_readButton, "readButton",
                    tr("Collects the packages of the system and of the repositories"));
    connect(m_readButton, &QPushButton::clicked, this, &MainWindow::reposChanged);
    // The only button there is; outside a dialog Return presses none.
    auto *read = new QShortcut(QKeySequence(Qt::Key_Return), m_readButton);
    read->setContext(Qt::WidgetShortcut);
    connect(read, &QShortcut::activated, m_readButton, &QPushButton::click);
    auto *layout = new QVBoxLayout(m_waiting);
    layout->addStretch();
    layout->addWidget(m_placeholder);
    layout->addWidget(m_readButton, 0, Qt::AlignHCenter);
    layout->addStretch();
    showPlaceholder(false);
}

void MainWindow::createTable()
{
    m_model = new PackageTable::Model(m_yumIO, this);
    m_model->setObjectName(QStringLiteral("model"));
    m_proxy = new PackageTable::SortFilterProxyModel(PackageTable::StateFilter::Updatable, true,
                                                     false, m_yumIO, this);
    m_proxy->setObjectName(QStringLiteral("proxy"));
    m_proxy->setSourceModel(m_model);
}

void MainWindow::createMainArea()
{
    QLayout *filterRow = createFilterRow();
    m_notices = new NoticeRow(m_mainArea);
    m_view = new PackageTable::View(m_model, m_proxy, m_mainArea);
    m_view->setObjectName(QStringLiteral("view"));
    m_view->setAccessibleName(tr("Packages"));
    QLayout *buttonRow = createButtonRow();

    auto *layout = new QVBoxLayout(m_mainArea);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(filterRow);
    layout->addWidget(m_notices);
    layout->addWidget(m_view, 1);
    layout->addLayout(buttonRow);
    connectMainArea();
    warnConfigure();
    showMode();
    collectedExtraData();
}

QLayout *MainWindow::createFilterRow()
{
    m_modeCombo = new QComboBox(m_mainArea);
    m_modeCombo->addItems({tr("Filter"), tr("Search")});
    describeControl(m_modeCombo, "modeCombo", QString(), tr("Mode"));
    labelForReaders(m_modeCombo);

    m_regexpEdit = new QLineEdit(QStringLiteral(".*"), m_mainArea);
    describeControl(m_regexpEdit, "regexpEdit", QString(), tr("Regular expression"));
    m_regexpEdit->installEventFilter(this);
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_regexpEdit, [this] {
        m_regexpEdit->setFocus(Qt::ShortcutFocusReason);
        m_regexpEdit->selectAll();
    });

    auto *down = new QShortcut(Qt::Key_Down, m_regexpEdit, nullptr, nullptr, Qt::WidgetShortcut);
    connect(down, &QShortcut::activated, this, [this] { m_view->setFocus(Qt::TabFocusReason); });

    m_filterSearchButton = new QPushButton(tr("Filter"), m_mainArea);
    m_filterSearchButton->setDefault(true);
    describeControl(m_filterSearchButton, "filterSearchButton", QString());

    m_stateCombo = new QComboBox(m_mainArea);
    for (const auto filter :
         {PackageTable::StateFilter::Updatable, PackageTable::StateFilter::Installable,
          PackageTable::StateFilter::Removable, PackageTable::StateFilter::All})
        m_stateCombo->addItem(PackageTable::stateFilterName(filter));
    describeControl(m_stateCombo, "stateCombo",
                    tr("Filter for those packages which are eligible for updating,\nfor "
                       "installing, or for removing; or show all packages"),
                    tr("State"));
    labelForReaders(m_stateCombo);

    m_dupsCheck = new QCheckBox(tr("Include Duplicates"), m_mainArea);
    m_dupsCheck->setChecked(true);
    describeControl(m_dupsCheck, "dupsCheck",
                    tr("Whether or not filter should include packages with duplicate names.\nIf "
                       "unchecked, the package with the architecture closest to the base "
                       "architecture is shown."));

    m_groupsCheck = new QCheckBox(tr("Include Groups"), m_mainArea);
    describeControl(m_groupsCheck, "groupsCheck",
                    tr("Whether or not filter should include package groups"));

    auto *row = new WrapLayout;
    row->addWidget(m_modeCombo);
    row->addWidget(m_regexpEdit);
    row->addWidget(m_filterSearchButton);
    row->addWidget(m_stateCombo);
    row->addWidget(m_dupsCheck);
    row->addWidget(m_groupsCheck);
    return row;
}

// On X11 a line edit claims keys such as Ctrl+E, end of line, before the menus see them.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const QKeySequence keys(static_cast<QKeyEvent *>(event)->keyCombination());
        const QList<QAction *> actions = findChildren<QAction *>();
        if (std::any_of(actions.cbegin(), actions.cend(),
                        [&](const QAction *action) { return action->shortcut() == keys; })) {
            event->ignore();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

QLayout *MainWindow::createButtonRow()
{
    auto *row = new WrapLayout;
    const auto add = [&](const char *name, const QString &text, const QString &toolTip) {
        auto *button = new QPushButton(text, m_mainArea);
        button->setAutoDefault(true); // Return presses the one that has the focus
        describeControl(button, name, toolTip);
        row->addWidget(button);
        return button;
    };
    m_describeButton =
        add("describeButton", tr("&Describe"),
            tr("Pop up a window with a detailed description of the currently selected package"));
    m_describeButton->setEnabled(false);
    m_resizeButton =
        add("resizeButton", tr("Re&size"), tr("Resize the columns and window to optimal values"));
    m_refreshButton =
        add("refreshButton", tr("Re&fresh"),
            tr("Refresh the list of installed packages and packages available for update.\nUse "
               "this to check for new updates in repositories, or if any packages were installed "
               "manually."));
    m_setSelectedButton =
        add("setSelectedButton", tr("Set &Install/Update of Selected"),
            tr("Sets the Action for all selected packages which are Not Installed to Install, "
               "and\nsets the Action for all selected packages which are Installed but Out-of-date "
               "to Update.\nDoes not Apply Actions automatically."));
    m_setUpdateListedButton =
        add("setUpdateListedButton", tr("Set &Update of Listed"),
            tr("Sets the Action to Update for any packages which are Installed but "
               "Out-of-date,\nand which are currently listed based on the the Mode, Filter, "
               "Search, State, Duplicates, and Groups settings.\nDoes not Apply Actions "
               "automatically."));
    m_clearActionsButton =
        add("clearActionsButton", tr("Clear Actions"),
            tr("Clears all specified Actions (Updates, Installs, and Removals)"));
    // Alt+C opens the Cache menu; one key for both would only move the focus between them.
    m_clearActionsButton->setShortcut(QKeySequence(QStringLiteral("Alt+Shift+C")));
    m_unlistedLabel = new HFrameLabel(m_mainArea);
    m_unlistedLabel->setObjectName(QStringLiteral("unlistedLabel"));
    row->addWidget(m_unlistedLabel);
    row->addStretch();
    m_applyButton = add("applyButton", tr("&Apply Actions"),
                        tr("Applies the specified Actions (Updates, Installs, and Removals)"));
    m_applyButton->setEnabled(false);
    return row;
}

// Outside the main area: the bars and the cancel control live while the main area is hidden or
// disabled, and what enables the bars is the progress of the job.
QLayout *MainWindow::createBarsRow()
{
    QWidget *parent = m_waiting->parentWidget();
    m_totalBar = new HProgressBar(parent);
    m_totalBar->setObjectName(QStringLiteral("totalBar"));
    m_totalBar->setTitle(tr("Total progress"));
    m_itemBar = new HProgressBar(parent);
    m_itemBar->setObjectName(QStringLiteral("itemBar"));
    m_itemBar->setTitle(tr("Progress of the current step"));
    m_totalBar->setEnabled(false);
    m_itemBar->setEnabled(false);
    m_cancelButton = new QPushButton(tr("Ca&ncel"), parent);
    describeControl(m_cancelButton, "cancelButton",
                    tr("Stops the running operation.\nAn rpm transaction that has begun cannot be "
                       "stopped."));
    m_cancelButton->setEnabled(false);
    connect(m_cancelButton, &QPushButton::clicked, this, &MainWindow::cancel);

    auto *row = new QHBoxLayout;
    row->addWidget(m_totalBar, 1);
    row->addWidget(m_itemBar, 1);
    row->addWidget(m_cancelButton);
    return row;
}

void MainWindow::connectMainArea()
{
    connect(m_modeCombo, &QComboBox::currentIndexChanged, this, &MainWindow::modeChanged);
    connect(m_regexpEdit, &QLineEdit::returnPressed, this, &MainWindow::filtersearch);
    connect(m_filterSearchButton, &QPushButton::clicked, this, &MainWindow::filtersearch);
    connect(m_stateCombo, &QComboBox::currentIndexChanged, this, &MainWindow::stateFilterChanged);
    connect(m_dupsCheck, &QCheckBox::toggled, this, &MainWindow::dupsFilterChanged);
    connect(m_groupsCheck, &QCheckBox::toggled, this, &MainWindow::groupsFilterChanged);
    connect(m_yumIO, &YumIO::collectedExtraData, this, &MainWindow::collectedExtraData);
    connect(m_yumIO, qOverload<const QString &, bool>(&YumIO::jobState), this,
            &MainWindow::jobState);
    new StuckScriptlet(m_yumIO, this);
    connect(m_view, qOverload<int, int>(&PackageTable::View::currentChanged), this,
            &MainWindow::currentChanged);
    connect(m_model, &PackageTable::Model::describing, this, &MainWindow::dialogRuns);
    m_model->setJobRunner([this](const std::function<void()> &work) { return runJob(work); });
    connect(m_describeButton, &QPushButton::clicked, m_view, &PackageTable::View::describe);
    connect(m_view, &PackageTable::View::stateChanged, this, &MainWindow::stateChanged);
    connect(m_resizeButton, &QPushButton::clicked, this, qOverload<>(&MainWindow::resize));
    connect(m_refreshButton, &QPushButton::clicked, this, &MainWindow::refresh);
    connect(m_setSelectedButton, &QPushButton::clicked, this, &MainWindow::setSelected);
    connect(m_setUpdateListedButton, &QPushButton::clicked, this, &MainWindow::setUpdateListed);
    connect(m_clearActionsButton, &QPushButton::clicked, this, &MainWindow::clearActions);
    connect(m_applyButton, &QPushButton::clicked, this, &MainWindow::apply);
}

// Reserves the warning's room, so that the buttons stay where they are when it appears.
void MainWindow::warnConfigure()
{
    m_unlistedLabel->setText(tr("Unlisted Actions"));
    m_unlistedLabel->setFixedSize(m_unlistedLabel->sizeHint());
    m_unlistedLabel->clear();
}
