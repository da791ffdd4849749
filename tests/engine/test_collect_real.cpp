#include "answers.h"

#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

// One package on the system or in a repository.
QString packageLine(const QString &name, const QString &verRel, const QString &arch)
{
    return name + u' ' + verRel + u' ' + arch;
}

// A row and its chain as one line; lines begin "state name verRel arch".
QString rowLine(const Package::Entry &row)
{
    QString line;
    for (const Package::Entry *entry = &row; entry; entry = entry->next) {
        const QStringList fields = {QString::number(int(entry->state)),
                                    packageLine(entry->name, entry->verRel, entry->arch),
                                    entry->biArch,
                                    entry->repo,
                                    QString::number(int(entry->kind)),
                                    QString::number(entry->size),
                                    entry->sizeText,
                                    QString::number(entry->buildTime),
                                    entry->duplicate ? QStringLiteral("duplicate")
                                                     : QStringLiteral("-"),
                                    entry->summary};
        line += (line.isEmpty() ? QString() : QStringLiteral("\t<\t")) + fields.join(u'\t');
    }
    return line.replace(u'\n', u' ') + u'\n';
}

int failed(const Answers &answers)
{
    std::fputs(qPrintable(answers.texts().join(u'\n')), stderr);
    return 3;
}

// The part that runs on the root: collects and writes the rows.
int collectRows(const QString &path)
{
    Answers answers;
    QWidget window;
    HProgressBar totalBar, itemBar;
    YumIO engine;
    engine.setup(&window, &totalBar, &itemBar);
    if (!engine.initialize())
        return failed(answers);
    if (!engine.collect({}) || !answers.shown.isEmpty())
        return failed(answers);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 2;
    for (const Package::Entry *row : engine)
        file.write(rowLine(*row).toUtf8());
    engine.clear();
    return file.flush() ? 0 : 2;
}

QByteArray run(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(SANDBOX), arguments);
    // Building the packages for the first time takes its time.
    if (!process.waitForFinished(900000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return QByteArray("failed: ") + QByteArray::number(process.exitCode());
    return process.readAllStandardOutput();
}

QStringList linesOf(const QByteArray &text)
{
    return QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
}

// What only one of two lists has, for a readable failure.
QString differences(const QStringList &found, const QStringList &expected)
{
    QStringList lines;
    for (const QString &line : found) {
        if (!expected.contains(line))
            lines.append(u'+' + line);
    }
    for (const QString &line : expected) {
        if (!found.contains(line))
            lines.append(u'-' + line);
    }
    return lines.join(u'\n');
}

} // namespace

// A collection of real packages, compared with what rpm and dnf say of the same root.
class TestCollectReal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void installedPackages();
    void availablePackages();

private:
    QTemporaryDir m_place;
    QString m_root = m_place.filePath(QStringLiteral("root"));
    QStringList m_rows;
};

void TestCollectReal::initTestCase()
{
    QVERIFY(m_place.isValid());
    QVERIFY(!run({QStringLiteral("create"), m_root}).startsWith("failed"));
    const QString path = m_place.filePath(QStringLiteral("rows"));
    const QByteArray said =
        run({QStringLiteral("run"), m_root, QStringLiteral("--"),
             QCoreApplication::applicationFilePath(), QStringLiteral("--collect"), path});
    QFile file(path);
    QVERIFY2(!said.startsWith("failed") && file.open(QIODevice::ReadOnly), said.constData());
    m_rows = linesOf(file.readAll());
    QVERIFY2(m_rows.size() > 60, qPrintable(m_rows.join(u'\n')));
}

void TestCollectReal::installedPackages()
{
    QStringList found;
    for (const QString &row : m_rows) {
        for (const QString &version : row.split(QStringLiteral("\t<\t"))) {
            const QStringList fields = version.split(u'\t');
            if (fields[0] == QLatin1String("2") && fields[4] != QLatin1String("1"))
                found.append(fields[1]);
        }
    }
    found.sort();
    QStringList expected = linesOf(
        run({QStringLiteral("rpm"), m_root, QStringLiteral("-qa"), QStringLiteral("--qf"),
             QStringLiteral("%{NAME} %|EPOCH?{%{EPOCH}:}|%{VERSION}-%{RELEASE} %{ARCH}\\n")}));
    // Keys are no packages to anybody but rpm.
    expected = expected.filter(QRegularExpression(QStringLiteral("^(?!gpg-pubkey )")));
    expected.replaceInStrings(QStringLiteral(" 0:"), QStringLiteral(" "));
    expected.sort();
    QVERIFY(expected.size() > 20);
    QCOMPARE(differences(found, expected), QString());
    QCOMPARE(found, expected);
}

void TestCollectReal::availablePackages()
{
    const QStringList words =
        QString::fromUtf8(run({QStringLiteral("dnf"), m_root, QStringLiteral("-q"),
                               QStringLiteral("list"), QStringLiteral("--all")}))
            .section(QStringLiteral("Available Packages"), 1)
            .split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    QCOMPARE(words.size() % 3, 0);
    // Of a version that several repositories offer dnf lists each, the table shows one; source packages
    // are shown by dnf alone.
    QStringList expected;
    QSet<QString> offers;
    for (qsizetype i = 0; i < words.size(); i += 3) {
        const qsizetype dot = words[i].lastIndexOf(u'.');
        const QString package =
            packageLine(words[i].left(dot), words[i + 1], words[i].mid(dot + 1));
        if (words[i].mid(dot + 1) != QLatin1String("src"))
            expected.append(package);
        offers.insert(package + u' ' + words[i + 2]);
    }
    expected.removeDuplicates();
    expected.sort();

    QStringList found;
    for (const QString &row : m_rows) {
        const QStringList fields = row.section(QStringLiteral("\t<\t"), 0, 0).split(u'\t');
        if (fields[0] == QLatin1String("2") || fields[4] == QLatin1String("1"))
            continue;
        found.append(fields[1]);
        QVERIFY2(offers.contains(fields[1] + u' ' + fields[3]), qPrintable(row));
    }
    found.sort();
    QVERIFY(expected.size() > 20);
    QCOMPARE(differences(found, expected), QString());
    QCOMPARE(found, expected);
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (argc == 3)
        return collectRows(QString::fromLocal8Bit(argv[2]));
    TestCollectReal test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_collect_real.moc"
