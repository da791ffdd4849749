// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "widgets/habstracttablemodel.h"
#include "widgets/hsortfilterproxymodel.h"
#include "widgets/htableview.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QHeaderView>
#include <QIcon>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Cells by role; a row is a list of columns.
class Cells : public HAbstractTableModel
{
public:
    using Cell = QHash<int, QVariant>;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : columns;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return rows[index.row()][index.column()].value(role);
    }
    void addTexts(const QVariantList &values)
    {
        QList<Cell> row;
        for (const QVariant &value : values)
            row.append({{Qt::DisplayRole, value}});
        rows.append(row);
    }

    QList<QList<Cell>> rows;
    int columns = 2;
};

QString order(const HSortFilterProxyModel &proxy)
{
    QString names;
    for (int row = 0; row < proxy.rowCount(); ++row)
        names += proxy.index(row, 1).data().toString();
    return names;
}

QIcon square(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

} // namespace

class TestTableWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sorts_data()
    {
        // values: of the rows named c, a, b
        columns<QVariantList, QString, QString>("values", "ascending", "descending");
        row("integers", QVariantList{10, 9, -1}, "bac", "cab");
        row("64 bits", QVariantList{1LL << 40, 5LL, 1LL << 33}, "abc", "cba");
        row("doubles", QVariantList{10.5, 9.25, 1e3}, "acb", "bca");
        row("texts as code units", QVariantList{u"10"_s, u"9"_s, u"Z"_s}, "cab", "bac");
        row("not as a locale does", QVariantList{u"a"_s, u"B"_s, u"ä"_s}, "acb", "bca");
        row("dates", QVariantList{QDate(2026, 1, 2), QDate(999, 1, 1), QDate(2026, 1, 1)}, "abc",
            "cba");
        row("ties by the second column", QVariantList{1, 1, 1}, "abc", "cba");
    }

    void sorts()
    {
        QFETCH(QVariantList, values);
        Cells cells;
        cells.addTexts({values[0], QStringLiteral("c")});
        cells.addTexts({values[1], QStringLiteral("a")});
        cells.addTexts({values[2], QStringLiteral("b")});
        HSortFilterProxyModel proxy(1, nullptr);
        const QAbstractItemModelTester tester(&proxy);
        proxy.setSourceModel(&cells);
        proxy.sort(0, Qt::AscendingOrder);
        QTEST(order(proxy), "ascending");
        proxy.sort(0, Qt::DescendingOrder);
        QTEST(order(proxy), "descending");
    }

    // A new filter shows its rows in the order that was chosen before; a changed cell moves
    // nothing.
    void staysSorted()
    {
        Cells cells;
        for (const char *text : {"b1", "c2", "a1", "d1", "e2"})
            cells.addTexts({QString::fromLatin1(text).mid(1), QString::fromLatin1(text)});
        HSortFilterProxyModel proxy(1, nullptr);
        const QAbstractItemModelTester tester(&proxy);
        proxy.setSourceModel(&cells);
        proxy.sort(1, Qt::DescendingOrder);
        proxy.setFilterKeyColumn(0);
        proxy.setFilterRegExp(QStringLiteral("1"));
        QCOMPARE(order(proxy), QStringLiteral("d1b1a1"));
        proxy.setFilterRegExp(QString());
        QCOMPARE(order(proxy), QStringLiteral("e2d1c2b1a1"));

        cells.rows[2][1][Qt::DisplayRole] = QStringLiteral("z");
        Q_EMIT cells.dataChanged(cells.index(2, 1), cells.index(2, 1));
        QCOMPARE(order(proxy), QStringLiteral("e2d1c2b1z"));
        proxy.clear();
        QCOMPARE(order(proxy), QStringLiteral("ze2d1c2b1"));
    }

    void columnWidths_data()
    {
        columns<QString, int>("family", "size");
        row("sans", "DejaVu Sans", 9);
        row("serif", "DejaVu Serif", 11);
    }

    // The widths are those of measuring every cell, however many cells are not.
    void columnWidths()
    {
        QFETCH(QString, family);
        QFETCH(int, size);
        static const QStringList pieces = {
            QStringLiteral("ffi"),  QStringLiteral("AVAVA"),   QStringLiteral("iiii"),
            QStringLiteral("WMW"),  QStringLiteral("To."),     QStringLiteral("fl-"),
            QStringLiteral("grüß"), QStringLiteral("шрифт"),   QStringLiteral("日本"),
            QStringLiteral("1.1"),  QStringLiteral("العربية"), QStringLiteral("r,y")};
        Cells cells;
        cells.columns = 4;
        quint32 random = 12345;
        const auto next = [&random](int limit) {
            random = random * 1664525 + 1013904223;
            return int((random >> 8) % quint32(limit));
        };
        QFont bold;
        bold.setBold(true);
        for (int row = 0; row < 400; ++row) {
            QString text;
            for (int i = next(9); i >= 0; --i)
                text += pieces[next(row % 2 ? 6 : int(pieces.size()))];
            Cells::Cell decorated{{Qt::DisplayRole, text.left(3)}};
            if (row % 3)
                decorated.insert(Qt::DecorationRole, square(4 + next(12)));
            Cells::Cell fonted{{Qt::DisplayRole, text.left(6)}};
            if (row % 5 == 0)
                fonted.insert(Qt::FontRole, bold);
            cells.rows.append({{{Qt::DisplayRole, text}},
                               decorated,
                               fonted,
                               {{Qt::DisplayRole, next(1000000)}, {Qt::CheckStateRole, row % 3}}});
        }
        struct View : HTableView
        {
            using HTableView::HTableView;
            using HTableView::initViewItemOption;
        } view(QStyleOptionViewItem::Left, 1, 5, nullptr);
        view.setFont(QFont(family, size));
        view.setModel(&cells);
        QStyleOptionViewItem option;
        view.initViewItemOption(&option);
        for (const bool grid : {true, false}) {
            view.setShowGrid(grid);
            for (int column = 0; column < cells.columns; ++column) {
                int width = 0;
                for (int row = 0; row < cells.rowCount(); ++row) {
                    const QSize hint =
                        view.itemDelegate()->sizeHint(option, cells.index(row, column));
                    width = qMax(width, hint.width());
                }
                QCOMPARE(view.sizeHintForColumn(column), width + (grid ? 1 : 0));
            }
        }
    }

    // Room for a number of rows that is fixed when first asked for, and for all columns.
    void sizeHint()
    {
        Cells cells;
        cells.addTexts({QStringLiteral("x"), QStringLiteral("y")});
        HTableView view(QStyleOptionViewItem::Left, 4, 6, nullptr);
        view.setModel(&cells);
        view.verticalHeader()->hide();
        const int row = view.rowHeight(0);
        const QSize size = view.sizeHint();
        QVERIFY(size.height() - 4 * row > view.horizontalHeader()->sizeHint().height());
        for (int i = 0; i < 50; ++i)
            cells.addTexts({QStringLiteral("x"), QStringLiteral("y")});
        cells.forceSortColumnRediscovery();
        QCOMPARE(view.sizeHint(), size);
        view.setColumnWidth(1, view.columnWidth(1) + 77);
        view.resize(100, 80);
        view.show();
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
        view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
        QCOMPARE(view.sizeHint(), size + QSize(77, 0));

        HTableView tall(QStyleOptionViewItem::Left, 4, 6, nullptr);
        tall.setModel(&cells);
        tall.verticalHeader()->hide();
        QCOMPARE(tall.sizeHint().height(), size.height() + 2 * row);
    }

    // The window grows to show the columns, up to nine tenths of the screen, and never shrinks.
    void growsTheWindow()
    {
        Cells cells;
        cells.addTexts({QString(30, QLatin1Char('x')), QStringLiteral("y")});
        HTableView view(QStyleOptionViewItem::Left, 1, 100000, nullptr);
        view.setModel(&cells);
        view.resize(50, 50);
        view.show();
        view.resizeColumnsToContents();
        QCOMPARE(view.size(), view.sizeHint().expandedTo({50, 50}));
        const QSize before = view.size();
        cells.rows[0][0][Qt::DisplayRole] = QStringLiteral("x");
        view.resizeColumnsToContents();
        QCOMPARE(view.size(), before);
        cells.rows[0][0][Qt::DisplayRole] = QString(3000, QLatin1Char('x'));
        view.resizeColumnsToContents();
        QCOMPARE(view.width(), view.screen()->geometry().width() * 9 / 10);
    }
};

QTEST_MAIN(TestTableWidgets)
#include "test_tablewidgets.moc"
