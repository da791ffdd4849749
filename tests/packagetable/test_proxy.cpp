// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "tablecase.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace PackageTable;
using Package::Action;

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
        proxy.setFilterRegExp(s(".*"));
        proxy.sort(NameColumn);
    }

    void lists_data()
    {
        // kinds: "d" with duplicates, "g" with groups
        columns<StateFilter, QString, QString, QString>("state", "kinds", "expression", "names");
        const StateFilter all = StateFilter::All;
        row("everything", all, "dg", ".*",
            "Attic Workshop Zulu alpha beta echo grüße kernel modules pair pair tools-suite");
        row("updatable", StateFilter::Updatable, "dg", "", "alpha kernel");
        row("installable, no groups", StateFilter::Installable, "d", "",
            "Zulu beta grüße pair pair tools-suite");
        row("removable", StateFilter::Removable, "dg", "", "Workshop alpha echo kernel modules");
        row("no duplicates", StateFilter::Installable, "g", "",
            "Attic Zulu beta grüße pair tools-suite");
        row("across fields", all, "dg", "beta 1-1 extras x86_64 500b Fri", "beta");
        row("the mark of other versions", all, "dg", "1 [*]", "kernel modules");
        row("extended syntax", all, "dg", "^(alpha|echo)+ ", "alpha echo");
        row("case counts", all, "dg", "zulu", "");
        row("not ASCII", all, "dg", "grü.e", "grüße");
        row("padded", all, "dg", ".*.*^echo.*", "echo");
        row("no expression", all, "d", "(unbalanced",
            "Zulu alpha beta echo grüße kernel modules pair pair tools-suite");
    }

    void lists()
    {
        QFETCH(StateFilter, state);
        QFETCH(QString, kinds);
        QFETCH(QString, expression);
        QFETCH(QString, names);
        SortFilterProxyModel &proxy = *m_case.proxy;
        proxy.setStateFilter(state);
        proxy.setDupsFilter(kinds.contains(u'd'));
        proxy.setGroupsFilter(kinds.contains(u'g'));
        proxy.setFilterRegExp(expression);
        QCOMPARE(m_case.listed(), names);
        proxy.setFilter(false);
        QCOMPARE(proxy.rowCount(), m_case.engine.count());
        proxy.setFilter(true);
        QCOMPARE(m_case.listed(), names);
    }

    void namesWhatHidesMost_data()
    {
        columns<StateFilter, QString, Hides>("state", "expression", "most");
        row("rows of another state", StateFilter::Updatable, "nothing", Hides::State);
        row("rows that do not match", StateFilter::All, "nothing", Hides::Expression);
    }

    void namesWhatHidesMost()
    {
        QFETCH(StateFilter, state);
        QFETCH(QString, expression);
        m_case.proxy->setStateFilter(state);
        m_case.proxy->setFilterRegExp(expression);
        QTEST(m_case.proxy->hidesMost(), "most");
    }

    // Of two packages of one name the one of the base architecture is shown.
    void keepsTheBetterDuplicate()
    {
        m_case.proxy->setDupsFilter(false);
        m_case.proxy->setFilterRegExp(s("^pair "));
        QCOMPARE(m_case.proxy->rowCount(), 1);
        QCOMPARE(m_case.proxy->index(0, ArchitectureColumn).data().toString(), s("x86_64"));
    }

    void searches_data()
    {
        // loaded: found by the same expression with file lists there
        columns<QString, QString, QString, QString>("expression", "filtered", "found", "loaded");
        row("description", "needle", "", "beta", "beta");
        row("one field at a time", "beta 1-1", "beta", "", "");
        row("summary", "^modules summary$", "", "modules", "modules");
        row("packages of groups", "^alpha$", "", "Attic Workshop alpha", "Attic Workshop alpha");
        row("files", "^/bin/b$", "", "", "beta");
    }

    void searches()
    {
        QFETCH(QString, expression);
        collectAgain();
        m_case.proxy->setFilterRegExp(expression);
        QTEST(m_case.listed(), "filtered");
        m_case.proxy->setMode(Mode::Search);
        QTEST(m_case.listed(), "found");
        // What is known is not asked again.
        QSignalSpy jobs(&m_case.engine, qOverload<const QString &, bool>(&YumIO::jobState));
        m_case.proxy->setStateFilter(StateFilter::Updatable);
        m_case.proxy->setStateFilter(StateFilter::All);
        QTEST(m_case.listed(), "found");
        QCOMPARE(jobs.size(), 0);
        QVERIFY(m_case.engine.collectFileLists());
        m_case.proxy->setFilterRegExp(expression);
        QTEST(m_case.listed(), "loaded");
    }

    void sorts_data()
    {
        columns<int, QString, QString>("column", "expression", "ascending");
        row("kind, then name", KindColumn, "(suite|Attic|Work|echo|alpha)",
            "tools-suite Attic Workshop alpha echo");
        row("state, then name", StateColumn, "(alpha|kernel|beta|Zulu|echo)",
            "alpha kernel Zulu beta echo");
        row("names by code unit", NameColumn, "(Zulu|alpha|gr|kernel)", "Zulu alpha grüße kernel");
        // 3 and 2 GiB are negative in 32 bits.
        row("sizes by their low 32 bits", SizeColumn, "(echo|Zulu|kernel|beta|alpha)",
            "Zulu echo beta alpha kernel");
        row("repository, then name", RepositoryColumn, "(beta|gr|alpha|Zulu)",
            "Zulu beta grüße alpha");
    }

    void sorts()
    {
        QFETCH(int, column);
        QFETCH(QString, expression);
        QFETCH(QString, ascending);
        SortFilterProxyModel &proxy = *m_case.proxy;
        proxy.sort(column);
        proxy.setFilterRegExp(expression);
        QCOMPARE(m_case.listed(), ascending);
        proxy.sort(column, Qt::DescendingOrder);
        QStringList reversed = ascending.split(QLatin1Char(' '));
        std::reverse(reversed.begin(), reversed.end());
        QCOMPARE(m_case.listed(), reversed.join(u' '));
    }

    void sortsByAction()
    {
        m_case.proxy->sort(ActionColumn);
        m_case.entry(s("echo"))->action = Action::Remove;
        m_case.entry(s("modules"))->action = Action::Remove;
        m_case.entry(s("alpha"))->action = Action::Update;
        m_case.entry(s("beta"))->action = Action::Install;
        m_case.proxy->setFilterRegExp(s("(echo|modules|alpha|beta|Zulu)"));
        QCOMPARE(m_case.listed(), s("alpha beta echo modules Zulu"));
        m_case.model->clearActions();
    }

    void updatesTheListed()
    {
        m_case.proxy->setFilterRegExp(s("(kernel|beta)"));
        QSignalSpy changed(m_case.proxy.get(), &QAbstractItemModel::dataChanged);
        m_case.proxy->setUpdateListed();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex().siblingAtColumn(NameColumn).data().toString(),
                 s("kernel"));
        QCOMPARE(m_case.entry(s("kernel"))->action, Action::Update);
        QCOMPARE(m_case.entry(s("beta"))->action, Action::None);
        QCOMPARE(m_case.entry(s("alpha"))->action, Action::None);
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
        collectAgain();
        QCOMPARE(m_case.listed(), s("alpha kernel"));
    }

private:
    void collectAgain()
    {
        m_case.engine.clear();
        QVERIFY(m_case.engine.collect({}));
        m_case.model->reset();
    }

    TableCase m_case;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(TestProxy)
#include "test_proxy.moc"
