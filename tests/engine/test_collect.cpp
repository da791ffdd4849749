#include "scenariocase.h"

#include <QTest>
#include <QThread>

#include <csignal>
#include <pthread.h>

namespace {

bool isSigchldBlocked()
{
    sigset_t mask;
    pthread_sigmask(SIG_SETMASK, nullptr, &mask);
    return sigismember(&mask, SIGCHLD) == 1;
}

bool isSigintDefault()
{
    struct sigaction action;
    return ::sigaction(SIGINT, nullptr, &action) == 0 && action.sa_handler == SIG_DFL;
}

// A method of the script with a dialog in its middle, to look at the program.
QByteArray lookingAround(const char *method)
{
    return QByteArray("def ") + method + "(io):\n    yumIOC.keyQuestion('probe', '', '', '')\n";
}

const QString unexpected =
    QStringLiteral("Internal error: python exception occurred from C code.\n"
                   "When reporting this issue, please include the contents of the\n"
                   "Log window, which should contain a walkback.");

} // namespace

// Collections over the scripted packages of scenario/.
class TestCollect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void lockIsTakenOnce(); // the first that collects
    void rows_data();
    void rows();
    void fields();
    void oddValues_data();
    void oddValues();
    void groups();
    void repositories();
    void failures_data();
    void failures();
    void steps();
    void whileAJobRuns();
    void quitDuringAJob();
    void refusedSession();
    void clearing();
    void probes();

private:
    std::unique_ptr<ScenarioCase> m_owned = std::make_unique<ScenarioCase>();
    ScenarioCase &m_case = *m_owned;
};

void TestCollect::initTestCase()
{
    QVERIFY(m_case.start());
    QVERIFY(m_case.engine.initialize());
    QCOMPARE(m_case.calls().count(QStringLiteral("script run")), 1);
}

void TestCollect::cleanupTestCase()
{
    Answers answers;
    QVERIFY(m_case.collect("installed = [Package('p')]\n"
                           "def unlock(io): raise LockError('stolen')\n"));
    m_owned.reset();
    QCOMPARE(answers.texts(), QStringList(QStringLiteral("stolen\nUnable to release yum lock")));
}

void TestCollect::lockIsTakenOnce()
{
    Answers answers;
    QVERIFY(!m_case.collect("def lock(io): raise LockError('held by yum, process 42')\n"));
    QVERIFY(!m_case.collect("def lock(io): raise ValueError()\n"));
    QCOMPARE(answers.texts(),
             QStringList({QStringLiteral("held by yum, process 42\nUnable to obtain yum lock"),
                          unexpected}));
    QVERIFY(m_case.collect(""));
    QCOMPARE(m_case.calls().count(QStringLiteral("lock")), 1);
    QVERIFY(m_case.collect(""));
    QCOMPARE(m_case.calls().count(QStringLiteral("lock")), 0);
}

void TestCollect::rows_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QStringList>("rows");

    const auto row = [](const char *name, const char *scenario, const QStringList &rows) {
        QTest::newRow(name) << QByteArray(scenario) << rows;
    };
    const auto text = [](const char *line) { return QString::fromLatin1(line); };
    row("nothing", "", {});
    row("update before installed and available",
        "updates = [Package('p', '2-1', repo='new')]\n"
        "installed = [Package('p', '1-1', repo='installed'), Package('q', repo='installed')]\n"
        "available = [Package('p', '2-1', repo='new'), Package('q'), Package('r')]\n",
        {text("20 p 2-1 x86_64 x86_64 new < 1-1 x86_64"), text("21 r 1-1 x86_64 x86_64 base"),
         text("22 q 1-1 x86_64 x86_64 installed")});
    row("several installed versions",
        "updates = [Package('k', '4')]\n"
        "installed = [Package('k', '3'), Package('k', '2'), Package('k', '1'),\n"
        "             Package('l', '2'), Package('l', '1')]\n",
        {text("20 k 4 x86_64 x86_64 base < 3 x86_64 < 2 x86_64 < 1 x86_64"),
         text("22 l 2 x86_64 x86_64 base < 1 x86_64")});
    row("families",
        "installed = [Package('p', '1', 'i686')]\n"
        "available = [Package('p', '2', 'x86_64'), Package('p', '9', 'i586'),\n"
        "             Package('p', '1', 'ppc64')]\n",
        {text("21 p 1 ppc64 ppc64 base dup"), text("21 p 2 x86_64 x86_64 base"),
         text("22 p 1 i686 i386 base dup")});
    row("noarch becomes specific, not the reverse",
        "def getBiArch(io, arch): return arch\n"
        "updates = [Package('a', '2', 'noarch'), Package('b', '2', 'x86_64')]\n"
        "installed = [Package('a', '1', 'x86_64'), Package('b', '1', 'noarch')]\n",
        {text("20 a 2 noarch noarch base < 1 x86_64"), text("20 b 2 x86_64 x86_64 base"),
         text("22 b 1 noarch noarch base dup")});
    row("suite",
        "available = [Package('s', fields={'group': 'Suite'}),\n"
        "             Package('t', fields={'group': 'Suites'})]\n",
        {text("01 s 1-1 x86_64 x86_64 base"), text("21 t 1-1 x86_64 x86_64 base")});
}

