// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Packages that replace installed ones of other names: no updates here, and yet part of an upgrade.

#include "mainwindow/mainwindow.h"
#include "mainwindow/noticerow.h"

#include "packagetable/model.h"
#include "yumio/yumio.h"

#include <QHash>

namespace {

constexpr qsizetype linesInTip = 10;

} // namespace

// Their rows, after a collection.
void MainWindow::findReplacements()
{
    m_replacements.clear();
    QHash<std::pair<QString, QString>, QString> found;
    for (const Engine::Replacement &one : m_yumIO->replacements())
        found.insert({one.name, one.family}, tr("%1 replaces %2").arg(one.package, one.replaced));
    for (int row = 0, count = m_yumIO->count(); row < count && !found.isEmpty(); ++row) {
        const Package::Entry &entry = *(*m_yumIO)[row];
        if (entry.kind != Package::Kind::Group && entry.state == Package::State::Installable &&
            found.contains({entry.name, entry.biArch}))
            m_replacements.insert(row, found.take({entry.name, entry.biArch}));
    }
}

QList<int> MainWindow::unmarkedReplacements() const
{
    QList<int> rows;
    for (auto it = m_replacements.cbegin(); it != m_replacements.cend(); ++it) {
        if (it.key() < m_yumIO->count() && (*m_yumIO)[it.key()]->action == Package::Action::None)
            rows.append(it.key());
    }
    return rows;
}

// As long as some are not marked.
void MainWindow::showReplacements()
{
    const QList<int> rows = unmarkedReplacements();
    if (rows.isEmpty()) {
        m_notices->clear(NoticeRow::Replacements);
        return;
    }
    QStringList lines;
    for (const int row : rows.mid(0, linesInTip))
        lines.append(m_replacements.value(row));
    if (lines.size() < rows.size())
        lines.append(tr("%1 more").arg(rows.size() - lines.size()));
    // Who may mark and not apply is not asked to.
    const bool canApply = m_yumIO->missingRights().packages.isEmpty();
    m_notices->setNotice(
        NoticeRow::Replacements,
        tr("%Ln package(s) would replace installed ones of other names.", nullptr,
           int(rows.size())),
        tr("An upgrade by DNF would install them. They are no updates, so \"Set Update of Listed\" "
           "passes them over.") +
            QStringLiteral("\n\n") + lines.join(u'\n'),
        canApply ? tr("Mark for Installation") : QString(), [this] { markReplacements(); });
}

void MainWindow::markReplacements()
{
    if (m_busy)
        return;
    QModelIndexList indices;
    for (const int row : unmarkedReplacements())
        indices.append(m_model->index(row, 0));
    m_model->setSelected(indices);
    warnUnlistedActions();
    stateChanged(-1);
}
