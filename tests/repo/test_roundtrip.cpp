// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Files as distributions and vendors publish them: what is read from them is there again after a
// write, a second write changes no byte, and a changed repository changes its file alone.

#include "configroot.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void published();

private:
    // Everything of the repositories that must survive, and for each file how many it has.
    static QStringList lines(const YumConfIO &io, QHash<QString, qsizetype> &counts)
    {
        QStringList all;
        for (const Repo::Entry &entry : io.repos) {
            ++counts[entry.file];
            all += {entry.file,
                    entry.id,
                    entry.name,
                    entry.baseurl,
                    entry.mirrorlist,
                    QString::number(entry.enabled),
                    QString::number(entry.gpgcheck)};
            all += entry.otherOptions.split(u'\n');
        }
        return all;
    }
};

void TestRoundTrip::published()
{
    ConfigRoot root;
    const QDir data(QStringLiteral(VOK_DATA));
    QHash<QString, QByteArray> published, first;
    for (const QString &name : data.entryList({u"*.repo"_s})) {
        const QString path = u"/etc/yum.repos.d/"_s + name;
        QVERIFY(QFile::copy(data.filePath(name), root.real(path)));
        published[path] = root.get(path);
    }
    QVERIFY(published.size() > 10);
    QVERIFY(root.io.read(nullptr));
    QHash<QString, qsizetype> counts, countsAgain;
    const QStringList before = lines(root.io, counts);
    QVERIFY(root.io.write(nullptr));
    for (auto file = published.cbegin(); file != published.cend(); ++file) {
        const QString &path = file.key();
        const QByteArray &bytes = file.value();
        const bool atOnce = bytes.startsWith('[');
        QVERIFY2(counts[path] == bytes.count("\n[") + atOnce, qPrintable(path));
        first[path] = root.get(path);
        const QByteArray kept = first[path] == bytes ? QByteArray("(none)") : bytes;
        QVERIFY2(root.get(path + u".vok-orig"_s) == kept, qPrintable(path));

        // Every line of a section is still there, in the words of the file.
        QList<QByteArray> written;
        for (const QByteArray &line : first[path].split('\n'))
            written += line.simplified();
        for (const QByteArray &line : bytes.mid(atOnce ? 0 : bytes.indexOf("\n[")).split('\n')) {
            QByteArray simple = line.simplified();
            for (const QByteArray option :
                 {"name", "baseurl", "mirrorlist", "enabled", "gpgcheck"}) {
                for (const QByteArray delimiter : {" = ", ": ", " : "}) {
                    if (simple.startsWith(option + delimiter))
                        simple.replace(option.size(), delimiter.size(), "=");
                }
            }
            QVERIFY2(written.contains(simple), qPrintable(path) + (": " + line));
        }
    }

    QVERIFY(root.io.read(nullptr));
    QCOMPARE(lines(root.io, countsAgain), before);
    root.entry(u"epel"_s).enabled = Qt::Unchecked;
    QVERIFY(root.io.write(nullptr));
    QByteArray &changed = first[root.repo(u"epel"_s)];
    changed.replace(changed.indexOf("enabled=1"), 9, "enabled=0");
    for (auto file = first.cbegin(); file != first.cend(); ++file)
        QVERIFY2(root.get(file.key()) == file.value(), qPrintable(file.key()));
}

QTEST_MAIN(TestRoundTrip)
#include "test_roundtrip.moc"