// The single calls and the one call give the same.
void TestCollect::rows()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QStringList, rows);

    Answers answers;
    for (const char *way : {"rows = False\n", "rows = True\n"}) {
        QVERIFY(m_case.collect(way + scenario));
        QCOMPARE(m_case.rows(), rows);
        QCOMPARE(m_case.engine.count(), int(rows.size()));
        QCOMPARE(m_case.calls().contains(QStringLiteral("collectAll")), way[7] == 'F');
        QCOMPARE(m_case.complaints(), QStringList());
    }
    QCOMPARE(answers.texts(), QStringList());
}

void TestCollect::fields()
{
    Answers answers;
    for (const char *way : {"rows = False\n", "rows = True\n"}) {
        QVERIFY(m_case.collect(
            way + QByteArray("available = [Package('p', '3:1-2', size=10189, fields={\n"
                             "    'summary': 'Gr\\u00fc\\u00dfe \\U0001f980 \\udc80\\n\\n',\n"
                             "    'buildtime': 1000000000})]\n")));
        const Package::Entry &entry = *m_case.row(QStringLiteral("p"));
        QCOMPARE(entry.action, Package::Action::None);
        QCOMPARE(m_case.engine.getVerRel(entry), QStringLiteral("3:1-2"));
        QCOMPARE(entry.size, 10189);
        QCOMPARE(m_case.engine.getSize(entry), QStringLiteral("10Kb"));
        QCOMPARE(entry.buildTime, 1000000000);
        QCOMPARE(m_case.engine.getBuildTime(entry), QStringLiteral("Sun Sep  9 01:46:40 2001"));
        QCOMPARE(m_case.engine.getSummary(entry), QStringLiteral(u"Gr\u00fc\u00dfe \U0001f980 ?"));
        QCOMPARE(m_case.engine.getState(entry), QStringLiteral("Available for installation"));
        QCOMPARE(m_case.engine.getKind(entry), QStringLiteral("Ordinary package"));
    }
    QCOMPARE(answers.texts(), QStringList());
}

void TestCollect::oddValues_data()
{
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("buildTime");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char *package, qint64 size, qint64 buildTime, const char *complaint) {
        QTest::newRow(package) << QByteArray(package) << size << buildTime
                               << QString::fromLatin1(complaint);
    };
    row("size='77'", 77, 0, "");
    row("size=lambda: 78", 78, 0, "");
    row("size=lambda: '79'", 79, 0, "");
    row("size=5000000000", 5000000000, 0, "");
    row("size=None", 0, 0, "Internal error: package size not understood");
    row("size='99999999999999999999'", 0, 0,
        "Internal error: package size not understood: 99999999999999999999");
    row("size=lambda: []", 0, 0, "Internal error: package size result not understood");
    row("fields={'buildtime': '12345'}", 0, 12345, "");
    row("fields={'buildtime': 4294967296}", 0, 4294967296, "");
    row("fields={'buildtime': []}", 0, 0, "Internal error: time not understood");
    row("fields={'summary': 3}", 0, 0, "");
    row("fields={'summary': {}}", 0, 0, "Internal error: YumIO::pyStringX did not understand type");
}

void TestCollect::oddValues()
{
    QFETCH(QByteArray, package);
    QFETCH(QString, complaint);

    Answers answers;
    QVERIFY(m_case.collect("available = [Package('p', " + package + ")]\n"));
    QTEST(m_case.row(QStringLiteral("p"))->size, "size");
    QTEST(m_case.row(QStringLiteral("p"))->buildTime, "buildTime");
    QCOMPARE(answers.texts().join(u'|'), complaint);
    QCOMPARE(answers.titles().join(u'|'),
             complaint.isEmpty() ? QString() : QStringLiteral("VOK Yum Warning"));
}

