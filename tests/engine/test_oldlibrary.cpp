#include "scenariocase.h"

#include <QTest>

// A script over a library without group objects: groups are names that the group information knows
// more about.
class TestOldLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_case.start()); }
    void capabilities();
    void groups();
    void groupsThatAreNotThere_data();
    void groupsThatAreNotThere();
    void changeLogIsAnAttribute();

private:
    ScenarioCase m_case;
};

void TestOldLibrary::capabilities()
{
    QCOMPARE(m_case.engine.yumVersion(), 20200);
    QVERIFY(!m_case.engine.hasDistribGroups() && !m_case.engine.hasSqliteCache());
    QVERIFY(m_case.engine.hasTransTest() && m_case.engine.hasPickledCache());
}

void TestOldLibrary::groups()
{
    Answers answers;
    QVERIFY(m_case.collect(
        "updates = [Package('old', '2')]\n"
        "installed = [Package('old', '1'), Package('new')]\n"
        "def collectGroupInfo(io):\n"
        "    names = 'stale', 'inner', 'outer', 'absent', 'fresh'\n"
        "    none = dict.fromkeys(names, ())\n"
        "    return types.SimpleNamespace(\n"
        "        visible_groups=['inner', 'outer', 'stale', 'absent', 'fresh', 'fresh'],\n"
        "        group_installed=dict(dict.fromkeys(names, 1), absent=0),\n"
        "        sub_groups=dict(none, outer=['fresh', 'inner', 'elsewhere'], fresh=None),\n"
        "        mandatory_pkgs=dict(none, inner=['new', 'old'], fresh=['new'], absent=['old']),\n"
        "        default_pkgs=dict(none, fresh=['second', 'first']), optional_pkgs=none,\n"
        "        default_metapkgs=dict(none, fresh=['meta']), optional_metapkgs=none)\n"));
    QCOMPARE(m_case.rows().filter(QRegularExpression(QStringLiteral("^1"))),
             QStringLiteral("10 inner|10 outer|11 absent|12 fresh|12 stale").split(u'|'));
    const Package::Entry &fresh = *m_case.row(QStringLiteral("fresh"));
    const Package::Entry &outer = *m_case.row(QStringLiteral("outer"));
    QCOMPARE(m_case.engine.getRequiredGroups(outer), QStringLiteral("elsewhere\nfresh\ninner"));
    QCOMPARE(m_case.engine.getDefaultMetaPkgs(fresh), QStringLiteral("meta"));
    QCOMPARE(m_case.engine.getMandatoryPkgs(fresh), QStringLiteral("new"));
    QCOMPARE(m_case.engine.getDefaultPkgs(fresh), QStringLiteral("first\nsecond"));
    QCOMPARE(m_case.engine.getOptionalPkgs(fresh), QString());
    QCOMPARE(m_case.engine.getConditionalPkgs(fresh), QString());
    QCOMPARE(answers.texts(), QStringList());
}

void TestOldLibrary::groupsThatAreNotThere_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("text");

    QTest::newRow("no flags") << QByteArray("visible_groups=['g']")
                              << QStringLiteral("Internal error: cannot find "
                                                "groupInfo.group_installed['g']");
    QTest::newRow("no flag") << QByteArray("visible_groups=['g'], group_installed={}")
                             << QStringLiteral("Internal error: cannot find "
                                               "groupInfo.group_installed['g']");
    QTest::newRow("no lists") << QByteArray("visible_groups=['g'], group_installed={'g': 1},"
                                            "mandatory_pkgs={'g': []}")
                              << QStringLiteral(
                                     "Internal error: groupInfo.sub_groups not evaluable");
    QTest::newRow("no list") << QByteArray("visible_groups=['g'], group_installed={'g': 1},"
                                           "mandatory_pkgs={}, sub_groups={'g': []}")
                             << QStringLiteral(
                                    "Internal error: groupInfo.mandatory_pkgs[g] not evaluable");
}

void TestOldLibrary::groupsThatAreNotThere()
{
    QFETCH(QByteArray, info);

    Answers answers;
    // A group without a flag ends the collection, one without lists is up to date.
    QCOMPARE(
        m_case.collect("def collectGroupInfo(io): return types.SimpleNamespace(" + info + ")\n"),
        info.contains("mandatory_pkgs"));
    QTEST(answers.texts().join(u'|'), "text");
}

void TestOldLibrary::changeLogIsAnAttribute()
{
    Answers answers;
    QVERIFY(m_case.collect("available = [Package('p', changelog=[(0, 'me', 'did')])]\n"));
    QCOMPARE(m_case.engine.getChangeLog(*m_case.row(QStringLiteral("p"))),
             QStringLiteral("* Thu Jan  1 1970 me\ndid"));
    QCOMPARE(answers.texts(), QStringList());
}

QTEST_MAIN(TestOldLibrary)
#include "test_oldlibrary.moc"
