// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packagetable/model.h"
#include "widgets/hdialog.h"

#include <QStringList>

#include <vector>

class JobProgress;
class QLabel;
class QLayout;
class QLineEdit;
class LongText;
class QPushButton;
class QTabWidget;
class QTreeView;
class QTreeWidget;
class YumConfIO;
class YumIO;

namespace PackageTable {

class FieldsText;
class FileTreeModel;

namespace Describe {

class Page;

// The changes in a change log as the engine words it, each as it stands there.
QStringList changes(const QString &log);
// Those of `newer` that `older` does not have, in their order.
QStringList changesSince(const QString &newer, const QString &older);

// Everything that is known of one package or group. A page is filled when it is opened; what has to
// be loaded for it first runs as a job, with progress and a cancel control of its own. Closing the
// dialog cancels the job and waits for its end.
class Dialog : public HDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget *parent);
    ~Dialog() override;

    // Fills the dialog for one row. The entry must live while it is shown.
    void config(YumIO *yumIO, Package::Entry *entry, YumConfIO *yumConfIO);
    // Without one, jobs run as they are.
    void setJobRunner(JobRunner runner) { m_runJob = std::move(runner); }
    // Whether there is a row before and after this one.
    void setSteps(bool previous, bool next);
    bool isLoading() const { return m_loading; }

    void done(int result) override;

Q_SIGNALS:
    // The user wants the row that many below; -1 is the one above.
    void stepAsked(int rows);

protected:
    void showEvent(QShowEvent *event) override;

private:
    enum class Data { None, FileLists, Other };
    struct PageInfo
    {
        Page *page;
        Data data;
        void (Dialog::*fill)();
    };

    LongText *newText(const char *name, const QString &accessibleName);
    QLayout *createHead();
    void createPages();
    QWidget *createFiles();
    QWidget *createMembers();
    QLayout *createButtons();

    void fillHead();
    void choosePages();
    void turnPages(int pages);
    bool hasPage(const PageInfo &info) const;
    void openPage();
    void fillPage(PageInfo &info);
    bool isLoaded(Data data) const;
    bool load(PageInfo &info);
    void setLoading(bool loading);
    void updateButtons();

    void fillDescription();
    void fillDetails();
    void fillRelations();
    void fillFiles();
    void fillChanges();
    void fillRequiredBy();
    void fillUpdate();
    void fillMembers();

    static QString shown(const QString &text);
    const Package::Entry *installed() const;
    bool isGroup() const;
    bool isFromRepository() const;
    bool readsHeader() const;
    void browseRepository();
    void openUrl();
    void filterFiles();
    void copyFiles();
    void copyMembers();

    YumIO *m_yumIO = nullptr;
    YumConfIO *m_yumConfIO = nullptr;
    const Package::Entry *m_entry = nullptr;
    QString m_url;
    JobRunner m_runJob;
    bool m_loading = false;
    bool m_closeAsked = false;
    bool m_hasPrevious = false;
    bool m_hasNext = false;
    std::vector<PageInfo> m_infos;
    QWidget *m_wantedPage = nullptr; // which the user opened last

    QLabel *m_icon = nullptr;
    QLabel *m_name = nullptr;
    QLabel *m_facts = nullptr;
    QPushButton *m_browseButton = nullptr;
    QPushButton *m_urlButton = nullptr;
    QTabWidget *m_tabs = nullptr;
    LongText *m_description = nullptr;
    FieldsText *m_details = nullptr;
    LongText *m_relations = nullptr;
    QLineEdit *m_fileFilter = nullptr;
    QLabel *m_fileCount = nullptr;
    QTreeView *m_fileTree = nullptr;
    FileTreeModel *m_files = nullptr;
    LongText *m_changes = nullptr;
    LongText *m_requiredBy = nullptr;
    LongText *m_update = nullptr;
    QTreeWidget *m_members = nullptr;
    JobProgress *m_progress = nullptr;
    QPushButton *m_previousButton = nullptr;
    QPushButton *m_nextButton = nullptr;
    QPushButton *m_closeButton = nullptr;
};

} // namespace Describe

} // namespace PackageTable
