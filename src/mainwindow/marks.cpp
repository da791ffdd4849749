// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/marks.h"

namespace {

YumIO::EntryKey keyOf(const Package::Entry &entry)
{
    const bool isGroup = entry.kind == Package::Kind::Group;
    return {isGroup, entry.name, isGroup ? QString() : entry.biArch};
}

// Of what a removal removes where the row shows the update.
QString versionOf(const Package::Entry &entry, Package::Action action)
{
    const bool isBehind =
        action == Package::Action::Remove && entry.state == Package::State::Updatable && entry.next;
    return isBehind ? entry.next->verRel : entry.verRel;
}

} // namespace

void Marks::take(const YumIO &yumIO)
{
    for (const Package::Entry *entry : yumIO) {
        if (entry->action != Package::Action::None)
            m_marks.insert(keyOf(*entry),
                           {entry->kind, entry->action, versionOf(*entry, entry->action)});
    }
}

Marks::Told Marks::giveBack(const YumIO &yumIO)
{
    Told told;
    if (m_marks.isEmpty() || yumIO.count() == 0)
        return told;
    for (Package::Entry *entry : yumIO) {
        const auto mark = m_marks.constFind(keyOf(*entry));
        if (mark == m_marks.cend() || mark->kind != entry->kind ||
            !Package::allows(entry->state, mark->action))
            continue;
        entry->action = mark->action;
        if (const QString version = versionOf(*entry, mark->action); version != mark->version)
            told.changed.append(
                QStringLiteral("%1 %2 -> %3").arg(entry->name, mark->version, version));
        m_marks.erase(mark);
    }
    for (auto mark = m_marks.cbegin(); mark != m_marks.cend(); ++mark)
        told.lost.append(mark.key().name);
    m_marks.clear();
    told.lost.sort();
    told.changed.sort();
    return told;
}