void TestCollect::groups()
{
    Answers answers;
    QVERIFY(
        m_case.collect("updates = [Package('old', '2')]\n"
                       "installed = [Package('old', '1'), Package('new')]\n"
                       "groups = [Group('Absent'), Group('Current', True, ['new', 'unknown']),\n"
                       "          Group('Stale', True, ['new', 'old']),\n"
                       "          Group('Missing', False, ['old']),\n"
                       "          Group('Current', False), Group('Hidden', visible=False),\n"
                       "          Group('old', True)]\n"));
    QCOMPARE(m_case.rows().filter(QRegularExpression(QStringLiteral("^1"))),
             (QStringList{QStringLiteral("10 Stale"), QStringLiteral("11 Absent"),
                          QStringLiteral("11 Missing"), QStringLiteral("12 Current"),
                          QStringLiteral("12 old")}));
    QCOMPARE(m_case.engine.count(), 7);

    // No group data is no failure, and nothing more is asked about it.
    QVERIFY(m_case.collect("installed = [Package('p')]\n"
                           "def setupTsGroup(io): raise GroupsError('No Groups Available')\n"));
    QCOMPARE(m_case.engine.count(), 1);
    QVERIFY(!m_case.calls().contains(QStringLiteral("collectGroupInfo")));
    QCOMPARE(answers.texts(), QStringList());
}

void TestCollect::repositories()
{
    Answers answers;
    QVERIFY(m_case.collect("repos = {'a': Repo(0), 'b': Repo(1), 'c': Repo(1), 'd': Repo(True)}\n"
                           "class Refusing(Repos):\n"
                           "    def enableRepo(self, name):\n"
                           "        yumIOC.log(9, 'enable ' + name)\n"
                           "        if name == 'd': raise RepoError('no such mirror')\n"
                           "        super().enableRepo(name)\n"
                           "    def disableRepo(self, name):\n"
                           "        yumIOC.log(9, 'disable ' + name)\n"
                           "        super().disableRepo(name)\n"
                           "repos = Refusing(repos)\n"
                           "def setupRepos(io):\n"
                           "    for name, repo in io.repos.repos.items():\n"
                           "        yumIOC.log(9, '%s=%d' % (name, repo.enabled))\n",
                           {{QStringLiteral("a"), true},
                            {QStringLiteral("b"), false},
                            {QStringLiteral("d"), true},
                            {QStringLiteral("unknown"), true}}));
    QStringList calls = m_case.calls();
    calls = calls.mid(0, calls.indexOf(QStringLiteral("setupTs")));
    calls.sort(); // the choices come in no order
    QCOMPARE(calls,
             QStringLiteral("a=1|b=0|c=1|d=1|disable b|enable a|enable d|setupRepos").split(u'|'));
    QCOMPARE(answers.texts(),
             QStringList(QStringLiteral("unable to setup repository d:\nno such mirror")));
}

