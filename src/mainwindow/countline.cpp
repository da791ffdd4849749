// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/countline.h"

#include "packagetable/view.h"
#include "yumio/formats.h"

#include <QItemSelectionModel>

#include <array>

CountLine::CountLine(const PackageTable::View *view, const YumIO *yumIO, QWidget *parent)
    : HElidedLabel(parent), m_view(view), m_yumIO(yumIO)
{
    setObjectName(QStringLiteral("countLine"));
    setToolTip(tr("The download size is that of the marked packages alone, without what they "
                  "depend on\nand without the members of marked groups."));
    m_soon.setSingleShot(true);
    m_soon.callOnTimeout(this, &CountLine::count);
    const auto countSoon = [this] { m_soon.start(0); };
    connect(view->model(), &QAbstractItemModel::modelReset, this, &CountLine::countMarks);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, countSoon);
}

void CountLine::countMarks()
{
    m_marksChanged = true;
    m_soon.start(0);
}

void CountLine::count()
{
    if (!m_yumIO || !m_view->isVisible())
        return;
    int selected = 0;
    for (const QItemSelectionRange &range : m_view->selectionModel()->selection())
        selected += range.height();
    if (std::exchange(m_marksChanged, false))
        m_marks = marksText();
    setText(tr("%Ln listed", nullptr, m_view->model()->rowCount()) + QStringLiteral(", ") +
            tr("%Ln selected", nullptr, selected) + m_marks);
}

QString CountLine::marksText() const
{
    std::array<int, 4> marked = {};
    quint64 bytes = 0;
    for (const Package::Entry *entry : *m_yumIO) {
        ++marked[size_t(entry->action)];
        if (entry->action < Package::Action::Remove)
            bytes += quint64(entry->size);
    }
    const auto [updates, installs, removals, rest] = marked;
    QStringList texts;
    if (updates > 0)
        texts += tr("%Ln to update", nullptr, updates);
    if (installs > 0)
        texts += tr("%Ln to install", nullptr, installs);
    if (removals > 0)
        texts += tr("%Ln to remove", nullptr, removals);
    if (texts.isEmpty())
        return QString();
    const QString text = tr("; marked: %1").arg(texts.join(QStringLiteral(", ")));
    return bytes > 0 ? text + tr("; %1 to download").arg(bytesFormat(bytes)) : text;
}
