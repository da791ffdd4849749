// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "recorder.h"

#include "log/logwindow.h"
#include "mainwindow/mainwindow.h"
#include "packagetable/model.h"
#include "packagetable/sortfilterproxymodel.h"
#include "progress/generaltip.h"
#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSocketNotifier>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Later, from the event loop: a job runs inside the click that starts it.
void later(QObject *object, const char *slot)
{
    QMetaObject::invokeMethod(object, slot, Qt::QueuedConnection);
}

} // namespace

Recorder::Recorder(MainWindow *window, int answers)
    : m_window(window), m_engine(window->findChild<YumIO *>()), m_heartbeat(this),
      m_recording(window, &m_heartbeat, this), m_dialogs(this)
{
    (void) m_answers.open(answers, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
    connect(m_engine, qOverload<const QString &, bool>(&YumIO::jobState), this,
            &Recorder::jobState);
    connect(&m_heartbeat, &Heartbeat::beat, this, &Recorder::beat);
    auto *quit = window->findChild<QAction *>(u"quitAction"_s);
    connect(quit, &QAction::enabledChanged, this, [this](bool enabled) {
        m_busy = !enabled;
        m_started = m_started || m_busy;
        m_heartbeat.setActivity(m_busy ? u"busy"_s : QString());
    });
    auto *notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Recorder::readCommands);
}

void Recorder::readCommands()
{
    char bytes[4096];
    const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
    if (count <= 0)
        _exit(2); // nobody listens any more
    m_input += QByteArray(bytes, count);
    for (;;) {
        const qsizetype end = m_input.indexOf('\n');
        if (end == -1)
            return;
        const QJsonObject command = QJsonDocument::fromJson(m_input.left(end)).object();
        m_input.remove(0, end + 1);
        obey(command);
    }
}

void Recorder::obey(const QJsonObject &command)
{
    const QString what = command.value(u"do"_s).toString();
    QJsonObject result;
    bool done = true;
    if (what == u"wait" || what == u"until" || what == u"dialog" || what == u"next") {
        m_waiting = command;
        return;
    }
    if (what == u"press")
        done = press(command.value(u"button"_s).toString());
    else if (what == u"mark")
        done = mark(command);
    else if (what == u"toggle")
        done = toggle(command.value(u"rows"_s).toArray());
    else if (what == u"choose")
        done = choose(command);
    else if (what == u"filter")
        filter(command.value(u"expression"_s).toString());
    else if (what == u"describe")
        done = describe(command.value(u"name"_s).toString());
    else if (what == u"answer")
        m_dialogs.setRules(command.value(u"rules"_s).toArray());
    else if (what == u"cancelAt")
        m_cancelAt = command.value(u"state"_s).toString();
    else if (what == u"rows")
        result.insert(u"table"_s, rows());
    else if (what == u"table")
        result.insert(u"table"_s, table());
    else if (what == u"log")
        result.insert(u"log"_s, log(command.value(u"from"_s).toInt()));
    else if (what == u"recording")
        result.insert(u"recording"_s, m_recording.lines());
    else if (what == u"forget")
        m_recording.forget();
    else if (what == u"gaps")
        result.insert(u"gaps"_s, m_heartbeat.gaps());
    else if (what == u"stacks")
        m_heartbeat.enableStacks();
    else if (what == u"tip")
        showTip();
    else if (what == u"showLog")
        showLog(command.value(u"level"_s).toInt());
    else if (what == u"picture")
        done = picture(command);
    else
        done = false;
    if (!done)
        result.insert(u"failed"_s, command);
    answer(result);
}

void Recorder::beat()
{
    m_dialogs.look();
    if (!m_cancelAt.isEmpty() && m_state == m_cancelAt && !m_dialogs.isOpen()) {
        auto *button = m_window->findChild<QAbstractButton *>(u"cancelButton"_s);
        if (button->isEnabled()) {
            m_cancelAt.clear();
            later(button, "click");
        }
    }
    if (!m_waiting.isEmpty() && isOver(m_waiting)) {
        m_waiting = QJsonObject();
        answer();
    }
}

bool Recorder::isOver(const QJsonObject &command) const
{
    const QString what = command.value(u"do"_s).toString();
    if (what == u"wait")
        return m_started && !m_busy && !m_dialogs.isOpen();
    if (what == u"dialog")
        return m_dialogs.isOpen();
    if (what == u"next")
        return m_started && (m_dialogs.hasNews() || (!m_busy && !m_dialogs.isOpen()));
    if (m_state != command.value(u"state"_s).toString())
        return false;
    const auto *bar = m_window->findChild<HProgressBar *>(u"itemBar"_s);
    return double(bar->value()) * 100 >=
           command.value(u"percent"_s).toDouble() * double(bar->maximum());
}

void Recorder::answer(QJsonObject result)
{
    result.insert(u"dialogs"_s, m_dialogs.takeDialogs());
    result.insert(u"states"_s, QJsonArray::fromStringList(m_states));
    result.insert(u"rows"_s, m_engine->count());
    result.insert(u"placeholder"_s, m_window->findChild<QLabel *>(u"placeholder"_s)->isVisible());
    m_states.clear();
    m_answers.write(QJsonDocument(result).toJson(QJsonDocument::Compact) + '\n');
    m_answers.flush();
}

void Recorder::jobState(const QString &state, bool canCancel)
{
    if (m_states.isEmpty() || m_states.last() != state)
        m_states.append(state);
    m_state = state;
    m_heartbeat.setActivity(m_busy ? state : QString());
    m_recording.addState(state, canCancel);
}

