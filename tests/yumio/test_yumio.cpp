// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "yumio/envra.h"
#include "yumio/expression.h"
#include "yumio/formats.h"
#include "yumio/searchtexts.h"
#include "yumio/yumio.h"

#include <QTemporaryFile>
#include <QTest>

#include <iterator>
#include <random>
#include <unistd.h>

// What needs no interpreter: texts, designations, keys, entries.
class TestYumIO : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data()
    {
        columns<quint64, QString>("bytes", "text");

        constexpr quint64 k = 1024;
        const auto row = [](quint64 bytes, const char *text) {
            QTest::addRow("%llu", static_cast<unsigned long long>(bytes))
                << bytes << QString::fromLatin1(text);
        };
        row(0, "0b");
        row(999, "999b");
        row(1000, "1.0Kb");
        row(1280, "1.2Kb"); // a tie, which the even digit gets
        row(10188, "9.9Kb");
        row(10189, "10Kb");
        row(1023999, "1000Kb");
        row(1024000, "1.0Mb");
        row(1000 * k * k - 1, "1000Mb");
        row(1000 * k * k * k * k * k - 1, "1000Pb");
        row(1000 * k * k * k * k * k, "1.0Eb");
        row(~quint64(0), "16Eb");
    }

    void sizes()
    {
        QFETCH(quint64, bytes);
        QTEST(bytesFormat(bytes), "text");
    }

    void times_data()
    {
        columns<qint64, QString, QString>("time", "withTime", "date");

        row("epoch", qint64(0), QStringLiteral("Thu Jan  1 00:00:00 1970"),
            QStringLiteral("Thu Jan  1 1970"));
        row("before", qint64(-1), QStringLiteral("Wed Dec 31 23:59:59 1969"),
            QStringLiteral("Wed Dec 31 1969"));
        row("beyond 32 bits", qint64(4294967296), QStringLiteral("Sun Feb  7 06:28:16 2106"),
            QStringLiteral("Sun Feb  7 2106"));
        row("no year has it", std::numeric_limits<qint64>::max(), QString(), QString());
    }

    void times()
    {
        QFETCH(qint64, time);
        // The two have buffers of their own.
        const char *withTime = timeFormat(time);
        const char *date = dateFormat(time);
        QTEST(QString::fromLatin1(withTime), "withTime");
        QTEST(QString::fromLatin1(date), "date");
    }

    void designations_data()
    {
        // parts: name|epoch|version|release|arch, empty when it is none
        columns<QString, QString>("text", "parts");

        const auto row = [](const char *text, const char *parts) { ::row(text, text, parts); };
        row("0:bash-5.1-3.el9.x86_64", "bash|0|5.1|3.el9|x86_64");
        row("gtk-theme-2-engine-1.0-1.noarch", "gtk-theme-2-engine||1.0|1|noarch");
        row("a:b:name-1-2.i686", "name|a:b|1|2|i686");
        row("name-1:2-3.i686",
            "name||1:2|3|i686"); // an epoch is looked for before the version only
        row("-v-r.a", "");
        row("name-1-2", "");
        row("name.arch", "");
        row("", "");
    }

    void designations()
    {
        QFETCH(QString, text);
        QFETCH(QString, parts);

        QString name, epoch, version, release, arch;
        QCOMPARE(YumIO::parseEnvra(text, name, epoch, version, release, arch), !parts.isEmpty());
        QString shortName, shortArch;
        QCOMPARE(YumIO::parseEnvra(text, shortName, shortArch), !parts.isEmpty());
        if (parts.isEmpty())
            return;
        QCOMPARE((QStringList{name, epoch, version, release, arch}).join(u'|'), parts);
        QCOMPARE(shortName, name);
        QCOMPARE(shortArch, arch);
    }

    void keys()
    {
        using Key = YumIO::EntryKey;
        const QString base = QStringLiteral("Base");
        // Wraps in 32 bits and takes no seed, so that the order of rows is the same in every run.
        const Key key(true, base, QStringLiteral("x86_64"));
        QCOMPARE(qHash(key, 17), qHash(key, 0));
        QVERIFY(qHash(key, 0) <= 0xffffffffu);
        QCOMPARE(qHash(key), qHash(Key(false, base, key.arch)) + 1);
    }

    void entries()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        const int saved = ::dup(STDERR_FILENO);
        ::dup2(file.handle(), STDERR_FILENO);
        {
            static int object;
            Package::EntryList list;
            for (int i = 0; i < 2; ++i) {
                auto *head = new Package::Entry;
                head->po = reinterpret_cast<PyObject *>(&object);
                list.append(head);
            }
            // Longer than a stack could take.
            Package::Entry *last = list[0];
            for (int i = 0; i < 300000; ++i)
                last = last->next = new Package::Entry;
        }
        ::dup2(saved, STDERR_FILENO);
        ::close(saved);
        file.seek(0);
        const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines[0].startsWith("Internal error: attempt to delete Package::Entry 0x"));
        QVERIFY(lines[0].contains(" with extant python obj 0x"));
    }

    // However an expression is rewritten, it finds what the C library finds with it as it stands.
    void expressions()
    {
        static constexpr const char *parts[] = {
            "a",   "b",   "\u00e9", ".",   "*",    "+",          "?",     "^",           "$",
            "(",   ")",   "|",      "{2}", "{,1}", "[^]b]",      "[)]",   "[[:alpha:]]", "\\.",
            "\\1", "\\<", "\\)",    "\n",  "}",    "[a-\u00e9]", "[A-a]", "\\w",         "[[=a=]]"};
        static constexpr const char *texts[] = {"a", "b", "\u00e9", ".", " ", "\n", ")", "_", "ab"};
        std::mt19937 random(1);
        const auto some = [&](const auto &pieces, unsigned most) {
            QByteArray text;
            for (unsigned left = 1 + random() % most; left > 0; --left)
                text += pieces[random() % std::size(pieces)];
            return text;
        };
        int found = 0;
        for (int i = 0; i < 20000; ++i) {
            const QByteArray pattern = some(parts, 7), text = some(texts, 8);
            regex_t plain;
            const bool compiles = regcomp(&plain, pattern, REG_EXTENDED | REG_NOSUB) == 0;
            const bool matches = !compiles || regexec(&plain, text, 0, nullptr, 0) == 0;
            if (compiles)
                regfree(&plain);
            found += compiles && matches;
            QVERIFY2(Expression(QString::fromUtf8(pattern)).matches(text.constData()) == matches,
                     pattern + " in " + text);
        }
        QVERIFY(found > 1000);
    }

    // What is kept comes back whole, for the metadata that it was kept for, or not at all.
    void searchTexts()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        SearchTexts texts;
        const auto record = [](int i) {
            return (QByteArray::number(i).repeated(1 + i % 300) + '\0').repeated(20);
        };
        constexpr int count = 1000; // several blocks
        for (int i = 0; i < count; ++i)
            texts.add(QByteArray::number(i), record(i));
        texts.finish();
        QVERIFY(texts.save(file.fileName(), "one"));
        SearchTexts kept;
        QVERIFY(!kept.open(file.fileName(), "another"));
        QVERIFY(kept.open(file.fileName(), "one"));
        for (int i = 0; i < count; ++i) {
            const SearchTexts::Place *place = kept.find(QByteArray::number(i));
            QVERIFY(place);
            QCOMPARE(kept.block(place->block).mid(place->offset, place->size), record(i));
        }

        QFile damaged(file.fileName());
        QVERIFY(damaged.open(QIODevice::ReadWrite) && damaged.seek(100) && damaged.write("xxxx"));
        damaged.close();
        QVERIFY(kept.open(file.fileName(), "one"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("qUncompress")));
        QVERIFY(kept.block(0).isEmpty());
        QVERIFY(damaged.resize(damaged.size() / 2));
        QVERIFY(!kept.open(file.fileName(), "one"));
    }
};

QTEST_GUILESS_MAIN(TestYumIO)
#include "test_yumio.moc"
