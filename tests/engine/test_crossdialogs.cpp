#include "answers.h"

#include "yumio/dialogs.h"

#include <QTest>
#include <QThread>

#include <functional>

namespace {

// Runs `job` on a worker thread while the calling thread's loop runs.
void onWorker(const std::function<void()> &job)
{
    QEventLoop loop;
    std::unique_ptr<QThread> thread(QThread::create([&] {
        job();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    }));
    thread->start();
    loop.exec();
    thread->wait();
}

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TestCrossDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersReachTheWorker_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("result");
        QTest::newRow("yes") << s("confirm") << s("OK") << 1;
        QTest::newRow("escape") << s("confirm") << s("none such") << 0;
        QTest::newRow("third") << s("critical") << s("C") << 2;
        QTest::newRow("escape of a box") << s("critical") << s("none such") << 2;
        QTest::newRow("scrollable") << s("scrollable") << s("Close") << -1;
    }

    void answersReachTheWorker()
    {
        QFETCH(QString, form);
        QFETCH(QString, button);
        Answers answers({button});
        int result = -1;
        onWorker([&] {
            YumIODialogs *slot = nullptr;
            YumIODialogsUser user(slot, nullptr);
            const QString title = s("Title"), text = s("Text of <b>it</b>");
            if (form == s("confirm"))
                result = slot->confirm(title, text, s("OK"), s("Cancel"));
            else if (form == s("warning"))
                result = slot->warning(title, text, s("A"), s("B"), s("C"), 0, 2);
            else if (form == s("critical"))
                result = slot->critical(title, text, s("A"), s("B"), s("C"), 2, 2);
            else
                slot->scrollable(title, text);
        });
        QTEST(result, "result");
        QCOMPARE(answers.texts(), QStringList(s("Text of <b>it</b>")));
        QCOMPARE(answers.titles(), QStringList(s("Title")));
    }

    // A channel of the GUI thread serves the GUI thread at once, and a worker through one of the
    // worker's own.
    void oneChannelForAll()
    {
        Answers answers({s("Yes"), s("No"), s("Yes")});
        YumIODialogs dialogs(nullptr);
        QCOMPARE(dialogs.confirm(s("1"), s("a"), s("Yes"), s("No")), 1);
        int result = -1;
        onWorker([&] { result = dialogs.confirm(s("2"), s("b"), s("Yes"), s("No")); });
        QCOMPARE(result, 0);
        QCOMPARE(dialogs.confirm(s("3"), s("c"), s("Yes"), s("No")), 1);
        QCOMPARE(answers.titles(), QStringList({s("1"), s("2"), s("3")}));
    }

    void showsBadTextHarmlessly()
    {
        Answers answers;
        YumIODialogs dialogs(nullptr);
        dialogs.scrollable(s("t"), s("a\tb\nc") + QChar(0) + s("d\x1b[1m") + QChar(0x202e) +
                                       s("e") + s(" http://u:pw@h/"));
        const QString mark = QChar(QChar::ReplacementCharacter);
        QCOMPARE(answers.texts().constFirst(),
                 s("a\tb\nc") + mark + s("d") + mark + s("[1m") + mark + s("e http://u:**@h/"));
    }
};

QTEST_MAIN(TestCrossDialogs)
#include "test_crossdialogs.moc"
