// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configroot.h"
#include "repo/configdialog.h"
#include "repo/editordialog.h"
#include "repo/editormodel.h"
#include "repo/editorview.h"
#include "repo/linediff.h"
#include "repo/naturalorder.h"
#include "rows.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The editor on files, driven by keys and clicks.
struct Editor
{
    explicit Editor(ConfigRoot &root) : dialog(nullptr, &root.io, nullptr)
    {
        dialog.show();
        view = dialog.findChild<RepoEditor::View *>();
        view->setFocus();
    }
    void press(const char *name) { dialog.findChild<QPushButton *>(QLatin1String(name))->click(); }
    QString status() const { return dialog.findChild<QLabel *>(u"status"_s)->text(); }
    void keys(QList<int> list)
    {
        for (const int key : list)
            QTest::keyClick(view, Qt::Key(key & ~Qt::KeyboardModifierMask),
                            Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
    }
    // Types into the form that comes up, and presses its OK.
    void fillForm(const QString &id)
    {
        QTimer::singleShot(0, &dialog, [this, id] {
            auto *form = dialog.findChild<RepoEditor::ConfigDialog *>();
            QTest::keyClicks(form->focusWidget(), id);
            form->findChild<QPushButton *>(u"okButton"_s)->click();
        });
    }
    QStringList shown() const
    {
        QStringList ids;
        for (int row = 0; row < view->model()->rowCount(); ++row)
            ids += view->model()->index(row, RepoEditor::IdColumn).data().toString();
        return ids;
    }

    RepoEditor::Dialog dialog;
    RepoEditor::View *view;
};

} // namespace

class TestRepoEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    }

    void naturalOrder_data()
    {
        columns<QString, QString, bool>("one", "two", "less");
        row("number", "a9", "a10", true);
        row("text first", "a10", "b1", true);
        row("leading zeros", "a007", "a7", false);
        row("after the number", "a2b", "a2c", true);
        row("case by code", "B", "a", true);
        row("beginning", "a", "a1", true);
        row("other digits", "a\u0669", "a10", true);
        row("too long is 0", "a99999999999999999999", "a1", true);
    }

    void naturalOrder()
    {
        QFETCH(QString, one);
        QFETCH(QString, two);
        QTEST(naturalLessThan(one, two), "less");
        QVERIFY(!naturalLessThan(two, one));
    }

    void edits()
    {
        ConfigRoot root;
        const QString a = root.repo(u"a"_s), b = root.repo(u"b"_s);
        root.put(a, "# a\n[r10]\nbaseurl=http://one/\n\n[r9]\nenabled=0\n\n[r1]\nenabled=1\n");
        root.put(b, "[B]\nname=Other\n");
        const QByteArray before = root.get(a);
        Editor editor(root);
        const QAbstractItemModelTester proxyTester(editor.view->model());
        QSignalSpy changed(&editor.dialog, &RepoEditor::Dialog::reposChanged);
        QCOMPARE(editor.shown(), (QStringList{u"B"_s, u"r1"_s, u"r9"_s, u"r10"_s}));
        auto *edit = editor.dialog.findChild<QPushButton *>(u"editButton"_s);
        QVERIFY(QTest::qWaitForWindowActive(&editor.dialog) && editor.view->hasFocus());
        QVERIFY(!edit->isEnabled()); // until the user has made a row current

        // All selected rows get the state that the current one gets: r1 and r9 off, r10 as it was.
        editor.keys({Qt::Key_Home, Qt::Key_Right, Qt::Key_Down});
        editor.keys({Qt::Key_Down | int(Qt::ShiftModifier), Qt::Key_Down | int(Qt::ShiftModifier)});
        editor.keys({Qt::Key_Space});
        QVERIFY(edit->isEnabled());
        QCOMPARE(root.entry(u"r10"_s).enabled, Qt::Unchecked);
        QCOMPARE(root.entry(u"r1"_s).enabled, Qt::Unchecked);
        QCOMPARE(root.entry(u"B"_s).enabled, Qt::PartiallyChecked);
        QCOMPARE(editor.status(), u"Unapplied Configuration Changes"_s);

        editor.keys({Qt::Key_Delete});
        QCOMPARE(editor.shown(), QStringList{u"B"_s});
        QVERIFY(editor.status().contains(u"3 removed"_s));
        editor.press("resetAllButton");
        QCOMPARE(editor.shown().size(), 4);
        QCOMPARE(editor.status(), QString());

        // What is added is seen whatever was filtered, and where it is comes from its identifier.
        auto *filter = editor.dialog.findChild<QLineEdit *>(u"filter"_s);
        QTest::keyClicks(filter, u"HTTP://O"_s);
        QCOMPARE(editor.shown(), QStringList{u"r10"_s});
        editor.fillForm(u"new"_s);
        editor.keys({Qt::Key_Insert});
        QCOMPARE(filter->text(), QString());
        QCOMPARE(editor.shown().indexOf(u"r10"_s), 4); // in its place again
        QCOMPARE(editor.view->currentRow(), 4);
        QCOMPARE(root.get(a), before);
        editor.press("applyButton");
        QCOMPARE(editor.view->currentRow(), -1);
        QCOMPARE(root.get(root.repo(u"new"_s)), "[new]\n");
        QCOMPARE(root.get(a), before.mid(4));

        // Escape asks, and takes back only what was not applied.
        editor.fillForm(u"more"_s);
        editor.keys({Qt::Key_Insert});
        Answer keepThenDiscard(QList<int>{1, 0});
        QTest::keyClick(&editor.dialog, Qt::Key_Escape);
        QVERIFY(editor.dialog.isVisible() && changed.isEmpty());
        QTest::keyClick(&editor.dialog, Qt::Key_Escape);
        QVERIFY(!editor.dialog.isVisible());
        QCOMPARE(changed.size(), 1);
        QVERIFY(!root.has(root.repo(u"more"_s)));
    }

    void closes()
    {
        ConfigRoot root;
        root.put(root.repo(u"a"_s), "[a]\n");
        Editor editor(root);
        QSignalSpy changed(&editor.dialog, &RepoEditor::Dialog::reposChanged);
        const auto toggle = [&] {
            QTest::mouseClick(editor.view->viewport(), Qt::LeftButton, {},
                              editor.view->visualRect(editor.view->model()->index(0, 0)).center());
            return root.used.value(u"a"_s);
        };
        const QByteArray untidy = "[a]\n\n";
        root.put(root.repo(u"a"_s), untidy);
        QVERIFY(!toggle());
        QCOMPARE(editor.status(), u"Unapplied Session Changes"_s);
        editor.press("okButton");
        QCOMPARE(changed.size(), 1);
        editor.dialog.show();

        // What was applied stays, and writes nothing; the rest is asked for and taken back.
        QVERIFY(toggle() && !toggle());
        QCOMPARE(editor.status(), QString());
        QVERIFY(toggle());
        editor.press("applyButton");
        QCOMPARE(editor.status(), QString());
        QVERIFY(!toggle());
        editor.press("resetAllButton");
        QVERIFY(root.used.value(u"a"_s) && !toggle());
        Answer keepThenDiscard(QList<int>{1, 0});
        QTest::keyClick(&editor.dialog, Qt::Key_Escape);
        QVERIFY(editor.dialog.isVisible() && !root.used.value(u"a"_s));
        QTest::keyClick(&editor.dialog, Qt::Key_Escape);
        QVERIFY(changed.size() == 2 && root.used.value(u"a"_s));
        QCOMPARE(root.get(root.repo(u"a"_s)), untidy);

        root.used.insert(u"a"_s, false);
        editor.dialog.show();
        QVERIFY(toggle());
        editor.press("cancelButton");
        QVERIFY(changed.size() == 2 && !root.used.value(u"a"_s));
        editor.dialog.show();
        QVERIFY(toggle());
        editor.dialog.drop();
        QVERIFY(changed.size() == 2 && !editor.dialog.isVisible());
    }

    // Who may not write sees everything, the form too, and can change only what is used in this
    // session.
    void looksOnly()
    {
        ConfigRoot root;
        root.put(root.repo(u"a"_s), "[a]\n");
        root.io.setLookOnly(u"why"_s);
        Editor editor(root);
        editor.keys({Qt::Key_Home, Qt::Key_Space, Qt::Key_Right, Qt::Key_Space, Qt::Key_Delete,
                     Qt::Key_Insert});
        QCOMPARE(editor.shown(), QStringList{u"a"_s});
        QVERIFY(!root.used.value(u"a"_s) && root.entry(u"a"_s).enabled == Qt::PartiallyChecked);
        editor.press("applyButton");
        QVERIFY(editor.dialog.findChild<QPushButton *>(u"okButton"_s)->isEnabled());
        for (const char *name : {"addButton", "copyButton", "removeButton", "applyButton"}) {
            const auto *button = editor.dialog.findChild<QPushButton *>(QLatin1String(name));
            QVERIFY2(!button->isEnabled() && button->toolTip() == u"why"_s, name);
        }
        editor.fillForm(u"other"_s);
        QTimer::singleShot(0, &editor.dialog, [&] {
            editor.dialog.findChild<RepoEditor::ConfigDialog *>()->reject(); // without a question
        });
        editor.press("editButton");
        QCOMPARE(root.io.repos[0].id, u"a"_s);
    }

    void table()
    {
        ConfigRoot root;
        root.put(root.repo(u"a"_s), "[an-identifier-that-needs-more-room-than-others]\n");
        Editor editor(root);
        RepoEditor::View *view = editor.view;
        const int needed = view->sizeHintForColumn(RepoEditor::IdColumn);
        QVERIFY(view->columnWidth(RepoEditor::IdColumn) >= needed);

        for (int column = 0; column < RepoEditor::ColumnCount; ++column) {
            bool opened = false;
            QTimer::singleShot(0, view, [&] {
                opened = QApplication::activePopupWidget();
                if (opened)
                    QApplication::activePopupWidget()->close();
            });
            const QRect cell = view->visualRect(view->model()->index(0, column));
            view->handleCustomContextMenuRequested(cell.center());
            QCoreApplication::processEvents();
            QCOMPARE(opened, column >= RepoEditor::IdColumn);
        }

        QSignalSpy told(view->model(), &QAbstractItemModel::dataChanged);
        editor.fillForm(u"b"_s);
        editor.keys({Qt::Key_Home, Qt::Key_Return});
        QVERIFY(editor.shown() == QStringList{u"b"_s} && !told.isEmpty());
    }

    void badInput_data()
    {
        // said: of the box; written: the file afterwards, empty where nothing is written
        columns<QString, QString, QString, QString>("id", "name", "others", "said");
        QTest::addColumn<QByteArray>("written");
        const QByteArray none;
        row("white space", "n", " \tN", "\n  \n\nx=1\n\ny=2", "",
            QByteArray("[n]\nname=N\nx=1\ny=2\n"));
        row("blank", "a b", "", "", "DNF takes no Identifier with a blank", QByteArray("[a b]\n"));
        row("slash", "a/b", "", "", "the character /", QByteArray("[a/b]\n"));
        row("twins", "R", "", "", "differ in case only: r and R", QByteArray("[R]\n"));
        row("no option", "n", "", "x:1\n", "without \"=\"", QByteArray("[n]\nx:1\n"));
        row("indented head", "n", "", "x=1\n [y]\n", "head of a section",
            QByteArray("[n]\nx=1\n [y]\n"));
        row("main", "main", "", "", "\"main\" names", none);
        row("line feed", "a\nb", "", "", "the identifier holds a line break", none);
        row("in the name", "n", "a\nb=c", "", "the name holds a line break", none);
        row("head", "n", "", "x=1\n[y]\n", "\"[y]\" would be the head", none);
        row("continues", "n", "", " x=1\n", "would continue the line above", none);
        row("field", "n", "", "enabled=0\n", "a field of its own", none);
    }

    void badInput()
    {
        QFETCH(QString, id);
        QFETCH(QString, name);
        QFETCH(QString, others);
        QFETCH(QString, said);
        QFETCH(QByteArray, written);
        ConfigRoot root;
        root.put(root.repo(u"r"_s), "[r]\n");
        QVERIFY(root.io.read(nullptr));
        Repo::Entry entry;
        entry.id = id;
        entry.name = name;
        entry.otherOptions = others;
        root.io.repos += entry;
        const YumConfIO::Preview preview = root.io.preview();
        QCOMPARE(preview.refusals.isEmpty(), !written.isEmpty());
        Answer yes(0);
        QCOMPARE(root.io.write(nullptr), !written.isEmpty());
        QCOMPARE(yes.said.size(), said.isEmpty() ? 0 : 1);
        QVERIFY2(yes.said.join(QString()).contains(said), qPrintable(yes.said.join(QString())));
        const QString path = root.repo(QString(id).replace(u'/', u'_'));
        QCOMPARE(root.get(path), written.isEmpty() ? QByteArray("(none)") : written);
        if (written.isEmpty()) // everything is still to be edited
            QVERIFY(root.io.repos.last().id == id && root.io.repos.last().file.isEmpty());
        else
            QCOMPARE(preview.changes.last().after.toUtf8(), written);
    }

    void oneFileByTwoNames()
    {
        ConfigRoot root;
        root.put(root.repo(u"a"_s), "[one]\n\n[two]\n");
        QVERIFY(root.io.read(nullptr));
        root.entry(u"one"_s).file = u"/etc//yum.repos.d/a.repo"_s;
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(root.get(root.repo(u"a"_s)), "[one]\n\n[two]\n");
    }

    void differences_data()
    {
        columns<QString, QString, QString>("one", "two", "text");
        row("in between", "abcde", "axcef", "a-b+xc-de+f");
        row("only added", "ab", "xaybz", "+xa+yb+z");
        row("all", "ab", "", "-a-b");
        row("both ends alike", "aaa", "aa", "aa-a");
    }

    void differences()
    {
        QFETCH(QString, one);
        QFETCH(QString, two);
        QString text;
        for (const DiffLine &line : diffLines(one.split(QString(), Qt::SkipEmptyParts),
                                              two.split(QString(), Qt::SkipEmptyParts)))
            text += line.kind == DiffLine::Added     ? QString(u'+') + two[line.after]
                    : line.kind == DiffLine::Removed ? QString(u'-') + one[line.before]
                                                     : QString(one[line.before]);
        QTEST(text, "text");
    }

    void status_data()
    {
        columns<QStringList, QString>("added", "status");
        row("none", QStringList(), "");
        row("change", QStringList{u"b"_s}, "Unapplied Configuration Changes");
        row("twice", QStringList{u"b"_s, u"A"_s, u"b"_s, u"a"_s},
            "Two or more repositories have the Identifier, a");
        row("empty first", QStringList{u"a"_s, QString()}, "A repository has no Identifier");
    }

    void status()
    {
        QFETCH(QStringList, added);
        ConfigRoot root;
        root.put(root.repo(u"a"_s), "[a]\n");
        Editor editor(root);
        auto *model = editor.dialog.findChild<RepoEditor::Model *>();
        const QAbstractItemModelTester tester(model);
        for (const QString &id : added) {
            Repo::Entry entry;
            entry.id = id;
            const int row = model->addRow(entry);
            model->toggleEnabled(model->index(row, RepoEditor::PermColumn));
        }
        QTEST(editor.status(), "status");
        QCOMPARE(editor.dialog.findChild<QPushButton *>(u"applyButton"_s)->isEnabled(),
                 !added.isEmpty());
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(TestRepoEditor)
#include "test_repoeditor.moc"
