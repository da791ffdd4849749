// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configroot.h"
#include "rows.h"

#include <QTest>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestYumConfIO : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainFile()
    {
        const QStringList all = {u"/etc/yum/yum.conf"_s, u"/etc/yum.conf"_s,
                                 u"/etc/dnf/dnf.conf"_s};
        for (int first = 0; first < all.size(); ++first) {
            ConfigRoot root;
            QFile::remove(root.real(root.mainFile()));
            for (const QString &path : all.mid(first))
                root.put(path, "[main]\n#" + path.toUtf8() + "\n");
            QCOMPARE(YumConfIO::fileName(), all[first]);
            QVERIFY(root.io.read(nullptr) && root.io.write(nullptr));
            QCOMPARE(root.get(all[first]), "[main]\n#" + all[first].toUtf8() + '\n');
        }
        ConfigRoot root;
        // A directory of repositories need not be there before there are some.
        QVERIFY(QDir().rmdir(root.real(u"/etc/yum.repos.d"_s)));
        Repo::Entry fresh;
        fresh.id = u"fresh"_s;
        QVERIFY(root.io.read(nullptr));
        root.io.repos += fresh;
        QVERIFY(root.io.write(nullptr) && root.has(root.repo(u"fresh"_s)));

        QFile::remove(root.real(root.mainFile()));
        Answer answer(0);
        QVERIFY(!root.io.read(nullptr));
        QCOMPARE(answer.said,
                 QStringList{u"Unable to read yum configuration file "
                             "/etc/yum.conf; errno = 2 (No such file or directory)."_s});
    }

    void options()
    {
        QString value = u"before"_s;
        QVERIFY(YumConfIO::isOption(u"name \t= \tx y \n  z "_s, u"name"_s, value));
        QCOMPARE(value, u"x y \n  z "_s);
        QVERIFY(YumConfIO::isOption(u"name:"_s, u"name"_s, value));
        QCOMPARE(value, QString());
        for (const QString &line : {u"names=x"_s, u"nam=x"_s, u" name=x"_s, u"Name=x"_s, u"name"_s,
                                    u"a:name=x"_s, u"#name=x"_s})
            QVERIFY2(!YumConfIO::isOption(line, u"name"_s, value), qPrintable(line));

        ConfigRoot root;
        root.put(root.mainFile(), "# before\n[main]\ncachedir=/var/cache/other\nreposdir=/a,/b /c\n"
                                  "enabled=0\ngpgcheck=no\n\n# behind\n[inmain]\nname=In Main\n");
        QVERIFY(root.io.read(nullptr));
        QCOMPARE(root.io.cachedir, u"/var/cache/other"_s);
        QCOMPARE(root.io.reposdirs, (QStringList{u"/a"_s, u"/b"_s, u"/c"_s}));
        QVERIFY(!root.io.mainEnabled && root.io.mainGpgcheck);
        QCOMPARE(root.io.repos.size(), 1);
        QCOMPARE(root.io.repos[0].file, root.mainFile());
        QCOMPARE(root.used.value(u"inmain"_s), false); // the main section's default
        const QByteArray before = root.get(root.mainFile());
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(root.get(root.mainFile()), before);
    }

    void contents_data()
    {
        // entries: as described() has them; written: empty: the bytes themselves
        columns<QByteArray, QString, QByteArray>("bytes", "entries", "written");
        row("sections",
            QByteArray("name=lost\n# lost too\n[one]\n# kept\nname=One\nname=First\n\n"
                       "enabled=no\ngpgkey=file:///k\n   http://k\n[two]\nenabled: 0\n"
                       "gpgcheck=0\n[ three ]"),
            "1 one, First, enabled 2 gpgcheck 1, # kept;gpgkey=file:///k;   http://k;|"
            "2 two, , enabled 0 gpgcheck 0, |3  three , , enabled 1 gpgcheck 1, ",
            QByteArray("[one]\nname=First\nenabled=1\n# kept\ngpgkey=file:///k\n   http://k\n\n"
                       "[two]\nenabled=0\ngpgcheck=0\n\n[ three ]\n"));
        row("URLs",
            QByteArray("[a]\nbaseurl = http://one/ \thttp://two/\n  http://three/ \n"
                       "mirrorlist=http://m/?a=$b  c\n"),
            "1 a, , enabled 1 gpgcheck 1, http://one/;http://two/;http://three/;"
            "http://m/?a=$b  c",
            QByteArray("[a]\nbaseurl=http://one/\n        http://two/\n        http://three/\n"
                       "mirrorlist=http://m/?a=$b  c\n"));
        const QString plain = u"1 a, %1, enabled 1 gpgcheck 1, %2"_s;
        row("UTF-8", QByteArray("[a]\nname=caf\xc3\xa9\nx=\xf0\x9f\x98\x80\n"),
            plain.arg(u"café"_s, u"x=😀;"_s), QByteArray());
        row("Latin-1", QByteArray("[a]\nname=caf\xe9\nx=\xc3\xa9\x80\xff\n"),
            plain.arg(u"café"_s, u"x=\u00c3\u00a9\u0080\u00ff;"_s), QByteArray());
        const QString zero(QChar(0));
        row("NUL and CR", QByteArray("[a]\nname=x\0y\r\nz=\0\0\n", 19),
            plain.arg(u'x' + zero + u"y\r"_s, u"z="_s + zero + zero + u';'), QByteArray());
        row("byte order mark", QByteArray("\xef\xbb\xbf[a]\nname=x\n\xef\xbb\xbf=y\n"),
            plain.arg(u"x"_s, u"\ufeff=y;"_s), QByteArray());
    }

    void contents()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, entries);
        QFETCH(QByteArray, written);
        ConfigRoot root;
        root.put(root.repo(u"a"_s), bytes);
        QVERIFY(root.io.read(nullptr));
        QCOMPARE(described(root.io), entries);
        root.io.repos[0].baseurl.chop(1); // the last line feed makes no difference
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(root.get(root.repo(u"a"_s)), written.isEmpty() ? bytes : written);

        // Typing something that the encoding lacks loses nothing.
        root.io.repos[0].name += u"中é"_s;
        const QString typed = described(root.io);
        QVERIFY(root.io.write(nullptr) && root.io.read(nullptr));
        QCOMPARE(described(root.io), typed);
    }

    void usedRepositories_data()
    {
        // requests: "+" or "-" and a pattern, separated by blanks
        columns<QString, QString>("requests", "used");
        row("as the file says", "", "base base/os");
        row("whole, with a slash", "-base*", "");
        row("not a part", "-bas -ase +Base", "base base/os");
        row("question mark", "-base?os", "base");
        row("class with a slash", "-base[/-]*", "base");
        row("negated class", "-b[!a]*", "base base/os");
        row("the last wins", "-* +b*s +*]", "b[x] base/os");
        row("dots are dots", "-b...", "base base/os");
    }

    void usedRepositories()
    {
        QFETCH(QString, requests);
        ConfigRoot root;
        for (const QString &request : requests.split(u' ', Qt::SkipEmptyParts))
            root.requests += YumRepoEnabled(request.startsWith(u'+'), request.mid(1));
        root.put(root.repo(u"a"_s),
                 "[base]\n[base/os]\nenabled=1\n[b[x]]\nenabled=0\n[base]\nenabled=0\n");
        QVERIFY(root.io.read(nullptr));
        QStringList found = root.used.keys(true);
        found.sort();
        QTEST(found.join(u' '), "used");

        // What the user decided since is not undone by reading again.
        root.used[u"base"_s] = !root.used[u"base"_s];
        const auto before = root.used;
        QVERIFY(root.io.read(nullptr));
        QCOMPARE(root.used, before);
    }

    void malformed_data()
    {
        columns<QByteArray, QString>("bytes", "line");
        row("blank behind", QByteArray("[a]\n[b] \n"), "[b] ");
        row("carriage return", QByteArray("[a]\r\nname=x\r\n"), u"[a]\ufffd"_s);
        row("continued", QByteArray("[a]\n  x\n"), "[a]\n  x");
        row("password", QByteArray("[a http://h/kivvet?u=n&p=secret&path=x\n"),
            "[a http://h/kivvet?u=n&p=******&path=x");
    }

    void malformed()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, line);
        ConfigRoot root;
        root.put(root.repo(u"a"_s), bytes);
        Answer answer(1);
        QVERIFY(!root.io.read(nullptr));
        const QString said =
            u"Malformed section name in line: %1; errno = 0 (Success).\n\n"_s.arg(line);
        QVERIFY(answer.said.constFirst().startsWith(said));
        QVERIFY(answer.said.constFirst().contains(root.repo(u"a"_s)));
        // What could not be read is not thrown away unasked.
        QVERIFY(!root.io.write(nullptr));
        QVERIFY(answer.said.last().contains(root.repo(u"a"_s)));
        QCOMPARE(root.get(root.repo(u"a"_s)), bytes);
    }

    void writes()
    {
        ConfigRoot root;
        root.put(root.repo(u"a"_s), "# lost\n[a2]\nfoo=1\ngpgcheck=1\nenabled=yes\nname=A\n[a1]\n");
        root.put(root.repo(u"gone"_s), "[gone]\n");
        root.put(root.repo(u"empty"_s), "# no section\n");
        QVERIFY(root.io.read(nullptr));
        root.io.repos.removeIf([](const Repo::Entry &entry) { return entry.id == u"gone"_s; });
        Repo::Entry fresh;
        fresh.id = u"fresh"_s;
        root.io.repos += fresh;
        fresh.id = u"between"_s;
        fresh.file = root.repo(u"a"_s);
        fresh.position = 1.5;
        root.io.repos += fresh;
        QStringList copies;
        for (const YumConfIO::FileChange &change : root.io.preview().changes)
            copies += change.copy;
        copies.sort();
        const QString dir = u"/etc/yum.repos.d/"_s;
        QCOMPARE(copies,
                 (QStringList{QString(), dir + u"a.repo.vok-orig"_s, dir + u"empty.repo.vok-orig"_s,
                              dir + u"gone.repo.vok-orig"_s}));
        QVERIFY(root.io.write(nullptr));

        QCOMPARE(root.get(root.repo(u"a"_s)),
                 "[a2]\nname=A\nenabled=1\ngpgcheck=1\nfoo=1\n\n[between]\n\n[a1]\n");
        QCOMPARE(root.get(root.repo(u"fresh"_s)), "[fresh]\n");
        const QString kept = u".vok-orig"_s;
        QCOMPARE(root.get(root.repo(u"gone"_s) + kept), "[gone]\n");
        QCOMPARE(root.get(root.repo(u"empty"_s) + kept), "# no section\n");
        QVERIFY(!root.has(root.repo(u"fresh"_s) + kept));
        const QByteArray original = root.get(root.repo(u"a"_s) + kept);
        QVERIFY(original.startsWith("# lost\n[a2]"));
        QVERIFY(!root.has(root.mainFile() + kept)); // its bytes are the same

        root.entry(u"a1"_s).name = u"again"_s;
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(root.get(root.repo(u"a"_s) + kept), original); // only once
        const QStringList names = QDir(root.real(u"/etc/yum.repos.d"_s)).entryList(QDir::Files);
        QCOMPARE(names, (QStringList{u"a.repo"_s, u"a.repo.vok-orig"_s, u"empty.repo.vok-orig"_s,
                                     u"fresh.repo"_s, u"gone.repo.vok-orig"_s}));
    }

    void validates_data()
    {
        columns<QByteArray, QString, QString>("bytes", "question", "survivors");
        const QString empty = u"A repository has no Identifier.  It will be removed."_s;
        const QString twice =
            u"Two or more repositories have the same Identifier(s), %1.  Only one "
            "repository will be applied for each Identifier."_s;
        row("empty", QByteArray("[]\n[a]\n"), empty, "2 a");
        row("twice", QByteArray("[a]\n[b]\n[a]\n[A]\n"), twice.arg(u"a"_s), "1 a|2 b|4 A");
        row("once per pair", QByteArray("[a]\n[b]\n[a]\n[]\n[b]\n[a]\n"),
            (empty + u'\n' + twice.arg(u"a, a, b, a"_s)), "1 a|2 b");
    }

    void validates()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, question);
        ConfigRoot root;
        root.put(root.repo(u"a"_s), bytes);
        QVERIFY(root.io.read(nullptr));
        {
            Answer no(1);
            QVERIFY(!root.io.write(nullptr));
            QCOMPARE(no.said, QStringList{question + u"  Proceed?"_s});
            QCOMPARE(root.get(root.repo(u"a"_s)), bytes);
        }
        // Nothing is taken out of the list when the question behind this one is declined.
        root.put(root.repo(u"unread"_s), "[c]\n");
        const QString before = described(root.io);
        Answer yesThenNo(QList<int>{0, 1});
        QVERIFY(!root.io.write(nullptr));
        QCOMPARE(yesThenNo.said.size(), 2);
        QCOMPARE(described(root.io), before);
        yesThenNo.stop();
        Answer yes(0);
        QVERIFY(root.io.write(nullptr));
        QTEST(described(root.io).remove(u", , enabled 1 gpgcheck 1, "_s), "survivors");
    }

    void asksWhatChangedOnDisk()
    {
        ConfigRoot root;
        const QString a = root.repo(u"a"_s), b = root.repo(u"b"_s), fresh = root.repo(u"fresh"_s);
        root.put(a, "[a]\n");
        root.put(b, "[b]\n");
        QVERIFY(root.io.read(nullptr));
        root.put(a, "[a]\n"); // written again, but the same
        QVERIFY(root.io.write(nullptr));

        root.put(a, "[c]\n"); // as long as before, within the same moment
        root.put(fresh, "[fresh]\n");
        QFile::remove(root.real(b));
        root.entry(u"a"_s).name = u"mine"_s;
        {
            Answer no(1);
            QVERIFY(!root.io.write(nullptr));
            QCOMPARE(no.said.size(), 1);
            for (const QString &path : {a, b, fresh})
                QVERIFY(no.said[0].contains(path));
            QVERIFY(!no.said[0].contains(root.mainFile()));
        }
        QCOMPARE(root.get(a), "[c]\n");
        QVERIFY(root.has(fresh) && !root.has(b));
        Answer yes(0);
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(root.get(a), "[a]\nname=mine\n");
        QVERIFY(!root.has(fresh) && root.has(fresh + u".vok-orig"_s) && root.has(b));
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(yes.said.size(), 1);
    }

    void keepsIdentity()
    {
        ConfigRoot root;
        const QString a = root.repo(u"a"_s), target = u"/etc/elsewhere/real"_s;
        root.put(target, "[a]\n");
        QVERIFY(QFile::link(u"../elsewhere/real"_s, root.real(a)));
        const QByteArray real = root.real(target).toLocal8Bit();
        QCOMPARE(chmod(real, 0640), 0);
        const bool isRoot = geteuid() == 0 && chown(real, 3, 4) == 0;
        const bool attributes = setxattr(real, "user.vok", "x", 1, 0) == 0;
        QVERIFY(root.io.read(nullptr));
        root.io.repos[0].name = u"A"_s;
        QVERIFY(root.io.write(nullptr));

        QVERIFY(QFileInfo(root.real(a)).isSymLink());
        QCOMPARE(root.get(target), "[a]\nname=A\n");
        for (const QByteArray &path : {real, real + ".vok-orig"}) {
            struct stat status;
            QCOMPARE(stat(path, &status), 0);
            QCOMPARE(status.st_mode & 07777, mode_t(0640));
            if (isRoot)
                QVERIFY(status.st_uid == 3 && status.st_gid == 4);
            char value[8];
            if (attributes)
                QCOMPARE(getxattr(path, "user.vok", value, sizeof value), 1);
        }
    }

    void newFiles_data()
    {
        columns<QString, QString, int>("baseurl", "others", "mode");
        row("plain", "http://h:80/a@b/kivvet?u=&p=&path=x",
            "password=\n#password=x\nusername=joe\n", 0644);
        row("second URL", "http://h/rhel/u=/p=/\nhttp://h/rhel/u=j/p=x/", "", 0600);
        row("user information", "https://joe:pw@h/", "", 0600);
        row("proxy's option", "", "a=b\nproxy_password = x\n", 0600);
        row("proxy's URL", "", "proxy=http://j:x@h:3128\n", 0600);
    }

    void newFiles()
    {
        QFETCH(QString, baseurl);
        QFETCH(QString, others);
        ConfigRoot root;
        QVERIFY(root.io.read(nullptr));
        Repo::Entry entry;
        entry.id = u"n"_s;
        entry.baseurl = baseurl;
        entry.otherOptions = others;
        root.io.repos += entry;
        const mode_t before = umask(0077);
        QVERIFY(root.io.write(nullptr));
        umask(before);
        struct stat status;
        QCOMPARE(stat(root.real(root.repo(u"n"_s)).toLocal8Bit(), &status), 0);
        QTEST(int(status.st_mode & 07777), "mode");
    }

    // A masked password that was there stays; one that is new is refused.
    void maskedPasswords()
    {
        const QString mask(3, QChar(0x25cf));
        ConfigRoot root;
        const QByteArray damaged =
            (u"[a]\nbaseurl=http://h/kivvet?u=j&p=%1&path=\npassword=***\n[b]\nname=x\n"_s.arg(
                 mask))
                .toUtf8();
        root.put(root.repo(u"a"_s), damaged);
        QVERIFY(root.io.read(nullptr) && root.io.write(nullptr));
        QVERIFY(root.get(root.repo(u"a"_s)).contains(mask.toUtf8()));
        root.entry(u"a"_s).id = u"c"_s;
        QVERIFY(root.io.preview().refusals.isEmpty());
        for (const QString &options : {u"password=%1\n"_s, u"proxy=http://j:%1@h\n"_s}) {
            root.entry(u"b"_s).otherOptions = options.arg(mask);
            QCOMPARE(root.io.preview().refusals.size(), 1);
            root.entry(u"b"_s).otherOptions = options.arg(u"***"_s);
            QVERIFY(root.io.preview().refusals.isEmpty());
        }
    }

    void strangeFiles_data()
    {
        // message: empty: it is read over
        columns<QString, QString>("kind", "message");
        const QString unreadable = u"Unable to read repository configuration file %1; "_s;
        const QString absent = u"Unable to stat repository configuration file %1; errno = "_s;
        row("directory", "directory", "");
        row("null device", "null", "");
        row("pipe", "pipe", unreadable);
        row("socket", "socket", unreadable);
        row("dangling link", "dangling", absent + u'2');
        row("link to itself", "loop", absent + u"40"_s);
        row("no right to read", "unreadable", "");
        row("a name that is no text", "bytes", "");
    }

    void strangeFiles()
    {
        QFETCH(QString, kind);
        QFETCH(QString, message);
        ConfigRoot root;
        const QString path = root.repo(u"x"_s);
        const QByteArray real = root.real(path).toLocal8Bit();
        const QByteArray bytes =
            real.chopped(qstrlen("x.repo")) + "\xf0\x9f\x98\xe9\xed\xb3\xa9\xc3\xa9.repo";
        if (kind == u"directory"_s) {
            QVERIFY(QDir().mkpath(root.real(path)));
        } else if (kind == u"pipe"_s) {
            QCOMPARE(mkfifo(real, 0644), 0);
        } else if (kind == u"socket"_s) {
            const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
            sockaddr_un address = {};
            address.sun_family = AF_UNIX;
            QVERIFY(real.size() < qsizetype(sizeof address.sun_path));
            memcpy(address.sun_path, real.constData(), size_t(real.size()));
            QCOMPARE(bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
            close(fd);
        } else if (kind == u"unreadable"_s) {
            root.put(path, "[x]\n");
            QCOMPARE(chmod(real, 0), 0);
            QCOMPARE(chmod(root.dir.path().toLocal8Bit(), 0755), 0);
        } else if (kind == u"bytes"_s) {
            root.put(path, "[x]\n");
            QCOMPARE(rename(real, bytes), 0);
        } else if (kind == u"null"_s) {
            // The root's own device, as a link inside the root leads to it.
            QVERIFY(QDir().mkpath(root.real(u"/dev"_s)));
            if (mknod(root.real(u"/dev/null"_s).toLocal8Bit(), S_IFCHR | 0666, makedev(1, 3)) != 0)
                QSKIP("this user may not make a device");
            QCOMPARE(symlink("/dev/null", real), 0);
        } else {
            QCOMPARE(symlink(kind == u"loop"_s ? "x.repo" : "nowhere", real), 0);
        }
        root.put(root.repo(u"a"_s), "[a]\n");

        Answer answer(1);
        const uid_t user = geteuid();
        if (user == 0 && kind == u"unreadable"_s)
            QCOMPARE(seteuid(65534), 0);
        const bool done = root.io.read(nullptr);
        QCOMPARE(seteuid(user), 0);
        QCOMPARE(done, message.isEmpty());
        QCOMPARE(answer.said.isEmpty(), message.isEmpty());
        if (kind == u"unreadable"_s) {
            QCOMPARE(root.io.unreadable(), QStringList{path});
            QCOMPARE(root.io.repos.size(), 1);
            QVERIFY(!root.io.write(nullptr));
            QVERIFY(answer.said.value(0).contains(path));
        } else if (message.isEmpty()) {
            QCOMPARE(root.io.repos.size(), kind == u"bytes"_s ? 2 : 1);
            QVERIFY(root.io.write(nullptr) && answer.said.isEmpty());
            if (kind == u"bytes"_s)
                QCOMPARE(rename(bytes, real), 0);
            QCOMPARE(root.has(path), kind == u"directory"_s || kind == u"bytes"_s);
        } else {
            QVERIFY2(answer.said[0].startsWith(message.arg(path)), qPrintable(answer.said[0]));
        }
    }

    void linksStayInsideTheRoot()
    {
        ConfigRoot root;
        QFile::remove(root.real(root.mainFile()));
        root.put(u"/etc/dnf/dnf.conf"_s, "[main]\ninside=1\n[m]\n");
        QVERIFY(QFile::link(u"/etc/dnf/dnf.conf"_s, root.real(root.mainFile())));
        // Up beyond the root is the root.
        root.put(u"/etc/target"_s, "[t]\n");
        QVERIFY(
            QFile::link(u"../../../../../../../../../etc/target"_s, root.real(root.repo(u"t"_s))));
        QVERIFY(root.io.read(nullptr));
        root.entry(u"t"_s).name = u"T"_s;
        root.entry(u"m"_s).name = u"M"_s;
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(root.get(u"/etc/dnf/dnf.conf"_s), "[main]\ninside=1\n[m]\nname=M\n");
        QVERIFY(root.has(u"/etc/dnf/dnf.conf.vok-orig"_s));
        QCOMPARE(root.get(u"/etc/target"_s), "[t]\nname=T\n");

        // Two names of one directory: what is written under one is not unused under the other.
        root.put(u"/etc/dnf/dnf.conf"_s, "[main]\nreposdir=/etc/yum.repos.d /etc/again\n");
        QVERIFY(QFile::link(u"yum.repos.d"_s, root.real(u"/etc/again"_s)));
        QVERIFY(root.io.read(nullptr));
        QCOMPARE(root.io.repos.size(), 2);
        Answer yes(0);
        QVERIFY(root.io.write(nullptr));
        QVERIFY(root.has(root.repo(u"t"_s)));
    }

    // A write that fails leaves what came before it written and everything else alone, and of a
    // repository that moved there is rather one too many.
    void moves()
    {
        ConfigRoot root;
        const QString a = root.repo(u"a"_s), b = root.repo(u"b"_s);
        root.put(a, "[one]\n\n[two]\n");
        root.put(b, "[three]\n");
        root.put(root.repo(u"unused"_s), "# nothing\n");
        QVERIFY(root.io.read(nullptr));
        root.entry(u"two"_s).file = u"/missing/z.repo"_s;
        Answer answer(0);
        QVERIFY(!root.io.write(nullptr));
        QCOMPARE(answer.said,
                 QStringList{u"Unable to write repository configuration file "
                             "/missing/z.repo; errno = 2 (No such file or directory).\n\n"
                             "Not written, and still to be applied:\n/missing/z.repo\n"_s +
                             a});
        QCOMPARE(root.get(a), "[one]\n\n[two]\n");
        QVERIFY(root.has(root.repo(u"unused"_s)));
        root.entry(u"two"_s).file = b;
        QVERIFY(root.io.write(nullptr));
        QCOMPARE(root.get(a), "[one]\n");
        QVERIFY(root.get(b).contains("[two]") && !root.has(root.repo(u"unused"_s)));
    }

    void isLinear_data()
    {
        // least: of what is written
        columns<QByteArray, int>("bytes", "least");
        constexpr int much = 10'000'000;
        QByteArray repositories;
        for (int i = 0; i < 20'000; ++i)
            repositories += "[id" + QByteArray::number(i) + "]\nname=x\n\n";
        row("one long line", "[a]\nx=" + QByteArray(much, 'y'), much);
        row("no line feed", "[a]\nx=" + QByteArray(much, '\0'), much);
        row("continued lines", "[a]\nbaseurl=x\n" + QByteArray(" http://h/\n").repeated(200'000),
            2'000'000);
        row("many repositories", repositories, 300'000);
        row("one identifier", QByteArray("[same]\n\n").repeated(50'000), 7);
    }

    // Sizes at which anything that grows with the square would take minutes.
    void isLinear()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, least);
        ConfigRoot root;
        root.put(root.repo(u"a"_s), bytes);
        Answer answer(0);
        QVERIFY(root.io.read(nullptr) && root.io.write(nullptr) && root.io.read(nullptr));
        QVERIFY(root.get(root.repo(u"a"_s)).size() >= least);
    }

private:
    // What was read: "position id, name, enabled E gpgcheck G, URLs and other options" of each
    // repository, with ";" for a line feed.
    static QString described(const YumConfIO &io)
    {
        QStringList all;
        for (const Repo::Entry &entry : io.repos)
            all += u"%1 %2, %3, enabled %4 gpgcheck %5, "_s.arg(entry.position)
                       .arg(entry.id, entry.name)
                       .arg(int(entry.enabled))
                       .arg(int(entry.gpgcheck)) +
                   entry.baseurl + entry.mirrorlist + entry.otherOptions;
        return all.join(u'|').replace(u'\n', u';');
    }
};

QTEST_MAIN(TestYumConfIO)
#include "test_yumconfio.moc"
