#include "app/colors.h"
#include "app/execute.h"
#include "app/fonts.h"
#include "app/harmless.h"
#include "app/programname.h"
#include "app/share.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void share()
    {
        const QByteArray outer = qgetenv("VOKSHARE");
        qputenv("VOKSHARE", "/opt/vok");
        QCOMPARE(Share::absolute(QStringLiteral("a/b%1")), QStringLiteral("/opt/vok/a/b%1"));
        qputenv("VOKSHARE", "");
        QCOMPARE(Share::absolute(QStringLiteral("a")), QStringLiteral("/a"));
        qunsetenv("VOKSHARE");
        QCOMPARE(Share::absolute(QStringLiteral("a")), QStringLiteral("/usr/share/vok/a"));
        qputenv("VOKSHARE", outer);
    }

    void programNames()
    {
        setProgramName("/usr/bin/vok");
        QCOMPARE(programName(), QStringLiteral("vok"));
        setProgramName("vok2");
        QCOMPARE(programName(), QStringLiteral("vok2"));
    }

    void palettes()
    {
        QPalette palette(Qt::gray);
        palette.setColor(QPalette::All, QPalette::Base, Qt::white);
        const QPalette error = Colors::makeError(palette);
        QCOMPARE(error.color(QPalette::Active, QPalette::Base), QColor(0xff, 0x60, 0x60));
        QCOMPARE(error.color(QPalette::Inactive, QPalette::Base), QColor(0xff, 0x60, 0x60));
        QCOMPARE(error.color(QPalette::Disabled, QPalette::Base), QColor(Qt::white));
        QCOMPARE(error.color(QPalette::Window), palette.color(QPalette::Window));
        const auto base = [](const QPalette &made) { return made.color(QPalette::Base).name(); };
        QCOMPARE(base(Colors::makeRequired(palette)), QStringLiteral("#fffacd"));
        QCOMPARE(base(Colors::makeWarning(palette)), QStringLiteral("#ffff00"));
        QCOMPARE(base(Colors::makeOK(palette)), QStringLiteral("#90ee90"));
    }

    void headerFont()
    {
        QFont font;
        font.setPixelSize(11);
        QCOMPARE(Fonts::makeHeader(font).pixelSize(), 16);
        font.setPointSize(9);
        QCOMPARE(Fonts::makeHeader(font).pointSize(), 13);
        QVERIFY(Fonts::makeHeader(font).bold());
        QVERIFY(!font.bold());
    }

    void fixedFont()
    {
        const QFont fixed = Fonts::makeFixed(QFont());
        QVERIFY(fixed.fixedPitch());
        if (!QFontDatabase::families().contains(QStringLiteral("DejaVu Sans Mono")))
            QSKIP("no font of the list is installed");
        QVERIFY2(QFontInfo(fixed).fixedPitch(), qPrintable(QFontInfo(fixed).family()));
        QCOMPARE(QFontInfo(fixed).family(), fixed.family());
    }

    void harmlessTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");
        const auto row = [](const char *name, QStringView text, QStringView result) {
            QTest::newRow(name) << text.toString() << result.toString();
        };
        row("plain", u"a\tb\nc <&> \u00e9", u"a\tb\nc <&> \u00e9");
        row("line ends", u"a\r\nb\rc", u"a\nb\ufffdc");
        row("controls", u"\x1b[31m\x7f\x9b", u"\ufffd[31m\ufffd\ufffd");
        row("order", u"a\u202eb\u2066c", u"a\ufffdb\ufffdc");
        row("marks of a script", u"\u05d0\u200f!", u"\u05d0\u200f!");
        row("pair", u"\U0001f600", u"\U0001f600");
        const char16_t lone[] = {u'a', 0xdc00, 0xd800, u'b', 0xd83d, 0};
        row("lone surrogates", lone, u"a\ufffd\ufffdb\ufffd");
    }

    void harmlessTexts()
    {
        QFETCH(QString, text);
        QTEST(harmless(text), "result");
    }

    // The launched program is nobody's zombie, has no descriptor of ours, and gets its arguments as
    // they are.
    void executes()
    {
        const int leaked = open("/dev/null", O_RDONLY);
        QVERIFY(leaked > 2);
        run("echo \"$1|$2\" > $0.tmp; echo $PPID >> $0.tmp; ls /proc/$$/fd >> $0.tmp",
            {"a b", "$HOME"});
        close(leaked);
        QCOMPARE(m_lines.value(0), QStringLiteral("a b|$HOME"));
        QVERIFY(m_lines.value(1).toInt() != getpid());
        QVERIFY(!m_lines.contains(QString::number(leaked)));
        QVERIFY(m_lines.contains(QStringLiteral("2")));
        // No child is left to wait for.
        QCOMPARE(waitpid(-1, nullptr, WNOHANG), -1);
        QCOMPARE(errno, ECHILD);
    }

    void executesNothing()
    {
        QTemporaryDir dir;
        const QByteArray path = QFile::encodeName(dir.filePath(QStringLiteral("missing")));
        int ends[2];
        QCOMPARE(pipe(ends), 0);
        const int standardError = dup(2);
        dup2(ends[1], 2);
        QByteArray name = path;
        char *argv[] = {name.data(), nullptr};
        Execute::execute(nullptr, argv);
        dup2(standardError, 2);
        close(standardError);
        close(ends[1]);
        QFile reader;
        QVERIFY(reader.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
        // Ends when the launched process does.
        QCOMPARE(reader.readAll(),
                 "execv(\"" + path + "\", ...) failed; errno = 2 (No such file or directory)\n");
    }

    void executesAsTheInvokingUser()
    {
        const passwd *user = getpwnam("nobody");
        if (geteuid() != 0 || !user)
            QSKIP("needs root and a user to become");
        const QByteArray uid = QByteArray::number(user->pw_uid);
        qputenv("SUDO_UID", uid);
        qputenv("SUDO_GID", QByteArray::number(user->pw_gid));
        run("{ id -u; id -g; id -G; echo $HOME; echo \"<$SUDO_UID>\"; } > $0.tmp", {});
        qunsetenv("SUDO_UID");
        qunsetenv("SUDO_GID");
        QCOMPARE(m_lines.value(0).toLatin1(), uid);
        QCOMPARE(m_lines.value(1).toLatin1(), QByteArray::number(user->pw_gid));
        QVERIFY(!m_lines.value(2).split(u' ').contains(QStringLiteral("0")));
        QCOMPARE(m_lines.value(3), QString::fromLocal8Bit(user->pw_dir));
        QCOMPARE(m_lines.value(4), QStringLiteral("<>"));
    }

    // Rather nothing than a viewer with root's rights.
    void executesNothingForAnUnknownUser()
    {
        if (geteuid() != 0)
            QSKIP("needs root");
        QTemporaryDir dir;
        QByteArray file = QFile::encodeName(dir.filePath(QStringLiteral("made")));
        QByteArray program("/bin/sh"), option("-c"), script("> $0");
        char *argv[] = {program.data(), option.data(), script.data(), file.data(), nullptr};
        int ends[2];
        QCOMPARE(pipe(ends), 0);
        const int standardError = dup(2);
        dup2(ends[1], 2);
        qputenv("PKEXEC_UID", "3999999999");
        Execute::execute(nullptr, argv);
        qunsetenv("PKEXEC_UID");
        dup2(standardError, 2);
        close(standardError);
        close(ends[1]);
        QFile reader;
        QVERIFY(reader.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
        QVERIFY(reader.readAll().startsWith("unable to become the invoking user"));
        QVERIFY(!QFile::exists(QFile::decodeName(file)));
    }

private:
    // Runs a shell script that writes $0.tmp, and reads what it wrote once it is complete.
    void run(const char *script, const QList<QByteArray> &arguments)
    {
        QTemporaryDir dir;
        chmod(QFile::encodeName(dir.path()).constData(), 0777);
        const QString path = dir.filePath(QStringLiteral("out"));
        QList<QByteArray> words{"/bin/sh", "-c", QByteArray(script) + "; mv $0.tmp $0",
                                QFile::encodeName(path)};
        words += arguments;
        QList<char *> argv;
        for (QByteArray &word : words)
            argv.append(word.data());
        argv.append(nullptr);
        Execute::execute(nullptr, argv.data());
        QFile file(path);
        QTRY_VERIFY_WITH_TIMEOUT(file.exists(), 30000);
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_lines = QString::fromLocal8Bit(file.readAll()).split(u'\n');
    }

    QStringList m_lines;
};

QTEST_MAIN(TestBase)
#include "test_base.moc"
