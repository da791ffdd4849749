// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "kivvet/kivvet.h"
#include "repo/passwdlineedit.h"
#include "repo/passwdreal.h"
#include "repo/passwdtextedit.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString secret = u"WQWQ"_s; // glyphs that nothing else in the texts has
const QString url = u"http://h/kivvet?user=joe&pass=WQWQ&path=os"_s;

// Anchor and position of an editor of either kind.
QPoint cursorOf(const QWidget *edit)
{
    if (const auto *text = qobject_cast<const QTextEdit *>(edit))
        return {text->textCursor().anchor(), text->textCursor().position()};
    const auto *line = qobject_cast<const QLineEdit *>(edit);
    const int position = line->cursorPosition();
    if (!line->hasSelectedText())
        return {position, position};
    return {line->selectionStart() + line->selectionEnd() - position, position};
}

// One of the two masked fields in a window, and beside it a plain editor of the same kind.
struct Field
{
    explicit Field(bool several)
    {
        window.resize(500, 200);
        auto *layout = new QVBoxLayout(&window);
        if (several) {
            edit = text = new PasswdTextEdit(Repo::Kivvet::urlsRegExp(), &window);
            realEdit = window.findChild<PasswdRealTextEdit *>();
            auto *plainText = new QTextEdit;
            plainText->setParent(&outside);
            plainText->setAcceptRichText(false);
            plainText->setLineWrapMode(QTextEdit::NoWrap);
            text->setLineWrapMode(QTextEdit::NoWrap);
            plain = plainText;
        } else {
            edit = line = new PasswdLineEdit(Repo::Kivvet::oneUrlRegExp(), &window);
            realEdit = window.findChild<PasswdRealLineEdit *>();
            plain = new QLineEdit(&outside);
        }
        layout->addWidget(edit);
        plain->setFont(edit->font());
        window.show();
        window.activateWindow();
        edit->setFocus();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    const char *property() const { return line ? "text" : "plainText"; }
    void set(const QString &t) { line ? line->setRealText(t) : text->setRealPlainText(t); }
    QString real() const { return line ? line->realText() : text->realPlainText(); }
    QString shown() const { return edit->property(property()).toString(); }
    QPoint cursor() const { return cursorOf(edit); }
    void select(int from, int to)
    {
        if (line) {
            line->setSelection(from, to - from);
            return;
        }
        QTextCursor cursor = text->textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        text->setTextCursor(cursor);
    }
    QWidget *surface() const { return line ? edit : text->viewport(); }
    QPoint at(int position) const
    {
        if (text) {
            QTextCursor cursor = text->textCursor();
            cursor.setPosition(position);
            return text->cursorRect(cursor).center();
        }
        const int was = line->cursorPosition();
        line->setCursorPosition(position);
        const QPoint point = line->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        line->setCursorPosition(was);
        return point;
    }
    void drag(int from, int to) const
    {
        QTest::mousePress(surface(), Qt::LeftButton, {}, at(from));
        QTest::mouseMove(surface(), at(to));
        QTest::mouseRelease(surface(), Qt::LeftButton, {}, at(to));
    }

    QWidget window, outside;
    QWidget *edit = nullptr, *realEdit = nullptr, *plain = nullptr;
    PasswdLineEdit *line = nullptr;
    PasswdTextEdit *text = nullptr;
};

// What the text edit shows of a text that is being composed.
QString composed(const Field &field)
{
    return field.text->textCursor().block().layout()->preeditAreaText();
}

QImage pictureOf(Field &field)
{
    return field.window.grab().toImage();
}

} // namespace

#define CHECK_AGREE(field)                                                                         \
    do {                                                                                           \
        QCOMPARE((field).cursor(), cursorOf((field).realEdit));                                    \
        QCOMPARE((field).shown().size(), (field).real().size());                                   \
    } while (false)

