// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "packagetable/menus.h"
#include "packagetable/view.h"
#include "tablecase.h"

#include <QAction>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTimer>

using namespace PackageTable;
using namespace Qt::StringLiterals;
using Package::Action;

class TestView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_case.start());
        m_view = std::make_unique<View>(m_case.model.get(), m_case.proxy.get(), nullptr);
        m_view->resize(900, 600);
        m_view->show();
        m_view->resizeColumnsToContents();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }

    void init()
    {
        m_case.model->clearActions();
        m_view->clearSelection();
        m_case.proxy->setFilterRegExp(QString());
    }

    void headerClicksSort()
    {
        const QHeaderView *header = m_view->horizontalHeader();
        QCOMPARE(header->sortIndicatorSection(), int(KindColumn));
        const auto click = [&](int column) {
            const QPoint pos(header->sectionViewportPosition(column) + 8, header->height() / 2);
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, pos);
        };
        click(NameColumn);
        QVERIFY(m_case.listed().startsWith(s("Attic")));
        click(NameColumn);
        QVERIFY(m_case.listed().startsWith(s("tools-suite")));
        QCOMPARE(m_case.proxy->filterKeyColumn(), int(NameColumn));
        click(KindColumn);
        QVERIFY(m_case.listed().startsWith(s("tools-suite")));
        QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    // What the keys do in the header is what the mouse does: sort, move, hide.
    void headerKeys()
    {
        QHeaderView *header = m_view->horizontalHeader();
        const QVariantMap columns = m_view->columns();
        header->setFocus();
        const auto press = [&](int key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(header, Qt::Key(key), modifiers);
        };
        header->hideSection(StateColumn);
        press(Qt::Key_Home);
        press(Qt::Key_Right);
        press(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(header->visualIndex(KindColumn), int(NameColumn)); // over the hidden one
        press(Qt::Key_Return);
        press(Qt::Key_Return);
        QCOMPARE(header->sortIndicatorSection(), int(KindColumn));
        press(Qt::Key_End);
        press(Qt::Key_Space);
        QCOMPARE(header->sortIndicatorSection(), int(BuildTimeColumn));
        header->showSection(StateColumn);
        m_view->setColumns(columns);
        m_view->sortByColumn(KindColumn, Qt::AscendingOrder);
    }

    void clicksAndSpaceToggle()
    {
        QSignalSpy changed(m_view.get(), &View::stateChanged);
        Package::Entry *beta = m_case.entry(s("beta"));
        click(s("beta"), ActionColumn);
        QCOMPARE(beta->action, Action::Install);
        QCOMPARE(changed.takeLast(), QVariantList({m_case.index(s("beta")).row()}));
        click(s("beta"), NameColumn);
        QCOMPARE(beta->action, Action::Install);
        QVERIFY(changed.isEmpty());
        QTest::keyClick(m_view.get(), Qt::Key_Space);
        QCOMPARE(beta->action, Action::None);
        QCOMPARE(changed.size(), 1);
    }

    // Each click counts, as it comes from the mouse; those of other buttons and cells do not.
    void fastClicksToggle()
    {
        const auto clicks = [this](int count, int column, Qt::MouseButton button) {
            QWidget *surface = m_view->viewport();
            const QPoint at = m_view->visualRect(cell(s("alpha"), column)).center();
            m_case.model->clearActions();
            for (int click = 0; click < count; ++click) {
                if (click % 2)
                    QTest::mouseDClick(surface, button, {}, at);
                else
                    QTest::mousePress(surface, button, {}, at);
                QTest::mouseRelease(surface, button, {}, at);
            }
            return m_case.entry(s("alpha"))->action;
        };
        for (const int count : {1, 2, 3, 4, 5})
            QCOMPARE(clicks(count, ActionColumn, Qt::LeftButton),
                     (QList{Action::None, Action::Update, Action::Remove})[count % 3]);
        QCOMPARE(clicks(2, NameColumn, Qt::LeftButton), Action::None);
        QCOMPARE(clicks(2, ActionColumn, Qt::RightButton), Action::None);
    }

    // Rows in the signal and in the selection are the model's.
    void tellsRowsOfTheModel()
    {
        QSignalSpy current(m_view.get(), qOverload<int, int>(&View::currentChanged));
        click(s("echo"), NameColumn);
        QCOMPARE(current.takeLast()[0].toInt(), m_case.index(s("echo")).row());
        const QModelIndexList rows = m_view->selectedRows();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows[0].model(), m_case.model.get());
        QCOMPARE(rows[0].row(), m_case.index(s("echo")).row());
        m_case.proxy->setFilterRegExp(s("nothing at all"));
        QCOMPARE(current.takeLast()[0].toInt(), -1);
    }

    void actionMenu_data()
    {
        // actions: of alpha (updatable), beta (installable), echo
        columns<QString, QString, QString, QString, QString>("selected", "at", "enabled", "choice",
                                                             "actions");
        row("installed", "", "echo", "RN", "R", "--R");
        row("updatable", "", "alpha", "URN", "R", "R--");
        row("installable", "", "beta", "IN", "I", "-I-");
        row("selection: install where it fits", "alpha beta echo", "echo", "UIRN", "I", "-I-");
        row("selection: remove where it fits", "alpha beta echo", "beta", "UIRN", "R", "R-R");
        row("the selection decides, not the row", "beta", "alpha", "IN", "I", "-I-");
    }

    void actionMenu()
    {
        QFETCH(QString, selected);
        QFETCH(QString, at);
        QFETCH(QString, choice);
        for (const QString &name : selected.split(u' ', Qt::SkipEmptyParts)) {
            m_view->selectionModel()->select(cell(name, NameColumn), QItemSelectionModel::Select |
                                                                         QItemSelectionModel::Rows);
        }
        QString enabled;
        answerMenu([&](QMenu *menu) {
            for (QAction *action : menu->actions()) {
                const QChar letter = letterOf(action);
                if (action->isEnabled())
                    enabled += letter;
                if (letter == choice[0])
                    action->trigger();
            }
        });
        QSignalSpy changed(m_view.get(), &View::stateChanged);
        rightClick(m_view->visualRect(cell(at, ActionColumn)).center());
        QTEST(enabled, "enabled");
        QCOMPARE(changed.size(), 1);
        QString actions;
        for (const char *name : {"alpha", "beta", "echo"})
            actions += s("UIR-")[int(m_case.entry(QString::fromLatin1(name))->action)];
        QTEST(actions, "actions");
    }

    // What is not there yet is not offered as if it were.
    void otherMenu()
    {
        QString shown;
        answerMenu([&](QMenu *menu) {
            for (QAction *action : menu->actions()) {
                if (action->isVisible())
                    shown += action->text() + (action->isEnabled() ? u'+' : u'-');
            }
        });
        rightClick(m_view->visualRect(cell(s("beta"), RepositoryColumn)).center());
        QCOMPARE(shown, s("&Describe+Browse Repository+"));
    }

    // A package that is not listed decides the widths too, and the list stays as it is.
    void widthsOfUnlistedPackages()
    {
        m_view->resizeColumnsToContents();
        const int width = m_view->columnWidth(NameColumn);
        m_case.proxy->setFilterRegExp(s("^echo "));
        m_view->resizeColumnsToContents();
        QCOMPARE(m_view->columnWidth(NameColumn), width);
        QCOMPARE(m_case.listed(), s("echo"));
        m_view->setColumnWidth(NameColumn, 10);
        m_view->HTableView::resizeColumnsToContents();
        QVERIFY(m_view->columnWidth(NameColumn) < width);
        m_view->resizeColumnsToContents();
    }

private:
    QModelIndex cell(const QString &name, int column)
    {
        const QModelIndex index = m_case.proxy->mapFromSource(m_case.index(name, column));
        m_view->scrollTo(index);
        return index;
    }

    void click(const QString &name, int column)
    {
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {},
                          m_view->visualRect(cell(name, column)).center());
    }

    void rightClick(const QPoint &pos) { Q_EMIT m_view->customContextMenuRequested(pos); }

    static QChar letterOf(const QAction *action)
    {
        return action->text()[action->text().indexOf(QLatin1Char('&')) + 1];
    }

    // Does something with the menu that is about to open, and closes it.
    void answerMenu(const std::function<void(QMenu *)> &answer)
    {
        QTimer::singleShot(0, this, [answer] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            answer(menu);
            menu->close();
        });
    }

    TableCase m_case;
    std::unique_ptr<View> m_view;
};

QTEST_MAIN(TestView)
#include "test_view.moc"
