// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "app/execute.h"
#include "app/harmless.h"
#include "app/share.h"
#include "app/uninterrupted.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
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

    // What root may load: each row changes one thing of a sound share directory, or its owner.
    void shareRefused_data()
    {
        columns<QString, int, int, QString>("path", "mode", "owner", "refused");
        row("sound", "", 0755, 0, "");
        row("the program's owner", "share/python", 0755, 1000, "");
        row("another owner", "share/python/YumIO.py", 0644, 1001, "YumIO.py belongs to 1001");
        row("a directory above", "share", 0777, 0, "share, which belongs to root, can be changed");
        row("a module for all", "share/python/YumIO.py", 0666, 0, "YumIO.py, which");
        row("sticky", "share", 01777, 0, "");
        row("own group", "share/python", 0775, 0, "");
        row("a program's link", "link", 0777, 1001, "link belongs to 1001");
    }

    void shareRefused()
    {
        if (geteuid() != 0)
            QSKIP("only root can give files away");
        QFETCH(QString, path);
        QFETCH(int, mode);
        QFETCH(int, owner);
        QFETCH(QString, refused);
        QTemporaryDir place;
        const QString top = place.path() + u'/';
        QVERIFY(QDir(top).mkpath(QStringLiteral("share/python")));
        QFile script(top + QStringLiteral("share/python/YumIO.py"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.close();
        QVERIFY(QFile::link(QStringLiteral("share"), top + QStringLiteral("link")));
        const QByteArray changed = QFile::encodeName(top + path);
        const bool isLink = path == QStringLiteral("link");
        QCOMPARE(lchown(changed.constData(), uid_t(owner), gid_t(owner)), 0);
        QVERIFY(isLink || chmod(changed.constData(), mode_t(mode)) == 0);
        const QString said = Share::refusal(
            QFile::encodeName(top + (isLink ? path : QStringLiteral("share"))), 1000);
        QVERIFY2(refused.isEmpty() ? said.isEmpty() : said.contains(refused), qPrintable(said));
    }

    void harmlessTexts_data()
    {
        columns<QString, QString>("text", "result");
        const char *const plain = "a\tb\nc <&> \u00e9 \u05d0! \U0001f600";
        row("harmless", plain, plain);
        row("marks", "\u05d0\u200f!\u061c \u200e", "\u05d0! ");
        row("line ends", "a\r\nb\rc", "a\nb\ufffdc");
        row("controls", "\x1b[31m\x7f\u009b", "\ufffd[31m\ufffd\ufffd");
        row("order", "a\u202eb\u2066c", "a\ufffdb\ufffdc");
        const char16_t lone[] = {u'a', 0xdc00, 0xd800, u'b', 0xd83d, 0};
        row("lone surrogates", QString::fromUtf16(lone), "a\ufffd\ufffdb\ufffd");
    }

    void harmlessTexts()
    {
        QFETCH(QString, text);
        QTEST(harmless(text), "result");
    }

    // A place for one line, a tip, a page and a label take no more than they can show.
    void harmlessPlaces()
    {
        const QString word(300'000, u'x'), dots = QStringLiteral("\u2026");
        QCOMPARE(harmlessLine(QStringLiteral("a\n b\u202e\tc")), QStringLiteral("a b\ufffd c"));
        QCOMPARE(harmlessLine(word), word.left(1000) + dots);
        QCOMPARE(harmlessLabel(QStringLiteral("a&b")), QStringLiteral("a&&b"));
        const QString before = QStringLiteral("a\n"), after = QStringLiteral("\nb\n");
        QCOMPARE(harmlessPage(before + word + after), before + word.left(10'000) + dots + after);
        QCOMPARE(harmlessPage(QStringLiteral("a\nb")), QStringLiteral("a\nb"));
        const QStringList tip = harmlessTip(word + u'\n' + word).split(u'\n');
        QCOMPARE(tip.size(), 21);
        QVERIFY(std::all_of(tip.begin(), tip.end(),
                            [](const QString &row) { return row.size() <= 101; }));
        QCOMPARE(harmlessTip(QStringLiteral("w ").repeated(60)).count(u'\n'), 1);
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

    // A program that is not there is told; one that could only run with rights that it must not
    // have does not run.
    void executesNothing()
    {
        QCOMPARE(complaint("/nonexistent/viewer"),
                 "execv(\"/nonexistent/viewer\", ...) failed; errno = 2 (No such file or "
                 "directory)\n");
        if (geteuid() != 0)
            QSKIP("the rest needs root");
        qputenv("PKEXEC_UID", "3999999999");
        const QByteArray text = complaint("/bin/true");
        qunsetenv("PKEXEC_UID");
        QVERIFY2(text.startsWith("unable to become the invoking user"), text.constData());
    }

    void executesAsTheInvokingUser()
    {
        const passwd *user = getpwnam("nobody");
        if (geteuid() != 0 || !user)
            QSKIP("needs root and a user to become");
        const QByteArray uid = QByteArray::number(user->pw_uid);
        qputenv("SUDO_UID", uid);
        qputenv("SUDO_GID", QByteArray::number(user->pw_gid));
        qputenv("VOK_OWN_BROWSER", "mine");
        run("{ id -u; id -g; id -G; echo $HOME; echo \"$SUDO_UID$BROWSER\"; } > $0.tmp", {});
        char id[] = "/usr/bin/id", option[] = "-u";
        char *argv[] = {id, option, nullptr};
        QString said;
        QVERIFY(Execute::ask(argv, said));
        QCOMPARE(said.toLatin1(), uid);
        qunsetenv("SUDO_UID");
        qunsetenv("SUDO_GID");
        QCOMPARE(m_lines.value(0).toLatin1(), uid);
        QCOMPARE(m_lines.value(1).toLatin1(), QByteArray::number(user->pw_gid));
        QVERIFY(!m_lines.value(2).split(u' ').contains(QStringLiteral("0")));
        QCOMPARE(m_lines.value(3), QString::fromLocal8Bit(user->pw_dir));
        QCOMPARE(m_lines.value(4), QStringLiteral("mine"));
    }

    // Neither a signal nor the end of the display ends what must not be interrupted.
    void finishesBeforeLeaving()
    {
        const pid_t child = fork();
        if (child == 0) {
            signal(SIGINT, SIG_DFL); // not Qt Test's
            std::atomic<bool> abandoned = false, begun = false, finished = false;
            int served = 0;
            const Uninterrupted::Server server([&] { abandoned = true; },
                                               [&] { return ++served > 3 && finished; });
            std::thread worker([&] {
                const Uninterrupted uninterrupted;
                for (const int signal : {SIGINT, SIGUSR1, SIGALRM, SIGRTMIN})
                    kill(getpid(), signal);
                begun = true;
                while (!abandoned)
                    usleep(1000);
                finished = true;
            });
            while (!begun)
                usleep(1000);
            const bool atOnce = Uninterrupted::leave() == Uninterrupted::Leave::AtOnce;
            _exit(atOnce && abandoned && finished && served > 3 ? 0 : 1);
        }
        int status = -1;
        QTRY_VERIFY(waitpid(child, &status, WNOHANG) != 0);
        QCOMPARE(status, 0);
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

    // What a launched program, or the launch, writes to standard error.
    static QByteArray complaint(QByteArray program)
    {
        int ends[2];
        if (pipe(ends) == -1)
            return QByteArray();
        const int standardError = dup(2);
        dup2(ends[1], 2);
        char *argv[] = {program.data(), nullptr};
        Execute::execute(nullptr, argv);
        dup2(standardError, 2);
        close(standardError);
        close(ends[1]);
        QFile reader;
        if (!reader.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
            return QByteArray();
        return reader.readAll(); // ends when the launched process does
    }

    QStringList m_lines;
};

QTEST_MAIN(TestBase)
#include "test_base.moc"
