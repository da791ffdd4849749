#include "configroot.h"

#include <QTest>

#include <algorithm>
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
    void mainFile_data();
    void mainFile();
    void options();
    void sections();
    void urls();
    void usedRepositories_data();
    void usedRepositories();
    void malformed_data();
    void malformed();
    void writes();
    void bytesSurvive_data();
    void bytesSurvive();
    void validates_data();
    void validates();
    void asksWhatChangedOnDisk();
    void keepsIdentity();
    void newFiles_data();
    void newFiles();
    void strangeFiles_data();
    void strangeFiles();
    void linksStayInsideTheRoot();
    void moves();
    void isLinear_data();
    void isLinear();
};

void TestYumConfIO::mainFile_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("chosen");
    const QString first = u"/etc/yum/yum.conf"_s, second = u"/etc/yum.conf"_s,
                  dnf = u"/etc/dnf/dnf.conf"_s;
    QTest::newRow("all") << QStringList{first, second, dnf} << first;
    QTest::newRow("no yum directory") << QStringList{second, dnf} << second;
    QTest::newRow("dnf only") << QStringList{dnf} << dnf;
    QTest::newRow("none") << QStringList() << second;
}

void TestYumConfIO::mainFile()
{
    QFETCH(QStringList, present);
    QFETCH(QString, chosen);
    ConfigRoot root;
    QFile::remove(root.real(root.mainFile()));
    for (const QString &path : present)
        root.put(path, "[main]\n#" + path.toUtf8() + "\n");
    QCOMPARE(YumConfIO::fileName(), chosen);
    if (present.isEmpty()) {
        Answer answer(0);
        QVERIFY(!root.io.read(nullptr));
        QCOMPARE(answer.said,
                 QStringList{u"Unable to read yum configuration file "
                             "/etc/yum.conf; errno = 2 (No such file or directory)."_s});
        return;
    }
    QVERIFY(root.io.read(nullptr) && root.io.write(nullptr));
    QCOMPARE(root.get(chosen), "[main]\n#" + chosen.toUtf8() + '\n');
}

void TestYumConfIO::options()
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

void TestYumConfIO::sections()
{
    ConfigRoot root;
    root.put(root.repo(u"a"_s), "name=lost\n# lost too\n[one]\n# kept\nname=One\nname=First\n\n"
                                "enabled=no\ngpgkey=file:///k\n   http://k\n[two]\nenabled: 0\n"
                                "gpgcheck=0\n[ three ]");
    QVERIFY(root.io.read(nullptr));
    QCOMPARE(root.io.repos.size(), 3);
    const Repo::Entry &one = root.entry(u"one"_s), &two = root.entry(u"two"_s);
    QCOMPARE(one.name, u"First"_s);
    QCOMPARE(one.enabled, Qt::Checked); // everything but 0 is on
    QCOMPARE(one.gpgcheck, Qt::PartiallyChecked);
    QCOMPARE(one.otherOptions, u"# kept\ngpgkey=file:///k\n   http://k\n"_s);
    QCOMPARE(one.position, 1.0);
    QCOMPARE(two.enabled, Qt::Unchecked);
    QCOMPARE(two.gpgcheck, Qt::Unchecked);
    QCOMPARE(root.entry(u" three "_s).position, 3.0);
}

void TestYumConfIO::urls()
{
    ConfigRoot root;
    root.put(root.repo(u"a"_s), "[a]\nbaseurl = http://one/ \thttp://two/\n  http://three/ \n"
                                "mirrorlist=http://m/?a=$b  c\n");
    QVERIFY(root.io.read(nullptr));
    QCOMPARE(root.io.repos[0].baseurl, u"http://one/\nhttp://two/\nhttp://three/\n"_s);
    QCOMPARE(root.io.repos[0].mirrorlist, u"http://m/?a=$b  c"_s);
    root.io.repos[0].baseurl.chop(1);
    QVERIFY(root.io.write(nullptr));
    QCOMPARE(root.get(root.repo(u"a"_s)),
             "[a]\nbaseurl=http://one/\n        http://two/\n        http://three/\n"
             "mirrorlist=http://m/?a=$b  c\n");
}

