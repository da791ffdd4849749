// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the pages of the description show.

#include "packagetable/describe.h"

#include "app/harmless.h"
#include "packagetable/fieldstext.h"
#include "packagetable/filetree.h"
#include "packagetable/icons.h"
#include "repo/repobrowse.h"
#include "repo/yumconfio.h"
#include "widgets/longtext.h"
#include "yumio/formats.h"
#include "yumio/passwordsintext.h"
#include "yumio/yumio.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QStyle>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace PackageTable::Describe {

using Package::Entry;
using Package::Kind;
using Package::State;

namespace {

constexpr int fewFiles = 500; // a tree of so many is shown with all folders open
const QString paragraph = QStringLiteral("\n\n");

QStringList lines(const QString &text)
{
    return text.split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

QStringList changes(const QString &log)
{
    static const QRegularExpression between(QStringLiteral("\n\n(?=\\* )"));
    QStringList list = log.split(between, Qt::SkipEmptyParts);
    for (QString &change : list)
        change = change.trimmed();
    return list;
}

QStringList changesSince(const QString &newer, const QString &older)
{
    const QStringList olds = changes(older);
    const QSet<QString> known(olds.cbegin(), olds.cend());
    QStringList found = changes(newer);
    found.removeIf([&](const QString &change) { return known.contains(change); });
    return found;
}

bool Dialog::isGroup() const
{
    return m_entry->kind == Kind::Group;
}

bool Dialog::readsHeader() const
{
    return m_entry->state == State::Installed;
}

// The installed version behind the row; null when there is none.
const Entry *Dialog::installed() const
{
    switch (m_entry->state) {
    case State::Updatable:
        return m_entry->next;
    case State::Installed:
        return m_entry;
    case State::Installable:
        break;
    }
    return nullptr;
}

bool Dialog::isFromRepository() const
{
    return m_entry && m_yumConfIO &&
           std::any_of(m_yumConfIO->repos.cbegin(), m_yumConfIO->repos.cend(),
                       [this](const Repo::Entry &repo) { return repo.id == m_entry->repo; });
}

// The pages make the text harmless themselves.
QString Dialog::shown(const QString &text)
{
    return maskPasswords(text);
}

void Dialog::fillHead()
{
    setWindowTitle(tr("Description of %1").arg(harmlessLine(shown(m_entry->name))));
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    m_icon->setPixmap(
        shareIcon(kindIconName(m_entry->kind)).pixmap(QSize(size, size), devicePixelRatio()));
    m_icon->setToolTip(YumIO::getKind(m_entry->kind));
    m_icon->setAccessibleName(YumIO::getKind(m_entry->kind));
    m_name->setText(harmlessLine(shown(m_entry->name)));
    QStringList facts;
    if (!m_entry->verRel.isEmpty())
        facts.append(tr("Version %1").arg(m_entry->verRel));
    facts.append(YumIO::getState(m_entry->state));
    if (!m_entry->repo.isEmpty() && m_entry->state != State::Installed)
        facts.append(tr("Repository %1").arg(m_entry->repo));
    m_facts->setText(harmlessLine(facts.join(QStringLiteral(" \u00b7 "))));
    m_url = m_yumIO->getUrl(*m_entry);
    m_urlButton->setVisible(!m_url.isEmpty());
    m_urlButton->setToolTip(harmlessTip(shown(m_url)));
    m_browseButton->setVisible(isFromRepository());
    updateButtons();
}

void Dialog::fillDescription()
{
    QStringList texts = {m_entry->summary, isGroup() ? m_yumIO->getGroupDescription(*m_entry)
                                                     : m_yumIO->getDescription(*m_entry)};
    texts.removeAll(QString());
    m_description->setText(texts.isEmpty() ? tr("There is no description.")
                                           : shown(texts.join(paragraph)));
}

void Dialog::fillDetails()
{
    QList<FieldsText::Field> fields;
    const auto add = [&](const QString &title, const QString &text) {
        if (!text.isEmpty())
            fields.append({title, shown(text)});
    };
    const Entry &entry = *m_entry;
    add(tr("Name:"), entry.name);
    add(tr("Kind:"), YumIO::getKind(entry.kind));
    add(tr("State:"), YumIO::getState(entry.state));
    add(tr("Version:"), entry.verRel);
    QStringList versions;
    for (const Entry *version = entry.next; version; version = version->next)
        versions.append((version->state == State::Installed ? tr("%1 (installed)") : tr("%1"))
                            .arg(version->verRel));
    add(tr("Other versions:"), versions.join(u'\n'));
    add(tr("Repository:"), entry.repo);
    add(tr("Architecture:"), entry.arch);
    if (!isGroup()) {
        const QString bytes = tr("%1 (%L2 bytes)");
        const quint64 installedSize = m_yumIO->getInstalledSize(entry);
        add(readsHeader() ? tr("Installed size:") : tr("Download size:"),
            bytes.arg(entry.sizeText).arg(entry.size));
        if (!readsHeader() && installedSize)
            add(tr("Installed size:"), bytes.arg(bytesFormat(installedSize)).arg(installedSize));
        add(tr("Summary:"), entry.summary);
        add(tr("Group:"), m_yumIO->getGroup(entry));
        add(tr("License:"), m_yumIO->getLicense(entry));
        add(tr("URL:"), m_yumIO->getUrl(entry));
        add(tr("Vendor:"), m_yumIO->getVendor(entry));
        add(tr("Packager:"), m_yumIO->getPackager(entry));
        add(tr("Build time:"), entry.buildTimeText);
        add(tr("Build host:"), m_yumIO->getBuildHost(entry));
        add(tr("Install time:"), m_yumIO->getInstallTime(entry));
        add(tr("Package file:"), m_yumIO->getBinaryRpm(entry));
        add(tr("Source package:"), m_yumIO->getSourceRpm(entry));
        add(tr("Relocations:"), m_yumIO->getRelocations(entry));
    }
    m_details->setFields(fields);
}

void Dialog::fillRelations()
{
    QStringList sections;
    const auto add = [&](const QString &title, const QString &text) {
        if (!text.isEmpty())
            sections.append(title + QStringLiteral("\n    ") +
                            lines(text).join(QStringLiteral("\n    ")));
    };
    const Entry &entry = *m_entry;
    add(tr("Provides:"), m_yumIO->getProvides(entry));
    add(tr("Requires:"), m_yumIO->getRequires(entry));
    add(tr("Conflicts with:"), m_yumIO->getConflicts(entry));
    add(tr("Obsoletes:"), m_yumIO->getObsoletes(entry));
    if (entry.state != State::Installed)
        add(tr("Replaces the installed:"), m_yumIO->getReplaced(entry));
    m_relations->setText(sections.isEmpty() ? tr("There are none.")
                                            : shown(sections.join(paragraph)));
}

void Dialog::fillFiles()
{
    m_fileFilter->clear();
    m_files->setFilter(QString());
    m_files->setPaths(lines(m_yumIO->getFiles(*m_entry)));
    filterFiles();
}

void Dialog::filterFiles()
{
    m_files->setFilter(m_fileFilter->text());
    const int count = m_files->fileCount();
    m_fileCount->setText(m_files->shownCount() == count
                             ? tr("%Ln files", nullptr, count)
                             : tr("%L1 of %Ln files", nullptr, count).arg(m_files->shownCount()));
    if (m_files->shownCount() <= fewFiles)
        m_fileTree->expandAll();
    else
        m_fileTree->expandToDepth(0);
}

void Dialog::copyFiles()
{
    QModelIndexList rows = m_fileTree->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(), [](const QModelIndex &left, const QModelIndex &right) {
        return FileTreeModel::pathOf(left) < FileTreeModel::pathOf(right);
    });
    QStringList paths;
    for (const QModelIndex &row : std::as_const(rows))
        paths.append(FileTreeModel::pathOf(row));
    QGuiApplication::clipboard()->setText(paths.join(u'\n'));
}

void Dialog::fillChanges()
{
    const QString text = m_yumIO->getChangeLog(*m_entry);
    m_changes->setText(text.isEmpty() ? tr("There is no change log.") : shown(text));
}

void Dialog::fillRequiredBy()
{
    QStringList names;
    for (const Entry *version = installed(); version; version = version->next)
        names.append(lines(m_yumIO->getRequiredBy(*version)));
    names.sort();
    names.removeDuplicates();
    m_requiredBy->setText(names.isEmpty() ? tr("Nothing that is installed requires it.")
                                          : shown(names.join(u'\n')));
}

void Dialog::fillUpdate()
{
    const Entry &entry = *m_entry;
    const Entry *const old = installed();
    if (!old)
        return;
    QStringList versions;
    for (const Entry *version = old; version; version = version->next)
        versions.append(version->verRel);
    const QString change = tr("%1 -> %2");
    QStringList facts = {
        tr("Version: %1").arg(change.arg(versions.join(QStringLiteral(", ")), entry.verRel))};
    if (old->arch != entry.arch)
        facts.append(tr("Architecture: %1").arg(change.arg(old->arch, entry.arch)));
    if (const quint64 size = m_yumIO->getInstalledSize(entry))
        facts.append(tr("Installed size: %1").arg(change.arg(old->sizeText, bytesFormat(size))));
    facts.append(tr("Download size: %1").arg(entry.sizeText));

    const QString newLog = m_yumIO->getChangeLog(entry), oldLog = m_yumIO->getChangeLog(*old);
    const QStringList found = changesSince(newLog, oldLog);
    QStringList texts = {facts.join(u'\n'), found.isEmpty()
                                                ? tr("The change log has nothing new.")
                                                : tr("Changes since the installed version:")};
    texts.append(found);
    if (!found.isEmpty() && !oldLog.isEmpty() && found.size() == changes(newLog).size())
        texts.append(tr("The repository keeps no older changes; there may have been others."));
    m_update->setText(shown(texts.join(paragraph)));
}

void Dialog::fillMembers()
{
    m_members->clear();
    const auto add = [&](const QString &title, const QString &names, bool packages = true,
                         const QHash<QString, QString> &conditions = {}) {
        const QStringList members = lines(names);
        if (members.isEmpty())
            return;
        auto *section =
            new QTreeWidgetItem(m_members, {tr("%1 (%2)").arg(title).arg(members.size())});
        section->setFirstColumnSpanned(true);
        for (const QString &name : members) {
            const Entry *member = packages ? m_yumIO->packageNamed(name) : nullptr;
            const QString needed = conditions.value(name);
            const QString text = harmlessLine(
                needed.isEmpty() ? name : tr("%1 (if %2 is installed)").arg(name, needed));
            auto *item = new QTreeWidgetItem(
                section, !packages ? QStringList{text}
                         : member  ? QStringList{text, YumIO::getState(member->state),
                                                harmlessLine(member->verRel),
                                                harmlessLine(shown(member->summary))}
                                   : QStringList{text, tr("Not available")});
            if (member)
                item->setIcon(0, shareIcon(kindIconName(member->kind)));
        }
    };
    const Entry &entry = *m_entry;
    add(tr("Groups"), m_yumIO->getRequiredGroups(entry), false);
    add(tr("Mandatory packages"), m_yumIO->getMandatoryPkgs(entry));
    add(tr("Default packages"), m_yumIO->getDefaultPkgs(entry));
    add(tr("Optional packages"), m_yumIO->getOptionalPkgs(entry));
    add(tr("Conditional packages"), m_yumIO->getConditionalPkgs(entry), true,
        m_yumIO->getConditions(entry));
    m_members->expandAll();
    for (int column = 0; column < m_members->columnCount(); ++column)
        m_members->resizeColumnToContents(column);
}

void Dialog::copyMembers()
{
    QStringList rows;
    for (QTreeWidgetItemIterator item(m_members, QTreeWidgetItemIterator::Selected); *item;
         ++item) {
        QStringList cells;
        for (int column = 0; column < m_members->columnCount(); ++column)
            cells.append((*item)->text(column));
        rows.append(cells.join(u'\t').trimmed());
    }
    QGuiApplication::clipboard()->setText(rows.join(u'\n'));
}

void Dialog::browseRepository()
{
    RepoBrowse::browse(this, m_entry->repo, m_yumIO, m_yumConfIO);
}

void Dialog::openUrl()
{
    RepoBrowse::open(this, m_url);
}

} // namespace PackageTable::Describe
