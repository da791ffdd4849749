#include "tablecase.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>
#include <QTest>

using namespace PackageTable;
using Package::Action;
using Package::State;

Q_DECLARE_METATYPE(Package::Action)

class TestModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_case.start());
        m_tester = std::make_unique<QAbstractItemModelTester>(m_case.model.get());
    }

    void init() { m_case.model->clearActions(); }

    void cells_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("versionTip");
        QTest::addColumn<QString>("stateTip");
        QTest::addColumn<QString>("kindTip");
        const QString update =
            QStringLiteral("Package is available to update an out-of-date version");
        const QString available = QStringLiteral("Package is available for installation");
        const QString installed = QStringLiteral("Package is installed and up-to-date");
        const QString package = QStringLiteral("Ordinary package");
        QTest::newRow("update of one") << "alpha"
                                       << "2:2-1"
                                       << "Available: 2:2-1\nInstalled: 1-1" << update << package;
        QTest::newRow("update of two")
            << "kernel"
            << "3-1 *"
            << "Available: 3-1\nInstalled: 1-1\nInstalled: 2-1" << update << package;
        QTest::newRow("installed twice")
            << "modules"
            << "1-1 *"
            << "Installed: 1-1\nInstalled: 2-1" << installed << package;
        QTest::newRow("installed") << "echo"
                                   << "1-1"
                                   << "Installed: 1-1" << installed << package;
        QTest::newRow("available") << "beta"
                                   << "1-1"
                                   << "Available: 1-1" << available << package;
        QTest::newRow("suite") << "tools-suite"
                               << "1-1"
                               << "Available: 1-1" << available << "Suite of packages";
        QTest::newRow("installed group") << "Workshop"
                                         << ""
                                         << "Installed:" << installed << "Group of packages";
    }

    void cells()
    {
        QFETCH(QString, name);
        const int row = m_case.row(name);
        QVERIFY(row >= 0);
        const auto data = [&](int column, int role = Qt::DisplayRole) {
            return m_case.model->index(row, column).data(role);
        };
        for (const int column : {ActionColumn, StateColumn, KindColumn})
            QVERIFY(!data(column).isValid());
        QCOMPARE(data(NameColumn).toString(), name);
        QTEST(data(VersionColumn).toString(), "version");
        QTEST(data(VersionColumn, Qt::ToolTipRole).toString(), "versionTip");
        QTEST(data(StateColumn, Qt::ToolTipRole).toString(), "stateTip");
        QTEST(data(KindColumn, Qt::ToolTipRole).toString(), "kindTip");
        QVERIFY(!data(NameColumn, Qt::ToolTipRole).isValid());
        QVERIFY(!data(NameColumn, Qt::DecorationRole).isValid());
        QCOMPARE(data(NameColumn, Qt::UserRole).value<Package::Entry *>(), m_case.engine[row]);
    }

    void otherTexts()
    {
        const auto text = [this](const char *name, int column) {
            const int row = m_case.row(QString::fromUtf8(name));
            return m_case.model->index(row, column).data().toString();
        };
        QCOMPARE(text("grüße", RepositoryColumn), QStringLiteral("extras"));
        QCOMPARE(text("Zulu", ArchitectureColumn), QStringLiteral("noarch"));
        QCOMPARE(text("echo", SizeColumn), QStringLiteral("3.0Gb"));
        QCOMPARE(text("beta", BuildTimeColumn), QStringLiteral("Fri Jan  2 00:00:00 1970"));
    }

    // Each state, kind and action has a picture of its own.
    void icons()
    {
        QSet<QByteArray> pictures;
        const auto look = [&](const char *name, int column) {
            const int row = m_case.row(QString::fromLatin1(name));
            const QVariant icon = m_case.model->index(row, column).data(Qt::DecorationRole);
            const QImage image = icon.value<QIcon>().pixmap(16).toImage();
            pictures.insert(
                QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
            return !image.isNull();
        };
        QVERIFY(look("alpha", StateColumn));
        QVERIFY(look("echo", StateColumn));
        const int beta = m_case.row(QStringLiteral("beta"));
        QVERIFY(!m_case.model->index(beta, StateColumn).data(Qt::DecorationRole).isValid());
        QVERIFY(look("alpha", KindColumn));
        QVERIFY(look("Attic", KindColumn));
        QVERIFY(look("tools-suite", KindColumn));
        for (const Action action :
             {Action::None, Action::Update, Action::Install, Action::Remove}) {
            m_case.entry(QStringLiteral("beta"))->action = action;
            QVERIFY(look("beta", ActionColumn));
        }
        QCOMPARE(pictures.size(), 9);
    }

    void colours()
    {
        const auto colour = [this](const char *name, int column) {
            const int row = m_case.row(QString::fromLatin1(name));
            return m_case.model->index(row, column).data(Qt::ForegroundRole).value<QColor>();
        };
        const QColor updatable = colour("alpha", NameColumn);
        const QColor installable = colour("beta", NameColumn);
        QVERIFY(updatable.isValid() && installable.isValid() && updatable != installable);
        QVERIFY(!colour("echo", NameColumn).isValid());
        QVERIFY(!colour("alpha", StateColumn).isValid());
        m_case.model->setEnabled(false);
        QVERIFY(colour("alpha", KindColumn) != updatable);
        QVERIFY(colour("beta", BuildTimeColumn) != installable);
        m_case.model->setEnabled(true);
        QCOMPARE(colour("alpha", KindColumn), updatable);
    }

    void toggles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QList<int>>("actions");
        QTest::newRow("updatable") << "alpha" << QList<int>{0, 2, 3, 0};
        QTest::newRow("installable") << "beta" << QList<int>{1, 3, 1};
        QTest::newRow("installed") << "echo" << QList<int>{2, 3, 2};
    }

    void toggles()
    {
        QFETCH(QString, name);
        QFETCH(QList<int>, actions);
        const int row = m_case.row(name);
        QSignalSpy changed(m_case.model.get(), &Model::dataChanged);
        for (const int action : actions) {
            m_case.model->toggleAction(m_case.model->index(row, NameColumn));
            QCOMPARE(int(m_case.engine[row]->action), action);
            const QModelIndex cell = m_case.model->index(row, ActionColumn);
            QCOMPARE(changed.takeLast(),
                     QVariantList({cell, cell, QVariant::fromValue(QList<int>())}));
            QCOMPARE(cell.data(Qt::UserRole).toInt(), action);
        }
        m_case.engine[row]->action =
            name == QStringLiteral("echo") ? Action::Install : Action::Update;
        if (name != QStringLiteral("alpha")) {
            m_case.model->toggleAction(m_case.model->index(row, NameColumn));
            QCOMPARE(m_case.engine[row]->action, Action::None);
        }
    }

    void setsSelectedAndClears()
    {
        const auto index = [this](const char *name) {
            return m_case.model->index(m_case.row(QString::fromLatin1(name)), NameColumn);
        };
        m_case.model->setAction(index("echo"), Action::Remove);
        QSignalSpy changed(m_case.model.get(), &Model::dataChanged);
        m_case.model->setSelected({index("alpha"), index("beta"), index("echo"), index("Attic")});
        QCOMPARE(changed.size(), 3);
        QCOMPARE(m_case.entry(QStringLiteral("alpha"))->action, Action::Update);
        QCOMPARE(m_case.entry(QStringLiteral("beta"))->action, Action::Install);
        QCOMPARE(m_case.entry(QStringLiteral("echo"))->action, Action::Remove);
        QCOMPARE(m_case.entry(QStringLiteral("Attic"))->action, Action::Install);
        m_case.model->clearActions();
        QCOMPARE(changed.size(), 7);
        m_case.model->clearActions();
        QCOMPARE(changed.size(), 7);
    }

    void outOfRange()
    {
        QSignalSpy changed(m_case.model.get(), &Model::dataChanged);
        m_case.model->setAction({}, Action::Install);
        m_case.model->toggleAction({});
        QVERIFY(changed.isEmpty());
        QVERIFY(!m_case.model->headerData(0, Qt::Vertical).isValid());
        QVERIFY(!m_case.model->headerData(ColumnCount, Qt::Horizontal).isValid());
        QCOMPARE(m_case.model->headerData(BuildTimeColumn, Qt::Horizontal).toString(),
                 QStringLiteral("Build Time"));
    }

private:
    TableCase m_case;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(TestModel)
#include "test_model.moc"
