// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "kivvet/kivvet.h"
#include "kivvet/percent.h"
#include "repo/repoentry.h"

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
    }

    void findsCredentials_data()
    {
        // parts: of the credentials, separated by blanks
        columns<QString, QString>("url", "parts");
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
        // replaced: with name "n\1" and password "p/&"
        columns<QString, QString>("text", "replaced");
        row("keys stay", "h/kivvet?user=joe&pass=x&path=os",
            "h/kivvet?user=n%5c1&pass=p%2f%26&path=os");
        row("every URL", "h/rhel/u=joe/p=x/a\nh/rhel/v%41=/q=/b\nhttp://plain/",
            "h/rhel/u=n%5c1/p=p%2f%26/a\nh/rhel/v%41=n%5c1/q=p%2f%26/b\nhttp://plain/");
        row("the same bytes",
            "h/kivvet?u=%6E%5C1&p=p%2F%26&path=", "h/kivvet?u=%6E%5C1&p=p%2F%26&path=");
        const QString other = u"http://h/kivvet?a&path= /rhel/a/b"_s;
        row("no shape", other, other);
    }

    void replaces()
    {
        QFETCH(QString, text);
        QTEST(Repo::Kivvet::replaceAuth(text, u"n\\1"_s, u"p/&"_s), "replaced");
    }

    void changes()
    {
        const auto changed = [](const QString &text, const QString &name, const QString &password) {
            return Repo::Kivvet::changeAuth(text, {u"joe"_s, u"é\n"_s}, {name, password});
        };
        const QString text =
            u"h/kivvet?us%65r=j%6fe&p=%e9%0A&path=\nh/rhel/v=ann/q=%E9%0a/ h/rhel/u=joe/p=2/"_s;
        QCOMPARE(changed(text, u"joe"_s, u"é\n"_s), text);
        QCOMPARE(changed(text, u"j\u00a0"_s, u"é\n"_s),
                 QString(text).replace(u"j%6fe"_s, u"joe"_s).replace(u"joe"_s, u"j%a0"_s));
        QCOMPARE(changed(text, u"joe"_s, u"x"_s),
                 QString(text).replace(u"%e9%0a"_s, u"x"_s, Qt::CaseInsensitive));
    }

    void expressions_data()
    {
        columns<QString, bool, QString>("text", "single", "passwords");
        row("query", "h/kivvet?a=b&c=pw&path=os", true, "pw");
        row("path of another script", "h/kivvet?a=b&c=pw&path=שלום", false, "pw");
        row("line feed in a single URL", "x\nh/kivvet?a=b&c=pw&path=\ny", true, "pw");
        row("several", "h/rhel/a=b/c=one/os\nhttp://x/ h/kivvet?a=b&c=two&path=os", false,
            "one two");
        row("white space inside", "h/kivvet?a=b&c=p w&path=os", true, "");
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
};

QTEST_GUILESS_MAIN(TestKivvet)
#include "test_kivvet.moc"
