// Files as distributions and vendors publish them: what is read from them is there again after a
// write, and a second write changes no byte.

#include "configroot.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Everything of a repository that must survive; its lines in their order.
QStringList lines(const Repo::Entry &entry)
{
    return QStringList{entry.id,
                       entry.name,
                       entry.baseurl,
                       entry.mirrorlist,
                       QString::number(entry.enabled),
                       QString::number(entry.gpgcheck)} +
           entry.otherOptions.split(u'\n');
}

} // namespace

class TestRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void published_data();
    void published();
    void together();
};

void TestRoundTrip::published_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &name : QDir(QStringLiteral(VOK_DATA)).entryList({u"*.repo"_s}))
        QTest::newRow(name.toUtf8()) << QDir(QStringLiteral(VOK_DATA)).filePath(name);
}

void TestRoundTrip::published()
{
    QFETCH(QString, file);
    QFile source(file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray bytes = source.readAll();
    ConfigRoot root;
    const QString path = u"/etc/yum.repos.d/"_s + QFileInfo(file).fileName();
    root.put(path, bytes);
    QVERIFY(root.io.read(nullptr));
    const QList<Repo::Entry> before = root.io.repos;
    QCOMPARE(before.size(), bytes.count("\n[") + (bytes.startsWith('[') ? 1 : 0));
    QVERIFY(root.io.write(nullptr));
    const QByteArray first = root.get(path);

    QVERIFY(root.io.read(nullptr));
    QCOMPARE(root.io.repos.size(), before.size());
    for (qsizetype i = 0; i < before.size(); ++i)
        QCOMPARE(lines(root.io.repos[i]), lines(before[i]));
    QVERIFY(root.io.write(nullptr));
    QCOMPARE(root.get(path), first);
    QCOMPARE(root.get(path + u".vok-orig"_s), bytes);

    // Every line of a section is still there, in the words of the file.
    QList<QByteArray> written;
    for (const QByteArray &line : first.split('\n'))
        written += line.simplified();
    const QByteArray sections = bytes.mid(bytes.startsWith('[') ? 0 : bytes.indexOf("\n["));
    for (const QByteArray &line : sections.split('\n')) {
        QByteArray simple = line.simplified();
        for (const QByteArray option : {"name", "baseurl", "mirrorlist", "enabled", "gpgcheck"}) {
            for (const QByteArray delimiter : {" = ", ": ", " : "}) {
                if (simple.startsWith(option + delimiter))
                    simple.replace(option.size(), delimiter.size(), "=");
            }
        }
        QVERIFY2(written.contains(simple), line);
    }
}

// All of them in one directory, one repository changed: one file differs.
void TestRoundTrip::together()
{
    ConfigRoot root;
    const QDir data(QStringLiteral(VOK_DATA));
    const QStringList names = data.entryList({u"*.repo"_s});
    for (const QString &name : names)
        QVERIFY(QFile::copy(data.filePath(name), root.real(u"/etc/yum.repos.d/"_s + name)));
    QVERIFY(root.io.read(nullptr) && root.io.write(nullptr));
    QHash<QString, QByteArray> before;
    for (const QString &name : names)
        before[name] = root.get(u"/etc/yum.repos.d/"_s + name);

    QVERIFY(root.io.read(nullptr));
    root.entry(u"epel"_s).enabled = Qt::Unchecked;
    QVERIFY(root.io.write(nullptr));
    for (const QString &name : names) {
        QByteArray expected = before[name];
        if (name == u"epel.repo"_s)
            expected.replace(expected.indexOf("enabled=1"), 9, "enabled=0");
        QCOMPARE(root.get(u"/etc/yum.repos.d/"_s + name), expected);
    }
}

QTEST_MAIN(TestRoundTrip)
#include "test_roundtrip.moc"
