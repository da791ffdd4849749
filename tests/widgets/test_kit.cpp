#include "widgets/htextedit.h"

#include <QTest>
#include <QTextBlock>

class TestKit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

QTEST_MAIN(TestKit)
#include "test_kit.moc"
