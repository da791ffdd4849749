#include "kivvet/kivvet.h"
#include "kivvet/percent.h"
#include "repo/repoentry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

class TestKivvet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void percent()
    {
        QCOMPARE(httpProtect(u"$&+,/:;=?@ \"<>#%{}|\\^~[]"_s),
                 u"%24%26%2b%2c%2f%3a%3b%3d%3f%40%20%22%3c%3e%23%25%7b%7d%7c%5c%5e%7e%5b%5d"_s);
        QCOMPARE(httpProtect(u"Aé-_.!*'()中\n"_s), u"Aé-_.!*'()中\n"_s);
        QCOMPARE(httpUnprotect(u"%41%4a%4A%2541%e9%4%g1%"_s), u"AJJ%41é%4%g1%"_s);
        QRandomGenerator random(1);
        for (int i = 0; i < 20000; ++i) {
            const QString text = anyText(random, random.bounded(12));
            QCOMPARE(httpUnprotect(httpProtect(text)), text);
        }
    }

    void findsCredentials_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("parts"); // of the credentials, separated by blanks
        const auto row = [](const char *name, const QString &url, const QString &parts = {}) {
            QTest::newRow(name) << url << parts;
        };
        row("query", u"https://h/x/kivvet?user=joe&pass=s3c&path=os/7"_s, u"user joe pass s3c"_s);
        row("path", u"https://h/rhel/user=joe/pass=s3c/os"_s, u"user joe pass s3c"_s);
        row("decoded", u"h/kivvet?u%09k=%41b&p=a%26b%2fc%2541&path="_s, u"u\tk Ab p a&b/c%41"_s);
        row("empty values", u"h/kivvet?=&=&path="_s, u"   "_s);
        row("query first", u"h/rhel/a=b/c=d/ h/kivvet?e=f&g=h&path="_s, u"e f g h"_s);
        row("several URLs", u"http://plain/\nh/rhel/a=b/c=d/\nh/rhel/e=f/g=h/"_s, u"a b c d"_s);
        row("a broken query hides the path form", u"h/kivvet?a=b&c=d h/rhel/a=b/c=d/"_s);
        row("other case", u"h/Kivvet?a=b&c=d&path=, h/RHEL/a=b/c=d/"_s);
    }

    void findsCredentials()
    {
        QFETCH(QString, url);
        QFETCH(QString, parts);
        QStringList found(4, u"untouched"_s);
        QCOMPARE(Repo::Kivvet::getAuth(url, found[0], found[1], found[2], found[3]),
                 !parts.isEmpty());
        QCOMPARE(found, parts.isEmpty() ? QStringList(4, u"untouched"_s) : parts.split(u' '));
    }

    void mirrorListIsSecond()
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

    void replaces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("replaced"); // with name "n\1" and password "p/&"
        QTest::newRow("keys stay") << u"h/kivvet?user=joe&pass=x&path=os"_s
                                   << u"h/kivvet?user=n%5c1&pass=p%2f%26&path=os"_s;
        QTest::newRow("every URL, with the first one's keys")
            << u"h/rhel/u=joe/p=x/a\nh/rhel/v=/q=/b\nhttp://plain/"_s
            << u"h/rhel/u=n%5c1/p=p%2f%26/a\nh/rhel/u=n%5c1/p=p%2f%26/b\nhttp://plain/"_s;
        const QString other = u"http://h/kivvet?a&path= /rhel/a/b"_s;
        QTest::newRow("no shape") << other << other;
    }

    void replaces()
    {
        QFETCH(QString, text);
        QTEST(Repo::Kivvet::replaceAuth(text, u"n\\1"_s, u"p/&"_s), "replaced");
    }

    void replacingWithTheSameChangesNothing()
    {
        QRandomGenerator random(2);
        for (int i = 0; i < 20000; ++i) {
            QStringList parts;
            for (int part = 0; part < 4; ++part) {
                // White space ends a URL, so only the one that is encoded can be in a value.
                const QString text = anyText(random, random.bounded(8)).simplified();
                parts += QString(text).remove(QChar(0xa0)).remove(QChar(0x2028));
            }
            const QString form = random.bounded(2) ? u"http://h/kivvet?%1=%2&%3=%4&path=x"_s
                                                   : u"http://h/rhel/%1=%2/%3=%4/x"_s;
            const QString url = form.arg(httpProtect(parts[0]), httpProtect(parts[1]),
                                         httpProtect(parts[2]), httpProtect(parts[3]));
            QStringList found(4);
            QVERIFY(Repo::Kivvet::getAuth(url, found[0], found[1], found[2], found[3]));
            QCOMPARE(found, parts);
            QCOMPARE(Repo::Kivvet::replaceAuth(url, found[1], found[3]), url);
            QCOMPARE(Repo::Kivvet::replaceAuth(url, found[3]), url);
            const QString other = Repo::Kivvet::replaceAuth(url, u"other"_s);
            QCOMPARE(Repo::Kivvet::replaceAuth(other, found[3]), url);
        }
    }

    void expressions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("single");
        QTest::addColumn<QString>("passwords");
        QTest::newRow("query") << u"h/kivvet?a=b&c=pw&path=os"_s << true << u"pw"_s;
        QTest::newRow("path of another script")
            << u"h/kivvet?a=b&c=pw&path=שלום"_s << false << u"pw"_s;
        QTest::newRow("line feed in a single URL")
            << u"x\nh/kivvet?a=b&c=pw&path=\ny"_s << true << u"pw"_s;
        QTest::newRow("several") << u"h/rhel/a=b/c=one/os\nhttp://x/ h/kivvet?a=b&c=two&path=os"_s
                                 << false << u"one two"_s;
        QTest::newRow("white space inside") << u"h/kivvet?a=b&c=p w&path=os"_s << true << u""_s;
    }

    void expressions()
    {
        QFETCH(QString, text);
        QFETCH(bool, single);
        const auto expression = single ? Repo::Kivvet::oneUrlRegExp() : Repo::Kivvet::urlsRegExp();
        QStringList found;
        for (const QRegularExpressionMatch &match : expression.globalMatch(text)) {
            if (single)
                QCOMPARE(match.captured(0), text);
            found += match.captured(1) + match.captured(2);
        }
        QTEST(found.join(u' '), "passwords");
    }

private:
    // Characters that mean something somewhere, and some that must not.
    static QString anyText(QRandomGenerator &random, int length)
    {
        static const QString alphabet = u"ab%41F&=/?:+\\\\1$ \t\n[]{}~\"éß€中שלום\u00a0\u2028"_s;
        QString text;
        for (int i = 0; i < length; ++i)
            text += alphabet.at(random.bounded(alphabet.size()));
        return text;
    }
};

QTEST_GUILESS_MAIN(TestKivvet)
#include "test_kivvet.moc"