void TestCollect::failures_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QStringList>("texts"); // of the dialogs
    QTest::addColumn<QString>("last");      // the last call of the script

    const auto row = [](const char *scenario, const QStringList &texts, const char *last) {
        QTest::newRow(QByteArray(scenario).replace("\n", "; "))
            << QByteArray(scenario) + '\n'
            << texts << QString::fromLatin1(last);
    };
    const auto failed = [](const char *method) {
        return QStringList{unexpected,
                           QStringLiteral("Internal error: execution of yumIO.%1 failed")
                               .arg(QLatin1String(method))};
    };
    const auto one = [](const char *text) { return QStringList(QString::fromLatin1(text)); };

    row("repos = Repos({})\ndel repos.repos",
        one("Internal error: yumIO.repos.repos not evaluable"), "");
    row("repos = Repos(5)", one("Internal error: yumIO.repos.repos not a dictionary"), "");
    row("repos = {}",
        one("No repositories are configured.\nUnder the Repositories menu, Edit Configuration can "
            "be used to configure repositories."),
        "");
    row("repos = {'a': Repo(0), 'b': object()}",
        one("No repositories are enabled.\nUnder the Repositories menu, Edit Configuration can be "
            "used to configure repositories."),
        "");
    row("def setupRepos(io): raise RepoError('mirror x: 404')",
        one("mirror x: 404\nUnable to initialize"), "setupRepos");
    row("def setupRepos(io): raise bdb.BdbQuit()", one("\nUnable to initialize"), "setupRepos");
    row("def setupRepos(io): raise ValueError()", {unexpected}, "setupRepos");
    row("def setupTs(io): raise YumBaseError('bad sack')",
        one("bad sack\nUnable to setup transaction"), "setupTs");
    row("def collectUpdates(io): raise NoMoreMirrorsRepoError('all gone')",
        one("Unable to collect updatable packages: metadata unavailable from all repo mirrors:\n"
            "all gone"),
        "collectUpdates");
    row("def collectUpdates(io): raise ValueError()", failed("collectUpdates"), "collectUpdates");
    row("def collectUpdates(io): return [Package('p'), 5]", {unexpected}, "collectUpdates");
    row("def collectAll(io): raise ValueError()", failed("collectAll"), "collectAll");
    row("def collectAll(io): return types.SimpleNamespace(installed=[])",
        one("Internal error: yumIO.collectAll.available not found"), "collectAll");
    row("rows = True\ndef collectRows(io): raise ValueError()", failed("collectRows"),
        "collectRows");
    row("rows = True\ndef collectRows(io): return [('p', 0)]", {unexpected}, "collectRows");
    row("def setupTsGroup(io): raise GroupsError('no groups available')",
        one("no groups available\nUnable to collect groups"), "setupTsGroup");
    row("def setupTsGroup(io): raise ValueError()", failed("setupTsGroup"), "setupTsGroup");
    row("def collectGroupInfo(io): raise ValueError()", failed("collectGroupInfo"),
        "collectGroupInfo");
    row("def collectGroupInfo(io): return 5",
        one("Internal error: groupInfo.visible_groups not evaluable"), "collectGroupInfo");
    row("g = Group('g')\ndel g.name\ngroups = [g]", one("Internal error: group without name"),
        "collectGroupInfo");
    row("g = Group('g')\ndel g.installed\ngroups = [g]",
        one("Internal error: cannot find group's installed flag"), "collectGroupInfo");
}

void TestCollect::failures()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QStringList, texts);
    QFETCH(QString, last);

    Answers answers;
    QVERIFY(!m_case.collect("installed = [Package('p')]\n" + scenario));
    QCOMPARE(answers.texts(), texts);
    QCOMPARE(m_case.engine.count(), 0);
    const QStringList calls = m_case.calls();
    QCOMPARE(calls.isEmpty() ? QString() : calls.last(), last);
    QVERIFY(!m_case.totalBar.isEnabled());

    // The next one is not the worse for it.
    QVERIFY(m_case.collect("installed = [Package('p')]\n"));
    QCOMPARE(m_case.engine.count(), 1);
    QCOMPARE(m_case.complaints(), QStringList());
}

void TestCollect::steps()
{
    Answers answers;
    answers.probeText = QStringLiteral("Key: probe");
    answers.observe = [this] {
        return QStringLiteral("%1/%2 %3")
            .arg(m_case.totalBar.value())
            .arg(m_case.totalBar.maximum())
            .arg(m_case.itemBar.text().section(QStringLiteral(" ("), 0, 0));
    };
    QVERIFY(m_case.collect(
        lookingAround("setupRepos") + lookingAround("setupTs") + "    return 1\n" +
        lookingAround("collectUpdates") + "    return []\n" + lookingAround("collectAll") +
        "    return types.SimpleNamespace(installed=[], available=[])\n" +
        lookingAround("setupTsGroup") + "    return 1\n" + lookingAround("collectDone")));
    QCOMPARE(m_case.calls(), QStringLiteral("setupRepos setupTs collectUpdates collectAll "
                                            "setupTsGroup collectGroupInfo collectDone")
                                 .split(u' '));
    QCOMPARE(answers.observed,
             QStringLiteral("100/24000 Reading repositories|"
                            "15000/24000 Collecting updatable packages|"
                            "15000/24000 Collecting updatable packages|"
                            "19000/24000 Collecting installed and available packages|"
                            "23000/24000 Collecting groups|23000/24000 Collecting groups")
                 .split(u'|'));
}

