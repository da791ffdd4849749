// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "answers.h"
#include "rows.h"

#include "mainwindow/machinewatch.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/noticerow.h"
#include "packagetable/view.h"
#include "yumio/yumio.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace PackageTable;
using namespace Qt::StringLiterals;

// One window over the scripted packages for all cases, in their order; the last one ends it.
class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        QDir(m_dir.path()).mkpath(u"root/etc/yum.repos.d"_s);
        QDir(m_dir.path()).mkpath(u"root/var/lib/rpm"_s);
        write(u"root/var/lib/rpm/db"_s, "as read");
        write(u"root/etc/yum.repos.d/a.repo"_s, "[a]\n");
        write(u"root/etc/yum.conf"_s, "[main]\ncachedir=/cache/here\n[base]\nenabled=1\n");
        qputenv("VOKROOT", m_dir.filePath(u"root"_s).toUtf8());
        qputenv("XDG_CONFIG_HOME", m_dir.filePath(u"config"_s).toUtf8());
        qputenv("VOK_TEST_HOLD", m_dir.filePath(u"hold"_s).toUtf8());
        qputenv("VOK_TEST_SCENARIO", VOK_DOUBLE "/python/table.py");
        qputenv("VOKSHARE", VOK_DOUBLE);
        m_window = std::make_unique<MainWindow>();
        m_window->setStateFilter(StateFilter::All);
        m_window->setRegexp("^[a-z]");
        m_window->setGroups(true);
        m_view = child<View>("view");
    }

    // The first collection shows a placeholder, both bars and a live Cancel; then the table.
    void starts()
    {
        hold("metadata");
        QTimer probe;
        bool seen = false;
        connect(&probe, &QTimer::timeout, this, [&] {
            if (!child<QPushButton>("cancelButton")->isEnabled())
                return;
            seen = child<QLabel>("placeholder")->isVisible() && !m_view->isVisible() &&
                   child<QWidget>("totalBar")->isVisible() &&
                   child<QWidget>("itemBar")->isVisible() && !action("quitAction")->isEnabled() &&
                   !action("cleanAllAction")->isEnabled() && action("logAction")->isEnabled() &&
                   QApplication::overrideCursor();
            release();
            probe.stop();
        });
        probe.start(5);
        m_window->show();
        QTRY_VERIFY_WITH_TIMEOUT(m_view->isVisible() && m_view->isEnabled(), 20000);
        QVERIFY(seen);
        QVERIFY(!child<QLabel>("placeholder")->isVisible());
        QVERIFY(!child<QPushButton>("cancelButton")->isEnabled());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(m_window->focusWidget(), m_view);
        QVERIFY(m_view->currentIndex().isValid());
        QCOMPARE(listed(), u"tools-suite alpha beta echo grüße kernel modules pair pair"_s);
    }

    void offersWhatCanBeDone()
    {
        QVERIFY(!action("cleanPickledCacheAction")->isEnabled());
        QVERIFY(action("cleanSqliteCacheAction")->isEnabled());
        QVERIFY(action("editConfigurationAction")->isEnabled());
        QVERIFY(action("cleanAllAction")->toolTip().contains(u"/cache/here"_s));
    }

    // They lie beside the share directory, and are opened by its programs.
    void opensManuals()
    {
        QDir(m_dir.path()).mkpath(u"share/vok"_s);
        const QString seen = m_dir.filePath(u"seen"_s);
        const QString manual = m_dir.filePath(u"share/doc/vok-1.11.10/manual.pdf"_s);
        write(u"share/vok/mimeviewer"_s, "#!/bin/sh\necho \"$*\" >> " + seen.toUtf8());
        QFile::setPermissions(m_dir.filePath(u"share/vok/mimeviewer"_s),
                              QFile::ReadOwner | QFile::ExeOwner);
        qputenv("VOKSHARE", m_dir.filePath(u"share/vok"_s).toUtf8());
        Answers answers;
        action("manualPdfAction")->trigger();
        QVERIFY(answers.texts().value(0).contains(manual));
        QDir().mkpath(manual);
        action("manualPdfAction")->trigger();
        const QString words = u"application/pdf %1\n"_s.arg(manual);
        QTRY_COMPARE(read(seen), u"--check %1%1"_s.arg(words));
        QCOMPARE(answers.shown.size(), 1);
        qputenv("VOKSHARE", VOK_DOUBLE);
    }

    // In no window do two controls that show together answer to one key, and all tell a screen reader
    // what they are.
    void keysAndNames()
    {
        QStringList clashes;
        QSet<QWidget *> seen;
        const auto look = [&](QWidget *window) {
            QHash<QKeySequence, QString> keys;
            const auto add = [&](const QWidget *widget, const QString &text, QKeySequence key) {
                if (widget->window() != window || !widget->isVisible() || key.isEmpty())
                    return;
                if (keys.contains(key))
                    clashes.append(window->windowTitle() + u": "_s + keys[key] + u", "_s + text);
                keys.insert(key, text);
            };
            const auto addText = [&](const QWidget *widget, const QString &text) {
                add(widget, text, QKeySequence::mnemonic(text));
            };
            for (const auto *button : window->findChildren<QAbstractButton *>())
                add(button, button->text(), button->shortcut());
            for (const auto *label : window->findChildren<QLabel *>())
                addText(label, label->buddy() ? label->text() : QString());
            for (const auto *bar : window->findChildren<QMenuBar *>()) {
                for (const auto *title : bar->actions())
                    addText(bar, title->text());
            }
            for (const auto *tabs : window->findChildren<QTabBar *>()) {
                for (int tab = 0; tab < tabs->count(); ++tab)
                    addText(tabs, tabs->tabText(tab));
            }
        };
        look(m_window.get());
        m_window->displayLog();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->windowTitle() == u"VOK Log"_s)
                look(window);
        }
        QTimer probe;
        connect(&probe, &QTimer::timeout, this, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            const bool isNew = !seen.contains(dialog);
            if (isNew)
                look(dialog);
            seen.insert(dialog);
            auto *form = dialog->findChild<QPushButton *>(u"addButton"_s);
            if (isNew && form)
                QMetaObject::invokeMethod(form, &QPushButton::click, Qt::QueuedConnection);
            else
                dialog->close();
        });
        probe.start(5);
        m_window->editRepositories();
        press("describeButton");
        QCOMPARE(clashes.join(u'\n'), QString());
        QCOMPARE(seen.size(), 3);
        for (const char *name :
             {"modeCombo", "regexpEdit", "stateCombo", "view", "totalBar", "itemBar"})
            QVERIFY2(!child<QWidget>(name)->accessibleName().isEmpty(), name);
    }

    void filters_data()
    {
        columns<QString, int, bool, bool, QString>("expression", "state", "dups", "groups",
                                                   "names");
        ::row("duplicates left out", "^pair", 3, false, true, "pair");
        ::row("groups", "", 2, true, true, "Workshop alpha echo kernel modules");
    }

    void filters()
    {
        QFETCH(QString, expression);
        QFETCH(int, state);
        QFETCH(bool, dups);
        QFETCH(bool, groups);
        child<QLineEdit>("regexpEdit")->setText(expression);
        QTest::keyClick(child<QLineEdit>("regexpEdit"), Qt::Key_Return);
        child<QComboBox>("stateCombo")->setCurrentIndex(state);
        child<QCheckBox>("dupsCheck")->setChecked(dups);
        child<QCheckBox>("groupsCheck")->setChecked(groups);
        QTEST(listed(), "names");
    }

    void actionsAndTheWarning()
    {
        showAll();
        auto *apply = child<QPushButton>("applyButton");
        auto *warning = child<QLabel>("unlistedLabel");
        QVERIFY(!apply->isEnabled());
        m_view->setCurrentIndex(m_view->model()->index(row(u"alpha"_s), NameColumn));
        QTest::keyClick(m_view, Qt::Key_Space);
        QVERIFY(apply->isEnabled());
        QVERIFY(warning->text().isEmpty());
        QTRY_COMPARE(child<QLabel>("countLine")->text(),
                     u"12 listed, 1 selected; marked: 1 to update; 2.0Kb to download"_s);

        const QSize room = warning->size();
        filter(u"^beta"_s);
        QCOMPARE(warning->text(), u"Unlisted Actions"_s);
        QVERIFY(!warning->toolTip().isEmpty());
        QCOMPARE(warning->size(), room);
        press("clearActionsButton");
        QVERIFY(warning->text().isEmpty());
        QVERIFY(!apply->isEnabled());

        m_view->selectAll();
        press("setSelectedButton");
        QVERIFY(apply->isEnabled());
        press("clearActionsButton");
        showAll();
        press("setUpdateListedButton");
        QVERIFY(apply->isEnabled());
    }

    // The mode decides the texts. A search loads what it reads, whatever stands in the field: the
    // expression of the last Return goes on being searched.
    void searches()
    {
        showAll();
        filter(u"^/bin/b$"_s);
        QCOMPARE(listed(), QString());
        auto *mode = child<QComboBox>("modeCombo");
        QVERIFY(mode->toolTip().endsWith(u"(Must load extra data.)"_s));
        child<QLineEdit>("regexpEdit")->setText(u".*"_s);
        mode->setCurrentIndex(int(Mode::Search));
        QCOMPARE(child<QPushButton>("filterSearchButton")->text(), u"Search"_s);
        QCOMPARE(listed(), u"beta"_s);
        QVERIFY(!mode->toolTip().contains(u"Must load"_s));
        press("refreshButton");
        QCOMPARE(listed(), u"beta"_s);
        mode->setCurrentIndex(int(Mode::Filter));
        QCOMPARE(child<QPushButton>("filterSearchButton")->text(), u"Filter"_s);
        showAll();
    }

    // A refresh that was cancelled leaves the table as it was, and says so.
    void cancels()
    {
        const QString before = listed();
        refreshAndThen([this] { press("cancelButton"); });
        release();
        QVERIFY(!child<QPushButton>("cancelButton")->isEnabled());
        QCOMPARE(listed(), before);
        QVERIFY(!message().isEmpty());
        press("refreshButton");
        QVERIFY(message().isEmpty());
        QCOMPARE(listed(), before);
    }

    void cancelsSearches_data()
    {
        QTest::addColumn<QByteArray>("moment");
        for (const char *moment : {"files", "otherdata", "search"})
            QTest::newRow(moment) << QByteArray(moment);
    }

    // Whatever it was about, a search that was cancelled leaves the rows as they were, gives the
    // control back that started it, and can be had later.
    void cancelsSearches()
    {
        QFETCH(QByteArray, moment);
        press("refreshButton"); // what was loaded is forgotten
        child<QCheckBox>("groupsCheck")->setChecked(false);
        filter(u"needle|^alpha"_s);
        child<QLineEdit>("regexpEdit")->setText(u"typed"_s);
        auto *mode = child<QComboBox>("modeCombo");
        holdAndThen(
            moment.constData(), [mode] { mode->setCurrentIndex(int(Mode::Search)); },
            [this] { press("cancelButton"); });
        QCOMPARE(mode->currentIndex(), int(Mode::Filter));
        QCOMPARE(child<QPushButton>("filterSearchButton")->text(), u"Filter"_s);
        QCOMPARE(child<QLineEdit>("regexpEdit")->text(), u"typed"_s);
        QCOMPARE(listed(), u"alpha"_s);
        QVERIFY(message().contains(u"search was cancelled"_s));
        release();
        mode->setCurrentIndex(int(Mode::Search));
        QCOMPARE(listed(), u"alpha beta"_s);
        QVERIFY(message().isEmpty());
        mode->setCurrentIndex(int(Mode::Filter));
        showAll();
    }

    // A job that is running is not doubled, and a transaction is not cut off by closing the window.
    void applies()
    {
        press("setUpdateListedButton");
        hold("transaction");
        int closed = 0;
        QStringList boxes;
        int seen = 0;
        QTimer probe;
        connect(&probe, &QTimer::timeout, this, [&] {
            if (auto *box = QApplication::activeModalWidget()) {
                boxes.append(box->property("text").toString());
                box->close();
            }
            // What the job told before it was seen to wait has arrived by the next time.
            if (!QFile::exists(m_dir.filePath(u"hold.held"_s)) || seen++ == 0)
                return;
            m_window->refresh();
            m_window->apply();
            if (closed++ == 0)
                QVERIFY(!m_window->close());
            QVERIFY(message().contains(u"cannot be stopped"_s));
            release();
            probe.stop();
        });
        probe.start(5);
        press("applyButton");
        QCOMPARE(boxes, QStringList());
        QCOMPARE(closed, 1);
        QVERIFY(m_window->isVisible());
        QVERIFY(m_view->isEnabled());
        // Nothing was confirmed, so the marks stay.
        QVERIFY(child<QPushButton>("applyButton")->isEnabled());
    }

    // What an upgrade would install is not forgotten: one press marks it, listed or not.
    void marksReplacements()
    {
        press("clearActionsButton");
        filter(u"^alpha"_s);
        auto *line = child<QLabel>("replacementsNotice");
        QVERIFY(line->isVisible() && line->text().startsWith(u'1'));
        QTest::mouseClick(child<QToolButton>("replacementsNoticeButton"), Qt::LeftButton);
        QVERIFY(!line->isVisible() && child<QPushButton>("applyButton")->isEnabled());
        QVERIFY(!child<QLabel>("unlistedLabel")->text().isEmpty());
        press("clearActionsButton");
        QVERIFY(line->isVisible());
        showAll();
    }

    void tellsOfOthers_data()
    {
        columns<QString, QString, int, QString>("file", "content", "questions", "line");
        ::row("read", "var/lib/rpm/db-shm", "x", 0, "");
        ::row("written", "var/lib/rpm/db", "the same", 1, "");
        ::row("installed", "var/lib/rpm/db", "other", 1, "The installed packages have changed.");
        ::row("undone", "var/lib/rpm/db", "as read", 1, "");
        ::row("touched", "etc/yum.repos.d/a.repo", "[a]\n", 0, "");
        ::row("edited", "etc/yum.repos.d/a.repo", "[b]\n", 0, "The configuration has changed.");
    }

    // What others do is worth a line when the table is not true any more. Who only reads is not asked
    // about, or the question would raise itself.
    void tellsOfOthers()
    {
        QFETCH(QString, file);
        QFETCH(QString, content);
        const qsizetype before = calls("installedChanged");
        QSignalSpy raised(m_window->findChild<MachineWatch *>(), &MachineWatch::raised);
        write(u"root/%1~"_s.arg(file), content.toUtf8());
        QVERIFY(rename(path(file + u'~').constData(), path(file).constData()) == 0);
        QVERIFY(raised.wait());
        QTEST(int(calls("installedChanged") - before), "questions");
        QTEST(notice(), "line");
    }

    // A table that is known to be old is not applied; the refresh that is offered makes it true.
    void refusesAnOldTable()
    {
        const qsizetype before = calls("apply");
        press("setUpdateListedButton");
        QString said;
        QTimer probe;
        connect(&probe, &QTimer::timeout, this, [&] {
            auto *box = QApplication::activeModalWidget();
            if (!box)
                return;
            said = box->property("text").toString();
            probe.stop();
            QTest::keyClick(box, Qt::Key_Return);
        });
        probe.start(5);
        press("applyButton");
        QVERIFY(said.contains(u"Changed: /etc/yum.repos.d/a.repo"_s));
        QCOMPARE(calls("apply"), before);
        QCOMPARE(notice(), QString());
        QVERIFY(child<QPushButton>("applyButton")->isEnabled());
    }

    // Asked to quit, the window cancels what can be cancelled and goes when it has stopped.
    void quitsWhenTheJobHasStopped()
    {
        press("clearActionsButton"); // or the user would be asked
        refreshAndThen([this] { m_window->quit(); });
        QVERIFY(!m_window->isVisible());
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(QFile::exists(m_dir.filePath(u"hold"_s)));
        QVERIFY(
            !QSettings(u"VOK"_s, u"vok"_s).value("mainWindow/geometry").toByteArray().isEmpty());
        // What still reaches it finds nothing to do.
        m_window->quit();
        m_window->refresh();
        m_window->clearActions();
        m_window->stateChanged(0);
        m_window->displayLog();
        m_window.reset();
    }