class TestPasswd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setCursorFlashTime(0); }
    void masks_data()
    {
        // shown: with "*" for the mask character
        columns<bool, QString, QString>("several", "real", "shown");

        row("query", false, url, "http://h/kivvet?user=joe&pass=****&path=os");
        row("path", false, "h/rhel/u=joe/p=a.b-c/os", "h/rhel/u=joe/p=*****/os");
        row("no match", false, "h/kivvet?user=joe&pass=x", "h/kivvet?user=joe&pass=x");
        row("outside the BMP", false, "h/rhel/u=j/p=a😀/שלום", "h/rhel/u=j/p=***/שלום");
        row("several", true, (url + u"\nhttp://plain/\n\nh/rhel/u=j/p=x\u00a0y/z"_s),
            "http://h/kivvet?user=joe&pass=****&path=os\nhttp://plain/\n\n"
            "h/rhel/u=j/p=x\u00a0y/z");
        row("two on a line", true, "h/rhel/u=j/p=א/שלום h/kivvet?a=b&c=dd&path=x",
            "h/rhel/u=j/p=*/שלום h/kivvet?a=b&c=**&path=x");
    }

    void masks()
    {
        QFETCH(bool, several);
        QFETCH(QString, real);
        QFETCH(QString, shown);
        Field field(several);
        const QChar mask(field.edit->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter));
        const auto changed =
            several ? std::make_unique<QSignalSpy>(field.text, &PasswdTextEdit::realTextChanged)
                    : std::make_unique<QSignalSpy>(field.line, &PasswdLineEdit::realTextChanged);
        field.set(real);
        QVERIFY(!changed->isEmpty());
        QCOMPARE(field.real(), real);
        QString seen = field.shown().replace(mask, u'*');
        QCOMPARE(seen, several ? shown.replace(QChar(0xa0), u' ') : shown);
        CHECK_AGREE(field);
    }

    void neverPainted_data() { kinds(); }
    // Two windows that differ in the password alone look the same, whatever is done to them: then
    // no pixel of either shows a glyph of it.
    void neverPainted()
    {
        QFETCH(bool, several);
        Field field(several), twin(several);
        for (Field *each : {&field, &twin}) {
            if (several)
                each->text->setCursorWidth(0); // one window only has the cursor
        }
        const auto same = [&] {
            field.edit->clearFocus();
            twin.edit->clearFocus();
            return pictureOf(field) == pictureOf(twin);
        };
        field.set(u"pass=WQWQ"_s);
        twin.set(u"pass=ijij"_s);
        QVERIFY(!same()); // it can be told

        const QString start = u"http://h/kivvet?user=joe&pass=&path=os"_s;
        const QString other = u"ijij"_s;
        for (Field *each : {&field, &twin}) {
            each->set(start);
            each->select(30, 30);
        }
        for (int i = 0; i < secret.size(); ++i) {
            QTest::keyClick(field.edit, secret.at(i).toLatin1());
            QTest::keyClick(twin.edit, other.at(i).toLatin1());
            QVERIFY(same());
        }
        QCOMPARE(field.real(), url);
        const auto key = [&](int code, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(field.edit, Qt::Key(code), modifiers);
            QTest::keyClick(twin.edit, Qt::Key(code), modifiers);
        };
        for (const Qt::Key code : {Qt::Key_Left, Qt::Key_Backspace, Qt::Key_Delete}) {
            key(code);
            QVERIFY(same());
        }
        key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(same());
        for (Field *each : {&field, &twin}) {
            QApplication::clipboard()->setText(each == &field ? secret : other);
            each->select(31, 32);
            QTest::keyClick(each->edit, Qt::Key_V, Qt::ControlModifier);
            QInputMethodEvent compose(each == &field ? u"W"_s : u"i"_s, {});
            QCoreApplication::sendEvent(each->edit, &compose);
        }
        QVERIFY(field.real().contains(secret) && twin.real().contains(other));
        QVERIFY(same());
    }

    void keysLikeAPlainEditor_data()
    {
        columns<bool, QString>("several", "start");
        const QString rtl = u"http://h/rhel/u=א/p=שלום/עולם"_s;
        row("line", false, url);
        row("line, right to left", false, rtl);
        row("text", true, (url + u'\n' + url));
        row("text, right to left", true, (rtl + u'\n' + url));
    }

    // Whatever is typed, the real text, the cursor and the selection are those of an editor that
    // hides nothing.
    void keysLikeAPlainEditor()
    {
        QFETCH(bool, several);
        QFETCH(QString, start);
        QApplication::clipboard()->setText(u"x&y"_s);
        QRandomGenerator random(7);
        const Qt::Key keys[] = {Qt::Key_A,      Qt::Key_B,         Qt::Key_Ampersand, Qt::Key_Left,
                                Qt::Key_Right,  Qt::Key_Left,      Qt::Key_Home,      Qt::Key_End,
                                Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Z,         Qt::Key_V};
        for (int round = 0; round < 40; ++round) {
            Field field(several);
            field.set(start);
            field.plain->setProperty(field.property(), start);
            for (int step = 0; step < 60; ++step) {
                const Qt::Key key = keys[random.bounded(int(std::size(keys)))];
                Qt::KeyboardModifiers modifiers;
                const bool letter = key == Qt::Key_Z || key == Qt::Key_V;
                if (letter || (random.bounded(3) == 0 && key >= Qt::Key_Escape))
                    modifiers |= Qt::ControlModifier;
                if (!letter && key >= Qt::Key_Escape && random.bounded(3) == 0 &&
                    key != Qt::Key_Delete)
                    modifiers |= Qt::ShiftModifier;
                for (QWidget *editor : {field.edit, field.plain})
                    QTest::keyClick(editor, key, modifiers);
                CHECK_AGREE(field);
                QCOMPARE(field.real(), field.plain->property(field.property()).toString());
                if (several && key == Qt::Key_Z) { // a pasted text may be undone from another place
                    auto *plain = static_cast<QTextEdit *>(field.plain);
                    QTextCursor cursor = plain->textCursor();
                    cursor.setPosition(field.cursor().x());
                    cursor.setPosition(field.cursor().y(), QTextCursor::KeepAnchor);
                    plain->setTextCursor(cursor);
                }
                QCOMPARE(field.cursor(), cursorOf(field.plain));
            }
        }
    }

    void mouseAgrees_data() { kinds(); }
    void mouseAgrees()
    {
        QFETCH(bool, several);
        Field field(several);
        field.set(u"h/rhel/u=joe/p=a.b😀c/os"_s);
        const int start = 15; // of the password
        field.drag(start, start + 2);
        CHECK_AGREE(field);
        field.select(start, start + 2);
        QTest::keyClick(field.edit, 'x');
        QCOMPARE(field.real(), u"h/rhel/u=joe/p=xb😀c/os"_s);
        QTest::mouseClick(field.surface(), Qt::LeftButton, {}, field.at(start + 1));
        QCOMPARE(cursorOf(field.realEdit), QPoint(start + 1, start + 1));
        QTest::keyClick(field.edit, 'y');
        QCOMPARE(field.real(), u"h/rhel/u=joe/p=xyb😀c/os"_s);

        // Pointing between the halves of a character goes behind it.
        field.select(start + 4, start + 4);
        QTest::keyClick(field.edit, 'z');
        QCOMPARE(field.real(), u"h/rhel/u=joe/p=xyb😀zc/os"_s);

        QTest::mouseDClick(field.surface(), Qt::LeftButton, {}, field.at(start + 2));
        CHECK_AGREE(field);
        QTest::keyClick(field.edit, Qt::Key_Delete);
        CHECK_AGREE(field);
        QVERIFY(field.real().startsWith(u"h/rhel/u=joe/p"_s));
        QVERIFY(field.real().size() < 24);

        QContextMenuEvent menu(QContextMenuEvent::Mouse, field.at(3), QPoint(10, 10));
        QCoreApplication::sendEvent(field.surface(), &menu);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(!field.edit->acceptDrops());
    }

    void leaksNothing_data() { kinds(); }
    void leaksNothing()
    {
        QFETCH(bool, several);
        Field field(several);
        QClipboard *clipboard = QApplication::clipboard();
        QList<QClipboard::Mode> modes = {QClipboard::Clipboard};
        if (clipboard->supportsSelection())
            modes += QClipboard::Selection;
        const auto leaked = [&] {
            return std::any_of(modes.cbegin(), modes.cend(), [&](QClipboard::Mode mode) {
                return clipboard->text(mode).contains(secret);
            });
        };
        for (const QString &way : {u"copy"_s, u"cut"_s, u"delete to the end"_s, u"mouse"_s}) {
            field.set(url);
            for (const QClipboard::Mode mode : modes)
                clipboard->setText(u"before"_s, mode);
            field.select(0, int(url.size()));
            if (way == u"copy"_s) {
                QTest::keyClick(field.edit, Qt::Key_C, Qt::ControlModifier);
                QCOMPARE(clipboard->text(), field.shown());
            } else if (way == u"cut"_s) {
                const QString shown = field.shown();
                QTest::keyClick(field.edit, Qt::Key_X, Qt::ControlModifier);
                QCOMPARE(clipboard->text(), shown);
                QCOMPARE(field.real(), QString());
                QTest::keyClick(field.edit, Qt::Key_Z, Qt::ControlModifier);
                QCOMPARE(field.real(), url);
            } else if (way == u"delete to the end"_s) {
                field.select(3, 3);
                if (QKeySequence::keyBindings(QKeySequence::DeleteEndOfLine).isEmpty())
                    continue; // not on this platform
                QTest::keySequence(field.edit, QKeySequence(QKeySequence::DeleteEndOfLine));
                QCOMPARE(field.real(), u"htt"_s);
            } else {
                field.select(0, 0); // or it is a drag
                field.drag(1, int(url.size()) - 1);
            }
            CHECK_AGREE(field);
            QVERIFY2(!leaked(), qPrintable(way));
        }

        // No key at all gives the password away.
        for (int key = Qt::Key_Space; key <= Qt::Key_F12; ++key) {
            if (key == Qt::Key_Z + 1)
                key = Qt::Key_Escape;
            for (const int modifiers : {0x02000000, 0x04000000, 0x06000000, 0x08000000}) {
                field.set(url);
                QTest::keyClick(field.edit, 'x'); // something to undo
                field.select(5, int(url.size()));
                QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
                QCoreApplication::sendEvent(field.edit, &press);
                QVERIFY2(!leaked(), qPrintable(QKeySequence(key | modifiers).toString()));
            }
        }

        // The middle button pastes into the real text, where it points.
        if (clipboard->supportsSelection()) {
            field.set(url);
            clipboard->setText(u"mid"_s, QClipboard::Selection);
            QTest::mouseClick(field.surface(), Qt::MiddleButton, {}, field.at(4));
            QCOMPARE(field.real(), QString(url).insert(4, u"mid"_s));
            CHECK_AGREE(field);
        }

        // What assistive technology finds in the window.
        field.set(url);
        QStringList texts;
        QList<QAccessibleInterface *> open = {QAccessible::queryAccessibleInterface(&field.window)};
        while (!open.isEmpty()) {
            QAccessibleInterface *item = open.takeFirst();
            for (int i = 0; i < item->childCount(); ++i)
                open += item->child(i);
            texts += {item->text(QAccessible::Value), item->text(QAccessible::Name)};
            if (QAccessibleTextInterface *text = item->textInterface())
                texts += text->text(0, text->characterCount());
        }
        QVERIFY(texts.contains(field.shown()));
        for (const QString &text : std::as_const(texts))
            QVERIFY(!text.contains(secret));
        const auto around = field.edit->inputMethodQuery(Qt::ImSurroundingText).toString();
        QVERIFY(!around.isEmpty() && !around.contains(secret));
    }

    void pastesWhatWasCopied_data() { kinds(); }
    void pastesWhatWasCopied()
    {
        QFETCH(bool, several);
        QClipboard *clipboard = QApplication::clipboard();
        Field field(several), other(!several);
        const auto press = [](const Field &where, QKeySequence::StandardKey key) {
            QTest::keySequence(where.edit, QKeySequence(key));
        };
        for (const auto take : {QKeySequence::Cut, QKeySequence::Copy}) {
            field.set(url);
            field.select(0, int(url.size()));
            press(field, take);
            press(field, QKeySequence::Paste);
            QCOMPARE(field.real(), url);
            press(field, QKeySequence::Undo);
            press(field, QKeySequence::Redo);
            QCOMPARE(field.real(), url);
            other.set(u"x"_s);
            other.select(1, 1);
            QTest::keyClicks(other.edit, u"y"_s);
            press(other, QKeySequence::Paste);
            QCOMPARE(other.real(), u"xy"_s + url);
            QVERIFY(!clipboard->text().contains(secret) && !other.shown().contains(secret));
            press(other, QKeySequence::Undo);
            QCOMPARE(other.real(), u"xy"_s);
        }
        field.set(u"h/rhel/u=j/p=a😀WQ/os"_s);
        field.select(14, 17);
        press(field, QKeySequence::Cut);
        field.select(13, 13);
        press(field, QKeySequence::Paste);
        QCOMPARE(field.real(), u"h/rhel/u=j/p=😀WaQ/os"_s);

        // What looks the same is another program's.
        clipboard->setText(clipboard->text());
        press(field, QKeySequence::Paste);
        QCOMPARE(field.real().count(field.shown().at(13)), 3);

        if (clipboard->supportsSelection()) {
            field.set(url);
            field.select(0, int(url.size()));
            QTest::mouseRelease(field.surface(), Qt::LeftButton);
            QTest::mouseClick(other.surface(), Qt::MiddleButton);
            QVERIFY(other.real().contains(secret));
        }
    }

    void inputMethod_data() { kinds(); }
    void inputMethod()
    {
        QFETCH(bool, several);
        Field field(several);
        field.set(u"h/rhel/u=joe/p=ab/os"_s);
        field.select(16, 16);

        QInputMethodEvent compose(u"W"_s, {});
        QCoreApplication::sendEvent(field.edit, &compose);
        QCOMPARE(field.real(), u"h/rhel/u=joe/p=ab/os"_s);
        if (several)
            QCOMPARE(composed(field), QString(field.shown().at(15)));
        QInputMethodEvent commit(QString(), {});
        commit.setCommitString(u"WW"_s);
        QCoreApplication::sendEvent(field.edit, &commit);
        QCOMPARE(field.real(), u"h/rhel/u=joe/p=aWWb/os"_s);
        CHECK_AGREE(field);

        QInputMethodEvent replace(QString(), {});
        replace.setCommitString(u"é"_s, -2, 2);
        QCoreApplication::sendEvent(field.edit, &replace);
        QCOMPARE(field.real(), u"h/rhel/u=joe/p=aéb/os"_s);

        field.select(0, 6); // composing replaces what is selected
        QCoreApplication::sendEvent(field.edit, &compose);
        if (several)
            QCOMPARE(composed(field), u"W"_s); // outside a password it shows
        QCoreApplication::sendEvent(field.edit, &commit);
        QCOMPARE(field.real(), u"WW/u=joe/p=aéb/os"_s);
        CHECK_AGREE(field);
        QTest::keyClick(field.edit, Qt::Key_Z, Qt::ControlModifier);
        CHECK_AGREE(field);
    }

    void themeFontAndSize_data() { kinds(); }
    void themeFontAndSize()
    {
        QFETCH(bool, several);
        Field field(several);
        field.set(url);
        field.select(32, 32);
        const QFont before = QApplication::font();
        for (const QString &name : QStyleFactory::keys()) {
            QApplication::setStyle(QStyleFactory::create(name));
            const QChar mask(field.edit->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter,
                                                            nullptr, field.edit));
            QCOMPARE(field.shown(), QString(url).replace(secret, QString(4, mask)));
            CHECK_AGREE(field);
        }
        QFont larger = before;
        larger.setPointSize(before.pointSize() + 5);
        QApplication::setFont(larger);
        QCoreApplication::processEvents();
        QCOMPARE(field.edit->font().pointSize(), larger.pointSize());
        if (field.text)
            QCOMPARE(field.text->currentFont().pointSize(), larger.pointSize());
        field.window.resize(300, 300);
        QCoreApplication::processEvents();
        QCOMPARE(field.realEdit->geometry(), field.edit->geometry());
        QVERIFY(!field.realEdit->isVisible());
        QTest::keyClick(field.edit, 'W');
        QCOMPARE(field.real(), QString(url).insert(32, u'W'));
        CHECK_AGREE(field);
        QApplication::setFont(before);
    }

    void longTexts_data() { kinds(); }
    void longTexts()
    {
        QFETCH(bool, several);
        Field field(several);
        const QString tail =
            several ? (u'\n' + u"http://x/\n"_s.repeated(300)) : QString(50000, u'x');
        field.set(url + tail);
        QCOMPARE(field.real(), url + tail);

        // Far out, the mouse points at what is seen there.
        QTest::keyClick(field.edit, Qt::Key_End, Qt::ControlModifier);
        pictureOf(field);
        QTest::mouseClick(field.surface(), Qt::LeftButton, {}, QPoint(60, several ? 40 : 12));
        CHECK_AGREE(field);
        const int position = field.cursor().y();
        QVERIFY(position > 2000);
        QTest::keyClick(field.edit, 'W');
        QCOMPARE(field.real(), QString(url + tail).insert(position, u'W'));

        // Typing in the middle leaves the view where it is.
        if (several) {
            QScrollBar *bar = field.text->verticalScrollBar();
            bar->setValue(bar->maximum() / 2);
            QTest::mouseClick(field.surface(), Qt::LeftButton, {}, QPoint(30, 60));
            const int value = bar->value();
            QTest::keyClick(field.edit, 'a');
            QCOMPARE(bar->value(), value);
        }
    }

    void outsideEdits_data() { kinds(); }
    // Assistive technology and callers of the base class change the copy.
    void outsideEdits()
    {
        QFETCH(bool, several);
        Field field(several);
        field.set(url);
        QAccessibleInterface *item = QAccessible::queryAccessibleInterface(field.edit);
        auto *editable = item->editableTextInterface();
        QVERIFY(editable);
        editable->insertText(32, u"xy"_s);
        QCOMPARE(field.real(), QString(url).insert(32, u"xy"_s));
        CHECK_AGREE(field);
        field.set(url);
        editable->deleteText(0, 7);
        QCOMPARE(field.real(), url.mid(7));
        QVERIFY(!field.shown().contains(secret));
    }

private:
    static void kinds()
    {
        QTest::addColumn<bool>("several");
        row("line", false);
        row("text", true);
    }
};

QTEST_MAIN(TestPasswd)
#include "test_passwd.moc"