void TestCollect::whileAJobRuns()
{
    Answers answers;
    answers.probeText = QStringLiteral("Key: probe");
    answers.observe = [this] {
        return QStringLiteral("%1 %2 %3")
            .arg(m_case.engine.count())
            .arg(m_case.engine.end() - m_case.engine.begin())
            .arg(isSigchldBlocked());
    };
    QStringList states;
    connect(&m_case.engine, qOverload<const QString &, bool>(&YumIO::jobState), this,
            [&](const QString &state, bool canCancel) {
                states.append(state + QString::number(canCancel));
            });
    ::signal(SIGINT, SIG_IGN);
    m_case.engine.cancel(); // not meant for the next job
    QVERIFY(m_case.collect("installed = [Package('p')]\n" + lookingAround("setupTsGroup") +
                           "    yumIOC.jobState('metadata', yumIOC.cancelled())\n"
                           "    return True\n"));
    QCOMPARE(answers.observed, QStringList(QStringLiteral("0 0 1")));
    QCOMPARE(m_case.engine.count(), 1);
    QVERIFY(!isSigchldBlocked());
    QVERIFY(isSigintDefault());
    QVERIFY(states.contains(QStringLiteral("metadata0")));
    QCOMPARE(states.last(), QStringLiteral("done0"));
    disconnect(&m_case.engine, nullptr, this, nullptr);
}

// The program is told to quit while a job waits for an answer: the job still comes to its end.
void TestCollect::quitDuringAJob()
{
    Answers answers;
    answers.probeText = QStringLiteral("Key: probe");
    answers.observe = [] {
        QCoreApplication::quit();
        return QString();
    };
    bool collected = false;
    QMetaObject::invokeMethod(
        this,
        [&] {
            collected =
                m_case.collect("installed = [Package('p')]\n" + lookingAround("setupTs") +
                               "    yumIOC.keyQuestion('probe', '', '', '')\n    return 1\n");
        },
        Qt::QueuedConnection);
    QCoreApplication::exec();
    QVERIFY(collected);
    QCOMPARE(m_case.engine.count(), 1);
}

// Without a script object a job ends before it has begun, and says no more than was said.
void TestCollect::refusedSession()
{
    Answers answers;
    QVERIFY(!m_case.collect("raise SystemExit('the configuration is wrong')\n"));
    for (int i = 0; i < 100; ++i)
        QVERIFY(!m_case.engine.collect({}));
    QCOMPARE(answers.texts(),
             QStringList(QStringLiteral("the configuration is wrong\nUnable to initialize")));
    QCOMPARE(m_case.calls(), QStringList());
    QVERIFY(m_case.collect(""));
}

void TestCollect::clearing()
{
    Answers answers;
    answers.probeText = QStringLiteral("Key: probe");
    answers.observe = [this] { return QString::number(m_case.engine.count()); };
    // The package goes only when the row lets go of it.
    QVERIFY(
        m_case.collect("class Loud(Package):\n"
                       "    def __del__(self): yumIOC.keyQuestion('probe', '', '', '')\n"
                       "def collectAll(io):\n"
                       "    return types.SimpleNamespace(installed=[], available=[Loud('p')])\n"));
    QCOMPARE(m_case.engine.count(), 1);
    QCOMPARE(answers.observed, QStringList());
    m_case.engine.clear();
    QCOMPARE(answers.observed, QStringList(QStringLiteral("0")));
    QCOMPARE(m_case.engine.count(), 0);
    QVERIFY(m_case.calls().contains(QStringLiteral("flush")));
}

void TestCollect::probes()
{
    Answers answers;
    QCOMPARE(m_case.engine.yumVersionStr(), QStringLiteral("4.14.0"));
    QCOMPARE(m_case.engine.yumVersion(), 41400);
    QVERIFY(m_case.engine.hasDistribGroups() && m_case.engine.hasSqliteCache());
    QVERIFY(!m_case.engine.hasTransTest() && !m_case.engine.hasPickledCache());

    QVERIFY(m_case.collect("def hasMultiProgress(io): raise ValueError()\n"));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!m_case.engine.usesSqlite()); // 1 is not True
        QVERIFY(m_case.engine.usesPresto());
        QVERIFY(!m_case.engine.hasMultiProgress());
    }
    for (const char *probe : {"usesSqlite", "usesPresto", "hasMultiProgress"})
        QCOMPARE(m_case.calls().count(QLatin1String(probe)), 1);
    QCOMPARE(answers.texts(), QStringList(unexpected));
}

QTEST_MAIN(TestCollect)
#include "test_collect.moc"