private:
    template <typename T> T *child(const char *name)
    {
        auto *found = m_window->findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("no %s", name);
        return found;
    }
    QAction *action(const char *name) { return child<QAction>(name); }
    QString message() { return child<QLabel>("message")->text(); }
    QString notice()
    {
        auto *label = child<QLabel>("outdatedNotice");
        return label->isVisible() ? label->text() : QString();
    }
    QByteArray path(const QString &file) { return m_dir.filePath(u"root/"_s + file).toUtf8(); }
    // How often the script was asked for something.
    qsizetype calls(const char *method)
    {
        qsizetype count = 0;
        Log::EntryList &log = m_window->findChild<YumIO *>()->logList();
        const QMutexLocker locker(&log.mutex());
        for (const Log::Entry &entry : log.entries())
            count += entry.text == QLatin1String(method);
        return count;
    }
    void press(const char *name) { QTest::mouseClick(child<QPushButton>(name), Qt::LeftButton); }

    // Starts a job that waits in a state, and does something once it can be cancelled.
    void holdAndThen(const char *state, const std::function<void()> &start,
                     const std::function<void()> &act)
    {
        hold(state);
        QTimer probe;
        connect(&probe, &QTimer::timeout, this, [&] {
            // The job's failure is told in a box, which nobody else closes here.
            if (auto *box = QApplication::activeModalWidget())
                box->close();
            else if (child<QPushButton>("cancelButton")->isEnabled())
                act();
        });
        probe.start(5);
        start();
    }
    void refreshAndThen(const std::function<void()> &act)
    {
        holdAndThen(
            "metadata", [this] { press("refreshButton"); }, act);
    }

    void filter(const QString &expression)
    {
        child<QLineEdit>("regexpEdit")->setText(expression);
        press("filterSearchButton");
    }
    void showAll()
    {
        filter(u".*"_s);
        child<QComboBox>("stateCombo")->setCurrentIndex(int(StateFilter::All));
    }

    int row(const QString &name) const
    {
        const QAbstractItemModel *model = m_view->model();
        for (int i = 0; i < model->rowCount(); ++i) {
            if (model->index(i, NameColumn).data().toString() == name)
                return i;
        }
        return -1;
    }
    QString listed() const
    {
        QStringList names;
        const QAbstractItemModel *model = m_view->model();
        for (int i = 0; i < model->rowCount(); ++i)
            names.append(model->index(i, NameColumn).data().toString());
        return names.join(u' ');
    }

    void write(const QString &name, const QByteArray &text)
    {
        QFile file(m_dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    static QString read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    void hold(const char *state) { write(u"hold"_s, state); }
    void release() { QFile::remove(m_dir.filePath(u"hold"_s)); }

    QTemporaryDir m_dir;
    std::unique_ptr<MainWindow> m_window;
    View *m_view = nullptr;
};

QTEST_MAIN(TestMainWindow)
#include "test_mainwindow.moc"
