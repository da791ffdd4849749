#include "answers.h"

#include "app/programname.h"
#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QDir>
#include <QMutexLocker>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString unexpected =
    QStringLiteral("Internal error: python exception occurred from C code.\n"
                   "When reporting this issue, please include the contents of the\n"
                   "Log window, which should contain a walkback.");

const QByteArray workingScript =
    "import sys, types, yumIOC\n"
    "def exceptions(name, *types_):\n"
    "    sys.modules[name] = types.SimpleNamespace(__name__=name)\n"
    "    made = types.ModuleType(name)\n"
    "    for one in types_: setattr(made, one, type(one, (Exception,), {}))\n"
    "    sys.modules[name] = made\n"
    "    return made\n"
    "yum = exceptions('yum')\n"
    "yum.Errors = exceptions('yum.Errors', 'YumBaseError', 'RepoError', 'LockError', "
    "'GroupsError')\n"
    "class YumIO:\n"
    "    def __init__(self): yumIOC.log(0, 'argv ' + repr(sys.argv))\n";

} // namespace

// The start of the engine on one broken script after the other, and at last on one that works: a
// failed start leaves nothing behind that would hinder the next.
class TestStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void starts_data();
    void starts();
    void withoutDetails();

private:
    QStringList logged();

    QWidget m_window;
    HProgressBar m_totalBar;
    HProgressBar m_itemBar;
    YumIO m_engine;
    QTemporaryDir m_share;
};

void TestStart::initTestCase()
{
    QVERIFY(QDir(m_share.path()).mkdir(QStringLiteral("python")));
    qputenv("VOKSHARE", m_share.path().toUtf8());
    m_engine.setup(&m_window, &m_totalBar, &m_itemBar);
}

QStringList TestStart::logged()
{
    QMutexLocker lock(&m_engine.logList().mutex());
    QStringList result;
    for (const Log::Entry &entry : m_engine.logList().entries())
        result.append(entry.text);
    return result;
}

void TestStart::starts_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QStringList>("texts"); // of the dialogs
    QTest::addColumn<QString>("logged");    // a line of the log

    const auto row = [](const char *name, const QByteArray &script, const QStringList &texts,
                        const char *logged) {
        QTest::newRow(name) << script << texts << QString::fromLatin1(logged);
    };
    const auto internal = [](const char *text) {
        return QStringLiteral("Internal error: ") + QLatin1String(text);
    };
    row("no script", QByteArray(),
        {internal("unable to open YumIO.py") + u'\n' +
         m_share.filePath(QStringLiteral("python/YumIO.py")) +
         QStringLiteral(": No such file or directory")},
        "Internal error: unable to open YumIO.py");
    row("syntax", "class YumIO\n",
        {unexpected, internal("unable to execute YumIO.py\nexpected ':' (YumIO.py, line 1)")},
        "Internal error: unable to execute YumIO.py");
    row("missing module", "import absent_module\n",
        {unexpected, internal("unable to execute YumIO.py\nNo module named 'absent_module'")},
        "ModuleNotFoundError: No module named 'absent_module'");
    row("wants to end the program", "import sys\nsys.exit('so')\n",
        {unexpected, internal("unable to execute YumIO.py\nso")}, "SystemExit: so");
    row("no class", "pass\n", {internal("cannot find python YumIO")},
        "Internal error: cannot find python YumIO");
    row("refuses",
        "class YumIO:\n    def __init__(self): raise SystemExit('wrong configuration')\n",
        {QStringLiteral("wrong configuration\nUnable to initialize")}, "Unable to initialize");
    row("fails", "class YumIO:\n    def __init__(self): raise ValueError('bad')\n",
        {unexpected, internal("cannot create python yumIO\nbad")}, "ValueError: bad");
    row("works", workingScript, {}, "argv ['test', 'info']");
    // Not run again.
    row("has worked", "raise ValueError\n", {}, "argv ['test', 'info']");
}

void TestStart::starts()
{
    QFETCH(QByteArray, script);
    QFETCH(QStringList, texts);
    QFETCH(QString, logged);

    QFile file(m_share.filePath(QStringLiteral("python/YumIO.py")));
    if (!script.isEmpty()) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.close();
    }
    Answers answers;
    QCOMPARE(m_engine.initialize(), texts.isEmpty());
    QCOMPARE(answers.texts(), texts);
    QVERIFY2(this->logged().contains(logged), qPrintable(this->logged().join(u'\n')));
}

// A script that knows its version nowhere is of the oldest library.
void TestStart::withoutDetails()
{
    Answers answers;
    QCOMPARE(m_engine.yumVersionStr(), QString());
    QCOMPARE(m_engine.yumVersion(), 0);
    QVERIFY(m_engine.hasTransTest() && m_engine.hasPickledCache());
    QVERIFY(!m_engine.hasDistribGroups() && !m_engine.hasSqliteCache());
    QCOMPARE(m_engine.getYumVar(QStringLiteral("basearch")), QString());
    QCOMPARE(answers.texts(), QStringList());

    // Each is asked once.
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!m_engine.usesSqlite());
        QVERIFY(!m_engine.usesPresto());
    }
    QCOMPARE(answers.texts(),
             QStringList({QStringLiteral("Internal error: usesSqlite not found\n"),
                          QStringLiteral("Internal error: usesSqlite not found\n"),
                          QStringLiteral("Internal error: method usesPresto not found\n")}));
}

int main(int argc, char **argv)
{
    setProgramName("test");
    QApplication app(argc, argv);
    TestStart test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_enginestart.moc"
