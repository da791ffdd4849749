// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "scripted.h"

// The script's group Tools holds alpha (updatable) and beta (installable) as mandatory, gamma
// (installed) as default, delta (installable) as optional member, zeta where beta is, and eta where
// something unknown is. More holds alpha, gamma and beta.
class TestGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_case.start("shop.py")); }

    void marksMembers_data()
    {
        columns<QStringList, QString, QString, QStringList>("marks", "lists", "noted", "log");
        using L = QStringList;
        row("install", L{s("@Tools install")}, s("['beta', 'zeta'] ['alpha'] []"),
            s("[('Tools', 1)]"),
            L{s("For group Tools, marking package alpha for Update"),
              s("For group Tools, marking package beta for Install"),
              s("For group Tools, marking package zeta for Install")});
        row("update", L{s("@Tools update")}, s("['beta'] ['alpha'] []"), s("[('Tools', 0)]"),
            L{s("For group Tools, marking package alpha for Update"),
              s("For group Tools, marking package beta for Install"),
              s("For group Tools, not marking package delta for Install, becuase the package "
                "is optional")});
        row("remove", L{s("@Tools remove")}, s("[] [] ['alpha', 'gamma']"), s("[('Tools', 2)]"),
            L{s("For group Tools, marking package alpha for Remove"),
              s("For group Tools, marking package gamma for Remove")});
        row("marked before", L{s("@Tools update"), s("beta install")}, s("['beta'] ['alpha'] []"),
            s("[('Tools', 0)]"),
            L{s("For group Tools, package beta already was marked for Install")});
    }

    void marksMembers()
    {
        QFETCH(QStringList, marks);
        QFETCH(QString, lists);
        QFETCH(QString, noted);
        QFETCH(QStringList, log);
        Answers answers;
        m_case.apply(marks, s(R"(
yumIOC.log(9, '%s %s %s' % (sorted(p.name for p in installs), sorted(p[0].name for p in updates),
                            sorted(p.name for p in removes)))
yumIOC.log(9, 'noted %r' % io.noted)
)"),
                     answers);
        const QStringList logged = m_case.logged();
        QVERIFY2(logged.contains(s("0/9 ") + lists), qPrintable(logged.join(u'|')));
        QVERIFY(logged.contains(s("0/9 noted ") + noted));
        for (const QString &line : std::as_const(log))
            QVERIFY2(logged.contains(s("0/2 ") + line), qPrintable(line));
        QCOMPARE(answers.texts(), QStringList());
        QVERIFY(m_case.row(s("alpha"))->action == Package::Action::None);
    }

    void asksAboutConflicts_data()
    {
        // lists: empty when the apply was stopped
        columns<QString, QString, QString, QString>("group", "mark", "button", "lists");
        row("the group's way", "Update", "Remove", "Update", "['beta'] ['alpha'] []");
        row("the mark's way", "Update", "Remove", "Remove", "['beta'] [] ['alpha']");
        row("cancel", "Update", "Remove", "Cancel", "");
        row("removal", "Remove", "Update", "Remove", "['beta'] [] ['alpha', 'gamma']");
        row("update kept", "Remove", "Update", "Update", "['beta'] ['alpha'] ['gamma']");
    }

    void asksAboutConflicts()
    {
        QFETCH(QString, group);
        QFETCH(QString, mark);
        QFETCH(QString, button);
        QFETCH(QString, lists);
        Answers answers({button});
        QStringList marks{s("@Tools ") + group.toLower(), s("alpha ") + mark.toLower()};
        if (group == s("Remove"))
            marks.append(s("beta install")); // which is not installed, so nothing is asked
        m_case.apply(marks, reporting(), answers);
        QCOMPARE(answers.texts(),
                 QStringList(s("Package alpha is included in group Tools which was marked for "
                               "%1,\nso the package would be marked for %1,\nbut it was "
                               "marked individually for %2.\nHow do you wish to proceed?")
                                 .arg(group, mark)));
        QCOMPARE(answers.shown[0].buttons, QStringList({group, mark, s("Cancel")}));
        const QStringList reports = m_case.logged().filter(s("lists "));
        QCOMPARE(reports, lists.isEmpty() ? QStringList() : QStringList(s("0/9 lists ") + lists));
    }

    // Two groups: the second asks by what the first did, or by how the first was answered. Which
    // group is the first follows the table's order.
    void asksAboutOtherGroups()
    {
        QVERIFY(m_case.mark({}));
        QStringList groups;
        for (const Package::Entry *row : m_case.engine) {
            if (row->kind == Package::Kind::Group)
                groups.append(row->name);
        }
        QCOMPARE(groups.size(), 2);
        for (const bool answered : {false, true}) {
            QStringList marks{u'@' + groups[0] + (answered ? s(" update") : s(" remove")),
                              u'@' + groups[1] + s(" update")};
            if (answered)
                marks.append(s("alpha remove"));
            Answers answers({s("Remove"), s("Remove"), s("Remove")});
            m_case.apply(marks, reporting(), answers);
            const QString expected =
                s("Package alpha is included in group %1 which was marked for Update,\n"
                  "so the package would be marked for Update,\n")
                    .arg(groups[1]) +
                (answered ? s("but you resolved an earlier conflict by marking it for Remove.\n")
                          : s("but it also was part of group %1 and so was marked for Remove.\n")
                                .arg(groups[0])) +
                s("How do you wish to proceed?");
            const QStringList aboutAlpha = answers.texts().filter(s("Package alpha "));
            QCOMPARE(aboutAlpha.size(), answered ? 2 : 1);
            QCOMPARE(aboutAlpha.constLast(), expected);
        }
    }

    void endsWithAReport_data()
    {
        QTest::addColumn<QString>("tree");
        QTest::addColumn<QString>("report");
        QTest::newRow("no names") << s("5")
                                  << s("Internal error: python exception occurred from C");
        QTest::newRow("refused") << s("(_ for _ in ()).throw(YumBaseError('no tree'))")
                                 << s("no tree\nUnable to find the packages that ");
    }

    void endsWithAReport()
    {
        QFETCH(QString, tree);
        QFETCH(QString, report);
        Answers answers;
        QVERIFY(!m_case.apply({s("@Tools install")}, s("# pkgTree ") + tree, answers));
        QCOMPARE(answers.shown.size(), 1);
        QVERIFY2(answers.texts()[0].startsWith(report), qPrintable(answers.texts()[0]));
    }

private:
    static QString reporting()
    {
        return s("yumIOC.log(9, 'lists %s %s %s' % (sorted(p.name for p in installs),\n"
                 "    sorted(p[0].name for p in updates), sorted(p.name for p in removes)))");
    }

    Scripted m_case;
};

QTEST_MAIN(TestGroups)
#include "test_groups.moc"
