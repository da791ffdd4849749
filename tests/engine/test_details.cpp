// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "scripted.h"

namespace {

using Getter = QString (YumIO::*)(const Package::Entry &);

} // namespace

Q_DECLARE_METATYPE(Getter)

// What is asked of a package's object when somebody wants to see it.
class TestDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_case.start()); }
    void texts_data()
    {
        columns<QByteArray, Getter, QString, QString>("package", "getter", "text", "complaint");

        const auto row = [](const char *package, Getter getter, const char *text,
                            const char *complaint = "") {
            QTest::addRow("%s %s", QByteArray(package).replace("\n", ";").constData(),
                          qPrintable(QString::fromUtf8(text).section(u'\n', 0, 0)))
                << QByteArray(package) << getter << QString::fromUtf8(text)
                << QString::fromUtf8(complaint);
        };
        row("fields={'description': 'one\\ntwo\\n\\n'}", &YumIO::getDescription, "one\ntwo");
        row("fields={'description': b'as bytes'}", &YumIO::getDescription, "as bytes");
        row("fields={'license': ['a', ('b', 3), []]}", &YumIO::getLicense, "(a,\n (b,3),\n )");
        row("relativepath=1, fields={'relativepath': 'p.rpm'}", &YumIO::getBinaryRpm, "p.rpm");
        row("hdr=Header(INSTALLTIME=1000000000)", &YumIO::getInstallTime,
            "Sun Sep  9 01:46:40 2001");
        row("hdr=Header(PREFIXES=['/usr', '/opt'])", &YumIO::getRelocations, "/usr\n/opt");

        row("hdr=Header(REQUIRENAME=['z', 'libc', 'b', 'a', 'n'], REQUIREFLAGS=[12, 2, 8, 0, 4],\n"
            " REQUIREVERSION=['1.2', '3', '1', '', None])",
            &YumIO::getRequires, "a\nb = 1\nlibc < 3\nn\nz >= 1.2");
        row("returnPrco=lambda key: [('n', None, None), ('e0', 'GE', ('0', '1', '2')),\n"
            " ('e1', 'LT', ('1', '1', None)), ('odd', '~', (None, '1', '2'))] if key == "
            "'conflicts' "
            "else 0",
            &YumIO::getConflicts, "e0 >= 1-2\ne1 < 1:1\nn\nodd ~ 1-2");
        row("hdr=Header(BASENAMES=['b', 'a', 'b', 'lost'], DIRNAMES=['/x/', '/y/'],\n"
            " DIRINDEXES=[1, 0, 1, 7])",
            &YumIO::getFiles, "/x/a\n/y/b");
        row("files=(), returnFileEntries=lambda kind: ['/b', '/a', '/b'] if kind == 'file' else []",
            &YumIO::getFiles, "/a\n/b");
        row("_loadFiles=0, returnFileEntries=lambda kind: None[0]", &YumIO::getFiles, "",
            "Internal error: python exception occurred from C code.|"
            "Internal error: cannot find package's files");

        row("hdr=Header(CHANGELOGNAME=['me', 'you'], CHANGELOGTIME=[1000000000, 0],\n"
            " CHANGELOGTEXT=['- one\\n- two', '- begun'])",
            &YumIO::getChangeLog,
            "* Sun Sep  9 2001 me\n- one\n- two\n\n* Thu Jan  1 1970 you\n- begun");
        row("changelog=(), returnChangelog=lambda: [('86400', 'me', 'x'), (0, 'you', 'y')]",
            &YumIO::getChangeLog, "* Fri Jan  2 1970 me\nx\n\n* Thu Jan  1 1970 you\ny");
        row("", &YumIO::getChangeLog, "", "Internal error: cannot find package's changelog");
    }

    void texts()
    {
        QFETCH(QByteArray, package);
        QFETCH(Getter, getter);
        QFETCH(QString, complaint);

        Answers answers;
        QVERIFY(m_case.collect("available = [Package('p', " + package + ")]\n"));
        QTEST((m_case.engine.*getter)(*m_case.row(QStringLiteral("p"))), "text");
        QStringList complaints;
        for (const QString &text : answers.texts())
            complaints.append(text.section(u'\n', 0, 0));
        QCOMPARE(complaints.join(u'|'), complaint);
    }

    void groups()
    {
        Answers answers;
        QVERIFY(m_case.collect("groups = [Group('g', mandatory=['b', 'a'], default=['d'],\n"
                               "                conditional={'c': 'd'})]\n"));
        const Package::Entry &group = *m_case.row(QStringLiteral("@g"));
        QCOMPARE(m_case.engine.getMandatoryPkgs(group), QStringLiteral("a\nb"));
        QCOMPARE(m_case.engine.getDefaultPkgs(group), QStringLiteral("d"));
        QCOMPARE(m_case.engine.getOptionalPkgs(group), QString());
        QCOMPARE(m_case.engine.getConditionalPkgs(group), QStringLiteral("c"));
        QCOMPARE(m_case.engine.getConditions(group).value(QStringLiteral("c")),
                 QStringLiteral("d"));
        // What only packages have is nothing to complain about.
        for (Getter getter : {&YumIO::getDescription, &YumIO::getBinaryRpm, &YumIO::getInstallTime,
                              &YumIO::getFiles, &YumIO::getChangeLog})
            QCOMPARE((m_case.engine.*getter)(group), QString());
        QCOMPARE(m_case.engine.getYumVar(QStringLiteral("basearch")), QStringLiteral("x86_64"));
        QCOMPARE(answers.texts(), QStringList());
    }

    void extraDataIsLoadedOnce()
    {
        Answers answers;
        const QByteArray scenario =
            "available = [Package('p', files=(), changelog=(), returnChangelog=list,\n"
            "                     returnFileEntries=lambda kind: ['/f'])]\n";
        for (int i = 0; i < 2; ++i) {
            QVERIFY(m_case.collect(scenario));
            QVERIFY(!m_case.engine.hasFileLists() && !m_case.engine.hasOtherData());
            const Package::Entry &entry = *m_case.row(QStringLiteral("p"));
            for (int j = 0; j < 2; ++j) {
                QCOMPARE(m_case.engine.getFiles(entry), QStringLiteral("/f"));
                QCOMPARE(m_case.engine.getChangeLog(entry), QString());
            }
            QVERIFY(m_case.engine.hasFileLists() && m_case.engine.hasOtherData());
            QCOMPARE(m_case.calls().count(QStringLiteral("collectFileLists")), 1);
            QCOMPARE(m_case.calls().count(QStringLiteral("collectOtherData")), 1);
        }
        QCOMPARE(answers.texts(), QStringList());
    }

    void extraDataThatFails()
    {
        Answers answers;
        QVERIFY(m_case.collect("available = [Package('p', files=(), changelog=())]\n"
                               "def collectFileLists(io): raise NoMoreMirrorsRepoError('404')\n"
                               "def collectOtherData(io): raise ValueError()\n"));
        const Package::Entry &entry = *m_case.row(QStringLiteral("p"));
        QCOMPARE(m_case.engine.getFiles(entry), QString());
        QCOMPARE(m_case.engine.getChangeLog(entry), QString());
        QVERIFY(!m_case.engine.hasFileLists() && !m_case.engine.hasOtherData());
        QCOMPARE(answers.texts().size(), 3);
        QCOMPARE(answers.texts()[0],
                 QStringLiteral("Unable to collect filelists: metadata unavailable from all repo "
                                "mirrors:\n404"));
        QCOMPARE(answers.texts()[2],
                 QStringLiteral("Internal error: execution of yumIO.collectOtherData failed"));
        QVERIFY(!m_case.totalBar.isEnabled());
    }

private:
    Scripted m_case;
};

QTEST_MAIN(TestDetails)
#include "test_details.moc"
