#include "kivvet/kivvet.h"
#include "kivvet/percent.h"
#include "repo/repoentry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

// Characters that mean something somewhere, and some that must not.
static QString anyText(QRandomGenerator &random, int length)
{
    static const QString alphabet = u"ab%41F&=/?:+\\\\1$ \t\n[]{}~\"éß€中שלום\u00a0\u2028"_s;
    QString text;
    for (int i = 0; i < length; ++i)
        text += alphabet.at(random.bounded(alphabet.size()));
    return text;
}

class TestKivvet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void percent();
    void percentReverses();
    void findsCredentials_data();
    void findsCredentials();
    void mirrorListIsSecond();
    void replaces_data();
    void replaces();
    void replacingWithTheSameChangesNothing();
    void expressions_data();
    void expressions();
};

void TestKivvet::percent()
{
    QCOMPARE(httpProtect(u"$&+,/:;=?@ \"<>#%{}|\\^~[]"_s),
             u"%24%26%2b%2c%2f%3a%3b%3d%3f%40%20%22%3c%3e%23%25%7b%7d%7c%5c%5e%7e%5b%5d"_s);
    QCOMPARE(httpProtect(u"Aé-_.!*'()中\n"_s), u"Aé-_.!*'()中\n"_s);
    QCOMPARE(httpUnprotect(u"%41%4a%4A%2541%e9%4%g1%"_s), u"AJJ%41é%4%g1%"_s);
}

void TestKivvet::percentReverses()
{
    QRandomGenerator random(1);
    for (int i = 0; i < 20000; ++i) {
        const QString text = anyText(random, random.bounded(12));
        QCOMPARE(httpUnprotect(httpProtect(text)), text);
    }
}

void TestKivvet::findsCredentials_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QStringList>("parts"); // none: no credentials

    const auto row = [](const char *name, const QString &url, const QStringList &parts = {}) {
        QTest::newRow(name) << url << parts;
    };
    row("query", u"https://h/x/kivvet?user=joe&pass=s3c&path=os/7"_s,
        {u"user"_s, u"joe"_s, u"pass"_s, u"s3c"_s});
    row("path", u"https://h/rhel/user=joe/pass=s3c/os"_s,
        {u"user"_s, u"joe"_s, u"pass"_s, u"s3c"_s});
    row("decoded", u"h/kivvet?u%20k=%41b&p=a%26b%2fc%2541&path="_s,
        {u"u k"_s, u"Ab"_s, u"p"_s, u"a&b/c%41"_s});
    row("empty values", u"h/kivvet?=&=&path="_s, {u""_s, u""_s, u""_s, u""_s});
    row("query first", u"h/rhel/a=b/c=d/ h/kivvet?e=f&g=h&path="_s,
        {u"e"_s, u"f"_s, u"g"_s, u"h"_s});
    row("several URLs", u"http://plain/\nh/rhel/a=b/c=d/\nh/rhel/e=f/g=h/"_s,
        {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    row("a broken query hides the path form", u"h/kivvet?a=b&c=d h/rhel/a=b/c=d/"_s);
    row("other case", u"h/Kivvet?a=b&c=d&path=, h/RHEL/a=b/c=d/"_s);
}

void TestKivvet::findsCredentials()
{
    QFETCH(QString, url);
    QFETCH(QStringList, parts);
    QStringList found(4, u"untouched"_s);
    const QStringList untouched = found;
    const bool result = Repo::Kivvet::getAuth(url, found[0], found[1], found[2], found[3]);
    QCOMPARE(result, !parts.isEmpty());
    QCOMPARE(found, result ? parts : untouched);
}

void TestKivvet::mirrorListIsSecond()
{
    QString a, b, c, password;
    Repo::Entry entry;
    entry.baseurl = u"http://plain/"_s;
    entry.mirrorlist = u"h/rhel/a=b/c=mirror/"_s;
    QVERIFY(Repo::Kivvet::getAuth(entry, a, b, c, password));
    QCOMPARE(password, u"mirror"_s);
    entry.baseurl = u"h/rhel/a=b/c=base/"_s;
    QVERIFY(Repo::Kivvet::getAuth(entry, a, b, c, password));
    QCOMPARE(password, u"base"_s);
}

void TestKivvet::replaces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("replaced"); // with name "n\1" and password "p/&"

    QTest::newRow("keys stay") << u"h/kivvet?user=joe&pass=x&path=os"_s
                               << u"h/kivvet?user=n%5c1&pass=p%2f%26&path=os"_s;
    QTest::newRow("every URL, with the first one's keys")
        << u"h/rhel/u=joe/p=x/a\nh/rhel/v=/q=/b\nhttp://plain/"_s
        << u"h/rhel/u=n%5c1/p=p%2f%26/a\nh/rhel/u=n%5c1/p=p%2f%26/b\nhttp://plain/"_s;
    QTest::newRow("no shape") << u"http://h/kivvet?a&path= /rhel/a/b"_s
                              << u"http://h/kivvet?a&path= /rhel/a/b"_s;
}

