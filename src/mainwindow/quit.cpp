// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/job.h"
#include "mainwindow/mainwindow.h"

#include "app/harmless.h"
#include "log/logwindow.h"
#include "mainwindow/keptreport.h"
#include "packagetable/sortfilterproxymodel.h"
#include "packagetable/view.h"
#include "repo/authdialog.h"
#include "repo/configdialog.h"
#include "repo/editordialog.h"
#include "widgets/announce.h"
#include "widgets/helidedlabel.h"
#include "widgets/scrollabledialogs.h"
#include "yumio/yumio.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

#include <utility>

namespace {

const QString organisation = QStringLiteral("VOK");
const QString application = QStringLiteral("vok");
const QString geometryKey = QStringLiteral("mainWindow/geometry");
const QString columnsKey = QStringLiteral("mainWindow/columns");
constexpr int declineMs = 100;

// What a dialog says that asks nothing; empty when it asks.
QString reportIn(const QWidget *dialog)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(dialog)) {
        if (box->buttons().size() > 1)
            return QString();
        return box->detailedText().isEmpty() ? box->text() : box->detailedText();
    }
    const auto *scrollable = qobject_cast<const ScrollableErrorDialog *>(dialog);
    return scrollable ? scrollable->findChild<QPlainTextEdit *>()->toPlainText() : QString();
}

} // namespace

MainWindow::Job::Job(MainWindow *window) : m_window(window->m_busy ? nullptr : window)
{
    if (!m_window)
        return;
    m_window->m_busy = true;
    m_window->m_rpmBegan = false;
    m_window->tell(QString()); // of the job before
    m_window->setReady(false);
}

MainWindow::Job::~Job()
{
    if (!m_window)
        return;
    m_window->m_busy = false;
    m_window->jobState(QStringLiteral("done"), false);
    m_window->m_cancelAsked = false;
    if (m_window->m_quitAsked) {
        if (!m_window->m_dialogRuns)
            m_window->finish();
        return;
    }
    m_window->tell(std::exchange(m_window->m_notes, {}).join(QStringLiteral("  ")));
    m_window->lookAround(); // first, for the button of a notice that goes may have the focus
    m_window->setReady(m_window->m_initialized);
    if (!m_window->m_repoToEdit.isEmpty())
        QTimer::singleShot(0, m_window, [window = m_window] { window->editRepositories(); });
}

void MainWindow::jobState(const QString &state, bool canCancel)
{
    if (m_finished)
        return;
    m_canCancel = canCancel;
    m_inTransaction = state == QStringLiteral("transaction");
    m_downloads = state == QStringLiteral("download");
    m_rpmBegan = m_rpmBegan || m_inTransaction;
    if (!m_inTransaction)
        m_closeRefused = false;
    m_cancelButton->setEnabled(canCancel && !m_quitAsked);
    speakState(state);
    if (canCancel && m_quitAsked)
        m_yumIO->cancel();
}

// For the dialogs: a job that the window knows of like of its own. False when another runs.
bool MainWindow::runJob(const std::function<void()> &work)
{
    const Job job(this);
    if (job)
        work();
    return bool(job);
}

// The engine may not go while a dialog uses it.
void MainWindow::dialogRuns(bool runs)
{
    m_dialogRuns = runs;
    if (!runs && m_quitAsked && !m_busy)
        QTimer::singleShot(0, this, &MainWindow::finish);
    else if (!runs && !m_reposChanged)
        lookAround();
}

void MainWindow::cancel()
{
    if (!m_busy || m_finished)
        return;
    m_cancelAsked = true;
    m_cancelButton->setEnabled(false);
    tell(tr("Cancelling the running operation."));
    m_yumIO->cancel();
}

void MainWindow::quit()
{
    if (!askBeforeQuit())
        leave();
}

void MainWindow::leave()
{
    if (m_finished)
        return;
    if (m_busy || m_dialogRuns)
        askToQuit();
    else
        finish();
}

