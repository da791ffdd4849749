// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configroot.h"
#include "rows.h"
#include "scripted.h"

#include "app/colors.h"
#include "repo/configdialog.h"
#include "repo/optionsedit.h"
#include "repo/passwdlineedit.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSettings>

using namespace Qt::StringLiterals;
using RepoEditor::ConfigDialog;

namespace {

const QString url = u"http://h/kivvet?user=joe&pass=a%26b&path=os"_s;

const char scenario[] = R"(
import time
def repoOptions(io): return ["password", "exclude"]
def expanded(io, text): return text.replace("$x", "//joe:hush@")
def testRepo(io, section):
    yield 1
    if b"wait" in section:
        while not yumIOC.cancelled(): time.sleep(0.01)
        return
    if b"page" in section: yield "nothing", "http://page", ""
    yield "trying", "http://joe:hush@h/x", ""
    if b"page" in section: yield "good", "http://h", ""
    yield "password", "http://joe:hush@h/x", "401"
    yield "other", section.decode(), ""
)";

} // namespace

// The form of one repository, in a dialog that is shown, over a root with two repositories.
struct Form
{
    Form()
    {
        root.put(root.mainFile(), "[main]\n");
        root.put(root.repo(u"one"_s), "[one]\nname=One\nbaseurl=http://h/x\nexlcude=1\n"
                                      "no: x\nword=1\npassword=hush\n");
        root.put(root.repo(u"two"_s), "[two]\nbaseurl=http://h/y\n");
        root.io.read(nullptr);
    }
    void open(Repo::Entry *entry)
    {
        dialog.setEntry(entry);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }
    template <typename Widget = QLineEdit> Widget *field(const char *name) const
    {
        return dialog.findChild<Widget *>(QLatin1String(name));
    }
    void type(const char *name, const QString &text) const
    {
        auto *widget = field<QWidget>(name);
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, text);
    }
    void press(const char *name) const { QTest::mouseClick(field<QWidget>(name), Qt::LeftButton); }
    QString result() const { return field<QTextEdit>("testResult")->toPlainText(); }

    ConfigRoot root;
    ConfigDialog dialog{&root.io, nullptr};
};

class TestRepoForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    }

    // Of "identifier|URLs|mirror list|file".
    void status_data()
    {
        columns<QString, QString>("fields", "text");
        const char *none = "", *elsewhere = "File is not in any reposdir directory";
        row("nothing", "|||", "No Identifier specified");
        row("no URL", "a|||/x", "No URLs or Mirror list URL specified");
        row("a list", "a||http://h/|", none);
        row("elsewhere", "a|http://h||/etc/x.repo", elsewhere);
        row("in a like name", "a|http://h||/etc/yum.repos.dx/x.repo", elsewhere);
        row("no suffix", "a|http://h||/etc/yum.repos.d/x", "File lacks .repo suffix");
        row("the main file", "a|http://h||/etc/yum.conf", none);
        row("no name", "a|http://h/kivvet?u=&p=x&path=||/etc/yum.repos.d/x.repo",
            "No Kivvet Authentication Name specified");
        row("no password", "a|http://h|http://h/rhel/u=n/p=/x|",
            "No Kivvet Authentication Password specified");
        row("a blank", "a b|http://h||", "DNF takes no Identifier with a blank");
        row("a letter", "\u00e9|http://h||", "DNF takes no Identifier with the character \u00e9");
        row("variables", "a-${arch}:$basearch|http://h||", none);
        row("main", "main|http://h||", "DNF takes no repository named main");
        row("a twin", "TWO|http://h||", "The Identifier two differs in case only");
        row("a twin elsewhere", "TWO|http://h||/x", elsewhere);
    }
    void status()
    {
        Form form;
        QFETCH(QString, fields);
        const QStringList texts = fields.split(u'|');
        Repo::Entry entry{texts[0], {}, texts[1], texts[2], {}, {}, {}, texts[3], 0};
        form.open(&entry);
        auto *status = form.field<QLabel>("status");
        QTEST(status->text(), "text");
        const QColor base = texts[0].isEmpty() ? Colors::errorBg() : Colors::warningBg();
        if (!status->text().isEmpty())
            QCOMPARE(status->palette().color(QPalette::Base), base);
    }

    // A whole edit by keys, from the file as it was to the file that is written.
    void edits()
    {
        Form form;
        form.open(&form.root.entry(u"one"_s));
        QCOMPARE(form.field<QComboBox>("enabled")->itemText(1), u"Default (Yes)"_s);
        QCOMPARE(form.field<QComboBox>("gpgcheck")->itemText(1), u"Default (No)"_s);
        QCOMPARE(form.field("file")->text(), form.root.repo(u"one"_s));
        QCOMPARE(form.field<QDoubleSpinBox>("position")->value(), 1.0);
        QVERIFY(!form.field("authName")->isEnabled());
        QVERIFY(!form.field<QWidget>("resetButton")->isEnabled());
        form.type("mirrorList", url);
        QCOMPARE(form.field("authPassword")->text(), u"a&b"_s);
        form.type("authName", u"j/e"_s);
        QTest::keyClick(form.field("authName"), Qt::Key_Left);
        QTest::keyClicks(form.field("authName"), u"o"_s);
        QCOMPARE(form.field<PasswdLineEdit>("mirrorList")->realText(),
                 u"http://h/kivvet?user=j%2foe&pass=a%26b&path=os"_s);
        QVERIFY(!form.field("mirrorList")->text().contains(u"a%26b"_s));
        QTest::keyClick(form.field<QComboBox>("enabled"), Qt::Key_Down);
        form.press("resetButton");
        form.type("repoName", u"Uno"_s);
        form.type("mirrorList", url);
        QTest::keyClick(form.field<QComboBox>("enabled"), Qt::Key_Down);
        form.press("okButton");
        QVERIFY(form.root.used.value(u"one"_s));
        QVERIFY(form.root.io.write(nullptr));
        QCOMPARE(form.root.get(form.root.repo(u"one"_s)),
                 "[one]\nname=Uno\nbaseurl=http://h/x\nmirrorlist=" + url.toUtf8() +
                     "\nenabled=1\nexlcude=1\nno: x\nword=1\npassword=hush\n");

        form.open(&form.root.entry(u"two"_s));
        auto *notice = form.field<QLabel>("fileNotice");
        QVERIFY(!notice->isVisible());
        form.type("mirrorList", url);
        QVERIFY(notice->isVisible() && notice->text().contains(form.root.repo(u"two"_s)));
    }

    // What the fields cannot show as it is stays, unless it is edited.
    void untouched()
    {
        Form form;
        const QString options = u"a=b\r\nc=\u00a0d\u2028\n"_s;
        Repo::Entry entry{u"a"_s, u"x"_s, u"http://h\r"_s, {}, {}, {}, options, {}, 140.75};
        form.open(&entry);
        form.type("repoName", u"y"_s);
        form.press("okButton");
        QCOMPARE(entry.name + entry.baseurl + entry.otherOptions, u"yhttp://h\r"_s + options);
        QCOMPARE(entry.position, 140.75);
    }

    // What is done in turn, a number being the answer to a question; how many questions there were, the
    // dialog's result and the entry's name afterwards.
    void closing_data()
    {
        columns<QString, QString>("steps", "outcome");
        row("OK, unchanged", "ok", "0 0 One");
        row("OK", "type ok", "0 1 New");
        row("Cancel asks nothing", "type cancel", "0 0 One");
        row("Escape, unchanged", "escape", "0 0 One");
        row("Escape asks", "type escape0", "1 0 One");
        row("and can be taken back", "type escape1 ok", "1 1 New");
        row("dropped", "type drop", "0 0 One");
    }
    void closing()
    {
        Form form;
        Repo::Entry &entry = form.root.entry(u"one"_s);
        form.open(&entry);
        qsizetype questions = 0;
        QFETCH(QString, steps);
        for (const QString &step : steps.split(u' ')) {
            Answer asked(step.right(1).toInt());
            if (step == u"type")
                form.type("repoName", u"New"_s);
            else if (step == u"drop")
                form.dialog.drop();
            else if (step.startsWith(u"escape"))
                QTest::keyClick(&form.dialog, Qt::Key_Escape);
            else
                form.press(step == u"ok" ? "okButton" : "cancelButton");
            questions += asked.said.size();
        }
        QVERIFY(!form.dialog.isVisible());
        QTEST(u"%1 %2 "_s.arg(questions).arg(form.dialog.result()) + entry.name, "outcome");
    }

    // The password is seen once its line is edited, and not by editing another.
    void optionPasswords()
    {
        Form form;
        form.open(&form.root.entry(u"one"_s));
        auto *options = form.field<RepoEditor::OptionsEdit>("otherOptions");
        const auto hidden = [&] { return !options->toPlainText().contains(u"hush"_s); };
        options->moveCursor(QTextCursor::Start);
        QTest::keyClicks(options, u"a=b"_s);
        QTest::keyClick(options, Qt::Key_Return);
        QVERIFY(hidden() &&
                options->realPlainText() == u"a=b\nexlcude=1\nno: x\nword=1\npassword=hush\n"_s);
        options->moveCursor(QTextCursor::End);
        for (const auto key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_Return, Qt::Key_End})
            QTest::keyClick(options, key);
        QVERIFY(hidden());
        QTest::keyClicks(options, u"x"_s);
        QVERIFY(!hidden());
        form.press("resetButton");
        QVERIFY(hidden());

        // Nor by a cut that comes back.
        for (const auto way : {QKeySequence::Undo, QKeySequence::Paste}) {
            options->selectAll();
            QTest::keySequence(options, QKeySequence(QKeySequence::Cut));
            QTest::keySequence(options, QKeySequence(way));
            QVERIFY(hidden() && options->realPlainText().contains(u"password=hush"_s));
        }

        // What is seen of a password is none.
        const QString mask(4, QChar(0x25cf));
        form.field<PasswdLineEdit>("mirrorList")
            ->setRealText(u"http://h/rhel/u=j/p=%1/"_s.arg(mask));
        Answer box({0});
        form.press("okButton");
        QVERIFY(form.dialog.isVisible() && box.said.size() == 1);
    }

    // The Test button: what the engine is given and tells, and how the dialog ends while it works.
    void tests()
    {
        Scripted scripted;
        QVERIFY(scripted.start());
        QVERIFY(scripted.collect(scenario));
        Form form;
        Repo::Entry &entry = form.root.entry(u"one"_s);
        form.dialog.setEngine(&scripted.engine, [](const auto &work) { return work(), true; });
        form.open(&entry);
        QCOMPARE(form.field<QLabel>("optionHints")->text(),
                 u"DNF does not know the option exlcude.  Is exclude meant?\n"
                 "DNF leaves out the whole file for a line without \"=\": no: x\n"
                 "DNF does not know the option word."_s);
        const auto test = [&](const QString &urls, const std::function<void()> &meanwhile) {
            form.type("urls", urls);
            QTimer::singleShot(0, &form.dialog, meanwhile);
            form.press("testButton");
            return form.result();
        };
        const auto begins = [](const QString &text, const QString &begin) {
            if (!text.startsWith(begin))
                qWarning() << text;
            return text.startsWith(begin);
        };
        QVERIFY(
            begins(test(u"http:$xh"_s, [] {}),
                   u"The repository cannot be reached.\nhttp://joe:****@h/x refuses the user name "
                   "or the password.\n    401\n[one]\nname=One\nbaseurl=http:$xh\n"_s));
        QVERIFY(form.field<QWidget>("urls")->toolTip().endsWith(u"\nhttp://joe:****@h"_s));
        QVERIFY(test(u"http://page"_s, [&] { form.type("repoName", u"x"_s); })
                    .startsWith(u"This is of the repository before the last changes.\n"
                                "The repository cannot be reached.\nWhat http://page has"_s));
        QCOMPARE(test(u"http://wait"_s, [&] { form.press("testCancelButton"); }),
                 u"The test was cancelled."_s);
        QVERIFY(form.field<QWidget>("testButton")->hasFocus() && form.dialog.isVisible());
        bool stayed = false; // until the job ended
        test(u"http://wait"_s, [&] {
            form.press("okButton");
            stayed = form.dialog.isVisible();
        });
        QVERIFY(stayed && !form.dialog.isVisible());
        QCOMPARE(form.dialog.result(), 1);
        QCOMPARE(entry.baseurl, u"http://wait"_s);
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(TestRepoForm)
#include "test_repoform.moc"
