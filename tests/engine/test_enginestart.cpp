// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "scripted.h"

#include "app/programname.h"

#include <QDir>

namespace {

const QString unexpected = s("Internal error: python exception occurred from C code.\n"
                             "When reporting this issue, please include the contents of the\n"
                             "Log window, which should contain a walkback.\n");

} // namespace

// The start of the engine on one broken script after the other, and at last on one that works: a
// failed start leaves nothing behind that would hinder the next.
class TestStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir(m_share.path()).mkdir(s("python")));
        qputenv("VOKSHARE", m_share.path().toUtf8());
        m_engine.setup(&m_window, &m_totalBar, &m_itemBar);
    }

    void starts_data()
    {
        // text: of the dialogs; logged: a line of the log
        columns<QString, QString, QString>("script", "text", "logged");

        const QString cannotRun = unexpected + s("Internal error: unable to execute YumIO.py");
        const QString lacks =
            s("Internal error: unable to %1\n\n%2\n\nVOK needs its share directory, which is ") +
            m_share.path();
        const QString script = m_share.filePath(s("python/YumIO.py: No such file or directory"));
        row("no script", "", lacks.arg(s("open YumIO.py"), script), qPrintable(script));
        row("syntax", "class YumIO\n", cannotRun, "SyntaxError: expected ':'");
        row("missing module", "import absent_module\n",
            lacks.arg(s("execute YumIO.py"), s("No module named 'absent_module'")),
            "ModuleNotFoundError: No module named 'absent_module'");
        row("wants to end the program", "import sys\nsys.exit('so')\n", cannotRun,
            "SystemExit: so");
        row("no class", "pass\n", s("Internal error: cannot find python YumIO"),
            "Internal error: cannot find python YumIO");
        row("refuses",
            "class YumIO:\n    def __init__(self): raise SystemExit('wrong configuration')\n",
            s("wrong configuration\nUnable to initialize"), "Unable to initialize");
        row("fails", "class YumIO:\n    def __init__(self): raise ValueError('bad')\n",
            unexpected + s("Internal error: cannot create python yumIO"), "ValueError: bad");
        QFile working(s(VOK_DOUBLE "/python/YumIO.py"));
        QVERIFY(working.open(QIODevice::ReadOnly));
        row("works",
            QString::fromUtf8(working.readAll() + "yumIOC.log(0, 'argv ' + repr(sys.argv))\n"),
            QString(), "argv ['test', 'info']");
        row("has worked", "raise ValueError\n", QString(), "argv ['test', 'info']"); // not run
    }

    void starts()
    {
        QFETCH(QString, script);
        QFETCH(QString, text);
        QFETCH(QString, logged);

        QFile file(m_share.filePath(s("python/YumIO.py")));
        if (!script.isEmpty()) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(script.toUtf8());
            file.close();
        }
        qputenv("VOK_TEST_SCENARIO", "/dev/null");
        Answers answers;
        QCOMPARE(m_engine.initialize(), text.isEmpty());
        const QString said = answers.texts().join(u'\n');
        QCOMPARE(said.left(said.indexOf(s(" (the environment"))), text);
        QMutexLocker lock(&m_engine.logList().mutex());
        QVERIFY(std::any_of(m_engine.logList().entries().cbegin(),
                            m_engine.logList().entries().cend(),
                            [&](const Log::Entry &entry) { return entry.text == logged; }));
    }

private:
    QWidget m_window;
    HProgressBar m_totalBar;
    HProgressBar m_itemBar;
    YumIO m_engine;
    QTemporaryDir m_share;
};

int main(int argc, char **argv)
{
    setProgramName("test");
    QApplication app(argc, argv);
    TestStart test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_enginestart.moc"