void TestYumConfIO::usedRepositories_data()
{
    QTest::addColumn<QString>("requests"); // "+" or "-" and a pattern, separated by blanks
    QTest::addColumn<QStringList>("used");
    const QStringList all = {u"base"_s, u"base/os"_s, u"b[x]"_s};

    QTest::newRow("as the file says") << u""_s << QStringList{u"base"_s, u"base/os"_s};
    QTest::newRow("whole, with a slash") << u"-base*"_s << QStringList{};
    QTest::newRow("not a part") << u"-bas -ase +Base"_s << QStringList{u"base"_s, u"base/os"_s};
    QTest::newRow("question mark") << u"-base?os"_s << QStringList{u"base"_s};
    QTest::newRow("class with a slash") << u"-base[/-]*"_s << QStringList{u"base"_s};
    QTest::newRow("negated class") << u"-b[!a]*"_s << QStringList{u"base"_s, u"base/os"_s};
    QTest::newRow("the last wins") << u"-* +b*s +*]"_s << all.mid(1);
    QTest::newRow("dots are dots") << u"-b..."_s << QStringList{u"base"_s, u"base/os"_s};
}

void TestYumConfIO::usedRepositories()
{
    QFETCH(QString, requests);
    QFETCH(QStringList, used);
    ConfigRoot root;
    for (const QString &request : requests.split(u' ', Qt::SkipEmptyParts))
        root.requests += YumRepoEnabled(request.startsWith(u'+'), request.mid(1));
    root.put(root.repo(u"a"_s),
             "[base]\n[base/os]\nenabled=1\n[b[x]]\nenabled=0\n[base]\nenabled=0\n");
    QVERIFY(root.io.read(nullptr));
    QStringList found;
    for (auto it = root.used.cbegin(); it != root.used.cend(); ++it) {
        if (it.value())
            found += it.key();
    }
    std::sort(found.begin(), found.end());
    std::sort(used.begin(), used.end());
    QCOMPARE(found, used);

    // What the user decided since is not undone by reading again.
    root.used[u"base"_s] = !root.used[u"base"_s];
    const auto before = root.used;
    QVERIFY(root.io.read(nullptr));
    QCOMPARE(root.used, before);
}

void TestYumConfIO::malformed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("line");
    QTest::newRow("blank behind") << QByteArray("[a]\n[b] \n") << u"[b] "_s;
    QTest::newRow("carriage return") << QByteArray("[a]\r\nname=x\r\n") << u"[a]\r"_s;
    QTest::newRow("continued") << QByteArray("[a]\n  x\n") << u"[a]\n  x"_s;
    QTest::newRow("password") << QByteArray("[a http://h/kivvet?u=n&p=secret&path=x\n")
                              << u"[a http://h/kivvet?u=n&p=******&path=x"_s;
}

void TestYumConfIO::malformed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, line);
    ConfigRoot root;
    root.put(root.repo(u"a"_s), bytes);
    Answer answer(1);
    QVERIFY(!root.io.read(nullptr));
    QCOMPARE(answer.said,
             QStringList{u"Malformed section name in line: %1; errno = 0 (Success)."_s.arg(line)});
    // What could not be read is not thrown away unasked.
    QVERIFY(!root.io.write(nullptr));
    QVERIFY(answer.said.last().contains(root.repo(u"a"_s)));
    QCOMPARE(root.get(root.repo(u"a"_s)), bytes);
}

void TestYumConfIO::writes()
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
    QVERIFY(root.io.write(nullptr));

    QCOMPARE(root.get(root.repo(u"a"_s)),
             "[a2]\nname=A\nenabled=1\ngpgcheck=1\nfoo=1\n\n[between]\n\n[a1]\n");
    QCOMPARE(root.get(root.repo(u"fresh"_s)), "[fresh]\n");
    QVERIFY(!root.has(root.repo(u"gone"_s)) && !root.has(root.repo(u"empty"_s)));
    const QString kept = u".vok-orig"_s;
    QCOMPARE(root.get(root.repo(u"gone"_s) + kept), "[gone]\n");
    QCOMPARE(root.get(root.repo(u"empty"_s) + kept), "# no section\n");
    QVERIFY(!root.has(root.repo(u"fresh"_s) + kept));
    const QByteArray original = root.get(root.repo(u"a"_s) + kept);
    QVERIFY(original.startsWith("# lost\n[a2]"));
    QVERIFY(root.has(root.mainFile() + kept));

    root.entry(u"a1"_s).name = u"again"_s;
    QVERIFY(root.io.write(nullptr));
    QCOMPARE(root.get(root.repo(u"a"_s) + kept), original); // only once
    const QStringList names = QDir(root.real(u"/etc/yum.repos.d"_s)).entryList(QDir::Files);
    QCOMPARE(names,
             (QStringList{u"a.repo"_s, u"a.repo.vok-orig"_s, u"empty.repo.vok-orig"_s,
                          u"fresh.repo"_s, u"fresh.repo.vok-orig"_s, u"gone.repo.vok-orig"_s}));
}

