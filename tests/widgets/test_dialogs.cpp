#include "widgets/messagebox.h"
#include "widgets/scrollabledialogs.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

QPushButton *button(const QWidget *dialog, const QString &name)
{
    return dialog->findChild<QPushButton *>(name);
}

} // namespace

// What the user's answer to a modal dialog does. Each is answered by a key or a click once it is
// up; "close" is the window's own close button.
class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messageBox_data()
    {
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("defaultButton");
        QTest::addColumn<int>("escapeButton");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("result");
        const QStringList none{QString(), QString(), QString()};
        const QStringList three{QStringLiteral("&A"), QStringLiteral("&B"), QStringLiteral("&C")};
        const auto row = [](const char *name, const QStringList &buttons, int defaultButton,
                            int escapeButton, const char *answer, int result) {
            QTest::newRow(name) << buttons << defaultButton << escapeButton
                                << QString::fromLatin1(answer) << result;
        };
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
        QFETCH(int, result);
        answerNext(answer);
        QCOMPARE(showMessageBox(QMessageBox::Warning, nullptr, QStringLiteral("Title"),
                                QStringLiteral("Text"), buttons[0], buttons[1], buttons[2],
                                defaultButton, escapeButton),
                 result);
        QVERIFY(m_answered);
    }

    void messageBoxText()
    {
        const QString markup = QStringLiteral("<b>a</b>\n<img src=x>");
        onNext(
            [&](QWidget *dialog) {
                const auto *box = qobject_cast<QMessageBox *>(dialog);
                QCOMPARE(box->text(), markup);
                QCOMPARE(box->textFormat(), Qt::PlainText);
            },
            QStringLiteral("return"));
        showMessageBox(QMessageBox::Critical, nullptr, QStringLiteral("Title"), markup);
        QVERIFY(m_answered);

        const QString lines = QStringLiteral("line\n").repeated(4000);
        onNext(
            [&](QWidget *dialog) {
                QVERIFY(dialog->height() <= dialog->screen()->availableSize().height());
                QCOMPARE(qobject_cast<QMessageBox *>(dialog)->detailedText(), lines);
            },
            QStringLiteral("escape"));
        QCOMPARE(showMessageBox(QMessageBox::Critical, nullptr, QStringLiteral("Title"), lines), 0);
        QVERIFY(m_answered);
    }

    void confirm_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("result");
        QTest::newRow("no") << QStringLiteral("noButton") << 0;
        QTest::newRow("return") << QStringLiteral("return") << 1;
        QTest::newRow("escape") << QStringLiteral("escape") << 0;
        QTest::newRow("close") << QStringLiteral("close") << 0;
    }

    void confirm()
    {
        QFETCH(QString, answer);
        QFETCH(int, result);
        ScrollableConfirmDialog dialog(QStringLiteral("Text"), QStringLiteral("&Proceed"),
                                       QStringLiteral("&Cancel"));
        QCOMPARE(button(&dialog, QStringLiteral("yesButton"))->text(), QStringLiteral("&Proceed"));
        QCOMPARE(button(&dialog, QStringLiteral("noButton"))->text(), QStringLiteral("&Cancel"));
        answerNext(answer);
        QCOMPARE(dialog.exec(), result);
        QVERIFY(m_answered);
    }

    void scrollableSizes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("scrolls");
        const QString line = QStringLiteral("glibc-2.36-9.x86_64\tbase\t5 M\n");
        QTest::newRow("3 lines") << line.repeated(3) << false;
        QTest::newRow("3000 lines") << line.repeated(3000) << true;
        QTest::newRow("long line") << QStringLiteral("word ").repeated(50000) << true;
    }

    void scrollableSizes()
    {
        QFETCH(QString, text);
        QFETCH(bool, scrolls);
        ScrollableErrorDialog dialog(text);
        onNext(
            [&](QWidget *shown) {
                const QSize screen = shown->screen()->availableSize();
                QVERIFY(shown->width() <= screen.width() * 9 / 10);
                QVERIFY(shown->height() <= screen.height() * 9 / 10);
                const auto *edit = shown->findChild<QPlainTextEdit *>();
                QCOMPARE(edit->verticalScrollBar()->maximum() > 0, scrolls);
                QCOMPARE(edit->horizontalScrollBar()->maximum(), 0);
                // Not the largest for every text.
                if (!scrolls)
                    QVERIFY(shown->height() < screen.height() / 2);
            },
            QStringLiteral("okButton"));
        dialog.exec();
        QVERIFY(m_answered);
    }

    void scrollableText()
    {
        const QString markup = QStringLiteral("<b>a</b> & b\n\tc");
        ScrollableConfirmDialog dialog(markup, QStringLiteral("Yes"), QStringLiteral("No"));
        onNext(
            [&](QWidget *shown) {
                auto *edit = shown->findChild<QPlainTextEdit *>();
                QCOMPARE(edit->toPlainText(), markup);
                // By keyboard, without changing the text; Return there still is the default
                // button's.
                edit->setFocus();
                QTest::keyClick(edit, Qt::Key_Home, Qt::ControlModifier);
                QTest::keyClick(edit, Qt::Key_Right, Qt::ShiftModifier);
                QCOMPARE(edit->textCursor().selectedText(), QStringLiteral("<"));
                QTest::keyClick(edit, Qt::Key_X);
                QCOMPARE(edit->toPlainText(), markup);
                QTest::keyClick(edit, Qt::Key_Return);
                QVERIFY(!shown->isVisible());
            },
            QString());
        QCOMPARE(dialog.exec(), 1);
        QVERIFY(m_answered);
    }

private:
    void answerNext(const QString &answer)
    {
        onNext([](QWidget *) {}, answer);
    }

    // Looks at the next modal dialog once it is up, then answers it, and closes it in any case.
    void onNext(const std::function<void(QWidget *)> &look, const QString &answer)
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
            if (answer == QStringLiteral("return"))
                QTest::keyClick(focused, Qt::Key_Return);
            else if (answer == QStringLiteral("escape"))
                QTest::keyClick(focused, Qt::Key_Escape);
            else if (QPushButton *pressed = button(dialog, answer))
                QTest::mouseClick(pressed, Qt::LeftButton);
            else
                dialog->close();
        });
    }

    bool m_answered = false;
};

QTEST_MAIN(TestDialogs)
#include "test_dialogs.moc"