void TestKivvet::replaces()
{
    QFETCH(QString, text);
    QFETCH(QString, replaced);
    QCOMPARE(Repo::Kivvet::replaceAuth(text, u"n\\1"_s, u"p/&"_s), replaced);
}

void TestKivvet::replacingWithTheSameChangesNothing()
{
    QRandomGenerator random(2);
    for (int i = 0; i < 20000; ++i) {
        QStringList parts;
        for (int part = 0; part < 4; ++part) {
            // White space ends a URL, so only the one that is encoded can be in a value.
            const QString text = anyText(random, random.bounded(8)).simplified();
            parts += QString(text).remove(QChar(0xa0)).remove(QChar(0x2028));
        }
        const QString url = random.bounded(2) ? u"http://h/kivvet?%1=%2&%3=%4&path=x"_s.arg(
                                                    httpProtect(parts[0]), httpProtect(parts[1]),
                                                    httpProtect(parts[2]), httpProtect(parts[3]))
                                              : u"http://h/rhel/%1=%2/%3=%4/x"_s.arg(
                                                    httpProtect(parts[0]), httpProtect(parts[1]),
                                                    httpProtect(parts[2]), httpProtect(parts[3]));
        QStringList found(4);
        QVERIFY(Repo::Kivvet::getAuth(url, found[0], found[1], found[2], found[3]));
        QCOMPARE(found, parts);
        QCOMPARE(Repo::Kivvet::replaceAuth(url, found[1], found[3]), url);
        QCOMPARE(Repo::Kivvet::replaceAuth(url, found[3]), url);
        QCOMPARE(Repo::Kivvet::replaceAuth(Repo::Kivvet::replaceAuth(url, u"other"_s), found[3]),
                 url);
    }
}

void TestKivvet::expressions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("single");
    QTest::addColumn<QStringList>("passwords");

    QTest::newRow("query") << u"h/kivvet?a=b&c=pw&path=os"_s << true << QStringList{u"pw"_s};
    QTest::newRow("path of another script")
        << u"h/kivvet?a=b&c=pw&path=שלום"_s << false << QStringList{u"pw"_s};
    QTest::newRow("line feed in a single URL")
        << u"x\nh/kivvet?a=b&c=pw&path=\ny"_s << true << QStringList{u"pw"_s};
    QTest::newRow("several") << u"h/rhel/a=b/c=one/os\nhttp://x/ h/kivvet?a=b&c=two&path=os"_s
                             << false << QStringList{u"one"_s, u"two"_s};
    QTest::newRow("white space inside") << u"h/kivvet?a=b&c=p w&path=os"_s << true << QStringList{};
}

void TestKivvet::expressions()
{
    QFETCH(QString, text);
    QFETCH(bool, single);
    QFETCH(QStringList, passwords);
    const auto expression = single ? Repo::Kivvet::oneUrlRegExp() : Repo::Kivvet::urlsRegExp();
    QStringList found;
    auto matches = expression.globalMatch(text);
    while (matches.hasNext()) {
        const auto match = matches.next();
        if (single)
            QCOMPARE(match.captured(0), text);
        found += match.captured(1) + match.captured(2);
    }
    QCOMPARE(found, passwords);
}

QTEST_GUILESS_MAIN(TestKivvet)
#include "test_kivvet.moc"