void TestYumConfIO::bytesSurvive_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::newRow("UTF-8") << QByteArray("[a]\nname=caf\xc3\xa9\nx=\xf0\x9f\x98\x80\n")
                           << u"café"_s;
    QTest::newRow("Latin-1") << QByteArray("[a]\nname=caf\xe9\nx=\xc3\xa9\x80\xff\n") << u"café"_s;
    QTest::newRow("NUL and CR") << QByteArray("[a]\nname=x\0y\r\nz=\0\0\n", 19)
                                << QString::fromLatin1("x\0y\r", 4);
    QTest::newRow("byte order mark")
        << QByteArray("\xef\xbb\xbf[a]\nname=x\n\xef\xbb\xbf=y\n") << u"x"_s;
}

void TestYumConfIO::bytesSurvive()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    ConfigRoot root;
    root.put(root.repo(u"a"_s), bytes);
    QVERIFY(root.io.read(nullptr));
    QCOMPARE(root.io.repos.value(0).name, name);
    QVERIFY(root.io.write(nullptr));
    QCOMPARE(root.get(root.repo(u"a"_s)), bytes);

    // Typing something that the encoding lacks loses nothing.
    root.io.repos[0].name += u"中é"_s;
    const QString others = root.io.repos[0].otherOptions;
    QVERIFY(root.io.write(nullptr) && root.io.read(nullptr));
    QCOMPARE(root.io.repos.value(0).name, name + u"中é"_s);
    QCOMPARE(root.io.repos.value(0).otherOptions, others);
}

void TestYumConfIO::validates_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QStringList>("survivors");
    const QString empty = u"A repository has no Identifier.  It will be removed."_s;
    const QString twice = u"Two or more repositories have the same Identifier(s), %1.  Only one "
                          "repository will be applied for each Identifier."_s;
    QTest::newRow("empty") << QByteArray("[]\n[a]\n") << empty << QStringList{u"a2"_s};
    QTest::newRow("twice") << QByteArray("[a]\n[b]\n[a]\n[A]\n") << twice.arg(u"a"_s)
                           << QStringList{u"a1"_s, u"b2"_s, u"A4"_s};
    QTest::newRow("once per pair")
        << QByteArray("[a]\n[b]\n[a]\n[]\n[b]\n[a]\n")
        << (empty + u'\n' + twice.arg(u"a, a, b, a"_s)) << QStringList{u"a1"_s, u"b2"_s};
}

void TestYumConfIO::validates()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, question);
    QFETCH(QStringList, survivors);
    ConfigRoot root;
    root.put(root.repo(u"a"_s), bytes);
    QVERIFY(root.io.read(nullptr));
    {
        Answer no(1);
        QVERIFY(!root.io.write(nullptr));
        QCOMPARE(no.said, QStringList{question + u"  Proceed?"_s});
        QCOMPARE(root.get(root.repo(u"a"_s)), bytes);
    }
    Answer yes(0);
    QVERIFY(root.io.write(nullptr));
    QStringList left;
    for (const Repo::Entry &entry : std::as_const(root.io.repos))
        left += entry.id + QString::number(entry.position);
    QCOMPARE(left, survivors);
}

void TestYumConfIO::asksWhatChangedOnDisk()
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

void TestYumConfIO::keepsIdentity()
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

void TestYumConfIO::newFiles_data()
{
    QTest::addColumn<QString>("baseurl");
    QTest::addColumn<QString>("others");
    QTest::addColumn<bool>("secret");
    QTest::newRow("plain") << u"http://h:80/a@b/kivvet?u=&p=&path=x"_s
                           << u"password=\n#password=x\nusername=joe\n"_s << false;
    QTest::newRow("second URL") << u"http://h/rhel/u=/p=/\nhttp://h/rhel/u=j/p=x/"_s << u""_s
                                << true;
    QTest::newRow("user information") << u"https://joe:pw@h/"_s << u""_s << true;
    QTest::newRow("proxy's option") << u""_s << u"a=b\nproxy_password = x\n"_s << true;
    QTest::newRow("proxy's URL") << u""_s << u"proxy=http://j:x@h:3128\n"_s << true;
}

void TestYumConfIO::newFiles()
{
    QFETCH(QString, baseurl);
    QFETCH(QString, others);
    QFETCH(bool, secret);
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
    QCOMPARE(status.st_mode & 07777, mode_t(secret ? 0600 : 0644));
}

