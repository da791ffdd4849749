// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"
#include "tablecase.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>

using namespace PackageTable;
using Package::Action;

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
        columns<QString, int, QString, QString>("name", "column", "text", "tip");
        const auto row = [](const char *name, int column, const char *text, const char *tip) {
            QTest::addRow("%s %d", name, column) << s(name) << column << s(text) << s(tip);
        };
        row("alpha", VersionColumn, "2:2-1", "Available: 2:2-1\nInstalled: 1-1");
        row("kernel", VersionColumn, "3-1 *", "Available: 3-1\nInstalled: 1-1\nInstalled: 2-1");
        row("modules", VersionColumn, "1-1 *", "Installed: 1-1\nInstalled: 2-1");
        row("beta", VersionColumn, "1-1", "Available: 1-1");
        row("Workshop", VersionColumn, "", "Installed:");
        row("alpha", StateColumn, "", "Package is available to update an out-of-date version");
        row("beta", StateColumn, "", "Package is available for installation");
        row("Workshop", StateColumn, "", "Package is installed and up-to-date");
        row("echo", KindColumn, "", "Ordinary package");
        row("tools-suite", KindColumn, "", "Suite of packages");
        row("Attic", KindColumn, "", "Group of packages");
        row("grüße", RepositoryColumn, "extras", "");
        row("Zulu", ArchitectureColumn, "noarch", "");
        row("echo", SizeColumn, "3.0Gb", "");
        row("beta", BuildTimeColumn, "Fri Jan  2 00:00:00 1970", "");
    }

    void cells()
    {
        QFETCH(QString, name);
        QFETCH(int, column);
        const QModelIndex cell = m_case.index(name, column);
        QTEST(cell.data().toString(), "text");
        QTEST(cell.data(Qt::ToolTipRole).toString(), "tip");
        QCOMPARE(cell.siblingAtColumn(NameColumn).data(Qt::UserRole).value<Package::Entry *>(),
                 m_case.entry(name));
    }

    // Each state, kind and action has a picture of its own.
    void icons()
    {
        QSet<QByteArray> pictures;
        const auto look = [&](const char *name, int column) {
            const QVariant icon = m_case.index(s(name), column).data(Qt::DecorationRole);
            const QImage image = icon.value<QIcon>().pixmap(16).toImage();
            pictures.insert(
                QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
            return !image.isNull();
        };
        QVERIFY(look("alpha", StateColumn) && look("echo", StateColumn));
        QVERIFY(look("alpha", KindColumn) && look("Attic", KindColumn));
        QVERIFY(look("tools-suite", KindColumn));
        for (const Action action :
             {Action::None, Action::Update, Action::Install, Action::Remove}) {
            m_case.entry(s("beta"))->action = action;
            QVERIFY(look("beta", ActionColumn));
        }
        QCOMPARE(pictures.size(), 9);
    }

    void colours()
    {
        const auto colour = [this](const char *name) {
            return m_case.index(s(name)).data(Qt::ForegroundRole).value<QColor>();
        };
        const QColor updatable = colour("alpha"), installable = colour("beta");
        QVERIFY(updatable.isValid() && installable.isValid() && updatable != installable);
        QVERIFY(!colour("echo").isValid());
        m_case.model->setEnabled(false);
        QVERIFY(colour("alpha") != updatable && colour("beta") != installable);
        m_case.model->setEnabled(true);
        QCOMPARE(colour("alpha"), updatable);
    }

    void toggles_data()
    {
        columns<QString, QList<int>>("name", "actions");
        row("updatable", "alpha", QList<int>{0, 2, 3, 0});
        row("installable", "beta", QList<int>{1, 3, 1});
        row("installed", "echo", QList<int>{2, 3, 2});
    }

    void toggles()
    {
        QFETCH(QString, name);
        QFETCH(QList<int>, actions);
        const QModelIndex cell = m_case.index(name, ActionColumn);
        QSignalSpy changed(m_case.model.get(), &Model::dataChanged);
        for (const int action : actions) {
            m_case.model->toggleAction(cell.siblingAtColumn(NameColumn));
            QCOMPARE(int(m_case.entry(name)->action), action);
            QCOMPARE(changed.takeLast().mid(0, 2), QVariantList({cell, cell}));
        }
    }

    void setsSelectedAndClears()
    {
        m_case.model->setAction(m_case.index(s("echo")), Action::Remove);
        QSignalSpy changed(m_case.model.get(), &Model::dataChanged);
        m_case.model->setSelected({m_case.index(s("alpha")), m_case.index(s("beta")),
                                   m_case.index(s("echo")), m_case.index(s("Attic"))});
        QCOMPARE(changed.size(), 3);
        QCOMPARE(m_case.entry(s("alpha"))->action, Action::Update);
        QCOMPARE(m_case.entry(s("beta"))->action, Action::Install);
        QCOMPARE(m_case.entry(s("echo"))->action, Action::Remove);
        QCOMPARE(m_case.entry(s("Attic"))->action, Action::Install);
        m_case.model->clearActions();
        m_case.model->clearActions();
        QCOMPARE(changed.size(), 7);
        m_case.model->setAction({}, Action::Install);
        m_case.model->toggleAction({});
        QCOMPARE(changed.size(), 7);
    }

private:
    TableCase m_case;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(TestModel)
#include "test_model.moc"
