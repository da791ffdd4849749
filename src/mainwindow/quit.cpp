#include "mainwindow/job.h"
#include "mainwindow/mainwindow.h"

#include "log/logwindow.h"
#include "packagetable/sortfilterproxymodel.h"
#include "yumio/yumio.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>

namespace {

const QString organisation = QStringLiteral("VOK");
const QString application = QStringLiteral("vok");
const QString geometryKey = QStringLiteral("mainWindow/geometry");

} // namespace

MainWindow::Job::Job(MainWindow *window)
    : m_window(window->m_busy || window->m_finished ? nullptr : window)
{
    if (!m_window)
        return;
    m_window->m_busy = true;
    m_window->setReady(false);
}

MainWindow::Job::~Job()
{
    if (!m_window)
        return;
    m_window->jobState(QStringLiteral("done"), false);
    m_window->m_busy = false;
    if (m_window->m_quitAsked)
        m_window->finish();
    else
        m_window->setReady(m_window->m_initialized);
}

void MainWindow::jobState(const QString &state, bool canCancel)
{
    m_canCancel = canCancel;
    m_inTransaction = state == QStringLiteral("transaction");
    if (!m_inTransaction)
        m_closeRefused = false;
    m_cancelButton->setEnabled(canCancel && !m_quitAsked);
    if (canCancel && m_quitAsked)
        m_yumIO->cancel();
}

void MainWindow::cancel()
{
    if (!m_busy)
        return;
    m_cancelButton->setEnabled(false);
    m_yumIO->cancel();
}

void MainWindow::quit()
{
    if (m_busy)
        askToQuit();
    else
        finish();
}

// The job goes on until it can be stopped, or until it has ended.
void MainWindow::askToQuit()
{
    m_quitAsked = true;
    m_cancelButton->setEnabled(false);
    if (m_canCancel) {
        m_yumIO->cancel();
        tell(tr("Cancelling the running operation; VOK quits when it has stopped."));
    } else {
        tell(tr("VOK quits when the running operation is done."));
    }
    // An open question of the job is answered by declining it.
    if (QWidget *question = QApplication::activeModalWidget())
        question->close();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_busy) {
        event->accept();
        finish();
        return;
    }
    event->ignore();
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
    QSettings(organisation, application).setValue(geometryKey, saveGeometry());
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

void MainWindow::recallGeometry()
{
    restoreGeometry(QSettings(organisation, application).value(geometryKey).toByteArray());
}

// Shows a message under the bars; an empty one takes the last away.
void MainWindow::tell(const QString &text)
{
    if (m_finished)
        return;
    statusBar()->setSizeGripEnabled(false);
    statusBar()->showMessage(text);
    statusBar()->setVisible(!text.isEmpty());
}
