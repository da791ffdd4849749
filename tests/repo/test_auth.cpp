// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configroot.h"
#include "rows.h"

#include "repo/authchecker.h"
#include "repo/authdialog.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class TestAuth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        // A plus types both before; stored: how many repositories have both in their files then.
        columns<QString, QString, int, bool, bool>("answers", "asked", "stored", "quit", "changed");
        row("each by itself", "+ok +return +ok", "a b c", 3, false, true);
        row("all", "+applyAll", "a", 3, false, true);
        row("one host", "+applyHost skipAll", "a c", 2, false, true);
        row("what was answered stays", "+ok skipAll", "a b", 1, false, true);
        row("disabled", "disable +ok disable", "a b c", 1, false, true);
        row("quit", "+ok quit", "a b", 1, true, true);
        row("escape", "escape", "a", 0, false, false);
        row("closed", "close", "a", 0, false, false);
        row("nothing typed", "ok applyAll", "a b", 0, false, false);
    }

    void answers()
    {
        QFETCH(QString, answers);
        ConfigRoot root;
        const QByteArray before = "[main]\n[a]\nbaseurl=http://h/kivvet?user=&pw=&path=/a/\n"
                                  "[b]\nbaseurl=http://h/rhel/n=/k=/\n";
        root.put(root.mainFile(), before);
        root.put(root.repo(u"c"_s), "[c]\nbaseurl=http://x/rhel/n=/k=/\n");
        root.put(root.repo(u"off"_s), "[off]\nenabled=0\nbaseurl=http://h/rhel/n=/k=/\n"
                                      "[half]\nbaseurl=http://h/rhel/n=me/k=/\n");
        QFile::setPermissions(root.real(root.mainFile()),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
        QWidget window;
        QStringList left = answers.split(u' '), asked, wrong;
        QTimer person;
        person.callOnTimeout([&] {
            auto *dialog = window.findChild<RepoAuth::Dialog *>();
            if (dialog && dialog->isActiveWindow() && !left.isEmpty())
                answer(*dialog, left.takeFirst(), asked, wrong);
        });
        person.start(1);
        QApplication::setOverrideCursor(Qt::BusyCursor);
        const RepoAuth::Checker checker(&window, &root.io);
        QVERIFY(QApplication::overrideCursor());
        QApplication::restoreOverrideCursor();
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(wrong, QStringList());
        QTEST(asked.join(u' '), "asked");
        QTEST(checker.quit, "quit");
        QTEST(checker.changed, "changed");
        QCOMPARE(root.used.value(u"a"_s), !answers.startsWith(u"disable"_s));
        const QByteArray after = root.get(root.mainFile());
        QCOMPARE(after == before, !checker.changed);
        static const QRegularExpression both(u"=j%2fe[&/]\\w+=s%26c[&/]"_s);
        QTEST(int(QString::fromUtf8(after + root.get(root.repo(u"c"_s))).count(both)), "stored");
    }

private:
    static void answer(RepoAuth::Dialog &dialog, QString answer, QStringList &asked,
                       QStringList &wrong)
    {
        const auto text = [&](const char *label) {
            return dialog.findChild<QLabel *>(QLatin1String(label))->text();
        };
        asked += text("idLabel");
        if (QApplication::overrideCursor())
            wrong += u"the cursor is busy"_s;
        const QString warning = text("warningLabel");
        if (warning.contains(ConfigRoot::mainFile()) == (asked.last() == u"c") ||
            !warning.contains(ConfigRoot::repo(u"c"_s)) || warning.contains(u"off.repo"_s))
            wrong += u"it does not tell whose files lose their readers"_s;
        if (answer.startsWith(u'+')) {
            QTest::keyClicks(dialog.focusWidget(), u"j/e"_s);
            QTest::keyClick(&dialog, Qt::Key_Tab);
            QTest::keyClicks(dialog.focusWidget(), u"s&c"_s);
            const QString urls = text("baseurlLabel");
            if (!urls.contains(u"=j%2fe"_s) || urls.contains(u"=s"_s))
                wrong += urls;
            answer.remove(0, 1);
        }
        if (auto *button = dialog.findChild<QAbstractButton *>(answer + u"Button"_s))
            QTest::mouseClick(button, Qt::LeftButton);
        else if (answer == u"close")
            dialog.close();
        else
            QTest::keyClick(&dialog, answer == u"return" ? Qt::Key_Return : Qt::Key_Escape);
    }
};

QTEST_MAIN(TestAuth)
#include "test_auth.moc"
