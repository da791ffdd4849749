// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

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

using namespace Qt::StringLiterals;

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
        m_text = m_window->findChild<HTextEdit *>(u"text"_s);
        m_level = m_window->findChild<QSpinBox *>(u"levelSpin"_s);
        m_find = m_window->findChild<QLineEdit *>(u"findEdit"_s);
    }

    void cleanup()
    {
        delete m_window;
        delete m_list;
    }

    void entries_data()
    {
        columns<int, unsigned int, QString, QString, QColor>("kind", "level", "text", "shown",
                                                             "color");
        const auto row = [](const char *name, int kind, unsigned int level, QStringView text,
                            QStringView shown, const QColor &color) {
            QTest::newRow(name) << kind << level << text.toString() << shown.toString() << color;
        };
        const QColor plain;
        row("debug", 0, 10, u"a", u"a", Colors::minor());
        row("action", 4, 0, u"a", u"a", Colors::action());
        row("unknown kind", 7, 0, u"a", u"a", Colors::error());
        row("markup", 1, 0, u"<b> & </b>", u"<b> & </b>", Colors::ok());
        row("blanks and lines", 0, 0, u"  a   b\tc \nd", u"  a   b\tc \nd", plain);
        row("references", 0, 0, u"&#x202e;&#8238;&#X9;&rlm;&lrm;a &amp;#10; &lt;&copy;",
            u"&#x202e;&#8238;&#X9;&rlm;&lrm;a &#10; <\u00a9", plain);
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

    // A hidden window holds no text; the level decides what is shown and what is saved.
    void showsAndSaves()
    {
        append({entry("<a>"), {Kind::Normal, 3, u"hidden"_s}});
        QCOMPARE(m_text->toPlainText(), QString());
        m_window->show();
        append({entry(""), entry("b")});
        QCOMPARE(m_text->toPlainText(), u"<a>\n\nb"_s);
        QCOMPARE(saved(), u"<a>\n\nb\n"_s);
        m_window->close();
        append({entry("c")});
        QCOMPARE(m_text->toPlainText(), QString());
        m_window->show();
        QCOMPARE(m_text->toPlainText(), u"<a>\n\nb\nc"_s);
        m_level->setValue(3);
        QCOMPARE(m_text->toPlainText(), u"<a>\nhidden\n\nb\nc"_s);
        QCOMPARE(saved(), u"<a>\nhidden\n\nb\nc\n"_s);
    }

    void followsTheEnd()
    {
        appendMany(500);
        m_window->show();
        QScrollBar *bar = m_text->verticalScrollBar();
        QTRY_COMPARE(m_text->document()->lastBlock().text(), u"line 499"_s);
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
            QCOMPARE(lines.at(i), u"line %1"_s.arg(i));
    }

    void longLineIsCut()
    {
        const QString text = u"x"_s.repeated(1000000);
        append({{Kind::Ok, 0, text}});
        m_window->show();
        const QString shown = m_text->toPlainText();
        QVERIFY(shown.startsWith(text.left(10000)) && shown.size() < 11000);
        QVERIFY(shown.contains(u"990000 characters"_s));
        QCOMPARE(saved(), text + u'\n');
    }

    void savingFails()
    {
        QString message;
        QTimer::singleShot(0, this, [&message] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            message = box ? box->text() : QString();
            if (box)
                box->accept();
        });
        m_window->save(u"/nonexistent folder/vok.log"_s);
        QVERIFY2(message.contains(u"/nonexistent folder/vok.log"_s) &&
                     message.contains(u"No such file"_s),
                 qPrintable(message));
    }

    void finds()
    {
        append({entry("Alpha one"), entry("beta"), entry("ALPHA two")});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keyClick(m_text, Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(m_find->isVisible());
        QTest::keyClicks(m_find, u"alpha"_s);
        QCOMPARE(found(), u"0 Alpha"_s);
        for (const char *next : {"2 ALPHA", "0 Alpha"}) {
            QTest::keyClick(m_find, Qt::Key_Return);
            QCOMPARE(found(), QLatin1String(next));
        }
        QTest::keyClick(m_find, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(found(), u"2 ALPHA"_s);

        QTest::keyClicks(m_find, u" three"_s);
        QCOMPARE(m_find->palette().color(QPalette::Active, QPalette::Base), Colors::errorBg());
        append({entry("alpha three")});
        QVERIFY(m_find->palette().color(QPalette::Active, QPalette::Base) != Colors::errorBg());
        QCOMPARE(found(), u"3 alpha three"_s);

        QTest::keyClick(m_find, Qt::Key_Escape);
        QVERIFY(!m_find->isVisible());
        QVERIFY(m_window->isVisible());
    }

private:
    static Log::Entry entry(const char *text) { return {Kind::Ok, 0, QLatin1String(text)}; }

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
            entries.append(Log::Entry(Kind(i % 4), 0, u"line %1"_s.arg(m_lines++)));
        append(entries);
    }

    // The selected text and the number of its line.
    QString found() const
    {
        const QTextCursor cursor = m_text->textCursor();
        return u"%1 %2"_s.arg(cursor.blockNumber()).arg(cursor.selectedText());
    }

    QString saved()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"vok.log"_s);
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
