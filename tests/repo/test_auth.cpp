#include "configroot.h"
#include "rows.h"

#include "kivvet/kivvet.h"
#include "kivvet/url.h"
#include "repo/authchecker.h"
#include "repo/authdialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

// Answers the questions one after the other, with real events, and notes what was asked of whom.
class Person : public QTimer
{
public:
    Person(const QString &text, QWidget *parent) : m_answers(text.split(u' ')), m_parent(parent)
    {
        callOnTimeout(this, &Person::look);
        start(1);
    }

    QStringList asked;
    QString wrong; // what the dialog did not keep to

private:
    void look()
    {
        auto *dialog = m_parent->findChild<RepoAuth::Dialog *>();
        if (!dialog || !dialog->isActiveWindow() || m_answers.isEmpty())
            return;
        const auto text = [&](const char *label) {
            return dialog->findChild<QLabel *>(QLatin1String(label))->text();
        };
        asked += text("idLabel");
        if (QApplication::overrideCursor())
            wrong += u"The cursor is busy. "_s;
        if (text("warningLabel").contains(ConfigRoot::mainFile()) != (asked.last() != u"c"))
            wrong += u"It does not tell whose file loses its readers. "_s;
        QString answer = m_answers.takeFirst();
        if (answer.startsWith(u'+')) {
            QTest::keyClicks(dialog->focusWidget(), u"j/e"_s);
            QTest::keyClick(dialog, Qt::Key_Tab);
            QTest::keyClicks(dialog->focusWidget(), u"s&c"_s);
            const QString urls = text("baseurlLabel");
            if (!urls.contains(u"=j%2fe"_s) || urls.contains(u"=s"_s) || urls.contains(u"&c"_s))
                wrong += urls;
            answer.remove(0, 1);
        }
        if (auto *button = dialog->findChild<QAbstractButton *>(answer + u"Button"_s))
            QTest::mouseClick(button, Qt::LeftButton);
        else if (answer == u"close")
            dialog->close();
        else
            QTest::keyClick(dialog, answer == u"return" ? Qt::Key_Return : Qt::Key_Escape);
    }

    QStringList m_answers;
    QWidget *m_parent;
};

class TestAuth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hosts()
    {
        for (const auto &[url, host] : {std::pair(u"http://h:8/x"_s, u"h:8"_s),
                                        {u"ftp://u:p@h"_s, u"u:p@h"_s},
                                        {u"file:///x"_s, {}},
                                        {u"mailto:x//y"_s, {}},
                                        {u"none"_s, {}}})
            QCOMPARE(URL::getHost(url), host);
    }

    void answers_data()
    {
        // stored: which of the repositories a, b and c have both in their files afterwards
        columns<QString, QString, QString, bool, bool>("answers", "asked", "stored", "quit",
                                                       "changed");
        row("each by itself", "+ok +return +ok", "a b c", "a b c", false, true);
        row("all", "+applyAll", "a", "a b c", false, true);
        row("one host", "+applyHost skipAll", "a c", "a b", false, true);
        row("what was answered stays", "+ok skipAll", "a b", "a", false, true);
        row("disabled", "disable +ok disable", "a b c", "b", false, true);
        row("quit", "+ok quit", "a b", "a", true, true);
        row("escape", "escape", "a", "", false, false);
        row("closed", "close", "a", "", false, false);
        row("nothing typed", "ok applyAll", "a b", "", false, false);
    }

    void answers()
    {
        QFETCH(QString, answers);
        ConfigRoot root;
        const QByteArray ab = "[main]\n[a]\nbaseurl=http://h/kivvet?user=&pw=&path=/a/\n"
                              "[b]\nbaseurl=http://h/rhel/n=/k=/\n";
        root.put(root.mainFile(), ab);
        QFile::setPermissions(root.real(root.mainFile()),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
        root.put(root.repo(u"c"_s), "[c]\nbaseurl=http://x/rhel/n=/k=/\npassword=old\n"
                                    "[off]\nenabled=0\nbaseurl=http://h/rhel/n=/k=/\n"
                                    "[half]\nbaseurl=http://h/rhel/n=me/k=/\n");
        QWidget window;
        Person person(answers, &window);
        QApplication::setOverrideCursor(Qt::BusyCursor);
        const RepoAuth::Checker checker(&window, &root.io);
        QVERIFY(QApplication::overrideCursor());
        QApplication::restoreOverrideCursor();
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(person.wrong, QString());
        QTEST(person.asked.join(u' '), "asked");
        QTEST(checker.quit, "quit");
        QTEST(checker.changed, "changed");
        QCOMPARE(root.used.value(u"a"_s), !answers.startsWith(u"disable"_s));

        if (!checker.changed)
            QCOMPARE(root.get(root.mainFile()), ab);
        root.io.read(&window);
        QStringList stored;
        for (const Repo::Entry &entry : std::as_const(root.io.repos)) {
            QString nameKey, name, passwordKey, password;
            QVERIFY(Repo::Kivvet::getAuth(entry, nameKey, name, passwordKey, password));
            if (name == u"j/e" && password == u"s&c")
                stored += entry.id;
        }
        stored.sort();
        QTEST(stored.join(u' '), "stored");
        const QFile::Permissions rights = QFile::permissions(root.real(root.mainFile()));
        QCOMPARE(rights.testFlag(QFile::ReadOther), stored.isEmpty());
    }
};

QTEST_MAIN(TestAuth)
#include "test_auth.moc"
