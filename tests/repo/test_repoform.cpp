#include "configroot.h"
#include "rows.h"
#include "scripted.h"

#include "app/colors.h"
#include "repo/configdialog.h"
#include "repo/entrycheck.h"
#include "repo/optionsedit.h"
#include "repo/passwdlineedit.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>

using namespace Qt::StringLiterals;
using RepoEditor::ConfigDialog;

namespace {

const QString url = u"http://h/kivvet?user=joe&pass=a%26b&path=os"_s;

const char scenario[] = R"(
import time
def repoOptions(io): return ["password"]
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
        root.put(root.repo(u"one"_s), "[one]\nname=One\nbaseurl=http://h/x\nsecret=1\n"
                                      "password=hush\n");
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
    QString status() const { return field<QLabel>("status")->text(); }

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

    void status_data()
    {
        columns<QString, QString, QString, QString, QString>("id", "urls", "list", "file", "text");
        const char *dir = "/etc/yum.repos.d/x.repo", *none = "";
        row("nothing", "", "", "", "", "No Identifier specified");
        row("no URL", "a", "", "", "/x", "No URLs or Mirror list URL specified");
        row("a list", "a", "", "http://h/", "", none);
        row("elsewhere", "a", "http://h", "", "/etc/x.repo",
            "File is not in any reposdir directory");
        row("elsewhere, with a like name", "a", "http://h", "", "/etc/yum.repos.dx/x.repo",
            "File is not in any reposdir directory");
        row("no suffix", "a", "http://h", "", "/etc/yum.repos.d/x", "File lacks .repo suffix");
        row("in its place", "a", "http://h", "", dir, none);
        row("the main file", "a", "http://h", "", "/etc/yum.conf", none);
        row("no name", "a", "http://h/kivvet?u=&p=x&path=", "", dir,
            "No Kivvet Authentication Name specified");
        row("no password", "a", "http://h", "http://h/rhel/u=n/p=/x", "",
            "No Kivvet Authentication Password specified");
        row("a blank", "a b", "http://h", "", "", "DNF takes no Identifier with a blank");
        row("a letter", "\u00e9$basearch", "http://h", "", "",
            "DNF takes no Identifier with the character \u00e9");
        row("a variable", "a-${arch}:$basearch", "http://h", "", "", none);
        row("main", "main", "http://h", "", "", "DNF takes no repository named main");
        row("a twin", "TWO", "http://h", "", "", "The Identifier two differs in case only");
        row("a twin, after the file", "TWO", "http://h", "", "/x",
            "File is not in any reposdir directory");
    }
    void status()
    {
        Form form;
        QFETCH(QString, id);
        QFETCH(QString, urls);
        QFETCH(QString, list);
        QFETCH(QString, file);
        Repo::Entry entry;
        entry.id = id, entry.baseurl = urls, entry.mirrorlist = list, entry.file = file;
        form.open(&entry);
        QTEST(form.status(), "text");
        const QColor base = form.field<QLabel>("status")->palette().color(QPalette::Base);
        if (!form.status().isEmpty())
            QCOMPARE(base, id.isEmpty() ? Colors::errorBg() : Colors::warningBg());
    }

    void optionHints()
    {
        const QStringList known{u"exclude"_s, u"proxy_password"_s, u"proxy"_s};
        const QString lines =
            u"proxy=x\n# prox=x\nexlcude = a\n b c\nkeeppackages=1\npassword: hush\n"_s;
        QCOMPARE(EntryCheck::optionHints(lines, known).join(u'\n'),
                 u"DNF does not know the option exlcude.  Is exclude meant?\n"
                 "DNF does not know the option keeppackages.\n"
                 "DNF leaves out the whole file for a line without \"=\": password: ****"_s);
        QCOMPARE(EntryCheck::optionHints(u"exlcude=a"_s, {}), QStringList());
    }

    // A whole edit by keys, from the file as it was to the file that is written.
    void edits()
    {
        Form form;
        const QString file = form.root.repo(u"one"_s);
        form.open(&form.root.entry(u"one"_s));
        QCOMPARE(form.field<QComboBox>("enabled")->itemText(1), u"Default (Yes)"_s);
        QCOMPARE(form.field<QComboBox>("gpgcheck")->itemText(1), u"Default (No)"_s);
        QVERIFY(!form.field("authName")->isEnabled());
        QVERIFY(!form.field<QPushButton>("resetButton")->isEnabled());
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
        QVERIFY(!form.field("authName")->isEnabled());
        form.type("repoName", u"Uno"_s);
        form.type("mirrorList", url);
        QTest::keyClick(form.field<QComboBox>("enabled"), Qt::Key_Down);
        form.press("okButton");
        QCOMPARE(form.dialog.result(), 1);
        QCOMPARE(form.root.used.value(u"one"_s), true);
        QVERIFY(form.root.io.write(nullptr));
        QCOMPARE(form.root.get(file), "[one]\nname=Uno\nbaseurl=http://h/x\nmirrorlist=" +
                                          url.toUtf8() + "\nenabled=1\nsecret=1\npassword=hush\n");

        form.open(&form.root.entry(u"two"_s));
        QVERIFY(!form.field<QLabel>("fileNotice")->isVisible());
        form.type("mirrorList", url);
        QVERIFY(form.field<QLabel>("fileNotice")->isVisible());
        QVERIFY(form.field<QLabel>("fileNotice")->text().contains(form.root.repo(u"two"_s)));
    }

