// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The tip of the item bar: the parallel downloads, a row for each.

#include "app/harmless.h"
#include "generaltip.h"
#include "progress.h"

#include <QGridLayout>
#include <QLabel>

namespace {

// More finished downloads than this share one row of the tip.
constexpr unsigned int finishedRows = 20;

const QColor waitingColor(255, 140, 0);
const QColor runningColor(255, 255, 0);
const QColor completeColor(144, 238, 144);

QLabel *makeLabel(const QString &text, const QColor &color)
{
    auto *label = new QLabel(harmlessLine(text));
    label->setTextFormat(Qt::PlainText);
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    label->setAutoFillBackground(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, color);
    palette.setColor(QPalette::WindowText, qGray(color.rgb()) < 124 ? Qt::white : Qt::black);
    label->setPalette(palette);
    label->setBackgroundRole(QPalette::Window);
    label->setForegroundRole(QPalette::WindowText);
    return label;
}

class TipTable
{
public:
    explicit TipTable(GeneralTip *tip) : m_grid(new QGridLayout(tip)) {}

    void addRow(const QString &activity, const QString &state, const QColor &color)
    {
        auto *label = new QLabel(harmlessLine(activity));
        label->setTextFormat(Qt::PlainText);
        const int row = m_grid->rowCount();
        m_grid->addWidget(label, row, 0);
        m_grid->addWidget(makeLabel(state, color), row, 1);
    }

private:
    QGridLayout *m_grid;
};

unsigned int countIn(const Progress::ThreadsState &threads, quint32 state)
{
    unsigned int count = 0;
    for (unsigned int i = 0; i < threads.count(); ++i)
        count += threads[i].state == state;
    return count;
}

} // namespace

void Progress::Minion::itemProgressToolTip(const QPoint &pos)
{
    if (m_itemBar && m_threads.count() > 0)
        GeneralTip::showTip(m_itemBar->mapToGlobal(pos), setupTip, this, m_itemBar, true);
}

void Progress::Minion::setupTip(GeneralTip *tip, void *minion)
{
    const ThreadsState &threads = static_cast<const Minion *>(minion)->m_threads;
    const unsigned int idle = countIn(threads, ThreadState::Idle);
    const unsigned int finished = countIn(threads, ThreadState::Finished);
    const bool condense = finished > finishedRows;
    TipTable table(tip);
    if (condense)
        table.addRow(tr("%n downloads", nullptr, int(finished)), tr("Complete"), completeColor);
    for (unsigned int i = 0; i < threads.count(); ++i) {
        const ThreadState &thread = threads[i];
        switch (thread.state) {
        case ThreadState::Retrying:
            table.addRow(thread.activity, tr("Retrying"), waitingColor);
            break;
        case ThreadState::Running:
            table.addRow(thread.activity, runningText(thread), runningColor);
            break;
        case ThreadState::Finished:
            if (!condense)
                table.addRow(thread.activity, tr("Complete"), completeColor);
            break;
        default:
            break;
        }
    }
    if (idle)
        table.addRow(tr("%n downloads", nullptr, int(idle)), tr("Not Started Yet"), waitingColor);
}

// A maximum of 1 stands for a size that is not known.
QString Progress::Minion::runningText(const ThreadState &thread)
{
    if (thread.max <= 1)
        return tr("In Progress");
    const int percent = int(double(thread.value) / double(thread.max) * 100);
    return tr("%1 / %2 (%3%%)")
        .arg(thread.value)
        .arg(thread.max)
        .arg(percent)
        .replace(QStringLiteral("%%"), QStringLiteral("%"));
}