void MainWindow::terminate()
{
    m_unattended = true;
    if (!m_finished)
        m_yumIO->leaveReportsUnread();
    leave();
}

// Nobody may be there any more to answer what the job asks, now or later, before it ends. Only what
// rpm has done is still worth reading.
void MainWindow::decline()
{
    if (QWidget *menu = QApplication::activePopupWidget())
        menu->close(); // which would keep the dialog below it from ending
    QWidget *shown = QApplication::activeModalWidget();
    if (!shown) {
        // This one is not modal.
        if (auto *question = findChild<RepoAuth::Dialog *>())
            question->handleQuit();
        return;
    }
    const QString report = m_rpmBegan ? reportIn(shown) : QString();
    if (!report.isEmpty()) {
        if (!m_unattended)
            return;
        KeptReport::add(report);
    }
    if (auto *form = qobject_cast<RepoEditor::ConfigDialog *>(shown))
        form->drop();
    else if (auto *editor = qobject_cast<RepoEditor::Dialog *>(shown))
        editor->drop();
    else if (auto *dialog = qobject_cast<QDialog *>(shown))
        dialog->reject();
    else
        shown->close();
}

void MainWindow::showKeptReport()
{
    const QString text = KeptReport::text();
    if (text.isEmpty())
        return;
    m_yumIO->log(Log::Kind::Warning, 0, text);
    ScrollableErrorDialog dialog(text, this);
    dialog.setWindowTitle(tr("VOK Transaction Report"));
    dialog.exec();
    if (!m_quitAsked) // else nobody has read it yet
        KeptReport::remove();
}

// The job goes on until it can be stopped, or until it has ended.
void MainWindow::askToQuit()
{
    if (!m_quitAsked) {
        auto *decliner = new QTimer(this);
        decliner->setObjectName(QStringLiteral("decliner"));
        connect(decliner, &QTimer::timeout, this, &MainWindow::decline);
        decliner->start(declineMs);
    }
    m_quitAsked = true;
    m_cancelButton->setEnabled(false);
    if (m_canCancel) {
        m_yumIO->cancel();
        tell(tr("Cancelling the running operation; VOK quits when it has stopped."));
    } else {
        tell(tr("VOK quits when the running operation is done."));
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!askBeforeQuit() && ((!m_busy && !m_dialogRuns) || m_finished)) {
        event->accept();
        finish();
        return;
    }
    event->ignore();
    if (m_quitQuestion)
        return;
    if (m_inTransaction && !m_closeRefused && !m_quitAsked) {
        m_closeRefused = true;
        tell(tr("An rpm transaction is running and cannot be stopped. Close again to quit when it "
                "is done."));
    } else {
        askToQuit();
    }
}

// Ends the program. The table lets go of the engine's rows before these go, and the engine goes
// once, with its interpreter.
void MainWindow::finish()
{
    if (m_finished)
        return;
    m_finished = true;
    m_busy = true; // nothing starts any more
    QSettings settings(organisation, application);
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(columnsKey, m_view->columns());
    if (m_busyCursor)
        QApplication::restoreOverrideCursor();
    m_busyCursor = false;
    m_yumIO->clearEntriesBeforeQuit();
    m_proxy->setSourceModel(nullptr);
    delete m_logWindow;
    m_logWindow = nullptr;
    close();
    delete m_yumIO;
    m_yumIO = nullptr;
    QCoreApplication::exit(m_exitCode);
}

bool MainWindow::recallGeometry()
{
    const QSettings settings(organisation, application);
    m_view->setColumns(settings.value(columnsKey).toMap());
    return restoreGeometry(settings.value(geometryKey).toByteArray());
}

// Shows a message under the bars; an empty one takes the last away.
void MainWindow::tell(const QString &text)
{
    if (m_finished)
        return;
    const QString shown = harmlessLine(text);
    m_message->setText(shown);
    if (!shown.isEmpty())
        announce(this, shown);
}
