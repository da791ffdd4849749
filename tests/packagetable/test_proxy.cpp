#include "tablecase.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace PackageTable;
using namespace Qt::StringLiterals;
using Package::Action;
using Package::State;

class TestProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_case.start());
        m_tester = std::make_unique<QAbstractItemModelTester>(m_case.proxy.get());
    }

    void init()
    {
        SortFilterProxyModel &proxy = *m_case.proxy;
        proxy.setMode(Mode::Filter);
        proxy.setStateFilter(StateFilter::All);
        proxy.setDupsFilter(true);
        proxy.setGroupsFilter(true);
        proxy.setFilter(true);
        proxy.setFilterRegExp(QStringLiteral(".*"));
        proxy.sort(NameColumn);
    }

    void lists_data()
    {
        QTest::addColumn<StateFilter>("state");
        QTest::addColumn<bool>("dups");
        QTest::addColumn<bool>("groups");
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("names");
        const QString updatable = QStringLiteral("alpha kernel");
        const QString packages =
            QStringLiteral("Zulu alpha beta echo grüße kernel modules pair pair tools-suite");
        QTest::newRow("everything")
            << StateFilter::All << true << true << ".*"
            << QStringLiteral("Attic Workshop Zulu alpha beta echo grüße kernel modules pair pair "
                              "tools-suite");
        QTest::newRow("updatable") << StateFilter::Updatable << true << true << "" << updatable;
        QTest::newRow("installable, no groups") << StateFilter::Installable << true << false << ""
                                                << "Zulu beta grüße pair pair tools-suite";
        QTest::newRow("removable") << StateFilter::Removable << true << true << ""
                                   << "Workshop alpha echo kernel modules";
        QTest::newRow("no duplicates") << StateFilter::Installable << false << true << ""
                                       << "Attic Zulu beta grüße pair tools-suite";
        QTest::newRow("a name") << StateFilter::All << true << true << "^beta "
                                << "beta";
        QTest::newRow("across fields")
            << StateFilter::All << true << true << "beta 1-1 extras x86_64 500b Fri"
            << "beta";
        QTest::newRow("the mark of other versions") << StateFilter::All << true << true << "1 [*]"
                                                    << "kernel modules";
        QTest::newRow("extended syntax") << StateFilter::All << true << true << "^(alpha|echo)+ "
                                         << "alpha echo";
        QTest::newRow("case counts") << StateFilter::All << true << true << "zulu"
                                     << "";
        QTest::newRow("not ASCII") << StateFilter::All << true << true << "grü.e"
                                   << "grüße";
        QTest::newRow("padded") << StateFilter::All << true << true << ".*.*^echo.*"
                                << "echo";
        QTest::newRow("no expression")
            << StateFilter::All << true << false << "(unbalanced" << packages;
        QTest::newRow("no backreference of the other syntax")
            << StateFilter::Updatable << true << true << "\\Qalpha\\E"
            << "";
    }

    void lists()
    {
        QFETCH(StateFilter, state);
        QFETCH(bool, dups);
        QFETCH(bool, groups);
        QFETCH(QString, expression);
        QFETCH(QString, names);
        SortFilterProxyModel &proxy = *m_case.proxy;
        proxy.setStateFilter(state);
        proxy.setDupsFilter(dups);
        proxy.setGroupsFilter(groups);
        proxy.setFilterRegExp(expression);
        QCOMPARE(m_case.listed().join(QLatin1Char(' ')), names);
        proxy.setFilter(false);
        QCOMPARE(proxy.rowCount(), m_case.engine.count());
        proxy.setFilter(true);
        QCOMPARE(m_case.listed().join(QLatin1Char(' ')), names);
    }

    // Of two packages of one name the one of the base architecture is shown.
    void keepsTheBetterDuplicate()
    {
        m_case.proxy->setDupsFilter(false);
        m_case.proxy->setFilterRegExp(QStringLiteral("^pair "));
        QCOMPARE(m_case.proxy->rowCount(), 1);
        QCOMPARE(m_case.proxy->index(0, ArchitectureColumn).data().toString(),
                 QStringLiteral("x86_64"));
    }

    void searches_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QStringList>("found");
        QTest::addColumn<QStringList>("filtered");
        QTest::newRow("description") << "needle" << QStringList{u"beta"_s} << QStringList{};
        QTest::newRow("one field at a time")
            << "beta 1-1" << QStringList{} << QStringList{u"beta"_s};
        QTest::newRow("summary") << "^modules summary$" << QStringList{u"modules"_s}
                                 << QStringList{};
        QTest::newRow("packages of groups")
            << "^alpha$" << QStringList{u"Attic"_s, u"Workshop"_s, u"alpha"_s} << QStringList{};
    }

    void searches()
    {
        QFETCH(QString, expression);
        m_case.proxy->setFilterRegExp(expression);
        QTEST(m_case.listed(), "filtered");
        m_case.proxy->setMode(Mode::Search);
        QTEST(m_case.listed(), "found");
    }

    void sorts_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("ascending");
        QTest::newRow("kind, then name") << int(KindColumn) << "(suite|Attic|Work|echo|alpha)"
                                         << "tools-suite Attic Workshop alpha echo";
        QTest::newRow("state, then name") << int(StateColumn) << "(alpha|kernel|beta|Zulu|echo)"
                                          << "alpha kernel Zulu beta echo";
        QTest::newRow("names by code unit") << int(NameColumn) << "(Zulu|alpha|gr|kernel)"
                                            << "Zulu alpha grüße kernel";
        // 3 and 2 GiB are negative in 32 bits.
        QTest::newRow("sizes by their low 32 bits")
            << int(SizeColumn) << "(echo|Zulu|kernel|beta|alpha)"
            << "Zulu echo beta alpha kernel";
        QTest::newRow("versions as shown") << int(VersionColumn) << "(alpha|kernel|echo|modules)"
                                           << "echo modules alpha kernel";
        QTest::newRow("repository, then name") << int(RepositoryColumn) << "(beta|gr|alpha|Zulu)"
                                               << "Zulu beta grüße alpha";
    }

    void sorts()
    {
        QFETCH(int, column);
        QFETCH(QString, expression);
        QFETCH(QString, ascending);
        SortFilterProxyModel &proxy = *m_case.proxy;
        proxy.sort(column);
        proxy.setFilterRegExp(expression);
        QCOMPARE(m_case.listed().join(QLatin1Char(' ')), ascending);
        proxy.sort(column, Qt::DescendingOrder);
        QStringList reversed = ascending.split(QLatin1Char(' '));
        std::reverse(reversed.begin(), reversed.end());
        QCOMPARE(m_case.listed(), reversed);
    }

    void sortsByAction()
    {
        m_case.proxy->sort(ActionColumn);
        m_case.entry(QStringLiteral("echo"))->action = Action::Remove;
        m_case.entry(QStringLiteral("modules"))->action = Action::Remove;
        m_case.entry(QStringLiteral("alpha"))->action = Action::Update;
        m_case.entry(QStringLiteral("beta"))->action = Action::Install;
        m_case.proxy->setFilterRegExp(QStringLiteral("(echo|modules|alpha|beta|Zulu)"));
        QCOMPARE(m_case.listed().join(QLatin1Char(' ')),
                 QStringLiteral("alpha beta echo modules Zulu"));
        m_case.model->clearActions();
    }

    void updatesTheListed()
    {
        m_case.proxy->setFilterRegExp(QStringLiteral("(kernel|beta)"));
        QSignalSpy changed(m_case.proxy.get(), &QAbstractItemModel::dataChanged);
        m_case.proxy->setUpdateListed();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex().siblingAtColumn(NameColumn).data().toString(),
                 QStringLiteral("kernel"));
        QCOMPARE(m_case.entry(QStringLiteral("kernel"))->action, Action::Update);
        QCOMPARE(m_case.entry(QStringLiteral("beta"))->action, Action::None);
        QCOMPARE(m_case.entry(QStringLiteral("alpha"))->action, Action::None);
        m_case.model->clearActions();
    }

    // Verdicts are for the rows that are there, not for those that once had their addresses.
    void judgesAfreshAfterACollection()
    {
        m_case.proxy->setStateFilter(StateFilter::Updatable);
        QCOMPARE(m_case.proxy->rowCount(), 2);
        m_case.engine.clear();
        m_case.model->reset();
        QCOMPARE(m_case.proxy->rowCount(), 0);
        QVERIFY(m_case.engine.collect({}));
        m_case.model->reset();
        QCOMPARE(m_case.listed(), QStringList({QStringLiteral("alpha"), QStringLiteral("kernel")}));
    }

private:
    TableCase m_case;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(TestProxy)
#include "test_proxy.moc"
