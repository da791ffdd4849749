// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "scripted.h"

#include <QTranslator>

#include <sys/wait.h>
#include <unistd.h>

// Failures of the script, and what the user hears and is asked besides.
class TestErrors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_german.load(s("vok_de"), qEnvironmentVariable("VOKSHARE") + s("/translations")));
        QVERIFY(m_case.start("shop.py"));
    }

    // What the script says is in the catalogue under the name that the callback asks for.
    void translates()
    {
        const char *const text = "The newest version cannot be installed.";
        const QString german = m_german.translate("YumIO script", text);
        QVERIFY(!german.isEmpty());
        qApp->installTranslator(&m_german);
        Answers answers;
        m_case.apply({}, s("yumIOC.log(9, yumIOC.tr('%1'))").arg(QLatin1String(text)), answers);
        qApp->removeTranslator(&m_german);
        QVERIFY(m_case.logged().contains(s("0/9 ") + german));
    }

    void mapsExceptions_data()
    {
        columns<QString, QString, bool>("source", "dialog", "walkback");
        const char *const generic =
            "Internal error: python exception occurred from C code.\n"
            "When reporting this issue, please include the contents of the\n"
            "Log window, which should contain a walkback.";
        row("input", "raise OSError(5, 'no disk')",
            "Unable to apply changes: I/O Error: [Errno 5] no disk\n\n"
            "Emitting a walkback to the Log window.",
            true);
        row("interrupt", "raise KeyboardInterrupt()",
            "Unable to apply changes: KeyboardInterrupt\n\n"
            "This usually means VOK was sent signal SIGINT, SIGTERM, or similar.\n\n"
            "But urlgrabber also can raise this error for several situations where it is just "
            "guessing.\nSo, emitting a walkback to the Log window.",
            true);
        row("assertion", "assert 1 == 2",
            "Internal error: python assertion failed\n"
            "When reporting this issue, please include the contents of the\n"
            "Log window, which should contain a walkback.",
            true);
        row("mirrors", "raise NoMoreMirrorsRepoError('http://u:pw@h: 404')",
            "Unable to apply changes: metadata unavailable from all repo mirrors:\n"
            "http://u:**@h: 404",
            false);
        row("locked sqlite", "import sqlite3\nraise sqlite3.OperationalError('database is locked')",
            "Unable to apply changes: a repository's sqlite database was locked unexpectedly\n"
            "On some distributions, PackageKit has been known to cause this.",
            false);
        row("library with its errors before",
            "yumIOC.errorlog(0, 'mirror a: refused')\nyumIOC.errorlog(3, 'detail')\n"
            "yumIOC.log(0, 'other')\nimport sys\nyumIOC.stderrWrite('written\\n')\n"
            "raise GroupsError('no such')",
            "mirror a: refused\nwritten\nno such\nUnable to apply changes", false);
        row("anything else", "raise ValueError('odd')", generic, true);
    }

    void mapsExceptions()
    {
        QFETCH(QString, source);
        QFETCH(bool, walkback);
        Answers answers({s("OK")});
        // Confirmed or not, a transaction that raises was not applied.
        QVERIFY(!m_case.apply({}, s("yumIOC.listTransaction(io)\nyumIOC.userconfirm()\n") + source,
                              answers));
        QTEST(answers.texts().mid(1).join(u'|'), "dialog");
        QCOMPARE(answers.titles().constLast(), s("VOK Yum Error"));
        const QStringList logged = m_case.logged();
        QVERIFY(logged.contains(s("0/0 cleaned up")));
        QCOMPARE(!logged.filter(s("Traceback (most recent call last)")).isEmpty(), walkback);
        QVERIFY(!m_case.totalBar.isEnabled());
    }

    // A cancellation is no failure that needs a dialog; the same exception without one is.
    void cancelsQuietly()
    {
        for (const bool cancel : {true, false}) {
            Answers answers;
            const auto connection = connect(
                &m_case.engine, qOverload<const QString &, bool>(&YumIO::jobState), this,
                [&](const QString &state, bool) {
                    if (cancel && state == s("download"))
                        m_case.engine.cancel();
                },
                Qt::DirectConnection);
            m_case.apply({},
                         s("class CancelledError(YumBaseError): pass\n"
                           "yumIOC.log(9, 'first %d' % yumIOC.cancelled())\n"
                           "yumIOC.jobState('download', 1)\n"
                           "yumIOC.log(9, 'then %d' % yumIOC.cancelled())\n"
                           "yumIOC.userconfirm()\n"
                           "raise CancelledError('Cancelled by the user')"),
                         answers);
            disconnect(connection);
            QCOMPARE(answers.shown.size(), cancel ? 0 : 2);
            const QStringList logged = m_case.logged();
            QVERIFY(logged.contains(s("0/9 first 0")));
            QVERIFY(logged.contains(cancel ? s("0/9 then 1") : s("0/9 then 0")));
            QVERIFY(logged.contains(cancel ? s("2/0 Cancelled by the user")
                                           : s("3/0 Cancelled by the user")));
            QVERIFY(logged.contains(s("0/0 cleaned up")));
        }
    }

    void reapsChildren()
    {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(3);
        siginfo_t info;
        QCOMPARE(::waitid(P_PID, id_t(child), &info, WEXITED | WNOWAIT), 0); // it has ended
        Answers answers;
        m_case.apply({}, QString(), answers);
        const QString line = s("2/0 Reaped zombie child %1").arg(child);
        QCOMPARE(m_case.logged().count(line), 1);
        m_case.apply({}, QString(), answers);
        QVERIFY(m_case.logged().filter(s("Reaped")).isEmpty());
        QCOMPARE(answers.texts(), QStringList());
    }

    // For the script's time the program's own handler does not take the children of rpm.
    void putsTheChildHandlerBack()
    {
        struct sigaction own = {}, found = {};
        own.sa_handler = [](int) {};
        own.sa_flags = SA_RESTART;
        ::sigaction(SIGCHLD, &own, nullptr);
        Answers answers;
        m_case.apply({},
                     s("import signal\n"
                       "yumIOC.log(9, 'default %s' % (signal.getsignal(signal.SIGCHLD),))\n"
                       "text = open('/proc/self/status').read()\n"
                       "caught = int(text.split('SigCgt:')[1].split()[0], 16)\n"
                       "yumIOC.log(9, 'caught %d' % (caught >> (signal.SIGCHLD - 1) & 1))"),
                     answers);
        ::sigaction(SIGCHLD, nullptr, &found);
        QVERIFY(m_case.logged().contains(s("0/9 caught 0")));
        QVERIFY(found.sa_handler == own.sa_handler);
        ::signal(SIGCHLD, SIG_DFL);
    }

    void asksTheAdditionalQuestions()
    {
        Answers answers({s("Wait"), s("Give Up")});
        QStringList states;
        const auto connection = connect(
            &m_case.engine, qOverload<const QString &, bool>(&YumIO::jobState), this,
            [&](const QString &state, bool can) { states.append(state + (can ? u'+' : u'-')); });
        m_case.apply({}, s(R"(
yumIOC.jobState('lock', 1)
answers = [yumIOC.lockWait(42, 'dnf upgrade <b>'), yumIOC.lockWait(42, 'dnf'), yumIOC.cancelled()]
yumIOC.jobState('transaction', 0)
yumIOC.log(9, repr(answers))
)"),
                     answers);
        disconnect(connection);
        QVERIFY2(m_case.logged().contains(s("0/9 [1, 0, 1]")),
                 qPrintable(m_case.logged().join(u'|')));
        QVERIFY(answers.texts().constFirst().contains(s("dnf upgrade <b> (process 42)")));
        QVERIFY2(states.contains(s("lock+")) && states.contains(s("transaction-")),
                 qPrintable(states.join(u' ')));
    }

    // The question of a key must not disturb the text that a later confirmation shows, or the bars.
    void asksForKeys()
    {
        for (const bool yes : {true, false}) {
            Answers answers({yes ? s("Yes") : s("none"), s("OK")});
            m_case.apply({}, s(R"(
yumIOC.listTransaction(io)
key = yumIOC.keyQuestion('ABCD', 'Ann <a@b>', '01 02', 'file:///k')
yumIOC.userconfirm()
yumIOC.log(9, 'key %r' % key)
)"),
                         answers);
            QVERIFY(m_case.logged().contains(s("0/9 key %1").arg(int(yes))));
            const QString question = answers.texts().value(0);
            for (const char *part : {"ABCD", "Ann <a@b>", "01 02", "file:///k"})
                QVERIFY2(question.contains(s(part)), part);
            QCOMPARE(answers.texts().value(1), s("Transaction to be performed:\n"));
        }
    }

    void reportsTheTransaction_data()
    {
        columns<QString, QString, QString, bool, QStringList>("elements", "dialogs", "summary",
                                                              "unread", "kept");
        const QString done = s("[('0:a-1-1.x', 'done', '')]");
        row("all done", done, QString(), s("1/0 Transaction: 1 done, 0 failed, 0 skipped"), false,
            QStringList());
        row("some not",
            s("[('0:a-1-1.x', 'done', ''), ('0:b-1-1.x', 'failed', 'scriptlet'),"
              " ('0:c-1-1.x', 'skipped', ''), ('0:d-1-1.x', 'done', '%post')]"),
            s("Transaction: 2 done, 1 failed, 1 skipped\n\nFailed:\n\t0:b-1-1.x: scriptlet\n\n"
              "Skipped:\n\t0:c-1-1.x\n\nDone, with errors:\n\t0:d-1-1.x: %post\n\n"
              "Done:\n\t0:a-1-1.x\n"),
            s("3/0 Transaction: 2 done, 1 failed, 1 skipped"), false, QStringList());
        // What the engine is told once stays so: the last row.
        row("nobody there", done, QString(), s("1/0 Transaction: 1 done, 0 failed, 0 skipped"),
            true,
            QStringList(s("Transaction: 1 done, 0 failed, 0 skipped\n\nDone:\n\t0:a-1-1.x\n")));
    }

    void reportsTheTransaction()
    {
        QFETCH(QString, elements);
        QFETCH(QString, summary);
        QFETCH(bool, unread);
        Answers answers;
        QStringList kept;
        int removals = 0;
        m_case.engine.setReportKeeper(
            {[&](const QString &text) { kept += text; },
             [&](const QString &text) { removals += kept.removeAll(text); }});
        if (unread)
            m_case.engine.leaveReportsUnread();
        m_case.apply({}, s("yumIOC.transactionReport(%1)").arg(elements), answers);
        m_case.engine.setReportKeeper({});
        kept.removeDuplicates();
        QTEST(kept, "kept");
        QCOMPARE(removals > 0, !answers.texts().isEmpty()); // what was shown was kept until then
        QTEST(answers.texts().join(u'|'), "dialogs");
        QVERIFY(m_case.logged().contains(summary));
    }

    void cleans_data()
    {
        columns<QString, bool, bool>("source", "one", "all");
        row("clean", s("result = (0, [])"), true, true);
        row("headers fail", s("result = (method == 'cleanHeaders', [])"), false, false);
        row("the last fails", s("result = (int(method == 'cleanSqlite'), [])"), true, false);
        row("an exception", s("raise YumBaseError('x')"), false, false);
    }

    void cleans()
    {
        QFETCH(QString, source);
        Answers answers;
        QVERIFY(m_case.mark({}));
        m_case.setStep(source);
        QTEST(m_case.engine.cleanHeaders(), "one");
        QTEST(m_case.engine.cleanAll(), "all");
        QStringList logged = m_case.logged();
        logged = logged.filter(QRegularExpression(s("^(4/0|0/9) ")));
        QCOMPARE(logged,
                 QStringList({s("4/0 Cleaning Headers"), s("0/9 cleanHeaders"),
                              s("4/0 Cleaning All"), s("0/9 cleanHeaders"), s("0/9 cleanPackages"),
                              s("0/9 cleanMetadata"), s("0/9 cleanSqlite")}));
    }

private:
    QTranslator m_german;
    Scripted m_case;
};

QTEST_MAIN(TestErrors)
#include "test_errors.moc"
