#include "app/colors.h"
#include "widgets/hframelabel.h"
#include "widgets/htextedit.h"

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

class TestKit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Rows and columns are whole ones: a text of that size needs no scroll bar.
    void textEditRoom()
    {
        HTextEdit edit(4, 30);
        edit.setPlainText(QStringLiteral("x\nx\nx\nx"));
        edit.resize(edit.sizeHint());
        edit.show();
        QVERIFY(!edit.verticalScrollBar()->isVisible());
        QVERIFY(edit.viewport()->width() >= 30 * edit.fontMetrics().averageCharWidth());
    }

    void paragraphs()
    {
        HTextEdit edit;
        edit.setReadOnly(true);
        edit.appendCompact(QString());
        edit.appendCompact(QStringLiteral("<h2>Head</h2>"));
        edit.appendCompact(QStringLiteral("<font color=\"red\">a&#x0020;&#x0020;b</font>"));
        edit.appendCompact(QStringLiteral("c"));
        QCOMPARE(edit.toPlainText(), QStringLiteral("\nHead\na  b\nc"));
        // Nothing of a paragraph's looks goes over to the next.
        const QTextBlock last = edit.document()->lastBlock();
        QCOMPARE(last.blockFormat().headingLevel(), 0);
        QCOMPARE(last.begin().fragment().charFormat().fontWeight(), int(QFont::Normal));
        QCOMPARE(last.begin().fragment().charFormat().foreground().style(), Qt::NoBrush);
        edit.clear();
        edit.appendCompact(QStringLiteral("d"));
        QCOMPARE(edit.toPlainText(), QStringLiteral("d"));
    }

    void frameLabel()
    {
        HFrameLabel label;
        label.setPalette(Colors::makeError(label.palette()));
        label.resize(60, 30);
        const QColor empty = label.grab().toImage().pixelColor(30, 4);
        QVERIFY(empty != Colors::errorBg());
        label.setText(QStringLiteral("<i>x"));
        QCOMPARE(label.grab().toImage().pixelColor(30, 4), Colors::errorBg());
        QVERIFY(label.sizeHint().width() > label.fontMetrics().horizontalAdvance(label.text()));
    }
};

QTEST_MAIN(TestKit)
#include "test_kit.moc"
