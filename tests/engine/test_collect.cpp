// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "scripted.h"

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

const QString unexpected = s("Internal error: python exception occurred from C code.\n"
                             "When reporting this issue, please include the contents of the\n"
                             "Log window, which should contain a walkback.");

} // namespace

class TestCollect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_case.start());
        QVERIFY(m_case.engine.initialize());
        QCOMPARE(m_case.calls().count(s("script run")), 1);
    }

    void cleanupTestCase()
    {
        Answers answers;
        QVERIFY(m_case.collect("installed = [Package('p')]\n"
                               "def unlock(io): raise LockError('stolen')\n"));
        m_owned.reset();
        QCOMPARE(answers.texts(), QStringList(s("stolen\nUnable to release yum lock")));
    }

    // the first that collects
    void lockIsTakenOnce()
    {
        Answers answers;
        QVERIFY(!m_case.collect("def lock(io): raise LockError('held by yum, process 42')\n"));
        QVERIFY(m_case.collect(""));
        QCOMPARE(m_case.calls().count(s("lock")), 1);
        QVERIFY(m_case.collect(""));
        QCOMPARE(m_case.calls().count(s("lock")), 0);
        QCOMPARE(answers.texts(),
                 QStringList(s("held by yum, process 42\nUnable to obtain yum lock")));
    }

    void rows_data()
    {
        columns<QByteArray, QString>("scenario", "rows");

        const auto row = [](const char *name, const char *scenario, const char *rows) {
            QTest::newRow(name) << QByteArray(scenario) << s(rows);
        };
        row("nothing", "", "");
        row("update before installed and available",
            "updates = [Package('p', '2-1', repo='new')]\n"
            "installed = [Package('p', '1-1', repo='installed'), Package('q', repo='installed')]\n"
            "available = [Package('p', '2-1', repo='new'), Package('q'), Package('r')]\n",
            "20 p 2-1 x86_64 x86_64 new < 1-1 x86_64|21 r 1-1 x86_64 x86_64 base|"
            "22 q 1-1 x86_64 x86_64 installed");
        row("several installed versions",
            "updates = [Package('k', '4')]\n"
            "installed = [Package('k', '3'), Package('k', '2'), Package('k', '1'),\n"
            "             Package('l', '2'), Package('l', '1')]\n",
            "20 k 4 x86_64 x86_64 base < 3 x86_64 < 2 x86_64 < 1 x86_64|"
            "22 l 2 x86_64 x86_64 base < 1 x86_64");
        row("families",
            "installed = [Package('p', '1', 'i686')]\n"
            "available = [Package('p', '2', 'x86_64'), Package('p', '9', 'i586'),\n"
            "             Package('p', '1', 'ppc64')]\n",
            "21 p 1 ppc64 ppc64 base dup|21 p 2 x86_64 x86_64 base|22 p 1 i686 i386 base dup");
        row("noarch becomes specific, not the reverse",
            "def getBiArch(io, arch): return arch\n"
            "updates = [Package('a', '2', 'noarch'), Package('b', '2', 'x86_64')]\n"
            "installed = [Package('a', '1', 'x86_64'), Package('b', '1', 'noarch')]\n",
            "20 a 2 noarch noarch base < 1 x86_64|20 b 2 x86_64 x86_64 base|"
            "22 b 1 noarch noarch base dup");
        row("suite, with line feeds at the end of its fields",
            "available = [Package('s', fields={'group': 'Suite\\n', 'summary': 'of s\\n\\n'})]\n",
            "01 s 1-1 x86_64 x86_64 base");
    }

    // The single calls and the one call give the same.
    void rows()
    {
        QFETCH(QByteArray, scenario);

        Answers answers;
        for (const char *way : {"rows = False\n", "rows = True\n"}) {
            QVERIFY(m_case.collect(way + scenario));
            QTEST(m_case.rows().join(u'|'), "rows");
            QCOMPARE(m_case.calls().contains(s("collectAll")), way[7] == 'F');
            for (const Package::Entry *row : m_case.engine)
                QVERIFY(!row->summary.endsWith(u'\n'));
            QCOMPARE(m_case.logged().filter(QRegularExpression(s("^[23]/"))), QStringList());
        }
        QCOMPARE(answers.texts(), QStringList());
    }

    void oddValues_data()
    {
        // values: size, time of build, summary
        columns<QByteArray, QString, QString>("package", "values", "complaint");

        const auto row = [](const char *package, const char *values, const char *complaint = "") {
            QTest::newRow(package) << QByteArray(package) << s(values) << s(complaint);
        };
        row("size=10189, fields={'summary': 'Gr\\u00fc\\u00dfe \\U0001f980 \\udc80\\n\\n'}",
            "10189 0 Grüße \U0001f980 ?");
        row("size='77'", "77 0 ");
        row("size=lambda: '79'", "79 0 ");
        row("size=5000000000, fields={'buildtime': 4294967296}", "5000000000 4294967296 ");
        row("size=None", "0 0 ", "Internal error: package size not understood");
        row("size='99999999999999999999'", "0 0 ",
            "Internal error: package size not understood: 99999999999999999999");
        row("fields={'buildtime': '12345'}", "0 12345 ");
        row("fields={'buildtime': []}", "0 0 ", "Internal error: time not understood");
        row("fields={'summary': {}}", "0 0 ",
            "Internal error: YumIO::pyStringX did not understand type");
    }

    void oddValues()
    {
        QFETCH(QByteArray, package);

        Answers answers;
        QVERIFY(m_case.collect("available = [Package('p', " + package + ")]\n"));
        const Package::Entry &entry = *m_case.row(s("p"));
        QTEST(s("%1 %2 ").arg(entry.size).arg(entry.buildTime) + m_case.engine.getSummary(entry),
              "values");
        QTEST(answers.texts().join(u'|'), "complaint");
    }

    void groups()
    {
        Answers answers;
        QVERIFY(m_case.collect(
            "updates = [Package('old', '2')]\n"
            "installed = [Package('old', '1'), Package('new')]\n"
            "groups = [Group('Absent'), Group('Current', True, ['new', 'unknown']),\n"
            "          Group('Stale', True, ['new', 'old']),\n"
            "          Group('Missing', False, ['old']),\n"
            "          Group('Current', False), Group('Hidden', visible=False),\n"
            "          Group('old', True)]\n"));
        QCOMPARE(m_case.rows().filter(QRegularExpression(s("^1"))).join(u'|'),
                 s("10 Stale|11 Absent|11 Missing|12 Current|12 old"));

        // No group data is no failure, and nothing more is asked about it.
        QVERIFY(m_case.collect("installed = [Package('p')]\n"
                               "def setupTsGroup(io): raise GroupsError('No Groups Available')\n"));
        QCOMPARE(m_case.engine.count(), 1);
        QVERIFY(!m_case.calls().contains(s("collectGroupInfo")));
        QCOMPARE(answers.texts(), QStringList());
    }

    void repositories()
    {
        Answers answers;
        QVERIFY(m_case.collect(
            "class Refusing(Repos):\n"
            "    def enableRepo(self, name):\n"
            "        if name == 'd': raise RepoError('no such mirror')\n"
            "        super().enableRepo(name)\n"
            "repos = Refusing({'a': Repo(0), 'b': Repo(1), 'c': Repo(1), 'd': Repo(True)})\n"
            "def setupRepos(io):\n"
            "    yumIOC.log(9, str([name for name in io.repos.repos if "
            "io.repos.repos[name].enabled]))\n",
            {{s("a"), true}, {s("b"), false}, {s("d"), true}, {s("unknown"), true}}));
        QVERIFY(m_case.calls().contains(s("['a', 'c', 'd']")));
        QCOMPARE(answers.texts(), QStringList(s("unable to setup repository d:\nno such mirror")));
    }

    void failures_data()
    {
        // texts: of the dialogs; last: the last call of the script
        columns<QByteArray, QString, QString>("scenario", "texts", "last");

        const auto row = [](const char *scenario, const QString &texts, const char *last) {
            QTest::newRow(QByteArray(scenario).replace("\n", "; ")) << QByteArray(scenario) + '\n'
                                                                    << texts << s(last);
        };
        const auto failed = [](const char *method) {
            return unexpected + s("|Internal error: execution of yumIO.%1 failed").arg(s(method));
        };
        row("repos = {}",
            s("No repositories are configured.\nUnder the Repositories menu, Edit Configuration "
              "can "
              "be used to configure repositories."),
            "");
        row("repos = {'a': Repo(0), 'b': object()}",
            s("No repositories are enabled.\nUnder the Repositories menu, Edit Configuration can "
              "be "
              "used to configure repositories."),
            "");
        row("def setupRepos(io): raise RepoError('mirror x: 404')",
            s("mirror x: 404\nUnable to initialize"), "setupRepos");
        row("def setupRepos(io): raise ValueError()", unexpected, "setupRepos");
        row("def setupTs(io): raise YumBaseError('bad sack')",
            s("bad sack\nUnable to setup transaction"), "setupTs");
        row("def collectUpdates(io): raise NoMoreMirrorsRepoError('all gone')",
            s("Unable to collect updatable packages: metadata unavailable from all repo mirrors:\n"
              "all gone"),
            "collectUpdates");
        row("def collectUpdates(io): return [Package('p'), 5]", unexpected, "collectUpdates");
        row("def collectAll(io): raise ValueError()", failed("collectAll"), "collectAll");
        row("def collectAll(io): return types.SimpleNamespace(installed=[])",
            s("Internal error: yumIO.collectAll.available not found"), "collectAll");
        row("def collectRows(io): raise ValueError()", failed("collectRows"), "collectRows");
        row("def collectRows(io): return [('p', 0)]", unexpected, "collectRows");
        row("def collectRows(io):\n    raise YumBaseError('odd')\n    yield 0",
            s("odd\nUnable to collect updatable packages"), "collectRows");
        row("def collectRows(io):\n    yield 0\n    yield 0\n    raise YumBaseError('odd')",
            s("odd\nUnable to collect installed and available packages"), "collectRows");
        row("def setupTsGroup(io): raise GroupsError('no groups available')",
            s("no groups available\nUnable to collect groups"), "setupTsGroup");
        row("def collectGroupInfo(io): return 5",
            s("Internal error: groupInfo.visible_groups not evaluable"), "collectGroupInfo");
        row("g = Group('g')\ndel g.installed\ngroups = [g]",
            s("Internal error: cannot find group's installed flag"), "collectGroupInfo");
    }

    void failures()
    {
        QFETCH(QByteArray, scenario);

        Answers answers;
        QVERIFY(!m_case.collect("installed = [Package('p')]\n" + scenario));
        QTEST(answers.texts().join(u'|'), "texts");
        QCOMPARE(m_case.engine.count(), 0);
        const auto collected = m_case.engine.collected();
        QCOMPARE(collected == Engine::Collected::NoRepositories, scenario.startsWith("repos = {}"));
        QCOMPARE(collected == Engine::Collected::NoneEnabled, scenario.startsWith("repos = {'a'"));
        QCOMPARE(collected == Engine::Collected::RepositoriesFailed,
                 scenario.contains("setupRepos"));
        QTEST(m_case.calls().value(m_case.calls().size() - 1), "last");
        QVERIFY(!m_case.totalBar.isEnabled());

        // The next one is not the worse for it.
        QVERIFY(m_case.collect("installed = [Package('p')]\n"));
        QCOMPARE(m_case.engine.count(), 1);
    }

    void steps()
    {
        Answers answers;
        m_case.observeBars(answers);
        QVERIFY(m_case.collect(lookingAround("setupRepos") + lookingAround("setupTs") +
                               "    return 1\n" + lookingAround("collectAll") +
                               "    return types.SimpleNamespace(installed=[], available=[])\n" +
                               lookingAround("setupTsGroup") + "    return 1\n" +
                               lookingAround("collectDone")));
        QCOMPARE(m_case.calls().join(u' '), s("setupRepos setupTs collectUpdates collectAll "
                                              "setupTsGroup collectGroupInfo collectDone"));
        QCOMPARE(
            answers.observed.join(u'|'),
            s("100/24000 1 Reading repositories|15000/24000 4000 Collecting updatable packages|"
              "19000/24000 4000 Collecting installed and available packages|"
              "23000/24000 1 Collecting groups|23000/24000 1 Collecting groups"));
    }

    void whileAJobRuns()
    {
        Answers answers;
        answers.probeText = s("Key: probe");
        answers.observe = [this] {
            return s("%1 %2 %3")
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
        QCOMPARE(answers.observed, QStringList(s("0 0 1")));
        QCOMPARE(m_case.engine.count(), 1);
        QVERIFY(!isSigchldBlocked());
        QVERIFY(isSigintDefault());
        QVERIFY(states.contains(s("metadata0")));
        QCOMPARE(states.last(), s("done0"));
        disconnect(&m_case.engine, nullptr, this, nullptr);
    }

    // The program is told to quit while a job waits for an answer: the job still comes to its end.
    void quitDuringAJob()
    {
        Answers answers;
        answers.probeText = s("Key: probe");
        answers.observe = [] {
            QCoreApplication::quit();
            return QString();
        };
        bool collected = false;
        const auto collect = [&] {
            collected =
                m_case.collect("installed = [Package('p')]\n" + lookingAround("setupTs") +
                               "    yumIOC.keyQuestion('probe', '', '', '')\n    return 1\n");
        };
        QMetaObject::invokeMethod(this, collect, Qt::QueuedConnection);
        QCoreApplication::exec();
        QVERIFY(collected);
        QCOMPARE(m_case.engine.count(), 1);
    }

    // Without a script object a job ends before it has begun, and says no more than was said.
    void refusedSession()
    {
        Answers answers;
        QVERIFY(!m_case.collect("raise SystemExit('the configuration is wrong')\n"));
        for (int i = 0; i < 100; ++i)
            QVERIFY(!m_case.engine.collect({}));
        QCOMPARE(answers.texts(),
                 QStringList(s("the configuration is wrong\nUnable to initialize")));
        QVERIFY(m_case.collect(""));
    }

    // A package goes only when its row lets go of it, and then there is no row any more.
    void clearing()
    {
        Answers answers;
        answers.probeText = s("Key: probe");
        answers.observe = [this] { return QString::number(m_case.engine.count()); };
        QVERIFY(m_case.collect("class Loud(Package):\n"
                               "    def __del__(self): yumIOC.keyQuestion('probe', '', '', '')\n"
                               "def collectAll(io):\n"
                               "    return types.SimpleNamespace(installed=[Loud('p')], "
                               "available=[])\n"));
        QCOMPARE(m_case.engine.count(), 1);
        QCOMPARE(answers.observed, QStringList());
        m_case.engine.clear();
        QCOMPARE(answers.observed, QStringList(s("0")));
        QVERIFY(m_case.calls().contains(s("flush")));
    }

    void probes()
    {
        Answers answers;
        QCOMPARE(m_case.engine.yumVersion(), 41400);
        QVERIFY(m_case.engine.hasDistribGroups() && m_case.engine.hasSqliteCache());
        QVERIFY(!m_case.engine.hasTransTest() && !m_case.engine.hasPickledCache());

        QVERIFY(m_case.collect("def hasMultiProgress(io): raise ValueError()\n"));
        for (int i = 0; i < 2; ++i) {
            QVERIFY(m_case.engine.usesSqlite());
            QVERIFY(m_case.engine.usesPresto());
            QVERIFY(!m_case.engine.hasMultiProgress());
        }
        for (const char *probe : {"usesSqlite", "usesPresto", "hasMultiProgress"})
            QCOMPARE(m_case.calls().count(s(probe)), 1);
        QCOMPARE(answers.texts(), QStringList(unexpected));
    }

private:
    std::unique_ptr<Scripted> m_owned = std::make_unique<Scripted>();
    Scripted &m_case = *m_owned;
};

QTEST_MAIN(TestCollect)
#include "test_collect.moc"
