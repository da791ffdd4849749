// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "widgets/checkcells.h"
#include "widgets/htextedit.h"
#include "widgets/longtext.h"
#include "widgets/messagebox.h"
#include "widgets/plaintexts.h"
#include "widgets/saverow.h"
#include "widgets/scrollabledialogs.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

QPushButton *button(const QWidget *dialog, const QString &name)
{
    return dialog->findChild<QPushButton *>(name);
}

} // namespace

// Dialogs are answered by a key or a click once they are up; "close" is the window's own close button.
class TestWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messageBox_data()
    {
        columns<QStringList, int, int, QString, int>("buttons", "defaultButton", "escapeButton",
                                                     "answer", "result");
        const QStringList none(3), three{u"&A"_s, u"&B"_s, u"&C"_s};
        row("ok by escape", none, 0, -1, "escape", 0);
        row("last", three, 0, 1, "button2", 2);
        row("default", three, 2, 1, "return", 2);
        row("escape", three, 2, 1, "escape", 1);
    }

    void messageBox()
    {
        QFETCH(QStringList, buttons);
        QFETCH(int, defaultButton);
        QFETCH(int, escapeButton);
        QFETCH(QString, answer);
        answerNext(answer);
        QTEST(showMessageBox(QMessageBox::Warning, nullptr, u"Title"_s, u"Text"_s, buttons[0],
                             buttons[1], buttons[2], defaultButton, escapeButton),
              "result");
        QVERIFY(m_answered);
    }

    void messageBoxText()
    {
        const QString markup = u"<b>a</b>\n<img src=x>"_s;
        answerNext(u"return"_s, [&](QWidget *dialog) {
            const auto *box = qobject_cast<QMessageBox *>(dialog);
            QCOMPARE(box->text(), markup);
            QCOMPARE(box->textFormat(), Qt::PlainText);
        });
        showMessageBox(QMessageBox::Critical, nullptr, u"Title"_s, markup);
        QVERIFY(m_answered);

        const QString lines = u"line\n"_s.repeated(4000);
        answerNext(u"escape"_s, [&](QWidget *dialog) {
            QVERIFY(dialog->height() <= dialog->screen()->availableSize().height());
            QCOMPARE(qobject_cast<QMessageBox *>(dialog)->detailedText(), lines);
        });
        QCOMPARE(showMessageBox(QMessageBox::Critical, nullptr, u"Title"_s, lines), 0);
        QVERIFY(m_answered);
    }

    void confirm_data()
    {
        columns<QString, int>("answer", "result");
        row("no", "noButton", 0);
        row("return", "return", 1);
        row("escape", "escape", 0);
        row("close", "close", 0);
    }

    void confirm()
    {
        QFETCH(QString, answer);
        ScrollableConfirmDialog dialog(u"Text"_s, u"&Proceed"_s, u"&Cancel"_s);
        QCOMPARE(button(&dialog, u"yesButton"_s)->text(), u"&Proceed"_s);
        QCOMPARE(button(&dialog, u"noButton"_s)->text(), u"&Cancel"_s);
        answerNext(answer);
        QTEST(dialog.exec(), "result");
        QVERIFY(m_answered);
    }

    void scrollableSizes_data()
    {
        columns<QString, bool>("text", "scrolls");
        const QString line = u"glibc-2.36-9.x86_64\tbase\t5 M\n"_s;
        row("3 lines", line.repeated(3), false);
        row("3000 lines", line.repeated(3000), true);
        row("long line", u"word "_s.repeated(50000), true);
    }

    void scrollableSizes()
    {
        QFETCH(QString, text);
        QFETCH(bool, scrolls);
        ScrollableErrorDialog dialog(text);
        answerNext(u"okButton"_s, [&](QWidget *shown) {
            const QSize screen = shown->screen()->availableSize();
            QVERIFY(shown->width() <= screen.width() * 9 / 10);
            QVERIFY(shown->height() <= screen.height() * 9 / 10);
            const auto *edit = shown->findChild<QPlainTextEdit *>();
            QCOMPARE(edit->verticalScrollBar()->maximum() > 0, scrolls);
            QCOMPARE(edit->horizontalScrollBar()->maximum(), 0);
            // Not the largest for every text.
            QVERIFY(scrolls || shown->height() < screen.height() / 2);
        });
        dialog.exec();
        QVERIFY(m_answered);
    }

    // A tip and a label show markup as it is, and a word of any length takes no time; it can be saved.
    void foreignTexts()
    {
        const PlainTexts plain(this);
        const QString markup = u"<img src=/dev/zero><b>a</b>"_s;
        QToolTip::showText(QPoint(0, 0), markup);
        QLabel label(markup), rich(markup);
        rich.setTextFormat(Qt::RichText);
        label.ensurePolished();
        rich.ensurePolished();
        const auto shown = QApplication::topLevelWidgets();
        const auto tip = std::find_if(shown.begin(), shown.end(), [](const QWidget *widget) {
            return widget->inherits("QTipLabel");
        });
        QVERIFY(tip != shown.end());
        QCOMPARE(qobject_cast<QLabel *>(*tip)->textFormat(), Qt::PlainText);
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QCOMPARE(rich.textFormat(), Qt::RichText);

        const QString word(500'000, u'x');
        LongText text(nullptr);
        text.resize(400, 300);
        text.setText(u"short"_s);
        QVERIFY(!text.findChild<SaveRow *>());
        text.setText(word);
        text.show();
        QVERIFY(text.toPlainText().size() < 20'000);
        QTemporaryDir place;
        auto *row = text.findChild<SaveRow *>();
        QVERIFY(row && row->isVisible());
        row->save(place.filePath(u"saved"_s));
        QFile saved(place.filePath(u"saved"_s));
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), word.toUtf8());
    }

    void scrollableText()
    {
        const QString markup = u"<b>a</b> & b\n\tc"_s;
        ScrollableConfirmDialog dialog(markup, u"Yes"_s, u"No"_s);
        answerNext(QString(), [&](QWidget *shown) {
            auto *edit = shown->findChild<QPlainTextEdit *>();
            QCOMPARE(edit->toPlainText(), markup);
            // By keyboard, without changing the text; Return there still is the default button's.
            edit->setFocus();
            QTest::keyClick(edit, Qt::Key_Home, Qt::ControlModifier);
            QTest::keyClick(edit, Qt::Key_Right, Qt::ShiftModifier);
            QCOMPARE(edit->textCursor().selectedText(), u"<"_s);
            QTest::keyClick(edit, Qt::Key_X);
            QCOMPARE(edit->toPlainText(), markup);
            QTest::keyClick(edit, Qt::Key_Return);
            QVERIFY(!shown->isVisible());
        });
        QCOMPARE(dialog.exec(), 1);
        QVERIFY(m_answered);
    }

    void paragraphs()
    {
        HTextEdit edit;
        for (const char *html :
             {"", "<h2>Head</h2>", "<font color=\"red\">a&#x0020;&#x0020;b</font>", "c"})
            edit.appendCompact(QLatin1String(html));
        QCOMPARE(edit.toPlainText(), u"\nHead\na  b\nc"_s);
        // Nothing of a paragraph's looks goes over to the next.
        const QTextBlock last = edit.document()->lastBlock();
        QCOMPARE(last.blockFormat().headingLevel(), 0);
        QCOMPARE(last.begin().fragment().charFormat().fontWeight(), int(QFont::Normal));
        QCOMPARE(last.begin().fragment().charFormat().foreground().style(), Qt::NoBrush);
        edit.clear();
        edit.appendCompact(u"d"_s);
        QCOMPARE(edit.toPlainText(), u"d"_s);
    }

    // A reader has every part of the table, and uses it while rows move and go.
    void checkCells()
    {
        QStandardItemModel model(0, 2);
        for (const QString &text : {u"b"_s, u"a"_s, u"c"_s}) {
            auto *check = new QStandardItem;
            check->setCheckable(true);
            model.appendRow({check, new QStandardItem(text)});
        }
        QTableView view;
        makeCellsCheckable(&view);
        view.setModel(&model);
        view.show();
        QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&view);
        // As the view tells while a reader is there.
        const auto changed = [&](QAccessibleTableModelChangeEvent::ModelChangeType type) {
            QAccessibleTableModelChangeEvent event(&view, type);
            table->tableInterface()->modelChange(&event);
        };
        QCOMPARE(table->childCount(), 12); // with the headers
        QList<QAccessibleInterface *> cells;
        for (int number = 0; number < 12; ++number) {
            cells += table->child(number);
            QCOMPARE(table->indexOfChild(cells.last()), number);
        }
        QCOMPARE(cells[2]->text(QAccessible::Name), u"2"_s);
        QCOMPARE(cells[8]->text(QAccessible::Name), u"a"_s);
        QVERIFY(!cells[8]->state().checkable && !cells[8]->state().checked);
        QVERIFY(cells[7]->state().checkable && !cells[7]->state().checked);
        cells[7]->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(model.item(1)->checkState(), Qt::Checked);
        QVERIFY(cells[7]->state().checked && !cells[7]->state().selected);
        cells[8]->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(cells[8]->state().selected && view.selectionModel()->isSelected(model.index(1, 1)));

        model.sort(1);
        QCOMPARE(table->indexOfChild(cells[7]), 4);
        model.removeRow(0);
        changed(QAccessibleTableModelChangeEvent::RowsRemoved);
        QVERIFY(!table->child(9) && table->child(4) == cells[4]);
        model.clear();
        changed(QAccessibleTableModelChangeEvent::ModelReset);
        QCOMPARE(table->childCount(), 1);
    }

private:
    // Looks at the next modal dialog once it is up, then answers it, and closes it in any case.
    void answerNext(
        const QString &answer, const std::function<void(QWidget *)> &look = [](auto *) {})
    {
        m_answered = false;
        QTimer::singleShot(0, this, [this, look, answer] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            look(dialog);
            m_answered = true;
            // The window system may not have activated it yet.
            QWidget *focused = dialog->focusWidget() ? dialog->focusWidget() : dialog;
            if (answer == u"return"_s)
                QTest::keyClick(focused, Qt::Key_Return);
            else if (answer == u"escape"_s)
                QTest::keyClick(focused, Qt::Key_Escape);
            else if (QPushButton *pressed = button(dialog, answer))
                QTest::mouseClick(pressed, Qt::LeftButton);
            else
                dialog->close();
        });
    }

    bool m_answered = false;
};

QTEST_MAIN(TestWidgets)
#include "test_widgets.moc"
