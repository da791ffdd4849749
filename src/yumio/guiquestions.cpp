// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guiquestions.h"

#include "app/harmless.h"
#include "passwordsintext.h"
#include "widgets/messagebox.h"
#include "widgets/scrollabledialogs.h"

#include <QApplication>
#include <QThread>

#include <mutex>
#include <utility>

namespace {

// What comes from packages and servers must not reorder, hide or cut the text around it.
QString showable(const QString &text)
{
    return harmless(maskPasswords(text));
}

std::mutex channelsMutex; // guards the next two
QList<YumIODialogs *> asking;
bool allDeclined = false;

} // namespace

YumIODialogsMinion::YumIODialogsMinion(QWidget *parent) : m_parent(parent) {}

void YumIODialogsMinion::confirm(const QString &title, const QString &text, const QString &yesText,
                                 const QString &noText)
{
    ScrollableConfirmDialog dialog(showable(text), yesText, noText, m_parent);
    dialog.setWindowTitle(title);
    Q_EMIT setResult(dialog.exec());
}

void YumIODialogsMinion::warning(const QString &title, const QString &text, const QString &button0,
                                 const QString &button1, const QString &button2, int defaultButton,
                                 int escapeButton)
{
    Q_EMIT setResult(showMessageBox(QMessageBox::Warning, m_parent, title, showable(text), button0,
                                    button1, button2, defaultButton, escapeButton));
}

void YumIODialogsMinion::critical(const QString &title, const QString &text, const QString &button0,
                                  const QString &button1, const QString &button2, int defaultButton,
                                  int escapeButton)
{
    Q_EMIT setResult(showMessageBox(QMessageBox::Critical, m_parent, title, showable(text), button0,
                                    button1, button2, defaultButton, escapeButton));
}

void YumIODialogsMinion::scrollable(const QString &title, const QString &text)
{
    ScrollableErrorDialog dialog(showable(text), m_parent);
    dialog.setWindowTitle(title);
    dialog.exec();
    Q_EMIT setResult(1);
}

YumIODialogs::YumIODialogs(QWidget *parent)
    : m_parent(parent), m_minion(new YumIODialogsMinion(parent))
{
    m_minion->moveToThread(QCoreApplication::instance()->thread());
    connect(m_minion, &YumIODialogsMinion::setResult, this, &YumIODialogs::setResult);
    connect(this, &YumIODialogs::confirmSig, m_minion, &YumIODialogsMinion::confirm);
    connect(this, &YumIODialogs::warningSig, m_minion, &YumIODialogsMinion::warning);
    connect(this, &YumIODialogs::criticalSig, m_minion, &YumIODialogsMinion::critical);
    connect(this, &YumIODialogs::scrollableSig, m_minion, &YumIODialogsMinion::scrollable);
}

// Disconnected first: the GUI thread may delete the minion while this object is still going, and
// one that is half gone must not be asked about a connection.
YumIODialogs::~YumIODialogs()
{
    disconnect(m_minion);
    m_minion->disconnect(this);
    m_minion->deleteLater();
}

bool YumIODialogs::isForeign() const
{
    return QThread::currentThread() != thread();
}

int YumIODialogs::confirm(const QString &title, const QString &text, const QString &yesText,
                          const QString &noText)
{
    if (isForeign())
        return YumIODialogs(m_parent).confirm(title, text, yesText, noText);
    return waitForResult(0, [&] { Q_EMIT confirmSig(title, text, yesText, noText); });
}

int YumIODialogs::warning(const QString &title, const QString &text, const QString &button0,
                          const QString &button1, const QString &button2, int defaultButton,
                          int escapeButton)
{
    if (isForeign()) {
        return YumIODialogs(m_parent).warning(title, text, button0, button1, button2, defaultButton,
                                              escapeButton);
    }
    return waitForResult(escapeButton, [&] {
        Q_EMIT warningSig(title, text, button0, button1, button2, defaultButton, escapeButton);
    });
}

int YumIODialogs::critical(const QString &title, const QString &text, const QString &button0,
                           const QString &button1, const QString &button2, int defaultButton,
                           int escapeButton)
{
    if (isForeign()) {
        return YumIODialogs(m_parent).critical(title, text, button0, button1, button2,
                                               defaultButton, escapeButton);
    }
    return waitForResult(escapeButton, [&] {
        Q_EMIT criticalSig(title, text, button0, button1, button2, defaultButton, escapeButton);
    });
}

bool YumIODialogs::scrollable(const QString &title, const QString &text)
{
    if (isForeign())
        return YumIODialogs(m_parent).scrollable(title, text);
    return waitForResult(0, [&] { Q_EMIT scrollableSig(title, text); }) != 0;
}

int YumIODialogs::waitForResult(int declined, const std::function<void()> &ask)
{
    {
        const std::lock_guard lock(channelsMutex);
        if (allDeclined)
            return declined;
        m_declined = declined;
        m_ready = false;
        asking.append(this);
    }
    ask();
    if (!m_ready)
        m_loop.exec(QEventLoop::ExcludeUserInputEvents);
    const std::lock_guard lock(channelsMutex);
    asking.removeOne(this);
    return m_result;
}

void YumIODialogs::declineAll()
{
    const std::lock_guard lock(channelsMutex);
    allDeclined = true;
    for (YumIODialogs *channel : std::as_const(asking))
        QMetaObject::invokeMethod(channel, &YumIODialogs::decline, Qt::QueuedConnection);
    asking.clear();
}

void YumIODialogs::decline()
{
    if (!m_ready)
        setResult(m_declined);
}

void YumIODialogs::setResult(int result)
{
    m_ready = true;
    m_result = result;
    m_loop.quit();
}

YumIODialogsUser::YumIODialogsUser(YumIODialogs *&slot, QWidget *parent)
    : m_slot(slot), m_outer(slot)
{
    m_slot = new YumIODialogs(parent);
}

YumIODialogsUser::~YumIODialogsUser()
{
    delete m_slot;
    m_slot = m_outer;
}