bool Recorder::press(const QString &button)
{
    if (DialogWatcher::press(button))
        return true;
    if (auto *found = m_window->findChild<QAbstractButton *>(button)) {
        if (!found->isEnabled())
            return false;
        later(found, "click");
        // What the click starts shall have begun when the next command comes.
        m_busy = m_busy || button == u"applyButton" || button == u"refreshButton";
        return true;
    }
    auto *action = m_window->findChild<QAction *>(button);
    if (!action || !action->isEnabled())
        return false;
    later(action, "trigger");
    return true;
}

bool Recorder::mark(const QJsonObject &command)
{
    auto *model = m_window->findChild<PackageTable::Model *>();
    const auto action = Package::Action(command.value(u"action"_s).toInt());
    QStringList names;
    for (const QJsonValue &name : command.value(u"names"_s).toArray())
        names.append(name.toString());
    for (int row = 0; row < m_engine->count(); ++row) {
        const Package::Entry *entry = (*m_engine)[row];
        if (names.removeOne(entry->name) || names.removeOne(entry->name + u'.' + entry->arch))
            model->setAction(model->index(row, 0), action);
    }
    m_window->stateChanged(-1);
    return names.isEmpty();
}

QJsonObject Recorder::rows() const
{
    QJsonObject table;
    for (const Package::Entry *entry : *m_engine) {
        table.insert(entry->name,
                     QJsonArray{int(entry->state), entry->verRel, entry->repo, int(entry->action)});
    }
    return table;
}

QJsonArray Recorder::table() const
{
    QJsonArray result;
    for (const Package::Entry *entry : *m_engine) {
        QJsonArray chain;
        for (const Package::Entry *old = entry->next; old; old = old->next)
            chain.append(QJsonArray{old->verRel, old->arch});
        result.append(QJsonArray{int(entry->kind), int(entry->state), entry->name, entry->verRel,
                                 entry->arch, entry->repo, int(entry->action), chain});
    }
    return result;
}

bool Recorder::toggle(const QJsonArray &rows)
{
    auto *view = m_window->findChild<QTableView *>(u"view"_s);
    auto *proxy = m_window->findChild<PackageTable::SortFilterProxyModel *>();
    for (const QJsonValue &row : rows) {
        const QModelIndex index =
            proxy->mapFromSource(proxy->sourceModel()->index(row[0].toInt(), 0));
        if (!index.isValid() || !view->isEnabled())
            return false;
        view->scrollTo(index);
        const QPointF middle = view->visualRect(index).center();
        for (int times = row[1].toInt(); times > 0; --times) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, middle, view->viewport()->mapToGlobal(middle),
                                  Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
                QCoreApplication::sendEvent(view->viewport(), &event);
            }
        }
    }
    return true;
}

void Recorder::filter(const QString &expression)
{
    auto *edit = m_window->findChild<QLineEdit *>(u"regexpEdit"_s);
    edit->setText(expression);
    Q_EMIT edit->returnPressed();
}

bool Recorder::describe(const QString &name)
{
    auto *view = m_window->findChild<QTableView *>(u"view"_s);
    auto *proxy = m_window->findChild<PackageTable::SortFilterProxyModel *>();
    for (int row = 0; row < m_engine->count(); ++row) {
        const QModelIndex index = proxy->mapFromSource(proxy->sourceModel()->index(row, 0));
        if ((*m_engine)[row]->name != name || !index.isValid())
            continue;
        view->selectRow(index.row());
        return press(u"describeButton"_s);
    }
    return false;
}

bool Recorder::choose(const QJsonObject &command) const
{
    const QString name = command.value(u"box"_s).toString();
    const int index = command.value(u"index"_s).toInt();
    const QWidget *dialog = QApplication::activeModalWidget();
    if (auto *tabs = dialog ? dialog->findChild<QTabWidget *>(name) : nullptr) {
        tabs->setCurrentIndex(index);
        return true;
    }
    auto *box = m_window->findChild<QComboBox *>(name);
    if (!box || !box->isEnabled() || index >= box->count())
        return false;
    box->setCurrentIndex(index);
    return true;
}

QJsonArray Recorder::log(int from) const
{
    QJsonArray result;
    QMutexLocker lock(&m_engine->logList().mutex());
    for (const Log::Entry &entry : m_engine->logList().entries().mid(from))
        result.append(QJsonArray{int(entry.kind), int(entry.level), entry.text});
    return result;
}

void Recorder::showTip()
{
    auto *bar = m_window->findChild<HProgressBar *>(u"itemBar"_s);
    m_window->activateWindow();
    const QPoint middle = bar->rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, bar->mapToGlobal(middle));
    QCoreApplication::sendEvent(bar, &event);
}

void Recorder::showLog(int level)
{
    m_window->displayLog();
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<Log::Window *>(widget))
            window->findChild<QSpinBox *>()->setValue(level);
    }
}

bool Recorder::picture(const QJsonObject &command) const
{
    const QString of = command.value(u"of"_s).toString();
    QWidget *widget = m_window;
    if (of == u"dialog")
        widget = QApplication::activeModalWidget();
    else if (of == u"tip")
        widget = GeneralTip::current();
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (of == u"log" && qobject_cast<Log::Window *>(top))
            widget = top;
    }
    return widget && widget->grab().save(command.value(u"path"_s).toString());
}
