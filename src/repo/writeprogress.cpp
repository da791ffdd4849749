// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "writeprogress.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QProgressDialog>

namespace {

constexpr qint64 silentMs = 500;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WriteProgress)
};

// Neither Escape, nor the window's X, nor the end of the program closes it before its time.
class Dialog : public QProgressDialog
{
public:
    using QProgressDialog::QProgressDialog;
    void reject() override {}

protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

} // namespace

WriteProgress::WriteProgress(QWidget *parent, int count) : m_parent(parent), m_count(count)
{
    m_since.start();
}

WriteProgress::~WriteProgress() = default;

void WriteProgress::setDone(int done)
{
    if (!m_dialog && (m_since.elapsed() < silentMs || done >= m_count))
        return;
    if (!m_dialog) {
        m_dialog = std::make_unique<Dialog>(Texts::tr("Writing the repository files..."), QString(),
                                            0, m_count, m_parent);
        m_dialog->setObjectName(QStringLiteral("writeProgress"));
        m_dialog->setWindowTitle(Texts::tr("VOK Repository Configuration Editor"));
        m_dialog->setWindowModality(Qt::ApplicationModal);
        m_dialog->setMinimumDuration(0);
        m_dialog->setAutoClose(false);
        m_dialog->setAutoReset(false);
    }
    m_dialog->setValue(done); // serves events
}

void WriteProgress::end()
{
    m_dialog.reset();
}