void TestYumConfIO::strangeFiles_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("message"); // empty: it is read over
    QTest::newRow("directory") << u"directory"_s << u""_s;
    QTest::newRow("null device") << u"null"_s << u""_s;
    QTest::newRow("pipe") << u"pipe"_s << u"Unable to read repository configuration file %1; "_s;
    QTest::newRow("socket") << u"socket"_s
                            << u"Unable to read repository configuration file %1; "_s;
    QTest::newRow("dangling link")
        << u"dangling"_s << u"Unable to stat repository configuration file %1; errno = 2"_s;
    QTest::newRow("link to itself")
        << u"loop"_s << u"Unable to stat repository configuration file %1; errno = 40"_s;
    if (geteuid() != 0)
        QTest::newRow("unreadable")
            << u"unreadable"_s << u"Unable to read repository configuration file %1; errno = 13"_s;
}

void TestYumConfIO::strangeFiles()
{
    QFETCH(QString, kind);
    QFETCH(QString, message);
    ConfigRoot root;
    const QString path = root.repo(u"x"_s);
    const QByteArray real = root.real(path).toLocal8Bit();
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
    QCOMPARE(root.io.read(nullptr), message.isEmpty());
    if (message.isEmpty()) {
        QCOMPARE(root.io.repos.size(), 1);
        QVERIFY(root.io.write(nullptr));
        QVERIFY(answer.said.isEmpty());
        QCOMPARE(root.has(path), kind == u"directory"_s);
        return;
    }
    QCOMPARE(answer.said.size(), 1);
    QVERIFY2(answer.said[0].startsWith(message.arg(path)), qPrintable(answer.said[0]));
}

void TestYumConfIO::linksStayInsideTheRoot()
{
    ConfigRoot root;
    QFile::remove(root.real(root.mainFile()));
    root.put(u"/etc/dnf/dnf.conf"_s, "[main]\ninside=1\n");
    QVERIFY(QFile::link(u"/etc/dnf/dnf.conf"_s, root.real(root.mainFile())));
    // Up beyond the root is the root.
    root.put(u"/etc/target"_s, "[t]\n");
    QVERIFY(QFile::link(u"../../../../../../../../../etc/target"_s, root.real(root.repo(u"t"_s))));
    QVERIFY(root.io.read(nullptr));
    root.entry(u"t"_s).name = u"T"_s;
    QVERIFY(root.io.write(nullptr));
    QCOMPARE(root.get(u"/etc/dnf/dnf.conf"_s), "[main]\ninside=1\n");
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
void TestYumConfIO::moves()
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
    QCOMPARE(answer.said, QStringList{u"Unable to write repository configuration file "
                                      "/missing/z.repo; errno = 2 (No such file or directory)."_s});
    QCOMPARE(root.get(a), "[one]\n\n[two]\n");
    QVERIFY(root.has(root.repo(u"unused"_s)));
    root.entry(u"two"_s).file = b;
    QVERIFY(root.io.write(nullptr));
    QCOMPARE(root.get(a), "[one]\n");
    QVERIFY(root.get(b).contains("[two]"));
    QVERIFY(!root.has(root.repo(u"unused"_s)));
}

void TestYumConfIO::isLinear_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("one long line") << u"line"_s;
    QTest::newRow("continued lines") << u"continued"_s;
    QTest::newRow("many repositories") << u"repositories"_s;
    QTest::newRow("one identifier") << u"identifier"_s;
    QTest::newRow("no line feed") << u"zeros"_s;
}

// Sizes at which anything that grows with the square would take minutes.
void TestYumConfIO::isLinear()
{
    QFETCH(QString, kind);
    QByteArray bytes = "[a]\n";
    if (kind == u"line"_s)
        bytes += "x=" + QByteArray(10'000'000, 'y') + '\n';
    else if (kind == u"continued"_s)
        bytes += "baseurl=x\n" + QByteArray(" http://h/\n").repeated(200'000);
    else if (kind == u"zeros"_s)
        bytes = "[a]\nx=" + QByteArray(10'000'000, '\0');
    else if (kind == u"identifier"_s)
        bytes += QByteArray("[same]\n\n").repeated(50'000);
    else
        for (int i = 0; i < 20'000; ++i)
            bytes += "[id" + QByteArray::number(i) + "]\nname=x\n\n";
    ConfigRoot root;
    root.put(root.repo(u"a"_s), bytes);
    Answer answer(0);
    QVERIFY(root.io.read(nullptr) && root.io.write(nullptr) && root.io.read(nullptr));
    const qsizetype size = root.get(root.repo(u"a"_s)).size();
    if (kind == u"line"_s || kind == u"zeros"_s)
        QVERIFY(size >= 10'000'000);
}

QTEST_MAIN(TestYumConfIO)
#include "test_yumconfio.moc"
