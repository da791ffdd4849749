#include "log/logwindow.h"

#include "app/colors.h"
#include "widgets/htextedit.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

using Log::Kind;

class TestLogWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_lines = 0;
        m_list = new Log::EntryList;
        m_window = new Log::Window(*m_list);
        m_text = m_window->findChild<HTextEdit *>(QStringLiteral("text"));
        m_level = m_window->findChild<QSpinBox *>(QStringLiteral("levelSpin"));
        m_find = m_window->findChild<QLineEdit *>(QStringLiteral("findEdit"));
    }

    void cleanup()
    {
        delete m_window;
        delete m_list;
    }

    void entries_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<unsigned int>("level");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QColor>("color");
        const auto row = [](const char *name, int kind, unsigned int level, QStringView text,
                            QStringView shown, const QColor &color) {
            QTest::newRow(name) << kind << level << text.toString() << shown.toString() << color;
        };
        const QColor plain;
        row("debug", 0, 10, u"a", u"a", Colors::minor());
        row("action", 4, 0, u"a", u"a", Colors::action());
        row("unknown kind", 7, 0, u"a", u"a", Colors::error());
        row("markup", 1, 0, u"<b> & </b>", u"<b> & </b>", Colors::ok());
        row("blanks", 0, 0, u"  a   b\tc ", u"  a   b\tc ", plain);
        row("lines", 0, 0, u"a\nb", u"a\nb", plain);
        const char16_t harmful[] = u"a\0b\x1b[2J\r\u202ec\u2067d\xd800 \u2029e";
        row("harmful", 0, 0, QStringView(harmful, std::size(harmful) - 1),
            u"a\ufffdb\ufffd[2J\ufffd\ufffdc\ufffdd\ufffd \ufffde", plain);
    }

    void entries()
    {
        QFETCH(int, kind);
        QFETCH(unsigned int, level);
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(QColor, color);
        m_level->setValue(10);
        append({{Kind(kind), level, text}});
        m_window->show();
        QCOMPARE(m_text->toPlainText(), shown);
        for (QTextBlock block = m_text->document()->begin(); block.isValid();
             block = block.next()) {
            QCOMPARE(block.blockFormat().topMargin(), 0.0);
            QCOMPARE(block.blockFormat().bottomMargin(), 0.0);
            QCOMPARE(block.blockFormat().headingLevel(), kind == 4 ? 2 : 0);
            const QBrush brush = block.begin().fragment().charFormat().foreground();
            QCOMPARE(brush.style() == Qt::NoBrush ? QColor() : brush.color(), color);
        }
    }

    void hiddenWindowHoldsNothing()
    {
        append({{Kind::Normal, 0, QString()}, {Kind::Normal, 0, QStringLiteral("one")}});
        QCOMPARE(m_text->toPlainText(), QString());
        m_window->show();
        append({{Kind::Ok, 0, QStringLiteral("two")}});
        QCOMPARE(m_text->toPlainText(), QStringLiteral("\none\ntwo"));
        m_window->close();
        append({{Kind::Ok, 0, QStringLiteral("three")}});
        QCOMPARE(m_text->toPlainText(), QString());
        m_window->show();
        QCOMPARE(m_text->toPlainText(), QStringLiteral("\none\ntwo\nthree"));
    }

    void followsTheEnd()
    {
        appendMany(500);
        m_window->show();
        QScrollBar *bar = m_text->verticalScrollBar();
        QTRY_COMPARE(lastLine(), QStringLiteral("line 499"));
        QTRY_VERIFY(bar->maximum() > 0 && bar->value() == bar->maximum());
        appendMany(1);
        QCOMPARE(bar->value(), bar->maximum());
        // Not when the user looks at something else.
        bar->setValue(bar->maximum() / 2);
        const int value = bar->value();
        appendMany(1);
        QCOMPARE(bar->value(), value);
        m_window->hide();
        m_window->show();
        QTRY_COMPARE(bar->value(), bar->maximum());
    }

    // Rendered in slices between which events are served, with the same picture in the end, even
    // when entries arrive and the level changes meanwhile.
    void manyEntries()
    {
        appendMany(15000);
        m_window->show();
        QVERIFY(m_text->document()->blockCount() < 15000);
        appendMany(2000);
        QTRY_VERIFY_WITH_TIMEOUT(m_text->document()->blockCount() > 3000, 60000);
        m_level->setValue(1);
        appendMany(3000);
        QTRY_COMPARE_WITH_TIMEOUT(m_text->document()->blockCount(), 20000, 60000);
        const QStringList lines = m_text->toPlainText().split(u'\n');
        for (int i = 0; i < lines.size(); ++i)
            QCOMPARE(lines.at(i), QStringLiteral("line %1").arg(i));
    }

    void longLineIsCut()
    {
        const QString text = QStringLiteral("x").repeated(1000000);
        append({{Kind::Ok, 0, text}});
        m_window->show();
        const QString shown = m_text->toPlainText();
        QVERIFY(shown.startsWith(text.left(10000)));
        QVERIFY(shown.size() < 11000);
        QVERIFY(shown.contains(QStringLiteral("990000 characters")));
        QCOMPARE(saved(), text + u'\n');
    }

    // The level decides what is shown and what is saved.
    void levels()
    {
        append({{Kind::Normal, 0, QStringLiteral("<a>")},
                {Kind::Normal, 3, QStringLiteral("hidden")},
                {Kind::Ok, 0, QStringLiteral("b")}});
        m_window->show();
        QCOMPARE(m_text->toPlainText(), QStringLiteral("<a>\nb"));
        QCOMPARE(saved(), QStringLiteral("<a>\nb\n"));
        m_level->setValue(3);
        QCOMPARE(m_text->toPlainText(), QStringLiteral("<a>\nhidden\nb"));
        QCOMPARE(saved(), QStringLiteral("<a>\nhidden\nb\n"));
    }

    void savingFails()
    {
        const QString path = QStringLiteral("/nonexistent folder/vok.log");
        QString message;
        QTimer::singleShot(0, this, [&message] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            message = box->text();
            box->accept();
        });
        m_window->save(path);
        QVERIFY2(message.contains(path), qPrintable(message));
        QVERIFY2(message.contains(QStringLiteral("No such file")), qPrintable(message));
    }

    void finds()
    {
        append({{Kind::Ok, 0, QStringLiteral("Alpha one")},
                {Kind::Ok, 0, QStringLiteral("beta")},
                {Kind::Ok, 0, QStringLiteral("ALPHA two")}});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keyClick(m_text, Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(m_find->isVisible());
        QTest::keyClicks(m_find, QStringLiteral("alpha"));
        QCOMPARE(found(), QStringLiteral("0 Alpha"));
        QTest::keyClick(m_find, Qt::Key_Return);
        QCOMPARE(found(), QStringLiteral("2 ALPHA"));
        QTest::keyClick(m_find, Qt::Key_Return);
        QCOMPARE(found(), QStringLiteral("0 Alpha"));
        QTest::keyClick(m_find, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(found(), QStringLiteral("2 ALPHA"));

        QTest::keyClicks(m_find, QStringLiteral(" three"));
        QCOMPARE(m_find->palette().color(QPalette::Active, QPalette::Base), Colors::errorBg());
        append({{Kind::Ok, 0, QStringLiteral("alpha three")}});
        QVERIFY(m_find->palette().color(QPalette::Active, QPalette::Base) != Colors::errorBg());
        QCOMPARE(found(), QStringLiteral("3 alpha three"));

        QTest::keyClick(m_find, Qt::Key_Escape);
        QVERIFY(!m_find->isVisible());
        QVERIFY(m_window->isVisible());
    }

private:
    void append(const QList<Log::Entry> &entries)
    {
        {
            QMutexLocker lock(&m_list->mutex());
            m_list->entries().append(entries);
        }
        m_list->emitAppended();
    }

    void appendMany(int count)
    {
        QList<Log::Entry> entries;
        for (int i = 0; i < count; ++i)
            entries.append(Log::Entry(Kind(i % 4), 0, QStringLiteral("line %1").arg(m_lines++)));
        append(entries);
    }

    QString lastLine() const { return m_text->document()->lastBlock().text(); }

    // The selected text and the number of its line.
    QString found() const
    {
        const QTextCursor cursor = m_text->textCursor();
        return QStringLiteral("%1 %2").arg(cursor.blockNumber()).arg(cursor.selectedText());
    }

    QString saved()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("vok.log"));
        m_window->save(path);
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    Log::EntryList *m_list = nullptr;
    Log::Window *m_window = nullptr;
    HTextEdit *m_text = nullptr;
    QSpinBox *m_level = nullptr;
    QLineEdit *m_find = nullptr;
    int m_lines = 0;
};

QTEST_MAIN(TestLogWindow)
#include "test_logwindow.moc"
