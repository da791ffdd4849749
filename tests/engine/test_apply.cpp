// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "scripted.h"

namespace {

// Everything that a resolved transaction can hold.
const char *const listing = R"(
io.tsInfo.updated = [Member(package('alpha'))]
io.tsInfo.installed = [Member(package('beta'))]
io.tsInfo.removed = [Member(INSTALLED[1])]
io.tsInfo.depinstalled = [Member(package('delta'))]
)";

} // namespace

class TestApply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_case.start("shop.py")); }

    void givesTheScriptItsLists_data()
    {
        // acts: elements, and ten for each download
        columns<QStringList, QString, int>("marks", "lists", "acts");

        using L = QStringList;
        row("install of what is in the cache", L{s("delta install")}, "['delta-1'] [] []", 1);
        row("update", L{s("alpha update")}, "[] [['alpha-2', 'alpha-1']] []", 12);
        row("update of two versions", L{s("kernel update")},
            "[] [['kernel-3', 'kernel-1'], ['kernel-3', 'kernel-2']] []", 13);
        row("removal of an updatable one", L{s("alpha remove")}, "[] [] ['alpha-1']", 1);
        row("removal of two versions", L{s("kernel remove")}, "[] [] ['kernel-1', 'kernel-2']", 2);
    }

    void givesTheScriptItsLists()
    {
        QFETCH(QStringList, marks);
        QFETCH(QString, lists);
        QFETCH(int, acts);
        Answers answers;
        QVERIFY(!m_case.apply(marks, s(R"(
def names(items):
    return [names(item) if isinstance(item, list) else item.name + '-' + item.version for item in items]
probe()
yumIOC.dsTsCheck()
yumIOC.dsTsCheck()
probe()
yumIOC.log(5, '%s %s %s' % (names(installs), names(updates), names(removes)))
)"),
                              answers));
        QVERIFY2(m_case.logged().contains(s("0/5 ") + lists),
                 qPrintable(m_case.logged().join(u'|')));
        // The second check begins where the acts of the first, one per element, end.
        QCOMPARE(answers.observed.value(0), s("0/10000 1 Preparing"));
        QCOMPARE(answers.observed.value(1),
                 s("%1/10000 1 Resolve Dependencies").arg(100 + 9900 * (acts % 10) / acts));
        QCOMPARE(answers.shown.size(), 0);
        QCOMPARE(m_case.totalBar.maximum(), 1);
        QVERIFY(!m_case.totalBar.isEnabled());
    }

    void refusesAnUpdateOfNothing()
    {
        Answers answers;
        QVERIFY(!m_case.apply({s("beta update")}, s("yumIOC.log(0, 'called')"), answers));
        QCOMPARE(answers.texts(),
                 QStringList(s("Internal error: Unable to find installed version for package "
                               "update beta")));
        QVERIFY(!m_case.logged().contains(s("0/0 called")));
    }

    void followsResolution_data()
    {
        columns<QString, QString, int, int>("line", "dialog", "downloads", "elements");

        row("marked as an update", "Marking 0:alpha-2-1.x86_64 as an update for x", "", 1, 2);
        row("marked in the cache", "Marking delta-1-1.noarch as install for x", "", 0, 1);
        row("obsoletes", "Obsoleting 0:old-1-1.x86_64 (base) with 0:beta-1-1.x86_64 (base)", "", 1,
            2);
        row("other line", "Removing something", "", 0, 0);
        row("no blank", "Updating alpha", "Internal error: unexpected TSINFO: Updating alpha", 0,
            0);
        row("unknown", "Marking none-1-1.x86_64 as install",
            "Internal error: TSINFO mentions unknown package: none-1-1.x86_64", 0, 0);
        row("a bare name", "Marking beta as install",
            "Internal error: TSINFO mentions package beta which does not appear to be a valid "
            "envra; interpreting as package name",
            1, 1);
    }

    void followsResolution()
    {
        QFETCH(QString, line);
        QFETCH(QString, dialog);
        QFETCH(int, downloads);
        QFETCH(int, elements);
        Answers answers;
        m_case.apply({s("delta install"), s("gamma remove")},
                     s("yumIOC.dsTsCheck()\nyumIOC.log(2, 'TSINFO: ' + '''%1''')\nprobe()\n"
                       "yumIOC.dsRestartLoop()\nprobe()\n")
                         .arg(line),
                     answers);
        QCOMPARE(answers.texts().join(u'|'), dialog);
        // Two elements were asked for and checked once.
        const int first = 2 + 10 * downloads;
        const int second = first + 2 + elements;
        const bool counted = downloads || elements;
        const QString state = s("%1/10000 1 Resolve Dependencies");
        QCOMPARE(answers.observed, QStringList({state.arg(counted ? 100 + 9900 * 2 / first : 100),
                                                state.arg(100 + 9900 * 2 / second)}));
    }

    void listsAndConfirms()
    {
        const QString source = s(listing) + s(R"(
old = INSTALLED[2]
old.pkgtup = ('old', 'x86_64', '3', '1', '1')
io.tsInfo.depupdated = [Member(package('kernel'))]
io.tsInfo.depremoved = [Member(INSTALLED[5])]
io.tsInfo.obsoleted = [Member(old, package('beta'))]
yumIOC.log(0, 'before the listing')
yumIOC.listTransaction(io)
yumIOC.log(0, 'not in the listing')
yumIOC.reportDownloadSize([package('alpha'), package('beta')])
yumIOC.log(9, 'answer %r' % yumIOC.userconfirm())
)");
        for (const bool yes : {true, false}) {
            Answers answers({yes ? s("OK") : s("Cancel")});
            QCOMPARE(m_case.apply({}, source, answers), yes);
            QCOMPARE(answers.texts(),
                     QStringList(s("Transaction to be performed:\n"
                                   "\tInstall: beta 1-1 (x86_64) [base]\n"
                                   "\tUpdate: alpha 2-1 (x86_64) [base]\n"
                                   "\tRemove: gamma 1-1 (x86_64)\n"
                                   "Performing the following to resolve dependencies:\n"
                                   "\tInstall: delta 1-1 (noarch) [base]\n"
                                   "\tUpdate: kernel 3-1 (x86_64) [base]\n"
                                   "\tRemove: echo 1-1 (x86_64)\n"
                                   "Other Transactions:\n"
                                   "\tObsoleting: old 3:1-1 (x86_64) with beta 1-1 (x86_64)\n"
                                   "Total download size: 68Kb\n")));
            QCOMPARE(answers.titles(), QStringList(s("Apply")));
            QVERIFY(m_case.logged().contains(yes ? s("4/0 Applying: OK")
                                                 : s("4/0 Not Applying: Canceled")));
            QVERIFY(m_case.logged().contains(yes ? s("0/9 answer 1") : s("0/9 answer 0")));
        }
    }

    void asksPlainQuestions()
    {
        Answers answers({s("Yes"), s("No")});
        const bool applied = m_case.apply({}, s(R"(
yumIOC.log(0, 'forgotten')
yumIOC.gpgsigcheck('any', 1)
yumIOC.log(0, 'First?')
yumIOC.errorlog(1, 'Trouble')
yumIOC.userconfirm()
yumIOC.log(0, 'Second?')
yumIOC.userconfirm()
)"),
                                          answers);
        QVERIFY(!applied);
        QCOMPARE(answers.texts(), QStringList({s("First?\nTrouble\n"), s("Second?\n")}));
        QCOMPARE(answers.titles(), QStringList({s("Query"), s("Query")}));
        QVERIFY(m_case.logged().contains(s("4/0 Confirmation: Yes")));
        QVERIFY(m_case.logged().contains(s("4/0 Confirmation: No")));
        QVERIFY(m_case.logged().contains(s("3/1 Trouble")));
    }

    // Every element begins where the weights of those before it end, and the run ends at the
    // total's end.
    void weighsTheRun()
    {
        Answers answers({s("OK")});
        const QString source = s(listing) + s(R"(
yumIOC.listTransaction(io)
yumIOC.userconfirm()
probe()
yumIOC.tsInitCallback(0)
yumIOC.tsInitCallback(1)
probe()
yumIOC.tsEvent(package('beta'), 30, 0, 7, 1, 5); probe()
yumIOC.tsEvent(package('beta'), 30, 7, 7, 1, 5)
yumIOC.tsEvent(package('alpha'), 10, 0, 7, 2, 5); probe()
yumIOC.tsEvent(package('delta'), 20, 0, 7, 3, 5); probe()
yumIOC.tsEvent('alpha', 90, 0, 7, 4, 5); probe()
yumIOC.tsEvent('gamma', 40, 0, 7, 5, 5); probe()
yumIOC.tsEvent('gamma', 70, 0, 7, 6, 5)
yumIOC.log(9, repr(yumIOC.postTransactionOutput(io)))
probe()
)");
        QVERIFY(m_case.apply({s("beta install"), s("alpha update"), s("gamma remove")}, source,
                             answers));
        // 24000 * 70000 / 73413 units of download; 150000 + 60000 + 10240 + 10240 + 40000 of weight
        // share 8000 with a twentieth for the beginning.
        const QStringList expected = {s("0/31984 1 Preparing"),
                                      s("22984/31984 1 Preparing to Run Transaction"),
                                      s("23984/31984 7 Installing beta"),
                                      s("28590/31984 7 Updating alpha"),
                                      s("30280/31984 7 Installing delta"),
                                      s("30568/31984 7 Completing update for: alpha"),
                                      s("30857/31984 7 Removing gamma"),
                                      s("31984/31984 7 Removing gamma")};
        QCOMPARE(answers.observed, expected);
        QCOMPARE(answers.shown.size(), 1);
        QVERIFY(m_case.logged().contains(s("0/1 Installing delta")));
        QVERIFY(m_case.logged().contains(s("0/1 \tDependency Installed: delta 1-1 (noarch)")));
        QVERIFY(m_case.logged().contains(s("0/9 ''")));
        QVERIFY(m_case.row(s("delta"))->applyAction == Package::Action::Install);
        QVERIFY(m_case.row(s("delta"))->action == Package::Action::None);
    }

    // Packages that go need no row of their own, and one that comes may be of another size than its row.
    void weighsWhatIsReplaced()
    {
        Answers answers({s("OK")});
        QVERIFY(m_case.apply({s("beta install")}, s(R"(
class Name(str):
    pass
def gone(po):
    name = Name(po.name)
    name.pkgtup = po.pkgtup
    return name
new, old, twin = P('gamma', '2', size=30000), INSTALLED[1], P('gamma', '1', 'i686', size=90000)
down, former = P('echo', '0'), INSTALLED[5]
io.tsInfo.depupdated, io.tsInfo.depdowngraded = [Member(new)], [Member(down)]
io.tsInfo.depupdated[0].replaces, io.tsInfo.depdowngraded[0].replaces = [old, twin], [former]
yumIOC.listTransaction(io)
yumIOC.userconfirm()
yumIOC.tsInitCallback(1)
yumIOC.tsEvent(new, 10, 0, 7, 1, 4)
yumIOC.tsEvent(down, 20, 0, 7, 2, 4)
yumIOC.tsEvent(gone(twin), 90, 0, 7, 3, 4)
yumIOC.tsEvent(gone(old), 90, 0, 7, 4, 4); probe()
)"),
                             answers));
        QCOMPARE(answers.texts(),
                 QStringList(s("Transaction to be performed:\n"
                               "Performing the following to resolve dependencies:\n"
                               "\tUpdate: gamma 2-1 (x86_64) [base]\n"
                               "\tDowngrade: echo 1-1 (x86_64) to echo 0-1 (x86_64) [base]\n")));
        // 25100 until rpm runs, then 8000 for 90000 + 10240 + 18000 + 10240 of weight and a twentieth
        QCOMPARE(answers.observed, QStringList(s("32492/33100 7 Completing update for: gamma")));
    }

    void reportsStrangeElements_data()
    {
        columns<QString, QString>("source", "dialogs");
        row("event", "yumIOC.tsEvent(None, 33, 0, 0, 1, 1)",
            "Internal error: YumIO::tsEvent action=33 not understood; ignoring");
        row("unknown, again with each event",
            "for done in 0, 1: yumIOC.tsEvent(Package('none', '1'), 60, done, 1, 1, 1)",
            "Internal error: Unable to find package for update of none.x86_64|"
            "Internal error: Unable to find package for update of none.x86_64");
        row("an erase that nobody asked for", "yumIOC.tsEvent('alpha', 50, 0, 1, 1, 1)",
            "Internal error: YumIO::tsCallback REMOVE/COMPLETE of alpha not expected");
        row("while rpm is at work",
            "yumIOC.tsInitCallback(1)\nyumIOC.tsEvent('beta', 40, 0, 1, 1, 2)\n"
            "yumIOC.tsEvent(None, 33, 0, 0, 2, 2)\nyumIOC.transactionReport([])",
            "Internal error: YumIO::tsCallback REMOVE/COMPLETE of beta not expected\n\n"
            "Internal error: YumIO::tsEvent action=33 not understood; ignoring");
        row("one erase too many", "for i in 1, 2, 3: yumIOC.tsEvent('kernel', 40, 0, 1, i, 3)",
            "Internal error: YumIO::tsCallback UNINST of kernel too many times");
    }

    void reportsStrangeElements()
    {
        QFETCH(QString, source);
        Answers answers;
        m_case.apply({s("kernel remove")}, source, answers);
        QTEST(answers.texts().join(u'|'), "dialogs");
    }

    void showsDownloads()
    {
        Answers answers({s("OK")});
        QVERIFY(m_case.apply({s("beta install"), s("alpha update")}, s(listing) + s(R"(
yumIOC.listTransaction(io)
yumIOC.userconfirm()
start, update = yumIOC.applyGrabMeterStart, yumIOC.applyGrabMeterUpdate
yumIOC.applyGrabMultiMeterStart(2, 70000); probe()
yumIOC.applyGrabMultiMeterNew('b')
start('b', '/c/beta.rpm', 'http://h/beta.rpm', 'beta.rpm', 50000, 'beta-1-1.x86_64')
update('b', 30000)
yumIOC.applyGrabMeterFailure('b', 'no route to http://u:pw@host')
update('b', 10)
yumIOC.applyGrabMeterEnd('b', 50000)
yumIOC.applyGrabMultiMeterRemove('b')
yumIOC.applyGrabMultiMeterNew('d')
start('d', '<delta rebuild>', '', '<delta rebuild>', 4, 'beta-1-1.x86_64'); probe()
yumIOC.applyGrabMultiMeterNew('a')
start('a', '/c/alpha.rpm', '', 'alpha.rpm', None, 'alpha-2-1.x86_64')
yumIOC.applyGrabMeterEnd('a', 20000)
yumIOC.applyGrabMultiMeterRemove('a'); probe()
yumIOC.applyGrabMeterEnd('d', 4)
yumIOC.applyGrabMultiMeterRemove('d')
yumIOC.applyGrabMultiMeterEnd()
update('b', 3); update(None, 3)
yumIOC.tsInitCallback(1); probe()
yumIOC.applyGrabMeterStart('c', '/c/x', '', 'x', 'large', 'x')
)"),
                             answers));
        // The rebuilding waits for the download that begins after it.
        QCOMPARE(answers.observed.takeAt(1).section(u'/', 1),
                 s("31984 70000 Downloading 2 packages"));
        QCOMPARE(answers.observed,
                 QStringList({s("100/31984 70000 Downloading 2 packages"),
                              s("22984/31984 4 Finishing RPM rebuild from deltas"),
                              s("22984/31984 1 Preparing to Run Transaction")}));
        QCOMPARE(answers.texts().mid(1),
                 QStringList(s("Internal error: apply grab size not understood\n\n"
                               "Internal error: unexpected progress filename")));
        QVERIFY(m_case.logged().contains(
            s("2/1 Downloading beta-1-1.x86_64: no route to http://u:**@host")));
    }

    // Six acts for each repository: the first for its index, one more whenever there turns out to be
    // more to load. What the last file fails to give is made up for by the next repository.
    void showsMetadata()
    {
        Answers answers;
        m_case.engine.clear();
        m_case.observeBars(answers);
        m_case.setStep(s(R"(
start, update = yumIOC.collectGrabMeterStart, yumIOC.collectGrabMeterUpdate
yumIOC.collectGrabMultiMeterStart(1, 0); probe()
yumIOC.collectGrabMultiMeterNew('base')
start('base', '', 'http://h/', 'repomd', None, 'base'); probe()
update('base', 10)
yumIOC.collectGrabMeterFailure('base', 'http://u:pw@h/repomd.xml: 404')
update('base', 20)
for size in 100, 200, 300, 400, 500, 600:
    start('base', '', 'http://h/', 'repomd', size, 'base')
    update('base', size - 10)
    probe()
yumIOC.collectGrabMeterEnd('base', 600)
yumIOC.collectGrabMultiMeterRemove('base')
yumIOC.collectGrabMultiMeterEnd()
yumIOC.collectProgress(1, 2, 'base'); probe()
start('odd', '', '', 'primary', 'big', '')
)"));
        QVERIFY(m_case.engine.collect({}));
        QStringList items = {s("24000 1 Downloading repository contents for 1 repositories"),
                             s("24000 1 Downloading repository repomd for base")};
        for (int act = 1; act <= 5; ++act)
            items.append(s("24000 %1 Downloading repository base").arg(100 * act));
        items.append(s("24000 500 Downloading repository base"));
        items.append(s("24000 500 Reading repository base"));
        QCOMPARE(answers.observed.size(), items.size());
        for (int i = 0; i < items.size(); ++i)
            QCOMPARE(answers.observed[i].section(u'/', 1), items[i]);
        // The total never falls, and never runs ahead of the act that it is in.
        for (int i = 1; i < answers.observed.size(); ++i) {
            const int before = answers.observed[i - 1].section(u'/', 0, 0).toInt();
            const int now = answers.observed[i].section(u'/', 0, 0).toInt();
            QVERIFY2(now >= before, qPrintable(answers.observed.join(u'|')));
            QVERIFY2(now <= 1000 + 14000 * i / 6, qPrintable(answers.observed.join(u'|')));
        }
        QCOMPARE(answers.texts(),
                 QStringList(s("Internal error: collect grab size not understood")));
    }

    // Nothing is asked when the rows are no longer true.
    void noticesOtherPrograms()
    {
        Answers answers;
        QVERIFY(m_case.mark({}));
        m_case.setStep(s("io.changes = ['new-1-1.noarch'], [], ['alpha.x86_64 1-1 -> 2-1']"));
        m_case.engine.clear();
        QVERIFY(m_case.engine.collect({}));
        m_case.row(s("beta"))->action = Package::Action::Install;
        QVERIFY(!m_case.engine.apply());
        QStringList changes;
        QVERIFY(m_case.engine.outdated(&changes));
        QCOMPARE(changes, QStringList({s("Installed: new-1-1.noarch"),
                                       s("Changed: alpha.x86_64 1-1 -> 2-1")}));
        QCOMPARE(m_case.calls().filter(s("apply")), QStringList());
        QCOMPARE(answers.texts(), QStringList());
        QVERIFY(m_case.mark({}));
        QVERIFY(!m_case.engine.outdated());
    }

private:
    Scripted m_case;
};

QTEST_MAIN(TestApply)
#include "test_apply.moc"
