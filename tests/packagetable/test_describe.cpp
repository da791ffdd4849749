// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/describe.h"
#include "packagetable/filetree.h"
#include "packagetable/view.h"
#include "rows.h"
#include "tablecase.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>

using namespace PackageTable;

class TestDescribe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("VOK_TEST_HOLD", QFile::encodeName(m_hold));
        QVERIFY(m_case.start());
    }

    void init()
    {
        m_case.engine.clear(); // with it goes what was loaded
        QVERIFY(m_case.engine.collect({}));
        m_case.model->reset();
    }

    // A password in a URL is seen nowhere, on no page and in no tip.
    void pagesFitTheRow_data()
    {
        columns<QString>("pages");
        row("alpha", "description update details relations files changes requiredBy");
        row("beta", "description details relations files changes");
        row("echo", "description details relations files changes requiredBy");
        row("Attic", "description members details");
    }

    void pagesFitTheRow()
    {
        const QString name = s(QTest::currentDataTag());
        Describe::Dialog dialog(nullptr);
        show(dialog, name);
        QStringList pages;
        QString texts = dialog.windowTitle();
        auto *tabs = dialog.findChild<QTabWidget *>();
        for (int i = 0; i < tabs->count(); ++i) {
            if (!tabs->isTabVisible(i))
                continue;
            pages.append(tabs->widget(i)->objectName().remove(s("Page")));
            tabs->setCurrentIndex(i);
            for (QWidget *widget : dialog.findChildren<QWidget *>())
                texts += widget->toolTip() + textIn(widget) + u'\n';
        }
        QTEST(pages.join(u' '), "pages");
        QVERIFY2(!texts.contains(s("secret")), qPrintable(texts));
        QCOMPARE(texts.contains(s("https://u:******@h/")), name == s("beta"));
        if (auto *members = dialog.findChild<QTreeWidget *>(); name == s("Attic"))
            QCOMPARE(members->topLevelItem(0)->child(0)->text(1), s("Available for update"));
    }

    // Whatever ends the loading of a page, the page says it, or shows what was loaded.
    void loads_data()
    {
        columns<QString>("text");
        row("done", "There is no change log.");
        row("cancelled", "The change logs are not loaded.\n\nLoading was cancelled.");
        row("failed", "no mirror");
        row("closed", "Cancelling. The repository that is being read is read to its end");
    }

    void loads()
    {
        QFETCH(QString, text);
        const QString how = s(QTest::currentDataTag());
        Describe::Dialog dialog(nullptr);
        show(dialog, s("beta"));
        Answers boxes;
        QFile hold(m_hold);
        QVERIFY(hold.open(QIODevice::WriteOnly));
        hold.write(how == s("failed") ? "otherdata fails" : "otherdata");
        hold.close();
        QTimer held;
        connect(&held, &QTimer::timeout, &dialog, [&] {
            if (!QFile::exists(m_hold + s(".held")))
                return;
            held.stop();
            QVERIFY(dialog.isEnabled() && dialog.isLoading());
            if (how == s("cancelled"))
                dialog.findChild<QPushButton *>(s("describeCancelButton"))->click();
            else if (how == s("closed"))
                dialog.reject();
            else
                QFile::remove(m_hold);
        });
        held.start(10);
        auto *page = dialog.findChild<QStackedWidget *>(s("changesPage"));
        dialog.findChild<QTabWidget *>()->setCurrentWidget(page);
        QFile::remove(m_hold);
        QVERIFY(!dialog.isLoading());
        QCOMPARE(dialog.isVisible(), how != s("closed"));
        const QString said = textIn(page->focusProxy());
        QVERIFY2(said.contains(text), qPrintable(said));
        QCOMPARE(page->findChild<QPushButton *>()->isVisible(),
                 how == s("cancelled") || how == s("failed"));
        QVERIFY2(boxes.shown.isEmpty(), qPrintable(boxes.texts().join(u'\n')));
    }

    // The rows follow each other as the table has them, and the page that was open stays so.
    void steps()
    {
        View view(m_case.model.get(), m_case.proxy.get(), nullptr);
        view.sortByColumn(NameColumn, Qt::DescendingOrder);
        view.setCurrentIndex(m_case.proxy->index(0, NameColumn));
        QStringList seen;
        QTimer::singleShot(0, &view, [&] {
            auto *dialog = qobject_cast<Describe::Dialog *>(QApplication::activeModalWidget());
            auto *tabs = dialog->findChild<QTabWidget *>();
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            tabs->setCurrentWidget(dialog->findChild<QWidget *>(s("relationsPage")));
            for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}) {
                QTest::keyClick(dialog, key, Qt::AltModifier);
                seen.append(dialog->findChild<QLabel *>(s("nameLabel"))->text() + u' ' +
                            tabs->currentWidget()->objectName());
            }
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        view.describe();
        const QStringList names = m_case.listed().split(u' ');
        const QString page = s(" relationsPage");
        QCOMPARE(seen, QStringList({names[0] + page, names[1] + page, names[2] + page}));
        QCOMPARE(view.currentIndex().row(), 2);
    }

    void changesSince_data()
    {
        columns<QString, QString, QString>("newer", "older", "found");
        const QString june3 = s("* Mon Jun  3 2024 A <a@b> - 1\n- one\n\n* two");
        const QString top = s("* Tue Jun  4 2024 A <a@b> - 2\n- three");
        const QString again = s("* Fri Jun  7 2024 A <a@b> - 2\n- three");
        const QString gap = s("\n\n");
        row("newer above", top + gap + june3, june3, top);
        row("cut below", top, top + gap + june3, QString());
        row("the same words again", again + gap + top, top, again);
        row("nothing in common", top, june3, top);
    }

    void changesSince()
    {
        QFETCH(QString, newer);
        QFETCH(QString, older);
        QTEST(Describe::changesSince(newer, older).join(s("\n\n")), "found");
    }

    // Every path is found once, below its folders, however their names sort.
    void filesAsATree()
    {
        FileTreeModel model(nullptr);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QStringList paths = {s("/usr/a"), s("/usr/a-b/c"), s("/usr/a/b"), s("/usr/a/d/e")};
        model.setPaths(paths);
        QCOMPARE(leaves(model), s("/usr/a/b /usr/a/d/e /usr/a-b/c"));
        model.setFilter(s("A/D"));
        QCOMPARE(leaves(model), s("/usr/a/d/e"));
        QCOMPARE(model.data(model.index(0, 0)).toString(), s("/usr/a/d/"));
    }

private:
    void show(Describe::Dialog &dialog, const QString &name)
    {
        dialog.config(&m_case.engine, m_case.entry(name), nullptr);
        dialog.show();
        QCoreApplication::processEvents();
    }

    static QString textIn(QWidget *widget)
    {
        if (auto *label = qobject_cast<QLabel *>(widget))
            return label->text();
        if (auto *text = qobject_cast<QTextEdit *>(widget))
            return text->toPlainText();
        auto *text = qobject_cast<QPlainTextEdit *>(widget);
        return text ? text->toPlainText() : QString();
    }

    static QString leaves(const QAbstractItemModel &model, const QModelIndex &parent = {})
    {
        QStringList found;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            found.append(model.rowCount(index) ? leaves(model, index)
                                               : FileTreeModel::pathOf(index));
        }
        return found.join(u' ');
    }

    QTemporaryDir m_dir;
    QString m_hold = m_dir.filePath(s("hold"));
    TableCase m_case;
};

QTEST_MAIN(TestDescribe)
#include "test_describe.moc"