    // What the fields cannot show as it is stays, unless it is edited.
    void untouched()
    {
        Form form;
        Repo::Entry entry;
        entry.id = u"a"_s, entry.name = u"x"_s, entry.baseurl = u"http://h\r"_s;
        entry.otherOptions = u"a=b\r\nc=\u00a0d\u2028\n"_s, entry.position = 140.75;
        const Repo::Entry before = entry;
        form.open(&entry);
        form.type("repoName", u"y"_s);
        form.press("okButton");
        QCOMPARE(entry.name, u"y"_s);
        QCOMPARE(entry.baseurl + entry.otherOptions, before.baseurl + before.otherOptions);
        QCOMPARE(entry.position, before.position);
    }

    void closing_data()
    {
        columns<QString, bool, int, QString, int>("by", "change", "answer", "name", "result");
        row("OK, unchanged", "ok", false, -1, "One", 0);
        row("OK", "ok", true, -1, "New", 1);
        row("Cancel asks nothing", "cancel", true, -1, "One", 0);
        row("Escape, unchanged", "escape", false, -1, "One", 0);
        row("Escape asks", "escape", true, 0, "One", 0);
        row("and can be taken back", "escape", true, 1, "New", 1);
        row("dropped", "drop", true, -1, "One", 0);
    }
    void closing()
    {
        QFETCH(QString, by);
        QFETCH(bool, change);
        QFETCH(int, answer);
        Form form;
        Repo::Entry &entry = form.root.entry(u"one"_s);
        form.open(&entry);
        if (change)
            form.type("repoName", u"New"_s);
        Answer asked(answer);
        if (by == u"drop")
            form.dialog.drop();
        else if (by == u"escape")
            QTest::keyClick(&form.dialog, Qt::Key_Escape);
        else
            form.press(by == u"ok" ? "okButton" : "cancelButton");
        QCOMPARE(asked.said.size(), answer < 0 ? 0 : 1);
        if (answer == 1)
            form.press("okButton");
        QVERIFY(!form.dialog.isVisible());
        QTEST(form.dialog.result(), "result");
        QTEST(entry.name, "name");
    }

    // The password is seen once its line is edited, and not by editing another.
    void optionPasswords()
    {
        Form form;
        Repo::Entry &entry = form.root.entry(u"one"_s);
        form.open(&entry);
        auto *options = form.field<RepoEditor::OptionsEdit>("otherOptions");
        const auto hidden = [&] { return !options->toPlainText().contains(u"hush"_s); };
        options->moveCursor(QTextCursor::Start);
        QTest::keyClicks(options, u"a=b"_s);
        QTest::keyClick(options, Qt::Key_Return);
        QVERIFY(hidden());
        QCOMPARE(options->realPlainText(), u"a=b\nsecret=1\npassword=hush\n"_s);
        options->moveCursor(QTextCursor::End);
        QTest::keyClicks(options, u"c=d"_s);
        QTest::keyClick(options, Qt::Key_Up);
        QVERIFY(hidden());
        QTest::keyClicks(options, u"x"_s);
        QVERIFY(!hidden());
        form.press("resetButton");
        QVERIFY(hidden());
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
                 u"DNF does not know the option secret."_s);
        form.type("urls", u"http:$xh"_s);
        QVERIFY(form.field<QWidget>("urls")->toolTip().endsWith(u"\nhttp://joe:****@h"_s));
        form.press("testButton");
        const QString told = form.field<QTextEdit>("testResult")->toPlainText();
        QVERIFY2(told.startsWith(
                     u"The repository cannot be reached.\nhttp://joe:****@h/x refuses the user "
                     "name or the password.\n    401\n[one]\nname=One\nbaseurl=http:$xh\n"_s),
                 qPrintable(told));

        QTimer::singleShot(0, &form.dialog, [&] { form.type("repoName", u"x"_s); });
        form.press("testButton");
        QVERIFY(form.field<QTextEdit>("testResult")
                    ->toPlainText()
                    .startsWith(u"This is of the repository before the last changes."_s));

        form.type("urls", u"http://page"_s);
        form.press("testButton");
        QVERIFY(form.field<QTextEdit>("testResult")
                    ->toPlainText()
                    .startsWith(u"The repository cannot be reached.\nWhat http://page has"_s));

        form.type("urls", u"http://wait"_s);
        QVERIFY(!form.field<QWidget>("testResult")->isVisible());
        QTimer::singleShot(20, &form.dialog, [&] { form.press("cancelTestButton"); });
        form.press("testButton");
        QCOMPARE(form.field<QTextEdit>("testResult")->toPlainText(), u"The test was cancelled."_s);
        QVERIFY(form.field<QWidget>("testButton")->hasFocus());
        QVERIFY(form.dialog.isVisible());
        bool stayed = false; // until the job ended
        QTimer::singleShot(20, &form.dialog, [&] {
            form.press("okButton");
            stayed = form.dialog.isVisible();
        });
        form.press("testButton");
        QVERIFY(stayed && !form.dialog.isVisible());
        QCOMPARE(form.dialog.result(), 1);
        QCOMPARE(entry.baseurl, u"http://wait"_s);
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(TestRepoForm)
#include "test_repoform.moc"
